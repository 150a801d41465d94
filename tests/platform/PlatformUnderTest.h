#pragma once

#include "engine/EnginePlatform.h"
#include "engine/input/Hand.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Tessellon::Contract {

/// One toolkit's platform, made anew for each test. Its sizes are those of a replay: rows of 240 twips, columns of 960,
/// no scroll bar that takes room, combo boxes 315 high, English names, day before month.
class PlatformUnderTest {
public:
    virtual ~PlatformUnderTest() = default;

    virtual std::shared_ptr<Platform> Get() = 0; ///< As a sheet would be given it.
    virtual EnginePlatform& Engine() = 0; ///< The same, as its toolkit works with it.
    virtual Hand& TheHand() = 0;

    [[nodiscard]] virtual int Bells() const = 0; ///< How often the bell was sounded.
    [[nodiscard]] virtual std::u16string Clipboard() const = 0;
    /// The numbers of the failures that came out of what the user did.
    [[nodiscard]] virtual std::vector<std::int32_t> UnhandledFailures() const = 0;
};

struct PlatformFactory {
    std::string Name;
    std::function<std::unique_ptr<PlatformUnderTest>()> Make;
};

/// The platform that this program tries: each toolkit defines it in a file of its own, and is linked with all tests.
PlatformFactory TheFactory();

} // namespace Tessellon::Contract

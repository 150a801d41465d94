#pragma once

#include "engine/EnginePlatform.h"
#include "engine/input/Hand.h"

#include <functional>
#include <memory>
#include <string_view>

namespace Tessellon::Replay {

/// The platform on which a script is played, with the user who plays it. It starts without a size, and the focus is
/// outside the sheet.
class Stage {
public:
    /// Who hears what the platform tells besides the sheet's events.
    struct Ears {
        std::function<void(std::u16string_view)> MessageBox; ///< It is closed at once.
        std::function<void(const Failure&)> UnhandledFailure; ///< Came out of what the user did.
    };

    virtual ~Stage() = default;

    virtual const std::shared_ptr<EnginePlatform>& Platform() = 0;
    virtual Hand& TheHand() = 0;
    virtual void Listen(Ears ears) = 0;
};

/// The locale of all scripts: English, day before month.
Locale ScriptLocale();

std::unique_ptr<Stage> MakeHeadlessStage();
/// Defined only in a build with the desktop platform.
std::unique_ptr<Stage> MakeQtStage();

} // namespace Tessellon::Replay

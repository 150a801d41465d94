#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <utility>

namespace Tessellon {

/// A failure of the platform: of a control, of the recordset, of a run-time function or of a host's handler.
/// It is thrown where it arises and consumed by the innermost handler frame of the sheet.
class Failure : public std::exception {
public:
    Failure(std::int32_t number, std::u16string source, std::u16string description, std::u16string helpFile = {},
            std::int32_t helpContext = 0)
        : Number(number)
        , Source(std::move(source))
        , Description(std::move(description))
        , HelpFile(std::move(helpFile))
        , HelpContext(helpContext)
    {
    }

    [[nodiscard]] const char* what() const noexcept override { return "Tessellon::Failure"; }

    std::int32_t Number;
    std::u16string Source; ///< Name of the control, with its index in an array: "Combo1(2)".
    std::u16string Description; ///< The platform's text for the number.
    std::u16string HelpFile;
    std::int32_t HelpContext;
};

} // namespace Tessellon

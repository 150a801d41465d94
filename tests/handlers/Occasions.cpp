#include "handlers/Occasions.h"

namespace Tessellon::HandlerTests {

namespace {

template <class Member>
Occasion Of(const char* name, Member event)
{
    return {name, [event](TessellonSheet& sheet, const std::function<void()>& handler) {
                (sheet.*event) += [handler](auto&&...) { handler(); };
            }};
}

} // namespace

const std::vector<Occasion>& Occasions()
{
    using Sheet = TessellonSheet;
    static const std::vector<Occasion> occasions{
        Of("Compare", &Sheet::Compare),
        Of("AdvanceToNextCell", &Sheet::AdvanceToNextCell),
        Of("ExitFocus", &Sheet::ExitFocus),
        Of("MouseDown", &Sheet::MouseDown),
        Of("MouseMove", &Sheet::MouseMove),
        Of("MouseUp", &Sheet::MouseUp),
        Of("Click", &Sheet::Click),
        Of("DblClick", &Sheet::DblClick),
        Of("KeyUp", &Sheet::KeyUp),
        Of("KeyDown", &Sheet::KeyDown),
        Of("KeyPress", &Sheet::KeyPress),
        Of("RowColChange", &Sheet::RowColChange),
        Of("Scroll", &Sheet::Scroll),
        Of("SelChange", &Sheet::SelChange),
        Of("LeaveCell", &Sheet::LeaveCell),
        Of("EnterCell", &Sheet::EnterCell),
        Of("EditorValidate", &Sheet::EditorValidate),
        Of("EditorChange", &Sheet::EditorChange),
        Of("DateBoxCloseUp", &Sheet::DateBoxCloseUp),
        Of("DateBoxDropDown", &Sheet::DateBoxDropDown),
        Of("Format", &Sheet::Format),
        Of("DatePickerCallbackKeyDown", &Sheet::DatePickerCallbackKeyDown),
        Of("ButtonClick", &Sheet::ButtonClick),
        Of("UseAdvanceToNextCell", &Sheet::UseAdvanceToNextCell),
        Of("ErrInfo", &Sheet::ErrInfo),
    };
    return occasions;
}

} // namespace Tessellon::HandlerTests

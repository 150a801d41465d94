#include "shell/Entry.h"

#include <cmath>
#include <exception>
#include <limits>

namespace Tessellon {

SheetPointer TessellonSheet::Create(std::shared_ptr<Platform> platform)
{
    auto* const sheet = new TessellonSheet(std::move(platform));
    sheet->self_.reset(sheet);
    SheetPointer pointer(sheet);
    sheet->platform_->Listen(sheet);
    Entry(*sheet).Run([&] { sheet->UserControl_Initialize(); });
    return pointer;
}

TessellonSheet::TessellonSheet(std::shared_ptr<Platform> platform)
    : platform_(std::move(platform))
    , stackBudget_(platform_->StackBudget())
    , MSFlexGrid1(&platform_->MSFlexGrid1())
    , Text1(platform_->Text1())
    , Check1(platform_->Check1())
    , Combo1(&platform_->Combo1())
    , List1(&platform_->List1())
    , DTPicker1(platform_->DTPicker1())
    , MaskEdBox1(&platform_->MaskEdBox1())
    , RichTextBox1(platform_->RichTextBox1())
    , Command1(&platform_->Command1())
    , UserControl(&platform_->UserControl())
    , Screen(&platform_->Screen())
    , RunTime(&platform_->RunTime())
{
}

void EndSheet::operator()(TessellonSheet* sheet) const noexcept
{
    sheet->End();
}

void TessellonSheet::End()
{
    std::unique_ptr<TessellonSheet> alive = std::move(self_);
    ended_ = true;
    try {
        UserControl_Terminate();
    } catch (const std::exception&) {
        // A host that lets go of its sheet has nobody left who could be told.
        TakeCaughtFailure();
    }
    platform_->Listen(nullptr);
    // Frames of the sheet are on the stack: the outermost lets go of it.
    if (depth_ > 0)
        self_ = std::move(alive);
}

void TessellonSheet::LeaveIfEnded() const
{
    if (HasEndedInside())
        throw SheetEnded();
}

void TessellonSheet::Fail(std::int32_t number)
{
    Fail(number, u"TessellonSheet");
}

void TessellonSheet::Fail(std::int32_t number, std::u16string_view source)
{
    throw Failure(number, std::u16string(source), std::u16string(RunTime->FailureText(number)));
}

std::int32_t TessellonSheet::ToLong(double number)
{
    const double rounded = std::nearbyint(number);
    if (!(rounded >= std::numeric_limits<std::int32_t>::min() && rounded <= std::numeric_limits<std::int32_t>::max()))
        Fail(6);
    return static_cast<std::int32_t>(rounded);
}

std::size_t TessellonSheet::StackUsed() const
{
    const char here = 0;
    const auto now = reinterpret_cast<std::uintptr_t>(&here);
    if (depth_ == 0)
        return 0;
    return now < stackTop_ ? stackTop_ - now : now - stackTop_;
}

void TessellonSheet::CheckStack()
{
    if (stack_ == Stack::Enough && StackUsed() <= stackBudget_)
        return;
    if (stack_ == Stack::Enough)
        stack_ = Stack::Spent;
    Fail(28);
}

} // namespace Tessellon

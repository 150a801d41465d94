#include "qt/QtToolkit.h"

#include "headless/HeadlessToolkit.h"
#include "qt/EditorWidget.h"
#include "qt/FocusEcho.h"
#include "qt/GridView.h"
#include "qt/SheetFrame.h"
#include "qt/Texts.h"

#include <QClipboard>
#include <QGuiApplication>

#include <cmath>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#endif

namespace Tessellon {

float QtToolkit::TextWidth(std::u16string_view text, const Font& font)
{
    return frame_ != nullptr ? frame_->TheMetrics().TextWidth(text, font) : 0;
}

std::int32_t QtToolkit::DefaultRowHeight(const Font& font)
{
    return frame_ != nullptr ? frame_->TheMetrics().DefaultRowHeight(font) : HeadlessToolkit::RowHeight;
}

std::int32_t QtToolkit::DefaultColWidth(const Font& font)
{
    return frame_ != nullptr ? frame_->TheMetrics().DefaultColWidth(font) : HeadlessToolkit::ColWidth;
}

float QtToolkit::ComboBoxHeight(const Font& font)
{
    return frame_ != nullptr ? frame_->TheMetrics().ComboBoxHeight(font) : HeadlessToolkit::ComboHeight;
}

std::int32_t QtToolkit::HorizontalScrollBarHeight()
{
    // The grid asks while the frame is being made, too.
    if (frame_ == nullptr || !frame_->IsWhole())
        return 0;
    return frame_->TwipsOf(frame_->Bars().HorizontalHeight());
}

std::int32_t QtToolkit::VerticalScrollBarWidth()
{
    if (frame_ == nullptr || !frame_->IsWhole())
        return 0;
    return frame_->TwipsOf(frame_->Bars().VerticalWidth());
}

float QtToolkit::TwipsPerPixelY()
{
    return frame_ != nullptr ? frame_->TheMetrics().TwipsAPixel() : HeadlessToolkit::TwipsAPixel;
}

Font QtToolkit::AmbientFont()
{
    if (frame_ == nullptr || frame_->TheConduct() == Conduct::Replay)
        return {};
    return FontOf(frame_->font(), *frame_);
}

std::int32_t QtToolkit::WindowHandle()
{
    if (frame_ == nullptr || frame_->TheConduct() == Conduct::Replay)
        return 0;
    return static_cast<std::int32_t>(frame_->effectiveWinId());
}

std::size_t QtToolkit::StackBudget()
{
#ifdef Q_OS_UNIX
    rlimit limit{};
    if (getrlimit(RLIMIT_STACK, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY)
        return static_cast<std::size_t>(limit.rlim_cur) / 4 * 3;
#endif
    return Toolkit::StackBudget();
}

void QtToolkit::Invalidate(const GridRectangle& part)
{
    if (frame_ != nullptr)
        frame_->Invalidate(part);
}

void QtToolkit::PaintNow()
{
    if (frame_ != nullptr)
        frame_->PaintNow();
}

void QtToolkit::ScrollBarsChanged()
{
    if (frame_ != nullptr && frame_->IsWhole())
        frame_->Bars().Changed();
}

void QtToolkit::Changed(ControlCore& control, Aspect aspect)
{
    if (frame_ != nullptr)
        frame_->ShowControl(control, aspect);
}

EditorWidget* QtToolkit::SelfEditing(const ControlCore& control) const
{
    return frame_ != nullptr && frame_->TheConduct() == Conduct::Desktop ? frame_->EditorOf(&control) : nullptr;
}

bool QtToolkit::KeyInWidget(ControlCore& control, std::int16_t keyCode, std::int16_t shift)
{
    EditorWidget* const editor = SelfEditing(control);
    return editor != nullptr && editor->TakeKey(keyCode, shift);
}

bool QtToolkit::CharacterInWidget(ControlCore& control, char16_t character)
{
    EditorWidget* const editor = SelfEditing(control);
    return editor != nullptr && editor->TakeCharacter(character);
}

void QtToolkit::FocusMoved()
{
    if (frame_ != nullptr && frame_->IsWhole())
        frame_->Echo().Follow();
}

void QtToolkit::Bell()
{
    if (frame_ != nullptr)
        frame_->Ring();
}

void QtToolkit::Copy(std::u16string_view text)
{
    QGuiApplication::clipboard()->setText(OwnText(text));
}

void QtToolkit::MousePointer(std::int16_t shape)
{
    if (frame_ != nullptr)
        frame_->ShowPointer(shape);
}

void QtToolkit::MessageBox(std::u16string_view text, std::int16_t /*style*/)
{
    if (frame_ != nullptr)
        frame_->ShowMessage(OwnText(text));
}

void QtToolkit::UnhandledFailure(const Failure& failure)
{
    if (frame_ != nullptr)
        emit frame_->UnhandledFailure(failure.Number, OwnText(failure.Source), OwnText(failure.Description));
}

void QtToolkit::PropertyChanged(std::u16string_view name)
{
    if (frame_ != nullptr)
        emit frame_->PropertyChanged(OwnText(name));
}

} // namespace Tessellon

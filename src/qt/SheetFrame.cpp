#include "qt/SheetFrame.h"

#include "qt/EditorWidget.h"
#include "qt/FocusEcho.h"
#include "qt/GridAccessible.h"
#include "qt/GridView.h"
#include "qt/KeyInput.h"
#include "qt/QtToolkit.h"

#include <QApplication>
#include <QBackingStore>
#include <QMessageBox>
#include <QResizeEvent>

#include <utility>

namespace Tessellon {

namespace {

constexpr qint64 longActivity =
    100; ///< Milliseconds from its first painting on, until an activity paints while it lasts.

std::unique_ptr<Metrics> MetricsFor(Conduct conduct, const QWidget& widget)
{
    if (conduct == Conduct::Replay)
        return std::make_unique<FixedMetrics>();
    return std::make_unique<ScreenMetrics>(widget);
}

} // namespace

SheetFrame::Activity::Activity(SheetFrame& frame)
    : frame_(frame)
{
    if (frame_.activities_++ == 0)
        frame_.paintingSince_.invalidate();
}

SheetFrame::Activity::~Activity()
{
    --frame_.activities_;
}

SheetFrame::SheetFrame(Conduct conduct, Locale locale, QWidget* parent)
    : QWidget(parent)
    , conduct_(conduct)
    , metrics_(MetricsFor(conduct, *this))
    , toolkit_(std::make_shared<QtToolkit>(*this))
    , platform_(std::make_shared<EnginePlatform>(toolkit_, std::move(locale)))
    , keys_(std::make_unique<KeyInput>(*this))
    , view_(new GridView(*this))
    , bars_(std::make_unique<GridScrollBars>(*this))
    , echo_(std::make_unique<FocusEcho>(*this))
    , readers_(std::make_unique<AccessibleEcho>(*view_))
{
    GridAccessible::Install();
    isWhole_ = true;
    setFocusPolicy(Qt::TabFocus);
    if (conduct_ == Conduct::Desktop)
        platform_->TheFocus().WindowOut();
}

SheetFrame::~SheetFrame()
{
    isWhole_ = false;
    ShowPointer(0);
    toolkit_->Detach();
}

/// A widget is never destroyed inside its own event: what is running here returns into widgets that are still there.
void SheetFrame::Drop(SheetFrame* frame)
{
    frame->isWhole_ = false;
    frame->toolkit_->Detach();
    frame->echo_->Stop();
    for (const auto& [control, editor] : frame->editors_)
        editor->AboutToGo();
    if (frame->activities_ == 0) {
        delete frame;
        return;
    }
    frame->hide();
    frame->setParent(nullptr);
    frame->deleteLater();
}

QWidget& SheetFrame::EditorParent() const
{
    return *view_;
}

EditorWidget* SheetFrame::EditorOf(const InputControl* control) const
{
    const auto found = editors_.find(control);
    return found == editors_.end() ? nullptr : found->second;
}

QWidget& SheetFrame::WidgetOf(const InputControl* control) const
{
    const EditorWidget* const editor = EditorOf(control);
    return editor != nullptr ? editor->Widget() : *view_;
}

bool SheetFrame::IsComposing() const
{
    const EditorWidget* const editor = EditorOf(platform_->TheFocus().Holder());
    return editor != nullptr && editor->IsComposing();
}

void SheetFrame::CommitComposition()
{
    if (EditorWidget* const editor = EditorOf(platform_->TheFocus().Holder()))
        editor->CommitComposition();
}

QRect SheetFrame::PixelsOf(const ControlCore::Rectangle& place) const
{
    const float pixel = metrics_->TwipsAPixel();
    const auto edge = [&](float twips) { return qRound(twips / pixel); };
    return {QPoint(edge(place.Left), edge(place.Top)),
            QPoint(edge(place.Left + place.Width) - 1, edge(place.Top + place.Height) - 1)};
}

std::int32_t SheetFrame::TwipsOf(int pixels) const
{
    return qRound(static_cast<float>(pixels) * metrics_->TwipsAPixel());
}

void SheetFrame::ScreenChanged()
{
    if (conduct_ == Conduct::Replay)
        return;
    metrics_->FollowScreen();
    platform_->TheGrid().FontMetricsChanged();
    ResizeSheet();
    for (const auto& [control, editor] : editors_)
        editor->Follow(Aspect::Place);
    view_->update();
}

// ---- Painting -------------------------------------------------------------------------------------------------------

void SheetFrame::Invalidate(const GridRectangle& part)
{
    constexpr int mostParts = 64;
    if (!isWhole_ || !view_->isVisible())
        return;
    readers_->GridChanged();
    const QRect pixels = view_->PixelsAround(part);
    view_->update(pixels);
    due_ += pixels;
    if (due_.rectCount() > mostParts)
        due_ = due_.boundingRect();
}

void SheetFrame::PaintNow()
{
    if (!isWhole_)
        return;
    bars_->FollowIfDue();
    // What an activity leads to is painted in one: an editor that goes from cell to cell is never seen gone.
    if (activities_ > 0) {
        if (!paintingSince_.isValid())
            paintingSince_.start();
        if (paintingSince_.elapsed() < longActivity)
            return;
        paintingSince_.start();
    }
    view_->repaint(std::exchange(due_, {}));
}

/// What has uncovered the window is told by an event, and with it would come others, of the user's and of the window's
/// end. So the picture that is there is shown once more, unasked; only X needs it.
void SheetFrame::PaintWindow()
{
    if (!isWhole_ || !view_->isVisible())
        return;
    const QPointer<QWidget> whole = window();
    QCoreApplication::sendPostedEvents(whole, QEvent::UpdateRequest);
    if (whole == nullptr || QGuiApplication::platformName() != QStringLiteral("xcb"))
        return;
    if (QBackingStore* const picture = whole->backingStore())
        picture->flush(whole->rect());
}

/// A widget is made when it is first shown: a sheet may have hundreds of columns, each with an editor of its own.
void SheetFrame::ShowControl(ControlCore& control, Aspect aspect)
{
    if (!isWhole_)
        return;
    if (EditorWidget* const editor = EditorOf(&control)) {
        if (aspect != Aspect::Gone) {
            editor->Follow(aspect);
            return;
        }
        editors_.erase(&control);
        editor->Drop();
    } else if (control.IsVisible() && aspect != Aspect::Gone) {
        EditorWidget* const made = MakeEditorWidget(*this, control);
        if (made == nullptr)
            return;
        editors_.emplace(&control, made);
        made->FollowAll();
    }
}

// ---- Messages and pointer -------------------------------------------------------------------------------------------

void SheetFrame::ShowMessage(const QString& text)
{
    if (OnMessage) {
        OnMessage(text);
        return;
    }
    const Activity activity(*this);
    const QPointer<QMessageBox> box = new QMessageBox(QMessageBox::Critical, QGuiApplication::applicationDisplayName(),
                                                      text, QMessageBox::Ok, window());
    isMessageUp_ = true;
    box->exec();
    isMessageUp_ = false;
    delete box;
    if (isWhole_ && isVisible() && !isActiveWindow())
        activateWindow();
}

void SheetFrame::Ring()
{
    if (OnBell)
        OnBell();
    else
        QApplication::beep();
}

void SheetFrame::ShowPointer(std::int16_t shape)
{
    constexpr std::int16_t hourglass = 11;
    if (std::exchange(isWaiting_, shape == hourglass) == (shape == hourglass))
        return;
    if (isWaiting_)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QGuiApplication::restoreOverrideCursor();
}

// ---- Events ---------------------------------------------------------------------------------------------------------

void SheetFrame::ResizeSheet()
{
    const float pixel = metrics_->TwipsAPixel();
    Do([&] { platform_->Resize(static_cast<float>(width()) * pixel, static_cast<float>(height()) * pixel); });
    if (isWhole_)
        bars_->Follow();
}

bool SheetFrame::event(QEvent* event)
{
    if (!isWhole_)
        return QWidget::event(event);
    switch (event->type()) {
    case QEvent::WindowActivate: Do([&] { platform_->TheFocus().WindowIn(); }); break;
    case QEvent::WindowDeactivate:
        if (!isMessageUp_ && QApplication::activePopupWidget() == nullptr) {
            CommitComposition();
            Do([&] {
                // The release goes to the other window; a record's mouse goes on.
                if (conduct_ == Conduct::Desktop)
                    platform_->TheGrid().AbandonPress();
                platform_->TheFocus().WindowOut();
            });
        }
        break;
    case QEvent::ScreenChangeInternal: ScreenChanged(); break;
    case QEvent::EnabledChange:
        // Qt takes its focus from what is disabled, also where the sheet kept its own.
        if (isEnabled())
            echo_->Follow();
        break;
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
        for (const auto& [control, editor] : editors_)
            editor->Follow(Aspect::Look);
        break;
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        // What a child left over passes through here; it was told there.
        if (hasFocus())
            return keys_->Handle(*event);
        break;
    default: break;
    }
    return QWidget::event(event);
}

/// The sheet of a record is told its size by the script, which knows no pixels.
void SheetFrame::resizeEvent(QResizeEvent* /*event*/)
{
    if (conduct_ == Conduct::Desktop)
        ResizeSheet();
}

void SheetFrame::showEvent(QShowEvent* /*event*/)
{
    echo_->WatchWindow();
    if (conduct_ == Conduct::Desktop && isActiveWindow())
        Do([&] { platform_->TheFocus().WindowIn(); });
    bars_->Follow();
}

// The bases of these repaint the whole widget.
void SheetFrame::focusInEvent(QFocusEvent* /*event*/)
{
}

void SheetFrame::focusOutEvent(QFocusEvent* /*event*/)
{
}

void SheetFrame::wheelEvent(QWheelEvent* event)
{
    view_->TurnWheel(*event);
}

} // namespace Tessellon

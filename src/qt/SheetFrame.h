#pragma once

#include "engine/EnginePlatform.h"
#include "qt/Conduct.h"
#include "qt/GridScrollBars.h"
#include "qt/Metrics.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QPointer>
#include <QRegion>
#include <QString>
#include <QWidget>

#include <functional>
#include <memory>
#include <unordered_map>

namespace Tessellon {

class AccessibleEcho;
class EditorWidget;
class FocusEcho;
class GridView;
class KeyInput;
class QtToolkit;

/// The platform of one sheet as a widget: the grid, its scroll bars, the editors, and what the user does with them. It
/// is one tab stop. A sheet is made on its Platform(); whoever makes it lets go of it ahead of this widget.
class SheetFrame : public QWidget {
    Q_OBJECT

public:
    SheetFrame(Conduct conduct, Locale locale, QWidget* parent = nullptr);
    ~SheetFrame() override;

    /// Takes the frame off its parent and deletes it, later if an event of the user's is running in it.
    static void Drop(SheetFrame* frame);

    [[nodiscard]] Conduct TheConduct() const { return conduct_; }
    [[nodiscard]] const std::shared_ptr<EnginePlatform>& Platform() const { return platform_; }
    [[nodiscard]] GridView& View() const { return *view_; }
    [[nodiscard]] QWidget& EditorParent() const;
    [[nodiscard]] Metrics& TheMetrics() const { return *metrics_; }
    [[nodiscard]] KeyInput& TheKeyInput() const { return *keys_; }
    [[nodiscard]] FocusEcho& Echo() const { return *echo_; }
    [[nodiscard]] bool IsWhole() const { return isWhole_; } ///< Not while it is being made, nor while it goes.
    [[nodiscard]] GridScrollBars& Bars() const { return *bars_; }

    /// Runs what the user does; nothing of it reaches Qt's event loop as an exception. This widget, and all that is in
    /// it, is still there when it returns, but the sheet may have ended.
    template <class Action>
    void Do(const Action& action)
    {
        const Activity activity(*this);
        platform_->UserAction(action);
    }

    /// While one of these lives, painting waits for its end, unless that takes long.
    class Activity {
    public:
        explicit Activity(SheetFrame& frame);
        ~Activity();
        Activity(const Activity&) = delete;
        Activity& operator=(const Activity&) = delete;

    private:
        SheetFrame& frame_;
    };

    /// The widget that has Qt's focus while `control` has the sheet's.
    [[nodiscard]] QWidget& WidgetOf(const InputControl* control) const;
    /// The widget that was made for an editor; null if none was. That happens when it is first shown.
    [[nodiscard]] EditorWidget* EditorOf(const InputControl* control) const;
    /// The input method of the editor that has the focus holds text that is not committed yet.
    [[nodiscard]] bool IsComposing() const;
    void CommitComposition(); ///< The user turns to something else: what he has composed so far is typed.
    /// A rectangle in twips as logical pixels: its edges are rounded, not its sizes.
    [[nodiscard]] QRect PixelsOf(const ControlCore::Rectangle& place) const;
    [[nodiscard]] std::int32_t TwipsOf(int pixels) const;
    /// The screen or its scale is another than the metrics were taken from.
    void ScreenChanged();

    // What the toolkit asks for.
    void Invalidate(const GridRectangle& part);
    void Painted(const QRegion& part) { due_ -= part; }
    void PaintNow();
    /// Paints what is due in the whole window, and shows it again where another has covered it; no other event of the
    /// window is handled. It goes on behind a widget that deletes this one while it is painted.
    void PaintWindow();
    void ShowControl(ControlCore& control, Aspect aspect);
    void ShowMessage(const QString& text);
    void Ring();
    void ShowPointer(std::int16_t shape); ///< 11 the hourglass, else none of its own.
    bool GoOn(bool forward) { return focusNextPrevChild(forward); } ///< Qt's focus goes to the next tab stop.

    /// Hears a message instead of a box; the box is then closed at once.
    std::function<void(const QString&)> OnMessage;
    std::function<void()> OnBell; ///< Hears the bell instead of the user.
    std::function<void(QAccessibleEvent&)> OnReader; ///< Hears what is told of the grid instead of screen readers.

signals:
    void UnhandledFailure(int number, const QString& source, const QString& description);
    void PropertyChanged(const QString& name);

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    friend class Activity;
    void ResizeSheet();

    bool isWhole_ = false; ///< Asked before the others are there, and behind them.
    Conduct conduct_;
    std::unique_ptr<Metrics> metrics_;
    std::shared_ptr<QtToolkit> toolkit_;
    std::shared_ptr<EnginePlatform> platform_;
    std::unique_ptr<KeyInput> keys_;
    GridView* view_ = nullptr;
    std::unordered_map<const InputControl*, EditorWidget*> editors_; ///< Of those that were shown.
    std::unique_ptr<GridScrollBars> bars_;
    std::unique_ptr<FocusEcho> echo_;
    std::unique_ptr<AccessibleEcho> readers_;
    int activities_ = 0;
    bool isMessageUp_ = false;
    bool isWaiting_ = false; ///< The hourglass is shown.
    QElapsedTimer paintingSince_; ///< An activity that paints nothing never reads the clock.
    QRegion due_;
};

} // namespace Tessellon

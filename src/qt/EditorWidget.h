#pragma once

#include "engine/controls/ControlCore.h"
#include "qt/SheetFrame.h"

#include <QAbstractScrollArea>
#include <QMouseEvent>
#include <QPalette>
#include <QWidget>

#include <concepts>
#include <cstdint>
#include <memory>

namespace Tessellon {

/// What all editors on the screen have in common, whatever widget of Qt's they are: they show what their control says,
/// and hand it keys and mouse. A kind adds only what differs, in the members that are virtual here.
class EditorWidget {
public:
    EditorWidget(const EditorWidget&) = delete;
    EditorWidget& operator=(const EditorWidget&) = delete;
    virtual ~EditorWidget() = default;

    [[nodiscard]] QWidget& Widget() const { return widget_; }
    [[nodiscard]] QString Spoken() const; ///< What the control shows, for who cannot see it.

    void FollowAll(); ///< Shows all of the control, which the widget was just made for.
    void Follow(Aspect aspect); ///< Shows what of the control has become another.
    void Drop(); ///< The control is gone: hidden at once, deleted when nothing can be running in it any more.

    /// Does what a key means to a widget that edits by itself, and tells the control what came of it. False: the engine
    /// does what the key means.
    virtual bool TakeKey(std::int16_t keyCode, std::int16_t shift);
    virtual bool TakeCharacter(char16_t character);
    /// The input method holds text that is not committed yet.
    [[nodiscard]] virtual bool IsComposing() const { return false; }
    virtual void CommitComposition() {} ///< The user turns to something else: what he has composed so far is typed.
    /// The control was hidden or disabled, and the widget is about to be, or it goes with all the sheet: what hangs on
    /// it closes first.
    virtual void AboutToGo() {}

protected:
    /// The roles of a palette in which the kind paints its background and its text.
    struct Roles {
        QPalette::ColorRole Background;
        QPalette::ColorRole Text;
    };

    EditorWidget(SheetFrame& frame, ControlCore& control, QWidget& widget, Roles roles);

    virtual void ShowLook() {} ///< Behind font and colours: alignment, caption, formats.
    virtual void ShowContent() {}
    virtual void ShowCaret() {}
    virtual void ShowItems() {}
    virtual void ShowCalendar() {}
    virtual void Dress(QPalette& colors) const; ///< In what differs from the palette around it.
    /// Where the mouse events of Qt's widget count from.
    [[nodiscard]] virtual QPoint Corner() const { return {}; }

    // What Qt's own widget does with the mouse. A press that was lost, with all that follows it, never comes here.
    virtual void Pressed(QMouseEvent& event) { static_cast<void>(event); }
    virtual void DoublePressed(QMouseEvent& event) { Pressed(event); }
    virtual void Moved(QMouseEvent& event) { static_cast<void>(event); }
    virtual void Released(QMouseEvent& event) { static_cast<void>(event); }
    /// The left button was let go in here, behind MouseUp: what a press means that the control cannot know.
    virtual void ReleasedInside(QMouseEvent& event) { static_cast<void>(event); }

    // The mouse over the widget, in this order: the control is told of a press before the widget acts on it, of the
    // rest behind.
    void Press(QMouseEvent& event, bool isSecond);
    void Move(QMouseEvent& event);
    void Release(QMouseEvent& event);
    void TurnWheel(QWheelEvent& event); ///< It is the grid's, and changes no value.
    [[nodiscard]] bool IsHeld(Qt::MouseButton button) const { return held_.testFlag(button); }

    bool HandleKey(QEvent& event); ///< True if the event was a key and is done with.
    void PaintEdge(QWidget& canvas); ///< The line around the editor that the user is in.

    SheetFrame& frame_;

private:
    void Look();
    void ShowVisible();
    [[nodiscard]] EventArguments MouseOf(const QMouseEvent& event) const;

    std::shared_ptr<ControlCore> control_;
    QWidget& widget_;
    Roles roles_;
    Qt::MouseButtons held_; ///< Pressed here, and not lost.
};

/// An editor on a widget of Qt's, for a control of the engine's.
template <class Base, class Control>
class EditorOn : public Base, public EditorWidget {
protected:
    EditorOn(SheetFrame& frame, Control& control, Roles roles)
        : Base(&ParentOf(frame))
        , EditorWidget(frame, control, *this, roles)
        , control_(control)
    {
        if constexpr (scrolls)
            this->setFrameStyle(QFrame::Box | QFrame::Plain);
    }

    [[nodiscard]] Control& TheControl() const { return control_; } ///< The widget keeps it in being.

    bool event(QEvent* event) override { return HandleKey(*event) || Base::event(event); }
    void paintEvent(QPaintEvent* event) override
    {
        Base::paintEvent(event);
        if constexpr (!scrolls)
            PaintEdge(*this);
    }
    /// What scrolls has its edge as its frame, and paints only what lies inside.
    void Dress(QPalette& colors) const override
    {
        EditorWidget::Dress(colors);
        if constexpr (scrolls)
            colors.setColor(QPalette::WindowText, colors.color(QPalette::Highlight));
    }
    [[nodiscard]] QPoint Corner() const override
    {
        if constexpr (scrolls)
            return this->viewport()->pos();
        else
            return {};
    }
    void mousePressEvent(QMouseEvent* event) override { Press(*event, false); }
    void mouseDoubleClickEvent(QMouseEvent* event) override { Press(*event, true); }
    void mouseMoveEvent(QMouseEvent* event) override { Move(*event); }
    void mouseReleaseEvent(QMouseEvent* event) override { Release(*event); }
    void wheelEvent(QWheelEvent* event) override { TurnWheel(*event); }

private:
    static constexpr bool scrolls = std::derived_from<Base, QAbstractScrollArea>;
    [[nodiscard]] static QWidget& ParentOf(SheetFrame& frame);

    Control& control_;
};

template <class Base, class Control>
QWidget& EditorOn<Base, Control>::ParentOf(SheetFrame& frame)
{
    return frame.EditorParent();
}

/// The widget for a control, not shown yet; null for a kind that has none. It belongs to the view of its frame.
[[nodiscard]] EditorWidget* MakeEditorWidget(SheetFrame& frame, ControlCore& control);

} // namespace Tessellon

#pragma once

#include "qt/GridView.h"
#include "qt/SheetFrame.h"
#include "qt/SheetWidget.h"
#include "qt/TextBoxWidget.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QStringList>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace Tessellon {

/// A host's form: a line edit, a sheet with two text columns and a check box column, a button. In its window, which is
/// in front; the user is in the line edit.
class Form : public testing::Test {
protected:
    void SetUp() override;
    void TearDown() override; ///< No window is left behind.

    /// Declares the columns and adds rows, which enters the first cell: the sheet has the focus then.
    static void Fill(SheetWidget& sheet, int rows = 3);
    void Fill() { Fill(*Sheet); }
    void Hear(); ///< Notes the events of the sheet by name.

    [[nodiscard]] static SheetFrame& FrameOf(const SheetWidget& sheet) { return *sheet.findChild<SheetFrame*>(); }
    [[nodiscard]] SheetFrame& Frame() const { return FrameOf(*Sheet); }
    [[nodiscard]] GridView& View() const { return Frame().View(); }
    /// The widget of an editor that was shown.
    template <class Widget>
    [[nodiscard]] static Widget& EditorIn(const SheetFrame& frame, const InputControl* control)
    {
        return dynamic_cast<Widget&>(frame.WidgetOf(control));
    }
    [[nodiscard]] TextBoxWidget& Box() const
    {
        return EditorIn<TextBoxWidget>(Frame(), Frame().Platform()->TheTextBox().get());
    }
    [[nodiscard]] std::u16string_view FocusName() const { return Frame().Platform()->FocusName(); }
    [[nodiscard]] QRect PlaceOf(GridCell cell) const; ///< In the view.
    [[nodiscard]] QPoint MiddleOf(GridCell cell) const { return PlaceOf(cell).center(); }
    void Click(GridCell cell) const;
    /// A press as the window gets it: at the widget that lies there.
    static void ClickThroughWindow(QWidget& target);
    static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    static void Type(const QString& text);

    std::unique_ptr<QWidget> Window;
    SheetWidget* Sheet = nullptr;
    QLineEdit* Before = nullptr;
    QPushButton* Behind = nullptr;
    QStringList Heard;
};

} // namespace Tessellon

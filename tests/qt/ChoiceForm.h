#pragma once

#include "Form.h"

#include "qt/ButtonWidget.h"
#include "qt/ComboBoxWidget.h"
#include "qt/ComboList.h"
#include "qt/ListBoxWidget.h"

#include <QWheelEvent>
#include <QWindow>

namespace Tessellon {

/// The form with a column each of a combo box, a list box, a button and a text box. Keys and presses come as the window
/// gets them, which hands them to what is open over it.
class ChoiceForm : public Form {
protected:
    void SetUp() override
    {
        Form::SetUp();
        Declare(*Sheet);
        Sheet->Add(0, 30);
        QCoreApplication::processEvents();
    }

    static void Declare(SheetWidget& sheet)
    {
        sheet.Cols(5);
        const auto declare = [&](int col, const char* name, FieldControlType kind, const char* setting) {
            sheet.CreateColumnDataType(col, QString::fromLatin1(name), kind, QString::fromLatin1(setting), false,
                                       fcLeft, 0, faNil, false);
            sheet.ColWidth(col, 1800);
        };
        declare(1, "Colour", fcComboBox, "red|green|blue");
        declare(2, "Fruit", fcListBox, "apple|pear|plum|quince");
        declare(3, "More", fcCommandButton, "Salt & pepper");
        declare(4, "Name", fcTextBox, "");
        sheet.BuildGridColumns();
        sheet.AllowAddNew(true);
    }

    template <class Widget>
    [[nodiscard]] Widget& Editor(Child kind, int index = 0) const
    {
        for (const auto& editor : Frame().Platform()->Editors())
            if (editor->Which() == kind && editor->Index() == index)
                return EditorIn<Widget>(Frame(), editor.get());
        throw std::bad_cast();
    }
    [[nodiscard]] ComboBoxWidget& Combo() const { return Editor<ComboBoxWidget>(Child::Combo1); }
    [[nodiscard]] ListBoxWidget& ListBox() const { return Editor<ListBoxWidget>(Child::List1); }
    [[nodiscard]] ButtonWidget& Button() const { return Editor<ButtonWidget>(Child::Command1); }
    [[nodiscard]] bool IsOpen() const { return Combo().List().isVisible(); }

    void WindowKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(Window->windowHandle(), key, modifiers);
        QCoreApplication::processEvents();
    }
    /// At a position of a widget, through the window. Between press and release Qt repeats a press that closed a list.
    void WindowClick(const QWidget& target, QPoint at, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        const QPoint position = target.mapTo(Window.get(), at);
        QTest::mousePress(Window->windowHandle(), Qt::LeftButton, modifiers, position);
        QCoreApplication::processEvents();
        QTest::mouseRelease(Window->windowHandle(), Qt::LeftButton, modifiers, position);
        QCoreApplication::processEvents();
    }
    void WindowClick(GridCell cell) const { WindowClick(View(), MiddleOf(cell)); }
    void PressButtonOfCombo() const { WindowClick(Combo(), Combo().Button().center()); }
    void ClickInList(int entry) const
    {
        ComboList& list = Combo().List();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, QPoint(8, entry * list.EntryHeight() + 3));
        QCoreApplication::processEvents();
    }
    static void Turn(QWidget& over, int eighths)
    {
        const QPointF at(5, 5);
        QWheelEvent wheel(at, over.mapToGlobal(at), {}, QPoint(0, eighths), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&over, &wheel);
    }
};

} // namespace Tessellon

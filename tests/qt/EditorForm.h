#pragma once

#include "Form.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <QWheelEvent>

namespace Tessellon {

/// A form whose sheet has one column of a kind and a text column behind it, entered in its first cell.
class EditorForm : public Form {
protected:
    /// The column's settings are those of CreateColumnDataType.
    void FillWith(FieldControlType kind, const QString& settings = {}, int length = 0, bool useMask = false,
                  int rows = 3)
    {
        Sheet->Cols(3);
        Sheet->CreateColumnDataType(1, QStringLiteral("First"), kind, settings, false, fcLeft, length, faNil, useMask);
        Sheet->CreateColumnDataType(2, QStringLiteral("Second"), fcTextBox, {}, false, fcLeft, 0, faNil, false);
        Sheet->BuildGridColumns();
        Sheet->ColWidth(1, 2400);
        Sheet->AllowAddNew(true);
        Sheet->Add(0, rows);
        QCoreApplication::processEvents();
    }

    /// The widget that has the focus, which is the editor's.
    template <class Widget>
    [[nodiscard]] static Widget& Focused()
    {
        return dynamic_cast<Widget&>(*QApplication::focusWidget());
    }

    [[nodiscard]] QString Cell(int row = 1) const { return Sheet->TextMatrix(row, 1); }
    [[nodiscard]] std::int32_t TopRow() const { return Frame().Platform()->TheGrid().TopRow(); }
    static void Ctrl(Qt::Key key) { Key(key, Qt::ControlModifier); }
    static void Copy(const QString& text) { QGuiApplication::clipboard()->setText(text); }
    [[nodiscard]] static QString Copied() { return QGuiApplication::clipboard()->text(); }

    static void Compose(const QString& text)
    {
        QInputMethodEvent event(text, {});
        QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
    }
    static void Commit(const QString& text)
    {
        QInputMethodEvent event;
        event.setCommitString(text);
        QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
    }
    static void Turn(QWidget& over)
    {
        const QPointF at(5, 5);
        QWheelEvent wheel(at, over.mapToGlobal(at), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&over, &wheel);
    }
};

} // namespace Tessellon

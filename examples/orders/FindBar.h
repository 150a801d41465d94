#pragma once

#include <QString>
#include <QWidget>

class QLabel;
class QLineEdit;

namespace Tessellon {
class SheetWidget;
} // namespace Tessellon

namespace Orders {

/// Goes to the row that holds the text in this column: first to a cell that is the text, letter by letter; where there
/// is none, or behind the row after, to the next one that contains it in whatever case, and round. After 0 begins anew.
/// Gives the row gone to, 0 if there is none.
int FindInColumn(Tessellon::SheetWidget& sheet, int col, const QString& text, int after);

/// A field for what is sought in a column, with a button for the next find. Enter finds, Esc closes.
class FindBar : public QWidget {
    Q_OBJECT

public:
    explicit FindBar(QWidget* parent = nullptr);

    void Open(); ///< Shows it, with the focus in the field.
    void SetColumn(const QString& name);
    [[nodiscard]] QString Text() const; ///< Without blanks around it.
    [[nodiscard]] bool HasFocusInside() const;

signals:
    void FindNext();
    void TextEdited();
    void Closed();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLabel* label_;
    QLineEdit* field_;
};

} // namespace Orders

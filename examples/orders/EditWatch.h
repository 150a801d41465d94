#pragma once

#include <QObject>
#include <QString>

namespace Tessellon {
class SheetWidget;
} // namespace Tessellon

namespace Orders {

/// Whether the user has changed the orders since they were loaded. EditorChange tells of typing in text, date and rich
/// text at once; of the other editors, and of what Esc takes back, the sheet tells nothing, and the cell's text is
/// compared when the user goes on.
class EditWatch : public QObject {
    Q_OBJECT

public:
    explicit EditWatch(Tessellon::SheetWidget& sheet);

    [[nodiscard]] bool HasEdits() const { return hasEdits_; }
    void Note(); ///< Something was changed by other means than an editor.
    void Pause(); ///< A load begins, whose walk over the rows is no user's.
    void Restart(); ///< The orders are as they were loaded.

signals:
    void Entered(); ///< A cell is current, perhaps the same again.
    void Edited();

private:
    void Remember();
    void Compare();

    Tessellon::SheetWidget& sheet_;
    int row_ = 0;
    int col_ = 0;
    QString text_;
    bool hasEdits_ = false;
    bool isPaused_ = false;
};

} // namespace Orders

#pragma once

#include <QWidget>

#include <functional>

namespace Tessellon {

/// A window that hangs on an editor: a list, a calendar. The focus and the keys stay with the editor, so that to Qt
/// nothing is lost while it is open. What the user does elsewhere closes it first, and then counts as ever.
class DropDown : public QWidget {
public:
    explicit DropDown(QWidget& owner);

    /// Below the owner, or above it where there is more room; on its screen as far as that goes.
    void Open(QSize size);
    void Close(); ///< Without a word to anybody.

    /// The user turns to something else: whoever opened this is to close it.
    std::function<void()> OnLeft;
    /// Whether the press that is going on in the owner has closed this. Asked once for each press.
    [[nodiscard]] bool WasLeftByOwnersPress();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool IsLeftBy(QObject* watched, const QEvent& event);
    [[nodiscard]] bool IsPressElsewhere(QObject* watched, const QEvent& event);

    QWidget& owner_;
    bool isOpen_ = false;
    bool isLeftByOwnersPress_ = false;
};

} // namespace Tessellon

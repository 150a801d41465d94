#pragma once

#include <QObject>
#include <QPointer>

class QMouseEvent;
class QWidget;
class QWindow;

namespace Tessellon {

class SheetFrame;

/// Lets Qt's focus follow the sheet's, and tells the sheet what the user and other widgets do with Qt's. What Qt moves
/// by itself, because a widget was hidden or a window is not active, is put right.
class FocusEcho : public QObject {
public:
    explicit FocusEcho(SheetFrame& frame);

    void Follow(); ///< The sheet's focus stands elsewhere.
    void BeforeHiding(QWidget& widget); ///< Else Qt would send its focus to the next in the chain, even outside.
    /// The user presses in this sheet: its window is in front by that, and the other sheets in it are left. False: one
    /// of them kept the focus, and the press is lost.
    bool BeforePress();
    void Stop(); ///< The sheet goes.
    void Tab(bool forward); ///< To the host's next widget, if it has one and the sheet lets the focus go.
    void WatchWindow(); ///< The sheet is in this window now.

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Moved(QWidget* now);
    void Give(QWidget& widget);
    [[nodiscard]] bool IsInside(const QWidget* widget) const;
    [[nodiscard]] bool TakesFocusByPress(QWidget* widget) const;
    [[nodiscard]] bool HasOtherStop() const;
    bool Leave();

    SheetFrame& frame_;
    QPointer<QWindow> window_;
    bool isOurs_ = false; ///< The move of Qt's focus that is going on was made here.
};

} // namespace Tessellon

#pragma once

#include "engine/controls/ChoiceControls.h"
#include "qt/EntryArea.h"

namespace Tessellon {

class SheetFrame;

/// The open list of a combo box. It takes neither focus nor mouse from anybody: keys go to the combo as ever, a press
/// on an entry chooses it, and one elsewhere closes the list and counts where it hits. A popup of Qt's would keep that
/// press to itself on most platforms.
class ComboList : public EntryArea {
public:
    /// `combo` is the widget that it belongs to, `button` the part of it that opens and closes the list.
    ComboList(SheetFrame& frame, ComboBoxControl& control, QWidget& combo);

    void
    Open(const QRect& button); ///< Below the combo, or above it where there is more room. Without entries: nothing.
    void Follow(); ///< The combo's text or entries are others.
    /// The mouse is held since it pressed the button: it points at an entry, and chooses that where it is let go.
    void PointAt(QPoint global);
    void ChooseAt(QPoint global);

    bool eventFilter(QObject* watched, QEvent* event) override; ///< Of all that happens while the list is open.

    [[nodiscard]] int EntryCount() const override { return control_.State().Count(); }
    [[nodiscard]] QString EntryText(int index) const override;
    [[nodiscard]] bool IsEntrySelected(int index) const override;
    [[nodiscard]] int CurrentEntry() const override { return control_.State().Current(); }

protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    [[nodiscard]] QRect Place() const;
    [[nodiscard]] bool IsElsewhere(const QObject& watched, QPoint global) const;
    void Point(int entry);
    void Choose(int entry);

    SheetFrame& frame_;
    ComboBoxControl& control_;
    QWidget& combo_;
    QRect button_;
    int pointed_ = -1; ///< The entry under the mouse since that moved last; -1 for none.
};

} // namespace Tessellon

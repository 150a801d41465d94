#pragma once

#include "engine/controls/ChoiceControls.h"
#include "qt/EditorWidget.h"
#include "qt/EntryArea.h"

namespace Tessellon {

/// The list box over a cell. It shows its control's entries; keys and mouse choose among those in the control.
class ListBoxWidget : public EditorOn<EntryArea, ListBoxControl> {
public:
    ListBoxWidget(SheetFrame& frame, ListBoxControl& control);

    [[nodiscard]] int EntryCount() const override { return TheControl().State().Count(); }
    [[nodiscard]] QString EntryText(int index) const override;
    [[nodiscard]] bool IsEntrySelected(int index) const override { return TheControl().State().Selected(index); }
    [[nodiscard]] int CurrentEntry() const override { return TheControl().State().Reached(); }

protected:
    void ShowLook() override { EntriesChanged(); }
    void ShowContent() override;
    void ShowItems() override;
    void Pressed(QMouseEvent& event) override;
    void ReleasedInside(QMouseEvent& event) override;

private:
    int pressed_ = -1; ///< The entry under the last press; -1 for none.
};

} // namespace Tessellon

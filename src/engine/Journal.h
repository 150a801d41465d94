#pragma once

#include "engine/journal/JournalLog.h"
#include "engine/journal/WatchedEditors.h"
#include "engine/journal/WatchedFrame.h"
#include "engine/journal/WatchedGrid.h"
#include "platform/Platform.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Tessellon {

/// A decorator over any platform: it notes the calls that count, when asked to, and makes one of them fail, when asked
/// to. What counts are the writes to, and the methods without a result of, the grid, the editors, their arrays, the
/// container and the screen, and the moves of a recordset. Reads, the run time and message boxes do not count, but a
/// read can be named to fail. A failure that is asked for comes once, has the control's name for its source
/// ("Combo1(2)", of an array "Combo1", "UserControl", "Screen", "Recordset"), and leaves the call undone.
class Journal : public Platform {
public:
    explicit Journal(std::shared_ptr<Platform> under);

    /// From here on counted calls are noted, those that fail too; not at first.
    void Notes(bool noting) { log_->Notes(noting); }
    /// The calls since the last time, each as "MSFlexGrid1.TextMatrix(3,1)=\"a\"" or "Text1.ZOrder(1)".
    [[nodiscard]] std::vector<std::u16string> TakeNotes() { return log_->TakeNotes(); }

    /// The counted call with this number from here on, 1 being the next, is to fail. At most one failure is awaited:
    /// the later one asked for replaces the earlier, whichever way it was named.
    void FailAtCall(std::int32_t number, std::int32_t failure) { log_->FailAtCall(number, failure); }
    /// The next read, write or call of "Control.Member" is to fail: "MSFlexGrid1.TextMatrix", "Combo1(2).Text".
    void FailAtMember(std::u16string_view member, std::int32_t failure)
    {
        log_->FailAtMember(std::u16string(member), failure);
    }

    Grid& MSFlexGrid1() override { return grid_; }
    std::shared_ptr<TextBox> Text1() override { return text_; }
    std::shared_ptr<CheckBox> Check1() override { return check_; }
    ControlArray<ComboBox>& Combo1() override { return combos_; }
    ControlArray<ListBox>& List1() override { return lists_; }
    std::shared_ptr<DTPicker> DTPicker1() override { return picker_; }
    ControlArray<MaskEdBox>& MaskEdBox1() override { return masks_; }
    std::shared_ptr<RichTextBox> RichTextBox1() override { return richText_; }
    ControlArray<CommandButton>& Command1() override { return buttons_; }
    Image& ImgAction(std::int16_t index) override;

    Container& UserControl() override { return container_; }
    Tessellon::Screen& Screen() override { return screen_; }
    Tessellon::RunTime& RunTime() override { return under_->RunTime(); }
    std::shared_ptr<Recordset> Watched(std::shared_ptr<Recordset> recordset) override;
    void Listen(EventSink* sink) override { under_->Listen(sink); }
    std::size_t StackBudget() override { return under_->StackBudget(); }

private:
    /// A part of the platform as a pointer that keeps the platform.
    template <class Part>
    [[nodiscard]] std::shared_ptr<Part> Of(Part& part) const
    {
        return {under_, &part};
    }

    std::shared_ptr<Platform> under_;
    std::shared_ptr<JournalLog> log_ = std::make_shared<JournalLog>();
    WatchedGrid grid_;
    std::shared_ptr<WatchedTextBox> text_;
    std::shared_ptr<WatchedCheckBox> check_;
    WatchedArray<ComboBox, WatchedComboBox> combos_;
    WatchedArray<ListBox, WatchedListBox> lists_;
    std::shared_ptr<WatchedDTPicker> picker_;
    WatchedArray<MaskEdBox, WatchedMaskEdBox> masks_;
    std::shared_ptr<WatchedRichTextBox> richText_;
    WatchedArray<CommandButton, WatchedCommandButton> buttons_;
    WatchedContainer container_;
    WatchedScreen screen_;
    std::map<std::int16_t, WatchedImage> images_;
};

} // namespace Tessellon

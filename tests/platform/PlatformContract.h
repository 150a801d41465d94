#pragma once

#include "engine/controls/KeyCodes.h"
#include "platform/EventRecorder.h"
#include "platform/PlatformUnderTest.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace Tessellon::Contract {

/// What every toolkit's platform has to do, told by an event sink that plays the sheet. The grid has five columns and
/// twenty rows, the cursor on cell (1, 1), and fills a sheet of 9600 x 4800 twips; the focus is outside, the window in
/// front, every editor is down.
class PlatformContract : public ::testing::Test {
protected:
    PlatformContract();
    ~PlatformContract() override;

    EnginePlatform& Engine() { return Under->Engine(); }
    GridEngine& Cells() { return Engine().TheGrid(); }
    TextBoxControl& Text() { return *Engine().TheTextBox(); }
    CheckBoxControl& Check() { return *Engine().TheCheckBox(); }
    PickerControl& Picker() { return *Engine().ThePicker(); }
    RichTextBoxControl& Rich() { return *Engine().TheRichTextBox(); }
    ComboBoxControl& Combo(std::int16_t index = 0);
    ListBoxControl& List(std::int16_t index = 0);
    MaskEdBoxControl& Mask(std::int16_t index = 0);
    CommandButtonControl& Button(std::int16_t index = 0);
    Hand& User() { return Under->TheHand(); }

    /// Shows an editor over a cell, without the focus and without a record of it.
    template <class Control>
    void Up(Control& control)
    {
        control.Move(960, 240, 960, 240);
        control.Enabled(true);
        control.Visible(true);
        Told();
    }

    /// The same with the focus.
    template <class Control>
    void Enter(Control& control)
    {
        Up(control);
        control.SetFocus();
        Told();
    }

    /// Does something as the user does it: a failure that comes out of it ends it and is noted.
    void Act(const std::function<void()>& action);
    bool PressOn(ControlCore& editor, std::int16_t button = 1); ///< False: the press was lost.
    void ReleaseOn(ControlCore& editor, bool inside = true, std::int16_t button = 1);
    void Key(std::int16_t code, std::int16_t shift = 0); ///< One that types nothing.
    void Key(std::int16_t code, char16_t character, std::int16_t shift = 0);
    void Type(std::u16string_view text); ///< Letters and digits by their codes, all else without one.

    Names Told() { return Recorder.Take(); }
    [[nodiscard]] std::string Holder(); ///< Who has the focus; empty for nobody.
    Names Cell(); ///< Row, Col, RowSel, ColSel.
    std::string TextAt(std::int32_t row, std::int32_t col) { return Narrow(Cells().TextMatrix(row, col)); }

    std::unique_ptr<PlatformUnderTest> Under;
    EventRecorder Recorder;
};

/// The number of the failure that an action ends in; 0 for none.
std::int32_t NumberOf(const std::function<void()>& action);
/// The source of the failure that an action ends in.
std::string SourceOf(const std::function<void()>& action);
Names operator+(Names left, const Names& right);

/// A key down with its letter or digit and up again, in the control `name`; what it does stands between.
Names Stroked(const std::string& name, std::int16_t code, std::int16_t character, const Names& between = {});

inline std::string PlatformName(const ::testing::TestParamInfo<PlatformFactory>& info)
{
    return info.param.Name;
}

// clang-format off
/// The suite of one theme, for the platform that this program tries.
#define CONTRACT_SUITE(Theme) \
    class Theme : public PlatformContract, public ::testing::WithParamInterface<PlatformFactory> {}; \
    INSTANTIATE_TEST_SUITE_P(On, Theme, ::testing::Values(TheFactory()), PlatformName)
// clang-format on

} // namespace Tessellon::Contract

#include "shell/Entry.h"
#include "shell/RaiseEvent.h"

namespace Tessellon {

namespace {

constexpr std::int16_t dtpCustom = 3;
constexpr std::int16_t flexResizeColumns = 1;
constexpr std::u16string_view fontKey = u"Font";
constexpr std::u16string_view enabledKey = u"Enabled";

} // namespace

void TessellonSheet::UserControl_Initialize()
{
    Armed(u"UserControl_Initialize", [&] {
        ActiveEditor = nullptr;
        BoundRecordset = nullptr;
        DateFormatText = u"dd/MM/yyyy";
        ApplyDateFormat();

        NextComboIndex = NextMaskIndex = NextListIndex = NextCommandIndex = 1;
        SectionColors = {static_cast<std::int32_t>(Cyan), static_cast<std::int32_t>(InfoBackground)};
        MarkerRow = -1;
        LastCol = LastRow = -1;
        MaskCellHadText = true;
        FirstEditableCol = FirstVisibleCol = -1;
        APIGlobal::OfThread() = {.RaiseErrorFlag = false, .ShowErrMessageFlag = true};

        InitializeFields();
        InitializeArray();
        ResizeGrid();
        GetOriginalGridSize();
        SetAllDisable();
        RefreshGridColor(1, 1);
    });
}

/// The date editor, and all texts that are read as dates, follow the sheet's date format.
void TessellonSheet::ApplyDateFormat()
{
    RunTime->DateOrder(DateFormatText);
    DTPicker1->Format(dtpCustom);
    DTPicker1->CustomFormat(DateFormatText);
    DTPicker1->DataFormat(DateFormatText);
}

void TessellonSheet::InitializeFields()
{
    Armed(u"InitializeFields", [&] {
        Check1->Caption(u"");
        Text1->Text(u"");
        RichTextBox1->Text(u"");
        for (std::int16_t i = 0; i < MaskEdBox1->Count(); ++i) {
            MaskEdBox1->Item(i)->Text(u"");
            MaskEdBox1->Item(i)->Mask(u"");
            MaskEdBox1->Item(i)->Format(u"");
        }
        MSFlexGrid1->AllowUserResizing(flexResizeColumns);
    });
}

/// Leaves ColCount alone: GetOriginalGridSize, which always follows, sets it.
void TessellonSheet::ResizeGrid()
{
    Armed(u"ResizeGrid", [&] {
        MSFlexGrid1->Col(0);
        MSFlexGrid1->Row(0);
        MSFlexGrid1->Rows(1);
        MSFlexGrid1->Cols(1);
        RowCount = 1;
    });
}

void TessellonSheet::GetOriginalGridSize()
{
    Armed(u"GetOriginalGridSize", [&] {
        CurrentCol = MSFlexGrid1->Col();
        CurrentRow = MSFlexGrid1->Row();
        RowCount = MSFlexGrid1->Rows();
        ColCount = MSFlexGrid1->Cols();
        MSFlexGrid1->Rows(RowCount);
    });
}

void TessellonSheet::GetDefaultDimension()
{
    Armed(u"GetDefaultDimension", [&] {
        DefaultRowHeight = static_cast<float>(MSFlexGrid1->RowHeight(0));
        DefaultColWidth = static_cast<float>(MSFlexGrid1->ColWidth(0));
        InitialRowHeight = DefaultRowHeight;
        InitialColWidth = DefaultColWidth;
        HeaderRowHeight = InitialRowHeight;
    });
}

void TessellonSheet::SetAllDisable()
{
    const auto each = [this](auto& array) {
        for (std::int16_t i = 0; i < array.Count(); ++i)
            StandDown(*array.Item(i));
    };
    Armed(u"SetAllDisable", [&] {
        StandDown(*Text1);
        StandDown(*Check1);
        each(*Combo1);
        each(*List1);
        StandDown(*DTPicker1);
        each(*MaskEdBox1);
        StandDown(*RichTextBox1);
        each(*Command1);
    });
}

/// The order in which key handlers and SetAllDisable take an editor down; the sweep has another.
void TessellonSheet::StandDown(Editor& editor)
{
    editor.Visible(false);
    editor.Enabled(false);
    editor.ZOrder(1);
}

void TessellonSheet::UserControl_Resize()
{
    Armed(u"UserControl_Resize", [&] {
        MSFlexGrid1->Move(0, 0, UserControl->ScaleWidth(), UserControl->ScaleHeight());
        ControlWidth = UserControl->ScaleWidth();
        ControlHeight = UserControl->ScaleHeight();
    });
}

void TessellonSheet::UserControl_ExitFocus()
{
    bool Cancel = false;
    Ignoring([&] { RaiseEvent(ExitFocus, Cancel); });
    if (Cancel) {
        Ignoring([&] { UserControl->SetFocus(); });
        return;
    }
    Ignoring([&] { ShowEditorRequest = false; }, [&] { HideEditorRequest = true; }, [&] { SetAllDisable(); });
}

void TessellonSheet::UserControl_Terminate()
{
    Terminating = true;
    SetAllDisable();
}

void TessellonSheet::UserControl_ReadProperties(PropertyBag& PropBag)
{
    Entry(*this).Run([&] {
        MSFlexGrid1->SetFont(PropBag.ReadFont(fontKey, UserControl->AmbientFont()));
        GetDefaultDimension();
        MSFlexGrid1->Enabled(PropBag.ReadTruth(enabledKey, true));
    });
}

void TessellonSheet::UserControl_WriteProperties(PropertyBag& PropBag)
{
    Entry(*this).Run([&] {
        PropBag.WriteFont(fontKey, MSFlexGrid1->GetFont(), UserControl->AmbientFont());
        PropBag.WriteTruth(enabledKey, MSFlexGrid1->Enabled(), true);
    });
}

Tessellon::Font TessellonSheet::Font()
{
    return Entry(*this).Run([&] { return MSFlexGrid1->GetFont(); });
}

void TessellonSheet::Font(const Tessellon::Font& font)
{
    Entry(*this).Run([&] {
        MSFlexGrid1->SetFont(font);
        UserControl->PropertyChanged(fontKey);
    });
}

bool TessellonSheet::Enabled()
{
    return Entry(*this).Run([&] { return MSFlexGrid1->Enabled(); });
}

void TessellonSheet::Enabled(bool enabled)
{
    Entry(*this).Run([&] {
        MSFlexGrid1->Enabled(enabled);
        UserControl->PropertyChanged(enabledKey);
    });
}

} // namespace Tessellon

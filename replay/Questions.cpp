#include "Forms.h"
#include "Runner.h"

namespace Tessellon::Replay {

namespace {

/// A line of `Name=value`, with a blank between two.
class Listing {
public:
    template <class Value>
    Listing& Add(std::u16string_view name, const Value& value)
    {
        return AddWord(name, ValueText(value));
    }

    Listing& AddWord(std::u16string_view name, std::u16string_view word)
    {
        if (!text_.empty())
            text_ += u' ';
        text_.append(name).append(1, u'=').append(word);
        return *this;
    }

    [[nodiscard]] const std::u16string& Text() const { return text_; }

private:
    std::u16string text_;
};

std::u16string_view FocusName(const EnginePlatform& platform)
{
    const std::u16string_view name = platform.FocusName();
    return name.empty() ? u"none" : name;
}

void WriteEditors(Runner& runner)
{
    for (const std::shared_ptr<ControlCore>& editor : runner.Platform().Editors()) {
        if (!editor->IsVisible())
            continue;
        const ControlCore::Rectangle& place = editor->Place();
        Listing listing;
        listing.Add(u"Left", place.Left).Add(u"Top", place.Top).Add(u"Width", place.Width);
        listing.Add(u"Height", place.Height).Add(u"Enabled", editor->IsEnabled()).Add(u"Focus", editor->HasFocus());
        std::u16string line(editor->ControlName());
        line.append(1, u' ').append(listing.Text()).append(1, u' ');
        AppendValue(line, std::u16string_view(editor->ShownText()));
        runner.Line(line);
    }
}

void WriteGrid(Runner& runner)
{
    GridEngine& grid = runner.Platform().TheGrid();
    Listing listing;
    listing.Add(u"Row", grid.Row()).Add(u"Col", grid.Col());
    listing.Add(u"RowSel", grid.RowSel()).Add(u"ColSel", grid.ColSel());
    listing.Add(u"TopRow", grid.TopRow()).Add(u"LeftCol", grid.LeftCol());
    listing.Add(u"Rows", grid.Rows()).Add(u"Cols", grid.Cols());
    listing.AddWord(u"Focus", FocusName(runner.Platform()));
    runner.Line(listing.Text());
}

void WriteCells(Runner& runner)
{
    GridEngine& grid = runner.Platform().TheGrid();
    for (std::int32_t row = 0; row < grid.Rows(); ++row) {
        std::u16string line(grid.PictureOf({row, 0}) == Picture::Arrow ? u">" : u"");
        for (std::int32_t col = 0; col < grid.Cols(); ++col) {
            if (col > 0)
                line += u'\t';
            AppendEscaped(line, grid.TextOf({row, col}));
        }
        runner.Line(line);
    }
}

void WriteJournal(Runner& runner)
{
    for (const std::u16string& note : runner.TheJournal().TakeNotes())
        runner.Line(note);
}

void WriteMembers(Runner& runner)
{
    const SheetMembers& members = runner.Sheet().Members();
    const auto word = [&](std::u16string_view name, std::u16string_view text) {
        runner.Line(Listing().AddWord(name, text).Text());
    };
    const auto value = [&](std::u16string_view name, const auto& member) { word(name, ValueText(member)); };

    word(u"ActiveEditor", members.ActiveEditor ? members.ActiveEditor->Name() : u"none");
    value(u"NextComboIndex", members.NextComboIndex);
    value(u"NextMaskIndex", members.NextMaskIndex);
    value(u"NextListIndex", members.NextListIndex);
    value(u"NextCommandIndex", members.NextCommandIndex);
    value(u"ColumnData", static_cast<std::int32_t>(members.ColumnData.size()));
    value(u"EditorLoading", members.EditorLoading);
    value(u"DateFormatText", std::u16string_view(members.DateFormatText));
    word(u"BoundRecordset", members.BoundRecordset ? u"Recordset" : u"none");
    value(u"ColumnBound", members.ColumnBound);
    value(u"AllowAddNewFlag", members.AllowAddNewFlag);
    value(u"ComboFocusCol", members.ComboFocusCol);
    value(u"DefaultRowHeight", members.DefaultRowHeight);
    value(u"DefaultColWidth", members.DefaultColWidth);
    value(u"InitialRowHeight", members.InitialRowHeight);
    value(u"InitialColWidth", members.InitialColWidth);
    value(u"ShowEditorRequest", members.ShowEditorRequest);
    value(u"ComboPreviousIndex", members.ComboPreviousIndex);
    value(u"HideEditorRequest", members.HideEditorRequest);
    value(u"LastLeaveCol", members.LastLeaveCol);
    value(u"ListKeyHandled", members.ListKeyHandled);
    word(u"SectionColors", ValueText(members.SectionColors[0]) + u',' + ValueText(members.SectionColors[1]));
    value(u"MarkerRow", members.MarkerRow);
    value(u"AdvancingCell", members.AdvancingCell);
    value(u"VisibleRows", members.VisibleRows);
    value(u"ControlWidth", members.ControlWidth);
    value(u"ControlHeight", members.ControlHeight);
    value(u"SkipEnterCell", members.SkipEnterCell);
    value(u"CurrentCol", members.CurrentCol);
    value(u"CurrentRow", members.CurrentRow);
    value(u"RowCount", members.RowCount);
    value(u"ColCount", members.ColCount);
    value(u"ColumnsDeclared", members.ColumnsDeclared);
    value(u"PendingTopRow", members.PendingTopRow);
    value(u"ScrollRightPending", members.ScrollRightPending);
    value(u"ScrollDownPending", members.ScrollDownPending);
    value(u"GridReady", members.GridReady);
    value(u"LastCol", members.LastCol);
    value(u"LastRow", members.LastRow);
    value(u"Terminating", members.Terminating);
    value(u"MaskCellHadText", members.MaskCellHadText);
    value(u"FirstEditableCol", members.FirstEditableCol);
    value(u"FirstVisibleCol", members.FirstVisibleCol);
    value(u"MaskBuffer", std::u16string_view(members.MaskBuffer));
    value(u"CommandActivated", members.CommandActivated);
    value(u"GridClickPending", members.GridClickPending);
    value(u"GridRowClickPending", members.GridRowClickPending);
    value(u"AdvancePending", members.AdvancePending);
    value(u"PreviousMarkerRow", members.PreviousMarkerRow);
    value(u"LoadingRecordset", members.LoadingRecordset);
    value(u"HeaderRowHeight", members.HeaderRowHeight);
    value(u"RefreshingColors", members.RefreshingColors);
    value(u"GridScrolled", members.GridScrolled);
    value(u"GridClicked", members.GridClicked);
    value(u"AddingRows", members.AddingRows);
}

template <class Result>
void AnswerWithSuccess(Runner& runner, const Result& result, bool success)
{
    runner.Line(u"= " + ValueText(result) + u" Success=" + ValueText(success));
}

/// A text as the type by which texts are written.
std::u16string_view Viewed(const std::u16string& text)
{
    return text;
}

} // namespace

const std::vector<Form>& Questions()
{
    using Text = const std::u16string&;
    using Long = std::int32_t;
    using R = Runner;
    static const std::vector<Form> forms{
        FormOf(u"Row", [](R& r) { r.Answer(r.Sheet().Row()); }),
        FormOf(u"Rows", [](R& r) { r.Answer(r.Sheet().Rows()); }),
        FormOf(u"Col", [](R& r) { r.Answer(r.Sheet().Col()); }),
        FormOf(u"hWnd", [](R& r) { r.Answer(r.Sheet().hWnd()); }),
        FormOf(u"TextMatrix", [](R& r, Long row, Long col) { r.Answer(Viewed(r.Sheet().TextMatrix(row, col))); }),
        FormOf(u"GetRowHeight", [](R& r, Long row) { r.Answer(r.Sheet().GetRowHeight(row)); }),
        FormOf(u"AllowAddNew", [](R& r) { r.Answer(r.Sheet().AllowAddNew()); }),
        FormOf(u"Cols", [](R& r) { r.Answer(r.Sheet().Cols()); }),
        FormOf(u"ColumnHeader", [](R& r, Long col) { r.Answer(Viewed(r.Sheet().ColumnHeader(col))); }),
        FormOf(u"RaiseError", [](R& r) { r.Answer(r.Sheet().RaiseError()); }),
        FormOf(u"ShowErrMessage", [](R& r) { r.Answer(r.Sheet().ShowErrMessage()); }),
        FormOf(u"SearchCol", [](R& r, Long col, Text search) { r.Answer(r.Sheet().SearchCol(col, search)); }),
        FormOf(u"Minimum",
               [](R& r, Long col, ManipulateType type) {
                   bool success = false;
                   const std::u16string result = r.Sheet().Minimum(col, type, success);
                   AnswerWithSuccess(r, Viewed(result), success);
               }),
        FormOf(u"Maximum",
               [](R& r, Long col, ManipulateType type) {
                   bool success = false;
                   const std::u16string result = r.Sheet().Maximum(col, type, success);
                   AnswerWithSuccess(r, Viewed(result), success);
               }),
        FormOf(u"Summation",
               [](R& r, Long col) {
                   bool success = false;
                   const double result = r.Sheet().Summation(col, success);
                   AnswerWithSuccess(r, result, success);
               }),
        FormOf(u"Font", [](R& r) { r.Answer(r.Sheet().Font()); }),
        FormOf(u"Enabled", [](R& r) { r.Answer(r.Sheet().Enabled()); }),

        FormOf(u"members", WriteMembers),
        FormOf(u"editors", WriteEditors),
        FormOf(u"grid", WriteGrid),
        FormOf(u"cells", WriteCells),
        FormOf(u"journal", WriteJournal),
    };
    return forms;
}

} // namespace Tessellon::Replay

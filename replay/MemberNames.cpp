#include "MemberNames.h"

#include "Literals.h"
#include "ScriptError.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

namespace Tessellon::Replay {

namespace {

using Name = std::u16string_view;

/// What a control answers to: names with blanks around each.
struct ControlMembers {
    Name Control;
    Name Members; ///< Of the control, or of the array as a whole.
    Name InstanceMembers; ///< Of an array's instances; empty for a control that stands alone.
    Name Common; ///< What all editors have.
};

constexpr Name editor = u" Visible Enabled ZOrder SetFocus Tag Left Top Width Height Move FontName FontSize ";
constexpr Name array = u" Count Item Load Unload ";

constexpr std::array controls{
    ControlMembers{
        u"MSFlexGrid1",
        u" Rows Cols FixedRows FixedCols Row Col RowSel ColSel TopRow LeftCol ColWidth RowHeight RowHeightMin"
        u" ColAlignment TextMatrix CellLeft CellTop CellWidth CellHeight CellBackColor CellPicture"
        u" CellPictureAlignment FillStyle GridLineWidth BackColor Font FontName FontSize Enabled"
        u" AllowUserResizing Redraw AddItem RemoveItem Refresh SetFocus Move Height ",
        u"", u""},
    ControlMembers{u"Text1", u" Text MaxLength SelStart Alignment BackColor ", u"", editor},
    ControlMembers{u"Check1", u" Value Caption Alignment BackColor ", u"", editor},
    ControlMembers{u"Combo1", array, u" Text AddItem Clear BackColor ", editor},
    ControlMembers{u"List1", array, u" Text ListCount List Selected AddItem Clear BackColor ", editor},
    ControlMembers{u"DTPicker1", u" Value Format CustomFormat DataFormat CalendarBackColor ", u"", editor},
    ControlMembers{u"MaskEdBox1", array, u" Text FormattedText Mask Format PromptInclude MaxLength SelStart BackColor ",
                   editor},
    ControlMembers{u"RichTextBox1", u" Text MaxLength SelStart BackColor ", u"", editor},
    ControlMembers{u"Command1", array, u" Caption ", editor},
    ControlMembers{u"ImgAction", u"", u" Picture ", u""},
    ControlMembers{u"UserControl",
                   u" ScaleWidth ScaleHeight TextWidth FontSize AmbientFont hWnd PropertyChanged SetFocus ", u"", u""},
    ControlMembers{u"Screen", u" MousePointer TwipsPerPixelY ", u"", u""},
    ControlMembers{u"Recordset", u" EOF MoveFirst MoveNext FieldCount FieldType FieldValue ", u"", u""},
};

bool IsListed(Name names, Name name)
{
    return names.find(u' ' + std::u16string(name) + u' ') != Name::npos;
}

/// The index in "Combo1(2)", without leading zeros; none where there is none.
bool SplitIndex(Name& control, Name& index)
{
    const std::size_t open = control.find(u'(');
    if (open == Name::npos)
        return false;
    index = control.substr(open + 1);
    control = control.substr(0, open);
    const bool isClosed = index.ends_with(u')');
    index.remove_suffix(isClosed ? 1 : 0);
    const bool isPlain = index == u"0" || (index.find_first_not_of(u"0123456789") == Name::npos && index[0] != u'0');
    if (!isClosed || index.empty() || !isPlain)
        throw ScriptError("an index must be a number in parentheses");
    ReadAs<std::int16_t>(Word{.Bare = std::u16string(index), .Text = {}});
    return true;
}

void AppendNames(std::vector<std::u16string>& all, Name control, Name members)
{
    while (!members.empty()) {
        const std::size_t end = std::min(members.find(u' '), members.size());
        if (end > 0)
            all.push_back(std::u16string(control).append(1, u'.').append(members.substr(0, end)));
        members.remove_prefix(std::min(end + 1, members.size()));
    }
}

} // namespace

std::u16string ReadMemberName(const Word& word)
{
    const std::size_t point = word.IsBare() ? word.Bare.find(u'.') : std::u16string::npos;
    if (point == std::u16string::npos)
        throw ScriptError(Shown(word) + " is neither a number nor a control's member");
    Name control = Name(word.Bare).substr(0, point);
    const Name member = Name(word.Bare).substr(point + 1);
    Name index;
    const bool isInstance = SplitIndex(control, index);
    for (const ControlMembers& entry : controls) {
        if (entry.Control != control)
            continue;
        const bool isArray = !entry.InstanceMembers.empty();
        const bool isKnown =
            isInstance == isArray
                ? IsListed(isArray ? entry.InstanceMembers : entry.Members, member) || IsListed(entry.Common, member)
                : isArray && IsListed(entry.Members, member);
        if (isKnown)
            return word.Bare;
    }
    throw ScriptError(Shown(word) + " is no member that can fail");
}

std::vector<std::u16string> MemberNames()
{
    std::vector<std::u16string> all;
    for (const ControlMembers& entry : controls) {
        const bool isArray = !entry.InstanceMembers.empty();
        const std::u16string first = std::u16string(entry.Control) + (isArray ? u"(0)" : u"");
        AppendNames(all, isArray ? first : entry.Control, isArray ? entry.InstanceMembers : entry.Members);
        AppendNames(all, first, entry.Common);
        if (isArray)
            AppendNames(all, entry.Control, entry.Members);
    }
    return all;
}

} // namespace Tessellon::Replay

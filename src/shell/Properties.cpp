#include "shell/Entry.h"

namespace Tessellon {

std::int32_t TessellonSheet::Row()
{
    return Entry(*this).Run([&] {
        return ArmedResult(u"RowProperty", std::int32_t{0}, [&](std::int32_t& result) { result = CurrentRow; });
    });
}

void TessellonSheet::Row(std::int32_t row)
{
    Entry(*this).Run([&] {
        Armed(u"RowProperty", [&] {
            if (RowCount <= 0 || row <= 0 || row >= RowCount)
                return;
            MSFlexGrid1->Row(row);
            MoveMarker();
        });
    });
}

std::int32_t TessellonSheet::Rows()
{
    return Entry(*this).Run([&] {
        return ArmedResult(u"RowsProperty", std::int32_t{0}, [&](std::int32_t& result) { result = RowCount; });
    });
}

std::int32_t TessellonSheet::Col()
{
    return Entry(*this).Run([&] {
        return ArmedResult(u"ColProperty", std::int32_t{0}, [&](std::int32_t& result) { result = CurrentCol; });
    });
}

void TessellonSheet::Col(std::int32_t col)
{
    Entry(*this).Run([&] {
        Armed(u"ColProperty", [&] {
            if (ColCount > 0 && col > 0 && col < ColCount)
                MSFlexGrid1->Col(col);
        });
    });
}

std::int32_t TessellonSheet::hWnd()
{
    return Entry(*this).Run([&] {
        return ArmedResult(u"hWndProperty", std::int32_t{0},
                           [&](std::int32_t& result) { result = UserControl->hWnd(); });
    });
}

std::u16string TessellonSheet::TextMatrix(std::int32_t row, std::int32_t col)
{
    return Entry(*this).Run([&] {
        return ArmedResult(u"TextMatrixProperty", std::u16string(), [&](std::u16string& result) {
            if (row > 0 && col > 0 && row < RowCount && col < ColCount)
                result = std::u16string(MSFlexGrid1->TextMatrix(row, col));
        });
    });
}

/// The editor that is up does not follow a width that grew under it, so it goes; it comes back at the next cell entry.
void TessellonSheet::TextMatrix(std::int32_t row, std::int32_t col, std::u16string_view text)
{
    Entry(*this).Run([&] {
        Armed(u"TextMatrixProperty", [&] {
            if (row <= 0 || col <= 0 || row >= RowCount || col >= ColCount)
                return;
            MSFlexGrid1->TextMatrix(row, col, text);
            if (MSFlexGrid1->ColWidth(col) == 0 || Column(col - 1).cdAutoAdjust != faContent ||
                Column(col - 1).cdHidden)
                return;
            if (!FitWidth(col, Trim(MSFlexGrid1->TextMatrix(row, col))) || !ActiveEditor)
                return;
            Active()->Enabled(false);
            Active()->Visible(false);
            Active()->ZOrder(1);
        });
    });
}

void TessellonSheet::RowHeight(float height, bool scaleFont, bool includeHeader)
{
    Entry(*this).Run([&] {
        Armed(u"RowHeightProperty", [&] {
            if (!(height > 0))
                return;
            DefaultRowHeight = height;
            if (scaleFont) {
                const double size = (RowPixels() - 1.3) / 2;
                MSFlexGrid1->FontSize(size);
                UserControl->FontSize(size);
                MSFlexGrid1->Refresh();
            }
            if (includeHeader) {
                MSFlexGrid1->RowHeight(0, ToLong(DefaultRowHeight));
                HeaderRowHeight = DefaultRowHeight;
            }
            MSFlexGrid1->RowHeightMin(ToLong(DefaultRowHeight));
            for (std::int32_t c = 1; c < ColCount; ++c) {
                if (MSFlexGrid1->ColWidth(c) != 0 && !Column(c - 1).cdHidden && Column(c - 1).cdAutoAdjust == faHeader)
                    FitWidth(c, Column(c - 1).cdColName);
            }
            GetVisibleRows();
        });
    });
}

float TessellonSheet::GetRowHeight(std::int32_t row)
{
    return Entry(*this).Run([&] {
        return ArmedResult(u"RowHeightProperty", 0.0F, [&](float& result) {
            if (row > 0 && row < RowCount)
                result = DefaultRowHeight;
        });
    });
}

bool TessellonSheet::AllowAddNew()
{
    return Entry(*this).Run(
        [&] { return ArmedResult(u"AllowAddNewProperty", false, [&](bool& result) { result = AllowAddNewFlag; }); });
}

void TessellonSheet::AllowAddNew(bool allow)
{
    Entry(*this).Run([&] { Armed(u"AllowAddNewProperty", [&] { AllowAddNewFlag = allow; }); });
}

void TessellonSheet::DateFormat(std::u16string_view format)
{
    Entry(*this).Run([&] {
        Armed(u"DateFormatProperty", [&] {
            if (Trim(format).empty())
                return;
            DateFormatText = Trim(format);
            ApplyDateFormat();
        });
    });
}

std::int32_t TessellonSheet::Cols()
{
    return Entry(*this).Run([&] {
        return ArmedResult(u"ColsProperty", std::int32_t{0},
                           [&](std::int32_t& result) { result = MSFlexGrid1->Cols(); });
    });
}

void TessellonSheet::ColWidth(std::int32_t col, float width)
{
    Entry(*this).Run([&] {
        Armed(u"ColWidthProperty", [&] {
            if (!(width >= 0) || col < 0 || col >= ColCount || (col > 0 && Column(col - 1).cdHidden))
                return;
            MSFlexGrid1->ColWidth(col, ToLong(width));
            MSFlexGrid1->Refresh();
        });
    });
}

bool TessellonSheet::RaiseError()
{
    return Entry(*this).Run([&] {
        return ArmedResult(u"RaiseErrorProperty", false,
                           [&](bool& result) { result = APIGlobal::OfThread().RaiseErrorFlag; });
    });
}

void TessellonSheet::RaiseError(bool raise)
{
    Entry(*this).Run([&] { Armed(u"RaiseErrorProperty", [&] { APIGlobal::OfThread().RaiseErrorFlag = raise; }); });
}

bool TessellonSheet::ShowErrMessage()
{
    return Entry(*this).Run([&] {
        return ArmedResult(u"ShowErrMessageProperty", false,
                           [&](bool& result) { result = APIGlobal::OfThread().ShowErrMessageFlag; });
    });
}

void TessellonSheet::ShowErrMessage(bool show)
{
    Entry(*this).Run(
        [&] { Armed(u"ShowErrMessageProperty", [&] { APIGlobal::OfThread().ShowErrMessageFlag = show; }); });
}

} // namespace Tessellon

#pragma once

#include "engine/journal/Watch.h"
#include "platform/Grid.h"

namespace Tessellon {

class WatchedGrid final : public Watch<Grid> {
public:
    using Watch::Watch;

    Long Rows() override { return Read<Long>(u"Rows", &Grid::Rows); }
    void Rows(Long rows) override { Write(u"Rows", &Grid::Rows, rows); }
    Long Cols() override { return Read<Long>(u"Cols", &Grid::Cols); }
    void Cols(Long cols) override { Write(u"Cols", &Grid::Cols, cols); }
    Long FixedRows() override { return Read(u"FixedRows", &Grid::FixedRows); }
    Long FixedCols() override { return Read(u"FixedCols", &Grid::FixedCols); }

    Long Row() override { return Read<Long>(u"Row", &Grid::Row); }
    void Row(Long row) override { Write(u"Row", &Grid::Row, row); }
    Long Col() override { return Read<Long>(u"Col", &Grid::Col); }
    void Col(Long col) override { Write(u"Col", &Grid::Col, col); }
    Long RowSel() override { return Read<Long>(u"RowSel", &Grid::RowSel); }
    void RowSel(Long row) override { Write(u"RowSel", &Grid::RowSel, row); }
    Long ColSel() override { return Read<Long>(u"ColSel", &Grid::ColSel); }
    void ColSel(Long col) override { Write(u"ColSel", &Grid::ColSel, col); }
    Long TopRow() override { return Read<Long>(u"TopRow", &Grid::TopRow); }
    void TopRow(Long row) override { Write(u"TopRow", &Grid::TopRow, row); }
    Long LeftCol() override { return Read<Long>(u"LeftCol", &Grid::LeftCol); }
    void LeftCol(Long col) override { Write(u"LeftCol", &Grid::LeftCol, col); }

    Long ColWidth(Long col) override { return Read<Long>(u"ColWidth", &Grid::ColWidth, col); }
    void ColWidth(Long col, Long width) override { Write(u"ColWidth", &Grid::ColWidth, col, width); }
    Long RowHeight(Long row) override { return Read<Long>(u"RowHeight", &Grid::RowHeight, row); }
    void RowHeight(Long row, Long height) override { Write(u"RowHeight", &Grid::RowHeight, row, height); }
    void RowHeightMin(Long height) override { Write(u"RowHeightMin", &Grid::RowHeightMin, height); }
    Int ColAlignment(Long col) override { return Read<Int>(u"ColAlignment", &Grid::ColAlignment, col); }
    void ColAlignment(Long col, Int to) override { Write(u"ColAlignment", &Grid::ColAlignment, col, to); }

    TextView TextMatrix(Long row, Long col) override
    {
        return Read<TextView>(u"TextMatrix", &Grid::TextMatrix, row, col);
    }
    void TextMatrix(Long row, Long col, TextView text) override
    {
        Write(u"TextMatrix", &Grid::TextMatrix, row, col, text);
    }

    Long CellLeft() override { return Read(u"CellLeft", &Grid::CellLeft); }
    Long CellTop() override { return Read(u"CellTop", &Grid::CellTop); }
    Long CellWidth() override { return Read(u"CellWidth", &Grid::CellWidth); }
    Long CellHeight() override { return Read(u"CellHeight", &Grid::CellHeight); }
    void CellBackColor(Long color) override { Write(u"CellBackColor", &Grid::CellBackColor, color); }
    void CellPicture(Picture picture) override { Write(u"CellPicture", &Grid::CellPicture, picture); }
    void CellPictureAlignment(Int to) override { Write(u"CellPictureAlignment", &Grid::CellPictureAlignment, to); }

    void FillStyle(Int style) override { Write(u"FillStyle", &Grid::FillStyle, style); }
    Int GridLineWidth() override { return Read(u"GridLineWidth", &Grid::GridLineWidth); }
    Long BackColor() override { return Read(u"BackColor", &Grid::BackColor); }
    Font GetFont() override { return Read(u"Font", &Grid::GetFont); }
    void SetFont(const Font& font) override { Write(u"Font", &Grid::SetFont, font); }
    TextView FontName() override { return Read(u"FontName", &Grid::FontName); }
    void FontSize(double points) override { Write(u"FontSize", &Grid::FontSize, points); }
    bool Enabled() override { return Read<bool>(u"Enabled", &Grid::Enabled); }
    void Enabled(bool enabled) override { Write(u"Enabled", &Grid::Enabled, enabled); }
    void AllowUserResizing(Int mode) override { Write(u"AllowUserResizing", &Grid::AllowUserResizing, mode); }
    void Redraw(bool redraw) override { Write(u"Redraw", &Grid::Redraw, redraw); }

    void AddItem(TextView text, Long index) override { Call(u"AddItem", &Grid::AddItem, text, index); }
    void RemoveItem(Long index) override { Call(u"RemoveItem", &Grid::RemoveItem, index); }
    void Refresh() override { Call(u"Refresh", &Grid::Refresh); }
    void SetFocus() override { Call(u"SetFocus", &Grid::SetFocus); }
    void Move(float left, float top, float width, float height) override
    {
        Call(u"Move", &Grid::Move, left, top, width, height);
    }
    float Height() override { return Read(u"Height", &Grid::Height); }
};

} // namespace Tessellon

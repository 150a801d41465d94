#pragma once

#include "qt/SheetWidget.h"

#include <QScrollBar>

#include <string>

namespace Bench {

/// Declares the columns of the records, each of the same width; with text boxes only where they are held against
/// peers, whose cells are edited in line edits all.
void DeclareColumns(Tessellon::SheetWidget& sheet, bool asTexts);
/// Loads the records that the words behind the query leave, as usual all.
void Load(Tessellon::SheetWidget& sheet, const std::string& database, const QString& limit = {});
int WidthOf(const Tessellon::SheetWidget& sheet, int col); ///< In twips.
/// The widget of the cells.
QWidget& CellsOf(const Tessellon::SheetWidget& sheet);
QScrollBar& VerticalBarOf(const Tessellon::SheetWidget& sheet);

// What the program measures.
void MeasureRecords(const std::string& database);
void MeasureCells(const std::string& database);
void MeasureRows(const std::string& database);
void MeasureBands(const std::string& database);
void MeasureContent(const std::string& database);
void MeasureProgress(const std::string& database);
void MeasureColumns();
void MeasureWidth(int columns);

} // namespace Bench

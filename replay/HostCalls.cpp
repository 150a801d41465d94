#include "Forms.h"
#include "Runner.h"

namespace Tessellon::Replay {

/// DataSource is not among them: which recordset it gives is known to the reader alone.
const std::vector<Form>& HostCalls()
{
    using Text = const std::u16string&;
    using Long = std::int32_t;
    using R = Runner;
    static const std::vector<Form> forms{
        FormOf(u"Row", [](R& r, Long row) { r.Sheet().Row(row); }),
        FormOf(u"Col", [](R& r, Long col) { r.Sheet().Col(col); }),
        FormOf(u"TextMatrix", [](R& r, Long row, Long col, Text text) { r.Sheet().TextMatrix(row, col, text); }),
        FormOf(u"RowHeight", [](R& r, float height, bool scaleFont,
                                bool includeHeader) { r.Sheet().RowHeight(height, scaleFont, includeHeader); }),
        FormOf(u"AllowAddNew", [](R& r, bool allow) { r.Sheet().AllowAddNew(allow); }),
        FormOf(u"DateFormat", [](R& r, Text format) { r.Sheet().DateFormat(format); }),
        FormOf(u"Cols", [](R& r, Long count) { r.Sheet().Cols(count); }),
        FormOf(u"ColWidth", [](R& r, Long col, float width) { r.Sheet().ColWidth(col, width); }),
        FormOf(u"CreateColumnDataType",
               [](R& r, Long col, Text name, FieldControlType type, Text setting, bool hide,
                  FieldControlAlign alignment, Long length, FieldAutoAdjustType autoAdjust, bool useMask) {
                   r.Sheet().CreateColumnDataType(col, name, type, setting, hide, alignment, length, autoAdjust,
                                                  useMask);
               }),
        FormOf(u"BuildGridColumns", [](R& r) { r.Sheet().BuildGridColumns(); }),
        FormOf(u"BackColor", [](R& r, std::int16_t index, ColorType color) { r.Sheet().BackColor(index, color); }),
        FormOf(u"RaiseError", [](R& r, bool raise) { r.Sheet().RaiseError(raise); }),
        FormOf(u"ShowErrMessage", [](R& r, bool show) { r.Sheet().ShowErrMessage(show); }),
        FormOf(u"SearchCol", [](R& r, Long col, Text search) { r.Sheet().SearchCol(col, search); }),
        FormOf(u"Add", [](R& r, Long row, std::optional<Long> count) { r.Sheet().Add(row, count.value_or(1)); }),
        FormOf(u"Delete", [](R& r, Long row) { r.Sheet().Delete(row); }),
        FormOf(u"Clear", [](R& r) { r.Sheet().Clear(); }),
        FormOf(u"Minimum",
               [](R& r, Long col, ManipulateType type) {
                   bool success = false;
                   r.Sheet().Minimum(col, type, success);
               }),
        FormOf(u"Maximum",
               [](R& r, Long col, ManipulateType type) {
                   bool success = false;
                   r.Sheet().Maximum(col, type, success);
               }),
        FormOf(u"Summation",
               [](R& r, Long col) {
                   bool success = false;
                   r.Sheet().Summation(col, success);
               }),
        FormOf(u"Font",
               [](R& r, Text name, double size) {
                   r.Sheet().Font({name, size});
               }),
        FormOf(u"Enabled", [](R& r, bool enabled) { r.Sheet().Enabled(enabled); }),
    };
    return forms;
}

} // namespace Tessellon::Replay

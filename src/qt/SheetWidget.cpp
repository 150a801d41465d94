#include "qt/SheetWidget.h"

#include "engine/DefaultProperties.h"
#include "failure/Frames.h"
#include "qt/QtLocale.h"
#include "qt/SheetFrame.h"
#include "qt/SheetWidgetParts.h"
#include "qt/Texts.h"
#include "recordset/qtsql/QtSqlConnection.h"
#include "recordset/qtsql/QtSqlRecordset.h"

#include <QPointer>
#include <QResizeEvent>
#include <QSqlQuery>

namespace Tessellon {

SheetWidget::SheetWidget(QWidget* parent)
    : QWidget(parent)
    , parts_(std::make_unique<Parts>(*this))
{
    // The widget's own properties are kept by whoever keeps widgets.
    DefaultProperties defaults;
    parts_->Sheet->UserControl_ReadProperties(defaults);
    setFocusProxy(parts_->Frame);
    ConnectEvents();
    connect(parts_->Frame, &SheetFrame::UnhandledFailure, this, &SheetWidget::unhandledFailure);
}

SheetWidget::~SheetWidget() = default;

SheetWidget::Parts::Parts(SheetWidget& widget)
    : Frame(new SheetFrame(Conduct::Desktop, LocaleFrom(widget.locale()), &widget))
    , Sheet(TessellonSheet::Create(Frame->Platform()))
{
}

SheetWidget::Parts::~Parts()
{
    Sheet.reset();
    SheetFrame::Drop(Frame);
}

bool SheetWidget::grabsFocus() const
{
    return parts_->Frame->Platform()->TheFocus().GrabsFocus();
}

void SheetWidget::setGrabsFocus(bool grabs)
{
    parts_->Frame->Platform()->TheFocus().GrabsFocus(grabs);
}

QSize SheetWidget::sizeHint() const
{
    return {640, 320};
}

void SheetWidget::resizeEvent(QResizeEvent* /*event*/)
{
    parts_->Frame->setGeometry(rect());
}

void SheetWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        Font(font());
    else if (event->type() == QEvent::EnabledChange)
        Enabled(isEnabled());
    QWidget::changeEvent(event);
}

/// One call of the host's. The painting that it leads to is done in one, and the frame outlives a host that deletes
/// this widget in one of the call's events. The end of the sheet stops here also where the sheet does not know that it
/// is called by its host, as in loadProgress.
template <class Call>
auto SheetWidget::Ask(const Call& call) -> decltype(call(std::declval<TessellonSheet&>()))
{
    using Result = decltype(call(std::declval<TessellonSheet&>()));
    const SheetFrame::Activity activity(*parts_->Frame);
    TessellonSheet& sheet = *parts_->Sheet;
    try {
        return call(sheet);
    } catch (const SheetEnded&) {
        return Result();
    }
}

// ---- Cells and cursor -----------------------------------------------------------------------------------------------

int SheetWidget::Row()
{
    return Ask([](auto& sheet) { return sheet.Row(); });
}

void SheetWidget::Row(int row)
{
    Ask([&](auto& sheet) { sheet.Row(row); });
}

int SheetWidget::Rows()
{
    return Ask([](auto& sheet) { return sheet.Rows(); });
}

int SheetWidget::Col()
{
    return Ask([](auto& sheet) { return sheet.Col(); });
}

void SheetWidget::Col(int col)
{
    Ask([&](auto& sheet) { sheet.Col(col); });
}

int SheetWidget::hWnd()
{
    return Ask([](auto& sheet) { return sheet.hWnd(); });
}

QString SheetWidget::TextMatrix(int row, int col)
{
    return Ask([&](auto& sheet) { return OwnText(sheet.TextMatrix(row, col)); });
}

void SheetWidget::TextMatrix(int row, int col, const QString& text)
{
    Ask([&](auto& sheet) { sheet.TextMatrix(row, col, UnitsOf(text)); });
}

void SheetWidget::RowHeight(float height, bool scaleFont, bool includeHeader)
{
    Ask([&](auto& sheet) { sheet.RowHeight(height, scaleFont, includeHeader); });
}

float SheetWidget::GetRowHeight(int row)
{
    return Ask([&](auto& sheet) { return sheet.GetRowHeight(row); });
}

bool SheetWidget::AllowAddNew()
{
    return Ask([](auto& sheet) { return sheet.AllowAddNew(); });
}

void SheetWidget::AllowAddNew(bool allow)
{
    Ask([&](auto& sheet) { sheet.AllowAddNew(allow); });
}

void SheetWidget::DateFormat(const QString& format)
{
    Ask([&](auto& sheet) { sheet.DateFormat(UnitsOf(format)); });
}

// ---- Columns --------------------------------------------------------------------------------------------------------

int SheetWidget::Cols()
{
    return Ask([](auto& sheet) { return sheet.Cols(); });
}

void SheetWidget::Cols(int count)
{
    Ask([&](auto& sheet) { sheet.Cols(count); });
}

void SheetWidget::ColWidth(int col, float width)
{
    Ask([&](auto& sheet) { sheet.ColWidth(col, width); });
}

void SheetWidget::CreateColumnDataType(int col, const QString& colName, FieldControlType controlType,
                                       const QString& controlSettingString, bool hide, FieldControlAlign alignment,
                                       int fieldLength, FieldAutoAdjustType autoAdjust, bool useMask)
{
    Ask([&](auto& sheet) {
        sheet.CreateColumnDataType(col, UnitsOf(colName), controlType, UnitsOf(controlSettingString), hide, alignment,
                                   fieldLength, autoAdjust, useMask);
    });
}

QString SheetWidget::ColumnHeader(int col)
{
    return Ask([&](auto& sheet) { return OwnText(sheet.ColumnHeader(col)); });
}

void SheetWidget::BuildGridColumns()
{
    Ask([](auto& sheet) { sheet.BuildGridColumns(); });
}

void SheetWidget::BackColor(int index, ColorType color)
{
    Ask([&](auto& sheet) { sheet.BackColor(static_cast<std::int16_t>(index), color); });
}

// ---- Failures -------------------------------------------------------------------------------------------------------

bool SheetWidget::RaiseError()
{
    return Ask([](auto& sheet) { return sheet.RaiseError(); });
}

void SheetWidget::RaiseError(bool raise)
{
    Ask([&](auto& sheet) { sheet.RaiseError(raise); });
}

bool SheetWidget::ShowErrMessage()
{
    return Ask([](auto& sheet) { return sheet.ShowErrMessage(); });
}

void SheetWidget::ShowErrMessage(bool show)
{
    Ask([&](auto& sheet) { sheet.ShowErrMessage(show); });
}

// ---- Rows and data --------------------------------------------------------------------------------------------------

int SheetWidget::SearchCol(int col, const QString& search)
{
    return Ask([&](auto& sheet) { return sheet.SearchCol(col, UnitsOf(search)); });
}

void SheetWidget::Add(int row, int count)
{
    Ask([&](auto& sheet) { sheet.Add(row, count); });
}

void SheetWidget::Delete(int row)
{
    Ask([&](auto& sheet) { sheet.Delete(row); });
}

void SheetWidget::Clear()
{
    Ask([](auto& sheet) { sheet.Clear(); });
}

QString SheetWidget::Minimum(int col, ManipulateType dataType, bool& success)
{
    return Ask([&](auto& sheet) { return OwnText(sheet.Minimum(col, dataType, success)); });
}

QString SheetWidget::Maximum(int col, ManipulateType dataType, bool& success)
{
    return Ask([&](auto& sheet) { return OwnText(sheet.Maximum(col, dataType, success)); });
}

double SheetWidget::Summation(int col, bool& success)
{
    return Ask([&](auto& sheet) { return sheet.Summation(col, success); });
}

void SheetWidget::DataSource(std::shared_ptr<Recordset> recordset, std::shared_ptr<Connection> connection)
{
    const auto tell = std::make_shared<const CountedRecordset::Progress>(
        [widget = QPointer<SheetWidget>(this)](int rows, int records) {
            if (widget != nullptr)
                emit widget->loadProgress(rows, records);
            if (widget != nullptr)
                widget->parts_->Frame->PaintWindow();
            // The records of a sheet that has gone are walked no further.
            if (widget == nullptr)
                throw SheetEnded();
        });
    if (recordset != nullptr)
        recordset = std::make_shared<CountedRecordset>(std::move(recordset), tell, parts_->Clock);
    Ask([&](auto& sheet) { sheet.DataSource(std::move(recordset), std::move(connection)); });
}

void SheetWidget::DataSource(QSqlQuery query)
{
    const auto connection = std::make_shared<QtSqlConnection>();
    DataSource(connection->Records(std::move(query)), connection);
}

// ---- Design-time properties -----------------------------------------------------------------------------------------

QFont SheetWidget::Font()
{
    return Ask([](auto& sheet) { return QtFontOf(sheet.Font()); });
}

/// The widget's font stands behind it, so that the property and the sheet agree.
void SheetWidget::Font(const QFont& font)
{
    if (this->font() != font) {
        setFont(font);
        return;
    }
    const Tessellon::Font wanted = FontOf(font, *this);
    Ask([&](auto& sheet) {
        if (sheet.Font() != wanted)
            sheet.Font(wanted);
    });
}

bool SheetWidget::Enabled()
{
    return Ask([](auto& sheet) { return sheet.Enabled(); });
}

void SheetWidget::Enabled(bool enabled)
{
    Ask([&](auto& sheet) {
        if (sheet.Enabled() != enabled)
            sheet.Enabled(enabled);
    });
}

} // namespace Tessellon

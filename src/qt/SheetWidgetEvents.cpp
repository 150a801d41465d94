#include "qt/SheetWidgetParts.h"
#include "qt/Texts.h"

#include <cmath>

namespace Tessellon {

namespace {

const QDateTime firstMoment(QDate(1899, 12, 30), QTime(0, 0));
constexpr double millisecondsADay = 86'400'000;

/// A date of the sheet: days since 30 December 1899, the time of day as their fraction, whatever the sign.
QDateTime MomentOf(double date)
{
    const double days = std::trunc(date);
    const double ofDay = std::abs(date - days) * millisecondsADay;
    return QDateTime(firstMoment.date().addDays(static_cast<qint64>(days)), QTime(0, 0))
        .addMSecs(static_cast<qint64>(std::round(ofDay)));
}

double DateOf(const QDateTime& moment)
{
    const auto days = static_cast<double>(firstMoment.date().daysTo(moment.date()));
    const double ofDay = moment.time().msecsSinceStartOfDay() / millisecondsADay;
    return days < 0 ? days - ofDay : days + ofDay;
}

} // namespace

/// Each event of the sheet is a signal of the widget. By-reference arguments go through as they are, but for texts and
/// dates, which are Qt's on this side.
void SheetWidget::ConnectEvents()
{
    TessellonSheet& sheet = *parts_->Sheet;
    sheet.Compare += [this](auto row1, auto row2, auto& cmp) { emit Compare(row1, row2, cmp); };
    sheet.AdvanceToNextCell += [this](bool& cancel) { emit AdvanceToNextCell(cancel); };
    sheet.ExitFocus += [this](bool& cancel) { emit ExitFocus(cancel); };
    sheet.MouseDown += [this](auto& button, auto& shift, auto& x, auto& y) { emit MouseDown(button, shift, x, y); };
    sheet.MouseMove += [this](auto& button, auto& shift, auto& x, auto& y) { emit MouseMove(button, shift, x, y); };
    sheet.MouseUp += [this](auto& button, auto& shift, auto& x, auto& y) { emit MouseUp(button, shift, x, y); };
    sheet.Click += [this] { emit Click(); };
    sheet.DblClick += [this] { emit DblClick(); };
    sheet.KeyUp += [this](auto& keyCode, auto& shift) { emit KeyUp(keyCode, shift); };
    sheet.KeyDown += [this](auto& keyCode, auto& shift) { emit KeyDown(keyCode, shift); };
    sheet.KeyPress += [this](auto& keyAscii) { emit KeyPress(keyAscii); };
    sheet.RowColChange += [this] { emit RowColChange(); };
    sheet.Scroll += [this] { emit Scroll(); };
    sheet.SelChange += [this] { emit SelChange(); };
    sheet.LeaveCell += [this] { emit LeaveCell(); };
    sheet.EnterCell += [this] { emit EnterCell(); };
    sheet.EditorValidate += [this](bool& cancel) { emit EditorValidate(cancel); };
    sheet.EditorChange += [this] { emit EditorChange(); };
    sheet.DateBoxCloseUp += [this] { emit DateBoxCloseUp(); };
    sheet.DateBoxDropDown += [this] { emit DateBoxDropDown(); };
    sheet.Format += [this](auto& callbackField, auto& formattedString) {
        QString field = OwnText(callbackField);
        QString formatted = OwnText(formattedString);
        emit Format(field, formatted);
        callbackField = UnitsOf(field);
        formattedString = UnitsOf(formatted);
    };
    sheet.DatePickerCallbackKeyDown += [this](auto keyCode, auto shift, const auto& callbackField, double& date) {
        const QDateTime before = MomentOf(date);
        QDateTime moment = before;
        emit DatePickerCallbackKeyDown(keyCode, shift, OwnText(callbackField), moment);
        if (moment != before)
            date = DateOf(moment);
    };
    sheet.ButtonClick += [this](auto buttonIndex) { emit ButtonClick(buttonIndex); };
    sheet.UseAdvanceToNextCell += [this](bool& use) { emit UseAdvanceToNextCell(use); };
    sheet.ErrInfo += [this](auto number, const auto& source, const auto& description, const auto& helpFile,
                            const auto& helpContext) {
        emit ErrInfo(number, OwnText(source), OwnText(description), OwnText(helpFile), OwnText(helpContext));
    };
}

} // namespace Tessellon

#include "orders/HostLog.h"

#include "qt/SheetWidget.h"

#include <QTextStream>

#include <stdexcept>

namespace Orders {

using Tessellon::SheetWidget;

namespace {

constexpr const char* swarmingNames[] = {"LeaveCell", "EnterCell", "RowColChange", "SelChange", "Scroll"};

/// The start of a text on one line.
QString Shortened(const QString& text)
{
    constexpr qsizetype most = 80;
    QString start = text.left(most);
    for (QChar& unit : start) {
        if (unit < u' ')
            unit = u' ';
    }
    if (start.size() < text.size())
        start += u'…';
    return start;
}

QString KeyText(short keyCode, short shift)
{
    return QStringLiteral("KeyCode %1, Shift %2").arg(keyCode).arg(shift);
}

QString MouseText(short button, short shift, float x, float y)
{
    return QStringLiteral("Button %1, Shift %2, x %3, y %4")
        .arg(button)
        .arg(shift)
        .arg(static_cast<double>(x), 0, 'f', 0)
        .arg(static_cast<double>(y), 0, 'f', 0);
}

QByteArray JsonText(const QString& text)
{
    constexpr char16_t firstPrintable = u' ';
    constexpr char16_t lastPrintable = u'~';
    QByteArray json = "\"";
    for (const QChar unit : text) {
        if (unit == u'"' || unit == u'\\' || unit < firstPrintable || unit > lastPrintable)
            json += "\\u" + QByteArray::number(unit.unicode(), 16).rightJustified(4, '0');
        else
            json += unit.toLatin1();
    }
    return json + '"';
}

} // namespace

HostLog::HostLog(SheetWidget& sheet, EventLog& lines)
    : sheet_(sheet)
    , lines_(lines)
{
    HearCells();
    HearInput();
    HearTheRest();
}

void HostLog::HearCells()
{
    QObject::connect(&sheet_, &SheetWidget::LeaveCell, &lines_, [this] { TellOrCount(LeaveCell); });
    QObject::connect(&sheet_, &SheetWidget::EnterCell, &lines_, [this] { TellOrCount(EnterCell); });
    QObject::connect(&sheet_, &SheetWidget::RowColChange, &lines_, [this] { TellOrCount(RowColChange); });
    QObject::connect(&sheet_, &SheetWidget::SelChange, &lines_, [this] { TellOrCount(SelChange); });
    QObject::connect(&sheet_, &SheetWidget::Scroll, &lines_, [this] { TellOrCount(Scroll); });
    QObject::connect(&sheet_, &SheetWidget::EditorChange, &lines_,
                     [this] { Tell(QStringLiteral("EditorChange"), CellAndText()); });
    QObject::connect(&sheet_, &SheetWidget::EditorValidate, &lines_,
                     [this] { Tell(QStringLiteral("EditorValidate"), CellAndText()); });
    QObject::connect(&sheet_, &SheetWidget::AdvanceToNextCell, &lines_,
                     [this] { Tell(QStringLiteral("AdvanceToNextCell"), Place()); });
    QObject::connect(&sheet_, &SheetWidget::Click, &lines_, [this] { Tell(QStringLiteral("Click"), CellAndText()); });
    QObject::connect(&sheet_, &SheetWidget::DblClick, &lines_, [this] { Tell(QStringLiteral("DblClick"), Place()); });
}

void HostLog::HearInput()
{
    QObject::connect(&sheet_, &SheetWidget::KeyDown, &lines_, [this](short& keyCode, short& shift) {
        Tell(QStringLiteral("KeyDown"), KeyText(keyCode, shift));
    });
    QObject::connect(&sheet_, &SheetWidget::KeyUp, &lines_,
                     [this](short& keyCode, short& shift) { Tell(QStringLiteral("KeyUp"), KeyText(keyCode, shift)); });
    QObject::connect(&sheet_, &SheetWidget::KeyPress, &lines_, [this](short& keyAscii) {
        Tell(QStringLiteral("KeyPress"), QStringLiteral("KeyAscii %1").arg(keyAscii));
    });
    QObject::connect(&sheet_, &SheetWidget::MouseDown, &lines_,
                     [this](short& button, short& shift, float& x, float& y) {
                         TellSwarm(QStringLiteral("MouseDown"), MouseText(button, shift, x, y));
                     });
    QObject::connect(&sheet_, &SheetWidget::MouseMove, &lines_,
                     [this](short& button, short& shift, float& x, float& y) {
                         TellSwarm(QStringLiteral("MouseMove"), MouseText(button, shift, x, y));
                     });
    QObject::connect(&sheet_, &SheetWidget::MouseUp, &lines_, [this](short& button, short& shift, float& x, float& y) {
        TellSwarm(QStringLiteral("MouseUp"), MouseText(button, shift, x, y));
    });
}

void HostLog::HearTheRest()
{
    QObject::connect(&sheet_, &SheetWidget::ExitFocus, &lines_, [this] { Tell(QStringLiteral("ExitFocus")); });
    QObject::connect(&sheet_, &SheetWidget::Compare, &lines_, [this](int row1, int row2) {
        TellSwarm(QStringLiteral("Compare"), QStringLiteral("%1, %2").arg(row1).arg(row2));
    });
    QObject::connect(&sheet_, &SheetWidget::DateBoxDropDown, &lines_,
                     [this] { Tell(QStringLiteral("DateBoxDropDown")); });
    QObject::connect(&sheet_, &SheetWidget::DateBoxCloseUp, &lines_,
                     [this] { Tell(QStringLiteral("DateBoxCloseUp")); });
    QObject::connect(&sheet_, &SheetWidget::Format, &lines_,
                     [this](QString& field) { Tell(QStringLiteral("Format"), Shortened(field)); });
    QObject::connect(&sheet_, &SheetWidget::DatePickerCallbackKeyDown, &lines_,
                     [this](short keyCode, short shift, const QString& /*field*/, QDateTime& /*date*/) {
                         Tell(QStringLiteral("DatePickerCallbackKeyDown"), KeyText(keyCode, shift));
                     });
    QObject::connect(&sheet_, &SheetWidget::ButtonClick, &lines_,
                     [this](short index) { Tell(QStringLiteral("ButtonClick"), QString::number(index)); });
    QObject::connect(&sheet_, &SheetWidget::UseAdvanceToNextCell, &lines_,
                     [this] { Tell(QStringLiteral("UseAdvanceToNextCell")); });
    // The description comes in the argument of the source.
    QObject::connect(&sheet_, &SheetWidget::ErrInfo, &lines_, [this](int number, const QString& description) {
        Tell(QStringLiteral("ErrInfo"), QStringLiteral("%1: %2").arg(number).arg(Shortened(description)));
    });
    QObject::connect(&sheet_, &SheetWidget::unhandledFailure, &lines_,
                     [this](int number, const QString& /*source*/, const QString& description) {
                         Tell(QStringLiteral("unhandledFailure"),
                              QStringLiteral("%1: %2").arg(number).arg(Shortened(description)));
                     });
}

void HostLog::WriteInto(const std::filesystem::path& path)
{
    file_.setFileName(QString::fromStdU16String(path.u16string()));
    if (!file_.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw std::runtime_error("--log cannot write " + path.string() + ": " + file_.errorString().toStdString());
}

void HostLog::Tell(const QString& event, const QString& details)
{
    lines_.Add(event, details);
    Write(event, details);
}

void HostLog::TellSwarm(const QString& event, const QString& details)
{
    lines_.AddOrCount(event, details);
    Write(event, details);
}

void HostLog::TellOrCount(Swarming event)
{
    if (isLoading_) {
        ++counts_[event];
        return;
    }
    const QString name = QString::fromLatin1(swarmingNames[event]);
    if (event == Scroll)
        TellSwarm(name, {});
    else
        Tell(name, event == EnterCell ? CellAndText() : Place());
}

void HostLog::LoadBegins()
{
    counts_ = {};
    isLoading_ = true;
}

void HostLog::LoadEnds()
{
    isLoading_ = false;
    for (int event = 0; event < SwarmingCount; ++event) {
        if (counts_[static_cast<std::size_t>(event)] > 0)
            Tell(QString::fromLatin1(swarmingNames[event]),
                 QStringLiteral("%L1 times in the load").arg(counts_[static_cast<std::size_t>(event)]));
    }
}

void HostLog::Write(const QString& event, const QString& details)
{
    if (!file_.isOpen())
        return;
    file_.write((details.isEmpty() ? event : event + u' ' + details).toUtf8() + '\n');
    file_.flush();
}

void HostLog::WriteCells()
{
    if (!file_.isOpen())
        return;
    const int rows = sheet_.Rows();
    const int cols = sheet_.Cols();
    for (int row = 1; row < rows; ++row) {
        for (int col = 1; col < cols; ++col)
            file_.write("cell " + QByteArray::number(row) + ' ' + QByteArray::number(col) + ' ' +
                        JsonText(sheet_.TextMatrix(row, col)) + '\n');
    }
    file_.flush();
}

QString HostLog::Place()
{
    return QStringLiteral("%1, %2").arg(sheet_.Row()).arg(sheet_.Col());
}

QString HostLog::CellAndText()
{
    const int row = sheet_.Row();
    const int col = sheet_.Col();
    return QStringLiteral("%1, %2: ").arg(row).arg(col) + Shortened(sheet_.TextMatrix(row, col));
}

} // namespace Orders

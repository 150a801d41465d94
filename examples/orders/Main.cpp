#include "orders/BareLoopProcess.h"
#include "orders/Options.h"
#include "orders/OrdersDatabase.h"
#include "orders/OrdersWindow.h"
#include "orders/Picture.h"
#include "orders/QuerySource.h"
#include "orders/Source.h"
#include "qt/SheetWidget.h"
#include "roads/Secrets.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLocale>
#include <QSaveFile>
#include <QScreen>
#include <QThread>
#include <QWindow>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <stdexcept>
#include <string>

namespace Orders {

namespace {

constexpr int cannotBeDone = 2;

void PrintHelp()
{
    const std::string place = "@PROGRAM@";
    std::string text = HelpText;
    text.replace(text.find(place), place.size(), "orders");
    std::fputs(text.c_str(), stdout);
}

/// What Qt says when it ends the program, in one line of our own.
void SayFatal(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message)
{
    if (type == QtFatalMsg) {
        std::fputs("orders: the display cannot be used; set DISPLAY to one that can, or draw by --picture FILE\n",
                   stderr);
        std::_Exit(cannotBeDone);
    }
    if (type == QtCriticalMsg)
        std::fprintf(stderr, "orders: %s\n", message.toLocal8Bit().constData());
}

void ChooseDisplay(const Options& options)
{
    if (options.Picture) {
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        return;
    }
    const auto isSet = [](const char* variable) {
        const char* value = std::getenv(variable);
        return value != nullptr && *value != '\0';
    };
    if (!isSet("QT_QPA_PLATFORM") && !isSet("DISPLAY") && !isSet("WAYLAND_DISPLAY"))
        throw std::runtime_error("there is no display; start a desktop session, or draw by --picture FILE");
}

void SavePicture(const QImage& picture, const std::filesystem::path& path)
{
    constexpr int bestCompression = 0;
    QSaveFile file(QString::fromStdU16String(path.u16string()));
    if (!file.open(QIODevice::WriteOnly) || !picture.save(&file, "PNG", bestCompression) || !file.commit())
        throw std::runtime_error("--picture cannot write " + path.string() + ": " + file.errorString().toStdString());
}

std::string Megabytes(std::optional<std::int64_t> bytes)
{
    constexpr double megabyte = 1024 * 1024;
    if (!bytes)
        return "unknown";
    return QLocale::c().toString(static_cast<double>(*bytes) / megabyte, 'f', 1).toStdString() + " MB";
}

void PrintCost(double seconds)
{
    std::printf("%-12s %10s %12s\n", "", "load", "peak memory");
    std::printf("%-12s %8.3f s %12s\n", "this program", seconds, Megabytes(PeakMemory()).c_str());
}

void PrintBareLoop(double seconds, const BareLoopCost& bare)
{
    std::printf("%-12s %8.3f s %12s\n", "bare loop", bare.Result.Seconds, Megabytes(bare.PeakMemory).c_str());
    std::printf("%-12s %8.2f x  for %lld orders; the loop walks the query twice and reads every field once as text\n",
                "", seconds / bare.Result.Seconds, static_cast<long long>(bare.Result.Rows));
}

/// The arguments are all ours: Qt gets none. Ends the program where there is no display to draw on.
class Desktop {
public:
    Desktop(char** arguments, const QString& title)
        : handler_(qInstallMessageHandler(SayFatal))
        , application_(count_, arguments)
    {
        QApplication::setApplicationDisplayName(title);
    }
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    ~Desktop() { qInstallMessageHandler(handler_); }

private:
    int count_ = 1;
    QtMessageHandler handler_;
    QApplication application_;
};

const QString ordersTitle = QStringLiteral("Orders");
const QString queryTitle = QStringLiteral("Query");

/// Rows of any query, whose columns are as its fields.
std::unique_ptr<SheetWindow> WindowOfQuery(const Source& source)
{
    auto window = std::make_unique<SheetWindow>(SheetWindow::tr("rows"), SheetWindow::tr("&Rows"), source.Layout);
    window->setWindowTitle(queryTitle);
    return window;
}

/// Fills the window and draws it. Gives the seconds that the load took.
double Draw(const Options& options, SheetWindow& window, const Source& source, const QString& typed)
{
    if (options.Log)
        window.Log().WriteInto(*options.Log);
    // Nobody could close a message box.
    window.Sheet().ShowErrMessage(false);
    window.show();
    const double seconds = window.Load(source);
    if (!window.LoadFailure().isEmpty())
        throw std::runtime_error(window.LoadFailure().toStdString());
    const QImage picture = PictureOfAnEdit(window, typed);
    window.Log().WriteCells();
    SavePicture(picture, *options.Picture);
    PrintCost(seconds);
    return seconds;
}

void DrawOrders(const Options& options, char** arguments)
{
    const std::filesystem::path database = DatabaseOf(options);
    Source source = OpenDatabase(database);
    // Ahead of the desktop, which has threads.
    const BareLoopCost bare = RunBareLoopApart(database, Query);
    const Desktop desktop(arguments, ordersTitle);
    OrdersWindow window;
    PrintBareLoop(Draw(options, window, source, QStringLiteral(" & Daughters")), bare);
}

void DrawQuery(const Options& options, char** arguments)
{
    const Desktop desktop(arguments, queryTitle);
    const Source source = OpenQuery(*options.Connection, *options.Query);
    Draw(options, *WindowOfQuery(source), source, {});
}

/// A load lets no event in, not even the one by which the window is first painted.
void AwaitPicture(const QWidget& window)
{
    constexpr int most = 2'000;
    constexpr int step = 5;
    QElapsedTimer timer;
    timer.start();
    while (!window.windowHandle()->isExposed() && timer.elapsed() < most) {
        QThread::msleep(step);
        QApplication::processEvents();
    }
}

int Show(const Options& options, SheetWindow& window, const Source& source)
{
    if (options.Log)
        window.Log().WriteInto(*options.Log);
    constexpr QSize frame(20, 60);
    window.resize(window.size().boundedTo(window.screen()->availableSize() - frame));
    window.show();
    AwaitPicture(window);
    window.Load(source);
    const int status = QApplication::exec();
    window.Log().WriteCells();
    return status;
}

int ShowOrders(const Options& options, char** arguments)
{
    const Desktop desktop(arguments, ordersTitle);
    const Source source = OpenDatabase(DatabaseOf(options));
    OrdersWindow window;
    return Show(options, window, source);
}

int ShowQuery(const Options& options, char** arguments)
{
    const Desktop desktop(arguments, queryTitle);
    const Source source = OpenQuery(*options.Connection, *options.Query);
    return Show(options, *WindowOfQuery(source), source);
}

int Run(int count, char** arguments)
{
    const Options options = ParseOptions(count, arguments);
    if (options.Help) {
        PrintHelp();
        return EXIT_SUCCESS;
    }
    ChooseDisplay(options);
    CheckPlaces(options);
    if (!options.Picture)
        return options.Connection ? ShowQuery(options, arguments) : ShowOrders(options, arguments);
    options.Connection ? DrawQuery(options, arguments) : DrawOrders(options, arguments);
    return EXIT_SUCCESS;
}

} // namespace

} // namespace Orders

int main(int count, char** arguments)
{
    try {
        return Orders::Run(count, arguments);
    } catch (const std::exception& failure) {
        Roads::Secrets secrets;
        for (int i = 1; i < count; ++i)
            secrets.Gather(arguments[i]);
        std::fprintf(stderr, "orders: %s\n", secrets.Hide(failure.what()).c_str());
        return Orders::cannotBeDone;
    }
}

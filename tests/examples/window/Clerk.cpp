#include "examples/window/Clerk.h"

#include "orders/FindBar.h"
#include "orders/OneLineLabel.h"
#include "orders/OrdersDatabase.h"
#include "orders/OrdersWindow.h"
#include "orders/QuerySource.h"

#include <QApplication>
#include <QLineEdit>
#include <QStatusBar>
#include <QTest>
#include <QTimer>

#include <sqlite3.h>
#include <utility>

namespace Orders {

Clerk::Clerk()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "orders clerk-XXXXXX").string();
    folder_ = mkdtemp(pattern.data());
    path_ = folder_ / "orders.db";
}

Clerk::~Clerk()
{
    window_.reset();
    std::filesystem::remove_all(folder_);
}

void Clerk::Open(int count)
{
    MakeDatabase(path_, count);
    Show(std::make_unique<OrdersWindow>(), OpenDatabase(path_));
}

void Clerk::OpenRows(const char* statements, const std::string& query)
{
    OpenRows(statements, query, "sqlite:" + path_.string());
}

void Clerk::OpenRows(const char* statements, const std::string& query, const std::string& connection)
{
    InDatabase(statements);
    const Source source = OpenQuery(connection, query);
    Show(std::make_unique<SheetWindow>(QStringLiteral("rows"), QStringLiteral("&Rows"), source.Layout), source);
}

void Clerk::Show(std::unique_ptr<SheetWindow> window, const Source& source)
{
    window_ = std::move(window);
    window_->show();
    window_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
    window_->Load(source);
}

void Clerk::GoTo(int row, int col)
{
    Sheet().Row(row);
    // The second time it is in view, and stays where it is.
    for (const int there : {col, 1, col})
        Sheet().Col(there);
}

void Clerk::Press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; }));
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void Clerk::Type(const QString& text)
{
    QTest::keyClicks(QApplication::focusWidget(), text);
}

void Clerk::InNextBox(std::function<void(QWidget&)> action)
{
    auto* const looking = new QTimer(window_.get());
    QObject::connect(looking, &QTimer::timeout, window_.get(), [this, looking, action = std::move(action)] {
        QWidget* const box = QApplication::activeModalWidget();
        if (box == nullptr || !box->isActiveWindow())
            return;
        looking->deleteLater();
        looking->stop();
        ++Boxes;
        action(*box);
    });
    looking->start(5);
}

void Clerk::AnswerNextBox(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    InNextBox([key, modifiers](QWidget& box) { QTest::keyClick(&box, key, modifiers); });
}

std::string Clerk::Edited() const
{
    const auto inSheet = [this] { return Sheet().isAncestorOf(QApplication::focusWidget()); };
    if (!QTest::qWaitFor(inSheet))
        return "the focus is elsewhere";
    const auto* const box = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    if (box == nullptr)
        return {};
    return QStringLiteral("%1, %2: %3").arg(Sheet().Row()).arg(Sheet().Col()).arg(box->text()).toStdString();
}

bool Clerk::IsInFindBar() const
{
    return window_->findChild<FindBar*>()->isAncestorOf(QApplication::focusWidget());
}

std::string Clerk::Message() const
{
    return window_->statusBar()->currentMessage().toStdString();
}

std::string Clerk::Summary() const
{
    const auto* const label = window_->findChild<OneLineLabel*>();
    QTest::qWait(120);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !label->text().endsWith(u'…'); }));
    return label->text().toStdString();
}

void Clerk::InDatabase(const char* statements) const
{
    sqlite3* database = nullptr;
    ASSERT_EQ(sqlite3_open(path_.c_str(), &database), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(database, statements, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(database);
    sqlite3_close(database);
}

} // namespace Orders

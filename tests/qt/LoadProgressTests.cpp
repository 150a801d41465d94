#include "Form.h"

#include "qt/SheetWidgetParts.h"

#include <QLabel>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <utility>
#include <vector>

namespace Tessellon {

/// Lets a load last as long as a test likes.
struct SheetWidgetProbe {
    static void Use(SheetWidget& sheet, CountedRecordset::Clock clock) { sheet.parts_->Clock = std::move(clock); }
};

namespace {

/// So many records of one number.
class Numbers : public Recordset {
public:
    explicit Numbers(int count)
        : count_(count)
    {
    }
    bool AtEnd() override { return at_ >= count_; }
    void MoveFirst() override { at_ = 0; }
    void MoveNext() override
    {
        ++at_;
        ++Steps;
    }
    std::int32_t FieldCount() override { return 1; }
    std::int32_t FieldType(std::int32_t) override { return 3; }
    Value FieldValue(std::int32_t) override { return Value::OfInteger(at_ + 1); }

    int Steps = 0;

private:
    int count_;
    int at_ = 0;
};

class NoErrors : public Connection {
public:
    const std::vector<ProviderError>& Errors() override { return errors_; }

private:
    std::vector<ProviderError> errors_;
};

/// A load that tells at each look at the clock: every 64 records.
class LoadProgress : public Form {
protected:
    static constexpr int records = 640;

    void SetUp() override
    {
        Form::SetUp();
        Fill();
        SheetWidgetProbe::Use(*Sheet, [this] { return now_ += std::chrono::seconds(2); });
    }
    void LoadAll() { Sheet->DataSource(Records, std::make_shared<NoErrors>()); }
    void OnProgress(std::function<void(int, int)> slot)
    {
        QObject::connect(Sheet, &SheetWidget::loadProgress, Sheet, std::move(slot));
    }

    std::shared_ptr<Numbers> Records = std::make_shared<Numbers>(records);

private:
    std::chrono::steady_clock::time_point now_{};
};

} // namespace

TEST_F(LoadProgress, IsASignal_WithRowsAndRecords)
{
    std::vector<std::pair<int, int>> told;
    OnProgress([&](int rows, int counted) { told.emplace_back(rows, counted); });
    LoadAll();
    ASSERT_EQ(told.size(), 20U);
    EXPECT_EQ(told[4], std::pair(0, 320));
    EXPECT_EQ(told[14], std::pair(320, records));
    EXPECT_EQ(told[19], std::pair(records, records));
}

TEST_F(LoadProgress, WhatTheSlotShows_IsPaintedInTheLoad)
{
    struct Painted : QLabel {
        using QLabel::QLabel;
        void paintEvent(QPaintEvent* event) override
        {
            Texts += text();
            QLabel::paintEvent(event);
        }
        QStringList Texts;
    };
    auto* const label = new Painted(Window.get());
    label->resize(100, 20);
    label->show();
    QStringList shown;
    OnProgress([&](int rows, int /*counted*/) {
        label->setText(QString::number(rows));
        shown += label->text();
    });
    LoadAll();
    for (const QString& text : shown)
        EXPECT_TRUE(label->Texts.contains(text)) << text.toStdString();
}

TEST_F(LoadProgress, LeavesKeysTimersAndDeletionsToTheEndOfTheLoad)
{
    bool isOver = false;
    QTimer::singleShot(0, Sheet, [&] { EXPECT_TRUE(isOver); });
    QPointer<QObject> going = new QObject(Sheet);
    going->deleteLater();
    QCoreApplication::postEvent(Before,
                                new QKeyEvent(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a")));
    LoadAll();
    EXPECT_FALSE(going.isNull());
    EXPECT_EQ(Before->text(), QString());
    isOver = true;
    QCoreApplication::processEvents();
    EXPECT_EQ(Before->text(), QStringLiteral("a"));
}

TEST_F(LoadProgress, SheetMayGoWhileItsRecordsAreCounted)
{
    const QPointer<SheetFrame> frame = &Frame();
    OnProgress([this](int /*rows*/, int /*counted*/) { delete std::exchange(Sheet, nullptr); });
    LoadAll();
    EXPECT_EQ(Sheet, nullptr);
    EXPECT_EQ(Records->Steps, 64);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(frame.isNull());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(LoadProgress, SheetMayGoWhileItsRowsAreFilled)
{
    OnProgress([this](int rows, int /*counted*/) {
        if (rows > 0)
            delete std::exchange(Sheet, nullptr);
    });
    LoadAll();
    EXPECT_EQ(Sheet, nullptr);
    EXPECT_EQ(Records->Steps, records + 64);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(LoadProgress, CallInTheSlotInWhoseEventTheSheetGoes_ReturnsToTheSlot)
{
    bool isAtIt = false;
    bool isBehindTheCall = false;
    QObject::connect(Sheet, &SheetWidget::RowColChange, [&] {
        if (isAtIt)
            delete std::exchange(Sheet, nullptr);
    });
    OnProgress([&](int rows, int /*counted*/) {
        if (rows == 0)
            return;
        isAtIt = true;
        Sheet->Row(1);
        isBehindTheCall = true;
    });
    LoadAll();
    EXPECT_EQ(Sheet, nullptr);
    EXPECT_TRUE(isBehindTheCall);
}

TEST_F(LoadProgress, SlotMayLoadOtherRecords)
{
    bool isInside = false;
    const auto others = std::make_shared<Numbers>(3);
    OnProgress([&](int rows, int /*counted*/) {
        if (rows == 0 || std::exchange(isInside, true))
            return;
        Sheet->ShowErrMessage(false);
        Sheet->DataSource(others, std::make_shared<NoErrors>());
    });
    LoadAll();
    // The outer load finds its rows gone, and ends.
    EXPECT_EQ(Sheet->Rows(), 4);
    EXPECT_EQ(Sheet->TextMatrix(3, 1), QStringLiteral("3"));
}

TEST_F(LoadProgress, OfAHiddenWindow_IsToldToo)
{
    Window->hide();
    int told = 0;
    OnProgress([&](int /*rows*/, int /*counted*/) { ++told; });
    LoadAll();
    EXPECT_EQ(told, 20);
}

} // namespace Tessellon

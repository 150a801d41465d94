#pragma once

#include "platform/PlatformUnderTest.h"
#include "qt/QtHand.h"
#include "qt/SheetFrame.h"

#include <QApplication>
#include <QClipboard>
#include <QDeadlineTimer>
#include <QLineEdit>

namespace Tessellon::Contract {

/// The widgets of a sheet, as a user or a record drives them, in a window with something else that takes the focus.
class QtUnderTest : public PlatformUnderTest {
public:
    explicit QtUnderTest(Conduct conduct)
        : frame_(conduct, Locale::English(), &window_)
    {
        constexpr int besideSheet = 2000;
        window_.resize(besideSheet + 200, 1000);
        elsewhere_.setGeometry(besideSheet, 0, 100, 30);
        elsewhere_.setFocus();
        window_.show();
        window_.activateWindow();
        for (const QDeadlineTimer limit(5000); !window_.isActiveWindow() && !limit.hasExpired();)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        QGuiApplication::clipboard()->clear();
        frame_.OnBell = [this] { ++bells_; };
        QObject::connect(&frame_, &SheetFrame::UnhandledFailure, &elsewhere_,
                         [this](int number) { failures_.push_back(number); });
    }

    std::shared_ptr<Platform> Get() override { return frame_.Platform(); }
    EnginePlatform& Engine() override { return *frame_.Platform(); }
    Hand& TheHand() override { return hand_; }
    [[nodiscard]] int Bells() const override { return bells_; }
    [[nodiscard]] std::u16string Clipboard() const override
    {
        return QGuiApplication::clipboard()->text().toStdU16String();
    }
    [[nodiscard]] std::vector<std::int32_t> UnhandledFailures() const override { return failures_; }

private:
    QWidget window_;
    SheetFrame frame_;
    QLineEdit elsewhere_{&window_};
    QtHand hand_{frame_, elsewhere_};
    int bells_ = 0;
    std::vector<std::int32_t> failures_;
};

} // namespace Tessellon::Contract

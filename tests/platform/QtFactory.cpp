#include "platform/PlatformUnderTest.h"
#include "qt/QtHand.h"
#include "qt/SheetFrame.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>

#include <gtest/gtest.h>

namespace Tessellon::Contract {

namespace {

/// The widgets of a sheet as a record drives them, in a window with something else that takes the focus.
class QtUnderTest : public PlatformUnderTest {
public:
    QtUnderTest()
    {
        constexpr int besideSheet = 2000;
        window_.resize(besideSheet + 200, 1000);
        elsewhere_.setGeometry(besideSheet, 0, 100, 30);
        elsewhere_.setFocus();
        window_.show();
        window_.activateWindow();
        QCoreApplication::processEvents();
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
    SheetFrame frame_{Conduct::Replay, Locale::English(), &window_};
    QLineEdit elsewhere_{&window_};
    QtHand hand_{frame_, elsewhere_};
    int bells_ = 0;
    std::vector<std::int32_t> failures_;
};

} // namespace

PlatformFactory TheFactory()
{
    return {"Qt", [] { return std::make_unique<QtUnderTest>(); }};
}

} // namespace Tessellon::Contract

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}

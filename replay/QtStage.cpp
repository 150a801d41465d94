#include "Stage.h"

#include "qt/QtHand.h"
#include "qt/SheetFrame.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>

#include <utility>

namespace Tessellon::Replay {

namespace {

/// A record is played without a display unless another platform is asked for. It goes with the stage: behind main Qt
/// is not whole any more.
class Application {
public:
    Application()
    {
        constexpr const char* platform = "QT_QPA_PLATFORM";
        if (qEnvironmentVariableIsEmpty(platform))
            qputenv(platform, "offscreen");
        if (QCoreApplication::instance() == nullptr)
            application_ = std::make_unique<QApplication>(count_, arguments_);
    }

private:
    int count_ = 1;
    char name_[sizeof "tessellon-replay"] = "tessellon-replay";
    char* arguments_[2] = {name_, nullptr};
    std::unique_ptr<QApplication> application_;
};

class QtStage final : public Stage {
public:
    QtStage()
    {
        constexpr int besideSheet = 2000;
        window_.resize(besideSheet + 200, 1000);
        elsewhere_.setGeometry(besideSheet, 0, 100, 30);
        elsewhere_.setFocus();
        window_.show();
        window_.activateWindow();
        Settle();
    }

    const std::shared_ptr<EnginePlatform>& Platform() override { return frame_.Platform(); }
    Hand& TheHand() override { return hand_; }
    void Listen(Ears ears) override
    {
        frame_.OnMessage = [hear = std::move(ears.MessageBox)](const QString& text) { hear(text.toStdU16String()); };
        QObject::connect(
            &frame_, &SheetFrame::UnhandledFailure, &frame_,
            [hear = std::move(ears.UnhandledFailure)](int number, const QString& source, const QString& description) {
                hear({number, source.toStdU16String(), description.toStdU16String()});
            });
    }

private:
    /// What comes of showing a window is over before the script begins.
    void Settle()
    {
        constexpr qint64 longest = 2000;
        QElapsedTimer since;
        since.start();
        while (!window_.isActiveWindow() && since.elapsed() < longest)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        QCoreApplication::processEvents();
    }

    Application application_;
    QWidget window_;
    SheetFrame frame_{Conduct::Replay, ScriptLocale(), &window_};
    QLineEdit elsewhere_{&window_};
    QtHand hand_{frame_, elsewhere_};
};

} // namespace

std::unique_ptr<Stage> MakeQtStage()
{
    return std::make_unique<QtStage>();
}

} // namespace Tessellon::Replay

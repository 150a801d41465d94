#include "Stage.h"

#include "headless/HeadlessHand.h"
#include "headless/HeadlessToolkit.h"

#include <utility>

namespace Tessellon::Replay {

namespace {

class HeadlessStage final : public Stage {
public:
    const std::shared_ptr<EnginePlatform>& Platform() override { return platform_; }
    Hand& TheHand() override { return hand_; }
    void Listen(Ears ears) override
    {
        toolkit_->OnMessageBox = std::move(ears.MessageBox);
        toolkit_->OnUnhandledFailure = std::move(ears.UnhandledFailure);
    }

private:
    std::shared_ptr<HeadlessToolkit> toolkit_ = std::make_shared<HeadlessToolkit>();
    std::shared_ptr<EnginePlatform> platform_ = std::make_shared<EnginePlatform>(toolkit_, ScriptLocale());
    HeadlessHand hand_{platform_};
};

} // namespace

std::unique_ptr<Stage> MakeHeadlessStage()
{
    return std::make_unique<HeadlessStage>();
}

Locale ScriptLocale()
{
    Locale locale = Locale::English();
    locale.ShortTime = locale.LongTime;
    return locale;
}

} // namespace Tessellon::Replay

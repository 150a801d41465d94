#include "engine/runtime/Locale.h"
#include "headless/HeadlessHand.h"
#include "headless/HeadlessToolkit.h"
#include "platform/PlatformUnderTest.h"

namespace Tessellon::Contract {

namespace {

class HeadlessUnderTest : public PlatformUnderTest {
public:
    HeadlessUnderTest()
        : toolkit_(std::make_shared<HeadlessToolkit>())
        , platform_(std::make_shared<EnginePlatform>(toolkit_, Locale::English()))
        , hand_(platform_)
    {
        toolkit_->OnUnhandledFailure = [this](const Failure& failure) { failures_.push_back(failure.Number); };
    }
    ~HeadlessUnderTest() override { toolkit_->OnUnhandledFailure = nullptr; }
    HeadlessUnderTest(const HeadlessUnderTest&) = delete;
    HeadlessUnderTest& operator=(const HeadlessUnderTest&) = delete;

    std::shared_ptr<Platform> Get() override { return platform_; }
    EnginePlatform& Engine() override { return *platform_; }
    Hand& TheHand() override { return hand_; }
    [[nodiscard]] int Bells() const override { return toolkit_->Bells; }
    [[nodiscard]] std::u16string Clipboard() const override { return toolkit_->Clipboard; }
    [[nodiscard]] std::vector<std::int32_t> UnhandledFailures() const override { return failures_; }

private:
    std::shared_ptr<HeadlessToolkit> toolkit_;
    std::shared_ptr<EnginePlatform> platform_;
    HeadlessHand hand_;
    std::vector<std::int32_t> failures_;
};

} // namespace

PlatformFactory TheFactory()
{
    return {"Headless", [] { return std::make_unique<HeadlessUnderTest>(); }};
}

} // namespace Tessellon::Contract

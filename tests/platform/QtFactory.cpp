#include "platform/QtUnderTest.h"

#include <gtest/gtest.h>

namespace Tessellon::Contract {

PlatformFactory TheFactory()
{
    return {"Qt", [] { return std::make_unique<QtUnderTest>(Conduct::Replay); }};
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

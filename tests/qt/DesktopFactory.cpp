#include "platform/QtUnderTest.h"

namespace Tessellon::Contract {

/// The tests that this program shares with the other platforms are played on the desktop as its users have it.
PlatformFactory TheFactory()
{
    return {"Desktop", [] { return std::make_unique<QtUnderTest>(Conduct::Desktop); }};
}

} // namespace Tessellon::Contract

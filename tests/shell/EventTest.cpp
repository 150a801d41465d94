#include "shell/Event.h"

#include <gtest/gtest.h>

#include <string>

namespace Tessellon {
namespace {

/// Tells the event as long as nobody says otherwise.
template <class... Arguments, class... Given>
void Tell(const Event<Arguments...>& event, Given&&... given)
{
    event.Tell([] { return true; }, std::forward<Given>(given)...);
}

} // namespace

TEST(Event, WithoutHandlers_TellsNobody)
{
    const Event<> event;
    EXPECT_NO_THROW(Tell(event));
}

TEST(Event, HandlersAreCalledInTheOrderInWhichTheyWereAdded)
{
    std::string order;
    Event<> event;
    event += [&] { order += 'a'; };
    event += [&] { order += 'b'; };
    Tell(event);
    EXPECT_EQ(order, "ab");
}

TEST(Event, ArgumentsByReferenceGoFromHandlerToHandlerAndBack)
{
    Event<int&> event;
    event += [](int& number) { number *= 2; };
    event += [](int& number) { number += 1; };
    int number = 5;
    Tell(event, number);
    EXPECT_EQ(number, 11);
}

TEST(Event, HandlerThatWasTakenBack_IsNotCalled)
{
    int calls = 0;
    Event<> event;
    const std::size_t first = event.Add([&] { calls += 1; });
    event.Add([&] { calls += 10; });
    event.Remove(first);
    event.Remove(first);
    event.Remove(77);
    Tell(event);
    EXPECT_EQ(calls, 10);
}

TEST(Event, HandlerThatTakesItselfBack_LivesToItsEnd)
{
    const std::string longText(100, 'x');
    std::string seen;
    Event<> event;
    std::size_t number = 0;
    number = event.Add([&event, &number, &seen, longText] {
        event.Remove(number);
        seen = longText;
    });
    Tell(event);
    Tell(event);
    EXPECT_EQ(seen, longText);
}

TEST(Event, HandlersAddedOrTakenBackWhileItIsTold_CountFromTheNextTimeOn)
{
    std::string order;
    Event<> event;
    std::size_t second = 0;
    event.Add([&] {
        order += 'a';
        event.Remove(second);
        event.Add([&] { order += 'c'; });
    });
    second = event.Add([&] { order += 'b'; });
    Tell(event);
    EXPECT_EQ(order, "ab");
    order.clear();
    Tell(event);
    EXPECT_EQ(order, "ac");
}

TEST(Event, IsToldOnlyWhileItIsWanted)
{
    bool wanted = true;
    std::string order;
    Event<> event;
    event += [&] {
        order += 'a';
        wanted = false;
    };
    event += [&] { order += 'b'; };
    event.Tell([&] { return wanted; });
    EXPECT_EQ(order, "a");
}

} // namespace Tessellon

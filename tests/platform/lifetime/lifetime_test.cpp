#include "platform/lifetime/lifetime.h"

#include <optional>

#include <gtest/gtest.h>

namespace
{

TEST(LifetimeWatch, SeesAnObjectThatLives)
{
    const Lifetime lifetime;
    const LifetimeWatch watch(lifetime);
    EXPECT_FALSE(watch.IsOver());
}

TEST(LifetimeWatch, SeesTheEndOfAnObject)
{
    std::optional<Lifetime> lifetime(std::in_place);
    const LifetimeWatch watch(*lifetime);
    lifetime.reset();
    EXPECT_TRUE(watch.IsOver());
}

// The place in memory may be used again at once.
TEST(LifetimeWatch, DoesNotTakeTheNextObjectInTheSamePlaceForTheFirst)
{
    std::optional<Lifetime> lifetime(std::in_place);
    const LifetimeWatch watch(*lifetime);
    lifetime.reset();
    lifetime.emplace();
    EXPECT_TRUE(watch.IsOver());
}

TEST(LifetimeWatch, WatchesBesideOthers)
{
    std::optional<Lifetime> lifetime(std::in_place);
    const LifetimeWatch outer(*lifetime);
    {
        const LifetimeWatch inner(*lifetime);
        EXPECT_FALSE(inner.IsOver());
    }
    EXPECT_FALSE(outer.IsOver());
    lifetime.reset();
    EXPECT_TRUE(outer.IsOver());
}

TEST(LifetimeWatch, SeesAnEndBeforeTheObjects)
{
    Lifetime lifetime;
    const LifetimeWatch before(lifetime);
    lifetime.End();
    const LifetimeWatch after(lifetime);
    EXPECT_TRUE(before.IsOver());
    EXPECT_TRUE(after.IsOver());
}

TEST(LifetimeWatch, DoesNotTakeANewBeginningForTheFirst)
{
    Lifetime lifetime;
    const LifetimeWatch first(lifetime);
    lifetime.End();
    lifetime.Begin();
    const LifetimeWatch second(lifetime);
    EXPECT_TRUE(first.IsOver());
    EXPECT_FALSE(second.IsOver());
}

}  // namespace

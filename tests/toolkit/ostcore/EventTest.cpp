#include "ostcore/Event.hpp"
#include "ostcore/RefCounted.hpp"

#include <boost/intrusive_ptr.hpp>
#include <gtest/gtest.h>

#include <string>

namespace {

TEST(EventTest, CallbacksRunInConnectionOrderAndStopWhenDisconnected) {
    ostcore::Event<int> event;
    std::string calls;
    std::size_t first = event.Connect([&](int value) { calls += "a" + std::to_string(value); });
    event.Connect([&](int value) { calls += "b" + std::to_string(value); });
    event.Fire(1);
    event.Disconnect(first);
    event.Fire(2);
    EXPECT_EQ(calls, "a1b1b2");
}

class Counted : public ostcore::RefCounted {
public:
    explicit Counted(bool& destroyed) : destroyed_(destroyed) {}
    ~Counted() override { destroyed_ = true; }

private:
    bool& destroyed_;
};

TEST(RefCountedTest, TheLastIntrusivePointerDeletesTheObject) {
    bool destroyed = false;
    boost::intrusive_ptr<Counted> first(new Counted(destroyed));
    {
        boost::intrusive_ptr<Counted> second = first;
        EXPECT_EQ(first->UseCount(), 2u);
    }
    EXPECT_FALSE(destroyed);
    first.reset();
    EXPECT_TRUE(destroyed);
}

}  // namespace

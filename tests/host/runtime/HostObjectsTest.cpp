#include <runtime/HostError.hpp>
#include <runtime/HostObjects.hpp>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace zm::host {
namespace {

struct Tracked {
    explicit Tracked(int* alive) : alive(alive) { ++*alive; }
    ~Tracked() { --*alive; }
    int* alive;
};

TEST(HostObjectsTest, AnObjectIsFoundByItsAddressAsItsOwnType) {
    HostObjects objects;
    std::string& text = objects.Add(std::make_unique<std::string>("held"));
    EXPECT_EQ(&objects.Require<std::string>(&text), &text);
    EXPECT_EQ(objects.Find<int>(&text), nullptr);  // a handle of another kind
    EXPECT_THROW(objects.Require<int>(&text), HostError);
    EXPECT_THROW(objects.Require<std::string>(nullptr), HostError);
}

TEST(HostObjectsTest, AnObjectGoesWithItsLastReference) {
    HostObjects objects;
    int alive = 0;
    Tracked& tracked = objects.Add(std::make_unique<Tracked>(&alive));
    objects.Retain<Tracked>(&tracked);
    EXPECT_EQ(objects.References(&tracked), 2);
    objects.Release<Tracked>(&tracked);
    EXPECT_EQ(alive, 1);
    objects.Release<Tracked>(&tracked);
    EXPECT_EQ(alive, 0);
    EXPECT_EQ(objects.References(&tracked), 0);
    EXPECT_THROW(objects.Release<Tracked>(&tracked), HostError);
}

TEST(HostObjectsTest, ObjectsAreCountedByType) {
    HostObjects objects;
    objects.Add(std::make_unique<std::string>("a"));
    objects.Add(std::make_unique<std::string>("b"));
    objects.Add(std::make_unique<int>(1));
    EXPECT_EQ(objects.Count<std::string>(), 2u);
    EXPECT_EQ(objects.Count<int>(), 1u);
}

TEST(HostObjectsTest, WhatIsStillHeldGoesWithTheStore) {
    int alive = 0;
    {
        HostObjects objects;
        objects.Add(std::make_unique<Tracked>(&alive));
        EXPECT_EQ(alive, 1);
    }
    EXPECT_EQ(alive, 0);
}

}  // namespace
}  // namespace zm::host

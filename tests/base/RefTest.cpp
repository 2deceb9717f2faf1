#include "vxgui/base/Ref.h"

#include <gtest/gtest.h>

namespace vxgui {
namespace {

class Counted : public Object {
public:
    explicit Counted(int* alive) : alive_(alive) { ++*alive_; }
    void DropOutside(Ref<Counted>* outside) {
        const KeepAlive keep(this);
        *outside = nullptr;
        EXPECT_EQ(*alive_, 1);  // still here, although the last outside reference is gone
    }

protected:
    ~Counted() override { --*alive_; }

private:
    int* alive_;
};

TEST(RefTest, TheLastReferenceDestroys) {
    int alive = 0;
    {
        Ref<Counted> a = New<Counted>(&alive);
        Ref<Counted> b = a;
        a = nullptr;
        EXPECT_EQ(alive, 1);
    }
    EXPECT_EQ(alive, 0);
}

TEST(RefTest, AnOperationKeepsItsOwnObjectAlive) {
    int alive = 0;
    Ref<Counted> only = New<Counted>(&alive);
    only->DropOutside(&only);
    EXPECT_EQ(alive, 0);
}

/// Cleans up by a public operation, as its host may.
class CleansUp : public Object {
public:
    explicit CleansUp(int* cleaned) : cleaned_(cleaned) {}
    void CleanUp() {
        const KeepAlive keep(this);
        ++*cleaned_;
    }

protected:
    ~CleansUp() override { CleanUp(); }

private:
    int* cleaned_;
};

TEST(RefTest, ADestructorMayCallTheOperationsOfItsObject) {
    int cleaned = 0;
    Ref<CleansUp> object = New<CleansUp>(&cleaned);
    object = nullptr;
    EXPECT_EQ(cleaned, 1);
}

TEST(RefTest, SelfAssignmentKeepsTheObject) {
    int alive = 0;
    Ref<Counted> a = New<Counted>(&alive);
    const Ref<Counted>& same = a;
    a = same;
    EXPECT_EQ(alive, 1);
}

}  // namespace
}  // namespace vxgui

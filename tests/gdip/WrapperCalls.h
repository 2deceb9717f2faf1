#pragma once

#include <gtest/gtest.h>

#include "tests/gdip/FlatSpy.h"
#include "vxgui/gdip/GpObject.h"

namespace vxgui {

/// Tests of a wrapper of class `Object`, call by call: which flat functions an operation calls, in
/// which order and with what, and what becomes of their answers.
template <class Object>
class WrapperCalls : public testing::Test {
protected:
    static constexpr int kStored = 3;

    /// `run(object)` makes exactly these calls on an object of handle 1. Each answer is told on,
    /// a failure changes nothing, ends the operation at once and is kept in `Status`, unless the
    /// operation answers a status.
    template <class Run>
    void Are(const char* calls, Run run) {
        using Answer = decltype(run(*object_));
        RunWith(calls, run, gdiplus::Ok, gdiplus::Ok);
        RunWith(calls, run, gdiplus::WrongState,
                std::is_same_v<Answer, gdiplus::Status> ? gdiplus::Ok : gdiplus::WrongState);
    }
    /// The same for an operation that doesn't keep a failure.
    template <class Run>
    void AreUnkept(const char* calls, Run run) {
        RunWith(calls, run, gdiplus::Ok, gdiplus::Ok);
        RunWith(calls, run, gdiplus::WrongState, gdiplus::Ok);
    }
    void TearDown() override { object_->Dispose(); }
    /// Gives the object the handle 1 and no status. A brush is of kind `type_`.
    void Renew() {
        spy_.Answer(gdiplus::Ok);
        spy_.Store(type_);
        auto handle = HandleOf(1);
        object_->SetHandle(handle);
        object_->Status = gdiplus::Ok;
        spy_.Taken();
    }
    auto HandleOf(uintptr_t number) {
        using Pointer = decltype(object_->Handle());
        return reinterpret_cast<Pointer>(number);
    }

    const Ref<Object> object_ = New<Object>();  // before the spy: the first object starts GDI+
    test::FlatSpy spy_;
    int type_ = 0;

private:
    template <class Run>
    void RunWith(const std::string& calls, Run run, gdiplus::Status answer, gdiplus::Status kept) {
        SCOPED_TRACE(calls + " answering " + std::to_string(answer));
        Renew();
        spy_.Store(kStored);
        spy_.Answer(answer);
        if constexpr (std::is_void_v<decltype(run(*object_))>) {
            run(*object_);
            ExpectCalls(calls, answer, kept);
        } else {
            const auto result = run(*object_);  // held, since its end is a call too
            ExpectCalls(calls, answer, kept);
            ExpectAnswer(result, answer);
        }
        spy_.Answer(gdiplus::Ok);
    }
    void ExpectCalls(const std::string& calls, gdiplus::Status answer, gdiplus::Status kept) {
        const bool failed = answer != gdiplus::Ok;
        EXPECT_EQ(spy_.Taken(), failed ? calls.substr(0, calls.find("; ")) : calls);
        EXPECT_EQ(object_->Status, kept);
        if (failed) {
            EXPECT_EQ(object_->Handle(), HandleOf(1));
        }
    }
    template <class Answer>
    void ExpectAnswer(const Answer& answer, gdiplus::Status status) {
        const bool ok = status == gdiplus::Ok;
        if constexpr (std::is_same_v<Answer, bool>) {
            EXPECT_EQ(answer, ok);
        } else if constexpr (std::is_same_v<Answer, gdiplus::Status>) {
            EXPECT_EQ(answer, status);
        } else if constexpr (std::is_pointer_v<Answer>) {
            EXPECT_EQ(reinterpret_cast<uintptr_t>(answer), ok ? test::FlatSpy::kMade : 0);
        } else if constexpr (requires { answer->Handle(); }) {
            ASSERT_EQ(answer != nullptr, ok);
            if (!ok) return;
            EXPECT_EQ(reinterpret_cast<uintptr_t>(answer->Handle()), test::FlatSpy::kMade);
        } else {
            EXPECT_EQ(static_cast<int>(answer), ok ? kStored : 0);
        }
    }
};

}  // namespace vxgui

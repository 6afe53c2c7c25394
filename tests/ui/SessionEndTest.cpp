#include "ui/application/SessionEnd.h"

#include <QTest>
#include <csignal>
#include <gtest/gtest.h>

namespace {

/// A program that is asked to end.
struct Asked {
    bool mayEnd = false;
    int questions = 0, ends = 0;
    SessionEnd sessionEnd{[this] {
                              ++questions;
                              return mayEnd;
                          },
                          [this] { ++ends; }};

    void signal(int number) {
        std::raise(number);
        const int before = questions + ends;
        EXPECT_TRUE(QTest::qWaitFor([&] { return questions + ends > before; }, 5000));
    }
};

} // namespace

TEST(SessionEnd, ASignalAsksWhereSomethingIsUnsavedAndASecondOneEnds) {
    Asked program;
    program.signal(SIGTERM);
    EXPECT_EQ(program.questions, 1);
    EXPECT_EQ(program.ends, 0) << "what is unsaved must not be lost unasked";
    program.signal(SIGTERM);
    EXPECT_EQ(program.ends, 1) << "who asks twice does not want to be asked";
}

TEST(SessionEnd, ASignalEndsAtOnceWhereNothingIsToAsk) {
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        Asked program;
        program.mayEnd = true;
        program.signal(number);
        EXPECT_EQ(program.ends, 1) << number;
    }
}

#include "platform/qt/termination.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include <gtest/gtest.h>

#include <csignal>

namespace morlan {
namespace {

// Lets events be handled until there is nothing to wait for, or a second is over.
void WaitFor(const std::function<bool()>& isDone) {
  for (int i = 0; i < 100 && !isDone(); ++i) {
    QEventLoop loop;
    QTimer::singleShot(10, &loop, &QEventLoop::quit);
    loop.exec();
  }
}

TEST(TerminationTest, ASignalIsToldInTheEventLoop) {
  for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
    int told = 0;
    Termination termination;
    termination.Watch([&] { ++told; });
    ::raise(signal);
    EXPECT_EQ(told, 0) << "not within the signal";
    WaitFor([&] { return told > 0; });
    EXPECT_EQ(told, 1);
  }
}

}  // namespace
}  // namespace morlan

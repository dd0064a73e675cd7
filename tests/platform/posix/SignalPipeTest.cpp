#include <gtest/gtest.h>

#include <csignal>

#include "platform/posix/SignalPipe.h"

namespace ostrel {
namespace {

TEST(SignalPipe, BringsEachSignalThatEndsAProgramUnlessItIsIgnored) {
  QtEventLoop loop;
  for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGPIPE}) {
    int came = 0;
    const SignalPipe watch(loop, [&] { ++came; });
    EXPECT_FALSE(SignalPipe::HasCome());
    std::raise(signal);
    EXPECT_TRUE(SignalPipe::HasCome()) << signal;
    loop.PumpEvents();
    EXPECT_EQ(came, 1) << signal;
  }
  std::signal(SIGHUP, SIG_IGN);  // as nohup does it
  {
    const SignalPipe watch(loop, [] { ADD_FAILURE() << "the signal is ignored"; });
    std::raise(SIGHUP);
    loop.PumpEvents();
  }
  std::signal(SIGHUP, SIG_DFL);
}

}  // namespace
}  // namespace ostrel

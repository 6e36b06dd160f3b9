#include <gmock/gmock.h>

#include <csignal>

int main(int argc, char** argv) {
  ::testing::InitGoogleMock(&argc, argv);
  // A console that has ended already does not read what is written to it.
  std::signal(SIGPIPE, SIG_IGN);
  return RUN_ALL_TESTS();
}

#include "fixture.h"

int main(int argc, char** argv) {
  if (const auto code = contract::RunAsForeignProcess(argc, argv)) return *code;
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}

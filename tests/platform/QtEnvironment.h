#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <memory>

namespace ostrel {

/// The application object that Qt needs, for all tests of this program.
class QtEnvironment final : public testing::Environment {
 public:
  void SetUp() override { application_ = std::make_unique<QCoreApplication>(count_, words_); }
  void TearDown() override { application_.reset(); }

 private:
  int count_ = 1;
  char name_[5] = "test";
  char* words_[2] = {name_, nullptr};
  std::unique_ptr<QCoreApplication> application_;
};

}  // namespace ostrel

#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Dialogs.h"

namespace ostrel {

/// Dialogs that answer from a script and record what was asked.
class VirtualDialogs final : public Dialogs {
 public:
  std::vector<MessageBox> boxes;        ///< every message box shown
  std::vector<FileQuestion> questions;  ///< every file question asked
  std::size_t modals = 0;               ///< forms shown
  std::size_t codesAsked = 0;
  std::size_t beeps = 0;

  /// Answer of Yes/No boxes for which no answer is queued.
  BoxAnswer defaultAnswer = BoxAnswer::Yes;
  /// Called while a message box is up: what the operator, or the line, does meanwhile.
  std::function<void(const MessageBox& box)> whileShown;

  /// The same while a file is asked for.
  std::function<void(const FileQuestion& question)> whileAsked;

  /// Queues the answer of the next Yes/No box that has none yet. Boxes with OK alone take none.
  void Answer(BoxAnswer answer) { answers_.push_back(answer); }
  /// Queues the answer of a file question; nothing queued, or nothing given, is a cancel.
  void ChoosePath(std::optional<std::string> path) { paths_.push_back(std::move(path)); }
  /// Queues an access code; nothing queued is a cancel.
  void GiveCode(std::string code) { codes_.push_back(std::move(code)); }
  /// Queues what the operator does in the next form. A form without is dismissed at once.
  void OnModal(std::function<void(Modal&)> handler) { modals_.push_back(std::move(handler)); }
  /// What the operator does in any form for which nothing is queued.
  void OnEveryModal(std::function<void(Modal&)> handler) { everyModal_ = std::move(handler); }
  /// Queued answers, paths, codes and forms that were not asked for.
  std::size_t Unused() const {
    return answers_.size() + paths_.size() + codes_.size() + modals_.size();
  }

  BoxAnswer ShowMessage(const MessageBox& box) override;
  std::optional<std::string> ChooseFile(const FileQuestion& question) override;
  std::string AskCode(const std::string& prompt) override;
  void ShowModal(Modal& modal, const std::function<void()>& shown) override;
  void Beep() override { ++beeps; }

 private:
  std::deque<BoxAnswer> answers_;
  std::deque<std::optional<std::string>> paths_;
  std::deque<std::string> codes_;
  std::deque<std::function<void(Modal&)>> modals_;
  std::function<void(Modal&)> everyModal_;
};

}  // namespace ostrel

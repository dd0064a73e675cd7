#include "platform/virtual/VirtualDialogs.h"

#include <utility>

namespace ostrel {
namespace {

/// Takes the head of a queue, or `none` when it is empty.
template <class T>
T Next(std::deque<T>& queue, T none) {
  if (queue.empty()) return none;
  T head = std::move(queue.front());
  queue.pop_front();
  return head;
}

}  // namespace

BoxAnswer VirtualDialogs::ShowMessage(const MessageBox& box) {
  boxes.push_back(box);
  if (whileShown) whileShown(box);
  return box.buttons == BoxButtons::Ok ? BoxAnswer::Ok : Next(answers_, defaultAnswer);
}

std::optional<std::string> VirtualDialogs::ChooseFile(const FileQuestion& question) {
  questions.push_back(question);
  if (whileAsked) whileAsked(question);
  return Next(paths_, std::optional<std::string>());
}

std::string VirtualDialogs::AskCode(const std::string&) {
  ++codesAsked;
  return Next(codes_, std::string());
}

void VirtualDialogs::ShowModal(Modal& modal, const std::function<void()>& shown) {
  ++modals;
  if (shown) shown();
  if (const auto handler = Next(modals_, everyModal_)) handler(modal);
}

}  // namespace ostrel

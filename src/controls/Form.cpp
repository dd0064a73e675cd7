#include "controls/Form.h"

#include <stdexcept>

namespace ostrel {

Face& FaceOf(const ControlRef& control) {
  return std::visit([](auto* typed) -> Face& { return typed->face; }, control);
}

Form::Form(std::string_view name, std::string_view titleKey)
    : name_(name), titleKey_(titleKey), title_(titleKey) {}

void Form::SetTitle(std::string_view title) {
  if (title == title_) return;
  title_ = title;
  Changed();
}

ControlRef Form::operator[](std::string_view name) const {
  const auto found = byName_.find(std::string(name));
  if (found == byName_.end())
    throw std::logic_error("form " + name_ + " has no control " + std::string(name));
  return controls_[found->second];
}

bool Form::Contains(std::string_view name) const { return byName_.contains(std::string(name)); }

void Form::TranslateCaptions(const std::function<std::string(std::string_view)>& translate) {
  if (!titleKey_.empty()) SetTitle(translate(titleKey_));
  for (const ControlRef& control : controls_) {
    Face& face = FaceOf(control);
    if (!face.Key().empty()) face.SetCaption(translate(face.Key()));
  }
}

void Form::SetEnabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  Changed();
}

void Form::Show() {
  if (visible_) return;
  visible_ = true;
  Changed();
}

void Form::Hide() {
  if (!visible_) return;
  visible_ = false;
  Changed();
}

void Form::SetMousePointer(Pointer pointer) {
  if (pointer == pointer_) return;
  pointer_ = pointer;
  Changed();
}

void Form::SetFocus(const Face& face) {
  focus_ = face.Name();
  Changed();
}

void Form::Register(ControlRef control) {
  const std::string& name = FaceOf(control).Name();
  if (!byName_.emplace(name, controls_.size()).second)
    throw std::logic_error("form " + name_ + " has two controls named " + name);
  controls_.push_back(control);
}

void Form::Changed() const {
  if (OnChanged) OnChanged();
}

}  // namespace ostrel

#include "controls/Controls.h"

#include "base/Printable.h"
#include "controls/Form.h"

namespace ostrel {
namespace {

bool IsRow(int position, const std::vector<ListRow>& rows) {
  return position >= 0 && position < static_cast<int>(rows.size());
}

void Run(const std::function<void()>& logic) {
  if (logic) logic();
}

}  // namespace

Label::Label(Form& form, std::string_view name, std::string_view key) : face(name, key) {
  form.Register(this);
}

Frame::Frame(Form& form, std::string_view name, std::string_view key) : face(name, key) {
  form.Register(this);
}

Button::Button(Form& form, std::string_view name, std::string_view key) : face(name, key) {
  form.Register(this);
}

void Button::SetCount(int count) {
  if (count == count_) return;
  count_ = count;
  face.Changed();
}

void Button::Click() {
  if (face.Enabled()) Run(OnClick);
}

CheckBox::CheckBox(Form& form, std::string_view name, std::string_view key) : face(name, key) {
  form.Register(this);
}

void CheckBox::SetChecked(bool checked) {
  if (checked == checked_) return;
  checked_ = checked;
  face.Changed();
  Run(OnClick);
}

OptionButton::OptionButton(Form& form, OptionGroup& group, std::string_view name,
                           std::string_view key)
    : face(name, key), group_(group) {
  group.Add(*this);
  form.Register(this);
}

void OptionButton::SetSelected(bool selected) {
  if (selected == selected_) return;
  if (selected) {
    for (OptionButton* other : group_.Options())
      if (other != this) other->SetSelected(false);
  }
  selected_ = selected;
  face.Changed();
  if (selected) Run(OnClick);
}

TextBox::TextBox(Form& form, std::string_view name, int maxLength)
    : face(name, ""), maxLength_(maxLength) {
  form.Register(this);
}

void TextBox::SetText(std::string_view text) {
  if (text == text_) return;
  text_ = text;
  face.Changed();
}

void TextBox::Type(std::string_view text) {
  text = UpToControl(text);
  SetText(maxLength_ == 0 ? text : FirstCharacters(text, static_cast<std::size_t>(maxLength_)));
}

void TextBox::SetHidden(bool hidden) {
  if (hidden == hidden_) return;
  hidden_ = hidden;
  face.Changed();
}

TextView::TextView(Form& form, std::string_view name) : face(name, "") { form.Register(this); }

void TextView::Append(std::string_view text) {
  if (text.empty()) return;
  text_ += text;
  face.Changed();
}

void TextView::Clear() {
  text_.clear();
  ++clearings_;
  face.Changed();
}

ComboBox::ComboBox(Form& form, std::string_view name) : face(name, "") { form.Register(this); }

void ComboBox::Add(std::string_view text, std::int32_t value) {
  rows_.push_back({std::string(text), value});
  face.Changed();
}

void ComboBox::Clear() {
  rows_.clear();
  position_ = -1;
  face.Changed();
}

void ComboBox::SetPosition(int position) {
  if (position == position_ || (position != -1 && !IsRow(position, rows_))) return;
  position_ = position;
  face.Changed();
  Run(OnClick);
}

std::string ComboBox::Text() const {
  return IsRow(position_, rows_) ? rows_[static_cast<std::size_t>(position_)].text : std::string();
}

std::int32_t ComboBox::Value(std::int32_t none) const {
  return IsRow(position_, rows_) ? rows_[static_cast<std::size_t>(position_)].value : none;
}

ListBox::ListBox(Form& form, std::string_view name) : face(name, "") { form.Register(this); }

std::string ListBox::RowText(int row) const {
  return IsRow(row, rows_) ? rows_[static_cast<std::size_t>(row)].text : std::string();
}

void ListBox::Add(std::string_view text, std::int32_t value) {
  rows_.push_back({std::string(text), value});
  face.Changed();
}

void ListBox::Remove(int row) {
  if (!IsRow(row, rows_)) return;
  rows_.erase(rows_.begin() + row);
  if (position_ == row)
    position_ = -1;
  else if (position_ > row)
    --position_;
  face.Changed();
}

void ListBox::Replace(int row, std::string_view text) {
  if (row < 0 || row >= static_cast<int>(rows_.size())) return;
  rows_[static_cast<std::size_t>(row)].text = text;
  face.Changed();
}

void ListBox::Move(int row, int place) {
  const int count = static_cast<int>(rows_.size());
  if (row < 0 || row >= count || place < 0 || place >= count) return;
  ListRow moved = std::move(rows_[static_cast<std::size_t>(row)]);
  rows_.erase(rows_.begin() + row);
  rows_.insert(rows_.begin() + place, std::move(moved));
  position_ = place;
  face.Changed();
}

void ListBox::Clear() {
  rows_.clear();
  position_ = -1;
  face.Changed();
}

void ListBox::SetPosition(int position) {
  if (position == position_ || (position != -1 && !IsRow(position, rows_))) return;
  position_ = position;
  face.Changed();
}

void ListBox::DoubleClick(int row) {
  if (!IsRow(row, rows_)) return;
  SetPosition(row);
  Run(OnDoubleClick);
}

MultiListBox::MultiListBox(Form& form, std::string_view name) : face(name, "") {
  form.Register(this);
}

void MultiListBox::Add(std::string_view text, std::int32_t value) {
  rows_.push_back({std::string(text), value});
  selected_.push_back(false);
  face.Changed();
}

void MultiListBox::Clear() {
  rows_.clear();
  selected_.clear();
  face.Changed();
}

bool MultiListBox::Selected(int row) const {
  return IsRow(row, rows_) && selected_[static_cast<std::size_t>(row)];
}

void MultiListBox::SetSelected(int row, bool selected) {
  if (Selected(row) == selected || !IsRow(row, rows_)) return;
  selected_[static_cast<std::size_t>(row)] = selected;
  face.Changed();
}

void MultiListBox::UnselectAll() {
  selected_.assign(rows_.size(), false);
  face.Changed();
}

TimePicker::TimePicker(Form& form, std::string_view name) : face(name, "") { form.Register(this); }

void TimePicker::SetValue(TimeOfDay value) {
  if (value == value_) return;
  value_ = value;
  face.Changed();
}

ProgressBar::ProgressBar(Form& form, std::string_view name) : face(name, "") {
  form.Register(this);
}

void ProgressBar::SetMaximum(int maximum) {
  if (maximum == maximum_) return;
  maximum_ = maximum;
  face.Changed();
}

void ProgressBar::SetValue(int value) {
  if (value == value_) return;
  value_ = value;
  face.Changed();
}

Picture::Picture(Form& form, std::string_view name) : face(name, "") { form.Register(this); }

void Picture::SetImage(int image) {
  if (image == image_) return;
  image_ = image;
  face.Changed();
}

void Picture::SetFile(std::string path) {
  if (path == file_) return;
  file_ = std::move(path);
  face.Changed();
}

TabStrip::TabStrip(Form& form, std::string_view name) : face(name, "") { form.Register(this); }

void TabStrip::SetTab(int tab) {
  if (tab == tab_) return;
  tab_ = tab;
  face.Changed();
}

Timer::Timer(Form& form, std::string_view name, EventLoop& loop, Duration interval)
    : face(name, ""), loop_(loop), interval_(interval) {
  form.Register(this);
}

Timer::~Timer() { SetEnabled(false); }

void Timer::SetEnabled(bool enabled) {
  if (enabled == Enabled()) return;
  if (enabled) {
    running_ = loop_.Every(interval_, face.Name(), [this] { Run(OnTimer); });
  } else {
    loop_.Cancel(running_);
    running_ = 0;
  }
}

}  // namespace ostrel

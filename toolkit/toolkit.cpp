#include "toolkit.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace Toolkit {

namespace {

// Sets `property` and returns whether that changed it.
template <class Property, class Value>
bool Change(Property& property, const Value& value) {
  if (property == value) return false;
  property = value;
  return true;
}

// There are 256 keys, but another program can send any number.
std::size_t KeyNumber(std::int16_t key_code) {
  return static_cast<std::size_t>(key_code) & 0xFF;
}

}  // namespace

void Label::SetCaption(std::u16string_view caption) {
  if (Change(caption_, caption)) ApplyCaption();
}

void TextBox::SetText(std::u16string_view text) {
  const bool same_length = static_cast<std::size_t>(TextLength()) == text.size();
  if (!same_length || Text() != text) ApplyText(text);
}

std::u16string TextBox::TrimText() {
  std::u16string text = Text();
  const std::size_t first = text.find_first_not_of(u' ');
  const auto removed = static_cast<std::int32_t>(first == text.npos ? text.size() : first);
  std::u16string rest = text.substr(static_cast<std::size_t>(removed));
  rest.resize(rest.find_last_not_of(u' ') + 1);  // npos + 1 is 0: only spaces
  if (rest.size() == text.size()) return text;

  const auto length = static_cast<std::int32_t>(rest.size());
  const auto moved = [&](std::int32_t position) {
    return std::clamp(position - removed, 0, length);
  };
  const Selection selection = GetSelection();
  ApplyText(rest);
  SetSelection({moved(selection.start), moved(selection.end)});
  return rest;
}

void TextBox::NoteKeyDown(std::int16_t key_code, bool is_repeat) {
  if (!is_repeat) keys_down_.set(KeyNumber(key_code));
}

void TextBox::NoteKeyUp(std::int16_t key_code, std::int16_t shift) {
  const std::size_t key = KeyNumber(key_code);
  if (!keys_down_.test(key)) return;
  keys_down_.reset(key);
  if (KeyUp) KeyUp(key_code, shift);
}

void ComboBox::AddItem(std::u16string_view item) {
  items_.emplace_back(item);
  ApplyNewItem(items_.back());
}

void ComboBox::Clear() {
  items_.clear();
  ApplyClear();
}

std::u16string_view ComboBox::Item(int index) const {
  if (index < 0 || index >= ListCount()) return {};
  return items_[static_cast<std::size_t>(index)];
}

void ComboBox::SetListIndex(int index) {
  if (ListIndex() != index) ApplyListIndex(index);
  Raise(Click);
}

bool OptionButton::Value() const {
  return owner_.selected_option_ == this;
}

void OptionButton::Select() {
  if (!Value()) {
    OptionButton* const before = std::exchange(owner_.selected_option_, this);
    if (before) before->ApplyValue();
    ApplyValue();
  }
  Raise(Click);
}

void OptionButton::NoteChosen() {
  if (!Value()) Select();
}

void OptionButton::SetFontBold(bool bold) {
  if (Change(font_bold_, bold)) ApplyFontBold();
}

void CommandButton::SetEnabled(bool enabled) {
  if (Change(enabled_, enabled)) ApplyEnabled();
}

void Window::SetCaption(std::u16string_view caption) {
  if (Change(caption_, caption)) ApplyCaption();
}

void Window::NoteActivated() {
  if (Change(was_active_, true)) Raise(Activate);
}

}  // namespace Toolkit

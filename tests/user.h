// Somebody who uses the window: of the form on the toolkit in memory, or of the real program. What
// holds for both is written once, in scenarios.cpp.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <tuple>

using Text = std::u16string;
using View = std::u16string_view;

// The text, the title and the style of a message box.
using MessageBoxSeen = std::tuple<Text, Text, int>;

class User {
 public:
  virtual ~User() = default;

  // A control is named as in the layout, with its index behind it if it has one: "cboMonth0".
  virtual Text Read(View control) const = 0;
  virtual void Set(View field, View value) = 0;  // a list to an item, a text box to a text
  virtual void Choose(int calendar) = 0;
  virtual void Push(View button) = 0;
  virtual MessageBoxSeen CloseBox() = 0;  // the box that is open, closed with Enter
  virtual bool Sees(const std::function<bool()>& condition) const = 0;  // now, or in a while

  // The fields of row 0, 1 or 2 from the left, with a blank behind each.
  void Enter(int row, View words);
  Text Row(int row) const;  // and the weekday
  Text Rows() const { return Row(0) + u" | " + Row(1) + u" | " + Row(2); }
};

// What must happen, whoever looks.
void RefusesWithABox(User& user);
void ConvertsFromEachCalendar(User& user);
void StepsFromTheSelectedCalendar(User& user);

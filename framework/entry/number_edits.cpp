#include "framework/entry/number_edits.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <string>

#include "framework/entry/num_formatter.h"

namespace {

constexpr const char* pictureOf(const int*) {
  return "-#####";
}
constexpr const char* pictureOf(const unsigned*) {
  return "#####";
}
constexpr const char* pictureOf(const unsigned long*) {
  return "##########";
}

// The sign of an int tells the formatter that there is one.
std::string printed(int value) {
  return (value < 0 ? "" : "+") + std::to_string(value);
}
template <class Unsigned>
std::string printed(Unsigned value) {
  return std::to_string(value);
}

}  // namespace

template <class Number>
ziNumberEdit<Number>::ziNumberEdit(zWindow* parent, int id, Number* store, const char* picture,
                                   unsigned long style)
    : ziNumberEdit(parent, id, store, std::make_unique<zNumFormatter>(style, picture), style) {}

template <class Number>
ziNumberEdit<Number>::ziNumberEdit(zWindow* parent, int id, Number* store,
                                   std::unique_ptr<zFormatter> formatter, unsigned long style)
    : zFormattedEdit(parent, id, std::move(formatter), style), store_(store) {
  ziNumberEdit::setToDefault();
}

template <class Number>
ziNumberEdit<Number>::ziNumberEdit(zWindow* parent, int id, Number* store, unsigned long style)
    : ziNumberEdit(parent, id, store, pictureOf(store), style) {}

template <class Number>
void ziNumberEdit<Number>::setToDefault() {
  const std::string text = textOf(store_ ? printed(*store_) : "");
  const int caret = getFormatter() ? getFormatter()->firstWritablePosition(text.c_str()) : 0;
  showEdited(text, {caret, caret});
}

template <class Number>
int ziNumberEdit<Number>::storeData() {
  using Limits = std::numeric_limits<int>;
  const long value = std::strtol(getRawText(bindingStyle()).c_str(), nullptr, 10);
  if (store_) *store_ = static_cast<Number>(std::clamp<long>(value, Limits::min(), Limits::max()));
  return 1;
}

template class ziNumberEdit<int>;
template class ziNumberEdit<unsigned>;
template class ziNumberEdit<unsigned long>;

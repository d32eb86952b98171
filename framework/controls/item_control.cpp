#include "framework/controls/item_control.h"

#include <Xm/List.h>
#include <Xm/ScrolledW.h>
#include <strings.h>

#include <algorithm>
#include <cctype>
#include <memory>

#include "framework/core/x_text.h"

namespace {

constexpr unsigned wheelUp = 4;
constexpr unsigned wheelDown = 5;
constexpr int itemsPerNotch = 3;

std::string upperCase(std::string text) {
  for (char& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return text;
}

}  // namespace

ziItemControl::ziItemControl(zWindow* parent, int id, unsigned type, ziItemStore store,
                             unsigned long bindingStyle)
    : zControl(ziAdopt{}, parent, id), store_(store), bindingStyle_(bindingStyle) {
  if (!husk() || !husk()->isA(type)) return;
  auto* old = static_cast<ziItemControl*>(husk());
  texts_.swap(old->texts_);
  index_ = old->index_;
  list_ = old->list_;
}

// Widgets.

Widget ziItemControl::createList(Widget parent, const char* name, unsigned char policy,
                                 bool tabStop) {
  std::vector<Arg> args;
  const auto add = [&args](const char* resource, XtArgVal value) {
    args.push_back({const_cast<char*>(resource), value});
  };
  add(XmNselectionPolicy, policy);
  add(XmNlistSizePolicy, XmCONSTANT);
  add(XmNscrollBarDisplayPolicy, XmAS_NEEDED);
  add(XmNspacing, 0);
  add(XmNtraversalOn, tabStop);
  add(XmNnavigationType, ziNavigation(tabStop));
  if (getFont()) add(XmNfontList, reinterpret_cast<XtArgVal>(getFont()->fontList()));
  list_ = XmCreateScrolledList(parent, const_cast<char*>(name), args.data(),
                               static_cast<Cardinal>(args.size()));
  XtManageChild(list_);
  XtAddEventHandler(list_, ButtonPressMask, False, wheelCB, nullptr);
  setListColors(zWhite);
  return list_;
}

void ziItemControl::wheelCB(Widget list, XtPointer, XEvent* event, Boolean*) {
  const unsigned button = event->xbutton.button;
  if (button != wheelUp && button != wheelDown) return;
  int top = 0, seen = 0, all = 0;
  XtVaGetValues(list, XmNtopItemPosition, &top, XmNvisibleItemCount, &seen, XmNitemCount, &all,
                nullptr);
  const int last = std::max(all - seen + 1, 1);
  const int wanted = top + (button == wheelUp ? -itemsPerNotch : itemsPerNotch);
  if (all > 0) XmListSetPos(list, std::clamp(wanted, 1, last));
}

void ziItemControl::setListColors(const zColor& background) const {
  const Widget frame = XtParent(list_);
  Widget across = nullptr, down = nullptr;
  XtVaGetValues(frame, XmNhorizontalScrollBar, &across, XmNverticalScrollBar, &down, nullptr);
  setColors(list_, background);
  for (const Widget grey : {frame, across, down}) {
    if (grey) setColors(grey, zDialogGrey);
  }
}

void ziItemControl::ziShowFont() {
  zControl::ziShowFont();
  if (list_) ziSetFontList(list_, getFont()->fontList());
}

// Items.

int ziItemControl::add(const char* text) {
  if (!(styleValue() & sortStyle)) return insert(text);
  const std::string own(text ? text : "");
  const std::string upper = upperCase(own);
  const auto behind = std::find_if(texts_.begin(), texts_.end(), [&](const std::string& item) {
    const int order = upperCase(item).compare(upper);
    return order > 0 || (order == 0 && item > own);
  });
  return insert(text, static_cast<int>(behind - texts_.begin()));
}

int ziItemControl::insert(const char* text, int position) {
  if (!list_) return -1;
  const std::string own(text ? text : "");
  const int at = hasItem(position) ? position : count();
  const int last = 0;
  XmListAddItemUnselected(list_, ziXmString(own).get(), at == count() ? last : at + 1);
  texts_.insert(texts_.begin() + at, own);
  if (index_ >= at) ++index_;
  return at;
}

void ziItemControl::append(const std::vector<std::string>& texts) {
  if (!list_ || texts.empty()) return;
  std::vector<std::unique_ptr<ziXmString>> shown;
  std::vector<XmString> handles;
  for (const std::string& text : texts) {
    shown.push_back(std::make_unique<ziXmString>(text));
    handles.push_back(shown.back()->get());
  }
  XmListAddItemsUnselected(list_, handles.data(), static_cast<int>(handles.size()), 0);
  texts_.insert(texts_.end(), texts.begin(), texts.end());
}

void ziItemControl::addStrBlock(const zResStrBlock& block) {
  std::vector<std::string> texts;
  while (const char* text = block()) texts.emplace_back(text);
  append(texts);
}

void ziItemControl::addStrSlist(const std::vector<std::string>& texts) {
  append(texts);
}

void ziItemControl::addCharStrings(const char* const* texts) {
  std::vector<std::string> copies;
  while (texts && *texts) copies.emplace_back(*texts++);
  append(copies);
}

int ziItemControl::del(int index) {
  if (!hasItem(index)) return -1;
  XmListDeletePos(list_, index + 1);
  texts_.erase(texts_.begin() + index);
  if (index < index_)
    --index_;
  else if (index == index_) {
    index_ = -1;
    currentRemoved();
  }
  return count();
}

void ziItemControl::clear() {
  if (!list_) return;
  XmListDeleteAllItems(list_);
  texts_.clear();
  index_ = -1;
  currentRemoved();
}

std::string ziItemControl::itemText(int index) const {
  return hasItem(index) ? texts_[static_cast<std::size_t>(index)] : "";
}

int ziItemControl::getItem(std::string& item, int index) const {
  item = itemText(index);
  return hasItem(index) ? 1 : 0;
}

// Selection.

int ziItemControl::selection(const char* text) {
  if (!text || !*text) return selection(-1);
  const int found = findPrefix(text);
  return found < 0 ? -1 : selection(found);
}

int ziItemControl::findPrefix(std::string_view text, int start) const {
  for (int i = 0; i < count(); ++i) {
    const int at = (start + i) % count();
    const std::string& item = texts_[static_cast<std::size_t>(at)];
    if (item.size() >= text.size() && !strncasecmp(item.c_str(), text.data(), text.size())) {
      return at;
    }
  }
  return -1;
}

int ziItemControl::findExact(std::string_view text) const {
  const auto found = std::find(texts_.begin(), texts_.end(), text);
  return found == texts_.end() ? -1 : static_cast<int>(found - texts_.begin());
}

void ziItemControl::showSelected(int index) {
  if (!list_) return;
  XmListDeselectAllItems(list_);
  if (!hasItem(index)) return;
  XmListSelectPos(list_, index + 1, False);
  XmListSetKbdItemPos(list_, index + 1);
}

// Data transfer.

void ziItemControl::setToDefault() {
  if (const auto* index = std::get_if<int*>(&store_); index && *index) selection(**index);
  if (const auto* text = std::get_if<std::string*>(&store_); text && *text) selectStored(**text);
}

void ziItemControl::selectStored(const std::string& text) {
  const int same = findExact(text);
  if (same >= 0) {
    selection(same);
  } else {
    selection(text);
  }
}

int ziItemControl::storeData() {
  if (const auto* index = std::get_if<int*>(&store_); index && *index) **index = selection();
  if (const auto* text = std::get_if<std::string*>(&store_); text && *text) **text = getText();
  return 1;
}

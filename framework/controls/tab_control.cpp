#include "framework/controls/tab_control.h"

#include <X11/keysym.h>

#include <algorithm>
#include <utility>

#include "framework/core/x_text.h"

namespace {

// Pixels.
constexpr int roundedCorner = 2;
constexpr int slant = 6;            // of a trapezoid's sides
constexpr int besideText = 8;       // within a tab
constexpr int lift = 2;             // by which the selected tab is higher
constexpr int frameToInside = 3;    // from the frame's upper edge to the inner area
constexpr int frameToBorder = 3;    // from the frame to the control's other edges
constexpr int focusBesideText = 2;  // from the text to the focus mark

constexpr char ellipsis[] = "...";

// What fits of the text, with an ellipsis where something is cut off.
std::string fitting(const std::string& text, const zFont& font, int room) {
  if (font.textWidth(text) <= room) return text;
  const bool marked = font.textWidth(ellipsis) <= room;
  std::string cut = text;
  do {
    cut.pop_back();
  } while (!cut.empty() && font.textWidth(marked ? cut + ellipsis : cut) > room);
  return marked ? cut + ellipsis : cut;
}

}  // namespace

std::vector<int> ziShareOut(const std::vector<int>& wanted, int room) {
  std::vector<int> ascending = wanted;
  std::sort(ascending.begin(), ascending.end());
  int left = std::max(room, 0);
  auto sharing = static_cast<int>(ascending.size());
  int widest = ascending.empty() ? 0 : ascending.back();
  for (const int width : ascending) {
    if (width > left / sharing) {
      widest = left / sharing;
      break;
    }
    left -= width;
    --sharing;
  }
  std::vector<int> given = wanted;
  for (int& width : given) width = std::min(width, widest);
  return given;
}

// One tab.

zTab::zTab(zTabCtrl* owner, int index, const std::string& text)
    : owner_(owner), index_(index), text_(ziSafeText(ziParseTitle(text))) {}

void zTab::setFocus() {
  owner_->setFocus();
}

// What the tab draws on, selected or not.
zRect zTab::drawnArea() const {
  return {place().left, place().top - lift, place().right, place().bottom + 1};
}

// Up the left side, along the top and down the right side; below the selected tab the frame is
// open.
void zTab::drawEdges(zDisplay& display, const zRect& edge) const {
  const int in = owner_->isTrapezoidal() ? slant : roundedCorner;
  const int last = edge.right - 1;
  const int shoulder = owner_->isTrapezoidal() ? edge.bottom - 1 : edge.top + roundedCorner;
  display.setColor(zWhite);
  display.line({edge.left, edge.bottom - 1}, {edge.left, shoulder});
  display.line({edge.left, shoulder}, {edge.left + in, edge.top});
  display.line({edge.left + in, edge.top}, {last - in, edge.top});
  display.setColor(zShadowGrey);
  display.line({last - in, edge.top}, {last, shoulder});
  display.line({last, shoulder}, {last, edge.bottom - 1});
  if (!selected_) return;
  display.setColor(owner_->backgroundColor());
  display.line({edge.left + 1, edge.bottom}, {last - 1, edge.bottom});
}

void zTab::draw(zDisplay& display) const {
  const int up = selected_ ? lift : 0;
  const zRect edge(place().left, place().top - up, place().right, place().bottom);
  drawEdges(display, edge);
  if (!display.hasFont()) return;
  const zFont& font = display.font();
  const int narrowest = owner_->isTrapezoidal() ? slant : roundedCorner;
  const std::string shown = fitting(text_, font, edge.width() - 2 * (narrowest + 1));
  ziVisText3d caption;
  caption.text(shown);
  caption.disabled(!owner_->isEnabled());
  const zDimension size{font.textWidth(shown), font.height()};
  const zPoint at{edge.left + (edge.width() - size.width) / 2,
                  place().top + (place().height() - size.height) / 2 - up / 2 + 1};
  caption.place({at, size});
  caption.draw(display);
  if (selected_ && owner_->showsFocus()) {
    display.focusRect({at.x - focusBesideText, at.y, at.x + size.width + focusBesideText,
                       std::min(at.y + size.height, edge.bottom)});
  }
}

// The control.

zTabCtrl::zTabCtrl(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id)
    : zPaneControl(parent, sizer, style | zStyleTabStop, title, id) {
  setHandler(this, &zTabCtrl::keyDown, zMsgKeyDown);
}

zTabCtrl::zTabCtrl(zWindow* parent, int id, int* store) : zPaneControl(parent, id), store_(store) {
  setHandler(this, &zTabCtrl::keyDown, zMsgKeyDown);
}

zTab* zTabCtrl::add(int index, const std::string& text) {
  tabs_.push_back(std::make_unique<zTab>(this, index, text));
  arrange();
  setDirty(&tabArea_, 0);
  return tabs_.back().get();
}

void zTabCtrl::remove(zTab* tab) {
  if (tab == selected_) selected_ = nullptr;
  tabs_.remove_if([tab](const auto& one) { return one.get() == tab; });
  arrange();
  setDirty(nullptr, 0);
}

zTab* zTabCtrl::find(int index) const {
  for (const auto& tab : tabs_) {
    if (tab->index() == index) return tab.get();
  }
  return nullptr;
}

// Selection.

void zTabCtrl::onPageChange(int, int) {}

int zTabCtrl::onAllowPageChange(int, int) {
  return 1;
}

void zTabCtrl::select(zTab* tab) {
  if (!tab) return;
  const int newIndex = tab->index();
  const int oldIndex = selectedIndex();
  zWindowWatch watch(this);
  if (!onAllowPageChange(newIndex, oldIndex) || watch.gone() || tab == selected_) return;
  zTab* before = std::exchange(selected_, tab);
  for (zTab* changed : {before, tab}) {
    if (!changed) continue;
    changed->selected_ = changed == tab;
    redraw(changed);
  }
  onPageChange(newIndex, oldIndex);
  if (!watch.gone()) notifyParent(zNtfSelChange);
}

zTab* zTabCtrl::neighbour(int step) const {
  const auto here = std::find_if(tabs_.begin(), tabs_.end(),
                                 [this](const auto& tab) { return tab.get() == selected_; });
  if (here == tabs_.end()) return tabs_.front().get();
  if (step < 0) return here == tabs_.begin() ? nullptr : std::prev(here)->get();
  const auto next = std::next(here);
  return next == tabs_.end() ? nullptr : next->get();
}

int zTabCtrl::doKeyboard(KeySym key) {
  if (tabs_.empty()) return 0;
  switch (key) {
    case XK_Left:
    case XK_KP_Left:
    case XK_Up:
    case XK_KP_Up:
      select(neighbour(-1));
      return 1;
    case XK_Right:
    case XK_KP_Right:
    case XK_Down:
    case XK_KP_Down:
      select(neighbour(1));
      return 1;
    case XK_Home:
    case XK_KP_Home:
      select(tabs_.front().get());
      return 1;
    case XK_End:
    case XK_KP_End:
      select(tabs_.back().get());
      return 1;
    default:
      return 0;
  }
}

int zTabCtrl::keyDown(zKeyEvt* event) {
  return event->alt() || event->ctrl() ? 0 : doKeyboard(event->code());
}

int zTabCtrl::mouseButtonDown(zMouseClickEvt* event) {
  if (!event->isButton(1)) return 0;
  for (const auto& tab : tabs_) {
    if (!tab->place().contains(event->pos())) continue;
    tab->setFocus();
    select(tab.get());
    return 1;
  }
  return 0;
}

int zTabCtrl::focus(zFocusEvt* event) {
  hasFocus_ = event->gainFocus();
  if (selected_) redraw(selected_);
  return 0;
}

// The bound variable.

void zTabCtrl::setToDefault() {
  if (store_) select(*store_);
}

int zTabCtrl::storeData() {
  if (store_) *store_ = selectedIndex();
  return 1;
}

// Place and look.

void zTabCtrl::margins(const Margins& margins) {
  margins_ = margins;
  arrange();
  setDirty(nullptr, 0);
}

zRect zTabCtrl::innerArea() const {
  const zDimension& all = sizer()->dimension();
  const zPoint at{margins_.left, margins_.top};
  return {at,
          {std::max(all.width - margins_.left - margins_.right, 0),
           std::max(all.height - margins_.top - margins_.bottom, 0)}};
}

zRect zTabCtrl::body() const {
  const zDimension& all = sizer()->dimension();
  return {frameToBorder, std::min(margins_.top - frameToInside, all.height - 1),
          all.width - frameToBorder, all.height - frameToBorder};
}

void zTabCtrl::arrange() {
  const zRect frame = body();
  tabArea_ = {frame.left, 0, frame.right, frame.top + 1};
  const int side = (isTrapezoidal() ? slant : 0) + besideText;
  std::vector<int> wanted;
  for (const auto& tab : tabs_) {
    wanted.push_back((getFont() ? getFont()->textWidth(tab->text()) : 0) + 2 * side);
  }
  const std::vector<int> given = ziShareOut(wanted, tabArea_.width());
  int x = tabArea_.left;
  auto width = given.begin();
  for (const auto& tab : tabs_) {
    tab->place({x, tabArea_.top + 1 + lift, x + *width, frame.top});
    x += *width++;
  }
}

void zTabCtrl::redraw(const zTab* tab) {
  const zRect area = tab->drawnArea();
  setDirty(&area, 0);
}

void zTabCtrl::draw(zDrawEvt* event) {
  zPaneControl::draw(event);
  zDisplay& display = *event->display;
  if (const zRect frame = body(); !frame.isEmpty()) display.edge3d(frame, true);
  for (const auto& tab : tabs_) {
    if (!tab->drawnArea().intersection(event->area).isEmpty()) tab->draw(display);
  }
}

void zTabCtrl::vmove(int x, int y, int width, int height) {
  zPaneControl::vmove(x, y, width, height);
  arrange();
}

void zTabCtrl::setFont(std::shared_ptr<zFont> font, int redraw) {
  zPaneControl::setFont(std::move(font), redraw);
  arrange();
  setDirty(nullptr, 0);
}

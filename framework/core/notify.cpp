#include "framework/core/notify.h"

#include <algorithm>
#include <vector>

#include "framework/core/app.h"
#include "framework/core/window.h"

namespace {

// Most of them stand on the stack, so the one that goes is nearly always the last.
std::vector<zWindowWatch*> watches;

}  // namespace

zWindowWatch::zWindowWatch(zWindow* window) : window_(window) {
  watches.push_back(this);
}

zWindowWatch::~zWindowWatch() {
  watches.erase(std::prev(std::find(watches.rbegin(), watches.rend(), this).base()));
}

void zWindowWatch::windowDeleted(const zWindow* window) {
  for (zWindowWatch* w : watches) {
    if (w->window_ == window) w->window_ = nullptr;
  }
}

bool zNotifyNode::check(const zEvent* event) const {
  const auto id = static_cast<unsigned long>(event->parm1);
  return event->message == message_ && lowest_ <= id && id <= highest_;
}

bool zCtrlNotifyNode::check(const zEvent* event) const {
  return zNotifyNode::check(event) && event->codeWord == code_;
}

int zNotifyNodeDlist::offer(zEvent* event, const zWindowWatch& target) {
  ++walks_;
  int result = 0;
  for (auto it = nodes_.begin(); it != nodes_.end() && !result; ++it) {
    if (!*it || !(*it)->check(event)) continue;
    const zEventHandler handler = (*it)->handler();  // the node may be removed by the call
    if (handler(event) || target.gone()) result = 1;
  }
  if (--walks_ == 0) nodes_.remove(nullptr);
  return result;
}

namespace {

// The list is held for the length of the walk, since its window may be deleted by a handler.
int offerTo(std::shared_ptr<zNotifyNodeDlist> list, zEvent* event, const zWindowWatch& target) {
  return list ? list->offer(event, target) : 0;
}

}  // namespace

int doHandler(zEvent* event, zWindow* window) {
  if (!window) return 0;
  zWindowWatch target(window);
  if (offerTo(window->notifyList(), event, target)) return 1;
  return offerTo(app->notifyDlist(), event, target);
}

int doCommandHandler(zEvent* event, zWindow* window) {
  if (!window) return 0;
  zWindowWatch target(window);
  if (offerTo(window->controlNotifyList(), event, target)) return 1;
  if (doHandler(event, window)) return 1;
  if (target.gone()) return 1;
  return event->message == zMsgCommand ? window->command(static_cast<zCommandEvt*>(event)) : 0;
}

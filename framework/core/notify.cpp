#include "framework/core/notify.h"

#include "framework/core/app.h"
#include "framework/core/window.h"

zWindowWatch* zWindowWatch::first_ = nullptr;

zWindowWatch::zWindowWatch(zWindow* window) : window_(window), next_(first_) {
  first_ = this;
}

zWindowWatch::~zWindowWatch() {
  first_ = next_;
}

void zWindowWatch::windowDeleted(const zWindow* window) {
  for (zWindowWatch* w = first_; w; w = w->next_) {
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

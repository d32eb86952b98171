// Handler lists and the two walks over them.
#pragma once

#include <list>
#include <memory>

#include "framework/core/event.h"

// Knows, for as long as it lives itself, whether a window still exists. Code that calls handlers
// asks it afterwards, since a handler may delete the very window it was called for.
class zWindowWatch {
 public:
  explicit zWindowWatch(zWindow* window);
  ~zWindowWatch();
  zWindowWatch(const zWindowWatch&) = delete;
  zWindowWatch& operator=(const zWindowWatch&) = delete;

  bool gone() const { return window_ == nullptr; }

  // Called by a window's destructor.
  static void windowDeleted(const zWindow* window);

 private:
  zWindow* window_;
};

// One handler in a window's or the application's list: for a message, and for parm1 within a range
// of ids.
class zNotifyNode {
 public:
  static constexpr unsigned long anyId = ~0UL;

  zNotifyNode(unsigned message, unsigned long lowest, unsigned long highest, zEventHandler handler)
      : lowest_(lowest), highest_(highest), message_(message), handler_(handler) {}
  virtual ~zNotifyNode() = default;

  // Whether the event is one for this node.
  virtual bool check(const zEvent* event) const;

  // Whether the node holds this handler, for this message.
  bool checkIdent(unsigned message, const zEventHandler& handler) const {
    return message_ == message && handler_ == handler;
  }

  const zEventHandler& handler() const { return handler_; }

 private:
  unsigned long lowest_;
  unsigned long highest_;
  unsigned message_;
  zEventHandler handler_;
};

// A handler of one notification of one control, kept by the control's parent.
class zCtrlNotifyNode : public zNotifyNode {
 public:
  zCtrlNotifyNode(int id, unsigned code, zEventHandler handler)
      : zNotifyNode(zMsgCommand, static_cast<unsigned long>(id), static_cast<unsigned long>(id),
                    handler),
        id_(id),
        code_(code) {}

  bool check(const zEvent* event) const override;
  bool checkCtrl(int id, unsigned code, const zEventHandler& handler) const {
    return id_ == id && code_ == code && checkIdent(zMsgCommand, handler);
  }

 private:
  int id_;
  unsigned code_;
};

// Nodes in order of registration. A handler may remove any node, itself included, while the list is
// being walked.
class zNotifyNodeDlist {
 public:
  void append(std::unique_ptr<zNotifyNode> node) { nodes_.push_back(std::move(node)); }

  // Removes the first node for which `match` answers true; tells whether there was one.
  template <class Match>
  bool removeFirst(Match match) {
    for (auto it = nodes_.begin(); it != nodes_.end(); ++it) {
      if (!*it || !match(**it)) continue;
      if (walks_ > 0) {
        it->reset();  // the walk sweeps it up
      } else {
        nodes_.erase(it);
      }
      return true;
    }
    return false;
  }

  // Removes every node whose handler is on `target`.
  void removeTarget(const zEvH* target) {
    while (removeFirst([target](const zNotifyNode& n) { return n.handler().object() == target; })) {
    }
  }

  // Offers the event to each matching node in turn. Returns 1 as soon as a handler returns non-zero
  // or the watched window has been deleted by one, else 0.
  int offer(zEvent* event, const zWindowWatch& target);

 private:
  std::list<std::unique_ptr<zNotifyNode>> nodes_;
  int walks_ = 0;
};

// Offers the event to the window's control list, its list, the application's list, and, for a
// command, to its virtual `command`. The first non-zero result ends it and is 1.
int doCommandHandler(zEvent* event, zWindow* window);

// The same without the control list and without `command`.
int doHandler(zEvent* event, zWindow* window);

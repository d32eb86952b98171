#include "framework/dialogs/dialog_frame.h"

#include <X11/keysym.h>
#include <Xm/BulletinB.h>
#include <Xm/DialogS.h>
#include <Xm/MainW.h>
#include <Xm/MwmUtil.h>
#include <Xm/Protocols.h>

#include <algorithm>
#include <vector>

#include "framework/controls/combo_box.h"
#include "framework/controls/group_box.h"
#include "framework/core/app.h"
#include "framework/core/event_loop.h"
#include "framework/core/event_translation.h"
#include "framework/dialogs/dialog_reader.h"
#include "framework/dialogs/message.h"

namespace {

constexpr zDimension sizeWithoutTemplate{100, 100};

// The dialogs whose modal loops are running, the innermost last.
std::vector<const zDialogFrame*> runningModals;

Atom deleteWindowAtom() {
  return XmInternAtom(app->display(), const_cast<char*>("WM_DELETE_WINDOW"), False);
}

}  // namespace

Widget getTopShell(Widget widget) {
  while (widget && !XtIsShell(widget)) widget = XtParent(widget);
  return widget;
}

zDialogFrame::zDialogFrame(zWindow* parent, const zResId& id, unsigned long style, int noCreate)
    : zFrameWin(parent, nullptr, style, nullptr),
      reader_(std::make_unique<ziDialogReader>(this, id)),
      defaultId_(ziDialogReader::noDefault) {
  ziSetType(zTypeDialogFrame);
  setCtrlId(id.intId());
  if (reader_->isValid()) {
    styleClear(~0UL);
    styleSet(reader_->getStyle());
    setTitle(reader_->getCaption());
  }
  if (noCreate) {
    reader_->decodeFonts();
    zWindow::setFont(reader_->getFont(), 0);
    reader_->setSize(sizer());
    return;
  }
  if (isRoot()) createShell();
  reader_->decodeFonts();
  zWindow::setFont(reader_->getFont(), 0);
  reader_->setSize(sizer());
  zDialogFrame::create();
}

zDialogFrame::zDialogFrame(zWindow* parent, zSizer* sizer, unsigned long style, const char* title,
                           int noCreate)
    : zFrameWin(parent, sizer, style, title), defaultId_(ziDialogReader::noDefault) {
  ziSetType(zTypeDialogFrame);
  if (!noCreate) zDialogFrame::create();
}

zDialogFrame::~zDialogFrame() {
  cancelPendingShow();
  if (ziActiveDialog == workArea_) ziActiveDialog = nullptr;
  if (isDestroyed()) return;  // the shell went with that of the dialog this one stood over
  // The shell takes all widgets below it along, so the children must not touch theirs.
  zComboBoxBase::ziResetPopup();
  zAppDoSetAllDestroyed(this);
  zMessage::closeOver(this);
  if (!isRoot() && shell()) ziDestroyWidget(shell(), madeAt());
}

void zDialogFrame::unlisten() {
  zFrameWin::unlisten();
  if (shell()) XmRemoveWMProtocolCallback(shell(), deleteWindowAtom(), closeCB, link());
}

void zDialogFrame::init() {}

// Making the widgets.

void zDialogFrame::createShell() {
  if (isRoot()) {
    zFrameWin::create();
    return;
  }
  const MwmHints hints = mwmHints();
  const Widget over = parent() ? getTopShell(parent()->getWidget()) : nullptr;
  setShell(XtVaCreatePopupShell(title().c_str(), xmDialogShellWidgetClass,
                                over ? over : app->toplevel(), XmNdeleteResponse, XmDO_NOTHING,
                                XmNtitle, title().c_str(), XmNmwmDecorations, hints.decorations,
                                XmNmwmFunctions, hints.functions, nullptr));
}

int zDialogFrame::create() {
  if (!sizer()->hasSize()) sizer()->dimension(sizeWithoutTemplate);
  if (!shell()) createShell();
  createBoards(shell());
  applyIcon();
  XmAddWMProtocolCallback(shell(), deleteWindowAtom(), closeCB, link());
  createFromTemplate();
  init();
  zRect outside;
  getExterior(outside);
  sizer()->dimension(outside.dimension());
  return 1;
}

void zDialogFrame::createBoards(Widget shell) {
  const auto width = static_cast<Dimension>(std::max(sizer()->width(), 1));
  const auto height = static_cast<Dimension>(std::max(sizer()->height(), 1));
  const unsigned long grey = ziClrm->pixel(backgroundColor());
  const Widget outerParent =
      isRoot() ? XtVaCreateManagedWidget("MainWindow", xmMainWindowWidgetClass, shell,
                                         XmNshadowThickness, 0, XmNwidth, width, XmNheight, height,
                                         XmNbackground, grey, nullptr)
               : shell;
  const auto board = [&](Widget in) {
    return XtVaCreateWidget(title().c_str(), xmBulletinBoardWidgetClass, in, XmNwidth, width,
                            XmNheight, height, XmNmarginWidth, 0, XmNmarginHeight, 0,
                            XmNresizePolicy, XmRESIZE_NONE, XmNautoUnmanage, False,
                            XmNshadowThickness, 0, XmNnoResize, False, XmNbackground, grey,
                            XmNdefaultPosition, False, nullptr);
  };
  outerBoard_ = board(outerParent);
  workArea_ = board(outerBoard_);
  XtVaSetValues(shell, XmNx, sizer()->pos().x, XmNy, sizer()->pos().y, XmNwidth, width, XmNheight,
                height, nullptr);
  XtManageChild(workArea_);
  if (isRoot()) XtManageChild(outerBoard_);
  setWidgets(workArea_, nullptr);
  link()->control = workArea_;
  listen(workArea_, ziWorkAreaEventMask, ziWinProc);
  listen(shell, ziShellFocusMask, ziWinProc);
  listen(shell, ziShellEventMask, ConfigTopProc);
}

void zDialogFrame::createFromTemplate() {
  if (!reader_) return;
  reader_->createChildren();
  defaultId_ = reader_->getDefault();
}

void zDialogFrame::addGroup(zGroupBox* box) {
  Group group{box->sizer()->pos(), box->sizer()->dimension(), box};
  if (box->getGroupLabel() && __zAppXfs) {
    group.at.y += __zAppXfs->ascent + 2 * __zAppXfs->descent;
  }
  groups_.push_back(group);
}

void zDialogFrame::groupTakenOver(const zWindow* before, zGroupBox* now) {
  for (Group& group : groups_) {
    if (group.box == before) group.box = now;
  }
}

// Place and look.

void zDialogFrame::ziBackgroundColor(const zColor& color) {
  zFrameWin::ziBackgroundColor(color);
  if (outerBoard_) XmChangeColor(outerBoard_, ziClrm->pixel(color));
  for (zWindow* kid : kidslist()) kid->ziBackgroundColor(color);
}

void zDialogFrame::getInterior(zRect& rect) const {
  rect = {zPoint{}, sizer()->dimension()};
}

void zDialogFrame::vmove(int x, int y, int width, int height) {
  zFrameWin::vmove(x, y, width, height);
  sizeBoards(width, height);
}

void zDialogFrame::sizeBoards(int width, int height) {
  if (!workArea_) return;
  for (const Widget board : {outerBoard_, workArea_}) {
    XtVaSetValues(board, XmNwidth, width, XmNheight, height, nullptr);
  }
}

// The shell was moved or, by the user, given another size, which its contents take over.
int zDialogFrame::move(zMoveEvt* event) {
  const XConfigureEvent& now = event->xEvent->xconfigure;
  if (now.window == XtWindow(shell())) sizeBoards(now.width, now.height);
  return 0;
}

void zDialogFrame::setMinimumSize(const zDimension& size) {
  if (shell()) XtVaSetValues(shell(), XmNminWidth, size.width, XmNminHeight, size.height, nullptr);
}

// Showing.

int zDialogFrame::show(int visible) {
  if (isShown()) return showSet(visible);
  init();
  if (visible) {
    cancelPendingShow();
    pendingShow_ = XtAppAddTimeOut(app->context(), showDelayMs, ziShowTimeout, link());
    return 1;
  }
  showTimeout();
  return showSet(0);
}

void zDialogFrame::ziShowTimeout(XtPointer link, XtIntervalId*) {
  auto* dialog = static_cast<zDialogFrame*>(static_cast<ziControlCB*>(link)->window);
  dialog->pendingShow_ = 0;
  dialog->showTimeout();
}

void zDialogFrame::showIfPending() {
  if (pendingShow_) showTimeout();
}

void zDialogFrame::cancelPendingShow() {
  if (pendingShow_) XtRemoveTimeOut(pendingShow_);
  pendingShow_ = 0;
}

void zDialogFrame::showTimeout() {
  cancelPendingShow();
  if (isShown() || !shell()) return;
  zWindow::show(1);
  ziActiveDialog = workArea_;
  bringUp();
  XWindowAttributes now;
  if (XtIsRealized(shell()) && XGetWindowAttributes(app->display(), XtWindow(shell()), &now)) {
    sizer()->dimension({now.width, now.height});
    ziSendSize(this, {now.width, now.height});
  }
  focusFirst();
}

void zDialogFrame::bringUp() {
  if (isRoot()) {
    defineCursor();
    XtSetMappedWhenManaged(shell(), False);
    XtRealizeWidget(shell());
    XtSetMappedWhenManaged(shell(), True);
    XtMapWidget(shell());
    return;
  }
  XtManageChild(outerBoard_);
  XtSetMappedWhenManaged(shell(), True);
  XtPopup(shell(), XtGrabNone);
}

void zDialogFrame::modal(int style) {
  if (!shell()) return;
  setFocus();
  ++ziModalSem;
  XtVaSetValues(
      shell(), XmNmwmInputMode,
      style == zModalSystem ? MWM_INPUT_SYSTEM_MODAL : MWM_INPUT_PRIMARY_APPLICATION_MODAL,
      nullptr);
  showTimeout();
  runningModals.push_back(this);
  zWindowWatch watch(this);
  ziRunLoop([&] { return !watch.gone() && !finished_ && zAppKeepRunning; });
  runningModals.pop_back();
  --ziModalSem;
}

int zDialogFrame::keyLeft(zKeyEvt* key) {
  const bool plain = !key->shift() && !key->ctrl() && !key->alt();
  return plain && key->code() == XK_Escape && pressButton(cancelId);
}

int zDialogFrame::pressButton(int id) {
  zWindow* button = get(id);
  if (!button || !button->isEnabled() || !button->isShown()) return 0;
  zEvent click(zMsgCommand);
  click.codeWord = zNtfClicked;
  click.parm1 = id;
  click.window = button;
  doCommandHandler(&click, this);
  return 1;
}

void zDialogFrame::go() {
  app->go();
}

// Ending.

void zDialogFrame::shutdown() {
  zEvent close(zMsgClose);
  zWindowWatch watch(this);
  if (doCommandHandler(&close, this) || watch.gone() || kill(&close)) return;
  const bool root = isRoot();
  zComboBoxBase::ziResetPopup();
  finished_ = true;
  zMessage::closeOver(this);
  cancelPendingShow();
  if (root) {
    if (XtIsRealized(shell())) XtUnmapWidget(shell());
  } else if (shell()) {
    XtPopdown(shell());
  }
  setShown(false);
  if (deleteOnClose()) delete this;
  if (root) zAppKeepRunning = 0;
}

void zDialogFrame::closeCB(Widget, XtPointer link, XtPointer) {
  static_cast<zDialogFrame*>(static_cast<ziControlCB*>(link)->window)->doClose();
}

// A dialog behind a modal one stays: whoever runs that would come back to a dialog that is gone.
bool zDialogFrame::isBehindModal() const {
  return std::any_of(runningModals.begin(), runningModals.end(),
                     [this](const zDialogFrame* modal) { return isAncestorOf(modal); });
}

void zDialogFrame::doClose() {
  if (parent() && isBehindModal()) {
    app->beep(0);
    return;
  }
  if (parent()) {
    shutdown();
    return;
  }
  zEvent close(zMsgClose);
  zWindowWatch watch(this);
  if (doCommandHandler(&close, this) || watch.gone() || kill(&close)) return;
  zAppKeepRunning = 0;
  if (deleteOnClose()) delete this;
}

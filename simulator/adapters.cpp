#include "simulator/adapters.h"

namespace lisim {

namespace {

enum LinkState : std::uint16_t { linkActive = 0, linkInactive = 1, linkDown = 2 };

rls_status statusOf(LinkState state, int activeLink) {
  return {state, static_cast<std::int16_t>(activeLink)};
}

}  // namespace

Adapters::Adapters() {
  // The last byte is left free: an adapter's clients count their addresses up from the board's.
  for (int index = 0; index < boardSlots; ++index) {
    board(index).mac = {0x02, 0x4C, 0x49, 0x00, static_cast<std::uint8_t>(index + 1), 0x00};
    board(index).carrier = index;
  }
}

void Adapters::populate(int count) {
  for (int index = 0; index < boardSlots; ++index)
    board(index).presence = index < count ? Presence::present : Presence::absent;
  number = static_cast<std::uint16_t>(count);
}

std::uint16_t Adapters::mask() const {
  unsigned bits = 0;
  for (int index = 0; index < boardSlots; ++index)
    if (board(index).presence != Presence::absent) bits |= 1U << index;
  return static_cast<std::uint16_t>(bits);
}

// The primary whose link `backup` carries, or noBoard.
int Adapters::servedBy(int backup) const {
  for (int index = 0; index < boardSlots; ++index)
    if (index != backup && board(index).carrier == backup) return index;
  return noBoard;
}

rls_status Adapters::status(int index) const {
  const Board& one = board(index);
  if (one.forcedStatus) return *one.forcedStatus;
  if (one.role == Role::backup) {
    const int served = servedBy(index);
    if (!one.well()) return statusOf(linkDown, served);
    return served == noBoard ? statusOf(linkInactive, noBoard) : statusOf(linkActive, served);
  }
  if (!one.well()) return statusOf(linkDown, one.backup);
  return statusOf(one.carrier == index ? linkActive : linkInactive, one.carrier);
}

// One step of one pair; true when its link moved.
bool Adapters::settlePrimary(int index, Milliseconds at) {
  Board& primary = board(index);
  if (primary.backup == noBoard) return false;
  const Board& backup = board(primary.backup);
  const int before = primary.carrier;
  if (primary.carrier == index) {
    primary.returnDue.reset();
    if (!primary.well() && backup.well() && servedBy(primary.backup) == noBoard)
      primary.carrier = primary.backup;
  } else if (!primary.well() || !primary.autoSwitch) {
    primary.returnDue.reset();
  } else if (!backup.well()) {
    primary.carrier = index;
  } else if (!primary.returnDue) {
    primary.returnDue = at + returnDelay;
  }
  return primary.carrier != before;
}

// A link that comes home frees its backup for another primary, so the rounds go on until nothing
// moves; a link moves at most out and home again.
void Adapters::settle(Milliseconds at) {
  for (int round = 0; round < 2 * boardSlots; ++round) {
    bool moved = false;
    for (int index = 0; index < boardSlots; ++index) moved |= settlePrimary(index, at);
    if (!moved) break;
  }
  noteLinks(at);
  startTraffic(at);
}

bool Adapters::carriesLink(int index) const {
  const Board& one = board(index);
  return one.role == Role::primary ? one.carrier == index : servedBy(index) != noBoard;
}

// What runs on a primary's link goes on while the backup carries it.
void Adapters::noteLinks(Milliseconds at) {
  for (Board& one : boards_) {
    const bool well = one.role == Role::primary ? board(one.carrier).well() : one.well();
    if (well == one.linkWell) continue;
    one.linkWell = well;
    one.linkSince = at;
  }
}

// Only a board that carries a link has traffic, whatever state it is told to report.
void Adapters::startTraffic(Milliseconds at) {
  for (int index = 0; index < boardSlots; ++index) {
    Board& one = board(index);
    const ServiceView services = serviceView(one, at, joinStep);
    one.traffic.set(one.well() && carriesLink(index), at);
    one.circuitTraffic.set(one.linkWell && (one.role == Role::primary || carriesLink(index)), at);
    one.lecsRequests.set(services.configServerServes(), at);
    one.ipTraffic.set(services.ipCarries(), at);
  }
}

Board* Adapters::firstReturn(Milliseconds until) {
  Board* first = nullptr;
  for (Board& one : boards_)
    if (one.returnDue && *one.returnDue <= until &&
        (first == nullptr || *one.returnDue < *first->returnDue))
      first = &one;
  return first;
}

void Adapters::advance(Milliseconds now) {
  while (Board* returning = firstReturn(now)) {
    const Milliseconds due = *returning->returnDue;
    returning->returnDue.reset();
    returning->carrier = static_cast<int>(returning - boards_.data());
    settle(due);
  }
  settle(now);
}

Answer Adapters::switchLink(int index) {
  const int primaryIndex = board(index).role == Role::primary ? index : servedBy(index);
  if (primaryIndex == noBoard) return Answer::nothingToSwitch;
  Board& primary = board(primaryIndex);
  if (primary.backup == noBoard) return Answer::nothingToSwitch;
  const int target = primary.carrier == primaryIndex ? primary.backup : primaryIndex;
  if (!board(target).well()) return Answer::switchTargetDown;
  if (target != primaryIndex && servedBy(target) != noBoard) return Answer::switchTargetBusy;
  primary.carrier = target;
  return Answer::done;
}

// Takes a primary out of its pair: it carries its own link again. Of no effect on a backup.
void Adapters::leavePair(int index) {
  Board& one = board(index);
  one.backup = noBoard;
  one.carrier = index;
  one.returnDue.reset();
}

Answer Adapters::configure(int index, const PairSetting& setting) {
  const int backup = setting.role == Role::primary ? setting.backup : noBoard;
  if (backup == index || backup < noBoard || backup >= boardSlots) return Answer::badValue;
  Board& one = board(index);
  if (setting.role != one.role || backup != one.backup) leavePair(index);
  if (setting.role == Role::primary)
    for (int other = 0; other < boardSlots; ++other)
      if (board(other).backup == index) leavePair(other);
  one.role = setting.role;
  one.backup = backup;
  one.autoSwitch = setting.autoSwitch && setting.role == Role::primary;
  if (backup == noBoard || board(backup).role == Role::backup) return Answer::done;
  leavePair(backup);
  board(backup).role = Role::backup;
  board(backup).autoSwitch = false;
  return Answer::done;
}

}  // namespace lisim

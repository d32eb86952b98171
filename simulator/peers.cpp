#include "simulator/peers.h"

#include <algorithm>
#include <unordered_set>

namespace lisim {

namespace {

constexpr std::size_t firstSwitchedVci = 512;
constexpr std::size_t vcis = 65536;

// The VCIs that nothing on a board uses, smallest first.
class FreeVcis {
 public:
  explicit FreeVcis(const Board& board) {
    for (std::size_t row = 0; row < board.vcRows; ++row) take(ownVci(row));
    const Services& services = board.services;
    for (const LanClient& client : services.clients) {
      takeAll(client.peers);
      for (const auto& pvc : client.pvcs) take(pvc.vcIndex);
    }
    for (const LanServer& server : services.servers) takeAll(server.peers);
    takeAll(services.ip.peers);
    for (const auto& pvc : services.ip.pvcs) take(pvc.vcIndex);
  }

  // 0 when there is none left.
  std::uint16_t next() {
    while (next_ < vcis && taken_[next_]) ++next_;
    return next_ < vcis ? static_cast<std::uint16_t>(next_++) : std::uint16_t{0};
  }

 private:
  void take(std::uint16_t vci) { taken_[vci] = true; }
  void takeAll(const std::vector<Peer>& peers) {
    for (const Peer& peer : peers)
      for (const std::uint16_t vci : peer.vcis) take(vci);
  }

  std::vector<bool> taken_ = std::vector<bool>(vcis);
  std::size_t next_ = firstSwitchedVci;
};

bool connect(FreeVcis& free, std::vector<Peer>& peers, std::uint64_t name, int circuits) {
  Peer peer{name, {free.next(), circuits > 1 ? free.next() : std::uint16_t{0}}};
  if (peer.vcis[0] == 0 || (circuits > 1 && peer.vcis[1] == 0)) return false;
  peers.push_back(peer);
  return true;
}

}  // namespace

bool connectPeer(Board& board, std::vector<Peer>& peers, std::uint64_t name, int circuits) {
  if (std::ranges::find(peers, name, &Peer::name) != peers.end()) return true;
  FreeVcis free(board);
  return connect(free, peers, name, circuits);
}

bool disconnectPeer(std::vector<Peer>& peers, std::uint64_t name) {
  return std::erase_if(peers, [name](const Peer& peer) { return peer.name == name; }) > 0;
}

bool setPeers(Board& board, std::vector<Peer>& peers, std::size_t count, std::uint64_t firstName,
              int circuits) {
  const std::size_t before = peers.size();
  if (count < before) peers.resize(count);
  FreeVcis free(board);
  std::unordered_set<std::uint64_t> known;
  for (const Peer& peer : peers) known.insert(peer.name);
  for (std::uint64_t name = firstName; peers.size() < count; ++name) {
    if (known.count(name) == 0 && !connect(free, peers, name, circuits)) {
      peers.resize(before);
      return false;
    }
  }
  return true;
}

}  // namespace lisim

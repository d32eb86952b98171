// Brings accepted Setup edits into the adapter's records and the running driver, one service after
// the other: the record takes its transfer buffer, and if what the driver is told of the service
// differs from the buffer's previous copy, the service is set up anew by one request object.
//
// A request that fails is logged and stops nothing: the next one goes out, and the record keeps the
// new values. Adapters are 0 to 7.
#pragma once

// The driver session of one application of changes, for reading and writing.
class ChangeSession {
 public:
  ChangeSession();
  ~ChangeSession();
  ChangeSession(const ChangeSession&) = delete;
  ChangeSession& operator=(const ChangeSession&) = delete;

  bool opened() const { return opened_; }
  int descriptor() const { return descriptor_; }  // -1 when it did not open

 private:
  int descriptor_ = -1;
  bool opened_;
};

// The LAN Emulation clients; without this session they are stored and not sent.
void applyClients(short adapter, const ChangeSession& session);

// The other services; without the long-lived session they are stored and not sent, without this one
// alone their requests fail.
void applyServers(short adapter, const ChangeSession& session);
void applyConfigServer(short adapter, const ChangeSession& session);
void applyIp1577(short adapter, const ChangeSession& session);
// False when signalling has changed and there is no driver to tell.
[[nodiscard]] bool applySignalling(short adapter, const ChangeSession& session);
// True when anything has changed. A change of the board's type or backup is stored and not sent.
[[nodiscard]] bool applyPhysical(short adapter, const ChangeSession& session);

#include "driver/lecs_request.h"

int lecsRequest::enable(const lecs_req& record) {
  disable();
  if (start(Control::LecsEnable, record) != 0) return -1;
  return go() != 0 ? -1 : 0;
}

int lecsRequest::enable(const lecs_req& record, unsigned char link, unsigned char unit) {
  setTarget(link, unit);
  return enable(record);
}

int lecsRequest::disable(unsigned char link, unsigned char unit) {
  setTarget(link, unit);
  return disable();
}

int lecsRequest::go(unsigned char link, unsigned char unit) {
  setTarget(link, unit);
  return go();
}

int lecsRequest::addClient(const lecs_req& client, unsigned char link, unsigned char unit) {
  setTarget(link, unit);
  return addClient(client);
}

int lecsRequest::delClient(const lecs_req& client, unsigned char link, unsigned char unit) {
  setTarget(link, unit);
  return delClient(client);
}

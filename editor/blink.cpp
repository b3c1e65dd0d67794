#include "editor/blink.h"

caret_blink::caret_blink(HostTickSource& ticks, std::function<void()> on_blink)
    : m_on_blink(std::move(on_blink)), m_timer(ticks), m_client(&caret_blink::on_timer, this) {
  m_timer.addClient(m_client);
}

caret_blink::~caret_blink() {
  m_timer.stop();
  m_timer.removeClient(m_client);
}

void caret_blink::start() { m_timer.start(kReload); }

void caret_blink::on_timer(void* blink, HostTimer& timer) {
  auto& self = *static_cast<caret_blink*>(blink);
  timer.reload();
  if (!self.m_toggled) self.m_visible = !self.m_visible;
  self.m_toggled = true;
  self.m_on_blink();
}

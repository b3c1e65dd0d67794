#pragma once

/// Keys that are held down now.
class IKeyState {
 public:
  virtual ~IKeyState() = default;
  virtual bool shift() const = 0;
  virtual bool ctrl() const = 0;
  virtual bool alt() const = 0;
  /// The Caps Lock key is on.
  virtual bool capsLock() const = 0;
};

/// Keys that a test or a script holds down.
class HostHeldKeys : public IKeyState {
 public:
  struct Keys {
    bool shift = false;
    bool ctrl = false;
    bool alt = false;
    bool caps_lock = false;
  };

  void hold(const Keys& keys) { m_keys = keys; }
  bool shift() const override { return m_keys.shift; }
  bool ctrl() const override { return m_keys.ctrl; }
  bool alt() const override { return m_keys.alt; }
  bool capsLock() const override { return m_keys.caps_lock; }

 private:
  Keys m_keys;
};

#pragma once

class HostCommandInput;
class HostMessages;
class HostView;
class OdDbDatabase;

/// What an editing session is given: the drawing, its messages, its view and the place to type for it.
class EditHost {
 public:
  virtual ~EditHost() = default;

  virtual OdDbDatabase& database() = 0;
  virtual HostMessages& messages() = 0;
  virtual HostView& view() = 0;
  virtual HostCommandInput& commandInput() = 0;
};

#pragma once

#include <map>

class HostDocument;

/// Is told before a document goes. It hears of all documents for as long as it lives.
class HostApDocManagerReactor {
 public:
  HostApDocManagerReactor();
  virtual ~HostApDocManagerReactor();
  HostApDocManagerReactor(const HostApDocManagerReactor&) = delete;
  HostApDocManagerReactor& operator=(const HostApDocManagerReactor&) = delete;

  /// The document is of use as an address only.
  virtual void documentToBeDestroyed(const HostDocument& document) = 0;
};

/// What a module remembers of each document, as long as the document is there.
template <class Data>
class HostApDataManager : public HostApDocManagerReactor {
 public:
  /// The record of a document; one that is missing is made.
  Data& operator[](const HostDocument& document) { return m_records[&document]; }
  void documentToBeDestroyed(const HostDocument& document) override { m_records.erase(&document); }
  std::size_t size() const { return m_records.size(); }

 private:
  std::map<const HostDocument*, Data> m_records;
};

namespace host {

/// Tells all reactors. Called by the document's own destructor.
void tell_document_goes(const HostDocument& document);

}  // namespace host

#include "host/command_factory.h"

#include <map>

#include "od/base/unicode.h"

namespace {

class CommandFactory : public CKrUnknownImpl<ICmdFactory> {
 public:
  void registerCommand(std::u16string_view name, CommandCreator creator) override {
    registerCommand(name, std::move(creator), u"", kCommandPlain);
  }

  void registerCommand(std::u16string_view name, CommandCreator creator, std::u16string_view group,
                       unsigned flags) override {
    m_records[odLowerAscii(name)] = {std::u16string(name), std::move(creator), std::u16string(group), flags};
  }

  const CommandRecord* find(std::u16string_view name) const override {
    const auto found = m_records.find(odLowerAscii(name));
    return found == m_records.end() ? nullptr : &found->second;
  }

  std::vector<std::u16string> names(std::u16string_view prefix) const override {
    const std::u16string wanted = odLowerAscii(prefix);
    std::vector<std::u16string> result;
    for (auto at = m_records.lower_bound(wanted); at != m_records.end() && at->first.starts_with(wanted);
         ++at)
      result.push_back(at->second.name);
    return result;
  }

 private:
  std::map<std::u16string, CommandRecord> m_records;  // by name in lower case
};

}  // namespace

namespace host {

OdSmartPtr<ICmdFactory> new_command_factory() {
  return OdSmartPtr<ICmdFactory>(new CommandFactory, kOdRxObjAttach);
}

ICmdFactory& command_factory() {
  static const OdSmartPtr<ICmdFactory> factory = new_command_factory();
  return *factory;
}

}  // namespace host

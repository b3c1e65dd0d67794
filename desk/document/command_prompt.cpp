#include "desk/document/command_prompt.h"

#include "host/prompt.h"
#include "host/prompt_text.h"
#include "host/translate.h"

bool isCommandPrompt(std::u16string_view shown) {
  return shown == host::prompt_text({.prompt = Supp_Translate(u"Command")});
}

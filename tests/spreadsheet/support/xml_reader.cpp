#include "xml_reader.h"

#include <expat.h>

#include <memory>
#include <stdexcept>

namespace norvane {
namespace {

using Parser = std::unique_ptr<std::remove_pointer_t<XML_Parser>, decltype(&XML_ParserFree)>;

const XmlEvents& Events(void* data) { return *static_cast<const XmlEvents*>(data); }

void Begin(void* data, const XML_Char* element, const XML_Char** pairs) {
  XmlEvents::Attributes attributes;
  for (; pairs[0] != nullptr; pairs += 2) attributes[pairs[0]] = pairs[1];
  Events(data).begin(element, attributes);
}

void End(void* data, const XML_Char* element) { Events(data).end(element); }

void Text(void* data, const XML_Char* text, int size) {
  Events(data).text(std::string(text, static_cast<std::size_t>(size)));
}

}  // namespace

void Read_Xml(const std::string& xml, const XmlEvents& events) {
  const Parser parser(XML_ParserCreate(nullptr), XML_ParserFree);
  XML_SetUserData(parser.get(), const_cast<XmlEvents*>(&events));
  XML_SetElementHandler(parser.get(), Begin, End);
  XML_SetCharacterDataHandler(parser.get(), Text);
  constexpr int kWhole = 1;
  if (XML_Parse(parser.get(), xml.data(), static_cast<int>(xml.size()), kWhole) ==
      XML_STATUS_ERROR) {
    throw std::runtime_error(XML_ErrorString(XML_GetErrorCode(parser.get())));
  }
}

}  // namespace norvane

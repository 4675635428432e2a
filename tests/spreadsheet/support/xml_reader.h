#pragma once

#include <functional>
#include <map>
#include <string>

namespace norvane {

/// What a reader of XML is told, in the order of the file.
struct XmlEvents {
  using Attributes = std::map<std::string, std::string>;

  std::function<void(const std::string& element, const Attributes& attributes)> begin;
  std::function<void(const std::string& element)> end;
  std::function<void(const std::string& text)> text;
};

/// Reads XML; throws std::runtime_error when it isn't well-formed.
void Read_Xml(const std::string& xml, const XmlEvents& events);

}  // namespace norvane

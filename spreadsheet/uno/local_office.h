#pragma once

#include <com/sun/star/uno/XComponentContext.hpp>
#include <rtl/ustring.hxx>
#include <string>

namespace norvane {

/// What can be known and done without the office: its libraries on this side of the pipe.

rtl::OUString From_Utf8(const std::string& text);
rtl::OUString To_Url(const std::string& path);

/// A context in which the office can be called.
css::uno::Reference<css::uno::XComponentContext> Local_Context();

/// Whether an office of this user's profile runs and takes the commands of a second call.
bool Local_Office_Runs();

}  // namespace norvane

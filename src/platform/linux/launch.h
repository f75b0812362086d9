// Starting what a G-key names.
#pragma once

#include <functional>
#include <string>

namespace tarnix {

/// Starts an executable regular file by absolute path, without arguments, without a shell, and independent of
/// this process. Hands another existing absolute path, or an http or https address, to `opener`. Does nothing
/// with anything else. A file that bears the executable mark and is no program goes to the opener, too.
void launchTarget(const std::string& target, const std::function<void(const std::string&)>& opener);

/// True for an http or https address.
bool isWebAddress(const std::string& text);

} // namespace tarnix

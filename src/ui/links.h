// The links to the maker: the logo, and those whose controls this model of the keyboard does without.
#pragma once

#include "platform/shell.h"
#include "skin/dlg_base.h"

namespace tarnix {

/// Window and shell outlive the map.
void registerLinks(MessageMap& map, Window& window, Shell& shell);

} // namespace tarnix

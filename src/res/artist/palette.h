// The colours of the skin, once. Navy is the ground, sage what is raised, spring green what is active or
// wants attention, sky blue what is selected.
#pragma once

#include <QColor>

namespace tarnix::art::palette {

// The ground and what lies on it, from the deepest up.
inline constexpr QColor abyss{2, 8, 21};
inline constexpr QColor navy{5, 16, 38};
inline constexpr QColor stage{8, 21, 47};
inline constexpr QColor slate{14, 30, 61};
inline constexpr QColor steel{24, 43, 79};
inline constexpr QColor line{38, 58, 98};
inline constexpr QColor lineBright{70, 95, 140};

// Raised parts.
inline constexpr QColor sage{161, 172, 128};
inline constexpr QColor sageLight{190, 200, 158};
inline constexpr QColor sagePale{214, 221, 188};
inline constexpr QColor moss{118, 131, 80};
inline constexpr QColor mossDeep{82, 93, 56};
inline constexpr QColor mossDark{50, 59, 36};

// Signals.
inline constexpr QColor spring{185, 210, 107};
inline constexpr QColor springLight{213, 233, 150};
inline constexpr QColor springDeep{132, 160, 60};
inline constexpr QColor sky{53, 160, 222};
inline constexpr QColor warm{240, 178, 92};

// Words.
inline constexpr QColor paper{238, 242, 246};
inline constexpr QColor mist{164, 178, 202};
inline constexpr QColor ink{5, 13, 30};

/// Outside the outline of a shaped window, and nowhere else in its background.
inline constexpr QColor outside{255, 255, 0};

} // namespace tarnix::art::palette

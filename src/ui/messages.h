// The main window's numbered messages. A control's message is its identifier, with a notification code as
// second word (and, where said, the identifier as first); everything else has a number of its own.
#pragma once

namespace tarnix {

/// Identifiers of the main window's controls, which are the numbers of their messages.
namespace id {

// Window and pages.
inline constexpr unsigned closeButton = 2001;     ///< hides the window
inline constexpr unsigned minimiseButton = 2002;  ///< minimises it
inline constexpr unsigned keyPageTab = 2003;      ///< shows the keyboard picture
inline constexpr unsigned macroPageTab = 2004;    ///< shows the macro library
inline constexpr unsigned gKeyPageTab = 2005;     ///< shows the G-key fields
inline constexpr unsigned lightingPageTab = 2077; ///< shows the light settings
inline constexpr unsigned resetButton = 2045;     ///< resets the displayed profile
inline constexpr unsigned okButton = 2046;        ///< commits and hides
inline constexpr unsigned applyButton = 2047;     ///< commits
inline constexpr unsigned cancelButton = 2048;    ///< hides, edits kept
inline constexpr unsigned profileTab1 = 2049;     ///< shows profile 1
inline constexpr unsigned profileTab2 = 2050;     ///< shows profile 2
inline constexpr unsigned profileTab3 = 2051;     ///< shows profile 3
inline constexpr unsigned logoLink = 2060;        ///< opens the maker's web site
inline constexpr unsigned restoreButton = 2076;   ///< restores all factory settings

// Fields of the G-key and lighting pages; they report clicks with the messages below.
inline constexpr unsigned gKeyField1 = 2078;
inline constexpr unsigned gKeyField2 = 2079;
inline constexpr unsigned gKeyField3 = 2080;
inline constexpr unsigned gKeyField4 = 2081;
inline constexpr unsigned gKeyField5 = 2082;
inline constexpr unsigned brightnessField = 2091;
inline constexpr unsigned lightModeField = 2092;
inline constexpr unsigned speedField = 2093;

// Macro page.
inline constexpr unsigned macroButton1 = 2100;
inline constexpr unsigned macroButton2 = 2101;
inline constexpr unsigned macroButton3 = 2102;
inline constexpr unsigned macroButton4 = 2103;
inline constexpr unsigned macroList = 2109;
inline constexpr unsigned loopCountField = 2110;
inline constexpr unsigned loopCheck = 2111;
inline constexpr unsigned delayCheck = 2112;
inline constexpr unsigned recordSwitch = 2113;
inline constexpr unsigned actionList = 2114;
inline constexpr unsigned macroScrollBar = 2115;
inline constexpr unsigned actionScrollBar = 2116;

// The keyboard picture; each key sends its identifier as first word too.
inline constexpr unsigned firstKeyCap = 2200;
inline constexpr unsigned lastKeyCap = 2303;

// Controls that this model of the keyboard does without. Their messages are served all the same.
inline constexpr unsigned firstLightRadio = 2006; ///< 2006 to 2008 and 2011, 2012: a light setting was chosen
inline constexpr unsigned lastLightRadio = 2008;
inline constexpr unsigned firstShowRadio = 2009; ///< 2009, 2010: shows the current profile's record
inline constexpr unsigned lastShowRadio = 2010;
inline constexpr unsigned firstSideRadio = 2011;
inline constexpr unsigned lastSideRadio = 2012;
inline constexpr unsigned areaButton = 2030;    ///< 2030 and 2041 to 2043: take up the current profile
inline constexpr unsigned levelScroller = 2040; ///< second word: the level, 0 to 9
inline constexpr unsigned firstAreaColour = 2041;
inline constexpr unsigned lastAreaColour = 2043;
inline constexpr unsigned unusedButton = 2044;       ///< does nothing
inline constexpr unsigned profileTab4 = 2052;        ///< shows profile 4
inline constexpr unsigned profileTab5 = 2053;        ///< shows profile 5
inline constexpr unsigned levelUp = 2054;            ///< one level up
inline constexpr unsigned levelDown = 2055;          ///< one level down
inline constexpr unsigned levelLabel = 2056;         ///< shows the level plus one
inline constexpr unsigned searchLink = 2057;         ///< opens a web search page
inline constexpr unsigned portalLink = 2058;         ///< opens a web portal
inline constexpr unsigned supportLink = 2059;        ///< writes to the maker's support
inline constexpr unsigned supportLink2 = 2061;       ///< the same
inline constexpr unsigned macroManagerButton = 2062; ///< opens the macro manager
inline constexpr unsigned editProfileButton = 2068;  ///< edits the displayed profile
inline constexpr unsigned saveProfileButton = 2069;  ///< saves the profile to a file
inline constexpr unsigned loadProfileButton = 2070;  ///< loads the profile from a file

} // namespace id

/// Messages of popups, dialogs and drop-down fields. First and second word in brackets; "record" is the
/// address of a selection record or 0.
namespace msg {

inline constexpr unsigned command = 0x111;           ///< [command, -] from the notification-area menu
inline constexpr unsigned trayNotify = 0x420;        ///< [icon, Win32 mouse message] the icon was activated
inline constexpr unsigned categoryChosen = 0x403;    ///< [field or 0, record] a row of the function menu
inline constexpr unsigned openFunctionMenu = 0x404;  ///< [field, notification] a G-key field was clicked
inline constexpr unsigned categoryClosing = 0x405;   ///< [-, 0] the function menu lost activation
inline constexpr unsigned openMultimedia = 0x406;    ///< [field, -] pointing at "Multimedia"
inline constexpr unsigned multimediaChosen = 0x407;  ///< [field, record]
inline constexpr unsigned multimediaClosing = 0x408; ///< [-, 1]
inline constexpr unsigned closeSubPopups = 0x409;    ///< [-, -] pointing at a row without a sub-menu
inline constexpr unsigned runShortcut = 0x40A;       ///< [-, -] posted by the window to itself
inline constexpr unsigned shortcutWanted = 0x40B;    ///< [field, -] "Assign a Shortcut"
inline constexpr unsigned shortcutChosen = 0x40C;    ///< [-, record] from the shortcut dialog
inline constexpr unsigned launchWanted = 0x40D;      ///< [field, -] "Quick Launch"
inline constexpr unsigned runQuickLaunch = 0x40E;    ///< [-, -] posted by the window to itself
inline constexpr unsigned launchChosen = 0x40F;      ///< [address of the path text, record] from quick launch
inline constexpr unsigned openWeb = 0x410;           ///< [field, -] pointing at "Window Manage"
inline constexpr unsigned webChosen = 0x411;         ///< [field, record]
inline constexpr unsigned webClosing = 0x412;        ///< [-, 2]
inline constexpr unsigned openMouse = 0x413;         ///< [field, -] pointing at "Mouse Function"
inline constexpr unsigned mouseChosen = 0x414;       ///< [field, record]
inline constexpr unsigned mouseClosing = 0x415;      ///< [-, 3]
inline constexpr unsigned openMacroLibrary = 0x416;  ///< [field, -] pointing at "Assign a Macro"
inline constexpr unsigned macroLibraryClosing = 0x417; ///< [-, 4]
inline constexpr unsigned openMacroSet = 0x418;        ///< [-, macro set + 1]; nothing sends it
inline constexpr unsigned closeMacroSets = 0x419;      ///< [-, -]; nothing sends it
inline constexpr unsigned macroSetClosing = 0x41A;     ///< [-, 100 + macro set]
inline constexpr unsigned macroChosen = 0x41B;         ///< [field or 0, record] from the macro library popup
inline constexpr unsigned macroSetChosen = 0x41C;      ///< [tag, record or 0] from a macro set popup
inline constexpr unsigned runMacroManager = 0x41D;     ///< [-, row + 1] posted by the window to itself
inline constexpr unsigned furtherPopupClosing = 0x421; ///< [-, 6] of a popup kind that no class has
inline constexpr unsigned openBrightness = 0x427; ///< [field, notification] the brightness field was clicked
inline constexpr unsigned brightnessClosing = 0x428; ///< [-, 8]
inline constexpr unsigned brightnessChosen = 0x429;  ///< [field, record]
inline constexpr unsigned keyCodeChosen = 0x42A;     ///< [key cap, code] from the key map dialog
inline constexpr unsigned deviceEvent = 0x42B;       ///< [event code, -] for the on-screen display
inline constexpr unsigned openLightMode = 0x42C; ///< [field, notification] the light mode field was clicked
inline constexpr unsigned lightModeClosing = 0x42D; ///< [-, 9]
inline constexpr unsigned lightModeChosen = 0x42E;  ///< [field, record]
inline constexpr unsigned openSpeed = 0x42F;        ///< [field, notification] the speed field was clicked
inline constexpr unsigned speedClosing = 0x430;     ///< [-, 10]
inline constexpr unsigned speedChosen = 0x431;      ///< [field, record]

} // namespace msg

/// The second word of msg::trayNotify on which the window comes to the front: the Win32 message
/// WM_LBUTTONDBLCLK.
inline constexpr unsigned trayDoubleClick = 0x0203;

/// Commands, the first word of msg::command.
namespace command {
inline constexpr unsigned exit = 2;
inline constexpr unsigned showWindow = 2075;
} // namespace command

} // namespace tarnix

#include "ui/pelmora_dlg.h"

#include <algorithm>

#include "macro/macro_files.h"
#include "macro_manager/manager_dlg.h"
#include "platform/resources.h"
#include "profile/configuration_file.h"
#include "profile/profile_file.h"
#include "skin/tab_control.h"
#include "ui/attention_dlg.h"
#include "ui/links.h"
#include "ui/main_window_layout.h"
#include "ui/notices.h"

namespace tarnix {

namespace {

constexpr int macroPageNumber = 1; ///< of g_nMainPage

/// Hover pictures of the right half of the keyboard are numbered from here.
constexpr unsigned firstRightHoverPicture = 219;

constexpr Size minimisedIcon{32, 32};

/// The notification area's report of a double-click, a Win32 mouse message.

/// Copies a picture's top left corner to `target`, as far as both reach, within `dirty`.
void copyPicture(Canvas& canvas, unsigned bitmap, const Rect& target, const Rect& dirty) {
    const Image* image = resources().find(ResourceType::Bitmap, bitmap);
    if (!image) return;
    const Rect whole = Rect::at(target.left, target.top, image->size().width, image->size().height);
    const Rect shown = whole.common(target).common(dirty);
    if (!shown.empty()) canvas.draw(*image, shown.moved(-target.left, -target.top), shown);
}

} // namespace

CPelmoraDlg::CPelmoraDlg(const MainWindowSurroundings& surroundings)
    : CDlgBase({.role = "CPelmoraDlg", .taskbarButton = true}, mainWindowSize),
      m_surroundings(surroundings),
      m_strAppDir(surroundings.programFolder),
      m_link({surroundings.hid,
              surroundings.clock,
              surroundings.loop,
              {surroundings.store, surroundings.macros, surroundings.files, m_strAppDir},
              *this}),
      m_context{*this,
                surroundings.store,
                surroundings.macros,
                surroundings.files,
                surroundings.shell,
                m_link,
                m_strAppDir,
                [this] { ShowCurrentProfile(); }},
      m_keyPage(m_context),
      m_macroPage(m_context),
      m_gKeyPage(m_context),
      m_lightingPage(m_context),
      m_profileCommands(m_context, m_macroPage),
      m_spareControls(m_context) {
    registerHandlers();
}

CPelmoraDlg::~CPelmoraDlg() {
    destroyWindow();
}

void CPelmoraDlg::registerHandlers() {
    registerPageTabs();
    m_messages.onClick(id::closeButton, [this] { hideWindow(); });
    m_messages.onClick(id::minimiseButton, [this] { minimiseWindow(); });
    m_messages.onClick(id::cancelButton, [this] { hideWindow(); });
    m_messages.onClick(id::okButton, [this] {
        m_profileCommands.Commit();
        hideWindow();
    });
    m_messages.onClick(id::macroManagerButton, [this] { runMacroManager(0); });
    m_messages.on(msg::runMacroManager, [this](WParam, LParam set) { runMacroManager(set); });
    m_messages.on(msg::command, [this](WParam chosen, LParam) { onCommand(chosen); });
    m_messages.on(msg::trayNotify, [this](WParam icon, LParam what) { OnTrayNotify(icon, what); });
    m_messages.on(msg::openFunctionMenu, [this](WParam, LParam code) { repaintHoverPictures(code); });
    m_messages.on(msg::deviceEvent,
                  [this](WParam code, LParam) { m_surroundings.presence.OnDeviceEvent(code); });
    m_profileCommands.registerHandlers(m_messages);
    m_keyPage.registerHandlers(m_messages);
    m_macroPage.registerHandlers(m_messages);
    m_gKeyPage.registerHandlers(m_messages);
    m_lightingPage.registerHandlers(m_messages);
    m_spareControls.registerHandlers(m_messages);
    registerLinks(m_messages, *this, m_surroundings.shell);
}

void CPelmoraDlg::registerPageTabs() {
    m_messages.onClick(id::keyPageTab, [this] { ShowPage(group::keyPage); });
    m_messages.on(id::keyPageTab, [this] {
        m_keyPage.calmAreaMarkers();
        m_macroPage.showLoopField(false);
    });
    m_messages.onClick(id::macroPageTab, [this] { ShowPage(group::macroPage); });
    m_messages.on(id::macroPageTab, [this] { m_macroPage.showLoopField(true); });
    m_messages.onClick(id::gKeyPageTab, [this] { ShowPage(group::gKeyPage); });
    m_messages.on(id::gKeyPageTab, [this] { m_macroPage.showLoopField(false); });
    m_messages.onClick(id::lightingPageTab, [this] {
        ShowPage(group::lightingPage);
        m_macroPage.showLoopField(false);
    });
}

// Start and end.

void CPelmoraDlg::OnInitDialog() {
    ProfileStore& store = m_surroundings.store;
    Files& files = m_surroundings.files;
    LoadMacroLibrary(m_surroundings.macros, files, m_strAppDir);
    LoadConfig(store, files, m_strAppDir);
    for (int n = 0; n < profileCount; ++n)
        LoadProfileFile(store, n, files);
    CDlgBase::OnInitDialog();
    SetShapeFromBitmap(mainBackground);
    m_surroundings.presence.AddTrayIcon(*this);
    m_macroPage.refresh();
    ShowCurrentProfile();
    m_link.InitDeviceLink();
    m_link.FindDevice();
    m_link.ReadDeviceState();
    LoadBackground(mainBackground);
}

void CPelmoraDlg::BuildControls(const Rect& client) {
    const Point origin = client.topLeft();
    addControls(group::common, commonControls, origin);
    for (const unsigned hidden : {id::macroPageTab, id::gKeyPageTab})
        if (CControlBase* tab = GetControl(hidden)) tab->SetVisible(false);
    m_keyPage.build(origin);
    m_macroPage.build(origin);
    m_gKeyPage.build(origin);
    m_lightingPage.build(origin);
    g_nMainPage = 0;
    ShowPage(group::keyPage);
}

void CPelmoraDlg::OnDestroy() {
    CDlgBase::OnDestroy();
    m_macroPage.stopHook();
    m_link.close();
    m_surroundings.presence.RemoveTrayIcon();
    m_macroPage.dropLoopField();
}

void CPelmoraDlg::OnCancel() {
    exitProgram();
}

void CPelmoraDlg::exitProgram() {
    closePopups();
    endModal(IDCANCEL);
}

// Showing the displayed profile and the pages.

void CPelmoraDlg::ShowLighting(int n) {
    m_gKeyPage.ShowGKeys(n);
    m_lightingPage.ShowLighting(n);
}

void CPelmoraDlg::ShowKeyCodes(int n) {
    m_keyPage.ShowKeyCodes(n);
}

void CPelmoraDlg::ShowCurrentProfile() {
    DisplayedProfile = m_context.currentProfile();
    ShowLighting(DisplayedProfile);
    ShowKeyCodes(DisplayedProfile);
    invalidate();
}

void CPelmoraDlg::ShowPage(std::size_t page) {
    for (std::size_t each = group::keyPage; each <= group::lightingPage; ++each)
        controls().setVisible(each, each == page);
    invalidate();
}

void CPelmoraDlg::repaintHoverPictures(LParam code) {
    if (code != NOTIFY_ENTER && code != NOTIFY_LEAVE) return;
    if (code == NOTIFY_LEAVE) m_nHoverPicture = 0;
    invalidate(leftHoverArea);
    invalidate(rightHoverArea);
}

void CPelmoraDlg::DrawWindow(Canvas& canvas, const Rect& dirty) {
    drawBackground(canvas, dirty);
    copyPicture(canvas, pageBandImage(g_nMainPage), pageBand, dirty);
    if (m_nHoverPicture != 0)
        copyPicture(canvas, m_nHoverPicture,
                    m_nHoverPicture < firstRightHoverPicture ? leftHoverPicture : rightHoverPicture, dirty);
    DrawControls(canvas, dirty);
}

AccessibleFace CPelmoraDlg::accessibleFace() const {
    AccessibleFace face = CDlgBase::accessibleFace();
    face.role = AccessibleRole::MainWindow;
    const PaintedText texts[] = {commandHint, g_nMainPage == 0 ? keyPageHint : lightingPageHint};
    const bool hasPageHint = g_nMainPage == 0 || g_nMainPage == 3;
    addPaintedTexts(face, std::span(texts).first(hasPageHint ? 2 : 1));
    return face;
}

/// A minimised window shows the program's icon.
void CPelmoraDlg::OnPaint(Canvas& canvas, const Rect& dirty) {
    const Image* icon = isMinimised() ? resources().find(ResourceType::Icon, iconId) : nullptr;
    if (!icon) return CDlgBase::OnPaint(canvas, dirty);
    const Rect client = clientRect();
    const Point corner{(client.width() - minimisedIcon.width + 1) / 2,
                       (client.height() - minimisedIcon.height + 1) / 2};
    canvas.draw(*icon, Rect::at(0, 0, icon->size().width, icon->size().height),
                Rect::at(corner.x, corner.y, minimisedIcon.width, minimisedIcon.height));
}

// The window on the desktop.

void CPelmoraDlg::hideWindow() {
    closePopups();
    if (m_surroundings.presence.isTrayShown())
        hide();
    else
        minimise();
}

void CPelmoraDlg::minimiseWindow() {
    closePopups();
    minimise();
}

void CPelmoraDlg::closePopups() {
    popups().dismiss();
}

void CPelmoraDlg::onCommand(WParam chosen) {
    if (chosen == command::showWindow) bringToFront();
    if (chosen == command::exit) exitProgram();
}

void CPelmoraDlg::OnTrayNotify(WParam icon, LParam mouseMessage) {
    if (icon == iconId && mouseMessage == trayDoubleClick) bringToFront();
}

void CPelmoraDlg::OnTimer(unsigned id) {
    m_surroundings.presence.OnTimer(id);
}

// The macro page.

void CPelmoraDlg::OnLButtonDown(unsigned flags, Point at) {
    if (g_nMainPage == macroPageNumber) m_macroPage.pressAt(at);
    CDlgBase::OnLButtonDown(flags, at);
}

void CPelmoraDlg::OnMouseWheel(int delta, Point at) {
    if (g_nMainPage == macroPageNumber) m_macroPage.onMouseWheel(delta);
    CDlgBase::OnMouseWheel(delta, at);
}

void CPelmoraDlg::OnEnter() {
    if (g_nMainPage == macroPageNumber) m_macroPage.commitName();
}

void CPelmoraDlg::OnEditChange(unsigned id) {
    if (id == id::loopCountField) m_macroPage.SetLoopCount();
}

void CPelmoraDlg::runMacroManager(LParam set) {
    // A set number that no library can have opens the manager without a set.
    const auto count = static_cast<LParam>(m_surroundings.macros.sets.size());
    const int number = set >= 0 && set <= count ? static_cast<int>(set) : 0;
    if (!OpenMacroManager(this, m_surroundings.macros, m_surroundings.files, m_strAppDir, number)) return;
    m_macroPage.refreshAll();
    ShowCurrentProfile();
}

// What the device link tells.

void CPelmoraDlg::onDeviceEvent(DeviceEvent event) {
    post(msg::deviceEvent, static_cast<WParam>(event));
}

void CPelmoraDlg::launchGKeyUrl(const std::string& url) {
    m_surroundings.shell.launch(url);
}

void CPelmoraDlg::onMacrosChanged() {
    m_macroPage.refreshAll();
}

void CPelmoraDlg::showDisconnectedNotice() {
    showNotice(notices::keyboardGone);
}

} // namespace tarnix

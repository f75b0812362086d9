#include "ui/links.h"

#include "ui/messages.h"

namespace tarnix {

namespace {

struct Link {
    unsigned id;
    bool showsHand; ///< while the pointer is over it
    const char* address;
};

constexpr const char* supportMail = "mailto:support@tarnix.example";

constexpr Link links[] = {
    {id::logoLink, true, "https://www.tarnix.example/"},
    {id::searchLink, false, "https://search.tarnix.example/"},
    {id::portalLink, false, "https://portal.tarnix.example/"},
    {id::supportLink, true, supportMail},
    {id::supportLink2, true, supportMail},
};

} // namespace

void registerLinks(MessageMap& map, Window& window, Shell& shell) {
    for (const Link& link : links)
        map.on(link.id, [&link, &window, &shell](WParam, LParam code) {
            if (link.showsHand && code == NOTIFY_ENTER) window.setCursor(Cursor::Hand);
            if (link.showsHand && code == NOTIFY_LEAVE) window.setCursor(Cursor::Arrow);
            if (code == NOTIFY_CLICK) shell.openLink(link.address);
        });
}

} // namespace tarnix

#include "platform/resources.h"

#include <map>
#include <utility>

#include "picture.h"
#include "platform/builtin_resources.h"

namespace tarnix {

namespace {

class BuiltinResources : public Resources {
  public:
    BuiltinResources() {
        for (const BuiltinImage& stored : builtinImages()) {
            Entry& entry = m_entries[{stored.type, stored.id}];
            (stored.scale == 1 ? entry.plain : entry.fine) = &stored;
        }
    }

    const Image* find(ResourceType type, unsigned id) override {
        const auto found = m_entries.find({type, id});
        if (found == m_entries.end()) return nullptr;
        Entry& entry = found->second;
        if (!entry.picture) entry.picture = makeImage(*entry.plain, entry.fine);
        return entry.picture.get();
    }

  private:
    struct Entry {
        const BuiltinImage* plain = nullptr;
        const BuiltinImage* fine = nullptr;
        std::unique_ptr<Image> picture; ///< from the first use on
    };
    std::map<std::pair<ResourceType, unsigned>, Entry> m_entries;
};

Resources* g_source = nullptr;

} // namespace

std::unique_ptr<Image> makeImage(const BuiltinImage& plain, const BuiltinImage* fine) {
    return std::make_unique<Picture>(plain, fine);
}

Resources& resources() {
    if (g_source) return *g_source;
    static BuiltinResources builtin;
    return builtin;
}

void setResources(Resources* source) {
    g_source = source;
}

} // namespace tarnix

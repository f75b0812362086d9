#include "platform/linux/report_descriptor.h"

#include <algorithm>
#include <array>
#include <optional>

namespace tarnix {
namespace {

/// A short item: a prefix byte with size, type and tag, and 0, 1, 2 or 4 bytes of little-endian data.
struct Item {
    unsigned key = 0; ///< the prefix byte without its size bits
    std::size_t size = 0;
    std::uint32_t data = 0;
};

// Prefix bytes without the size bits (HID 1.11, 6.2.2.4 to 6.2.2.8).
constexpr unsigned itemInput = 0x80;
constexpr unsigned itemCollection = 0xA0;
constexpr unsigned itemEndCollection = 0xC0;
constexpr unsigned itemUsagePage = 0x04;
constexpr unsigned itemReportSize = 0x74;
constexpr unsigned itemReportId = 0x84;
constexpr unsigned itemReportCount = 0x94;
constexpr unsigned itemPush = 0xA4;
constexpr unsigned itemPop = 0xB4;
constexpr unsigned itemUsage = 0x08;
constexpr unsigned typeMask = 0x0C;
constexpr unsigned typeMain = 0x00;
constexpr std::uint8_t longItem = 0xFE;

/// Takes the items off a descriptor one by one; none at its end and at an item that is cut off.
class ItemReader {
  public:
    explicit ItemReader(std::span<const std::uint8_t> bytes) : m_rest(bytes) {}

    std::optional<Item> next() {
        while (!m_rest.empty() && m_rest[0] == longItem) {
            if (m_rest.size() < 3 || m_rest.size() - 3 < m_rest[1]) return std::nullopt;
            m_rest = m_rest.subspan(std::size_t{3} + m_rest[1]);
        }
        if (m_rest.empty()) return std::nullopt;
        const unsigned sizeCode = m_rest[0] & 3u;
        Item item{m_rest[0] & ~3u, sizeCode == 3 ? 4 : sizeCode, 0};
        if (m_rest.size() - 1 < item.size) return std::nullopt;
        for (std::size_t i = 0; i < item.size; ++i)
            item.data |= static_cast<std::uint32_t>(m_rest[1 + i]) << (8 * i);
        m_rest = m_rest.subspan(1 + item.size);
        return item;
    }

  private:
    std::span<const std::uint8_t> m_rest;
};

struct Globals {
    std::uint16_t usagePage = 0;
    std::uint32_t reportSize = 0; ///< bits a field
    std::uint32_t reportCount = 0;
    std::uint8_t reportId = 0;
};

class Parser {
  public:
    void take(const Item& item) {
        switch (item.key) {
            case itemUsagePage:
                m_globals.usagePage = static_cast<std::uint16_t>(item.data);
                break;
            case itemReportSize:
                m_globals.reportSize = item.data;
                break;
            case itemReportCount:
                m_globals.reportCount = item.data;
                break;
            case itemReportId:
                m_globals.reportId = static_cast<std::uint8_t>(item.data);
                m_result.usesReportIds = true;
                break;
            case itemPush:
                if (m_saved.size() < maxSaved) m_saved.push_back(m_globals);
                break;
            case itemPop:
                pop();
                break;
            case itemUsage:
                if (!m_usage) m_usage = item;
                break;
            case itemCollection:
                beginCollection();
                break;
            case itemEndCollection:
                m_depth -= m_depth > 0 ? 1 : 0;
                break;
            case itemInput:
                addInput();
                break;
            default:
                break;
        }
        if ((item.key & typeMask) == typeMain) m_usage.reset();
    }

    ReportDescriptor finish() {
        for (TopLevelCollection& collection : m_result.collections)
            if (collection.inputReports.any()) collection.inputReportLength += 1;
        return std::move(m_result);
    }

  private:
    static constexpr std::size_t maxSaved = 64;
    static constexpr std::uint64_t maxBits = (maxReportLength - 1) * 8;

    void pop() {
        if (m_saved.empty()) return;
        m_globals = m_saved.back();
        m_saved.pop_back();
    }

    void beginCollection() {
        if (m_depth++ > 0) return;
        m_bits.fill(0);
        // A usage of four bytes brings its own page in the upper half.
        const bool extended = m_usage && m_usage->size == 4;
        m_result.collections.push_back({});
        m_result.collections.back().usagePage =
            extended ? static_cast<std::uint16_t>(m_usage->data >> 16) : m_globals.usagePage;
    }

    void addInput() {
        if (m_result.collections.empty()) return;
        TopLevelCollection& collection = m_result.collections.back();
        std::uint64_t& bits = m_bits[m_globals.reportId];
        bits = std::min(maxBits, bits + std::uint64_t{m_globals.reportSize} * m_globals.reportCount);
        collection.inputReports.set(m_globals.reportId);
        collection.inputReportLength =
            std::max(collection.inputReportLength, static_cast<std::size_t>((bits + 7) / 8));
    }

    ReportDescriptor m_result;
    Globals m_globals;
    std::vector<Globals> m_saved;
    std::optional<Item> m_usage;
    std::size_t m_depth = 0;
    std::array<std::uint64_t, 256> m_bits{}; ///< input bits a report id of the present collection
};

} // namespace

ReportDescriptor parseReportDescriptor(std::span<const std::uint8_t> bytes) {
    ItemReader reader(bytes);
    Parser parser;
    while (const auto item = reader.next())
        parser.take(*item);
    return parser.finish();
}

} // namespace tarnix

#include "figures.h"

#include <algorithm>
#include <cstdio>

namespace tarnix::bench {

double Samples::median() const {
    if (m_values.empty()) return 0;
    std::vector<double> sorted = m_values;
    std::sort(sorted.begin(), sorted.end());
    const std::size_t middle = sorted.size() / 2;
    return sorted.size() % 2 == 1 ? sorted[middle] : (sorted[middle - 1] + sorted[middle]) / 2;
}

double Samples::least() const {
    return m_values.empty() ? 0 : *std::min_element(m_values.begin(), m_values.end());
}

double Samples::most() const {
    return m_values.empty() ? 0 : *std::max_element(m_values.begin(), m_values.end());
}

void Table::print() const {
    std::vector<std::size_t> widths(m_rows.front().size());
    for (const auto& cells : m_rows) {
        for (std::size_t i = 0; i < cells.size(); ++i)
            widths[i] = std::max(widths[i], cells[i].size());
    }
    const auto line = [&](const std::vector<std::string>& cells) {
        for (std::size_t i = 0; i < widths.size(); ++i) {
            const std::string cell = i < cells.size() ? cells[i] : std::string();
            std::printf("| %s%s ", cell.c_str(), std::string(widths[i] - cell.size(), ' ').c_str());
        }
        std::printf("|\n");
    };
    line(m_rows.front());
    for (const std::size_t width : widths)
        std::printf("|%s", std::string(width + 2, '-').c_str());
    std::printf("|\n");
    for (std::size_t i = 1; i < m_rows.size(); ++i)
        line(m_rows[i]);
    std::printf("\n");
    std::fflush(stdout);
}

std::string number(double value, int decimals, const char* unit) {
    char text[64];
    std::snprintf(text, sizeof text, "%.*f%s", decimals, value, unit);
    return text;
}

std::string verdict(double value, double limit, int decimals, const char* unit) {
    return "<= " + number(limit, decimals, unit) + (value <= limit ? "" : " MISSED");
}

} // namespace tarnix::bench

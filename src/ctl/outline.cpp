#include "ctl/outline.h"

#include <algorithm>

#include "ctl/narrow_text.h"
#include "profile/numbers.h"

namespace tarnix {

/// A list's items that hold nothing nested take a line each.
struct Outline::PeopleWriter {
    std::string text;

    static bool isLeaf(const Outline& outline) { return outline.m_value.index() < 2; }

    void newLine(int depth) {
        if (!text.empty()) text += '\n';
        text.append(static_cast<std::size_t>(depth) * 2, ' ');
    }

    void leaf(const Outline& outline) {
        if (const auto* value = std::get_if<std::string>(&outline.m_value)) text += printable(*value);
        const auto* number = std::get_if<Number>(&outline.m_value);
        if (number == nullptr) return;
        text += std::to_string(number->value);
        if (!number->name.empty()) text += " (" + printable(number->name) + ')';
    }

    void member(const std::string& name, const Outline& value, int depth) {
        text += name + ':';
        if (!isLeaf(value)) return nested(value, depth + 1);
        text += ' ';
        leaf(value);
        if (text.back() == ' ') text.pop_back(); // of an empty text
    }

    void item(const Outline& outline, int depth) {
        newLine(depth);
        text += "- ";
        const auto* members = std::get_if<Members>(&outline.m_value);
        if (members == nullptr) return leaf(outline);
        bool first = true;
        for (const auto& [name, value] : *members) {
            const bool sameLine = first || isLeaf(value);
            if (!first && sameLine) text += ", ";
            if (!sameLine) newLine(depth + 1);
            member(name, value, depth + 1);
            first = false;
        }
    }

    void nested(const Outline& outline, int depth) {
        if (const auto* members = std::get_if<Members>(&outline.m_value)) {
            for (const auto& [name, value] : *members) {
                newLine(depth);
                member(name, value, depth);
            }
        } else if (const auto* items = std::get_if<Items>(&outline.m_value)) {
            if (items->empty()) text += " none";
            for (const Outline& each : *items)
                item(each, depth);
        }
    }
};

struct Outline::JsonWriter {
    std::string text;

    void string(std::string_view narrow) {
        text += '"';
        for (const char c : toUtf8(narrow)) {
            const auto byte = static_cast<unsigned char>(c);
            if (c == '"' || c == '\\') text += '\\';
            if (byte >= 0x20)
                text += c;
            else
                appendHexByte(text.append("\\u00"), byte);
        }
        text += '"';
    }

    /// Writes what stands between the brackets, one element a line.
    template <class Elements, class Write>
    void elements(const Elements& all, std::string_view brackets, int depth, Write write) {
        text += brackets[0];
        for (std::size_t i = 0; i < all.size(); ++i) {
            text.append(i == 0 ? "\n" : ",\n").append(static_cast<std::size_t>(depth + 1) * 2, ' ');
            write(all[i]);
        }
        if (!all.empty()) text.append("\n").append(static_cast<std::size_t>(depth) * 2, ' ');
        text += brackets[1];
    }

    void value(const Outline& outline, int depth) {
        if (const auto* narrow = std::get_if<std::string>(&outline.m_value)) return string(*narrow);
        if (const auto* items = std::get_if<Items>(&outline.m_value))
            return elements(*items, "[]", depth, [&](const Outline& item) { value(item, depth + 1); });
        if (const auto* members = std::get_if<Members>(&outline.m_value))
            return elements(*members, "{}", depth, [&](const auto& member) {
                string(member.first);
                text += ": ";
                value(member.second, depth + 1);
            });
        const auto& number = std::get<Number>(outline.m_value);
        if (number.name.empty()) return void(text += std::to_string(number.value));
        text += "{\"value\": " + std::to_string(number.value) + ", \"name\": ";
        string(number.name);
        text += '}';
    }
};

std::string Outline::forPeople() const {
    PeopleWriter writer;
    writer.nested(*this, 0);
    return std::move(writer.text);
}

std::string Outline::asJson() const {
    JsonWriter writer;
    writer.value(*this, 0);
    return std::move(writer.text);
}

} // namespace tarnix

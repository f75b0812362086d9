// What a file holds as an outline of names and values, for people and as JSON.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace tarnix {

class Outline {
  public:
    using Members = std::vector<std::pair<std::string, Outline>>;
    using Items = std::vector<Outline>;

    /// A narrow text of a file.
    static Outline text(std::string value) { return Outline(std::move(value)); }
    /// A number, with what it stands for if that has a name.
    static Outline number(std::int64_t value, std::string_view name = {}) {
        return Outline(Number{value, std::string(name)});
    }
    static Outline record(Members members) { return Outline(std::move(members)); }
    static Outline list(Items items) { return Outline(std::move(items)); }

    /// Lines of "name: value", indented below what they belong to; without the last line's end.
    std::string forPeople() const;
    /// RFC 8259, in UTF-8. A number with a name is an object of "value" and "name".
    std::string asJson() const;

  private:
    struct Number {
        std::int64_t value = 0;
        std::string name;
    };
    struct PeopleWriter;
    struct JsonWriter;

    template <class Value>
    explicit Outline(Value value) : m_value(std::move(value)) {}

    std::variant<std::string, Number, Members, Items> m_value;
};

} // namespace tarnix

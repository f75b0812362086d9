// The controls of a window, in five groups.
#pragma once

#include <array>
#include <memory>
#include <vector>

#include "skin/control_base.h"

namespace tarnix {

/// The order of the groups, and of the controls in a group, is the order of painting (later ones on top) and
/// of mouse routing.
class ControlGroups {
  public:
    static constexpr std::size_t count = 5;
    using Group = std::vector<std::unique_ptr<CControlBase>>;

    /// Takes the control; a group past the last one means the last one.
    void add(std::size_t group, std::unique_ptr<CControlBase> control);
    /// The first control with the identifier, hidden ones included; none if there is none.
    CControlBase* find(unsigned id) const;
    const std::array<Group, count>& groups() const { return m_groups; }
    /// Shows or hides every control of a group; does not repaint.
    void setVisible(std::size_t group, bool visible);
    void draw(Canvas& canvas, const Rect& clip) const;

    template <class F>
    void forEach(F visit) const {
        for (const Group& group : m_groups)
            for (const auto& control : group)
                visit(*control);
    }

  private:
    std::array<Group, count> m_groups;
};

} // namespace tarnix

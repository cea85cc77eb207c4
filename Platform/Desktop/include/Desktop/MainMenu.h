#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velmar {

/// A key with modifiers. How the four are found on this system's keyboards:
/// docs/decisions/0016-modifier-keys.md.
struct KeyShortcut {
    char key = 0; ///< A letter in upper case or a digit.
    bool command = false;
    bool control = false;
    bool option = false;
    bool shift = false;
    bool operator==(const KeyShortcut &) const = default;
};

/// An entry, or a menu where it has a submenu.
struct MenuItem {
    std::string title;
    int tag = 0; ///< Marks items of one kind; 0 for none.
    std::optional<KeyShortcut> shortcut;
    std::function<void()> action;
    std::vector<MenuItem> submenu;
};

/// The menus of the application, as a value that is looked at and replaced as a whole. By custom the first
/// menu is the application's own, and Quit its last entry. Main thread.
class MainMenu {
public:
    [[nodiscard]] const std::vector<MenuItem> &items() const noexcept { return items_; }
    void setItems(std::vector<MenuItem> items);

    /// Takes out every item with the tag, at any depth; the others keep their order. A menu without a tag
    /// stays, even if it is empty then.
    void removeItems(int tag);

    /// Keeps one observer; letting go of it ends the observation. It may outlive the menu.
    using Observation = std::shared_ptr<const std::function<void()>>;

    /// The observer, a window that offers the menus, is called after each change.
    [[nodiscard]] Observation observe(std::function<void()> observer);

private:
    std::vector<MenuItem> items_;
    std::vector<std::weak_ptr<const std::function<void()>>> observers_;
};

} // namespace velmar

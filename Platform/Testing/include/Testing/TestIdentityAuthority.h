#pragma once

#include <System/IdentityAuthority.h>

#include <map>
#include <optional>
#include <set>
#include <string>

namespace velmar {

/// A fake with the test's users and groups.
class TestIdentityAuthority final : public IdentityAuthority {
public:
    struct User {
        UserIds ids;
        std::string fullName;         ///< Empty for none.
        std::set<std::string> groups; ///< Includes the primary group.
    };

    std::map<std::string, User> users;
    std::string processUser = "tester";
    std::string consoleUser = "tester";

    [[nodiscard]] bool isMember(const std::string &userName, const std::string &groupName) const override {
        const auto user = users.find(userName);
        return user != users.end() && user->second.groups.contains(groupName);
    }
    [[nodiscard]] std::optional<std::string> fullName(const std::string &userName) const override {
        const auto user = users.find(userName);
        return user == users.end() || user->second.fullName.empty() ? std::nullopt
                                                                    : std::optional(user->second.fullName);
    }
    [[nodiscard]] std::optional<UserIds> ids(const std::string &userName) const override {
        const auto user = users.find(userName);
        return user == users.end() ? std::nullopt : std::optional(user->second.ids);
    }
    [[nodiscard]] std::string processUserName() const override { return processUser; }
    [[nodiscard]] std::string consoleUserName() const override { return consoleUser; }
};

} // namespace velmar

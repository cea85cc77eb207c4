// The declarations of every key of every item, tested on files generated from the declarations.
#include "Support.h"

#include <Configuration/VisitedValue.h>
#include <Support/GeneratedConfiguration.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <deque>
#include <map>

using namespace velmar;
using velmar::test::outcomeOf;
using velmar::test::validFileWith;

namespace {

using Kind = ValueDescription::Kind;

/// A step from an item to another: the key (or the kind) and the containers between them.
struct Step {
    std::string from;
    std::string key;  ///< Empty where `to` is a kind of `from`.
    std::string kind; ///< The value of the type key.
    std::vector<Kind> within;
};

/// Places every item of the file format in a minimal file.
class Places {
public:
    Places() {
        std::deque<std::string> open{std::string(Configuration::typeName)};
        ways_[open.front()] = {};
        while (!open.empty()) {
            const std::string name = open.front();
            open.pop_front();
            const ItemDescription &item = generator_.descriptions().items().at(name);
            for (const auto &[kind, typeName] : item.kinds) {
                reach(typeName, {name, "", kind, {}}, open);
            }
            for (const KeyDescription &key : item.keys) {
                reachWithin(key.value, {name, std::string(key.name), "", {}}, open);
            }
        }
    }

    [[nodiscard]] GeneratedConfiguration &generator() { return generator_; }

    struct Place {
        PropertyList file;
        std::string path;
    };

    /// Returns a file with the given item as the only one of its type, if the path to it allows.
    [[nodiscard]] Place with(const std::string &typeName, PropertyList item) {
        std::string path;
        std::string type = typeName;
        while (type != Configuration::typeName) {
            const Step &step = ways_.at(type);
            if (step.key.empty()) {
                item.dictionary()->set(generator_.descriptions().items().at(step.from).typeKey,
                                       PropertyList(step.kind));
            } else {
                std::string part = step.key;
                for (auto within = step.within.rbegin(); within != step.within.rend(); ++within) {
                    if (*within == Kind::list) {
                        item = PropertyList(PropertyList::Array{std::move(item)});
                        part += ".0";
                    } else {
                        PropertyList::Dictionary dictionary;
                        dictionary.set("Entry", std::move(item));
                        item = PropertyList(std::move(dictionary));
                        part += ".Entry";
                    }
                }
                PropertyList parent = generator_.leastItem(step.from, step.key);
                parent.dictionary()->set(step.key, std::move(item));
                item = std::move(parent);
                path = path.empty() ? part : part + "." + path;
            }
            type = step.from;
        }
        generator_.addWhatIsReferredTo(item);
        return {std::move(item), std::move(path)};
    }

private:
    void reach(const std::string &typeName, Step step, std::deque<std::string> &open) {
        if (ways_.try_emplace(typeName, std::move(step)).second) {
            open.push_back(typeName);
        }
    }

    void reachWithin(const ValueDescription &value, Step step, std::deque<std::string> &open) {
        if (value.kind == Kind::item) {
            reach(value.name, std::move(step), open);
        } else {
            if (value.kind != Kind::anyOf) {
                step.within.push_back(value.kind);
            }
            for (const ValueDescription &part : value.parts) {
                reachWithin(part, step, open);
            }
        }
    }

    GeneratedConfiguration generator_{1};
    std::map<std::string, Step> ways_;
};

/// Returns a value that no key of the kind accepts.
PropertyList wrongFor(const ValueDescription &value) {
    return value.kind == Kind::boolean ? PropertyList("no boolean") : PropertyList(PropertyList::Date{0});
}

/// Calls `check` with the places, the type, each key, and an item with its required keys and this key.
template <class Check>
void forEveryKey(Check check) {
    Places places;
    std::size_t keys = 0;
    for (const auto &[typeName, item] : places.generator().descriptions().items()) {
        for (const KeyDescription &key : item.keys) {
            SCOPED_TRACE(typeName + "." + std::string(key.name));
            check(places, typeName, key, places.generator().leastItem(typeName, key.name));
            ++keys;
        }
    }
    EXPECT_GT(keys, 150U) << "most items are not reached";
}

std::string pathOf(const Places::Place &place, std::string_view key) {
    return place.path.empty() ? std::string(key) : place.path + "." + std::string(key);
}

TEST(Declarations, EveryKeyIsTakenAndWrittenBack) {
    forEveryKey(
        [](Places &places, const std::string &typeName, const KeyDescription &key, PropertyList item) {
            if (key.name == "IsLarge" || key.name == "WidthRatio") {
                return; // A separate test checks the widths of containers.
            }
            const PropertyList file = places.with(typeName, std::move(item)).file;
            ASSERT_EQ(outcomeOf(file), "decoded") << file.text();
            const PropertyList written = Configuration::decode(file)->encode();
            EXPECT_EQ(written, file);
        });
}

/// The values of the file by their paths.
struct VisitedPlaces final : ValueVisitor {
    void visit(const VisitedValue &value) override {
        values.emplace(value.place().path.text(), &value.place().value);
    }

    std::map<std::string, const PropertyListValue *> values;
};

TEST(Declarations, EveryKeyIsVisitedAtItsPlace) {
    forEveryKey(
        [](Places &places, const std::string &typeName, const KeyDescription &key, PropertyList item) {
            if (key.name == "IsLarge" || key.name == "WidthRatio") {
                return; // A separate test checks the widths of containers.
            }
            const Places::Place place = places.with(typeName, std::move(item));
            const PropertyListDocument document = PropertyListDocument::of(place.file);
            VisitedPlaces visited;
            Configuration::decode(document.root())->visitValues(document.root(), visited);
            const std::string path = pathOf(place, key.name);
            ASSERT_TRUE(visited.values.contains(place.path)) << place.path;
            ASSERT_TRUE(visited.values.contains(path)) << path;
            EXPECT_EQ(visited.values.at(path), visited.values.at(place.path)->find(key.name)) << path;
        });
}

struct VisitedItems final : ValueVisitor {
    void visit(const VisitedValue &value) override {
        const std::string path = value.place().path.text();
        if (value.as<ColorItem>() != nullptr) {
            found.push_back("color " + path);
        } else if (const auto *const list = value.as<ComponentItem::Input::List>()) {
            found.push_back("list of " + list->_items.rawValue().at(0) + " " + path);
        } else if (value.as<APIRequestItem>() != nullptr) {
            found.push_back("request " + path);
        } else if (value.as<BodyItem>() != nullptr) {
            found.push_back("body " + path);
        } else if (const auto *const custom = value.as<ActionTrigger::Custom>()) {
            found.push_back(custom->name + " " + path);
        }
    }

    std::vector<std::string> found;
};

TEST(Declarations, ValuesAreVisitedInTheOrderOfTheKeysAsWhatTheyAre) {
    const PropertyList file = validFileWith(
        "<key>ActionSets</key><array><dict><key>Type</key><string>Parallel</string><key>Triggers</key><array>"
        "<string>Custom(go)</string></array><key>Actions</key><array><dict><key>Type</key><string>"
        "SendRequest</string><key>Request</key><string>R</string></dict></array></dict></array>"
        "<key>MenuBarSlide</key><dict><key>ContainersBorderColor</key><string>Red</string>"
        "<key>Containers</key><array><dict><key>Components</key><array><dict><key>Type</key><string>Input"
        "</string><key>InputType</key><string>List</string><key>Variable</key><string>V</string><key>Items"
        "</key><array><string>a</string></array></dict></array></dict></array></dict>"
        "<key>APIRequests</key><dict><key>Models</key><dict><key>R</key><dict><key>Body</key><array>"
        "<dict><key>x</key><true/></dict></array></dict></dict></dict>"
        "<key>ColorStyles</key><dict><key>Red</key><dict><key>DarkMode</key><string>#FF0000</string>"
        "<key>LightMode</key><string>#FF0000</string></dict></dict>");
    const PropertyListDocument document = PropertyListDocument::of(file);
    VisitedItems visited;
    Configuration::decode(document.root())->visitValues(document.root(), visited);
    EXPECT_EQ(visited.found, (std::vector<std::string>{
                                 "color ColorStyles.Red", "list of a MenuBarSlide.Containers.0.Components.0",
                                 "color MenuBarSlide.ContainersBorderColor", "request APIRequests.Models.R",
                                 "body APIRequests.Models.R.Body", "body APIRequests.Models.R.Body.0",
                                 "body APIRequests.Models.R.Body.0.x",
                                 "request ActionSets.0.Actions.0.Request", "go ActionSets.0.Triggers.0"}));
}

TEST(Declarations, EveryKeyRefusesAnotherKindOfValue) {
    forEveryKey([](Places &places, const std::string &typeName, const KeyDescription &key,
                   PropertyList item) {
        item.dictionary()->set(key.name, wrongFor(key.value));
        const Places::Place place = places.with(typeName, std::move(item));
        const std::string path = pathOf(place, key.name);
        EXPECT_THAT(outcomeOf(place.file),
                    testing::AnyOf(testing::AllOf(testing::StartsWith("Decoding error at '" + path + "'. "),
                                                  testing::HasSubstr("Expected type: ")),
                                   testing::StartsWith("Invalid string color specification '' at " + path),
                                   path + ". Error while decoding the request body."));
    });
}

TEST(Declarations, EveryRequiredKeyIsMissed) {
    forEveryKey(
        [](Places &places, const std::string &typeName, const KeyDescription &key, PropertyList item) {
            if (key.requirement.type != RequirementType::required) {
                return;
            }
            PropertyList::Dictionary without;
            for (const auto &entry : *item.dictionary()) {
                if (entry.key != key.name) {
                    without.set(entry.key, entry.value);
                }
            }
            const Places::Place place = places.with(typeName, PropertyList(std::move(without)));
            EXPECT_EQ(outcomeOf(place.file),
                      fmt::format("Missing required key '{}' at '{}'", key.name, place.path));
        });
}

TEST(Declarations, EveryRangeHoldsItsBoundsAndNoMore) {
    forEveryKey([](Places &places, const std::string &typeName, const KeyDescription &key,
                   PropertyList item) {
        if (!key.range) {
            return;
        }
        const auto outcome = [&](double number) {
            item.dictionary()->set(key.name, PropertyList(number));
            return outcomeOf(places.with(typeName, item).file);
        };
        for (const double outside : {key.range->lower - 0.001, key.range->upper + 0.001}) {
            EXPECT_THAT(outcome(outside), testing::HasSubstr("in allowed range 0.0...1.0 at ")) << outside;
        }
        // Other keys of the item may refuse the bound, but the range must not.
        EXPECT_THAT(outcome(key.range->lower), testing::Not(testing::HasSubstr("allowed range")));
        EXPECT_THAT(outcome(key.range->upper), testing::Not(testing::HasSubstr("allowed range")));
    });
}

TEST(Declarations, EveryRuleBetweenKeysIsKept) {
    forEveryKey([](Places &places, const std::string &typeName, const KeyDescription &key,
                   PropertyList item) {
        const Requirement &rule = key.requirement;
        if (rule.keys.empty()) {
            return;
        }
        const std::vector<KeyDescription> &keys = places.generator().descriptions().items().at(typeName).keys;
        const auto give = [&](PropertyList::Dictionary &to, std::string_view name) {
            const auto sibling = std::ranges::find(keys, name, &KeyDescription::name);
            to.set(name, places.generator().value(typeName, *sibling));
        };
        // Three files: this key and the listed ones, none of them, only the listed ones.
        PropertyList::Dictionary both = *item.dictionary();
        PropertyList::Dictionary none;
        PropertyList::Dictionary others;
        for (const auto &entry : *item.dictionary()) {
            const auto isListed = [&](const ConfigCodingKey &listed) {
                return listed.stringValue == entry.key;
            };
            if (entry.key != key.name && std::ranges::none_of(rule.keys, isListed)) {
                none.set(entry.key, entry.value);
                others.set(entry.key, entry.value);
            }
        }
        for (const ConfigCodingKey &listed : rule.keys) {
            give(both, listed.stringValue);
            give(others, listed.stringValue);
        }
        const auto outcome = [&](const PropertyList::Dictionary &dictionary) {
            return outcomeOf(places.with(typeName, PropertyList(dictionary)).file);
        };
        const auto refused = testing::HasSubstr("Key validation error. ");
        const bool excludes =
            rule.type == RequirementType::exclude || rule.type == RequirementType::requiredExcluding;
        EXPECT_EQ(testing::Value(outcome(both), refused), excludes);
        EXPECT_EQ(testing::Value(outcome(none), refused),
                  rule.type == RequirementType::requiredIfNotSpecified ||
                      rule.type == RequirementType::requiredExcluding);
        EXPECT_EQ(testing::Value(outcome(others), refused),
                  rule.type == RequirementType::requiredIfSpecified);
    });
}

TEST(Declarations, WholeFilesAreWrittenAsTheyWereRead) {
    for (std::uint32_t seed = 0; seed < 200; ++seed) {
        const PropertyList file = GeneratedConfiguration(seed).file();
        ASSERT_EQ(outcomeOf(file), "decoded") << "seed " << seed;
        const PropertyList written = Configuration::decode(file)->encode();
        EXPECT_EQ(written, file) << "seed " << seed;
    }
}

TEST(Declarations, KindsAreToldApartByOneKey) {
    Places places;
    std::size_t kinds = 0;
    for (const auto &[typeName, item] : places.generator().descriptions().items()) {
        if (item.kinds.empty()) {
            continue;
        }
        for (const PropertyList &wrong : {PropertyList("Nothing"), PropertyList(1)}) {
            PropertyList::Dictionary dictionary;
            dictionary.set(item.typeKey, wrong);
            const Places::Place place = places.with(typeName, PropertyList(dictionary));
            EXPECT_THAT(
                outcomeOf(place.file),
                testing::HasSubstr("Expected type: string | Possible values: '" + item.kinds.front().first))
                << typeName;
        }
        ++kinds;
    }
    EXPECT_EQ(kinds, 4U);
}

TEST(Declarations, RulesBeyondSingleKeys) {
    const auto action = [](const std::string &keys) {
        return "<key>ActionSets</key><array><dict><key>Type</key><string>Chained</string><key>Triggers</key>"
               "<array/><key>Actions</key><array><dict>" +
               keys + "</dict></array></dict></array>";
    };
    const auto trigger = [](const std::string &text) {
        return "<key>ActionSets</key><array><dict><key>Type</key><string>Chained</string><key>Actions</key>"
               "<array/><key>Triggers</key><array><string>" +
               text + "</string></array></dict></array>";
    };
    const auto monitor = [](const std::string &name, const std::string &condition) {
        return "<key>General</key><dict><key>Variables</key><dict><key>APP</key><string>My "
               "App</string></dict>"
               "</dict><key>Conditions</key><dict><key>DONE</key><string>" +
               condition +
               " == 1</string></dict>"
               "<key>Monitoring</key><dict><key>Monitors</key><array><dict><key>Type</key>"
               "<string>Application</string><key>Installer</key><string>Jamf</string><key>Name</"
               "key><string>" +
               name + "</string></dict></array></dict>";
    };
    const auto boxes = [](const std::string &condition) {
        return "<key>Conditions</key><dict><key>DONE</key><string>" + condition +
               "</string></dict>"
               "<key>MenuBarSlide</key><dict><key>Containers</key><array><dict><key>Components</"
               "key><array><dict>"
               "<key>Type</key><string>Input</string><key>InputType</key><string>Checkboxes</string>"
               "<key>Variable</key><string>Choice</string><key>Items</key><array><string>a</string></array>"
               "</dict></array></dict></array></dict>";
    };
    const std::string noTrigger = "string | Possible values: 'Launch', 'Termination', 'NextButtonClick', "
                                  "'PreviousButtonClick', 'Update(Variable)', 'AppLaunch(BundleID)', "
                                  "'Custom(Name)'.";
    const std::string navigate = "<key>Type</key><string>NavigateToSlide</string><key>Index</key><integer>";
    const std::string update = "<key>Type</key><string>UpdateVariable</string><key>NewValue</key><string/>"
                               "<key>Variable</key><string>";
    const std::vector<std::pair<std::string, std::string>> rows = {
        {trigger("Custom(Update(X))"), "Update(X))"},
        {trigger("Update(A)(B)"), "Update(A)(B)"},
        {trigger("x Custom() Custom(y\nz) Custom(ok)"), "Custom(ok)"},
        {trigger("AppLaunch(org\\..*)"), "AppLaunch(org\\..*)"},
        {trigger("NextButtonClick"), "NextButtonClick"},
        {trigger("Custom()"), noTrigger},
        {trigger("Update()"), noTrigger},
        {trigger("Launch "), noTrigger},
        {trigger("AppLaunch([)"),
         "The regular expression pattern '[' at 'ActionSets.0.Triggers.0' is invalid."},
        {action(navigate + "0</integer>"), "decoded"},
        {action(navigate + "1</integer>"), "Error at 'ActionSets.0.Actions.0'. When specified, the index (1) "
                                           "should be greater than or equal to 0 "
                                           "and lesser than the slides count (1)."},
        {action(update + "DEVICE_NAME</string>"),
         "Error at 'ActionSets.0.Actions.0'. Updating a placeholder (DEVICE_NAME) with the 'UpdateVariable' "
         "action is not allowed"},
        {action(update + "MINE</string>"), "decoded"},
        {monitor("My App", "MY_APP_INSTALLATION_STATE"), "decoded"},
        {monitor("${APP}", "MY_APP_INSTALLATION_STATE"), "decoded"},
        {monitor("Other", "MY_APP_INSTALLATION_STATE"), "MY_APP_INSTALLATION_STATE == 1.0 ]"},
        {boxes("Choice-0 || Choice"), "decoded"},
        {boxes("Choice-1"), "[ Choice-1 ]"},
    };
    for (const auto &[content, expected] : rows) {
        const PropertyList file = validFileWith(content);
        std::string outcome = outcomeOf(file);
        if (outcome == "decoded" && expected != outcome) {
            outcome = Configuration::decode(file)->_actionSets().front()._triggers().front().text();
        }
        EXPECT_THAT(outcome, testing::EndsWith(expected)) << content;
    }
}

TEST(Declarations, BodiesKeepTheirKindsAndGrow) {
    const auto file = validFileWith(
        "<key>APIRequests</key><dict><key>Models</key><dict><key>R</key><dict><key>Body</key><array>"
        "<string>1</string></array></dict></dict></dict><key>ActionSets</key><array><dict><key>Type</"
        "key><string>Parallel</string>"
        "<key>Triggers</key><array/><key>Actions</key><array>"
        "<dict><key>Type</key><string>SendRequest</string><key>Request</key><string>R</string></dict>"
        "<dict><key>Type</key><string>SendRequest</string><key>Request</key><string>R</string></dict>"
        "</array></dict></array>");
    const auto configuration = Configuration::decode(file);
    BodyItem body = *configuration->_apiRequests()._models().models().at("R")._body();
    body.append({std::string("more")});
    EXPECT_EQ(std::get<BodyItem::Array>(body.value).size(), 2U);
    try {
        body.add({true}, "key");
        FAIL();
    } catch (const ConfigurationError &error) {
        EXPECT_EQ(error.errorDescription(), "Trying to add value to the body which is not a(n) dictionary");
    }
    // Actions that name the same request have separate requests.
    const auto &actions = configuration->_actionSets().front().set._actions();
    const auto requestOf = [](const ActionItem &action) {
        return std::get<ActionItem::SendRequest>(action.value)._request();
    };
    EXPECT_NE(requestOf(actions[0])->id, requestOf(actions[1])->id);
    EXPECT_TRUE(requestOf(actions[1])->_body().has_value()) << "inherited";
}

} // namespace

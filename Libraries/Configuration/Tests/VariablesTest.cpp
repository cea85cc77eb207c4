#include "Support.h"

#include <Configuration/ExpressionError.h>
#include <Configuration/ItemCoding.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace velmar;
using velmar::test::fileWith;
using velmar::test::outcomeOf;
using velmar::test::validFileWith;

namespace {

/// "NAME=value" entries as General.Variables.
std::string variables(const std::vector<std::string_view> &entries) {
    std::string content;
    for (const std::string_view entry : entries) {
        const std::size_t equals = entry.find('=');
        content += fmt::format("<key>{}</key><string>{}</string>", entry.substr(0, equals),
                               entry.substr(equals + 1));
    }
    return fmt::format("<key>General</key><dict><key>Variables</key><dict>{}</dict></dict>", content);
}

/// A container beside the slides with one text component.
std::string text(std::string_view text, std::string_view more = "") {
    return fmt::format(
        "<key>SideContainer</key><dict><key>Container</key><dict><key>Components</key><array><dict>"
        "<key>Type</key><string>Text</string><key>Text</key><string>{}</string>{}</dict></array></dict>"
        "</dict>",
        text, more);
}

constexpr std::string_view pathOfText = "SideContainer.Container.Components.0.Text";

TEST(Variables, AreDefinedAndLeadNowhereInACircle) {
    const auto at = [](std::string_view name, std::string_view fault) {
        return fmt::format("Error at 'General.Variables.{}'. {}", name, fault);
    };
    const std::string undefined = "Use of undefined variable 'X' in condition [ -${X} ]";
    const std::vector<std::pair<std::vector<std::string_view>, std::string>> rows = {
        {{}, "decoded"},
        {{"A=${B}${B}", "B=${DEVICE_UUID}", "C=${A}${ALL_MANDATORY_FILES_PRESENT}"}, "decoded"},
        {{"A=-${A}"}, at("A", "Variable 'A' used within its own initial value.")},
        {{"A=${B}", "B=${B}"}, at("B", "Variable 'B' used within its own initial value.")},
        {{"A=${B}", "B=${A}"}, at("A", "Circular reference involving A. Traceback: 'A → B'.")},
        {{"A=${D}${B}", "B=${C}", "C=${B}", "D="},
         at("B", "Circular reference involving B. Traceback: 'A → B → C'.")},
        {{"A=${B}", "B=-${X}"}, at("B", undefined)},
        {{"A=-${X}", "B=${A}"}, at("A", undefined)},
        {{"A=${}"}, at("A", "Use of undefined variable '' in condition [ ${} ]")},
        {{"\u00c9=${E\u0301}"}, at("\u00c9", "Variable '\u00c9' used within its own initial value.")},
    };
    for (const auto &[entries, expected] : rows) {
        EXPECT_EQ(outcomeOf(validFileWith(variables(entries))), expected) << testing::PrintToString(entries);
    }
    EXPECT_EQ(outcomeOf(validFileWith("<key>General</key><dict/>")),
              "Missing required key 'Variables' at 'General'");
}

TEST(Variables, MakeChainsOfAnyLength) {
    constexpr int length = 100'000;
    std::string content;
    for (int index = 0; index < length; ++index) {
        content += fmt::format("<key>V{}</key><string>${{V{}}}</string>", index, index + 1);
    }
    // The chain of values ends in a reference to its middle.
    const auto file =
        validFileWith(fmt::format("<key>General</key><dict><key>Variables</key><dict>{}<key>V{}</key>"
                                  "<string>${{V5000}}</string></dict></dict>",
                                  content, length));
    EXPECT_THAT(outcomeOf(file),
                testing::StartsWith("Error at 'General.Variables.V5000'. Circular reference involving "
                                    "V5000. Traceback: 'V0 → V1 → V2"));
}

TEST(Variables, AreDefinedWhereverTextsUseThem) {
    const auto undefined = [](std::string_view names, std::string_view path) {
        return fmt::format("Undefined variable(s) [{}] in expression at {}", names, path);
    };
    const std::string title =
        "<key>Navigation</key><dict><key>NextButtonText</key><string>${T}</string></dict>";
    const std::vector<std::pair<std::string, std::string>> rows = {
        {text("${A} ${USER_NAME}") + variables({"A=x"}), "decoded"},
        {text("${ and $A"), "decoded"},
        {text("${C} ${A} ${B} ${C}") + variables({"B=x"}), undefined("\"A\", \"C\"", pathOfText)},
        {text("${A}") + title, undefined("\"T\"", "Navigation.NextButtonText")},
        {text("${A}") + variables({"A=${B}"}),
         "Error at 'General.Variables.A'. Use of undefined variable 'B' in condition [ ${B} ]"},
    };
    for (const auto &[content, expected] : rows) {
        EXPECT_EQ(outcomeOf(validFileWith(content)), expected) << content;
    }
}

TEST(Conditions, AreReadAndUseWhatIsDefined) {
    const auto conditions = [](std::string_view name, std::string_view condition) {
        return fmt::format("<key>Conditions</key><dict><key>{}</key><string>{}</string></dict>", name,
                           condition);
    };
    const auto shownIf = [](std::string_view condition) {
        return text("", fmt::format("<key>Condition</key>{}", condition));
    };
    const std::string path = "SideContainer.Container.Components.0.Condition";
    const std::string type = "\nExpected type: string (boolean expression).";
    const std::vector<std::pair<std::string, std::string>> rows = {
        {shownIf("<string>AA == 'x' &amp;&amp; BB</string>"),
         "Decoding error at '" + path + "'. Incorrect element in the expression: \" 'x' \"" + type},
        {shownIf("<string></string>"),
         "Decoding error at '" + path + "'. The expression should not be empty" + type},
        {shownIf("<true/>"), "Decoding error at '" + path + "'. The value is a boolean." + type},
        {shownIf("<string>AA == \"x\" ||  BB</string>") + variables({"AA=x"}),
         "Undefined variable in expression at '" + path +
             "' Use of undefined variable 'BB' in condition [ AA == 'x' || BB ]"},
        {shownIf("<string>isLab</string>"), "Undefined variable in expression at '" + path +
                                                "' Use of undefined variable 'isLab' in condition [ isLab ]"},
        {shownIf("<string>isLab</string>") + conditions("isLab", "DEVICE_NAME == \"lab\""), "decoded"},
        {conditions("one", "one || other"),
         "Undefined variable in expression at 'Conditions.one' Use of undefined "
         "variable 'other' in condition [ one || other ]"},
        {conditions("one", "one"), "decoded"},
        {conditions("one", "two") + variables({"two=${one}"}),
         "Error at 'General.Variables.two'. Use of undefined variable 'one' in condition [ ${one} ]"},
        {conditions("one", "USER_NAME == \"x\"") + text("${one}"),
         fmt::format("Undefined variable(s) [\"one\"] in expression at {}", pathOfText)},
    };
    for (const auto &[content, expected] : rows) {
        EXPECT_EQ(outcomeOf(validFileWith(content)), expected) << content;
    }
    const auto file =
        validFileWith(conditions("isLab", "DEVICE_NAME   == \"lab\" %") + shownIf("<string>isLab</string>"));
    DecodingNotes notes;
    const auto configuration = Configuration::decode(file, &notes);
    EXPECT_EQ(configuration->encode(), file) << "a condition is written as it was given";
    const auto &component = configuration->_sideContainer()->_container()._components()[0];
    EXPECT_EQ(std::get<ComponentItem::Text>(component.value).common._condition()->description(), "isLab");
    EXPECT_EQ(usedVariables(component), VariableNames{}) << "a condition is no text";
    EXPECT_EQ(notes.variables.records.front().condition->source(), "isLab");
}

struct DeclaringItem {
    static constexpr std::string_view typeName = "DeclaringItem";

    VariableKeyWrapper<std::string> _variable{"Variable", optional, nameOfVariable};
    VariableKeyWrapper<std::string> _text{"Text", optional};
    VariableKeyWrapper<std::map<std::string, std::string>> _values{
        "Values", optional, [](const std::map<std::string, std::string> &values) {
            std::vector<std::string> names;
            std::ranges::transform(values, std::back_inserter(names),
                                   [](const auto &entry) { return entry.first; });
            return names;
        }};
    KeyWrapper<std::vector<std::string>> _list{
        {}, "List", optional, ArrayCodingStrategy::customStringConvertible};
};

TEST(VariableKeyWrapper, DeclaresTheNamesOfItsValue) {
    const auto declared = [](std::string_view content) {
        DecodingContext context;
        const auto file = fileWith(content);
        const auto document = PropertyListDocument::of(file);
        static_cast<void>(Decodable<DeclaringItem>::decode({document.root(), CodingPath(), context}));
        return context.declaredVariables();
    };
    EXPECT_EQ(declared(""), VariableNames{});
    EXPECT_EQ(declared("<key>Text</key><string>A</string>"), VariableNames{});
    EXPECT_EQ(declared("<key>Variable</key><string>A</string>"), VariableNames{"A"});
    EXPECT_EQ(declared("<key>Variable</key><string>${A}</string>"), VariableNames{"A"});
    EXPECT_EQ(declared("<key>Values</key><dict><key>B</key><string/><key>C</key><string/></dict>"),
              (VariableNames{"B", "C"}));
}

TEST(VariablesRecords, NameTheElementsOfCollections) {
    DecodingNotes notes;
    DecodingContext context(&notes);
    const auto file = fileWith("<key>List</key><array><string>a</string><string>${A}</string></array>"
                               "<key>Values</key><dict><key>k</key><string>${B}</string></dict>");
    const auto document = PropertyListDocument::of(file);
    const auto item = Decodable<DeclaringItem>::decode({document.root(), CodingPath(), context});
    const auto &records = notes.variables.records;
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].codingPath, "Values.k");
    EXPECT_EQ(records[1].codingPath, "List.1");
    EXPECT_EQ(usedVariables(item), (VariableNames{"A", "B"}));
}

} // namespace

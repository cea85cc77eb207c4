// Fuzzes the population of texts against a naive implementation of the same rules, with any variables.
#include <Configuration/ExpressionError.h>
#include <Configuration/Populatable.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using namespace velmar;

// Limits of the naive implementation. Beyond them it gives up with Outcome::tooMuch.
constexpr std::size_t mostReferences = 2'000;
constexpr std::size_t mostBytes = 1'000'000;
constexpr std::size_t deepest = 50;

enum class Outcome { text, undefined, circular, tooMuch };

class NaiveReading {
public:
    explicit NaiveReading(const Variables &variables) : variables_(variables) {}

    Outcome read(const std::string &text, VariableNames path = {}) {
        bytesRead_ += text.size();
        if (path.size() > deepest || bytesRead_ > mostBytes) {
            return Outcome::tooMuch;
        }
        std::size_t position = 0;
        while (position < text.size()) {
            const std::size_t end =
                text.compare(position, 2, "${") == 0 ? text.find('}', position) : std::string::npos;
            if (end == std::string::npos) {
                result += text[position++];
                continue;
            }
            const std::string name = text.substr(position + 2, end - position - 2);
            position = end + 1;
            if (++references_ > mostReferences) {
                return Outcome::tooMuch;
            }
            const auto variable = variables_.find(name);
            if (variable == variables_.end()) {
                return Outcome::undefined;
            }
            // Compare the name of the map, because one name can have several spellings.
            VariableNames inner = path;
            if (!inner.insert(variable->first).second) {
                return Outcome::circular;
            }
            if (const Outcome outcome = read(variable->second, std::move(inner)); outcome != Outcome::text) {
                return outcome;
            }
        }
        return Outcome::text;
    }

    std::string result;

private:
    const Variables &variables_;
    std::size_t references_ = 0;
    std::size_t bytesRead_ = 0;
};

Outcome outcomeOf(std::string_view text, const Variables &variables, std::string &result) {
    try {
        result = populated(text, variables);
        return Outcome::text;
    } catch (const ExpressionError &error) {
        return error.as<ExpressionErrors::UndefinedVariable>() != nullptr   ? Outcome::undefined
               : error.as<ExpressionErrors::CircularReference>() != nullptr ? Outcome::circular
                                                                            : Outcome::tooMuch;
    }
}

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

} // namespace

// Input: a text and variables, separated by NUL: text, name, value, name, value.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    std::string_view rest(reinterpret_cast<const char *>(data), size);
    const auto nextPart = [&] {
        const std::string_view part = rest.substr(0, rest.find('\0'));
        rest.remove_prefix(std::min(part.size() + 1, rest.size()));
        return std::string(part);
    };
    const std::string text = nextPart();
    Variables variables;
    while (!rest.empty()) {
        std::string name = nextPart();
        variables.insert_or_assign(std::move(name), nextPart());
    }

    std::string result;
    const Outcome outcome = outcomeOf(text, variables, result);
    NaiveReading naive(variables);
    const Outcome expected = naive.read(text);
    if (expected != Outcome::tooMuch) {
        require(outcome == expected);
        require(outcome != Outcome::text || result == naive.result);
    }

    // All names that a populated text depends on are defined; an undefined outcome has an undefined name.
    const VariableNames used = usedVariables(text);
    const VariableNames involved = involvedVariables(text, variables);
    bool allDefined = true;
    for (const std::string &name : involved) {
        allDefined = allDefined && variables.contains(name);
    }
    for (const std::string &name : used) {
        require(involved.contains(name));
    }
    require(outcome != Outcome::text || allDefined);
    require(outcome != Outcome::undefined || !allDefined);
    return 0;
}

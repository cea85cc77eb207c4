#include <Configuration/ConfigurationError.h>
#include <Configuration/DecodingContext.h>
#include <Configuration/ExpressionError.h>
#include <Configuration/Populatable.h>

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <optional>
#include <set>

namespace velmar {

namespace {

/// Longer than any declared key; a comparison takes the product of the lengths.
constexpr std::size_t longestCompared = 80;

/// Limits the size of the notes, since a file can have a million.
constexpr std::size_t mostNotesWithText = 1000;

/// A longer path is noted by its last key.
constexpr std::size_t longestPathNoted = 4096;

char lowered(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

/// Returns the optimal string alignment distance, ignoring case: the number of letters to insert, delete,
/// replace or swap with a neighbour. Both texts must have at most longestCompared bytes.
std::size_t distance(std::string_view from, std::string_view to) {
    std::array<std::array<std::size_t, longestCompared + 1>, 3> rows{};
    auto *beforeLast = &rows[0];
    auto *last = &rows[1];
    auto *row = &rows[2];
    for (std::size_t j = 0; j <= to.size(); ++j) {
        (*row)[j] = j;
    }
    for (std::size_t i = 1; i <= from.size(); ++i) {
        std::swap(beforeLast, last);
        std::swap(last, row);
        (*row)[0] = i;
        for (std::size_t j = 1; j <= to.size(); ++j) {
            const bool same = lowered(from[i - 1]) == lowered(to[j - 1]);
            (*row)[j] = std::min({(*last)[j] + 1, (*row)[j - 1] + 1, (*last)[j - 1] + (same ? 0 : 1)});
            if (i > 1 && j > 1 && lowered(from[i - 1]) == lowered(to[j - 2]) &&
                lowered(from[i - 2]) == lowered(to[j - 1])) {
                (*row)[j] = std::min((*row)[j], (*beforeLast)[j - 2] + 1);
            }
        }
    }
    return (*row)[to.size()];
}

/// Returns the most similar known text, or std::nullopt if none is similar enough.
std::optional<std::string_view> nearest(std::string_view given, std::span<const std::string_view> known) {
    if (given.size() > longestCompared) {
        return std::nullopt;
    }
    std::optional<std::string_view> best;
    std::size_t bestDistance = std::max<std::size_t>(given.size() / 3, 1) + 1;
    for (const std::string_view candidate : known) {
        const auto [shorter, longer] = std::minmax({given.size(), candidate.size()});
        if (longer - shorter >= bestDistance || candidate.size() > longestCompared) {
            continue;
        }
        const std::size_t candidateDistance = distance(given, candidate);
        if (candidateDistance < bestDistance) {
            best = candidate;
            bestDistance = candidateDistance;
        }
    }
    return best;
}

std::optional<std::string> pathWithin(const PropertyListValue &wanted, const PropertyListValue &value,
                                      const CodingPath &path) {
    if (&wanted == &value) {
        return path.text();
    }
    const std::span<const PropertyListValue> elements = value.elements();
    for (std::size_t index = 0; index < elements.size(); ++index) {
        if (auto found = pathWithin(wanted, elements[index], CodingPath(path, index))) {
            return found;
        }
    }
    for (const auto &entry : value.entries()) {
        if (auto found = pathWithin(wanted, entry.value, CodingPath(path, entry.key.text()))) {
            return found;
        }
    }
    return std::nullopt;
}

} // namespace

bool equalButForCase(std::string_view left, std::string_view right) {
    return std::ranges::equal(left, right, {}, lowered, lowered);
}

std::string pathOf(const PropertyListValue &value, const PropertyListValue &file) {
    return pathWithin(value, file, CodingPath()).value_or("");
}

void DecodingContext::addReference(const PropertyListValue &value,
                                   std::function<void(const Library &)> settle) {
    references_.push_back({&value, std::move(settle)});
}

void DecodingContext::settleReferences(const Library &library, const PropertyListValue &file) {
    for (const Reference &reference : references_) {
        try {
            reference.settle(library);
        } catch (const LocalizedError &error) {
            const std::string path = pathOf(*reference.value, file);
            noteFailure(path, reference.value->offset());
            throw ConfigurationError(ConfigurationErrors::Custom{path, error.errorDescription()});
        }
    }
    references_.clear();
}

SharedValuePointer &DecodingContext::valueOfName(std::string_view typeName, std::string_view name) {
    return valuesOfNames_[{typeName, name}];
}

const expressions::Expression &DecodingContext::expression(std::string_view line) {
    const auto known = expressions_.find(line);
    return known != expressions_.end() ? known->second : expressions_.try_emplace(line, line).first->second;
}

const RegularExpression &DecodingContext::regularExpression(std::string_view pattern) {
    const auto known = regularExpressions_.find(pattern);
    return known != regularExpressions_.end()
               ? known->second
               : regularExpressions_.try_emplace(pattern, pattern).first->second;
}

void DecodingContext::declareByPopulatedTexts(const std::map<std::string, std::string> &initialValues) {
    if (declaringTexts_.empty()) {
        return;
    }
    const Variables variables(initialValues.begin(), initialValues.end());
    std::set<std::string_view> done; // Equal texts declare equal names.
    for (const auto &[text, names] : declaringTexts_) {
        if (!done.insert(text).second) {
            continue;
        }
        std::string form;
        try {
            form = populated(text, variables);
        } catch (const ExpressionError &) {
            // checkVariables() reports the fault.
            continue;
        }
        for (std::string &name : names(form)) {
            declareVariable(std::move(name));
        }
    }
}

void DecodingContext::addVariablesRecord(const CodingPath &path, const PropertyListValue &text,
                                         const expressions::Expression *condition) {
    spend(path.length());
    uses_.push_back({&text, condition});
    if (notes_ != nullptr) {
        notes_->variables.records.push_back(
            {condition != nullptr ? condition->variableNames() : usedVariables(*text.string()), path.text(),
             text.offset(), condition != nullptr ? std::optional(*condition) : std::nullopt});
    }
}

void DecodingContext::declareVariable(std::string name) {
    spend(name.size());
    declaredVariables_.insert(std::move(name));
}

void DecodingContext::spend(std::size_t bytes) {
    constexpr std::size_t mostBytes = std::size_t{64} << 20U;
    bytesSpent_ += bytes;
    if (bytesSpent_ > mostBytes) {
        throw ConfigurationError(ConfigurationErrors::UnexpectedError{
            "The names of variables and the key paths of the file take more than 64 MiB."});
    }
}

void DecodingContext::noteFailure(const std::string &keyPath, std::uint32_t offset) {
    if (notes_ != nullptr && !notes_->failure) {
        notes_->failure = DecodingNotes::Failure{keyPath, offset};
    }
}

void DecodingContext::noteFailure(const CodingPath &keyPath, std::uint32_t offset) {
    // Every level of the unwinding calls this, and the text of a path can be as long as the file.
    if (notes_ != nullptr && !notes_->failure) {
        noteFailure(keyPath.text(), offset);
    }
}

void DecodingContext::noteUnknownKey(const CodingPath &item, std::string_view key, std::uint32_t offset,
                                     std::span<const std::string_view> knownKeys) {
    if (notes_->notes.size() >= mostNotesWithText) {
        notes_->notes.push_back({DecodingNotes::Kind::unknownKey, {}, offset, {}});
        return;
    }
    std::string message = fmt::format("Unknown key '{}'", key);
    if (const auto meant = nearest(key, knownKeys)) {
        message += fmt::format(" (did you mean '{}'?)", *meant);
    }
    std::string path = CodingPath(item, key).text();
    if (path.size() > longestPathNoted) {
        path = key;
    }
    notes_->notes.push_back({DecodingNotes::Kind::unknownKey, std::move(path), offset, std::move(message)});
}

void DecodingContext::noteEnumerationCase(const CodingPath &path, std::string_view value,
                                          std::uint32_t offset,
                                          std::span<const std::string_view> rawStrings) {
    for (const std::string_view rawString : rawStrings) {
        if (equalButForCase(value, rawString)) {
            notes_->notes.push_back(
                {DecodingNotes::Kind::enumerationCase, path.text(), offset,
                 fmt::format("'{}' differs from '{}' in the case of its letters only", value, rawString)});
            return;
        }
    }
}

} // namespace velmar

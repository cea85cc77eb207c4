#pragma once

#include <Configuration/CodingPath.h>
#include <Configuration/DecodingNotes.h>
#include <Configuration/KeyHolder.h>
#include <Foundation/PropertyListValue.h>
#include <Foundation/RegularExpression.h>
#include <expressions/Expression.h>
#include <expressions/Variables.h>

#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velmar {

struct Library;

/// Compares two texts, ignoring the case of ASCII letters.
[[nodiscard]] bool equalButForCase(std::string_view left, std::string_view right);

/// Searches `file` for a value and returns its path. A path is needed only once, when a decoding fails;
/// storing it with each of thousands of values would cost more.
[[nodiscard]] std::string pathOf(const PropertyListValue &value, const PropertyListValue &file);

/// The state of one decoding, from the root until the references are settled. Not thread-safe.
class DecodingContext {
public:
    explicit DecodingContext(DecodingNotes *notes = nullptr) : notes_(notes) {}

    /// Returns the receiver of notes on the file, or nullptr if none are wanted. Not owned.
    [[nodiscard]] DecodingNotes *notes() const { return notes_; }

    /// Stores a reference to another part of the file until the whole file is decoded. `value` is the place
    /// of the reference.
    void addReference(const PropertyListValue &value, std::function<void(const Library &)> settle);

    /// Settles the references in the order in which they were added. `file` is the root of the decoded file.
    /// Throws ConfigurationError with the path of the reference that fails.
    void settleReferences(const Library &library, const PropertyListValue &file);

    /// Slot of a cache shared by all keys naming the same model (type, name). nullptr until first filled.
    /// `name` must be a text of the file, since the cache doesn't copy it.
    [[nodiscard]] SharedValuePointer &valueOfName(std::string_view typeName, std::string_view name);

    /// Returns the parsed form of a text of the file, which equal texts share. Throws the errors of the
    /// parser.
    [[nodiscard]] const expressions::Expression &expression(std::string_view line);
    [[nodiscard]] const RegularExpression &regularExpression(std::string_view pattern);

    /// A place that uses variables.
    struct VariablesUse {
        const PropertyListValue *text;
        const expressions::Expression *condition; ///< nullptr for a text with references.
    };

    /// Records a place that uses variables; it is checked after the whole file is decoded. Throws
    /// ConfigurationError, as declareVariable() does, if the recorded names and paths exceed 64 MiB: a long
    /// key above many values would exhaust the memory.
    void addVariablesRecord(const CodingPath &path, const PropertyListValue &text,
                            const expressions::Expression *condition = nullptr);
    void declareVariable(std::string name);
    /// Records a text of the file that declares variables by its populated form. The names are determined
    /// after the whole file is decoded.
    void declareByPopulatedText(std::string_view text,
                                std::vector<std::string> (*names)(const std::string &)) {
        declaringTexts_.emplace_back(text, names);
    }
    /// Declares the names of the recorded texts, populated with the initial values of the variables. A text
    /// that can't be populated declares nothing.
    void declareByPopulatedTexts(const std::map<std::string, std::string> &initialValues);
    [[nodiscard]] const std::vector<VariablesUse> &variablesUses() const { return uses_; }
    [[nodiscard]] const VariableNames &declaredVariables() const { return declaredVariables_; }
    [[nodiscard]] VariableNames takeDeclaredVariables() { return std::move(declaredVariables_); }

    /// Notes the place of a failure. Only the first call has an effect, because it has the innermost place.
    void noteFailure(const std::string &keyPath, std::uint32_t offset);
    void noteFailure(const CodingPath &keyPath, std::uint32_t offset);
    void noteUnknownKey(const CodingPath &item, std::string_view key, std::uint32_t offset,
                        std::span<const std::string_view> knownKeys);
    void noteEnumerationCase(const CodingPath &path, std::string_view value, std::uint32_t offset,
                             std::span<const std::string_view> rawStrings);

private:
    struct Reference {
        const PropertyListValue *value;
        std::function<void(const Library &)> settle;
    };

    void spend(std::size_t bytes);

    DecodingNotes *notes_;
    std::size_t bytesSpent_ = 0; ///< Size of the recorded names and paths.
    std::vector<Reference> references_;
    // The keys refer to texts of the file. Ordered, because crafted texts can degrade a hash table.
    std::map<std::pair<std::string_view, std::string_view>, SharedValuePointer> valuesOfNames_;
    std::map<std::string_view, expressions::Expression> expressions_;
    std::map<std::string_view, RegularExpression> regularExpressions_;
    std::vector<VariablesUse> uses_;
    VariableNames declaredVariables_;
    std::vector<std::pair<std::string_view, std::vector<std::string> (*)(const std::string &)>>
        declaringTexts_;
};

/// A key of the item's dictionary that is already read, and therefore known. `before` is the next such key.
struct KeyReadBefore {
    PropertyListKey key;
    const KeyReadBefore *before = nullptr;
};

/// A value to decode, its place and the context.
struct Decoding {
    const PropertyListValue &value;
    const CodingPath &path;
    DecodingContext &context;
    const KeyReadBefore *keysReadBefore = nullptr;
};

} // namespace velmar

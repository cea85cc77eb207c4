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

/// ASCII letters in upper and lower case count as the same.
[[nodiscard]] bool equalButForCase(std::string_view left, std::string_view right);

/// The path of a value in its file, by a search. A path is only asked for once, when a decoding fails; to
/// keep it with each of thousands of places would cost more.
[[nodiscard]] std::string pathOf(const PropertyListValue &value, const PropertyListValue &file);

/// The surroundings of one decoding, from its root to the settling of the references. Used by one thread.
class DecodingContext {
public:
    explicit DecodingContext(DecodingNotes *notes = nullptr) : notes_(notes) {}

    /// Where to note what is passed over; null when nobody asked.
    [[nodiscard]] DecodingNotes *notes() const { return notes_; }

    /// Keeps a reference to another part of the file until all of the file is decoded. `value` is where it
    /// stands in the file.
    void addReference(const PropertyListValue &value, std::function<void(const Library &)> settle);

    /// Settles the references in the order in which they were met; what fails throws ConfigurationError with
    /// the path of the reference in `file`, the root of what was decoded.
    void settleReferences(const Library &library, const PropertyListValue &file);

    /// Slot of a cache shared by all keys naming the same model (type, name). Null until first filled. The
    /// name is a text of the file.
    [[nodiscard]] SharedValuePointer &valueOfName(std::string_view typeName, std::string_view name);

    /// The parsed form of a text of the file, which equal ones share. Throws what parsing throws.
    [[nodiscard]] const expressions::Expression &expression(std::string_view line);
    [[nodiscard]] const RegularExpression &regularExpression(std::string_view pattern);

    /// A place that uses variables.
    struct VariablesUse {
        const PropertyListValue *text;
        const expressions::Expression *condition; ///< Null for a text with references.
    };

    /// Keeps a place that uses variables, to be checked when all of the file is decoded. Like the
    /// declarations it throws ConfigurationError where the names and the paths of all of them are beyond 64
    /// MiB: one long key above many values would take the memory of a machine to explain.
    void addVariablesRecord(const CodingPath &path, const PropertyListValue &text,
                            const expressions::Expression *condition = nullptr);
    void declareVariable(std::string name);
    /// Keeps a text of the file whose populated form tells the names that it declares, until the variables
    /// are known.
    void declareByPopulatedText(std::string_view text,
                                std::vector<std::string> (*names)(const std::string &)) {
        declaringTexts_.emplace_back(text, names);
    }
    /// Declares what the kept texts do with the values that the variables start with; those that cannot be
    /// populated declare nothing.
    void declareByPopulatedTexts(const std::map<std::string, std::string> &initialValues);
    [[nodiscard]] const std::vector<VariablesUse> &variablesUses() const { return uses_; }
    [[nodiscard]] const VariableNames &declaredVariables() const { return declaredVariables_; }
    [[nodiscard]] VariableNames takeDeclaredVariables() { return std::move(declaredVariables_); }

    /// The first one counts, which is the innermost.
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
    std::size_t bytesSpent_ = 0; ///< On names and paths that are kept.
    std::vector<Reference> references_;
    // The keys are texts of the file. Sorted and not hashed: nobody can choose texts that make it slow.
    std::map<std::pair<std::string_view, std::string_view>, SharedValuePointer> valuesOfNames_;
    std::map<std::string_view, expressions::Expression> expressions_;
    std::map<std::string_view, RegularExpression> regularExpressions_;
    std::vector<VariablesUse> uses_;
    VariableNames declaredVariables_;
    std::vector<std::pair<std::string_view, std::vector<std::string> (*)(const std::string &)>>
        declaringTexts_;
};

/// A key that an enclosing item has read from the dictionary of an item: a known one.
struct KeyReadBefore {
    PropertyListKey key;
    const KeyReadBefore *before = nullptr;
};

/// One value about to be decoded, and where it stands.
struct Decoding {
    const PropertyListValue &value;
    const CodingPath &path;
    DecodingContext &context;
    const KeyReadBefore *keysReadBefore = nullptr;
};

} // namespace velmar

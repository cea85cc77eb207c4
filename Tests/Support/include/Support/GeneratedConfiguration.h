#pragma once

#include <Configuration/Description.h>
#include <Foundation/PropertyList.h>

#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// Makes files that are admitted, out of what the items say of their keys.
class GeneratedConfiguration {
public:
    explicit GeneratedConfiguration(std::uint32_t seed);

    /// A whole file with every key given or left out by chance, items within items up to a depth.
    [[nodiscard]] PropertyList file();

    /// Gives a file the models, the variable and the slide that made items refer to.
    void addWhatIsReferredTo(PropertyList &file);

    /// An item with its required keys only; `also` is given too.
    [[nodiscard]] PropertyList leastItem(std::string_view typeName, std::string_view also = {});

    /// A value that a key of an item accepts.
    [[nodiscard]] PropertyList value(std::string_view typeName, const KeyDescription &key);

    [[nodiscard]] const Descriptions &descriptions() const { return descriptions_; }

private:
    [[nodiscard]] bool chance(double probability);
    [[nodiscard]] std::size_t below(std::size_t count);
    [[nodiscard]] PropertyList item(std::string_view typeName, double probability,
                                    std::string_view also = {});
    [[nodiscard]] PropertyList value(const ValueDescription &description);
    [[nodiscard]] std::string text(const ValueDescription &description);

    Descriptions descriptions_;
    std::mt19937 random_;
    double probability_ = 0; ///< Of a key that may be left out.
    int depth_ = 0;
};

} // namespace velmar

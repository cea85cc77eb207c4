#pragma once

#include <Foundation/UUID.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace velmar {

class MandatorySupervised;

/// Keeps supervised elements and reacts to changes of their validity.
class MandatorySupervisor {
public:
    virtual ~MandatorySupervisor() = default;

    /// Files the element under its identifier, replacing a former one, and reacts to its validity.
    virtual void elementDidChange(const std::shared_ptr<MandatorySupervised> &element) = 0;
};

/// Element of a slide that must be valid before the user can go on. Main thread.
class MandatorySupervised {
public:
    virtual ~MandatorySupervised() = default;

    [[nodiscard]] virtual const UUID &mandatoryIdentifier() const = 0;
    [[nodiscard]] virtual bool isValid() const = 0;

    /// The supervisor is held weakly; the element evaluates itself and reports.
    virtual void setMandatorySupervisor(std::weak_ptr<MandatorySupervisor> supervisor) = 0;

    /// Shows the user what is missing.
    virtual void showWarnings() = 0;
};

/// Elements of a supervisor, one per identifier, in the order of first filing.
class MandatoryElements {
public:
    void file(const std::shared_ptr<MandatorySupervised> &element) {
        const auto former = std::ranges::find(elements_, element->mandatoryIdentifier(), identifierOf);
        if (former == elements_.end()) {
            elements_.push_back(element);
        } else {
            *former = element;
        }
    }

    /// Removes the element with the identifier, if there is one.
    void remove(const UUID &identifier) {
        std::erase_if(elements_, [&](const auto &element) { return identifierOf(element) == identifier; });
    }

    /// True if there are none.
    [[nodiscard]] bool areValid() const {
        return std::ranges::all_of(elements_, [](const auto &element) { return element->isValid(); });
    }

    void showWarnings() const {
        // A warning may add and remove elements.
        for (const auto &element : std::vector(elements_)) {
            element->showWarnings();
        }
    }

private:
    static const UUID &identifierOf(const std::shared_ptr<MandatorySupervised> &element) {
        return element->mandatoryIdentifier();
    }

    std::vector<std::shared_ptr<MandatorySupervised>> elements_;
};

} // namespace velmar

#pragma once

#include <Foundation/UUID.h>

#include <algorithm>
#include <map>
#include <memory>

namespace velmar {

class MandatorySupervised;

/// Who is told of the validity of elements, and keeps them.
class MandatorySupervisor {
public:
    virtual ~MandatorySupervisor() = default;

    /// Files the element under its identifier, in place of a former one, and reacts to its validity.
    virtual void elementDidChange(const std::shared_ptr<MandatorySupervised> &element) = 0;
};

/// Something on a slide that must be right before the user goes on. Main thread.
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

/// The elements that a supervisor keeps, by their identifiers.
class MandatoryElements {
public:
    void file(const std::shared_ptr<MandatorySupervised> &element) {
        elements_.insert_or_assign(element->mandatoryIdentifier(), element);
    }

    /// Forgets the element of an identifier, if there is one.
    void remove(const UUID &identifier) { elements_.erase(identifier); }

    /// True also where there are none.
    [[nodiscard]] bool areValid() const {
        return std::ranges::all_of(elements_, [](const auto &entry) { return entry.second->isValid(); });
    }

    void showWarnings() const {
        for (const auto &[identifier, element] : elements_) {
            element->showWarnings();
        }
    }

private:
    std::map<UUID, std::shared_ptr<MandatorySupervised>> elements_;
};

} // namespace velmar

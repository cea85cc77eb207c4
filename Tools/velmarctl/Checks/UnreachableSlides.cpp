#include <Checks/UnreachableSlides.h>

#include <Configuration/Configuration.h>

#include <fmt/format.h>

#include <algorithm>
#include <cstddef>
#include <set>
#include <utility>
#include <variant>

namespace velmar {

namespace {

// Collects the slides that the actions of a file navigate to, and whether an action ends the session.
struct Jumps final : ValueVisitor {
    std::set<std::size_t> targets;
    bool areAnywhere = false;
    bool endSession = false;

    void visit(const VisitedValue &value) override {
        if (const auto *const navigation = value.as<ActionItem::NavigateToSlide>()) {
            using Jump = ActionItem::NavigateToSlide::Jump;
            const Jump jump = navigation->jump();
            if (const auto *const index = std::get_if<Jump::Index>(&jump.value)) {
                targets.insert(static_cast<std::size_t>(index->index));
            } else {
                areAnywhere = true;
            }
        }
        endSession = endSession || value.as<ActionItem::TerminateApp>() != nullptr ||
                     value.as<ActionItem::RestartComputer>() != nullptr ||
                     value.as<ActionItem::ShutdownComputer>() != nullptr ||
                     value.as<ActionItem::LogoutUser>() != nullptr;
    }
};

class Ways {
public:
    Ways(const Configuration &configuration, const std::set<std::size_t> &targets)
        : slides_(configuration._slides.rawValue()),
          hasButtons_(!configuration._navigation.rawValue()._isHidden.rawValue()),
          isReached_(slides_.size()) {
        goFrom(0);
        for (const std::size_t target : targets) {
            goFrom(target);
        }
    }

    [[nodiscard]] bool isReached(std::size_t slide) const { return isReached_[slide]; }
    [[nodiscard]] bool leadsOn(std::size_t slide) const {
        return hasButtons_ && slide + 1 < slides_.size() && !slides_[slide]._hideNextButton.rawValue();
    }
    [[nodiscard]] bool leadsBack(std::size_t slide) const {
        return hasButtons_ && slide > 0 && !slides_[slide]._hidePreviousButton.rawValue();
    }

private:
    void goFrom(std::size_t slide) {
        std::vector<std::size_t> open{slide};
        while (!open.empty()) {
            const std::size_t here = open.back();
            open.pop_back();
            if (isReached_[here]) {
                continue;
            }
            isReached_[here] = true;
            if (leadsOn(here)) {
                open.push_back(here + 1);
            }
            if (leadsBack(here)) {
                open.push_back(here - 1);
            }
        }
    }

    const std::vector<SlideItem> &slides_;
    bool hasButtons_;
    std::vector<bool> isReached_;
};

} // namespace

std::vector<UsageWarning> unreachableSlides(const CheckedFile &file) {
    const Configuration &configuration = file.configuration;
    const std::size_t count = configuration._slides.rawValue().size();
    Jumps jumps;
    configuration.visitValues(file.root, jumps);
    if (jumps.areAnywhere || count == 0 ||
        configuration._window.rawValue()._onScreen.rawValue() == WindowSection::OnScreen::menuBar) {
        return {};
    }
    const CodingPath root;
    const CodingPath slides(root, configuration._slides.name().stringValue);
    const auto places = file.root.find(slides.lastKey())->elements();
    const Ways ways(configuration, jumps.targets);
    std::vector<UsageWarning> warnings;
    const auto warn = [&](std::size_t slide, std::string message) {
        const CodingPath path(slides, slide);
        warnings.push_back(warningAt({places[slide], path}, std::move(message)));
    };
    for (std::size_t slide = 0; slide < count; ++slide) {
        if (!ways.isReached(slide)) {
            const std::size_t first = slide;
            while (slide + 1 < count && !ways.isReached(slide + 1)) {
                ++slide;
            }
            warn(first, fmt::format("Nothing leads to {}: the buttons that would are hidden, and no "
                                    "'NavigateToSlide' action goes there",
                                    slide == first ? fmt::format("slide {}", first)
                                                   : fmt::format("the slides {} to {}", first, slide)));
            continue;
        }
        const bool isLeft = ways.leadsOn(slide) || ways.leadsBack(slide) || jumps.endSession ||
                            std::ranges::any_of(jumps.targets, [&](std::size_t to) { return to != slide; });
        if (!isLeft && slide + 1 < count) {
            warn(slide, fmt::format("Nothing leads away from slide {}: its buttons are hidden, and no "
                                    "action goes to another slide or ends the session",
                                    slide));
        }
    }
    return warnings;
}

} // namespace velmar

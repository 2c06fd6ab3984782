#include "Program/CalculationAnswers.hpp"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "AddOn/Entry/ResourceIds.hpp"
#include "Simulation/Verification/TaskSearch.hpp"
#include "Simulation/Verification/TaskTable.hpp"
#include "Workbench/SessionResources.hpp"

namespace Merivane::Program {

namespace {

using Workbench::AnswerScript;
using Workbench::DialogAnswer;
using Workbench::ItemAnswer;
using Items = std::vector<ItemAnswer>;

ItemAnswer Number(std::int16_t item, double value) {
    ItemAnswer answer;
    answer.item = item;
    answer.value = value;
    return answer;
}

ItemAnswer Check(std::int16_t item, bool checked) {
    ItemAnswer answer;
    answer.item = item;
    answer.checked = checked;
    return answer;
}

/// Places count from 0, entries and rows from 1.
ItemAnswer Entry(std::int16_t item, std::size_t place) {
    ItemAnswer answer;
    answer.item = item;
    answer.entry = {static_cast<std::int16_t>(place + 1), {}};
    return answer;
}

ItemAnswer Row(std::int16_t item, std::size_t place) {
    ItemAnswer answer;
    answer.item = item;
    answer.row = {static_cast<std::int16_t>(place + 1), {}};
    return answer;
}

Items CalculationItems(const CalculationChoices& choices) {
    namespace Item = ResourceIds::Calculation;
    Items items;
    for (const auto& [length, item] : {std::pair{choices.workPlaneHeight, Item::WorkPlaneHeight},
                                       std::pair{choices.wallOffset, Item::WallOffset},
                                       std::pair{choices.borderBand, Item::BorderBand}}) {
        if (length) {
            items.push_back(Number(item, *length));
        }
    }
    for (const auto& [off, item] :
         {std::pair{choices.noVerification, Item::Verify},
          std::pair{choices.noSurfaces, Item::Surfaces}, std::pair{choices.noGlare, Item::Ugr},
          std::pair{choices.noColour, Item::ColouredReflection},
          std::pair{choices.noFills, Item::Fills}, std::pair{choices.noCurves, Item::Curves},
          std::pair{choices.noLabels, Item::CurveLabels},
          std::pair{choices.noLegend, Item::Legend}}) {
        if (off) {
            items.push_back(Check(item, false));
        }
    }
    if (choices.valueSpacing) {
        items.push_back(Check(Item::Values, true));
        items.push_back(Number(Item::ValueSpacing, *choices.valueSpacing));
    }
    if (choices.colorScale) {
        items.push_back(Entry(Item::ColorScale, *choices.colorScale));
    }
    if (choices.levels) {
        ItemAnswer levels;
        levels.item = Item::Levels;
        levels.text = choices.levels;
        items.push_back(std::move(levels));
    }
    return items;
}

/// Chooses a Zone's activity. The entry without activity is chosen first: the dialog tells a
/// suggestion that is taken over from one that was merely left standing by the change alone.
void ChooseActivity(std::size_t zone, const std::string& taskId, Items& items) {
    namespace Item = ResourceIds::ZoneRequirement;
    items.push_back(Row(Item::Zones, zone));
    items.push_back(Entry(Item::Activity, 0));
    const Simulation::TaskRow* const task = Simulation::FindTask(taskId);
    if (!task) {
        return;
    }
    const auto& sections = Simulation::TaskSections();
    const auto section = std::find_if(sections.begin(), sections.end(), [&](const auto& each) {
        return each.first == task->section;
    });
    const auto& tasks = Simulation::TaskTable();
    const auto first = std::find_if(tasks.begin(), tasks.end(), [&](const auto& each) {
        return each.section == task->section;
    });
    items.push_back(Entry(Item::Section, static_cast<std::size_t>(section - sections.begin())));
    items.push_back(Entry(Item::Activity, static_cast<std::size_t>(task - &*first) + 1));
}

bool RequirementItems(const CalculateArguments& arguments, const std::vector<NamedZone>& zones,
                      Items& items, std::string& error) {
    if (arguments.standard) {
        items.push_back(Entry(ResourceIds::ZoneRequirement::Standard,
                              static_cast<std::size_t>(*arguments.standard)));
    }
    for (const ZoneActivity& activity : arguments.activities) {
        std::size_t zone = 0;
        if (!FindZone(zones, activity.zone, zone, error)) {
            error.insert(0, "--atividade: ");
            return false;
        }
        ChooseActivity(zone, activity.taskId, items);
    }
    return true;
}

AnswerScript::iterator FindAnswer(AnswerScript& answers, std::int16_t dialog) {
    const Workbench::DialogResource* const resource = Workbench::FindDialog(dialog);
    return std::find_if(answers.begin(), answers.end(), [&](const DialogAnswer& answer) {
        return answer.kind == Workbench::AnswerKind::Dialog &&
               (answer.dialog.number == dialog ||
                (resource && answer.dialog.text == resource->title));
    });
}

DialogAnswer AnswerTo(std::int16_t dialog, Items items) {
    DialogAnswer answer;
    answer.dialog.number = dialog;
    answer.items = std::move(items);
    return answer;
}

/// Adds the items to the answer that the script has for the dialog, else an answer at `place`.
void AddItems(AnswerScript& answers, std::int16_t dialog, AnswerScript::iterator place,
              Items items) {
    const auto found = FindAnswer(answers, dialog);
    if (found != answers.end()) {
        found->items.insert(found->items.end(), items.begin(), items.end());
    } else {
        answers.insert(place, AnswerTo(dialog, std::move(items)));
    }
}

} // namespace

bool AddCalculationAnswers(const CalculateArguments& arguments, const std::vector<NamedZone>& zones,
                           AnswerScript& answers, std::string& error) {
    Items requirements;
    if (!RequirementItems(arguments, zones, requirements, error)) {
        return false;
    }
    const bool fileBegins = FindAnswer(answers, ResourceIds::Calculation::Dialog) != answers.end();
    AddItems(answers, ResourceIds::Calculation::Dialog, answers.begin(),
             CalculationItems(arguments.choices));
    // A file that answers nothing but the review passes over the choice of activities before it.
    const auto review = FindAnswer(answers, ResourceIds::Reflectance::Dialog);
    const bool passed = review != answers.end() && !fileBegins && !arguments.choices.noVerification;
    if (!requirements.empty() || passed) {
        AddItems(answers, ResourceIds::ZoneRequirement::Dialog, review, std::move(requirements));
    }
    return true;
}

} // namespace Merivane::Program

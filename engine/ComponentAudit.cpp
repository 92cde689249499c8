#include "engine/ComponentAudit.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "engine/FileBytes.h"
#include "engine/FolderListing.h"

namespace ec {

namespace {

using Result = ComponentOutcome::Result;

} // namespace

/// Why the copy is not there, or not as its source; none when it is.
std::optional<ComponentAudit::Fault> ComponentAudit::faultOf(const ComponentParts::Copy& copy) {
    if (copy.text) {
        if (bytesOfFile(copy.destination) == copy.text)
            return std::nullopt;
    } else if (!leadsSomewhere(copy.source)) {
        return Fault{{"“%@” is missing from this copy of the installer.", copy.source}};
    } else if (contains(copy.destination, copy.source)) {
        return std::nullopt;
    }
    return Fault{{"“%@” could not be written.", copy.destination}, true};
}

ComponentAudit::Seen ComponentAudit::look(const Request& request) const {
    const auto partsOf = m_needs.parts.find(request.method);
    if (partsOf == m_needs.parts.end())
        return {};
    ComponentParts parts;
    try {
        parts = partsOf->second(request.item.value_or(0));
    } catch (const std::exception&) { // such an item has nothing to look at
        return {};
    }
    Seen seen{.hasCopies = !parts.copies.empty(), .isNotForHere = parts.isNotForHere};
    if (parts.obstacle)
        seen.fault = Fault{std::move(*parts.obstacle)};
    for (const ComponentParts::Copy& copy : parts.copies) {
        seen.fault = faultOf(copy);
        if (seen.fault)
            break;
    }
    seen.isComplete = seen.hasCopies && !seen.fault;
    if (const auto trace = std::ranges::find_if(parts.traces, leadsSomewhere);
        trace != parts.traces.end())
        seen.trace = std::move(*trace);
    return seen;
}

ComponentAudit::Request ComponentAudit::resolved(Request request) const {
    for (std::uint32_t item = 0; !request.item && item < m_needs.rules.count(); ++item)
        if (m_needs.rules.getItemMethod(item) == request.method)
            request.item = item;
    if (request.item)
        request.name = shown(m_needs.rules.getItemName(*request.item));
    return request;
}

void ComponentAudit::begin(std::vector<Request> requests) {
    m_watched.clear();
    for (Request& request : requests) {
        Request known = resolved(std::move(request));
        Seen before = look(known);
        m_watched.push_back({std::move(known), std::move(before)});
    }
}

void ComponentAudit::end() {
    for (const Watched& watched : m_watched)
        m_needs.session.outcomes.push_back(outcomeOf(watched));
    m_watched.clear();
}

ComponentOutcome ComponentAudit::outcomeOf(const Watched& watched) const {
    const Request& request = watched.request;
    const Seen now = look(request);
    ComponentOutcome outcome{
        .item = request.item, .name = request.name, .present = now.trace.has_value()};
    if (!request.mode || !m_needs.parts.contains(request.method))
        return outcome;
    outcome.mode = request.mode;
    const auto failed = [&](const Fault& fault) {
        const bool refused = fault.mayBeForWantOfRights && m_needs.runner.rightsWereRefused();
        outcome.result = refused ? Result::refused : Result::failed;
        outcome.reason =
            refused ? OutcomeReason{"Administrator rights were refused."} : fault.reason;
    };
    if (request.mode == OpMode::remove) {
        if (now.trace)
            failed({{"“%@” is still there.", *now.trace}, true});
        else if (watched.before.trace)
            outcome.result = Result::removed;
    } else if (now.isComplete) {
        if (!watched.before.isComplete)
            outcome.result = Result::installed;
    } else if (now.fault && now.isNotForHere) {
        outcome.reason = now.fault->reason;
    } else if (now.fault && (now.hasCopies || !now.trace)) {
        failed(*now.fault);
    }
    return outcome;
}

} // namespace ec

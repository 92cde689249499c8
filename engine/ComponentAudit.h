// What really became of the components, read back from the disk: the install methods' own answers
// are lenient on purpose, so the summaries, the events and the exit status go by this. The driver
// has it look before a change and after it. It changes nothing and logs nothing. Main thread.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/CommandRunner.h"
#include "engine/ComponentParts.h"
#include "engine/OpMode.h"
#include "rules/ecRules.h"
#include "wizard/ComponentOutcome.h"
#include "wizard/WizardSession.h"

namespace ec {

class ComponentAudit {
  public:
    /// What of the item of a method lies where.
    using PartsOf = std::function<ComponentParts(std::uint32_t item)>;

    struct Needs {
        const ecRules& rules;
        WizardSession& session;
        const CommandRunner& runner;
        /// By the methods' names. Items of other methods count as unchanged: no change concerns
        /// them.
        std::map<std::string, PartsOf, std::less<>> parts;
    };
    explicit ComponentAudit(Needs needs) : m_needs(std::move(needs)) {}
    ComponentAudit(const ComponentAudit&) = delete;
    ComponentAudit& operator=(const ComponentAudit&) = delete;

    /// A component that is going to be changed.
    struct Request {
        /// Its number in the rules. None: the first of the method, where the rules have one.
        std::optional<std::uint32_t> item;
        std::string method;
        std::optional<OpMode> mode; ///< `copy`, `remove`, or none: it is left alone
        std::string name = {};      ///< for one that the rules don't have
    };

    /// Looks at the components before the change.
    void begin(std::vector<Request> requests);
    /// Looks again, and adds what became of each to the session's outcomes.
    void end();

  private:
    struct Fault {
        OutcomeReason reason;
        bool mayBeForWantOfRights = false;
    };
    /// What is on disk of one component.
    struct Seen {
        bool isComplete = false;               ///< all of it is there as it should be
        std::optional<Fault> fault = {};       ///< why it is not complete
        std::optional<std::string> trace = {}; ///< something of it that is there
        bool hasCopies = false;
        bool isNotForHere = false;
    };
    struct Watched {
        Request request;
        Seen before;
    };

    static std::optional<Fault> faultOf(const ComponentParts::Copy& copy);
    Seen look(const Request& request) const;
    Request resolved(Request request) const;
    ComponentOutcome outcomeOf(const Watched& watched) const;

    Needs m_needs;
    std::vector<Watched> m_watched;
};

} // namespace ec

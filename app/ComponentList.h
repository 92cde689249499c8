// The command `list`: checks what is installed, as the wizard does before it shows its components,
// and prints the components with their states. Changes nothing but the log, which gets the check's
// lines. Needs no window. Main thread.
#pragma once

#include <string>

#include "app/Program.h"
#include "app/RunOutcome.h"

namespace app {

class ComponentList {
  public:
    explicit ComponentList(Program& program) : m_program(program) {}
    ComponentList(const ComponentList&) = delete;
    ComponentList& operator=(const ComponentList&) = delete;

    /// With --events the components are told in a snapshot event; else they are the summary, a
    /// table or, with --json, an array.
    RunOutcome run();

  private:
    Program& m_program;
};

/// Two columns, the members of a group indented below it.
std::string componentTable(const ec::ComponentOutline& outline);
/// The components of a snapshot, each also with its description and its install method.
Event componentArray(const ec::ComponentOutline& outline, const ec::ecRules& rules);

} // namespace app

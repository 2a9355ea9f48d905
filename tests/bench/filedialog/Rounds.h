// Two kinds of dialog measured in turn: what disturbs the machine disturbs both.
#pragma once

#include "DialogRun.h"

#include <functional>
#include <string>

// Registers the rows NAME/peer:bare with hook and NAME/ours. The first row that runs measures both kinds `rounds`
// times, one after the other and each first in every other round; each row then states its kind's median.
// `seconds`: runs one dialog and answers the seconds that count. `goal`: the most that ours may take, in times of
// the bare one.
void RegisterInTurn(const std::string& name, int rounds, double goal, std::function<double(Whose)> seconds);

// InTurn.h: two things measured in turn, so that what disturbs the machine meanwhile disturbs both.
#pragma once

#include <functional>
#include <string>

// Does the thing once and answers the seconds that count; zero or less: it failed.
using Timed = std::function<double()>;

struct InTurn {
    std::string topic;
    std::string peerName;
    int rounds;
    double goalRatio; // the most that ours may take, in times of the peer
};

// Registers the rows TOPIC/peer:NAME and TOPIC/ours. The first of them that runs does both things once to warm up and
// then `rounds` times, one after the other and each first in every other round; each row states its thing's median.
// Returns true, for the initialiser of a static object.
bool registerInTurn(const InTurn& what, Timed peer, Timed ours);

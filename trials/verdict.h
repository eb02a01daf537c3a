#pragma once

#include "trials/program.h"

#include <set>
#include <string>
#include <string_view>

namespace trials {

/// Telephone numbers of recipients, one as often as it stands there.
using Numbers = std::multiset<std::string>;

/// The numbers in a submit's addresses, "name:number;" for each.
Numbers numbers_of(std::string_view addresses);

/// What was found at the points that were tried.
struct Tally {
    int points = 0;
    int twice = 0;
    int forgotten = 0;
    int unconfirmed = 0;
    int unexplained = 0;

    int faults() const { return twice + forgotten + unexplained; }
};

/// Holds the ledger in the current directory against the job and the rows that the program has left: a piece
/// that a recipient got twice, a recipient who is not unconfirmed and lacks one. Returns the unconfirmed.
Numbers judge(const Job& job, Tally& tally);

}  // namespace trials

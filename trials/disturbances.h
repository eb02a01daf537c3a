#pragma once

#include "trials/program.h"
#include "trials/verdict.h"

#include <memory>
#include <string>
#include <vector>

namespace trials {

/// A way to disturb a job, at points of it that are counted from 1.
class Disturbance {
  public:
    explicit Disturbance(std::string name) : name_(std::move(name)) {}
    virtual ~Disturbance() = default;

    const std::string& name() const { return name_; }
    /// Sends the job in the current directory, disturbed at the point, and sends again what is still marked
    /// then. Point 0 is none. Returns how many points the job had.
    virtual int run(const Job& job, int point) const = 0;
    /// Whether just these recipients may be unconfirmed now.
    virtual bool explains(const Job&, const Numbers& unconfirmed) const { return unconfirmed.empty(); }

  private:
    std::string name_;
};

/// All that are tried.
std::vector<std::unique_ptr<Disturbance>> disturbances();

}  // namespace trials

// Samples of a measure, and the table that they are shown in.
#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace tarnix::bench {

using SteadyTime = std::chrono::steady_clock::time_point;
using Span = std::chrono::duration<double, std::milli>;

class Samples {
  public:
    void add(double value) { m_values.push_back(value); }
    void add(Span span) { add(span.count()); }
    bool empty() const { return m_values.empty(); }
    /// 0 without samples.
    double median() const;
    double least() const;
    double most() const;

  private:
    std::vector<double> m_values;
};

/// A Markdown table whose columns are aligned for reading in a terminal too.
class Table {
  public:
    explicit Table(std::vector<std::string> head) : m_rows{std::move(head)} {}
    void row(std::vector<std::string> cells) { m_rows.push_back(std::move(cells)); }
    void print() const;

  private:
    std::vector<std::vector<std::string>> m_rows; ///< the head first
};

std::string number(double value, int decimals, const char* unit = "");

/// What the figure must not exceed, with whether it does.
std::string verdict(double value, double limit, int decimals, const char* unit = "");

} // namespace tarnix::bench

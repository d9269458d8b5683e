// SPDX-License-Identifier: MIT
/// One varied value of a project and the values that it takes.
/// `facility.trench_width_m=0.6:2.0:0.1`, `rain.station=all`, `subsoil....=log:1e-6:1e-3:20`.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "project/fields.h"
#include "project/project.h"

namespace mero::sweep {

/// Thrown for a variation that cannot be used; what() says which one and why.
class VariationError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

class Variation {
  public:
    /// Reads PATH=VALUES. VALUES are a list with commas, a range FROM:TO:STEP (TO included), COUNT values
    /// log:FROM:TO:COUNT with a constant ratio, or `all` of a choice, the stations, the periodicities, the
    /// durations.
    /// @throws VariationError for an unknown path or invalid values
    [[nodiscard]] static Variation parse(std::string_view text, const project::Project& project);

    [[nodiscard]] const std::string& path() const { return path_; }
    [[nodiscard]] const std::string& label() const { return label_; }
    [[nodiscard]] const std::string& unit() const { return unit_; }
    [[nodiscard]] std::size_t size() const { return values_.size(); }
    [[nodiscard]] float value(std::size_t index) const { return values_[index]; }
    /// The value on an axis. It differs from value() for a periodicity, which is stored by its position.
    [[nodiscard]] double magnitude(std::size_t index) const;
    /// The value in a file: a number, the name of a station, a word.
    [[nodiscard]] const std::string& text(std::size_t index) const { return texts_[index]; }
    /// Whether the values are numbers, so that they can form an axis.
    [[nodiscard]] bool isNumeric() const { return numeric_; }
    [[nodiscard]] bool isLogarithmic() const { return logarithmic_; }

    /// Stores the value in the inputs.
    void apply(project::Inputs& inputs, std::size_t index) const;

  private:
    void takeField(const project::Field& field, std::string_view values, const project::Project& project);
    void takeArea(std::string_view values, const project::Project& project);
    void takeAll(const project::Field& field, const project::Project& project);
    void takeNumbers(const std::vector<double>& numbers);
    void add(float value, std::string text);

    std::string path_;
    std::string label_;
    std::string unit_;
    std::vector<float> values_;
    std::vector<std::string> texts_;
    bool numeric_ = false;
    bool logarithmic_ = false;

    const project::Field* field_ = nullptr;          ///< null for a value of a partial area
    std::size_t area_ = 0;                           ///< without `field_`: the partial area
    float project::PartialArea::*member_ = nullptr;  ///< and its member
};

}  // namespace mero::sweep

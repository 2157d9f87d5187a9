// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The "%d%% Done" gauge of a run: one step of 100 / n per sample. Above 100 samples the gauge
// moves one percent each time the steps add up to one. Up to 100 the integration rounds the
// running sum up, while the differentiation table keeps the whole part of position + step.

namespace quindar::calculus {

enum class GaugeRounding { SumUp, PositionDown };

class ProgressGauge {
public:
    explicit ProgressGauge(GaugeRounding rounding) : rounding(rounding) {}
    // One sample done; `first` starts the gauge anew. The new position.
    int advance(long n, double step, bool first);
    int position() const { return at; }

private:
    GaugeRounding rounding;
    double sum = 0.0;
    int at = 0;
};

}  // namespace quindar::calculus

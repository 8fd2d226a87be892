#pragma once

#include "core/Relations.h"
#include "core/SaturationCurve.h"
#include "core/WetBulbBalance.h"

/// The sign of WetBulbResidual, told without its divisions and roundings where these can't change it. The
/// search asks for nothing but signs, and most of its candidates lie far from the wet bulb.
///
/// With s the saturation pressure at the candidate and the balance (latent ws - sensible) / divisor, the
/// residual is excess / (divisor (p - s)), where
///     excess = latent 0.62198 s - (w divisor + sensible) (p - s).
/// The three roundings to single on the way to the candidate's humidity ratio, each of at most 2^-24 of its
/// value, move the excess by less than 3 x 2^-24 times the sum of its terms' magnitudes, so an excess beyond
/// 2^-22 times that sum keeps its sign.
class ResidualSign
{
public:
    ResidualSign(Single tdb, Single p, Single w) : tdb_(tdb), p_(p), w_(w) {}

    /// @return 1 or -1 where the sign is certain and no step of the residual can fail; 0 where neither is
    /// known
    int at(Single candidate) const
    {
        const Single absolute = ToAbsolute(candidate);
        const SaturationCurve* curve = SaturationCurveAt(absolute);
        if (curve == nullptr)
            return 0;
        const WetBulbBalance balance(candidate, tdb_);
        const double s = std::exp(LogSaturationPressure(*curve, absolute));
        if (!(balance.latent > 0.0 && balance.divisor > 1.0 && s < 0.99 * p_ && std::fabs(w_) < greatestW))
            return 0;

        const double gain = balance.latent * WaterToAirMassRatio; // each times s
        const double carried = w_ * balance.divisor;
        const double loss = carried + balance.sensible;
        const double size = (std::fabs(carried) + std::fabs(balance.sensible)) * p_;
        const double excess = (gain + loss) * s - loss * p_;
        const double certain =
            singleStep * gain * s + (singleStep * size + leastResidual * balance.divisor * p_);
        return static_cast<int>(excess > certain) - static_cast<int>(excess < -certain);
    }

private:
    // Bounds that keep the product of two residuals from underflow and overflow in single.
    static constexpr double leastResidual = 1e-15;
    static constexpr double greatestW = 1e9;

    static constexpr double singleStep = 0x1p-22;

    Single tdb_;
    double p_;
    double w_;
};

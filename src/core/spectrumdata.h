#pragma once

#include "core/data.h"
#include "core/types.h"

#include <map>
#include <vector>

namespace Zel3D {

/// A family of spectra: the outer key is the position of a spectrum along the axis, the inner key the
/// position along the other horizontal axis, the inner value the height z.
///
/// A height that is not finite is a hole. It widens no bounding box, nor does a key that is not finite; the
/// finite keys of a hole do.
class VORANPLOT_EXPORT SpectrumData : public Data
{
public:
    using Map = std::map<double, std::map<double, double>>;

    /// No spectra, along x.
    SpectrumData();

    /// The axis of the outer key, XAxis or YAxis. The box stays until the next setData().
    void setAxis(BaseAxisType newAxis) { axis = newAxis; }
    BaseAxisType getAxis() const { return axis; }

    /// Stores the spectra and computes the box; the steps stay.
    ///
    /// Along the inner key the box always contains the outer key of the first spectrum that is not empty,
    /// too. What has no value at all runs from +infinity to -infinity.
    void setData(const Map& data);
    void setData(Map&& data);
    /// Takes over the heights of spectra with the very positions of those stored, without allocating nodes,
    /// and with them the heights of the box. False, and nothing changed, for other positions. Throws
    /// std::bad_alloc before anything is changed.
    bool setHeights(const Map& data);
    const Map& getSpectrum() const { return spectrum; }
    /// A copy whose points take their memory in the order in which they are walked. After a plain copy a walk
    /// takes ten times as long.
    static Map copyInOrder(const Map& data);

    void clear() override;
    bool isEmpty() const override;

    /// The number of spectra.
    unsigned int columns() const { return unsigned(spectrum.size()); }
    /// Always 0: spectra need not have the same length.
    unsigned int rows() const { return 0; }

private:
    void computeBox();
    /// Puts the heights of the first points back.
    void restoreHeights(const std::vector<double>& heights);

    BaseAxisType axis = XAxis;
    Map spectrum;
};

} // namespace Zel3D

#pragma once

#include "view/displaylist.h"

class QGLContext;

namespace Zel3D {

/// The display lists of a plot, and which of them no longer show what the plot holds.
struct PlotLists
{
    /// What a scene is drawn with.
    struct Drawing
    {
        DisplayList normals;
        DisplayList additions; ///< drawn before the data
        DisplayList data;
        DisplayList mesh; ///< called from within the list of the data, so that it can be compiled alone
        bool isMeshApart = false; ///< whether the list of the data calls that of the mesh

        /// Needs the context of the lists.
        void remove();
        void forget();
    };

    Drawing drawing;
    Drawing preview; ///< the same with fewer nodes
    Drawing picture; ///< while a picture is drawn with lists of its own, those of the window
    DisplayList selection;
    const QGLContext* context = nullptr; ///< where the lists live
    const QGLContext* pictureContext = nullptr;
    bool isPictureApart = false; ///< whether a picture has lists of its own
    bool areExchanged = false;   ///< while those of a picture or a preview stand in the window's place
    bool isDataOld = false;      ///< and all that goes with the data
    bool areColorsOld = false;   ///< of the data alone
    bool areAdditionsOld = false;
    bool isMeshOld = false;
    bool areNormalsOld = false;
    bool isSelectionOld = true;

    /// What can be picked has no colours.
    void markColors() { areColorsOld = areAdditionsOld = areNormalsOld = true; }
    void markAdditions() { areAdditionsOld = isSelectionOld = true; }
};

/// Puts other lists in the place of the window's for a scope.
class ListExchange
{
public:
    ListExchange(PlotLists& plotLists, PlotLists::Drawing& others);
    ~ListExchange();
    ListExchange(const ListExchange&) = delete;
    ListExchange& operator=(const ListExchange&) = delete;

private:
    PlotLists& lists;
    PlotLists::Drawing& other;
};

} // namespace Zel3D

#pragma once

#include "core/export.h"
#include "core/types.h"
#include "plots/plottypes.h"
#include "view/zelglwidget.h"

#include <QGradient>
#include <QList>
#include <QMap>
#include <QVariant>

#include <array>
#include <memory>

class QAction;
class QMenu;
class QToolBar;

namespace Zel3D {

class Addition;
class CoordinateSystem;
class Data;
class DataColor;
class Label;
class Legend;
class PickPoints;
class PlotActions;
struct PlotLists;
struct PlotParts;
class StyleAction;
class SettingsDialogOptions;
class Title;
struct PictureFrame;
using HoverKey = std::array<double, 14>;

/// The widget that every plot is: the view plus data colouring, additions, display lists, automatic scaling
/// and the plot's own settings. The subclass supplies the data and the geometry of each plot style.
///
/// Setters store, emit their signal and do not repaint; what they change in the geometry is rebuilt at the
/// next paint. The slots repaint, and do nothing before the view is initialised. The properties are for forms
/// and repaint, too.
class VORANPLOT_EXPORT BasePlot : public ZelGLWidget
{
    Q_OBJECT
    // Forms apply them in this order: a look comes before what may differ from it, the background included.

    /// The look chosen last here; a change does what Look::applyTo() does, NoLook nothing.
    Q_PROPERTY(StandardLook look READ getStandardLook WRITE writeLook)
    /// The text of the title.
    Q_PROPERTY(QString title READ getTitleText WRITE writeTitle)
    /// The name of the current gradient. A name that the plot does not hold is looked up in
    /// gradientPresets(); an unknown one changes nothing and is warned about.
    Q_PROPERTY(QString gradient READ getGradientName WRITE writeGradient)
    Q_PROPERTY(QColor backgroundColor READ getBackgroundColor WRITE writeBackgroundColor)
public:
    /// The looks of the library by name.
    enum StandardLook : int { NoLook, LightLook, DarkLook, PrintLook };
    Q_ENUM(StandardLook)

    class MeshSettings;
    class NormalsSettings;
    class GradientsSettings;
    class SingleAxesSettings;
    class BaseAxesSettings;
    class AxesSettings;
    class BasePlotSettings;

    /// \a name becomes the object name and the prefix of every settings key.
    BasePlot(const QString& name, const QString& organization, const QString& application,
             QWidget* parent = nullptr, const QGLWidget* shareWidget = nullptr, Qt::WindowFlags flags = {});
    ~BasePlot() override;

    QSize sizeHint() const override;        ///< 400 x 400
    QSize minimumSizeHint() const override; ///< 50 x 50

    /// @name Reading
    /// @{
    const BasePlotSettings& getSettings() const { return *settings; }
    /// The data that is drawn; may be null.
    const Data* getData() const { return data; }
    /// Owned by the plot; may be null.
    const DataColor* getDataColor() const { return dataColor.get(); }
    const QGradient& getCurrentGradient() const { return currentGradient; }
    const QList<Addition*>& getAdditions() const { return additions; }
    const Addition* getStyleAddition() const { return styleAddition.get(); }
    /// The box of the data as drawn.
    const Parallelepiped& getHull() const { return hull; }
    const Parallelepiped& getFixedHull() const { return fixedHull; }
    const Pair<double>& getGradientRange() const { return gradientRange; }
    bool isAutoScaling() const { return boxScaling == CubeScaling; }
    BoxScaling getBoxScaling() const { return boxScaling; }
    bool isAutomaticEdges() const { return automaticEdges; }
    bool isAutomaticFaces() const { return automaticFaces; }
    bool isPickHighlight() const;
    bool isPreviewing() const;
    bool isPreviewShown() const; ///< whether the last frame was a preview
    bool isDataCentred() const { return dataCentred; }
    /// What was subtracted from the data in the plot before they were drawn; see setDataCentred(). The hull,
    /// the range of the colours and the places of markers count from it; axes, legend and picks state the
    /// caller's values.
    const ValueXYZ<double>& getDataOrigin() const;
    bool isLogarithmicData(BaseAxisType axis) const { return logarithmicData[std::size_t(axis)]; }
    /// What stands around the data, owned by the plot. Changes show at the next paint; the intervals and
    /// scales of the axes are changed through the plot.
    CoordinateSystem& getCoordinateSystem() { return *coordinateSystem; }
    const CoordinateSystem& getCoordinateSystem() const { return *coordinateSystem; }
    Title& getTitle() { return *title; }
    const Title& getTitle() const { return *title; }
    Legend& getLegend() { return *legend; }
    const Legend& getLegend() const { return *legend; }
    /// Owned by the plot; null shows all pages.
    const SettingsDialogOptions* getSettingsDialogOptions() const { return settingsDialogOptions.get(); }
    /// The proportions that undo the last automatic scale; see AutoScaling::inverseOf().
    ValueXYZ<double> getAutoScaleInverse() const;
    /// Height of the contour plot: the data's maximum z for the top plane, minimum z for the bottom, else 0.
    double getViewProjectionZ() const;
    /// @}

    /// @name Actions
    /// @{
    /// A bar of the plot, made without a parent. The host that places it takes it over, may delete it at any
    /// time and may delete the plot first; the plot deletes the bars that nobody took. Null for a bar that
    /// its host has deleted.
    QToolBar* getToolBar(PlotToolBarType type) const;
    /// The bars as submenus and the settings; owned by the plot. Null until the subclass has made it.
    QMenu* getContextMenu() const;
    /// The exclusive actions of the plot styles, owned by the plot.
    QList<StyleAction*> getStyleActions() const;
    /// Check the actions that stand for the grid style and the plot style in force, without choosing them.
    void updateGridStyleToolBar();
    void updatePlotStyleToolBar();
    /// @}

    /// @name Changing: true when the value changed; the signal named after the property follows
    /// @{
    bool setResolution(int step); ///< node step; below 1 is refused
    bool setPolygonOffset(double factor);
    bool setShadingStyle(ShadingStyle style);
    bool setViewProjection(ViewProjection projection);
    bool setNormalsVisible(bool on); ///< emits normalsChanged()
    bool setMeshSmooth(bool on);
    bool setMeshColor(const QColor& color);
    bool setMeshLineWidth(double pixels); ///< negative is refused
    bool setMeshXVisible(bool on);        ///< the lines along a column
    bool setMeshYVisible(bool on);        ///< the lines along a row
    bool setNormalsQuality(double sides); ///< sides of an arrow's head
    bool setNormalsLength(double part);   ///< as a fraction of the diagonal of the data's box
    bool setCylinderRibNumber(int ribs);
    bool setCylinderRadius(double sceneUnits); ///< the signal carries the radius truncated to an int
    bool setCylinderFrameVisible(bool on);
    bool setCylinderAngleZ(double degrees);
    bool setCylinderMultiplier(double factor); ///< emits cylinderMultiplier()
    bool setCylinderOpacity(int percent);      ///< 0 to 100; other values are refused
    bool setDotSize(double pixels);
    bool setDotSmooth(bool on);
    bool setAxesScaleType(BaseAxisType axis, ScaleType scale); ///< emits axesScaleChanged()
    bool setMinorInterval(BaseAxisType axis, ScaleType scale, int count);
    bool setMajorInterval(BaseAxisType axis, ScaleType scale, int count);
    /// Keeps the gradient under the name, makes it the current one and colours the data with it; no signal.
    bool setGradient(const QString& name, const QGradient& gradient);
    /// All gradients that the plot offers and the name of the one that colours the data; an unknown name
    /// colours nothing. Unlike setGradient() it marks them for saving. Emits gradientsChanged().
    bool setGradients(const QString& current, const QMap<QString, QGradient>& gradients);
    /// On: the hull is drawn as a cube and the user cannot scale. Off: back to the scale before. Only
    /// boxScalingChanged() follows.
    bool setAutoScaling(bool on);
    /// How the scale of the view comes about; CubeScaling is automatic scaling.
    bool setBoxScaling(BoxScaling scaling);
    /// A set of Grid bits: the faces of the box with grid lines.
    bool setGridStyle(int faces);
    /// On, the default: for each direction the one edge on the outline of the box where numbers are easiest
    /// to read shows its axis, as the view turns. Off: the set of axes stays as it is and is the host's.
    bool setAutomaticEdges(bool on);
    /// On: of each face with grid lines and the one opposite to it, the one behind the data shows the lines,
    /// as the view turns. Off, the default: the faces of the grid style.
    bool setAutomaticFaces(bool on);
    /// On: the picked point is marked in the scene. Off by default.
    bool setPickHighlight(bool on);
    /// Marks a point in scene units as a pick does, if that is on, until the next pick. Repaints.
    void highlightPoint(const QVector3D& point);
    /// On: while a person moves the view of a grid that takes over 50 ms a frame, fewer nodes are drawn, with
    /// the word "Preview". Never in pictures and picks. Off by default, not persisted.
    bool setPreviewing(bool on);
    /// On: the plain values of a direction become decimal exponents while data are loaded, and its scale
    /// logarithmic. Values at or below zero are then missing. Holds from the next load on. No signal of its
    /// own.
    bool setLogarithmicData(BaseAxisType axis, bool on);
    /// On: where a direction's values lie so far from zero that single precision, in which the scene is
    /// drawn, would show steps, such as time stamps, their middle is subtracted while data are loaded.
    /// Heights of spectra stay, which stand on zero, and so do points and cells, which are given in single
    /// precision, and logarithmic directions. Off by default; holds from the next load on. No signal of its
    /// own.
    bool setDataCentred(bool on);
    /// @}

    /// A start view: from the front left and above, with the box of the data filling \a part of the window's
    /// width or height. No repaint; call it after loading.
    void fitView(double part = 0.7);
    /// Takes ownership; the previous colouring is deleted. Null draws nothing.
    void setDataColor(DataColor* coloring);
    /// The marker of plot style -1; takes ownership, deletes the previous one. Null for none.
    void setStyleAddition(Addition* addition);
    /// What the settings dialog shows; takes ownership, deletes the previous options. Null for all pages.
    void setSettingsDialogOptions(SettingsDialogOptions* options);
    /// The value range of the legend and the colours; equal ends switch back to the hull's z range. No
    /// repaint.
    void setGradientRange(const Pair<double>& range);
    /// A box that overrides the data's own; equal corners or a corner at the origin switch it off.
    void setFixedHull(const Parallelepiped& box);
    /// Stores the box of the data, rescales and updates the legend. False when it is the stored one, which
    /// updates the legend alone.
    bool setHull(const Parallelepiped& box);
    /// Tells the legend the range of the colours.
    void updateLegend();
    /// Takes the box as the scene's corners and places the lights; nothing when it has these corners.
    void createCoordinateSystem(const QVector3D& firstCorner, const QVector3D& secondCorner);
    /// The same with the hull, calculated anew.
    void createCoordinateSystem();
    /// Reads the records of the twelve axes and of the legend's axis (line, ticks, numbers, name, arrow) back
    /// from where slotSaveSettings() writes them. slotLoadSettings() does not: call this after it. The
    /// intervals stay those of the plot's own record. No repaint.
    void loadAxesSettings();
    /// Marks everything as saved, but for the gradients; see BasePlotSettings::resetNeedSave().
    void resetNeedSave();

    /// Compile the display lists now: the data and additions, the normals, what can be picked. Each makes the
    /// plot's context current; without one they are made when it comes.
    void updateData();
    void updateNormals();
    void updateSelection();

    /// @name Pictures
    /// The steps of which pictures are made; see PictureWriter, which calls them.
    /// @{

    /// Makes the display lists of a picture: strokes are wider by a factor and, for feedback mode, told. The
    /// window's own serve where they hold the same, unless the picture is to be \a kept whatever changes.
    /// Works on a plot that was never shown. False, with nothing to end, without a context or while it loads.
    bool beginPicture(double strokeScale, bool tellStrokes, bool kept = false);
    /// Draws a part of a picture into the current framebuffer, at a viewport from (0, 0) of the tile's size;
    /// puts back viewport and matrices. For between the two others, with the plot's own context current.
    void paintPicture(const PictureFrame& frame);
    /// Frees what beginPicture() made. Makes the plot's context current.
    void endPicture();
    /// Every text that the last frame, or the last picture, showed. Valid until the plot draws again.
    QVector<const Label*> getShownTexts() const;
    /// @}

protected:
    void drawWithoutTransform() override;
    void draw() override;

public:
    QVector3D first() override;
    QVector3D second() override;

protected:
    void select() override;
    void loadSettings() override;
    void saveSettings() override;

public:
    /// Adds a copy of an addition, unless that very object is already held. Returns the last addition held,
    /// which is the copy when one was made.
    virtual Addition* addAddition(Addition& addition);
    /// Deletes an addition of the plot; false when it is none.
    virtual bool removeAddition(Addition* addition);
    /// The additions as values that can be compared and stored; see describeMarker().
    QVariantList getMarkers() const;
    /// Makes the additions those of the list. What exists already stays, changed where it differs, and so do
    /// all additions of a class of the host's; others that the list lacks are deleted. Entries of an unknown
    /// kind are ignored. What is new is saved and loaded with the plot; what addAddition() added is not.
    /// Returns whether anything changed; additionsChanged() follows.
    bool setMarkers(const QVariantList& markers);
    /// False for a negative style, which changes nothing, and for the style in force. Otherwise deletes the
    /// style addition; a change emits plotStyleChanged().
    virtual bool setPlotStyle(int style);
    /// The range that the colours and the legend span: the gradient range, or the hull's z range when that is
    /// empty.
    virtual Pair<double> getLegendRange() const;

public slots:
    virtual void slotSetResolution(int step);
    virtual void slotSetPlotStyle(int style);
    /// Repaints on a change, initialised or not, and emits nothing.
    virtual void slotSetGridStyle(int faces);
    virtual void slotSetShadingStyle(Zel3D::ShadingStyle style);
    virtual void slotShowNormals(bool on);
    virtual void slotSetAutoScaling(bool on);
    /// Sets the title's text; no repaint.
    virtual void slotSetTitle(const QString& text);
    /// Opens the settings dialog of a subclass that has one.
    virtual void slotSettingsDialog();
    /// Chooses the style of a StyleAction; any other action does nothing.
    void slotPlotStyleChanged(QAction* action);
    /// Shows or hides the grid lines of an action's face; repaints on a change.
    void slotGridStyleChanged(QAction* action);
    /// Off hides the marker of a visible legend; on makes what can be picked.
    void slotSelectingChanged(bool on);
    /// While picking is on, marks the picked height on a visible legend.
    void slotSelectedObject(const Zel3D::SelectedObjectsInfo& info);
    /// The standard views: rotations about x and z, in degrees, by (90, 0), (-90, 0), (0, 90), (0, -90),
    /// (0, 0) and (0, 180).
    void slotTopView();
    void slotBottomView();
    void slotLeftView();
    void slotRightView();
    void slotFrontView();
    void slotBackView();
    void slotSetBoxScaling(Zel3D::BoxScaling scaling);
    void slotSetPickHighlight(bool on);

protected:
    /// Checks the action of the plot style in force.
    virtual void checkStyleActionTriggered();

public:
    /// Switches the kind of container that is drawn; see Data::getDataType().
    virtual void updateDataType(int type) = 0;
    /// Empties the plot.
    virtual void clearData() = 0;

protected:
    /// Passes the box of the data to setHull().
    virtual void calculateHull();
    /// Send the geometry of the data, the normals, the additions; a list is being compiled.
    virtual void createData();
    virtual void createNormals() = 0;
    virtual void createAdditions();
    virtual void createAddition(Addition& addition);
    /// Send what can be picked, with its names.
    virtual void selectData();
    virtual void selectAdditions();
    virtual void selectAddition(Addition& addition);
    virtual int getNumberSelectedData();
    virtual int getNumberSelectedAdditions();
    virtual int getNumberSelectedAddition(Addition& addition);
    /// The points at which selectMarkers() places markers; here none.
    virtual std::unique_ptr<PickPoints> createPickPoints() const;
    /// Applies the automatic scale or the user's to the view.
    virtual void updateAutoScale();
    virtual ValueXYZ<double> recalculateAutoScale();
    /// Adds the styles of the subclass with addStyleAction(). The constructor of each subclass calls this,
    /// createPlotStyleToolBar() and createContextMenu(), in that order.
    virtual void createPlotStyleActions() = 0;
    /// Draws behind the lists what the subclass keeps out of them; here nothing. The state is put back.
    virtual void drawArrays();
    /// Sends the mesh lines, not in colours of the data, for a createData() with sendMesh(); here nothing.
    virtual void createMesh();
    /// Whether the data sent in the plot's state depend on a value, whose change compiles them again. True
    /// here; a subclass that knows better saves time, one that sends more than its base says so.
    virtual bool isGeometryInput(GeometryInput input) const;
    /// By what the node step can be multiplied for a preview so that the data are still recognised; 1, here,
    /// for no preview.
    virtual int getCoarsest() const;

signals:
    void plotStyleChanged(int style);
    void gridStyleChanged(int faces);
    void normalsChanged(bool visible);
    void resolutionChanged(int step);
    void polygonOffsetChanged(double factor);
    void shadingStyleChanged(Zel3D::ShadingStyle style);
    void viewProjectionChanged(Zel3D::ViewProjection projection);
    /// For hosts and dialogs; the plot itself never emits it.
    void plotStyleToolBarChanged(const QList<QAction*>& actions);
    void meshSmoothChanged(bool on);
    void meshColorChanged(const QColor& color);
    void meshLineWidthChanged(double pixels);
    void meshXVisibleChanged(bool on);
    void meshYVisibleChanged(bool on);
    void normalsQualityChanged(double sides);
    void normalsLengthChanged(double part);
    void cylinderRibNumberChanged(int ribs);
    void cylinderRadiusChanged(int sceneUnits);
    void cylinderFrameVisibleChanged(bool on);
    void cylinderAngleZChanged(double degrees);
    void cylinderMultiplier(double factor);
    void dotSizeChanged(double pixels);
    void dotSmoothChanged(bool on);
    /// For hosts and dialogs; the plot itself never emits these two.
    void autoScalingChanged(bool on);
    void legendPositionChanged(unsigned int position);
    void minorIntervalChanged(unsigned int count);
    void majorIntervalChanged(unsigned int count);
    void axesScaleChanged(Zel3D::ScaleType scale);
    void boxScalingChanged(Zel3D::BoxScaling scaling);
    void automaticEdgesChanged(bool on);
    void automaticFacesChanged(bool on);
    void pickHighlightChanged(bool on);
    void previewingChanged(bool on);
    void cylinderOpacityChanged(int percent);
    void gradientsChanged();
    /// By setMarkers() alone.
    void additionsChanged();

protected:
    void initializeGL() override;
    void paintGL() override;
    int prepareSelection(const QPointF& position) override;
    void handlingChanged() override;
    void frameDrawn(double milliseconds) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

    void createViewsToolBar();
    void createGridStyleToolBar();
    void createPlotStyleToolBar();
    void createContextMenu();
    /// The action of one plot style, owned by the plot; \a icon is a path, \a label the translated text.
    StyleAction* addStyleAction(int style, const QString& icon, const QString& label);
    BasePlotSettings& settingsRecord() { return *settings; }
    Addition* heldStyleAddition() { return styleAddition.get(); }
    /// For selectData() and selectAddition(): a pick sends a copy of the marker at every pick point that may
    /// lie under the cursor, each under a name of its own. The second marks the points' projections onto the
    /// plane of the contour plot.
    void selectMarkers(const Addition& marker);
    void selectProjections(const Addition& marker);
    /// For checks: a pick sends what is far from the cursor, too, and must find the same.
    void setPickEverything(bool on);
    /// For the property of the subclass.
    int getPlotStyle() const;
    void writePlotStyle(int style);
    /// Forgets what can be picked; for when the data go.
    void clearPickPoints();
    /// Not owned; null for none.
    void setData(Data* container);
    /// The data's box, or the fixed box when that is usable; zero where the data has no finite extent.
    Parallelepiped dataBox() const;
    /// Whether there is data, a colouring and at least one stop, so that something can be drawn.
    bool canDrawData() const;
    /// The directions whose plain values become exponents while loading.
    const std::array<bool, 3>& getLogarithmicData() const { return logarithmicData; }
    /// The directions whose values in the plot are exponents.
    const std::array<bool, 3>& getLoadedLogarithmic() const { return loadedLogarithmic; }
    /// Gives the directions whose kind of values changed since the last load their scale.
    void applyLogarithmicData();
    /// What the container that is being loaded subtracted.
    void setDataOrigin(const ValueXYZ<double>& origin);
    /// Says once that so many values at or below zero have no exponent.
    void warnOfLostValues(int count);
    /// Frees the list of the data and additions; the context is made current.
    void removeDataList();
    /// The geometry is compiled again at the next paint.
    void markDataChanged();
    /// The same, and the normals too: their places or colours changed.
    void markAllChanged();
    /// For createData(): what createMesh() sends is drawn here. A change of the mesh compiles it alone.
    void sendMesh();
    /// What createData(), createMesh() and createNormals() multiply the node step with.
    int getCoarseness() const;

private:
    StandardLook getStandardLook() const { return standardLook; }
    QString getTitleText() const;
    QString getGradientName() const;
    void writeLook(StandardLook look);
    void writeTitle(const QString& text);
    void writeGradient(const QString& name);
    void writeBackgroundColor(const QColor& color);

    void createActions();
    void rebuildWhatChanged();
    bool prepareLists();
    void updateAdditions();
    void updateDataList();
    void updateMesh();
    void preparePreview();
    void removePreview();
    void repaintMark();
    HoverKey hoverKey() const;
    void drawUnhovered();
    bool drawHovered();
    void drawMarks();
    void markMeshChanged(GeometryInput input);
    void markInputChanged(GeometryInput input);
    void compileSelection();
    void highlightPick(const SelectedObjectsInfo& info);
    void warnWithoutGradient();
    void applyShading() const;
    void drawCoordinateSystem();
    void drawData();
    /// Device pixels per logical pixel of what is drawn on.
    double textRatio() const;
    void drawTile();
    double reservedTop(const QSize& window);
    void saveMarkers() const;
    void loadMarkers();
    void applyScale(BaseAxisType axis);
    void applyIntervals(BaseAxisType axis);
    void applyIntervals();

    Data* data = nullptr;
    std::unique_ptr<DataColor> dataColor;
    std::unique_ptr<PlotLists> lists;
    std::unique_ptr<PlotParts> parts;
    std::unique_ptr<Addition> styleAddition;
    QList<Addition*> additions;
    QGradient currentGradient;
    BoxScaling boxScaling = ManualScaling;
    StandardLook standardLook = NoLook;
    std::unique_ptr<CoordinateSystem> coordinateSystem;
    std::unique_ptr<Title> title;
    std::unique_ptr<Legend> legend;
    bool automaticEdges = true;
    bool automaticFaces = false;
    bool dataCentred = false;
    std::array<bool, 3> logarithmicData{};
    std::array<bool, 3> loadedLogarithmic{}; ///< as the data in the plot were loaded
    std::unique_ptr<BasePlotSettings> settings;
    std::unique_ptr<SettingsDialogOptions> settingsDialogOptions;
    Parallelepiped hull;
    Parallelepiped fixedHull;
    Pair<double> gradientRange;
    std::unique_ptr<PlotActions> actions;
};

} // namespace Zel3D

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Field</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
</context>
<context>
    <name>Gesture</name>
    <message>
        <source>Left button</source>
        <translation>Linke Taste</translation>
    </message>
    <message>
        <source>Middle button</source>
        <translation>Mittlere Taste</translation>
    </message>
    <message>
        <source>Right button</source>
        <translation>Rechte Taste</translation>
    </message>
    <message>
        <source>Back button</source>
        <translation>Zurück-Taste</translation>
    </message>
    <message>
        <source>Forward button</source>
        <translation>Vorwärts-Taste</translation>
    </message>
    <message>
        <source>No modifier</source>
        <translation>Keine Zusatztaste</translation>
    </message>
</context>
<context>
    <name>GradientManager</name>
    <message>
        <source>Default</source>
        <translation>Vorgabe</translation>
    </message>
</context>
<context>
    <name>GradientName</name>
    <message>
        <source>Greys</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Cool-warm</source>
        <translation>Kalt-warm</translation>
    </message>
    <message>
        <source>Blue to yellow</source>
        <translation>Blau nach Gelb</translation>
    </message>
</context>
<context>
    <name>Look</name>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Druck</translation>
    </message>
</context>
<context>
    <name>PictureSession</name>
    <message>
        <source>The plot cannot be drawn: it is just loading.</source>
        <translation>Das Diagramm kann nicht gezeichnet werden: Es lädt gerade.</translation>
    </message>
</context>
<context>
    <name>PlotBindings</name>
    <message>
        <source>Turn around X</source>
        <translation>Um X drehen</translation>
    </message>
    <message>
        <source>Turn around Y</source>
        <translation>Um Y drehen</translation>
    </message>
    <message>
        <source>Turn around Z</source>
        <translation>Um Z drehen</translation>
    </message>
    <message>
        <source>Stretch along X</source>
        <translation>Entlang X strecken</translation>
    </message>
    <message>
        <source>Stretch along Y</source>
        <translation>Entlang Y strecken</translation>
    </message>
    <message>
        <source>Stretch along Z</source>
        <translation>Entlang Z strecken</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Move sideways</source>
        <translation>Seitlich verschieben</translation>
    </message>
    <message>
        <source>Move up and down</source>
        <translation>Auf und ab verschieben</translation>
    </message>
    <message>
        <source>Turn around X, forward</source>
        <translation>Um X drehen, vorwärts</translation>
    </message>
    <message>
        <source>Turn around X, back</source>
        <translation>Um X drehen, rückwärts</translation>
    </message>
    <message>
        <source>Turn around Y, forward</source>
        <translation>Um Y drehen, vorwärts</translation>
    </message>
    <message>
        <source>Turn around Y, back</source>
        <translation>Um Y drehen, rückwärts</translation>
    </message>
    <message>
        <source>Turn around Z, forward</source>
        <translation>Um Z drehen, vorwärts</translation>
    </message>
    <message>
        <source>Turn around Z, back</source>
        <translation>Um Z drehen, rückwärts</translation>
    </message>
    <message>
        <source>Shrink along X</source>
        <translation>Entlang X stauchen</translation>
    </message>
    <message>
        <source>Shrink along Y</source>
        <translation>Entlang Y stauchen</translation>
    </message>
    <message>
        <source>Shrink along Z</source>
        <translation>Entlang Z stauchen</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>Nach rechts verschieben</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>Nach links verschieben</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben verschieben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten verschieben</translation>
    </message>
    <message>
        <source>The key switches the lighting.</source>
        <translation>Die Taste schaltet die Beleuchtung.</translation>
    </message>
    <message>
        <source>The key switches the picking of values.</source>
        <translation>Die Taste schaltet das Ablesen von Werten.</translation>
    </message>
    <message>
        <source>The key switches the information on frames.</source>
        <translation>Die Taste schaltet die Angaben zu den Bildern.</translation>
    </message>
    <message>
        <source>The key switches the normals.</source>
        <translation>Die Taste schaltet die Normalen.</translation>
    </message>
    <message>
        <source>The key switches automatic scaling.</source>
        <translation>Die Taste schaltet die automatische Skalierung.</translation>
    </message>
    <message>
        <source>Pick values</source>
        <translation>Werte ablesen</translation>
    </message>
    <message>
        <source>The same gesture does &quot;%1&quot;.</source>
        <translation>Dieselbe Geste bewirkt „%1“.</translation>
    </message>
    <message>
        <source>The right button opens the menu.</source>
        <translation>Die rechte Taste öffnet das Menü.</translation>
    </message>
    <message>
        <source>There is no action &quot;%1&quot; of mouse or keys.</source>
        <translation>Es gibt keine Aktion „%1“ für Maus oder Tasten.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no gesture for &quot;%2&quot;.</source>
        <translation>„%1“ ist keine Geste für „%2“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not used for &quot;%2&quot;: %3</source>
        <translation>„%1“ wird nicht für „%2“ verwendet: %3</translation>
    </message>
</context>
<context>
    <name>PlotTemplate</name>
    <message>
        <source>Settings applied: %1.</source>
        <translation>Angewendete Einstellungen: %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no template of a plot.</source>
        <translation>„%1“ ist keine Vorlage eines Diagramms.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been written in the format %2 by a newer version; this one reads up to %3.</source>
        <translation>„%1“ wurde von einer neueren Version im Format %2 geschrieben; diese liest Formate bis %3.</translation>
    </message>
    <message>
        <source>The value is not in the range from %1 to %2.</source>
        <translation>Der Wert liegt nicht im Bereich von %1 bis %2.</translation>
    </message>
    <message>
        <source>This belongs to the data or to the way of working, not to a template.</source>
        <translation>Das gehört zu den Daten oder zur Arbeitsweise, nicht zu einer Vorlage.</translation>
    </message>
    <message>
        <source>The plot has no such setting.</source>
        <translation>Das Diagramm hat keine solche Einstellung.</translation>
    </message>
    <message>
        <source>With the other settings the plot keeps the value %1.</source>
        <translation>Mit den übrigen Einstellungen behält das Diagramm den Wert %1.</translation>
    </message>
    <message>
        <source>The stops of the gradient are missing.</source>
        <translation>Die Stützstellen des Farbverlaufs fehlen.</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Vorlage</translation>
    </message>
    <message>
        <source>Apply template</source>
        <translation>Vorlage anwenden</translation>
    </message>
    <message>
        <source>The line is not of the form KEY=VALUE.</source>
        <translation>Die Zeile hat nicht die Form SCHLÜSSEL=WERT.</translation>
    </message>
    <message>
        <source>A quotation mark is missing.</source>
        <translation>Ein Anführungszeichen fehlt.</translation>
    </message>
    <message>
        <source>The value holds a sign that no template needs.</source>
        <translation>Der Wert enthält ein Zeichen, das keine Vorlage braucht.</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>Es gibt keine Datei „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>„%1“ kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than a template can be.</source>
        <translation>„%1“ ist größer, als eine Vorlage sein kann.</translation>
    </message>
    <message>
        <source>The line has no end: the file may have been cut off.</source>
        <translation>Die Zeile hat kein Ende: Die Datei wurde vielleicht abgeschnitten.</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>There is no room for temporary files: %1.</source>
        <translation>Für temporäre Dateien ist kein Platz: %1.</translation>
    </message>
    <message>
        <source>There is no room for temporary files.</source>
        <translation>Für temporäre Dateien ist kein Platz.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2. What was there before stays.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2. Was vorher da war, bleibt.</translation>
    </message>
    <message>
        <source>true or false is expected</source>
        <translation>erwartet wird true oder false</translation>
    </message>
    <message>
        <source>a whole number is expected</source>
        <translation>erwartet wird eine ganze Zahl</translation>
    </message>
    <message>
        <source>a number is expected</source>
        <translation>erwartet wird eine Zahl</translation>
    </message>
    <message>
        <source>a color such as #ff336699 is expected</source>
        <translation>erwartet wird eine Farbe wie #ff336699</translation>
    </message>
    <message>
        <source>a font such as &quot;DejaVu Sans, 10 pt, bold&quot; is expected</source>
        <translation>erwartet wird eine Schrift wie „DejaVu Sans, 10 pt, bold“</translation>
    </message>
    <message>
        <source>the plot offers: %1</source>
        <translation>das Diagramm bietet: %1</translation>
    </message>
    <message>
        <source>a text of at most %1 letters is expected</source>
        <translation>erwartet wird ein Text von höchstens %1 Zeichen</translation>
    </message>
    <message>
        <source>This is no value of the setting; %1.</source>
        <translation>Das ist kein Wert der Einstellung; %1.</translation>
    </message>
    <message>
        <source>The gradient has more than %1 stops.</source>
        <translation>Der Farbverlauf hat mehr als %1 Stützstellen.</translation>
    </message>
    <message>
        <source>The stop &quot;%1&quot; is not a position from 0 to 1, at or behind the one before, and a color such as #ff336699.</source>
        <translation>Die Stützstelle „%1“ ist keine Position von 0 bis 1, nicht vor der vorigen, mit einer Farbe wie #ff336699.</translation>
    </message>
</context>
<context>
    <name>Preview</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>%0; %1; %2</source>
        <translation>%0; %1; %2</translation>
    </message>
</context>
<context>
    <name>RecordFields</name>
    <message>
        <source>TopLeft</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>TopCenter</source>
        <translation>Oben Mitte</translation>
    </message>
    <message>
        <source>TopRight</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>CenterLeft</source>
        <translation>Mitte links</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>CenterRight</source>
        <translation>Mitte rechts</translation>
    </message>
    <message>
        <source>BottomLeft</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>BottomCenter</source>
        <translation>Unten Mitte</translation>
    </message>
    <message>
        <source>BottomRight</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Sichtbar</translation>
    </message>
    <message>
        <source>Whether the text is shown.</source>
        <translation>Zeigt den Text.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>The words that are shown.</source>
        <translation>Die Wörter, die gezeigt werden.</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>The font of the text.</source>
        <translation>Die Schrift des Textes.</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>The color of the text.</source>
        <translation>Die Farbe des Textes.</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>The turn of the text, clockwise.</source>
        <translation>Die Drehung des Textes im Uhrzeigersinn.</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>The corner or edge of the text that lies at its place.</source>
        <translation>Die Ecke oder Kante des Textes, die an seinem Platz liegt.</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>How far the text stands off its place, to the side of its alignment.</source>
        <translation>Wie weit der Text von seinem Platz absteht, zur Seite seiner Ausrichtung.</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Whether the numbers are shown.</source>
        <translation>Zeigt die Zahlen.</translation>
    </message>
    <message>
        <source>The font of the numbers.</source>
        <translation>Die Schrift der Zahlen.</translation>
    </message>
    <message>
        <source>The color of the numbers.</source>
        <translation>Die Farbe der Zahlen.</translation>
    </message>
    <message>
        <source>The corner or edge of a number that lies at its tick.</source>
        <translation>Die Ecke oder Kante einer Zahl, die an ihrem Teilstrich liegt.</translation>
    </message>
    <message>
        <source>Whether the axis line is shown.</source>
        <translation>Zeigt die Achsenlinie.</translation>
    </message>
    <message>
        <source>The color of the axis line and its ticks.</source>
        <translation>Die Farbe der Achsenlinie und ihrer Teilstriche.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>The width of the axis line.</source>
        <translation>Die Breite der Achsenlinie.</translation>
    </message>
    <message>
        <source>Whether the ticks are shown.</source>
        <translation>Zeigt die Teilstriche.</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Where the ticks lie on their axis.</source>
        <translation>Wo die Teilstriche an ihrer Achse liegen.</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Außen</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Beidseitig</translation>
    </message>
    <message>
        <source>Whether the arrow is shown.</source>
        <translation>Zeigt den Pfeil.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>How large the arrow is.</source>
        <translation>Wie groß der Pfeil ist.</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Klein</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Groß</translation>
    </message>
    <message>
        <source>The color of the arrow.</source>
        <translation>Die Farbe des Pfeils.</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>How the arrow is drawn.</source>
        <translation>Wie der Pfeil gezeichnet wird.</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>Gefüllt</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Umriss</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Linien</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Feinheit</translation>
    </message>
    <message>
        <source>The sides of the arrow.</source>
        <translation>Die Anzahl der Seiten des Pfeils.</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>How far the arrow stands beyond the end of its axis, in lengths of the axis.</source>
        <translation>Wie weit der Pfeil über das Ende seiner Achse hinausragt, in Achsenlängen.</translation>
    </message>
</context>
<context>
    <name>Zel3D::AdditionsPage</name>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>The width of the dots of the style that draws points.</source>
        <translation>Die Breite der Punkte, wenn das Diagramm Punkte zeichnet.</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Round</source>
        <translation>Rund</translation>
    </message>
    <message>
        <source>Draws round dots in place of squares.</source>
        <translation>Zeichnet runde Punkte statt Quadraten.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>The width of the bars of a histogram; bars of width 1 touch.</source>
        <translation>Die Breite der Säulen eines Histogramms; Säulen der Breite 1 berühren sich.</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>The number of sides of a bar.</source>
        <translation>Die Anzahl der Seiten einer Säule.</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>The turn of a bar around its length.</source>
        <translation>Die Drehung einer Säule um ihre Länge.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>How little of what lies behind shines through.</source>
        <translation>Wie wenig von dem durchscheint, was dahinter liegt.</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Kanten</translation>
    </message>
    <message>
        <source>Draws lines along the edges of the bars.</source>
        <translation>Zeichnet Linien entlang der Kanten der Säulen.</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>Markierungen</translation>
    </message>
    <message>
        <source>What is drawn at every point of the data, whatever the style.</source>
        <translation>Was an jedem Punkt der Daten gezeichnet wird, unabhängig vom Stil.</translation>
    </message>
    <message>
        <source>Dots</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>Säulen</translation>
    </message>
</context>
<context>
    <name>Zel3D::AxesGroupBox</name>
    <message>
        <source>Axis</source>
        <translation>Achse</translation>
    </message>
    <message>
        <source>Edit all axes of this direction</source>
        <translation>Alle Achsen dieser Richtung bearbeiten</translation>
    </message>
    <message>
        <source>The axis that is edited below; it is marked in the plot.</source>
        <translation>Die Achse, die unten bearbeitet wird; sie ist im Diagramm markiert.</translation>
    </message>
    <message>
        <source>Click an edge of the box to edit its axis.</source>
        <translation>Eine Kante des Kastens anklicken, um ihre Achse zu bearbeiten.</translation>
    </message>
    <message>
        <source>What is edited below holds for the four axes that run in this direction.</source>
        <translation>Was unten bearbeitet wird, gilt für die vier Achsen, die in diese Richtung laufen.</translation>
    </message>
</context>
<context>
    <name>Zel3D::AxesPage</name>
    <message>
        <source>Best edges</source>
        <translation>Beste Kanten</translation>
    </message>
    <message>
        <source>Shows each axis on the edge of the box where it is easiest to read.</source>
        <translation>Zeigt jede Achse an der Kante des Kastens, an der sie am besten zu lesen ist.</translation>
    </message>
    <message>
        <source>Axis visible</source>
        <translation>Achse sichtbar</translation>
    </message>
    <message>
        <source>Whether the axis is shown; the plot chooses while it shows the axes on their best edges.</source>
        <translation>Zeigt die Achse; das Diagramm wählt selbst, solange es die Achsen an ihren besten Kanten zeigt.</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Moves the name away from the axis, in units of the data.</source>
        <translation>Rückt den Namen von der Achse ab, in Einheiten der Daten.</translation>
    </message>
    <message>
        <source>Line visible</source>
        <translation>Linie sichtbar</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Ticks</source>
        <translation>Teilstriche</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Zahlen</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Pfeil</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Kanten</translation>
    </message>
</context>
<context>
    <name>Zel3D::BasePlot</name>
    <message>
        <source>&amp;Top view</source>
        <translation>Ansicht von &amp;oben</translation>
    </message>
    <message>
        <source>Top view</source>
        <translation>Ansicht von oben</translation>
    </message>
    <message>
        <source>&amp;Bottom view</source>
        <translation>Ansicht von &amp;unten</translation>
    </message>
    <message>
        <source>Bottom view</source>
        <translation>Ansicht von unten</translation>
    </message>
    <message>
        <source>&amp;Left view</source>
        <translation>Ansicht von &amp;links</translation>
    </message>
    <message>
        <source>Left view</source>
        <translation>Ansicht von links</translation>
    </message>
    <message>
        <source>&amp;Right view</source>
        <translation>Ansicht von &amp;rechts</translation>
    </message>
    <message>
        <source>Right view</source>
        <translation>Ansicht von rechts</translation>
    </message>
    <message>
        <source>&amp;Front view</source>
        <translation>Ansicht von &amp;vorn</translation>
    </message>
    <message>
        <source>Front view</source>
        <translation>Ansicht von vorn</translation>
    </message>
    <message>
        <source>Bac&amp;k view</source>
        <translation>Ansicht von &amp;hinten</translation>
    </message>
    <message>
        <source>Back view</source>
        <translation>Ansicht von hinten</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Vorn</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Hinten</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Views</source>
        <translation>Ansichten</translation>
    </message>
    <message>
        <source>Grid style</source>
        <translation>Gitter</translation>
    </message>
    <message>
        <source>Plot style</source>
        <translation>Darstellung</translation>
    </message>
</context>
<context>
    <name>Zel3D::BindingsDialog</name>
    <message>
        <source>S&amp;wap</source>
        <translation>&amp;Tauschen</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>Mouse and keys</source>
        <translation>Maus und Tasten</translation>
    </message>
    <message>
        <source>Actions and their gestures</source>
        <translation>Aktionen und ihre Gesten</translation>
    </message>
    <message>
        <source>Gives the other action the gesture that this one had</source>
        <translation>Gibt der anderen Aktion die Geste, die diese hatte</translation>
    </message>
    <message>
        <source>Brings the usual gesture of this action back</source>
        <translation>Stellt die übliche Geste dieser Aktion wieder her</translation>
    </message>
    <message>
        <source>Reset &amp;all</source>
        <translation>&amp;Alle zurücksetzen</translation>
    </message>
    <message>
        <source>Some gestures clash.</source>
        <translation>Einige Gesten stimmen überein.</translation>
    </message>
</context>
<context>
    <name>Zel3D::BindingsModel</name>
    <message>
        <source>The key is a shortcut for &quot;%1&quot;.</source>
        <translation>Die Taste ist ein Tastenkürzel für „%1“.</translation>
    </message>
    <message>
        <source>Drag sideways</source>
        <translation>Seitlich ziehen</translation>
    </message>
    <message>
        <source>Drag up and down</source>
        <translation>Auf und ab ziehen</translation>
    </message>
    <message>
        <source>Hover over the data</source>
        <translation>Über die Daten fahren</translation>
    </message>
    <message>
        <source>Press</source>
        <translation>Drücken</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Gesture</source>
        <translation>Geste</translation>
    </message>
    <message>
        <source>How</source>
        <translation>Wie</translation>
    </message>
</context>
<context>
    <name>Zel3D::BoxPicker</name>
    <message>
        <source>X axis, front bottom</source>
        <translation>X-Achse, vorn unten</translation>
    </message>
    <message>
        <source>Y axis, left bottom</source>
        <translation>Y-Achse, links unten</translation>
    </message>
    <message>
        <source>Z axis, back left</source>
        <translation>Z-Achse, hinten links</translation>
    </message>
    <message>
        <source>X axis, front top</source>
        <translation>X-Achse, vorn oben</translation>
    </message>
    <message>
        <source>X axis, back top</source>
        <translation>X-Achse, hinten oben</translation>
    </message>
    <message>
        <source>X axis, back bottom</source>
        <translation>X-Achse, hinten unten</translation>
    </message>
    <message>
        <source>Y axis, left top</source>
        <translation>Y-Achse, links oben</translation>
    </message>
    <message>
        <source>Y axis, right top</source>
        <translation>Y-Achse, rechts oben</translation>
    </message>
    <message>
        <source>Y axis, right bottom</source>
        <translation>Y-Achse, rechts unten</translation>
    </message>
    <message>
        <source>Z axis, front left</source>
        <translation>Z-Achse, vorn links</translation>
    </message>
    <message>
        <source>Z axis, back right</source>
        <translation>Z-Achse, hinten rechts</translation>
    </message>
    <message>
        <source>Z axis, front right</source>
        <translation>Z-Achse, vorn rechts</translation>
    </message>
    <message>
        <source>Drawing of the box</source>
        <translation>Zeichnung des Kastens</translation>
    </message>
</context>
<context>
    <name>Zel3D::ColorButton</name>
    <message>
        <source>No color</source>
        <translation>Keine Farbe</translation>
    </message>
    <message>
        <source>Choose a color</source>
        <translation>Farbe wählen</translation>
    </message>
</context>
<context>
    <name>Zel3D::ColorVision</name>
    <message>
        <source>Protanopia</source>
        <translation>Protanopie</translation>
    </message>
    <message>
        <source>Deuteranopia</source>
        <translation>Deuteranopie</translation>
    </message>
    <message>
        <source>Tritanopia</source>
        <translation>Tritanopie</translation>
    </message>
    <message>
        <source>Normal vision</source>
        <translation>Normales Sehen</translation>
    </message>
    <message>
        <source>Lightness hardly changes: the gradient cannot be read in grey.</source>
        <translation>Die Helligkeit ändert sich kaum: In Grau ist der Farbverlauf nicht lesbar.</translation>
    </message>
    <message>
        <source>Lightness changes its direction %1 times, first at %2: different values look equally light.</source>
        <translation>Die Helligkeit kehrt %1-mal um, zuerst bei %2: Verschiedene Werte sehen gleich hell aus.</translation>
    </message>
    <message>
        <source>Lightness rises evenly.</source>
        <translation>Die Helligkeit steigt gleichmäßig.</translation>
    </message>
    <message>
        <source>Lightness falls evenly.</source>
        <translation>Die Helligkeit fällt gleichmäßig.</translation>
    </message>
    <message>
        <source>Lightness rises unevenly, most of all at %1: equal steps look unequal.</source>
        <translation>Die Helligkeit steigt ungleichmäßig, am stärksten bei %1: Gleiche Schritte sehen ungleich aus.</translation>
    </message>
    <message>
        <source>Lightness falls unevenly, most of all at %1: equal steps look unequal.</source>
        <translation>Die Helligkeit fällt ungleichmäßig, am stärksten bei %1: Gleiche Schritte sehen ungleich aus.</translation>
    </message>
    <message>
        <source>Lightness rises up to %1 and then falls: for values around a middle.</source>
        <translation>Die Helligkeit steigt bis %1 und fällt dann: für Werte um eine Mitte.</translation>
    </message>
    <message>
        <source>Lightness falls up to %1 and then rises: for values around a middle.</source>
        <translation>Die Helligkeit fällt bis %1 und steigt dann: für Werte um eine Mitte.</translation>
    </message>
    <message>
        <source>It does so unevenly, most of all at %1.</source>
        <translation>Das geschieht ungleichmäßig, am stärksten bei %1.</translation>
    </message>
</context>
<context>
    <name>Zel3D::CommonPage</name>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>The color behind the scene.</source>
        <translation>Die Farbe hinter der Szene.</translation>
    </message>
    <message>
        <source>Projection</source>
        <translation>Projektion</translation>
    </message>
    <message>
        <source>Parallel rays, or rays through one eye point.</source>
        <translation>Parallele Strahlen oder Strahlen durch einen Augpunkt.</translation>
    </message>
    <message>
        <source>Orthogonal</source>
        <translation>Orthogonal</translation>
    </message>
    <message>
        <source>Perspective</source>
        <translation>Perspektivisch</translation>
    </message>
    <message>
        <source>Keep proportions</source>
        <translation>Seitenverhältnis halten</translation>
    </message>
    <message>
        <source>The scene does not stretch with the window.</source>
        <translation>Die Szene verzerrt sich nicht mit dem Fenster.</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>Writes the information on drawn frames into the corner.</source>
        <translation>Schreibt die Angaben zu den gezeichneten Bildern in die Ecke.</translation>
    </message>
    <message>
        <source>Tool tips</source>
        <translation>Hinweise</translation>
    </message>
    <message>
        <source>Shows the values of what is under the mouse.</source>
        <translation>Zeigt die Werte unter der Maus.</translation>
    </message>
    <message>
        <source>Picking</source>
        <translation>Ablesen</translation>
    </message>
    <message>
        <source>Finds the point of the data under the mouse.</source>
        <translation>Findet den Datenpunkt unter der Maus.</translation>
    </message>
    <message>
        <source>Mark picked point</source>
        <translation>Punkt markieren</translation>
    </message>
    <message>
        <source>Marks the point that was found in the scene.</source>
        <translation>Markiert den gefundenen Punkt in der Szene.</translation>
    </message>
    <message>
        <source>Around %1</source>
        <translation>Um %1</translation>
    </message>
    <message>
        <source>The rotation of the scene around the axis.</source>
        <translation>Die Drehung der Szene um die Achse.</translation>
    </message>
    <message>
        <source>Automatic rotation</source>
        <translation>Automatische Drehung</translation>
    </message>
    <message>
        <source>A quick drag keeps the scene turning when it is released.</source>
        <translation>Nach schnellem Ziehen dreht sich die Szene beim Loslassen weiter.</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Schwelle</translation>
    </message>
    <message>
        <source>The last step that a drag must exceed to keep turning.</source>
        <translation>Der letzte Schritt, den das Ziehen zum Weiterdrehen überschreiten muss.</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Moves the scene along the axis, in units of the data.</source>
        <translation>Verschiebt die Szene entlang der Achse, in Einheiten der Daten.</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Verschiebung</translation>
    </message>
    <message>
        <source>Moves the picture in the window; 1 is the radius of the scene.</source>
        <translation>Verschiebt das Bild im Fenster; 1 ist der Radius der Szene.</translation>
    </message>
    <message>
        <source>Viewport shift</source>
        <translation>Bildverschiebung</translation>
    </message>
    <message>
        <source>Automatic scaling</source>
        <translation>Automatische Skalierung</translation>
    </message>
    <message>
        <source>How the axes are scaled: the data as a cube, one unit equally long on every axis, or as set below.</source>
        <translation>Wie die Achsen skaliert werden: die Daten als Würfel, eine Einheit auf jeder Achse gleich lang oder wie unten eingestellt.</translation>
    </message>
    <message>
        <source>Cube</source>
        <translation>Würfel</translation>
    </message>
    <message>
        <source>Equal units</source>
        <translation>Gleiche Einheiten</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Stretches the scene along the axis.</source>
        <translation>Streckt die Szene entlang der Achse.</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>How large the scene is drawn.</source>
        <translation>Wie groß die Szene gezeichnet wird.</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>The step from one drawn node to the next; 1 draws every node.</source>
        <translation>Der Schritt von einem gezeichneten Knoten zum nächsten; 1 zeichnet jeden Knoten.</translation>
    </message>
    <message>
        <source>Shading</source>
        <translation>Schattierung</translation>
    </message>
    <message>
        <source>One color a polygon, or colors that run from corner to corner.</source>
        <translation>Eine Farbe je Polygon oder Farben, die von Ecke zu Ecke verlaufen.</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>Flach</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Weich</translation>
    </message>
    <message>
        <source>Polygon offset</source>
        <translation>Polygonversatz</translation>
    </message>
    <message>
        <source>How far surfaces stand back behind the lines drawn on them.</source>
        <translation>Wie weit Flächen hinter den auf ihnen gezeichneten Linien zurückstehen.</translation>
    </message>
    <message>
        <source>Contour plot</source>
        <translation>Konturdarstellung</translation>
    </message>
    <message>
        <source>The flat copy of the surface on a plane of the box.</source>
        <translation>Das flache Abbild der Oberfläche auf einer Ebene des Kastens.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Zeichnung</translation>
    </message>
</context>
<context>
    <name>Zel3D::FieldBinder</name>
    <message>
        <source>Restore defaults</source>
        <translation>Vorgaben wiederherstellen</translation>
    </message>
</context>
<context>
    <name>Zel3D::FieldForm</name>
    <message>
        <source>Restore the default of %1</source>
        <translation>Vorgabe von %1 wiederherstellen</translation>
    </message>
    <message>
        <source>Restore the default</source>
        <translation>Vorgabe wiederherstellen</translation>
    </message>
</context>
<context>
    <name>Zel3D::FontEditor</name>
    <message>
        <source>pt</source>
        <translation>pt</translation>
    </message>
    <message>
        <source>Font size</source>
        <translation>Schriftgröße</translation>
    </message>
    <message>
        <source>Font size, %1 to %2 points</source>
        <translation>Schriftgröße, %1 bis %2 Punkt</translation>
    </message>
    <message>
        <source>B</source>
        <translation>F</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>I</source>
        <translation>K</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
</context>
<context>
    <name>Zel3D::GestureEdit</name>
    <message>
        <source>Gesture</source>
        <translation>Geste</translation>
    </message>
    <message>
        <source>Click here with the mouse button, holding the modifiers.</source>
        <translation>Hier mit der Maustaste klicken und dabei die Zusatztasten halten.</translation>
    </message>
    <message>
        <source>Click here, then press the key, holding the modifiers.</source>
        <translation>Hier klicken, dann die Taste drücken und dabei die Zusatztasten halten.</translation>
    </message>
    <message>
        <source>Click here, holding the modifiers.</source>
        <translation>Hier klicken und dabei die Zusatztasten halten.</translation>
    </message>
</context>
<context>
    <name>Zel3D::GradientButton</name>
    <message>
        <source>Gradient</source>
        <translation>Farbverlauf</translation>
    </message>
    <message>
        <source>No gradient</source>
        <translation>Kein Farbverlauf</translation>
    </message>
    <message>
        <source>Gradient: %1</source>
        <translation>Farbverlauf: %1</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Bearbeiten...</translation>
    </message>
    <message>
        <source>&amp;Edit a copy...</source>
        <translation>Kopie &amp;bearbeiten...</translation>
    </message>
    <message>
        <source>&amp;All gradients...</source>
        <translation>&amp;Alle Farbverläufe...</translation>
    </message>
</context>
<context>
    <name>Zel3D::GradientEditDialog</name>
    <message>
        <source>Edit gradient</source>
        <translation>Farbverlauf bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Stops</source>
        <translation>&amp;Stützstellen</translation>
    </message>
    <message>
        <source>Drag a handle to move a stop, with Shift in steps of 5 %; drag it off to remove it.
Double click beside the handles to add a stop, on a handle to choose its color.
Keys: Up and Down select, Left and Right move (Ctrl: 0.1 %, Shift: 5 %),
Insert adds, Delete removes, Return chooses the color.</source>
        <translation>Einen Griff ziehen verschiebt die Stützstelle, mit Umschalt in Schritten von 5&#xa0;%; herausziehen entfernt sie.
Doppelklick neben den Griffen fügt eine Stützstelle hinzu, auf einen Griff wählt ihre Farbe.
Tasten: Auf und Ab wählen, Links und Rechts verschieben (Strg: 0,1&#xa0;%, Umschalt: 5&#xa0;%),
Einfg fügt hinzu, Entf entfernt, Eingabe wählt die Farbe.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source> %</source>
        <translation>&#xa0;%</translation>
    </message>
    <message>
        <source>&amp;Position</source>
        <translation>&amp;Position</translation>
    </message>
    <message>
        <source>Position of the stop</source>
        <translation>Position der Stützstelle</translation>
    </message>
    <message>
        <source>Position of the stop, 0 to 100 %</source>
        <translation>Position der Stützstelle, 0 bis 100&#xa0;%</translation>
    </message>
    <message>
        <source>&amp;Color</source>
        <translation>&amp;Farbe</translation>
    </message>
    <message>
        <source>Color of the stop</source>
        <translation>Farbe der Stützstelle</translation>
    </message>
    <message>
        <source>Chooses the color of the stop and how opaque it is</source>
        <translation>Wählt die Farbe der Stützstelle und ihre Deckkraft</translation>
    </message>
    <message>
        <source>&amp;Hex</source>
        <translation>&amp;Hex</translation>
    </message>
    <message>
        <source>Color of the stop as a hexadecimal number</source>
        <translation>Farbe der Stützstelle als Hexadezimalzahl</translation>
    </message>
    <message>
        <source>Color as #rrggbb or #rrggbbaa, each pair from 00 to ff; aa is 00 where it is transparent</source>
        <translation>Farbe als #rrggbb oder #rrggbbaa, jedes Paar von 00 bis ff; aa ist 00, wo sie durchsichtig ist</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>Hin&amp;zufügen</translation>
    </message>
    <message>
        <source>Adds a stop half way to the next one</source>
        <translation>Fügt auf halbem Weg zur nächsten eine Stützstelle hinzu</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Removes the stop; one always remains</source>
        <translation>Entfernt die Stützstelle; eine bleibt immer</translation>
    </message>
    <message>
        <source>Re&amp;verse</source>
        <translation>&amp;Umkehren</translation>
    </message>
    <message>
        <source>Turns the gradient round</source>
        <translation>Dreht den Farbverlauf um</translation>
    </message>
    <message>
        <source>&amp;Distribute</source>
        <translation>&amp;Verteilen</translation>
    </message>
    <message>
        <source>Spreads the stops evenly</source>
        <translation>Verteilt die Stützstellen gleichmäßig</translation>
    </message>
    <message>
        <source>S&amp;nap</source>
        <translation>E&amp;inrasten</translation>
    </message>
    <message>
        <source>Moves every stop to the nearest multiple of 5 %</source>
        <translation>Verschiebt jede Stützstelle auf das nächste Vielfache von 5&#xa0;%</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Takes the last change back (Ctrl+Z)</source>
        <translation>Nimmt die letzte Änderung zurück (Strg+Z)</translation>
    </message>
    <message>
        <source>Red&amp;o</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Makes the change again (Ctrl+Shift+Z)</source>
        <translation>Führt die Änderung wieder aus (Strg+Umschalt+Z)</translation>
    </message>
    <message>
        <source>Edit gradient “%1”</source>
        <translation>Farbverlauf „%1“ bearbeiten</translation>
    </message>
</context>
<context>
    <name>Zel3D::GradientEditor</name>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
</context>
<context>
    <name>Zel3D::GradientFile</name>
    <message>
        <source>A slice is a value, a color, a value and a color.</source>
        <translation>Ein Abschnitt besteht aus Wert, Farbe, Wert und Farbe.</translation>
    </message>
    <message>
        <source>The ends of the slice are not numbers.</source>
        <translation>Die Enden des Abschnitts sind keine Zahlen.</translation>
    </message>
    <message>
        <source>The slice does not rise.</source>
        <translation>Der Abschnitt steigt nicht.</translation>
    </message>
    <message>
        <source>The slice does not begin where the one before ends.</source>
        <translation>Der Abschnitt beginnt nicht, wo der vorige endet.</translation>
    </message>
    <message>
        <source>“%1” is no color.</source>
        <translation>„%1“ ist keine Farbe.</translation>
    </message>
    <message>
        <source>The transparency lies outside 0 ... 100.</source>
        <translation>Die Transparenz liegt außerhalb von 0 ... 100.</translation>
    </message>
    <message>
        <source>The color has %1 components.</source>
        <translation>Die Farbe hat %1 Anteile.</translation>
    </message>
    <message>
        <source>The color component “%1” is no number from 0 to %2.</source>
        <translation>Der Farbanteil „%1“ ist keine Zahl von 0 bis %2.</translation>
    </message>
    <message>
        <source>There is no slice of colors.</source>
        <translation>Es gibt keinen Farbabschnitt.</translation>
    </message>
    <message>
        <source>The values span too much.</source>
        <translation>Die Werte umspannen zu viel.</translation>
    </message>
    <message>
        <source>“%1” is no color with a position in per cent.</source>
        <translation>„%1“ ist keine Farbe mit einer Position in Prozent.</translation>
    </message>
    <message>
        <source>“%1” is no position in per cent.</source>
        <translation>„%1“ ist keine Position in Prozent.</translation>
    </message>
    <message>
        <source>A hint does not stand between two colors.</source>
        <translation>Ein Zwischenwert steht nicht zwischen zwei Farben.</translation>
    </message>
    <message>
        <source>A gradient needs two colors.</source>
        <translation>Ein Farbverlauf braucht zwei Farben.</translation>
    </message>
    <message>
        <source>There is no linear-gradient().</source>
        <translation>Es gibt kein linear-gradient().</translation>
    </message>
    <message>
        <source>Repeating gradients are not read.</source>
        <translation>Sich wiederholende Farbverläufe werden nicht gelesen.</translation>
    </message>
    <message>
        <source>The closing bracket of linear-gradient() is missing.</source>
        <translation>Die schließende Klammer von linear-gradient() fehlt.</translation>
    </message>
    <message>
        <source>A segment has 13 or 15 numbers, not %1.</source>
        <translation>Ein Segment hat 13 oder 15 Zahlen, nicht %1.</translation>
    </message>
    <message>
        <source>“%1” is not a number.</source>
        <translation>„%1“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>The segment does not begin where the one before ends.</source>
        <translation>Das Segment beginnt nicht, wo das vorige endet.</translation>
    </message>
    <message>
        <source>Left, middle and right of the segment do not rise within 0 ... 1.</source>
        <translation>Links, Mitte und rechts des Segments steigen nicht innerhalb von 0 ... 1.</translation>
    </message>
    <message>
        <source>A color component lies outside 0 ... 1.</source>
        <translation>Ein Farbanteil liegt außerhalb von 0 ... 1.</translation>
    </message>
    <message>
        <source>The blending is not one of 0 ... 5.</source>
        <translation>Die Überblendung ist keine von 0 ... 5.</translation>
    </message>
    <message>
        <source>The coloring is not one of 0 ... 2.</source>
        <translation>Die Farbgebung ist keine von 0 ... 2.</translation>
    </message>
    <message>
        <source>The first line is not “GIMP Gradient”.</source>
        <translation>Die erste Zeile ist nicht „GIMP Gradient“.</translation>
    </message>
    <message>
        <source>The number of segments is missing.</source>
        <translation>Die Anzahl der Segmente fehlt.</translation>
    </message>
    <message>
        <source>The file ends after %1 of %2 segments.</source>
        <translation>Die Datei endet nach %1 von %2 Segmenten.</translation>
    </message>
    <message>
        <source>The last segment does not end at 1.</source>
        <translation>Das letzte Segment endet nicht bei 1.</translation>
    </message>
    <message>
        <source>This is not a text file.</source>
        <translation>Das ist keine Textdatei.</translation>
    </message>
    <message>
        <source>The line is longer than %1 characters.</source>
        <translation>Die Zeile ist länger als %1 Zeichen.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>The file is larger than %1 bytes.</source>
        <translation>Die Datei ist größer als %1 Bytes.</translation>
    </message>
    <message>
        <source>The first line is not “%1”.</source>
        <translation>Die erste Zeile ist nicht „%1“.</translation>
    </message>
    <message>
        <source>A stop is a position from 0 to 1 and a color, not “%1”.</source>
        <translation>Eine Stützstelle ist eine Position von 0 bis 1 und eine Farbe, nicht „%1“.</translation>
    </message>
    <message>
        <source>“%1” is no color like #rrggbbaa.</source>
        <translation>„%1“ ist keine Farbe wie #rrggbbaa.</translation>
    </message>
    <message>
        <source>The position is less than the one before.</source>
        <translation>Die Position ist kleiner als die vorige.</translation>
    </message>
    <message>
        <source>There is no stop.</source>
        <translation>Es gibt keine Stützstelle.</translation>
    </message>
    <message>
        <source>There are more than %1 stops.</source>
        <translation>Es gibt mehr als %1 Stützstellen.</translation>
    </message>
</context>
<context>
    <name>Zel3D::GradientListDialog</name>
    <message>
        <source>Gradients</source>
        <translation>Farbverläufe</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>&amp;Filter</translation>
    </message>
    <message>
        <source>Filter of the names</source>
        <translation>Filter der Namen</translation>
    </message>
    <message>
        <source>Shows only the gradients whose names contain this text</source>
        <translation>Zeigt nur die Farbverläufe, deren Namen diesen Text enthalten</translation>
    </message>
    <message>
        <source>Part of a name</source>
        <translation>Teil eines Namens</translation>
    </message>
    <message>
        <source>&amp;Gradients</source>
        <translation>Farb&amp;verläufe</translation>
    </message>
    <message>
        <source>Select a gradient; F2 renames it, Return edits it, Delete removes it</source>
        <translation>Einen Farbverlauf wählen; F2 benennt ihn um, Eingabe bearbeitet ihn, Entf entfernt ihn</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>Adds a new gradient or one from a published table</source>
        <translation>Fügt einen neuen Farbverlauf hinzu oder einen aus einer veröffentlichten Tabelle</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>Adds a copy of the gradient</source>
        <translation>Fügt eine Kopie des Farbverlaufs hinzu</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>Gives the gradient another name</source>
        <translation>Gibt dem Farbverlauf einen anderen Namen</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Bearbeiten...</translation>
    </message>
    <message>
        <source>Changes the stops of the gradient</source>
        <translation>Ändert die Stützstellen des Farbverlaufs</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Removes the gradient; it can be put back</source>
        <translation>Entfernt den Farbverlauf; er kann zurückgeholt werden</translation>
    </message>
    <message>
        <source>&amp;Put back</source>
        <translation>&amp;Zurückholen</translation>
    </message>
    <message>
        <source>Puts the gradient back that was removed last (Ctrl+Z)</source>
        <translation>Holt den zuletzt entfernten Farbverlauf zurück (Strg+Z)</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importieren...</translation>
    </message>
    <message>
        <source>Reads a gradient from a text file, CSS, GMT (.cpt) or GIMP (.ggr)</source>
        <translation>Liest einen Farbverlauf aus einer Textdatei, CSS, GMT (.cpt) oder GIMP (.ggr)</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>E&amp;xportieren...</translation>
    </message>
    <message>
        <source>Writes the gradient to a text file</source>
        <translation>Schreibt den Farbverlauf in eine Textdatei</translation>
    </message>
    <message>
        <source>&amp;New gradient</source>
        <translation>&amp;Neuer Farbverlauf</translation>
    </message>
    <message>
        <source>New gradient</source>
        <translation>Neuer Farbverlauf</translation>
    </message>
    <message>
        <source>&amp;From low to high</source>
        <translation>&amp;Von niedrig nach hoch</translation>
    </message>
    <message>
        <source>&amp;Around a middle</source>
        <translation>&amp;Um eine Mitte</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>Die Datei kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>The file cannot be written: %1</source>
        <translation>Die Datei kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>“%1” was written.</source>
        <translation>„%1“ wurde geschrieben.</translation>
    </message>
    <message>
        <source>Import a gradient</source>
        <translation>Farbverlauf importieren</translation>
    </message>
    <message>
        <source>Gradients (*.gradient *.txt *.css *.cpt *.ggr);;All files (*)</source>
        <translation>Farbverläufe (*.gradient *.txt *.css *.cpt *.ggr);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Export the gradient</source>
        <translation>Farbverlauf exportieren</translation>
    </message>
    <message>
        <source>Gradients (*.gradient);;All files (*)</source>
        <translation>Farbverläufe (*.gradient);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>Zel3D::GradientListModel</name>
    <message>
        <source>%1: built in, duplicate it to change it</source>
        <translation>%1: eingebaut, zum Ändern duplizieren</translation>
    </message>
    <message>
        <source>“%1” was removed.</source>
        <translation>„%1“ wurde entfernt.</translation>
    </message>
    <message>
        <source>“%1” was put back.</source>
        <translation>„%1“ wurde zurückgeholt.</translation>
    </message>
    <message>
        <source>“%1” was added.</source>
        <translation>„%1“ wurde hinzugefügt.</translation>
    </message>
    <message>
        <source>A gradient needs a name.</source>
        <translation>Ein Farbverlauf braucht einen Namen.</translation>
    </message>
    <message>
        <source>There is a gradient “%1” already; this one is now called “%2”.</source>
        <translation>Es gibt schon einen Farbverlauf „%1“; dieser heißt nun „%2“.</translation>
    </message>
</context>
<context>
    <name>Zel3D::GradientPreview</name>
    <message>
        <source>Without cones for long waves (red), about 1 % of men</source>
        <translation>Ohne Zapfen für lange Wellen (rot), etwa 1&#xa0;% der Männer</translation>
    </message>
    <message>
        <source>Without cones for middle waves (green), about 1 % of men</source>
        <translation>Ohne Zapfen für mittlere Wellen (grün), etwa 1&#xa0;% der Männer</translation>
    </message>
    <message>
        <source>Without cones for short waves (blue), rare</source>
        <translation>Ohne Zapfen für kurze Wellen (blau), selten</translation>
    </message>
    <message>
        <source>With all three kinds of cones</source>
        <translation>Mit allen drei Arten von Zapfen</translation>
    </message>
    <message>
        <source>Preview: %1</source>
        <translation>Vorschau: %1</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>CIE lightness L* along the gradient, 0 at the bottom, 100 at the top</source>
        <translation>CIE-Helligkeit L* entlang des Farbverlaufs, 0 unten, 100 oben</translation>
    </message>
    <message>
        <source>Note about the lightness</source>
        <translation>Anmerkung zur Helligkeit</translation>
    </message>
</context>
<context>
    <name>Zel3D::GradientStopsWidget</name>
    <message>
        <source>Stops of the gradient</source>
        <translation>Stützstellen des Farbverlaufs</translation>
    </message>
    <message>
        <source>No stops</source>
        <translation>Keine Stützstellen</translation>
    </message>
    <message>
        <source>Stop %1 of %2 at %3 %, color %4</source>
        <translation>Stützstelle %1 von %2 bei %3&#xa0;%, Farbe %4</translation>
    </message>
    <message>
        <source>%1 %, %2</source>
        <translation>%1&#xa0;%, %2</translation>
    </message>
</context>
<context>
    <name>Zel3D::GridPage</name>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Waagrecht</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Vorn</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Tiefe</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Hinten</translation>
    </message>
    <message>
        <source>SolidLine</source>
        <translation>Durchgezogen</translation>
    </message>
    <message>
        <source>DashLine</source>
        <translation>Gestrichelt</translation>
    </message>
    <message>
        <source>DotLine</source>
        <translation>Gepunktet</translation>
    </message>
    <message>
        <source>DashDotLine</source>
        <translation>Strich, Punkt</translation>
    </message>
    <message>
        <source>DashDotDotLine</source>
        <translation>Strich, Punkt, Punkt</translation>
    </message>
    <message>
        <source>Whether this plane of the box shows grid lines.</source>
        <translation>Zeigt Gitterlinien auf dieser Ebene des Kastens.</translation>
    </message>
    <message>
        <source>Behind the data</source>
        <translation>Hinter den Daten</translation>
    </message>
    <message>
        <source>Of two opposite planes the one behind the data shows the lines.</source>
        <translation>Von zwei gegenüberliegenden Ebenen zeigt die hinter den Daten die Linien.</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>The color of all grid lines.</source>
        <translation>Die Farbe aller Gitterlinien.</translation>
    </message>
    <message>
        <source>Smooth lines</source>
        <translation>Glatte Linien</translation>
    </message>
    <message>
        <source>Draws the axes without steps.</source>
        <translation>Zeichnet die Achsen ohne Stufen.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>The width of the lines; minor lines are never wider than major ones.</source>
        <translation>Die Breite der Linien; Nebenlinien sind nie breiter als Hauptlinien.</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Sichtbar</translation>
    </message>
    <message>
        <source>Lines at the numbers.</source>
        <translation>Linien an den Zahlen.</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>How the lines are broken.</source>
        <translation>Wie die Linien unterbrochen sind.</translation>
    </message>
    <message>
        <source>Lines between the numbers.</source>
        <translation>Linien zwischen den Zahlen.</translation>
    </message>
    <message>
        <source>Planes</source>
        <translation>Ebenen</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Linien</translation>
    </message>
    <message>
        <source>Major lines</source>
        <translation>Hauptlinien</translation>
    </message>
    <message>
        <source>Minor lines</source>
        <translation>Nebenlinien</translation>
    </message>
</context>
<context>
    <name>Zel3D::LegendPage</name>
    <message>
        <source>Across</source>
        <translation>Quer</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Ecke</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>The place of the bar, in percent of the window from its lower left corner.</source>
        <translation>Der Platz des Balkens, in Prozent des Fensters von dessen linker unterer Ecke aus.</translation>
    </message>
    <message>
        <source>The width of the ticks.</source>
        <translation>Die Breite der Teilstriche.</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Major</source>
        <translation>Haupt</translation>
    </message>
    <message>
        <source>Minor</source>
        <translation>Neben</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Sichtbar</translation>
    </message>
    <message>
        <source>Whether the color legend is shown.</source>
        <translation>Zeigt die Farblegende.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>The edge of the window at which the legend stands.</source>
        <translation>Der Rand des Fensters, an dem die Legende steht.</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Automatic place</source>
        <translation>Automatischer Platz</translation>
    </message>
    <message>
        <source>Places the legend along that edge; otherwise in the rectangle below.</source>
        <translation>Setzt die Legende an diesen Rand; sonst in das Rechteck unten.</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>Legende</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Axis line</source>
        <translation>Achsenlinie</translation>
    </message>
    <message>
        <source>Ticks</source>
        <translation>Teilstriche</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Zahlen</translation>
    </message>
</context>
<context>
    <name>Zel3D::LightingPage</name>
    <message>
        <source>Lighting</source>
        <translation>Beleuchtung</translation>
    </message>
    <message>
        <source>Lights the scene with the lights below.</source>
        <translation>Beleuchtet die Szene mit den Lichtern unten.</translation>
    </message>
    <message>
        <source>Show lights</source>
        <translation>Lichter zeigen</translation>
    </message>
    <message>
        <source>Draws a marker where each light stands.</source>
        <translation>Zeichnet eine Markierung, wo jedes Licht steht.</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Switches the light on.</source>
        <translation>Schaltet das Licht ein.</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Parallel rays, a point that shines to all sides, or a cone.</source>
        <translation>Parallele Strahlen, ein Punkt, der nach allen Seiten scheint, oder ein Kegel.</translation>
    </message>
    <message>
        <source>Directional</source>
        <translation>Gerichtet</translation>
    </message>
    <message>
        <source>Dotted</source>
        <translation>Punktförmig</translation>
    </message>
    <message>
        <source>Spot</source>
        <translation>Strahler</translation>
    </message>
    <message>
        <source>Ambient</source>
        <translation>Umgebungslicht</translation>
    </message>
    <message>
        <source>The color that reaches every side.</source>
        <translation>Die Farbe, die jede Seite erreicht.</translation>
    </message>
    <message>
        <source>Diffuse</source>
        <translation>Streulicht</translation>
    </message>
    <message>
        <source>The color of the sides that face the light.</source>
        <translation>Die Farbe der Seiten, die dem Licht zugewandt sind.</translation>
    </message>
    <message>
        <source>Specular</source>
        <translation>Glanzlicht</translation>
    </message>
    <message>
        <source>The color of highlights.</source>
        <translation>Die Farbe der Glanzstellen.</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>The distance from the center of the scene, in its units.</source>
        <translation>Der Abstand von der Mitte der Szene, in deren Einheiten.</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>The angle around the z axis.</source>
        <translation>Der Winkel um die z-Achse.</translation>
    </message>
    <message>
        <source>Tilt</source>
        <translation>Neigung</translation>
    </message>
    <message>
        <source>The angle from the z axis; 0 is above.</source>
        <translation>Der Winkel von der z-Achse aus; 0 ist oben.</translation>
    </message>
    <message>
        <source>How the light fades with the distance; directional light does not.</source>
        <translation>Wie das Licht mit dem Abstand abnimmt; gerichtetes Licht tut es nicht.</translation>
    </message>
    <message>
        <source>Fading</source>
        <translation>Abnahme</translation>
    </message>
    <message>
        <source>The point at which the cone aims, from the center of the scene.</source>
        <translation>Der Punkt, auf den der Kegel zielt, von der Mitte der Szene aus.</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Constant</source>
        <translation>Konstant</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>Quadratic</source>
        <translation>Quadratisch</translation>
    </message>
    <message>
        <source>Concentration</source>
        <translation>Bündelung</translation>
    </message>
    <message>
        <source>How much brighter the middle of the cone is.</source>
        <translation>Wie viel heller die Mitte des Kegels ist.</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>Öffnung</translation>
    </message>
    <message>
        <source>Half the opening angle of the cone.</source>
        <translation>Der halbe Öffnungswinkel des Kegels.</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Szene</translation>
    </message>
    <message>
        <source>Light %1</source>
        <translation>Licht %1</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>Strahlen</translation>
    </message>
</context>
<context>
    <name>Zel3D::MarkersEditor</name>
    <message>
        <source>Dot in the color of the data</source>
        <translation>Punkt in der Farbe der Daten</translation>
    </message>
    <message>
        <source>Dot in one color</source>
        <translation>Punkt in einer Farbe</translation>
    </message>
    <message>
        <source>Sphere</source>
        <translation>Kugel</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Säule</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Pfeil</translation>
    </message>
    <message>
        <source>Marker of the program</source>
        <translation>Markierung des Programms</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>The width of a dot.</source>
        <translation>Die Breite eines Punktes.</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>The color of the marker.</source>
        <translation>Die Farbe der Markierung.</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>The radius of the marker, in units of the data.</source>
        <translation>Der Radius der Markierung, in Einheiten der Daten.</translation>
    </message>
    <message>
        <source>Round</source>
        <translation>Rund</translation>
    </message>
    <message>
        <source>Draws round dots in place of squares.</source>
        <translation>Zeichnet runde Punkte statt Quadraten.</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>The number of sides of a bar.</source>
        <translation>Die Anzahl der Seiten einer Säule.</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>The turn of a bar around its length.</source>
        <translation>Die Drehung einer Säule um ihre Länge.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>How little of what lies behind shines through.</source>
        <translation>Wie wenig von dem durchscheint, was dahinter liegt.</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Kanten</translation>
    </message>
    <message>
        <source>Draws lines along the edges.</source>
        <translation>Zeichnet Linien entlang der Kanten.</translation>
    </message>
    <message>
        <source>The point at which all arrows aim, in units of the data.</source>
        <translation>Der Punkt, auf den alle Pfeile zielen, in Einheiten der Daten.</translation>
    </message>
    <message>
        <source>End X</source>
        <translation>Ende X</translation>
    </message>
    <message>
        <source>End Y</source>
        <translation>Ende Y</translation>
    </message>
    <message>
        <source>End Z</source>
        <translation>Ende Z</translation>
    </message>
    <message>
        <source>The sides of the head.</source>
        <translation>Die Anzahl der Seiten der Spitze.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Adds a marker at every point of the data</source>
        <translation>Fügt an jedem Punkt der Daten eine Markierung hinzu</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Removes the chosen marker</source>
        <translation>Entfernt die gewählte Markierung</translation>
    </message>
</context>
<context>
    <name>Zel3D::PicturePrinter</name>
    <message>
        <source>The printer takes no page.</source>
        <translation>Der Drucker nimmt keine Seite an.</translation>
    </message>
    <message>
        <source>The page cannot be printed.</source>
        <translation>Die Seite kann nicht gedruckt werden.</translation>
    </message>
</context>
<context>
    <name>Zel3D::PictureWriter</name>
    <message>
        <source>The picture &quot;%1&quot; cannot be written: %2.</source>
        <translation>Das Bild „%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>its name has no suffix that tells the format</source>
        <translation>sein Name hat keine Endung, die das Format nennt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a format of pictures</source>
        <translation>„%1“ ist kein Bildformat</translation>
    </message>
    <message>
        <source>The data have more than %1 polygons, lines and points; they are an image in the file.</source>
        <translation>Die Daten haben mehr als %1 Polygone, Linien und Punkte; sie sind ein Rasterbild in der Datei.</translation>
    </message>
    <message>
        <source>Qt has no plugin that writes &quot;%1&quot;</source>
        <translation>Qt hat kein Modul, das „%1“ schreibt</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; does not exist</source>
        <translation>der Ordner „%1“ existiert nicht</translation>
    </message>
</context>
<context>
    <name>Zel3D::PlotSettingsDialog</name>
    <message>
        <source>Common</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Gitter</translation>
    </message>
    <message>
        <source>Additions</source>
        <translation>Ergänzungen</translation>
    </message>
    <message>
        <source>Axes</source>
        <translation>Achsen</translation>
    </message>
    <message>
        <source>Scales</source>
        <translation>Skalen</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>Legende</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>Beleuchtung</translation>
    </message>
    <message>
        <source>Plot style</source>
        <translation>Darstellung</translation>
    </message>
</context>
<context>
    <name>Zel3D::PlotSettingsDialogBase</name>
    <message>
        <source>Plot settings</source>
        <translation>Diagrammeinstellungen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Einstellungen suchen</translation>
    </message>
    <message>
        <source>Finds a setting by its words</source>
        <translation>Findet eine Einstellung nach ihren Wörtern</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Vorgaben wiederherstellen</translation>
    </message>
    <message>
        <source>This page</source>
        <translation>Diese Seite</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Alle Seiten</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Vorlage</translation>
    </message>
</context>
<context>
    <name>Zel3D::PlotStatusBar</name>
    <message>
        <source>Rotation: [X;Y;Z]</source>
        <translation>Drehung: [X;Y;Z]</translation>
    </message>
    <message>
        <source>Viewport shift: [X;Y]</source>
        <translation>Bildverschiebung: [X;Y]</translation>
    </message>
    <message>
        <source>Scale: [X;Y;Z]</source>
        <translation>Skalierung: [X;Y;Z]</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Rotation: %0; %1; %2</source>
        <translation>Drehung: %0; %1; %2</translation>
    </message>
    <message>
        <source>Scale: %0; %1; %2</source>
        <translation>Skalierung: %0; %1; %2</translation>
    </message>
    <message>
        <source>Turn: %0; %1; %2</source>
        <translation>Drehung: %0; %1; %2</translation>
    </message>
    <message>
        <source>Viewport shift: %0; %1</source>
        <translation>Bildverschiebung: %0; %1</translation>
    </message>
    <message>
        <source>Scaling: %0; %1; %2</source>
        <translation>Skalierung: %0; %1; %2</translation>
    </message>
    <message>
        <source>Zoom: %0</source>
        <translation>Zoom: %0</translation>
    </message>
    <message>
        <source>Selecting on</source>
        <translation>Ablesen ein</translation>
    </message>
    <message>
        <source>Selecting off</source>
        <translation>Ablesen aus</translation>
    </message>
    <message>
        <source>Lighting on</source>
        <translation>Beleuchtung ein</translation>
    </message>
    <message>
        <source>Lighting off</source>
        <translation>Beleuchtung aus</translation>
    </message>
    <message>
        <source>Auto scaling on</source>
        <translation>Automatische Skalierung ein</translation>
    </message>
    <message>
        <source>Auto scaling off</source>
        <translation>Automatische Skalierung aus</translation>
    </message>
    <message>
        <source>Show info on</source>
        <translation>Bildangaben ein</translation>
    </message>
    <message>
        <source>Show info off</source>
        <translation>Bildangaben aus</translation>
    </message>
    <message>
        <source>Value: %0</source>
        <translation>Wert: %0</translation>
    </message>
</context>
<context>
    <name>Zel3D::PlotStylePage</name>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>What is drawn of the data.</source>
        <translation>Was von den Daten gezeichnet wird.</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Farbverlauf</translation>
    </message>
    <message>
        <source>The colors of the values.</source>
        <translation>Die Farben der Werte.</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>The color of the mesh lines.</source>
        <translation>Die Farbe der Netzlinien.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>The width of the mesh lines.</source>
        <translation>Die Breite der Netzlinien.</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Lines along columns</source>
        <translation>Linien entlang der Spalten</translation>
    </message>
    <message>
        <source>Mesh lines at equal x.</source>
        <translation>Netzlinien bei gleichem x.</translation>
    </message>
    <message>
        <source>Lines along rows</source>
        <translation>Linien entlang der Zeilen</translation>
    </message>
    <message>
        <source>Mesh lines at equal y.</source>
        <translation>Netzlinien bei gleichem y.</translation>
    </message>
    <message>
        <source>Smooth lines</source>
        <translation>Glatte Linien</translation>
    </message>
    <message>
        <source>Draws the mesh without steps.</source>
        <translation>Zeichnet das Netz ohne Stufen.</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Sichtbar</translation>
    </message>
    <message>
        <source>Shows the normals of the surface as arrows.</source>
        <translation>Zeigt die Normalen der Oberfläche als Pfeile.</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>The length of the arrows in parts of the diagonal of the data&apos;s box.</source>
        <translation>Die Länge der Pfeile in Teilen der Diagonale des Datenkastens.</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Feinheit</translation>
    </message>
    <message>
        <source>The sides of an arrow&apos;s head.</source>
        <translation>Die Anzahl der Seiten einer Pfeilspitze.</translation>
    </message>
    <message>
        <source>Mesh</source>
        <translation>Netz</translation>
    </message>
    <message>
        <source>Normals</source>
        <translation>Normalen</translation>
    </message>
</context>
<context>
    <name>Zel3D::RasterPicture</name>
    <message>
        <source>A picture of %1 by %2 pixels is too large.</source>
        <translation>Ein Bild von %1 mal %2 Pixeln ist zu groß.</translation>
    </message>
    <message>
        <source>The driver has no memory for a picture.</source>
        <translation>Der Treiber hat keinen Speicher für ein Bild.</translation>
    </message>
    <message>
        <source>The driver could not draw the picture.</source>
        <translation>Der Treiber konnte das Bild nicht zeichnen.</translation>
    </message>
</context>
<context>
    <name>Zel3D::SHPlot</name>
    <message>
        <source>No plot</source>
        <translation>Kein Diagramm</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Wireframe</source>
        <translation>Drahtgitter</translation>
    </message>
    <message>
        <source>Hidden line</source>
        <translation>Verdeckte Linien</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>Gefüllt</translation>
    </message>
    <message>
        <source>Filled and mesh</source>
        <translation>Gefüllt mit Netz</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>Histogramm</translation>
    </message>
</context>
<context>
    <name>Zel3D::ScalesPage</name>
    <message>
        <source>Scale</source>
        <translation>Skala</translation>
    </message>
    <message>
        <source>How values lie along the axis.</source>
        <translation>Wie die Werte entlang der Achse liegen.</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>Logarithmic</source>
        <translation>Logarithmisch</translation>
    </message>
    <message>
        <source>Major</source>
        <translation>Haupt</translation>
    </message>
    <message>
        <source>Into how many parts numbers divide the axis.</source>
        <translation>In wie viele Teile Zahlen die Achse teilen.</translation>
    </message>
    <message>
        <source>Minor</source>
        <translation>Neben</translation>
    </message>
    <message>
        <source>Into how many parts small ticks divide each of them.</source>
        <translation>In wie viele Teile kleine Teilstriche jeden davon teilen.</translation>
    </message>
    <message>
        <source>X axis</source>
        <translation>X-Achse</translation>
    </message>
    <message>
        <source>Y axis</source>
        <translation>Y-Achse</translation>
    </message>
    <message>
        <source>Z axis and legend</source>
        <translation>Z-Achse und Legende</translation>
    </message>
    <message>
        <source>Linear intervals</source>
        <translation>Lineare Teilung</translation>
    </message>
    <message>
        <source>Logarithmic intervals</source>
        <translation>Logarithmische Teilung</translation>
    </message>
</context>
<context>
    <name>Zel3D::Spectrum</name>
    <message>
        <source>No plot</source>
        <translation>Kein Diagramm</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Linien</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>Gefüllt</translation>
    </message>
    <message>
        <source>Filled and frame</source>
        <translation>Gefüllt mit Rahmen</translation>
    </message>
</context>
<context>
    <name>Zel3D::TemplateActions</name>
    <message>
        <source>Plot templates (*.%1);;All files (*)</source>
        <translation>Diagrammvorlagen (*.%1);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>&amp;Template</source>
        <translation>Vo&amp;rlage</translation>
    </message>
    <message>
        <source>&amp;Save as template...</source>
        <translation>Als Vorlage &amp;speichern...</translation>
    </message>
    <message>
        <source>Keep the appearance of the plot in a file</source>
        <translation>Das Erscheinungsbild des Diagramms in einer Datei aufheben</translation>
    </message>
    <message>
        <source>Save with &amp;view...</source>
        <translation>&amp;Mit Ansicht speichern...</translation>
    </message>
    <message>
        <source>Keep the appearance, rotation, shift, scale and zoom of the plot in a file</source>
        <translation>Erscheinungsbild, Drehung, Verschiebung, Skalierung und Zoom des Diagramms in einer Datei aufheben</translation>
    </message>
    <message>
        <source>&amp;Apply template...</source>
        <translation>Vorlage &amp;anwenden...</translation>
    </message>
    <message>
        <source>Give the plot the appearance that a file holds</source>
        <translation>Dem Diagramm das Erscheinungsbild aus einer Datei geben</translation>
    </message>
    <message>
        <source>Save as template</source>
        <translation>Als Vorlage speichern</translation>
    </message>
    <message>
        <source>Apply template</source>
        <translation>Vorlage anwenden</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>Applied %1</source>
        <translation>%1 angewendet</translation>
    </message>
    <message>
        <source>%1 more in the details.</source>
        <translation>%1 weitere in den Einzelheiten.</translation>
    </message>
</context>
<context>
    <name>Zel3D::TitlePage</name>
    <message>
        <source>The place of the title, from the lower left corner.</source>
        <translation>Der Platz des Titels, von der linken unteren Ecke aus.</translation>
    </message>
    <message>
        <source>Across</source>
        <translation>Quer</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
</context>
<context>
    <name>Zel3D::Turntable</name>
    <message>
        <source>The animation &quot;%1&quot; cannot be written: %2.</source>
        <translation>Die Animation „%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no animated format</source>
        <translation>„%1“ ist kein animiertes Format</translation>
    </message>
    <message>
        <source>the program ffmpeg is not installed</source>
        <translation>das Programm ffmpeg ist nicht installiert</translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; does not exist</source>
        <translation>der Ordner „%1“ existiert nicht</translation>
    </message>
    <message>
        <source>ffmpeg failed</source>
        <translation>ffmpeg ist gescheitert</translation>
    </message>
    <message>
        <source>ffmpeg says &quot;%1&quot;</source>
        <translation>ffmpeg meldet „%1“</translation>
    </message>
</context>
<context>
    <name>Zel3D::VectorPicture</name>
    <message>
        <source>Axes and legend have too many lines for a vector picture.</source>
        <translation>Achsen und Legende haben zu viele Linien für ein Vektorbild.</translation>
    </message>
    <message>
        <source>The driver could not draw the picture.</source>
        <translation>Der Treiber konnte das Bild nicht zeichnen.</translation>
    </message>
    <message>
        <source>The plot cannot be drawn.</source>
        <translation>Das Diagramm kann nicht gezeichnet werden.</translation>
    </message>
    <message>
        <source>The vector file cannot be made.</source>
        <translation>Die Vektordatei kann nicht erzeugt werden.</translation>
    </message>
</context>
<context>
    <name>Zel3D::ZelGLWidget</name>
    <message>
        <source>%0 fps</source>
        <translation>%0 Bilder/s</translation>
    </message>
</context>
</TS>

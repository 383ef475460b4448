<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutBox</name>
    <message>
        <source>Qt %1</source>
        <translation>Qt %1</translation>
    </message>
    <message>
        <source>About VORAN Viewer</source>
        <translation>Über VORAN Viewer</translation>
    </message>
    <message>
        <source>VORAN Viewer %1</source>
        <translation>VORAN Viewer %1</translation>
    </message>
    <message>
        <source>Surfaces, meshes and spectra in three dimensions, to turn, zoom and pick.</source>
        <translation>Flächen, Netze und Spektren in drei Dimensionen: drehen, zoomen und Werte ablesen.</translation>
    </message>
    <message>
        <source>OpenGL %1 by %2</source>
        <translation>OpenGL %1 von %2</translation>
    </message>
</context>
<context>
    <name>ClipboardTable</name>
    <message>
        <source>The table cannot be read: row %1, column %2: found %3, expected %4.</source>
        <translation>Die Tabelle kann nicht gelesen werden: Zeile %1, Spalte %2: gefunden %3, erwartet %4.</translation>
    </message>
    <message>
        <source>an empty cell</source>
        <translation>eine leere Zelle</translation>
    </message>
    <message>
        <source>The table has rows: %1, columns: %2; at least two of each are needed.</source>
        <translation>Die Tabelle hat Zeilen: %1, Spalten: %2; nötig sind je mindestens zwei.</translation>
    </message>
    <message>
        <source>The table needs more memory than can be had.</source>
        <translation>Die Tabelle braucht mehr Speicher, als zu haben ist.</translation>
    </message>
    <message>
        <source>The table holds too few numbers for a surface or spectra.</source>
        <translation>Die Tabelle enthält zu wenige Zahlen für eine Oberfläche oder Spektren.</translation>
    </message>
    <message>
        <source>The table needs about %1 of memory; %2 are free.</source>
        <translation>Die Tabelle braucht etwa %1 Speicher; %2 sind frei.</translation>
    </message>
    <message>
        <source>The table cannot be read: %1.</source>
        <translation>Die Tabelle kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>The table cannot be read: row %1, column %2: found the end of the row, expected %3 columns as in row %4.</source>
        <translation>Die Tabelle kann nicht gelesen werden: Zeile %1, Spalte %2: gefunden das Ende der Zeile, erwartet %3 Spalten wie in Zeile %4.</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>a number with a decimal point as in other cells</source>
        <translation>eine Zahl mit Dezimalpunkt wie in anderen Zellen</translation>
    </message>
    <message>
        <source>a number with a decimal comma as in other cells</source>
        <translation>eine Zahl mit Dezimalkomma wie in anderen Zellen</translation>
    </message>
    <message>
        <source>The first column holds texts and is left out.</source>
        <translation>Die erste Spalte enthält Texte und wird weggelassen.</translation>
    </message>
    <message>
        <source>Values too large to draw are missing: %1.</source>
        <translation>Zum Zeichnen zu große Werte fehlen: %1.</translation>
    </message>
    <message>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>y</source>
        <translation>y</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Nodes without a row in the table are missing: %1.</source>
        <translation>Knoten ohne Zeile in der Tabelle fehlen: %1.</translation>
    </message>
    <message>
        <source>The table does not have this form.</source>
        <translation>Die Tabelle hat nicht diese Form.</translation>
    </message>
    <message>
        <source>The table needs %1; %2 are free.</source>
        <translation>Die Tabelle braucht %1; %2 sind frei.</translation>
    </message>
    <message>
        <source>Every height of the table is missing.</source>
        <translation>Jede Höhe der Tabelle fehlt.</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>Every value of the table is missing.</source>
        <translation>Jeder Wert der Tabelle fehlt.</translation>
    </message>
    <message>
        <source>Spectrum</source>
        <translation>Spektrum</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Shows grids of heights, meshes, spectra and formulas as interactive three-dimensional plots.</source>
        <translation>Zeigt Höhenraster, Netze, Spektren und Formeln als interaktive dreidimensionale Diagramme.</translation>
    </message>
    <message>
        <source>Show z as a formula of x and y, such as &quot;sin(x)*cos(y)&quot;.</source>
        <translation>z als Formel von x und y zeigen, etwa „sin(x)*cos(y)“.</translation>
    </message>
    <message>
        <source>Where the formula is evaluated: x from:to, then y from:to, such as -3:3,-2*pi:2*pi; one range is for both. %1 without it.</source>
        <translation>Wo die Formel ausgewertet wird: x von:bis, dann y von:bis, etwa -3:3,-2*pi:2*pi; ein Bereich gilt für beide. Ohne Angabe %1.</translation>
    </message>
    <message>
        <source>Nodes of the formula along x and y, such as 200x100; one number is for both. %1 without it.</source>
        <translation>Knoten der Formel entlang x und y, etwa 200x100; eine Zahl gilt für beide. Ohne Angabe %1.</translation>
    </message>
    <message>
        <source>Draw the plot in this style: %1; spectra: %2.</source>
        <translation>Das Diagramm in diesem Stil zeichnen: %1; Spektren: %2.</translation>
    </message>
    <message>
        <source>Dress the plot in this look: %1.</source>
        <translation>Dem Diagramm dieses Erscheinungsbild geben: %1.</translation>
    </message>
    <message>
        <source>Give the plot the appearance that this file holds.</source>
        <translation>Dem Diagramm das Erscheinungsbild aus dieser Datei geben.</translation>
    </message>
    <message>
        <source>Size of the plot in pixels, each side %1 to %2.</source>
        <translation>Größe des Diagramms in Pixeln, jede Seite %1 bis %2.</translation>
    </message>
    <message>
        <source>Show the plot from there: %1, or a rotation about x, y and z in degrees, such as 45,0,25.</source>
        <translation>Das Diagramm von dort zeigen: %1, oder eine Drehung um x, y und z in Grad, etwa 45,0,25.</translation>
    </message>
    <message>
        <source>Colour the data with this gradient: %1.</source>
        <translation>Die Daten mit diesem Farbverlauf färben: %1.</translation>
    </message>
    <message>
        <source>Name the axes; what is left empty keeps its name.</source>
        <translation>Die Achsen benennen; was leer bleibt, behält seinen Namen.</translation>
    </message>
    <message>
        <source>Show these directions logarithmically, such as x,z. Values at or below zero are missing then.</source>
        <translation>Diese Richtungen logarithmisch zeigen, etwa x,z. Werte kleiner oder gleich null fehlen dann.</translation>
    </message>
    <message>
        <source>Band of a grid file to show, from 1.</source>
        <comment>command line</comment>
        <translation>Zu zeigendes Band einer Rasterdatei, ab 1.</translation>
    </message>
    <message>
        <source>Show this help and leave.</source>
        <translation>Diese Hilfe zeigen und enden.</translation>
    </message>
    <message>
        <source>Show the version and leave.</source>
        <translation>Die Version zeigen und enden.</translation>
    </message>
    <message>
        <source>Leave out the background of pictures.</source>
        <translation>Den Hintergrund von Bildern weglassen.</translation>
    </message>
    <message>
        <source>%1. Try --help.</source>
        <translation>%1. Siehe --help.</translation>
    </message>
    <message>
        <source>voranview %1</source>
        <translation>voranview %1</translation>
    </message>
    <message>
        <source>The option --template names no file.</source>
        <translation>Die Option --template nennt keine Datei.</translation>
    </message>
    <message>
        <source>A file and a formula are named; only one of them can be shown.</source>
        <translation>Eine Datei und eine Formel sind genannt; nur eine davon kann gezeigt werden.</translation>
    </message>
    <message>
        <source>The option --%1 is for a formula; none is named with --function.</source>
        <translation>Die Option --%1 ist für eine Formel; mit --function ist keine genannt.</translation>
    </message>
    <message>
        <source>The option --log is for grids, spectra and formulas; a mesh is named.</source>
        <translation>Die Option --log ist für Raster, Spektren und Formeln; genannt ist ein Netz.</translation>
    </message>
    <message>
        <source>The option --%1 needs a file or a formula to show; none is named.</source>
        <translation>Die Option --%1 braucht eine Datei oder eine Formel zum Zeigen; keine ist genannt.</translation>
    </message>
    <message>
        <source>The option --%1 names no picture.</source>
        <translation>Die Option --%1 nennt kein Bild.</translation>
    </message>
    <message>
        <source>A picture needs a file or a formula to show; none is named.</source>
        <translation>Ein Bild braucht eine Datei oder eine Formel zum Zeigen; keine ist genannt.</translation>
    </message>
    <message>
        <source>The option --transparent is for pictures; none is named.</source>
        <translation>Die Option --transparent ist für Bilder; keines ist genannt.</translation>
    </message>
    <message>
        <source>Spectra have no plot style &quot;%1&quot;; the styles are %2.</source>
        <translation>Spektren haben keinen Stil „%1“; die Stile sind %2.</translation>
    </message>
    <message>
        <source>There is no plot style &quot;%1&quot;; the styles are %2.</source>
        <translation>Es gibt keinen Stil „%1“; die Stile sind %2.</translation>
    </message>
    <message>
        <source>There is no look &quot;%1&quot;; the looks are %2.</source>
        <translation>Es gibt kein Erscheinungsbild „%1“; es gibt %2.</translation>
    </message>
    <message>
        <source>The size &quot;%1&quot; is not WIDTHxHEIGHT with both sides from %2 to %3 pixels.</source>
        <translation>Die Größe „%1“ ist nicht BREITExHÖHE mit Seiten von %2 bis %3 Pixeln.</translation>
    </message>
    <message>
        <source>The band &quot;%1&quot; is not a whole number from 1.</source>
        <translation>Das Band „%1“ ist keine ganze Zahl ab 1.</translation>
    </message>
    <message>
        <source>The view &quot;%1&quot; is neither three angles X,Y,Z from -%2 to %2 degrees nor one of %3.</source>
        <translation>Die Ansicht „%1“ besteht weder aus drei Winkeln X,Y,Z von -%2 bis %2 Grad, noch ist sie eine von %3.</translation>
    </message>
    <message>
        <source>There is no gradient &quot;%1&quot;; the gradients are %2.</source>
        <translation>Es gibt keinen Farbverlauf „%1“; die Farbverläufe sind %2.</translation>
    </message>
    <message>
        <source>The names of the axes &quot;%1&quot; are not three with commas between them.</source>
        <translation>Die Namen der Achsen „%1“ sind nicht drei, durch Kommas getrennt.</translation>
    </message>
    <message>
        <source>The directions &quot;%1&quot; are not letters x, y or z with commas between them.</source>
        <translation>Die Richtungen „%1“ sind nicht die Buchstaben x, y oder z, durch Kommas getrennt.</translation>
    </message>
    <message>
        <source>A grid of any format that GDAL reads, a mesh (OFF, OBJ, PLY, STL, glTF ...) or spectra in a CSV file. Several files open in tabs.</source>
        <translation>Ein Raster in einem Format, das GDAL liest, ein Netz (OFF, OBJ, PLY, STL, glTF ...) oder Spektren in einer CSV-Datei. Mehrere Dateien öffnen sich in Reitern.</translation>
    </message>
    <message>
        <source>Show the part of a grid file between two corners, in the file&apos;s coordinates.</source>
        <translation>Den Teil einer Rasterdatei zwischen zwei Ecken zeigen, in den Koordinaten der Datei.</translation>
    </message>
    <message>
        <source>Show grids of more nodes than that thinned, %1 to %2. Without it the number of the preferences serves.</source>
        <translation>Raster mit mehr Knoten ausgedünnt zeigen, %1 bis %2. Ohne Angabe gilt die Zahl der Voreinstellungen.</translation>
    </message>
    <message>
        <source>The option --%1 is for grid files; none is named.</source>
        <translation>Die Option --%1 ist für Rasterdateien; keine ist genannt.</translation>
    </message>
    <message>
        <source>The budget &quot;%1&quot; is not a whole number of nodes from %2 to %3.</source>
        <translation>Die Knotenzahl „%1“ ist keine ganze Zahl von %2 bis %3.</translation>
    </message>
    <message>
        <source>The part &quot;%1&quot; is not X0,Y0,X1,Y1, the coordinates of two corners.</source>
        <translation>Der Teil „%1“ ist nicht X0,Y0,X1,Y1, die Koordinaten zweier Ecken.</translation>
    </message>
    <message>
        <source>Write the plot as %1 and leave; a folder takes a picture of each file. May stand beside other formats.</source>
        <translation>Das Diagramm als %1 schreiben und beenden; ein Ordner nimmt ein Bild von jeder Datei auf. Darf neben anderen Formaten stehen.</translation>
    </message>
    <message>
        <source>%1 files are named: name a folder for their pictures; &quot;%2&quot; is none.</source>
        <translation>%1 Dateien sind genannt: Nennen Sie einen Ordner für ihre Bilder; „%2“ ist keiner.</translation>
    </message>
    <message>
        <source>Two of the files have one name; their pictures in &quot;%1&quot; would be one.</source>
        <translation>Zwei der Dateien haben denselben Namen; ihre Bilder in „%1“ wären eines.</translation>
    </message>
</context>
<context>
    <name>CsvReader</name>
    <message>
        <source>line %1, column %2: the cell never ends; a quote may be missing</source>
        <translation>Zeile %1, Spalte %2: Die Zelle endet nie; vielleicht fehlt ein Anführungszeichen</translation>
    </message>
    <message>
        <source>line %1, character %2: found a zero byte, expected text</source>
        <translation>Zeile %1, Zeichen %2: ein Nullbyte statt Text</translation>
    </message>
    <message>
        <source>line %1, column %2: the quoted cell never ends</source>
        <translation>Zeile %1, Spalte %2: Die Zelle in Anführungszeichen endet nie</translation>
    </message>
</context>
<context>
    <name>DataActions</name>
    <message>
        <source>&amp;Paste data</source>
        <translation>Daten &amp;einfügen</translation>
    </message>
    <message>
        <source>Show a table, or open a file, from the clipboard</source>
        <translation>Eine Tabelle aus der Zwischenablage zeigen oder eine Datei öffnen</translation>
    </message>
    <message>
        <source>Paste data &amp;as...</source>
        <translation>Daten einfügen &amp;als...</translation>
    </message>
    <message>
        <source>Say what the cells of a table on the clipboard mean</source>
        <translation>Angeben, was die Zellen einer Tabelle in der Zwischenablage bedeuten</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Slice</source>
        <translation>Schnitt</translation>
    </message>
    <message>
        <source>Ranges, statistics and a table of the values</source>
        <translation>Bereiche, Statistik und eine Tabelle der Werte</translation>
    </message>
    <message>
        <source>The row and the column of the picked point as curves</source>
        <translation>Zeile und Spalte des abgelesenen Punktes als Kurven</translation>
    </message>
    <message>
        <source>There is no plot with data.</source>
        <translation>Es gibt kein Diagramm mit Daten.</translation>
    </message>
    <message>
        <source>A mesh has no rows and columns through which to cut.</source>
        <translation>Ein Netz hat keine Zeilen und Spalten, durch die man schneiden könnte.</translation>
    </message>
    <message>
        <source>Choose a cell of the table in the Data window, or switch on &quot;Pick values&quot; in the Plot menu and point at the plot.</source>
        <translation>Eine Zelle der Tabelle im Fenster „Daten“ wählen, oder „Werte ablesen“ im Menü „Diagramm“ einschalten und auf das Diagramm zeigen.</translation>
    </message>
    <message>
        <source>Point at a spectrum to see it here.</source>
        <translation>Auf ein Spektrum zeigen, um es hier zu sehen.</translation>
    </message>
    <message>
        <source>Point at the surface to see the row and the column under the mouse here.</source>
        <translation>Auf die Oberfläche zeigen, um hier die Zeile und die Spalte unter der Maus zu sehen.</translation>
    </message>
    <message>
        <source>Paste data</source>
        <translation>Daten einfügen</translation>
    </message>
    <message>
        <source>There is no table and no file on the clipboard. Copy some cells in a spreadsheet, then paste them here.</source>
        <translation>In der Zwischenablage ist keine Tabelle und keine Datei. Einige Zellen in einer Tabellenkalkulation kopieren, dann hier einfügen.</translation>
    </message>
    <message>
        <source>&amp;Data</source>
        <translation>&amp;Daten</translation>
    </message>
    <message>
        <source>Sli&amp;ce</source>
        <translation>Schni&amp;tt</translation>
    </message>
</context>
<context>
    <name>DataInspector</name>
    <message>
        <source>There is no plot with data.</source>
        <translation>Es gibt kein Diagramm mit Daten.</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
</context>
<context>
    <name>DataSummary</name>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>%1, step %2</source>
        <translation>%1, Schritt %2</translation>
    </message>
    <message>
        <source>%1 (%2 %)</source>
        <translation>%1 (%2&#xa0;%)</translation>
    </message>
    <message>
        <source>%1 columns × %2 rows</source>
        <translation>%1 Spalten × %2 Zeilen</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Surface over a grid</source>
        <translation>Oberfläche über einem Raster</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>Surface of free nodes</source>
        <translation>Oberfläche aus freien Knoten</translation>
    </message>
    <message>
        <source>Spectra</source>
        <translation>Spektren</translation>
    </message>
    <message>
        <source>Points each</source>
        <translation>Punkte je Spektrum</translation>
    </message>
    <message>
        <source>Mesh</source>
        <translation>Netz</translation>
    </message>
    <message>
        <source>Vertices</source>
        <translation>Eckpunkte</translation>
    </message>
    <message>
        <source>Cells</source>
        <translation>Zellen</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Fehlend</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>Std. deviation</source>
        <translation>Standardabweichung</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Median</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>The display cannot be opened: set DISPLAY to a running X server, or run this under xvfb-run.</source>
        <translation>Die Anzeige kann nicht geöffnet werden: DISPLAY auf einen laufenden X-Server setzen oder mit xvfb-run starten.</translation>
    </message>
    <message>
        <source>There is no display: set DISPLAY to a running X server, or run this under xvfb-run.</source>
        <translation>Es gibt keine Anzeige: DISPLAY auf einen laufenden X-Server setzen oder mit xvfb-run starten.</translation>
    </message>
    <message>
        <source>The display offers no OpenGL, which the plot needs.</source>
        <translation>Die Anzeige bietet kein OpenGL, das das Diagramm braucht.</translation>
    </message>
</context>
<context>
    <name>DragHandle</name>
    <message>
        <source>Drag the picture from here into another program</source>
        <translation>Das Bild von hier in ein anderes Programm ziehen</translation>
    </message>
    <message>
        <source>Drag the picture</source>
        <translation>Das Bild ziehen</translation>
    </message>
</context>
<context>
    <name>Examples</name>
    <message>
        <source>Jacksboro fault</source>
        <translation>Jacksboro-Verwerfung</translation>
    </message>
    <message>
        <source>A mountain ridge in Tennessee: a grid</source>
        <translation>Ein Bergrücken in Tennessee: ein Raster</translation>
    </message>
    <message>
        <source>Gasoline</source>
        <translation>Benzin</translation>
    </message>
    <message>
        <source>Infrared spectra of 60 samples</source>
        <translation>Infrarotspektren von 60 Proben</translation>
    </message>
    <message>
        <source>Rabbit</source>
        <translation>Hase</translation>
    </message>
    <message>
        <source>A scanned figure: a mesh</source>
        <translation>Eine abgetastete Figur: ein Netz</translation>
    </message>
</context>
<context>
    <name>FileCheck</name>
    <message>
        <source>No file is named.</source>
        <translation>Keine Datei ist genannt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, not %2.</source>
        <translation>„%1“ ist ein Ordner, nicht %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not exist.</source>
        <translation>„%1“ existiert nicht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: permission denied.</source>
        <translation>„%1“ kann nicht gelesen werden: Zugriff verweigert.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no regular file.</source>
        <translation>„%1“ ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty.</source>
        <translation>„%1“ ist leer.</translation>
    </message>
</context>
<context>
    <name>Formula</name>
    <message>
        <source>&quot;%1&quot; cannot be read at column %2: %3.</source>
        <translation>„%1“ kann bei Spalte %2 nicht gelesen werden: %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not known here</source>
        <translation>„%1“ ist hier nicht bekannt</translation>
    </message>
    <message>
        <source>the formula ends too early</source>
        <translation>die Formel endet zu früh</translation>
    </message>
    <message>
        <source>a parenthesis is not closed</source>
        <translation>eine Klammer ist nicht geschlossen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has too many arguments</source>
        <translation>„%1“ hat zu viele Argumente</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has too few arguments</source>
        <translation>„%1“ hat zu wenige Argumente</translation>
    </message>
    <message>
        <source>&quot;?&quot; has no &quot;:&quot;</source>
        <translation>„?“ hat kein „:“</translation>
    </message>
    <message>
        <source>an operator such as * is missing before &quot;%1&quot;</source>
        <translation>vor „%1“ fehlt ein Rechenzeichen wie *</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot stand here</source>
        <translation>„%1“ kann hier nicht stehen</translation>
    </message>
    <message>
        <source>The formula is empty.</source>
        <translation>Die Formel ist leer.</translation>
    </message>
    <message>
        <source>&quot;=&quot; cannot stand here; give what z is equal to, without z =</source>
        <translation>„=“ kann hier nicht stehen; angeben, was z gleich ist, ohne z =</translation>
    </message>
    <message>
        <source>&quot;,&quot; cannot stand here; the decimal sign is a point</source>
        <translation>„,“ kann hier nicht stehen; das Dezimalzeichen ist ein Punkt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be drawn over %2 x %3 nodes (columns x rows); a surface needs at least 2 x 2.</source>
        <translation>„%1“ kann nicht über %2 x %3 Knoten (Spalten x Zeilen) gezeichnet werden; eine Oberfläche braucht mindestens 2 x 2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs about %2; %3 are free.</source>
        <translation>„%1“ braucht etwa %2; %3 sind frei.</translation>
    </message>
    <message>
        <source>x = %L1, y = %L2</source>
        <translation>x = %L1, y = %L2</translation>
    </message>
    <message>
        <source>The formula has no height at %L1 of %L2 nodes, the first at %3.</source>
        <translation>Die Formel hat an %L1 von %L2 Knoten keine Höhe, zuerst bei %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs about %2, which cannot be had.</source>
        <translation>„%1“ braucht etwa %2, die nicht zu haben sind.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no height at any node.</source>
        <translation>„%1“ hat an keinem Knoten eine Höhe.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be drawn: its heights span from %L2 to %L3, more than single precision holds.</source>
        <translation>„%1“ kann nicht gezeichnet werden: Die Höhen reichen von %L2 bis %L3, mehr als einfache Genauigkeit fasst.</translation>
    </message>
</context>
<context>
    <name>FormulaArea</name>
    <message>
        <source>&quot;%1&quot; is no range; expected two numbers, such as -3:3.</source>
        <translation>„%1“ ist kein Bereich; erwartet werden zwei Zahlen, etwa -3:3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the range &quot;%2&quot; is no number.</source>
        <translation>„%1“ im Bereich „%2“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>The range &quot;%1&quot; has no width; its first number must be less than its last.</source>
        <translation>Der Bereich „%1“ hat keine Breite; seine erste Zahl muss kleiner sein als die letzte.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no range of x and y; expected the form -3:3,-2:2.</source>
        <translation>„%1“ ist kein Bereich von x und y; erwartet wird die Form -3:3,-2:2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no mesh; expected columns and rows, at least 2 each, such as 200x100.</source>
        <translation>„%1“ ist kein Netz; erwartet werden Spalten und Zeilen, je mindestens 2, etwa 200x100.</translation>
    </message>
</context>
<context>
    <name>FormulaDialog</name>
    <message>
        <source>New from formula</source>
        <translation>Neu aus Formel</translation>
    </message>
    <message>
        <source>Operators + - * / ^, comparisons and ?:; functions such as sin, exp, sqrt, abs, min, max, floor and mod; constants pi and e</source>
        <translation>Operatoren + - * / ^, Vergleiche und ?:; Funktionen wie sin, exp, sqrt, abs, min, max, floor und mod; Konstanten pi und e</translation>
    </message>
    <message>
        <source>&amp;z =</source>
        <translation>&amp;z =</translation>
    </message>
    <message>
        <source>&amp;x from</source>
        <translation>&amp;x von</translation>
    </message>
    <message>
        <source>to</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>&amp;y from</source>
        <translation>&amp;y von</translation>
    </message>
    <message>
        <source>A number, or a formula of constants such as 2*pi</source>
        <translation>Eine Zahl oder eine Formel aus Konstanten wie 2*pi</translation>
    </message>
    <message>
        <source>&amp;Nodes along x</source>
        <translation>&amp;Knoten entlang x</translation>
    </message>
    <message>
        <source>along y</source>
        <translation>entlang y</translation>
    </message>
</context>
<context>
    <name>GradientName</name>
    <message>
        <source>Terrain</source>
        <translation>Gelände</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Wasser</translation>
    </message>
</context>
<context>
    <name>GridFile</name>
    <message>
        <source>No file is named.</source>
        <translation>Keine Datei ist genannt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, not a grid file.</source>
        <translation>„%1“ ist ein Ordner, keine Rasterdatei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not exist.</source>
        <translation>„%1“ existiert nicht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: permission denied.</source>
        <translation>„%1“ kann nicht gelesen werden: Zugriff verweigert.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty.</source>
        <translation>„%1“ ist leer.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no raster.</source>
        <translation>„%1“ enthält kein Raster.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: it is no grid file of a known format.</source>
        <translation>„%1“ kann nicht gelesen werden: Es ist keine Rasterdatei eines bekannten Formats.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>„%1“ kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds several grids; name one of them, such as %2.</source>
        <translation>„%1“ enthält mehrere Raster; eines davon nennen, etwa %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no band %2; its bands are 1 to %3.</source>
        <translation>„%1“ hat kein Band %2; seine Bänder sind 1 bis %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds complex numbers (%2); only real heights can be drawn.</source>
        <translation>„%1“ enthält komplexe Zahlen (%2); nur reelle Höhen können gezeichnet werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has %2 x %3 nodes (columns x rows); a surface needs at least 2 x 2.</source>
        <translation>„%1“ hat %2 x %3 Knoten (Spalten x Zeilen); eine Oberfläche braucht mindestens 2 x 2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs about %2; %3 are free.</source>
        <translation>„%1“ braucht etwa %2; %3 sind frei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is rotated against the x and y axes; only grids along the axes can be drawn.</source>
        <translation>„%1“ ist gegen die x- und y-Achse gedreht; nur Raster entlang der Achsen können gezeichnet werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has unusable georeferencing: its cells have no size at their coordinates.</source>
        <translation>„%1“ hat eine unbrauchbare Georeferenzierung: Die Zellen haben an ihren Koordinaten keine Größe.</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Row, from the bottom</source>
        <translation>Zeile, von unten</translation>
    </message>
    <message>
        <source>Longitude (°)</source>
        <translation>Länge (°)</translation>
    </message>
    <message>
        <source>Latitude (°)</source>
        <translation>Breite (°)</translation>
    </message>
    <message>
        <source>Easting (%1)</source>
        <translation>Rechtswert (%1)</translation>
    </message>
    <message>
        <source>Northing (%1)</source>
        <translation>Hochwert (%1)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no heights: every node is missing.</source>
        <translation>„%1“ enthält keine Höhen: Jeder Knoten fehlt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be drawn: its heights span from %L2 to %L3, more than single precision holds.</source>
        <translation>„%1“ kann nicht gezeichnet werden: Die Höhen reichen von %L2 bis %L3, mehr als einfache Genauigkeit fasst.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs about %2, which cannot be had.</source>
        <translation>„%1“ braucht etwa %2, die nicht zu haben sind.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no nodes in that part; its x are from %2 to %3, its y from %4 to %5.</source>
        <translation>„%1“ hat in diesem Teil keine Knoten; x reicht von %2 bis %3, y von %4 bis %5.</translation>
    </message>
    <message>
        <source>That part of &quot;%1&quot; has %2 x %3 nodes (columns x rows); a surface needs at least 2 x 2.</source>
        <translation>Dieser Teil von „%1“ hat %2 x %3 Knoten (Spalten x Zeilen); eine Oberfläche braucht mindestens 2 x 2.</translation>
    </message>
    <message>
        <source>That part of &quot;%1&quot; cannot be drawn: at its coordinates single precision cannot tell its nodes apart.</source>
        <translation>Dieser Teil von „%1“ kann nicht gezeichnet werden: An seinen Koordinaten kann einfache Genauigkeit die Knoten nicht unterscheiden.</translation>
    </message>
</context>
<context>
    <name>GridSource</name>
    <message>
        <source>%L1 to %L2</source>
        <translation>%L1 bis %L2</translation>
    </message>
    <message>
        <source>%L1 x %L2 nodes, x %3, y %4, z %5</source>
        <translation>%L1 x %L2 Knoten, x %3, y %4, z %5</translation>
    </message>
    <message>
        <source>%1, %L2 missing</source>
        <translation>%1, %L2 fehlen</translation>
    </message>
    <message>
        <source>%1, part</source>
        <translation>%1, Teil</translation>
    </message>
    <message>
        <source>Shown thinned: %1 x %2 of %3 x %4 nodes; each is a mean of several.</source>
        <translation>Ausgedünnt gezeigt: %1 x %2 von %3 x %4 Knoten; jeder ist ein Mittel aus mehreren.</translation>
    </message>
</context>
<context>
    <name>HistogramView</name>
    <message>
        <source>Histogram of the heights</source>
        <translation>Histogramm der Höhen</translation>
    </message>
    <message>
        <source>%1 to %2: %3</source>
        <translation>%1 bis %2: %3</translation>
    </message>
</context>
<context>
    <name>MemoryNeed</name>
    <message>
        <source>%1 of memory for %L2 x %L3 nodes</source>
        <translation>%1 Speicher für %L2 x %L3 Knoten</translation>
    </message>
    <message>
        <source>%L1 GB</source>
        <translation>%L1 GB</translation>
    </message>
</context>
<context>
    <name>MeshFile</name>
    <message>
        <source>a mesh file</source>
        <translation>eine Netzdatei</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs about %2 of memory; %3 are free.</source>
        <translation>„%1“ braucht etwa %2 Speicher; %3 sind frei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: it is no mesh file of a known format.</source>
        <translation>„%1“ kann nicht gelesen werden: Es ist keine Netzdatei eines bekannten Formats.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>„%1“ kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no face with an area; there is nothing to draw.</source>
        <translation>„%1“ enthält keine Fläche mit einem Inhalt; es gibt nichts zu zeichnen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no faces, only points or lines; there is nothing to draw.</source>
        <translation>„%1“ enthält keine Flächen, nur Punkte oder Linien; es gibt nichts zu zeichnen.</translation>
    </message>
    <message>
        <source>The file may be damaged: %1.</source>
        <translation>Die Datei ist vielleicht beschädigt: %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than can be had.</source>
        <translation>„%1“ braucht mehr Speicher, als zu haben ist.</translation>
    </message>
</context>
<context>
    <name>MeshMerger</name>
    <message>
        <source>Faces without area left out: %L1.</source>
        <translation>Weggelassene Flächen ohne Inhalt: %L1.</translation>
    </message>
    <message>
        <source>Faces with a corner at no finite place left out: %L1.</source>
        <translation>Weggelassene Flächen mit einer Ecke an keinem endlichen Ort: %L1.</translation>
    </message>
    <message>
        <source>Points and lines left out: %L1.</source>
        <translation>Weggelassene Punkte und Linien: %L1.</translation>
    </message>
    <message>
        <source>Vertices without a face left out: %L1.</source>
        <translation>Weggelassene Eckpunkte ohne Fläche: %L1.</translation>
    </message>
</context>
<context>
    <name>MeshSource</name>
    <message>
        <source>%L1 vertices, %L2 cells</source>
        <translation>%L1 Eckpunkte, %L2 Zellen</translation>
    </message>
</context>
<context>
    <name>NoteBar</name>
    <message numerus="yes">
        <source>All %n notes...</source>
        <translation>
            <numerusform>%n Anmerkung...</numerusform>
            <numerusform>Alle %n Anmerkungen...</numerusform>
        </translation>
    </message>
    <message>
        <source>Close the notes</source>
        <translation>Die Anmerkungen schließen</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Anmerkungen</translation>
    </message>
    <message>
        <source>Open part...</source>
        <translation>Teil öffnen...</translation>
    </message>
    <message>
        <source>Choose a part and show all its nodes</source>
        <translation>Einen Teil wählen und alle seine Knoten zeigen</translation>
    </message>
</context>
<context>
    <name>PartAction</name>
    <message>
        <source>Open p&amp;art...</source>
        <translation>&amp;Teil öffnen...</translation>
    </message>
    <message>
        <source>A part of a thinned grid with all its nodes</source>
        <translation>Ein Teil eines ausgedünnten Rasters mit allen Knoten</translation>
    </message>
    <message>
        <source>Open part</source>
        <translation>Teil öffnen</translation>
    </message>
</context>
<context>
    <name>PartDialog</name>
    <message>
        <source>Open part of %1</source>
        <translation>Teil von %1 öffnen</translation>
    </message>
    <message>
        <source>Drag a rectangle on the map, or drag inside it to move it:</source>
        <translation>Auf der Karte ein Rechteck ziehen oder zum Verschieben darin ziehen:</translation>
    </message>
    <message>
        <source>&amp;Open part</source>
        <translation>Teil &amp;öffnen</translation>
    </message>
    <message>
        <source>%1 from</source>
        <translation>%1 von</translation>
    </message>
    <message>
        <source>%1 to</source>
        <translation>%1 bis</translation>
    </message>
    <message>
        <source>to</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>%1 x %2 nodes</source>
        <translation>%1 x %2 Knoten</translation>
    </message>
    <message>
        <source>%1: too few for a surface, which needs 2 x 2. Choose a larger part.</source>
        <translation>%1: zu wenige für eine Oberfläche, die 2 x 2 braucht. Einen größeren Teil wählen.</translation>
    </message>
    <message>
        <source>%1, in full: within the budget of %2 nodes.</source>
        <translation>%1, vollständig: innerhalb der Grenze von %2 Knoten.</translation>
    </message>
    <message>
        <source>%1: more than the budget of %2 nodes. Shown thinned to %3 x %4.</source>
        <translation>%1: mehr als die Grenze von %2 Knoten. Ausgedünnt auf %3 x %4 gezeigt.</translation>
    </message>
</context>
<context>
    <name>PartMap</name>
    <message>
        <source>Part of the grid</source>
        <translation>Teil des Rasters</translation>
    </message>
</context>
<context>
    <name>PictureActions</name>
    <message>
        <source>&amp;Save picture...</source>
        <translation>Bild &amp;speichern...</translation>
    </message>
    <message>
        <source>Save t&amp;urntable...</source>
        <translation>Dreh&amp;film speichern...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>Print pre&amp;view...</source>
        <translation>Druck&amp;vorschau...</translation>
    </message>
    <message>
        <source>&amp;Copy picture</source>
        <translation>Bild &amp;kopieren</translation>
    </message>
    <message>
        <source>plot</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Saved %1. %2</source>
        <translation>%1 gespeichert. %2</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Numbered pictures (*.png)</source>
        <translation>Nummerierte Bilder (*.png)</translation>
    </message>
    <message>
        <source>Save turntable</source>
        <translation>Drehfilm speichern</translation>
    </message>
    <message>
        <source>Animations (*.mp4 *.webm *.gif *.webp)</source>
        <translation>Animationen (*.mp4 *.webm *.gif *.webp)</translation>
    </message>
    <message>
        <source>Pictures of one turn:</source>
        <translation>Bilder einer Umdrehung:</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>The picture is on the clipboard.</source>
        <translation>Das Bild ist in der Zwischenablage.</translation>
    </message>
    <message>
        <source>The picture cannot be drawn.</source>
        <translation>Das Bild kann nicht gezeichnet werden.</translation>
    </message>
</context>
<context>
    <name>PictureDialog</name>
    <message>
        <source>Save picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>D&amp;urchsuchen...</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>&amp;Datei:</translation>
    </message>
    <message>
        <source>F&amp;ormat:</source>
        <translation>F&amp;ormat:</translation>
    </message>
    <message>
        <source>as the window</source>
        <translation>wie das Fenster</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>S&amp;ize:</source>
        <translation>&amp;Größe:</translation>
    </message>
    <message>
        <source> dpi</source>
        <translation> dpi</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>&amp;Auflösung:</translation>
    </message>
    <message>
        <source>&amp;Transparent background</source>
        <translation>&amp;Transparenter Hintergrund</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>Bilder (%1)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists. Shall it be replaced?</source>
        <translation>„%1“ existiert schon. Soll die Datei ersetzt werden?</translation>
    </message>
</context>
<context>
    <name>PlotHost</name>
    <message>
        <source>Simulation</source>
        <translation>Simulation</translation>
    </message>
    <message>
        <source>Rotation, shift and zoom of the start</source>
        <translation>Drehung, Verschiebung und Zoom vom Anfang</translation>
    </message>
    <message>
        <source>&amp;Grid planes</source>
        <translation>&amp;Gitterebenen</translation>
    </message>
    <message>
        <source>R&amp;eset view</source>
        <translation>Ansicht &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>T&amp;ool bars</source>
        <translation>&amp;Werkzeugleisten</translation>
    </message>
</context>
<context>
    <name>PlotMenu</name>
    <message>
        <source>&amp;Scaling</source>
        <translation>&amp;Skalierung</translation>
    </message>
    <message>
        <source>Loo&amp;k</source>
        <translation>&amp;Erscheinungsbild</translation>
    </message>
    <message>
        <source>M&amp;esh lines</source>
        <translation>&amp;Netzlinien</translation>
    </message>
    <message>
        <source>Pi&amp;ck values</source>
        <translation>&amp;Werte ablesen</translation>
    </message>
    <message>
        <source>Show the value under the cursor</source>
        <translation>Den Wert unter dem Mauszeiger zeigen</translation>
    </message>
    <message>
        <source>&amp;Lighting</source>
        <translation>&amp;Beleuchtung</translation>
    </message>
    <message>
        <source>Perspecti&amp;ve</source>
        <translation>&amp;Perspektive</translation>
    </message>
    <message>
        <source>&amp;Automatic</source>
        <translation>&amp;Automatisch</translation>
    </message>
    <message>
        <source>&amp;Equal units on all axes</source>
        <translation>&amp;Gleiche Einheiten auf allen Achsen</translation>
    </message>
    <message>
        <source>By &amp;hand</source>
        <translation>Von &amp;Hand</translation>
    </message>
    <message>
        <source>Settin&amp;gs...</source>
        <translation>Einstellun&amp;gen...</translation>
    </message>
    <message>
        <source>Everything that can be changed of this plot</source>
        <translation>Alles, was an diesem Diagramm geändert werden kann</translation>
    </message>
    <message>
        <source>Pa&amp;use</source>
        <translation>An&amp;halten</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>S&amp;tarten</translation>
    </message>
    <message>
        <source>&amp;Drop a stone</source>
        <translation>Stein &amp;fallen lassen</translation>
    </message>
</context>
<context>
    <name>PlotPane</name>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Open another plot from the start page</source>
        <translation>Ein weiteres Diagramm von der Startseite öffnen</translation>
    </message>
</context>
<context>
    <name>PlotSource</name>
    <message>
        <source>&quot;%1&quot; cannot be drawn.</source>
        <translation>„%1“ kann nicht gezeichnet werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no values above zero to show logarithmically: nothing can be drawn.</source>
        <translation>„%1“ hat keine Werte über null, die sich logarithmisch zeigen lassen: Es kann nichts gezeichnet werden.</translation>
    </message>
</context>
<context>
    <name>PlotTabs</name>
    <message>
        <source>Start page</source>
        <translation>Startseite</translation>
    </message>
    <message>
        <source>Files, examples and formulas</source>
        <translation>Dateien, Beispiele und Formeln</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Voreinstellungen</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Sprache:</translation>
    </message>
    <message>
        <source>L&amp;ook of new plots:</source>
        <translation>&amp;Erscheinungsbild neuer Diagramme:</translation>
    </message>
    <message>
        <source>&amp;Grids up to:</source>
        <translation>&amp;Raster bis zu:</translation>
    </message>
    <message>
        <source>Language of the system</source>
        <translation>Sprache des Systems</translation>
    </message>
    <message>
        <source>As in the last plot</source>
        <translation>Wie im letzten Diagramm</translation>
    </message>
    <message>
        <source> million nodes</source>
        <translation> Millionen Knoten</translation>
    </message>
    <message>
        <source>Larger grids are read thinned.</source>
        <translation>Größere Raster werden ausgedünnt gelesen.</translation>
    </message>
    <message>
        <source>&amp;Show large grids coarser while they are turned</source>
        <translation>&amp;Große Raster beim Drehen gröber zeigen</translation>
    </message>
    <message>
        <source>A grid of this size takes about %1 of memory; %2 are free.</source>
        <translation>Ein Raster dieser Größe braucht etwa %1 Speicher; %2 sind frei.</translation>
    </message>
    <message>
        <source>A grid of this size takes about %1 of memory.</source>
        <translation>Ein Raster dieser Größe braucht etwa %1 Speicher.</translation>
    </message>
</context>
<context>
    <name>ProgressBox</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Drawing %1...</source>
        <translation>%1 wird gezeichnet...</translation>
    </message>
    <message>
        <source>Reading %1...</source>
        <translation>%1 wird gelesen...</translation>
    </message>
</context>
<context>
    <name>ProgressLine</name>
    <message>
        <source>voranview: drawing %1</source>
        <translation>voranview: %1 wird gezeichnet</translation>
    </message>
    <message>
        <source>voranview: reading %1</source>
        <translation>voranview: %1 wird gelesen</translation>
    </message>
    <message>
        <source>voranview: writing %1</source>
        <translation>voranview: %1 wird geschrieben</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>Recent &amp;files</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1 (fehlt)</translation>
    </message>
    <message>
        <source>No files yet</source>
        <translation>Noch keine Dateien</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translation>&amp;Liste leeren</translation>
    </message>
</context>
<context>
    <name>SliceCurve</name>
    <message>
        <source>%1 over %2</source>
        <translation>%1 über %2</translation>
    </message>
</context>
<context>
    <name>SliceData</name>
    <message>
        <source>%1 at %2 = %3</source>
        <translation>%1 bei %2 = %3</translation>
    </message>
</context>
<context>
    <name>SlicePanel</name>
    <message>
        <source>Hold</source>
        <translation>Halten</translation>
    </message>
    <message>
        <source>Keep this point while the mouse moves on. A click on a point of the plot does the same, a click beside the data ends it.</source>
        <translation>Diesen Punkt behalten, während sich die Maus weiterbewegt. Ein Klick auf einen Punkt des Diagramms bewirkt dasselbe, ein Klick neben die Daten beendet es.</translation>
    </message>
    <message>
        <source>Copy the curves as CSV</source>
        <translation>Die Kurven als CSV kopieren</translation>
    </message>
    <message>
        <source>Save the curves as a CSV file</source>
        <translation>Die Kurven als CSV-Datei speichern</translation>
    </message>
    <message>
        <source>Spectrum</source>
        <translation>Spektrum</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Across</source>
        <translation>Quer</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Beide</translation>
    </message>
    <message>
        <source>The picked spectrum</source>
        <translation>Das abgelesene Spektrum</translation>
    </message>
    <message>
        <source>Along x through the picked point</source>
        <translation>Entlang x durch den abgelesenen Punkt</translation>
    </message>
    <message>
        <source>All spectra at the picked position</source>
        <translation>Alle Spektren an der abgelesenen Position</translation>
    </message>
    <message>
        <source>Along y through the picked point</source>
        <translation>Entlang y durch den abgelesenen Punkt</translation>
    </message>
    <message>
        <source>Both curves</source>
        <translation>Beide Kurven</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy as CSV</source>
        <translation>Als CSV kopieren</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Speichern...</translation>
    </message>
    <message>
        <source>Save CSV...</source>
        <translation>CSV speichern...</translation>
    </message>
    <message>
        <source>The curves are on the clipboard as CSV.</source>
        <translation>Die Kurven sind als CSV in der Zwischenablage.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>slice.csv</source>
        <translation>schnitt.csv</translation>
    </message>
    <message>
        <source>Save CSV</source>
        <translation>CSV speichern</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation>CSV-Dateien (*.csv)</translation>
    </message>
    <message>
        <source>Saved %1.</source>
        <translation>%1 gespeichert.</translation>
    </message>
</context>
<context>
    <name>SpectraFile</name>
    <message>
        <source>a file of spectra</source>
        <translation>eine Spektrendatei</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: line 1: found UTF-16 text, expected UTF-8.</source>
        <translation>„%1“ kann nicht gelesen werden: Zeile 1: UTF-16-Text statt UTF-8.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no numbers.</source>
        <translation>„%1“ enthält keine Zahlen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs about %2 of memory for about %L3 million values; %4 are free.</source>
        <translation>„%1“ braucht etwa %2 Speicher für etwa %L3 Millionen Werte; %4 sind frei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>„%1“ kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>Comment lines passed over: %L1.</source>
        <translation>Übergangene Kommentarzeilen: %L1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than can be had.</source>
        <translation>„%1“ braucht mehr Speicher, als zu haben ist.</translation>
    </message>
</context>
<context>
    <name>SpectraSource</name>
    <message>
        <source>%L1 to %L2, values %L3 to %L4</source>
        <translation>%L1 bis %L2, Werte %L3 bis %L4</translation>
    </message>
    <message>
        <source>%L1 spectra, %L2 points, %3</source>
        <translation>%L1 Spektren, %L2 Punkte, %3</translation>
    </message>
    <message>
        <source>%1 %2: %L3 at %L4</source>
        <translation>%1 %2: %L3 bei %L4</translation>
    </message>
</context>
<context>
    <name>SpectraTable</name>
    <message>
        <source>line %1, column %2: found %3, expected %4</source>
        <translation>Zeile %1, Spalte %2: gefunden %3, erwartet %4</translation>
    </message>
    <message>
        <source>point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>a number with a decimal %1</source>
        <translation>eine Zahl mit dem Dezimalzeichen %1</translation>
    </message>
    <message>
        <source>a number with a decimal %1 as in line %2</source>
        <translation>eine Zahl mit dem Dezimalzeichen %1 wie in Zeile %2</translation>
    </message>
    <message>
        <source>an empty cell</source>
        <translation>eine leere Zelle</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>a position that single precision holds</source>
        <translation>eine Position, die einfache Genauigkeit fasst</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>a single column</source>
        <translation>eine einzige Spalte</translation>
    </message>
    <message>
        <source>cells parted by commas, semicolons or tabs</source>
        <translation>durch Kommas, Semikolons oder Tabulatoren getrennte Zellen</translation>
    </message>
    <message>
        <source>line %1, columns %2 and %3: both have the position %4</source>
        <translation>Zeile %1, Spalten %2 und %3: beide haben die Position %4</translation>
    </message>
    <message>
        <source>the only position</source>
        <translation>die einzige Position</translation>
    </message>
    <message>
        <source>at least two</source>
        <translation>mindestens zwei</translation>
    </message>
    <message>
        <source>line %1: found %2 columns of names, expected either positions from the second column on or columns in pairs of x and y</source>
        <translation>Zeile %1: gefunden %2 Spalten mit Namen, erwartet entweder Positionen ab der zweiten Spalte oder Spalten in Paaren von x und y</translation>
    </message>
    <message>
        <source>%1 columns as in the first row</source>
        <translation>%1 Spalten wie in der ersten Zeile</translation>
    </message>
    <message>
        <source>the end of the row</source>
        <translation>das Ende der Zeile</translation>
    </message>
    <message>
        <source>line %1 begins with %2</source>
        <translation>Zeile %1 beginnt mit %2</translation>
    </message>
    <message>
        <source>lines %1 and %2, column %3: both have the position %4</source>
        <translation>Zeilen %1 und %2, Spalte %3: beide haben die Position %4</translation>
    </message>
    <message>
        <source>Not every row begins with a number (%1); all spectra are placed by their row numbers.</source>
        <translation>Nicht jede Zeile beginnt mit einer Zahl (%1); alle Spektren stehen nach ihren Zeilennummern.</translation>
    </message>
    <message>
        <source>Lines %1 and %2 have the same position %3</source>
        <translation>Die Zeilen %1 und %2 haben dieselbe Position %3</translation>
    </message>
    <message>
        <source>%1 more clash likewise</source>
        <translation>%1 weitere fallen ebenso zusammen</translation>
    </message>
    <message>
        <source>%1; all spectra are placed by their row numbers.</source>
        <translation>%1; alle Spektren stehen nach ihren Zeilennummern.</translation>
    </message>
    <message>
        <source>it has no rows</source>
        <translation>sie hat keine Zeilen</translation>
    </message>
    <message>
        <source>it has only one row, expected a row of positions and then a row for each spectrum</source>
        <translation>sie hat nur eine Zeile, erwartet werden eine Zeile mit Positionen und dann eine Zeile je Spektrum</translation>
    </message>
    <message>
        <source>columns %1 and %2: found %3 points, expected at least two</source>
        <translation>Spalten %1 und %2: gefunden %3 Punkte, erwartet mindestens zwei</translation>
    </message>
    <message>
        <source>every value is missing</source>
        <translation>jeder Wert fehlt</translation>
    </message>
    <message>
        <source>Values too large to draw are missing: %L1, the first in %2.</source>
        <translation>Zum Zeichnen zu große Werte fehlen: %L1, der erste in %2.</translation>
    </message>
    <message>
        <source>The columns are read as pairs of x and y; spectra: %L1.</source>
        <translation>Die Spalten werden als Paare von x und y gelesen; Spektren: %L1.</translation>
    </message>
    <message>
        <source>Spectrum %1</source>
        <translation>Spektrum %1</translation>
    </message>
    <message>
        <source>Spectrum</source>
        <translation>Spektrum</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>voranview</source>
        <translation>voranview</translation>
    </message>
    <message>
        <source>&amp;Open a file...</source>
        <translation>Datei &amp;öffnen...</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Ausprobieren</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>The files that you open will be listed here.</source>
        <translation>Geöffnete Dateien werden hier aufgelistet.</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translation>&amp;Liste leeren</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1 (fehlt)</translation>
    </message>
    <message>
        <source>Drop a grid, spectra or a mesh into this window, or paste a table.</source>
        <translation>Ein Raster, Spektren oder ein Netz in dieses Fenster ziehen oder eine Tabelle einfügen.</translation>
    </message>
</context>
<context>
    <name>TabActions</name>
    <message>
        <source>Star&amp;t page</source>
        <translation>Startseit&amp;e</translation>
    </message>
    <message>
        <source>Open another plot in a new tab</source>
        <translation>Ein weiteres Diagramm in einem neuen Reiter öffnen</translation>
    </message>
    <message>
        <source>&amp;Close plot</source>
        <translation>Diagramm s&amp;chließen</translation>
    </message>
    <message>
        <source>Close the plot that is shown</source>
        <translation>Das gezeigte Diagramm schließen</translation>
    </message>
    <message>
        <source>Close ot&amp;hers</source>
        <translation>&amp;Andere schließen</translation>
    </message>
    <message>
        <source>Close all plots but the one that is shown</source>
        <translation>Alle Diagramme bis auf das gezeigte schließen</translation>
    </message>
    <message>
        <source>S&amp;how beside</source>
        <translation>Da&amp;neben zeigen</translation>
    </message>
    <message>
        <source>Move the plot to a place of its own, right of another plot</source>
        <translation>Das Diagramm an einen eigenen Platz rechts von einem anderen setzen</translation>
    </message>
    <message>
        <source>Sho&amp;w below</source>
        <translation>D&amp;arunter zeigen</translation>
    </message>
    <message>
        <source>Move the plot to a place of its own, below another plot</source>
        <translation>Das Diagramm an einen eigenen Platz unter einem anderen setzen</translation>
    </message>
    <message>
        <source>Move to the &amp;next place</source>
        <translation>Zum nächsten &amp;Platz verschieben</translation>
    </message>
    <message>
        <source>Add the plot to the tabs of another place</source>
        <translation>Das Diagramm zu den Reitern eines anderen Platzes legen</translation>
    </message>
    <message>
        <source>&amp;All in one place</source>
        <translation>Alle an &amp;einen Platz</translation>
    </message>
    <message>
        <source>Bring all plots back into the tabs of one place</source>
        <translation>Alle Diagramme in die Reiter eines Platzes zurückholen</translation>
    </message>
    <message>
        <source>Ne&amp;xt plot</source>
        <translation>Nä&amp;chstes Diagramm</translation>
    </message>
    <message>
        <source>Pre&amp;vious plot</source>
        <translation>Vor&amp;iges Diagramm</translation>
    </message>
</context>
<context>
    <name>TableDialog</name>
    <message>
        <source>Paste data</source>
        <translation>Daten einfügen</translation>
    </message>
    <message>
        <source>The table has %1 rows and %2 columns. What do its cells mean?</source>
        <translation>Die Tabelle hat %1 Zeilen und %2 Spalten. Was bedeuten ihre Zellen?</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>An&amp;zeigen</translation>
    </message>
    <message>
        <source>The cells are</source>
        <translation>Die Zellen sind</translation>
    </message>
    <message>
        <source>Surface: &amp;heights</source>
        <translation>Oberfläche: &amp;Höhen</translation>
    </message>
    <message>
        <source>Surface: first row is x, first &amp;column is y</source>
        <translation>Oberfläche: erste Zeile ist x, erste &amp;Spalte ist y</translation>
    </message>
    <message>
        <source>Surface: first &amp;row is x</source>
        <translation>Oberfläche: &amp;erste Zeile ist x</translation>
    </message>
    <message>
        <source>Surface: first column is &amp;y</source>
        <translation>Oberfläche: erste Spalte ist &amp;y</translation>
    </message>
    <message>
        <source>x, y, &amp;z columns</source>
        <translation>Spalten x, y, &amp;z</translation>
    </message>
    <message>
        <source>&amp;Spectra: first column is x</source>
        <translation>Spe&amp;ktren: erste Spalte ist x</translation>
    </message>
    <message>
        <source>The table does not have this form.</source>
        <translation>Die Tabelle hat nicht diese Form.</translation>
    </message>
</context>
<context>
    <name>TableSource</name>
    <message>
        <source>Pasted table</source>
        <translation>Eingefügte Tabelle</translation>
    </message>
    <message>
        <source>The table cannot be drawn: its uneven rows or columns lie so far from zero that they fall together; take a constant off them first.</source>
        <translation>Die Tabelle kann nicht gezeichnet werden: Ihre ungleichmäßigen Zeilen oder Spalten liegen so weit von null, dass sie zusammenfallen; zuerst eine Konstante von ihnen abziehen.</translation>
    </message>
    <message>
        <source>%1 spectra, %2 points each</source>
        <translation>%1 Spektren zu je %2 Punkten</translation>
    </message>
    <message>
        <source>%1: %2 at %3</source>
        <translation>%1: %2 bei %3</translation>
    </message>
</context>
<context>
    <name>ToroidSource</name>
    <message>
        <source>Toroid</source>
        <translation>Torus</translation>
    </message>
    <message>
        <source>%L1 x %L2 nodes</source>
        <translation>%L1 x %L2 Knoten</translation>
    </message>
</context>
<context>
    <name>ValueTableModel</name>
    <message>
        <source>Missing</source>
        <translation>Fehlend</translation>
    </message>
</context>
<context>
    <name>ValueTableView</name>
    <message>
        <source>The plot shows the point of the chosen cell.</source>
        <translation>Das Diagramm zeigt den Punkt der gewählten Zelle.</translation>
    </message>
    <message>
        <source>Choose at most %1 cells to copy.</source>
        <translation>Höchstens %1 Zellen zum Kopieren wählen.</translation>
    </message>
    <message>
        <source>The chosen cells are on the clipboard: %1.</source>
        <translation>Die gewählten Zellen sind in der Zwischenablage: %1.</translation>
    </message>
    <message>
        <source>&amp;Copy cells</source>
        <translation>Zellen &amp;kopieren</translation>
    </message>
</context>
<context>
    <name>ViewChange</name>
    <message>
        <source>rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>shift</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>projection</source>
        <translation>Projektion</translation>
    </message>
    <message>
        <source>stretch</source>
        <translation>Strecken</translation>
    </message>
    <message>
        <source>change of view</source>
        <translation>Ansicht ändern</translation>
    </message>
</context>
<context>
    <name>ViewHistory</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>link of views</source>
        <translation>Koppeln von Ansichten</translation>
    </message>
    <message>
        <source>auto-rotation</source>
        <translation>Automatische Drehung</translation>
    </message>
    <message>
        <source>reset view</source>
        <translation>Ansicht zurücksetzen</translation>
    </message>
    <message>
        <source>standard view</source>
        <translation>Standardansicht</translation>
    </message>
</context>
<context>
    <name>ViewerBindings</name>
    <message>
        <source>&amp;Mouse and keys...</source>
        <translation>&amp;Maus und Tasten...</translation>
    </message>
    <message>
        <source>Which drags and keys turn, move and stretch the plot</source>
        <translation>Mit welchen Gesten und Tasten sich das Diagramm drehen, verschieben und strecken lässt</translation>
    </message>
</context>
<context>
    <name>ViewerPlot</name>
    <message>
        <source>z</source>
        <translation>z</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <source>y</source>
        <translation>y</translation>
    </message>
</context>
<context>
    <name>ViewerSpectrum</name>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>ViewerWindow</name>
    <message>
        <source>&amp;Plot</source>
        <translation>Dia&amp;gramm</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Öffnen...</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>From &amp;formula...</source>
        <translation>Aus &amp;Formel...</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formel</translation>
    </message>
    <message>
        <source>z as a function of x and y</source>
        <translation>z als Funktion von x und y</translation>
    </message>
    <message>
        <source>&amp;Toroid</source>
        <translation>&amp;Torus</translation>
    </message>
    <message>
        <source>A ring with a tilted tube</source>
        <translation>Ein Ring mit geneigter Röhre</translation>
    </message>
    <message>
        <source>&amp;Water surface</source>
        <translation>&amp;Wasseroberfläche</translation>
    </message>
    <message>
        <source>Ripples around a falling stone</source>
        <translation>Wellen um einen fallenden Stein</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Status bar</source>
        <translation>&amp;Statusleiste</translation>
    </message>
    <message>
        <source>F&amp;ull screen</source>
        <translation>Voll&amp;bild</translation>
    </message>
    <message>
        <source>voranview</source>
        <translation>voranview</translation>
    </message>
    <message>
        <source>%1 - voranview</source>
        <translation>%1 - voranview</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>All data (*)</source>
        <translation>Alle Daten (*)</translation>
    </message>
    <message>
        <source>Grids (*.asc *.tif *.tiff *.vrt *.nc *.grd *.img *.dem *.hgt *.xyz *.bil *.flt)</source>
        <translation>Raster (*.asc *.tif *.tiff *.vrt *.nc *.grd *.img *.dem *.hgt *.xyz *.bil *.flt)</translation>
    </message>
    <message>
        <source>Spectra (*.csv *.tsv *.txt *.dat)</source>
        <translation>Spektren (*.csv *.tsv *.txt *.dat)</translation>
    </message>
    <message>
        <source>Meshes (*.off *.obj *.ply *.stl *.3ds *.dae *.gltf *.glb *.fbx *.x3d)</source>
        <translation>Netze (*.off *.obj *.ply *.stl *.3ds *.dae *.gltf *.glb *.fbx *.x3d)</translation>
    </message>
    <message>
        <source>Pr&amp;eferences...</source>
        <translation>&amp;Voreinstellungen...</translation>
    </message>
    <message>
        <source>Language, look of new plots, size of grids</source>
        <translation>Sprache, Erscheinungsbild neuer Diagramme, Größe von Rastern</translation>
    </message>
    <message>
        <source>L&amp;ink views</source>
        <translation>Ansichten &amp;koppeln</translation>
    </message>
    <message>
        <source>Turn, zoom and shift all plots together</source>
        <translation>Alle Diagramme gemeinsam drehen, zoomen und verschieben</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About VORAN Viewer...</source>
        <translation>&amp;Über VORAN Viewer...</translation>
    </message>
</context>
<context>
    <name>WaterSource</name>
    <message>
        <source>Water surface</source>
        <translation>Wasseroberfläche</translation>
    </message>
    <message>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <source>y</source>
        <translation>y</translation>
    </message>
    <message>
        <source>z</source>
        <translation>z</translation>
    </message>
    <message>
        <source>Ctrl+D drops a stone, F5 pauses.</source>
        <translation>Strg+D lässt einen Stein fallen, F5 hält an.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>--part shows a part of it in full, --budget more nodes of all of it.</source>
        <translation>--part zeigt einen Teil davon vollständig, --budget mehr Knoten des Ganzen.</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AboutBox</name>
    <message>
        <source>Qt %1</source>
        <translation>Qt %1</translation>
    </message>
    <message>
        <source>About VORAN Viewer</source>
        <translation>À propos de VORAN Viewer</translation>
    </message>
    <message>
        <source>VORAN Viewer %1</source>
        <translation>VORAN Viewer %1</translation>
    </message>
    <message>
        <source>Surfaces, meshes and spectra in three dimensions, to turn, zoom and pick.</source>
        <translation>Surfaces, maillages et spectres en trois dimensions, à tourner, agrandir et pointer.</translation>
    </message>
    <message>
        <source>OpenGL %1 by %2</source>
        <translation>OpenGL %1 par %2</translation>
    </message>
</context>
<context>
    <name>ClipboardTable</name>
    <message>
        <source>The table cannot be read: row %1, column %2: found %3, expected %4.</source>
        <translation>Le tableau ne peut pas être lu&#xa0;: ligne %1, colonne %2&#xa0;: trouvé %3, attendu %4.</translation>
    </message>
    <message>
        <source>an empty cell</source>
        <translation>une cellule vide</translation>
    </message>
    <message>
        <source>The table has rows: %1, columns: %2; at least two of each are needed.</source>
        <translation>Le tableau a %1 lignes et %2 colonnes&#xa0;; il en faut au moins deux de chaque.</translation>
    </message>
    <message>
        <source>The table needs more memory than can be had.</source>
        <translation>Le tableau a besoin de plus de mémoire qu’il n’y en a.</translation>
    </message>
    <message>
        <source>The table holds too few numbers for a surface or spectra.</source>
        <translation>Le tableau contient trop peu de nombres pour une surface ou des spectres.</translation>
    </message>
    <message>
        <source>The table needs about %1 of memory; %2 are free.</source>
        <translation>Le tableau a besoin d’environ %1 de mémoire&#xa0;; %2 sont libres.</translation>
    </message>
    <message>
        <source>The table cannot be read: %1.</source>
        <translation>Le tableau ne peut pas être lu&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The table cannot be read: row %1, column %2: found the end of the row, expected %3 columns as in row %4.</source>
        <translation>Le tableau ne peut pas être lu&#xa0;: ligne %1, colonne %2&#xa0;: trouvé la fin de la ligne, attendu %3 colonnes comme à la ligne %4.</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un nombre</translation>
    </message>
    <message>
        <source>a number with a decimal point as in other cells</source>
        <translation>un nombre avec un point décimal comme dans d’autres cellules</translation>
    </message>
    <message>
        <source>a number with a decimal comma as in other cells</source>
        <translation>un nombre avec une virgule décimale comme dans d’autres cellules</translation>
    </message>
    <message>
        <source>The first column holds texts and is left out.</source>
        <translation>La première colonne contient des textes et est omise.</translation>
    </message>
    <message>
        <source>Values too large to draw are missing: %1.</source>
        <translation>Les valeurs trop grandes pour être dessinées manquent&#xa0;: %1.</translation>
    </message>
    <message>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>y</source>
        <translation>y</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Nodes without a row in the table are missing: %1.</source>
        <translation>Les nœuds sans ligne dans le tableau manquent&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The table does not have this form.</source>
        <translation>Le tableau n’a pas cette forme.</translation>
    </message>
    <message>
        <source>The table needs %1; %2 are free.</source>
        <translation>Le tableau a besoin de %1&#xa0;; %2 sont libres.</translation>
    </message>
    <message>
        <source>Every height of the table is missing.</source>
        <translation>Toutes les hauteurs du tableau manquent.</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Colonne %1</translation>
    </message>
    <message>
        <source>Every value of the table is missing.</source>
        <translation>Toutes les valeurs du tableau manquent.</translation>
    </message>
    <message>
        <source>Spectrum</source>
        <translation>Spectre</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Shows grids of heights, meshes, spectra and formulas as interactive three-dimensional plots.</source>
        <translation>Affiche des grilles de hauteurs, des maillages, des spectres et des formules sous forme de graphiques interactifs en trois dimensions.</translation>
    </message>
    <message>
        <source>Show z as a formula of x and y, such as &quot;sin(x)*cos(y)&quot;.</source>
        <translation>Afficher z comme formule de x et y, par exemple «&#xa0;sin(x)*cos(y)&#xa0;».</translation>
    </message>
    <message>
        <source>Where the formula is evaluated: x from:to, then y from:to, such as -3:3,-2*pi:2*pi; one range is for both. %1 without it.</source>
        <translation>Où la formule est évaluée&#xa0;: x de:à, puis y de:à, par exemple -3:3,-2*pi:2*pi&#xa0;; une plage vaut pour les deux. %1 par défaut.</translation>
    </message>
    <message>
        <source>Nodes of the formula along x and y, such as 200x100; one number is for both. %1 without it.</source>
        <translation>Nœuds de la formule suivant x et y, par exemple 200x100&#xa0;; un nombre vaut pour les deux. %1 par défaut.</translation>
    </message>
    <message>
        <source>Draw the plot in this style: %1; spectra: %2.</source>
        <translation>Dessiner le graphique dans ce style&#xa0;: %1&#xa0;; spectres&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Dress the plot in this look: %1.</source>
        <translation>Donner cette apparence au graphique&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Give the plot the appearance that this file holds.</source>
        <translation>Donner au graphique l’apparence conservée dans ce fichier.</translation>
    </message>
    <message>
        <source>Size of the plot in pixels, each side %1 to %2.</source>
        <translation>Taille du graphique en pixels, chaque côté de %1 à %2.</translation>
    </message>
    <message>
        <source>Show the plot from there: %1, or a rotation about x, y and z in degrees, such as 45,0,25.</source>
        <translation>Montrer le graphique de là&#xa0;: %1, ou une rotation autour de x, y et z en degrés, par exemple 45,0,25.</translation>
    </message>
    <message>
        <source>Colour the data with this gradient: %1.</source>
        <translation>Colorer les données avec ce dégradé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Name the axes; what is left empty keeps its name.</source>
        <translation>Nommer les axes&#xa0;; ce qui reste vide garde son nom.</translation>
    </message>
    <message>
        <source>Show these directions logarithmically, such as x,z. Values at or below zero are missing then.</source>
        <translation>Afficher ces directions en échelle logarithmique, par exemple x,z. Les valeurs nulles ou négatives manquent alors.</translation>
    </message>
    <message>
        <source>Band of a grid file to show, from 1.</source>
        <comment>command line</comment>
        <translation>Bande à afficher d’un fichier de grille, à partir de 1.</translation>
    </message>
    <message>
        <source>Show this help and leave.</source>
        <translation>Afficher cette aide et quitter.</translation>
    </message>
    <message>
        <source>Show the version and leave.</source>
        <translation>Afficher la version et quitter.</translation>
    </message>
    <message>
        <source>Leave out the background of pictures.</source>
        <translation>Omettre l’arrière-plan des images.</translation>
    </message>
    <message>
        <source>%1. Try --help.</source>
        <translation>%1. Voir --help.</translation>
    </message>
    <message>
        <source>voranview %1</source>
        <translation>voranview %1</translation>
    </message>
    <message>
        <source>The option --template names no file.</source>
        <translation>L’option --template n’indique aucun fichier.</translation>
    </message>
    <message>
        <source>A file and a formula are named; only one of them can be shown.</source>
        <translation>Un fichier et une formule sont indiqués&#xa0;; un seul des deux peut être affiché.</translation>
    </message>
    <message>
        <source>The option --%1 is for a formula; none is named with --function.</source>
        <translation>L’option --%1 concerne une formule&#xa0;; aucune n’est indiquée avec --function.</translation>
    </message>
    <message>
        <source>The option --log is for grids, spectra and formulas; a mesh is named.</source>
        <translation>L’option --log concerne les grilles, les spectres et les formules&#xa0;; un maillage est indiqué.</translation>
    </message>
    <message>
        <source>The option --%1 needs a file or a formula to show; none is named.</source>
        <translation>L’option --%1 a besoin d’un fichier ou d’une formule à afficher&#xa0;; rien n’est indiqué.</translation>
    </message>
    <message>
        <source>The option --%1 names no picture.</source>
        <translation>L’option --%1 n’indique aucune image.</translation>
    </message>
    <message>
        <source>A picture needs a file or a formula to show; none is named.</source>
        <translation>Une image a besoin d’un fichier ou d’une formule à afficher&#xa0;; rien n’est indiqué.</translation>
    </message>
    <message>
        <source>The option --transparent is for pictures; none is named.</source>
        <translation>L’option --transparent concerne les images&#xa0;; aucune n’est indiquée.</translation>
    </message>
    <message>
        <source>Spectra have no plot style &quot;%1&quot;; the styles are %2.</source>
        <translation>Les spectres n’ont pas de style «&#xa0;%1&#xa0;»&#xa0;; les styles sont %2.</translation>
    </message>
    <message>
        <source>There is no plot style &quot;%1&quot;; the styles are %2.</source>
        <translation>Il n’y a pas de style «&#xa0;%1&#xa0;»&#xa0;; les styles sont %2.</translation>
    </message>
    <message>
        <source>There is no look &quot;%1&quot;; the looks are %2.</source>
        <translation>Il n’y a pas d’apparence «&#xa0;%1&#xa0;»&#xa0;; les apparences sont %2.</translation>
    </message>
    <message>
        <source>The size &quot;%1&quot; is not WIDTHxHEIGHT with both sides from %2 to %3 pixels.</source>
        <translation>La taille «&#xa0;%1&#xa0;» n’est pas LARGEURxHAUTEUR avec des côtés de %2 à %3 pixels.</translation>
    </message>
    <message>
        <source>The band &quot;%1&quot; is not a whole number from 1.</source>
        <translation>La bande «&#xa0;%1&#xa0;» n’est pas un nombre entier à partir de 1.</translation>
    </message>
    <message>
        <source>The view &quot;%1&quot; is neither three angles X,Y,Z from -%2 to %2 degrees nor one of %3.</source>
        <translation>La vue «&#xa0;%1&#xa0;» n’est ni trois angles X,Y,Z de -%2 à %2 degrés ni l’une de %3.</translation>
    </message>
    <message>
        <source>There is no gradient &quot;%1&quot;; the gradients are %2.</source>
        <translation>Il n’y a pas de dégradé «&#xa0;%1&#xa0;»&#xa0;; les dégradés sont %2.</translation>
    </message>
    <message>
        <source>The names of the axes &quot;%1&quot; are not three with commas between them.</source>
        <translation>Les noms des axes «&#xa0;%1&#xa0;» ne sont pas trois noms séparés par des virgules.</translation>
    </message>
    <message>
        <source>The directions &quot;%1&quot; are not letters x, y or z with commas between them.</source>
        <translation>Les directions «&#xa0;%1&#xa0;» ne sont pas des lettres x, y ou z séparées par des virgules.</translation>
    </message>
    <message>
        <source>A grid of any format that GDAL reads, a mesh (OFF, OBJ, PLY, STL, glTF ...) or spectra in a CSV file. Several files open in tabs.</source>
        <translation>Une grille dans un format lu par GDAL, un maillage (OFF, OBJ, PLY, STL, glTF ...) ou des spectres dans un fichier CSV. Plusieurs fichiers s’ouvrent dans des onglets.</translation>
    </message>
    <message>
        <source>Show the part of a grid file between two corners, in the file&apos;s coordinates.</source>
        <translation>Afficher la partie d’un fichier de grille entre deux coins, dans les coordonnées du fichier.</translation>
    </message>
    <message>
        <source>Show grids of more nodes than that thinned, %1 to %2. Without it the number of the preferences serves.</source>
        <translation>Afficher allégées les grilles de plus de nœuds, de %1 à %2. Par défaut, le nombre des préférences vaut.</translation>
    </message>
    <message>
        <source>The option --%1 is for grid files; none is named.</source>
        <translation>L’option --%1 concerne les fichiers de grille&#xa0;; aucun n’est indiqué.</translation>
    </message>
    <message>
        <source>The budget &quot;%1&quot; is not a whole number of nodes from %2 to %3.</source>
        <translation>Le nombre de nœuds «&#xa0;%1&#xa0;» n’est pas un nombre entier de %2 à %3.</translation>
    </message>
    <message>
        <source>The part &quot;%1&quot; is not X0,Y0,X1,Y1, the coordinates of two corners.</source>
        <translation>La partie «&#xa0;%1&#xa0;» n’est pas X0,Y0,X1,Y1, les coordonnées de deux coins.</translation>
    </message>
    <message>
        <source>Write the plot as %1 and leave; a folder takes a picture of each file. May stand beside other formats.</source>
        <translation>Écrire le graphique au format %1 et quitter&#xa0;; un dossier reçoit une image de chaque fichier. Peut accompagner d’autres formats.</translation>
    </message>
    <message>
        <source>%1 files are named: name a folder for their pictures; &quot;%2&quot; is none.</source>
        <translation>%1 fichiers sont nommés&#xa0;: nommez un dossier pour leurs images&#xa0;; «&#xa0;%2&#xa0;» n’en est pas un.</translation>
    </message>
    <message>
        <source>Two of the files have one name; their pictures in &quot;%1&quot; would be one.</source>
        <translation>Deux des fichiers ont le même nom&#xa0;; leurs images dans «&#xa0;%1&#xa0;» n’en feraient qu’une.</translation>
    </message>
</context>
<context>
    <name>CsvReader</name>
    <message>
        <source>line %1, column %2: the cell never ends; a quote may be missing</source>
        <translation>ligne %1, colonne %2&#xa0;: la cellule ne finit jamais&#xa0;; il manque peut-être un guillemet</translation>
    </message>
    <message>
        <source>line %1, character %2: found a zero byte, expected text</source>
        <translation>ligne %1, caractère %2&#xa0;: un octet nul au lieu de texte</translation>
    </message>
    <message>
        <source>line %1, column %2: the quoted cell never ends</source>
        <translation>ligne %1, colonne %2&#xa0;: la cellule entre guillemets ne finit jamais</translation>
    </message>
</context>
<context>
    <name>DataActions</name>
    <message>
        <source>&amp;Paste data</source>
        <translation>Co&amp;ller les données</translation>
    </message>
    <message>
        <source>Show a table, or open a file, from the clipboard</source>
        <translation>Afficher un tableau du presse-papiers ou ouvrir un fichier</translation>
    </message>
    <message>
        <source>Paste data &amp;as...</source>
        <translation>Coller les données co&amp;mme...</translation>
    </message>
    <message>
        <source>Say what the cells of a table on the clipboard mean</source>
        <translation>Indiquer ce que signifient les cellules d’un tableau du presse-papiers</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>Slice</source>
        <translation>Coupe</translation>
    </message>
    <message>
        <source>Ranges, statistics and a table of the values</source>
        <translation>Étendues, statistiques et tableau des valeurs</translation>
    </message>
    <message>
        <source>The row and the column of the picked point as curves</source>
        <translation>La ligne et la colonne du point lu sous forme de courbes</translation>
    </message>
    <message>
        <source>There is no plot with data.</source>
        <translation>Il n’y a pas de graphique avec des données.</translation>
    </message>
    <message>
        <source>A mesh has no rows and columns through which to cut.</source>
        <translation>Un maillage n’a ni lignes ni colonnes à couper.</translation>
    </message>
    <message>
        <source>Choose a cell of the table in the Data window, or switch on &quot;Pick values&quot; in the Plot menu and point at the plot.</source>
        <translation>Choisir une cellule du tableau dans la fenêtre Données, ou activer «&#xa0;Lire les valeurs&#xa0;» dans le menu Graphique et pointer sur le graphique.</translation>
    </message>
    <message>
        <source>Point at a spectrum to see it here.</source>
        <translation>Pointer sur un spectre pour le voir ici.</translation>
    </message>
    <message>
        <source>Point at the surface to see the row and the column under the mouse here.</source>
        <translation>Pointer sur la surface pour voir ici la ligne et la colonne sous la souris.</translation>
    </message>
    <message>
        <source>Paste data</source>
        <translation>Coller les données</translation>
    </message>
    <message>
        <source>There is no table and no file on the clipboard. Copy some cells in a spreadsheet, then paste them here.</source>
        <translation>Il n’y a ni tableau ni fichier dans le presse-papiers. Copier des cellules dans un tableur, puis les coller ici.</translation>
    </message>
    <message>
        <source>&amp;Data</source>
        <translation>Do&amp;nnées</translation>
    </message>
    <message>
        <source>Sli&amp;ce</source>
        <translation>Co&amp;upe</translation>
    </message>
</context>
<context>
    <name>DataInspector</name>
    <message>
        <source>There is no plot with data.</source>
        <translation>Il n’y a pas de graphique avec des données.</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
</context>
<context>
    <name>DataSummary</name>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>%1, step %2</source>
        <translation>%1, pas %2</translation>
    </message>
    <message>
        <source>%1 (%2 %)</source>
        <translation>%1 (%2&#xa0;%)</translation>
    </message>
    <message>
        <source>%1 columns × %2 rows</source>
        <translation>%1 colonnes × %2 lignes</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Surface over a grid</source>
        <translation>Surface sur une grille</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Nœuds</translation>
    </message>
    <message>
        <source>Surface of free nodes</source>
        <translation>Surface de nœuds libres</translation>
    </message>
    <message>
        <source>Spectra</source>
        <translation>Spectres</translation>
    </message>
    <message>
        <source>Points each</source>
        <translation>Points par spectre</translation>
    </message>
    <message>
        <source>Mesh</source>
        <translation>Maillage</translation>
    </message>
    <message>
        <source>Vertices</source>
        <translation>Sommets</translation>
    </message>
    <message>
        <source>Cells</source>
        <translation>Cellules</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Manquants</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Std. deviation</source>
        <translation>Écart type</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Médiane</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>The display cannot be opened: set DISPLAY to a running X server, or run this under xvfb-run.</source>
        <translation>L’affichage ne peut pas être ouvert&#xa0;: régler DISPLAY sur un serveur X en marche ou lancer avec xvfb-run.</translation>
    </message>
    <message>
        <source>There is no display: set DISPLAY to a running X server, or run this under xvfb-run.</source>
        <translation>Il n’y a pas d’affichage&#xa0;: régler DISPLAY sur un serveur X en marche ou lancer avec xvfb-run.</translation>
    </message>
    <message>
        <source>The display offers no OpenGL, which the plot needs.</source>
        <translation>L’affichage n’offre pas OpenGL, dont le graphique a besoin.</translation>
    </message>
</context>
<context>
    <name>DragHandle</name>
    <message>
        <source>Drag the picture from here into another program</source>
        <translation>Glisser l’image d’ici vers un autre programme</translation>
    </message>
    <message>
        <source>Drag the picture</source>
        <translation>Glisser l’image</translation>
    </message>
</context>
<context>
    <name>Examples</name>
    <message>
        <source>Jacksboro fault</source>
        <translation>Faille de Jacksboro</translation>
    </message>
    <message>
        <source>A mountain ridge in Tennessee: a grid</source>
        <translation>Une crête du Tennessee&#xa0;: une grille</translation>
    </message>
    <message>
        <source>Gasoline</source>
        <translation>Essence</translation>
    </message>
    <message>
        <source>Infrared spectra of 60 samples</source>
        <translation>Spectres infrarouges de 60 échantillons</translation>
    </message>
    <message>
        <source>Rabbit</source>
        <translation>Lapin</translation>
    </message>
    <message>
        <source>A scanned figure: a mesh</source>
        <translation>Une figurine numérisée&#xa0;: un maillage</translation>
    </message>
</context>
<context>
    <name>FileCheck</name>
    <message>
        <source>No file is named.</source>
        <translation>Aucun fichier n’est indiqué.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, not %2.</source>
        <translation>«&#xa0;%1&#xa0;» est un dossier, pas %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not exist.</source>
        <translation>«&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: permission denied.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être lu&#xa0;: permission refusée.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no regular file.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty.</source>
        <translation>«&#xa0;%1&#xa0;» est vide.</translation>
    </message>
</context>
<context>
    <name>Formula</name>
    <message>
        <source>&quot;%1&quot; cannot be read at column %2: %3.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être lu à la colonne %2&#xa0;: %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not known here</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas connu ici</translation>
    </message>
    <message>
        <source>the formula ends too early</source>
        <translation>la formule finit trop tôt</translation>
    </message>
    <message>
        <source>a parenthesis is not closed</source>
        <translation>une parenthèse n’est pas fermée</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has too many arguments</source>
        <translation>«&#xa0;%1&#xa0;» a trop d’arguments</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has too few arguments</source>
        <translation>«&#xa0;%1&#xa0;» a trop peu d’arguments</translation>
    </message>
    <message>
        <source>&quot;?&quot; has no &quot;:&quot;</source>
        <translation>«&#xa0;?&#xa0;» n’a pas de «&#xa0;:&#xa0;»</translation>
    </message>
    <message>
        <source>an operator such as * is missing before &quot;%1&quot;</source>
        <translation>il manque un opérateur tel que * avant «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot stand here</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas se trouver ici</translation>
    </message>
    <message>
        <source>The formula is empty.</source>
        <translation>La formule est vide.</translation>
    </message>
    <message>
        <source>&quot;=&quot; cannot stand here; give what z is equal to, without z =</source>
        <translation>«&#xa0;=&#xa0;» ne peut pas se trouver ici&#xa0;; donner ce à quoi z est égal, sans z =</translation>
    </message>
    <message>
        <source>&quot;,&quot; cannot stand here; the decimal sign is a point</source>
        <translation>«&#xa0;,&#xa0;» ne peut pas se trouver ici&#xa0;; le séparateur décimal est un point</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be drawn over %2 x %3 nodes (columns x rows); a surface needs at least 2 x 2.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être dessinée sur %2 x %3 nœuds (colonnes x rangées)&#xa0;; une surface en a besoin d’au moins 2 x 2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs about %2; %3 are free.</source>
        <translation>«&#xa0;%1&#xa0;» a besoin d’environ %2&#xa0;; %3 sont libres.</translation>
    </message>
    <message>
        <source>x = %L1, y = %L2</source>
        <translation>x = %L1, y = %L2</translation>
    </message>
    <message>
        <source>The formula has no height at %L1 of %L2 nodes, the first at %3.</source>
        <translation>La formule n’a pas de hauteur à %L1 nœuds sur %L2, le premier à %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs about %2, which cannot be had.</source>
        <translation>«&#xa0;%1&#xa0;» a besoin d’environ %2, qui ne sont pas disponibles.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no height at any node.</source>
        <translation>«&#xa0;%1&#xa0;» n’a de hauteur à aucun nœud.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be drawn: its heights span from %L2 to %L3, more than single precision holds.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être dessiné&#xa0;: les hauteurs vont de %L2 à %L3, plus que la simple précision n’en contient.</translation>
    </message>
</context>
<context>
    <name>FormulaArea</name>
    <message>
        <source>&quot;%1&quot; is no range; expected two numbers, such as -3:3.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une plage&#xa0;; deux nombres sont attendus, par exemple -3:3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the range &quot;%2&quot; is no number.</source>
        <translation>«&#xa0;%1&#xa0;» dans la plage «&#xa0;%2&#xa0;» n’est pas un nombre.</translation>
    </message>
    <message>
        <source>The range &quot;%1&quot; has no width; its first number must be less than its last.</source>
        <translation>La plage «&#xa0;%1&#xa0;» est sans largeur&#xa0;; son premier nombre doit être inférieur au dernier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no range of x and y; expected the form -3:3,-2:2.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une plage de x et y&#xa0;; la forme -3:3,-2:2 est attendue.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no mesh; expected columns and rows, at least 2 each, such as 200x100.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un maillage&#xa0;; des colonnes et des rangées sont attendues, au moins 2 de chaque, par exemple 200x100.</translation>
    </message>
</context>
<context>
    <name>FormulaDialog</name>
    <message>
        <source>New from formula</source>
        <translation>Nouveau à partir d’une formule</translation>
    </message>
    <message>
        <source>Operators + - * / ^, comparisons and ?:; functions such as sin, exp, sqrt, abs, min, max, floor and mod; constants pi and e</source>
        <translation>Opérateurs + - * / ^, comparaisons et&#xa0;?:; fonctions telles que sin, exp, sqrt, abs, min, max, floor et mod&#xa0;; constantes pi et e</translation>
    </message>
    <message>
        <source>&amp;z =</source>
        <translation>&amp;z =</translation>
    </message>
    <message>
        <source>&amp;x from</source>
        <translation>&amp;x de</translation>
    </message>
    <message>
        <source>to</source>
        <translation>à</translation>
    </message>
    <message>
        <source>&amp;y from</source>
        <translation>&amp;y de</translation>
    </message>
    <message>
        <source>A number, or a formula of constants such as 2*pi</source>
        <translation>Un nombre, ou une formule de constantes telle que 2*pi</translation>
    </message>
    <message>
        <source>&amp;Nodes along x</source>
        <translation>&amp;Nœuds suivant x</translation>
    </message>
    <message>
        <source>along y</source>
        <translation>suivant y</translation>
    </message>
</context>
<context>
    <name>GradientName</name>
    <message>
        <source>Terrain</source>
        <translation>Terrain</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Eau</translation>
    </message>
</context>
<context>
    <name>GridFile</name>
    <message>
        <source>No file is named.</source>
        <translation>Aucun fichier n’est indiqué.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, not a grid file.</source>
        <translation>«&#xa0;%1&#xa0;» est un dossier, pas un fichier de grille.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not exist.</source>
        <translation>«&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: permission denied.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être lu&#xa0;: permission refusée.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty.</source>
        <translation>«&#xa0;%1&#xa0;» est vide.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no raster.</source>
        <translation>«&#xa0;%1&#xa0;» ne contient aucune grille.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: it is no grid file of a known format.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être lu&#xa0;: ce n’est pas un fichier de grille d’un format connu.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être lu&#xa0;: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds several grids; name one of them, such as %2.</source>
        <translation>«&#xa0;%1&#xa0;» contient plusieurs grilles&#xa0;; en indiquer une, par exemple %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no band %2; its bands are 1 to %3.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas de bande %2&#xa0;; ses bandes vont de 1 à %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds complex numbers (%2); only real heights can be drawn.</source>
        <translation>«&#xa0;%1&#xa0;» contient des nombres complexes (%2)&#xa0;; seules des hauteurs réelles peuvent être dessinées.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has %2 x %3 nodes (columns x rows); a surface needs at least 2 x 2.</source>
        <translation>«&#xa0;%1&#xa0;» a %2 x %3 nœuds (colonnes x rangées)&#xa0;; une surface en a besoin d’au moins 2 x 2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs about %2; %3 are free.</source>
        <translation>«&#xa0;%1&#xa0;» a besoin d’environ %2&#xa0;; %3 sont libres.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is rotated against the x and y axes; only grids along the axes can be drawn.</source>
        <translation>«&#xa0;%1&#xa0;» est tourné par rapport aux axes x et y&#xa0;; seules les grilles alignées sur les axes peuvent être dessinées.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has unusable georeferencing: its cells have no size at their coordinates.</source>
        <translation>«&#xa0;%1&#xa0;» a un géoréférencement inutilisable&#xa0;: ses cellules n’ont pas de taille à leurs coordonnées.</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Row, from the bottom</source>
        <translation>Rangée, à partir du bas</translation>
    </message>
    <message>
        <source>Longitude (°)</source>
        <translation>Longitude (°)</translation>
    </message>
    <message>
        <source>Latitude (°)</source>
        <translation>Latitude (°)</translation>
    </message>
    <message>
        <source>Easting (%1)</source>
        <translation>Abscisse est (%1)</translation>
    </message>
    <message>
        <source>Northing (%1)</source>
        <translation>Ordonnée nord (%1)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no heights: every node is missing.</source>
        <translation>«&#xa0;%1&#xa0;» ne contient pas de hauteurs&#xa0;: tous les nœuds manquent.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be drawn: its heights span from %L2 to %L3, more than single precision holds.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être dessiné&#xa0;: les hauteurs vont de %L2 à %L3, plus que la simple précision n’en contient.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs about %2, which cannot be had.</source>
        <translation>«&#xa0;%1&#xa0;» a besoin d’environ %2, qui ne sont pas disponibles.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no nodes in that part; its x are from %2 to %3, its y from %4 to %5.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas de nœuds dans cette partie&#xa0;; x va de %2 à %3, y de %4 à %5.</translation>
    </message>
    <message>
        <source>That part of &quot;%1&quot; has %2 x %3 nodes (columns x rows); a surface needs at least 2 x 2.</source>
        <translation>Cette partie de «&#xa0;%1&#xa0;» a %2 x %3 nœuds (colonnes x rangées)&#xa0;; une surface en a besoin d’au moins 2 x 2.</translation>
    </message>
    <message>
        <source>That part of &quot;%1&quot; cannot be drawn: at its coordinates single precision cannot tell its nodes apart.</source>
        <translation>Cette partie de «&#xa0;%1&#xa0;» ne peut pas être dessinée&#xa0;: à ses coordonnées, la simple précision ne distingue pas les nœuds.</translation>
    </message>
</context>
<context>
    <name>GridSource</name>
    <message>
        <source>%L1 to %L2</source>
        <translation>%L1 à %L2</translation>
    </message>
    <message>
        <source>%L1 x %L2 nodes, x %3, y %4, z %5</source>
        <translation>%L1 x %L2 nœuds, x %3, y %4, z %5</translation>
    </message>
    <message>
        <source>%1, %L2 missing</source>
        <translation>%1, %L2 manquants</translation>
    </message>
    <message>
        <source>%1, part</source>
        <translation>%1, partie</translation>
    </message>
    <message>
        <source>Shown thinned: %1 x %2 of %3 x %4 nodes; each is a mean of several.</source>
        <translation>Affichage allégé&#xa0;: %1 x %2 de %3 x %4 nœuds&#xa0;; chacun est la moyenne de plusieurs.</translation>
    </message>
</context>
<context>
    <name>HistogramView</name>
    <message>
        <source>Histogram of the heights</source>
        <translation>Histogramme des hauteurs</translation>
    </message>
    <message>
        <source>%1 to %2: %3</source>
        <translation>%1 à %2&#xa0;: %3</translation>
    </message>
</context>
<context>
    <name>MemoryNeed</name>
    <message>
        <source>%1 of memory for %L2 x %L3 nodes</source>
        <translation>%1 de mémoire pour %L2 x %L3 nœuds</translation>
    </message>
    <message>
        <source>%L1 GB</source>
        <translation>%L1 Go</translation>
    </message>
</context>
<context>
    <name>MeshFile</name>
    <message>
        <source>a mesh file</source>
        <translation>un fichier de maillage</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs about %2 of memory; %3 are free.</source>
        <translation>«&#xa0;%1&#xa0;» a besoin d’environ %2 de mémoire&#xa0;; %3 sont libres.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: it is no mesh file of a known format.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être lu&#xa0;: ce n’est pas un fichier de maillage d’un format connu.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être lu&#xa0;: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no face with an area; there is nothing to draw.</source>
        <translation>«&#xa0;%1&#xa0;» ne contient aucune face d’aire non nulle&#xa0;; il n’y a rien à dessiner.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no faces, only points or lines; there is nothing to draw.</source>
        <translation>«&#xa0;%1&#xa0;» ne contient pas de faces, seulement des points ou des lignes&#xa0;; il n’y a rien à dessiner.</translation>
    </message>
    <message>
        <source>The file may be damaged: %1.</source>
        <translation>Le fichier est peut-être endommagé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than can be had.</source>
        <translation>«&#xa0;%1&#xa0;» a besoin de plus de mémoire qu’il n’y en a.</translation>
    </message>
</context>
<context>
    <name>MeshMerger</name>
    <message>
        <source>Faces without area left out: %L1.</source>
        <translation>Faces sans aire omises&#xa0;: %L1.</translation>
    </message>
    <message>
        <source>Faces with a corner at no finite place left out: %L1.</source>
        <translation>Faces omises dont un sommet n’est pas à un endroit fini&#xa0;: %L1.</translation>
    </message>
    <message>
        <source>Points and lines left out: %L1.</source>
        <translation>Points et lignes omis&#xa0;: %L1.</translation>
    </message>
    <message>
        <source>Vertices without a face left out: %L1.</source>
        <translation>Sommets sans face omis&#xa0;: %L1.</translation>
    </message>
</context>
<context>
    <name>MeshSource</name>
    <message>
        <source>%L1 vertices, %L2 cells</source>
        <translation>%L1 sommets, %L2 cellules</translation>
    </message>
</context>
<context>
    <name>NoteBar</name>
    <message numerus="yes">
        <source>All %n notes...</source>
        <translation>
            <numerusform>%n remarque...</numerusform>
            <numerusform>Les %n remarques...</numerusform>
        </translation>
    </message>
    <message>
        <source>Close the notes</source>
        <translation>Fermer les remarques</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Remarques</translation>
    </message>
    <message>
        <source>Open part...</source>
        <translation>Ouvrir une partie...</translation>
    </message>
    <message>
        <source>Choose a part and show all its nodes</source>
        <translation>Choisir une partie et en afficher tous les nœuds</translation>
    </message>
</context>
<context>
    <name>PartAction</name>
    <message>
        <source>Open p&amp;art...</source>
        <translation>Ouvrir une &amp;partie...</translation>
    </message>
    <message>
        <source>A part of a thinned grid with all its nodes</source>
        <translation>Une partie d’une grille allégée avec tous ses nœuds</translation>
    </message>
    <message>
        <source>Open part</source>
        <translation>Ouvrir une partie</translation>
    </message>
</context>
<context>
    <name>PartDialog</name>
    <message>
        <source>Open part of %1</source>
        <translation>Ouvrir une partie de %1</translation>
    </message>
    <message>
        <source>Drag a rectangle on the map, or drag inside it to move it:</source>
        <translation>Tracer un rectangle sur la carte, ou glisser à l’intérieur pour le déplacer&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Open part</source>
        <translation>&amp;Ouvrir la partie</translation>
    </message>
    <message>
        <source>%1 from</source>
        <translation>%1 de</translation>
    </message>
    <message>
        <source>%1 to</source>
        <translation>%1 à</translation>
    </message>
    <message>
        <source>to</source>
        <translation>à</translation>
    </message>
    <message>
        <source>%1 x %2 nodes</source>
        <translation>%1 x %2 nœuds</translation>
    </message>
    <message>
        <source>%1: too few for a surface, which needs 2 x 2. Choose a larger part.</source>
        <translation>%1&#xa0;: trop peu pour une surface, qui en demande 2 x 2. Choisir une partie plus grande.</translation>
    </message>
    <message>
        <source>%1, in full: within the budget of %2 nodes.</source>
        <translation>%1, en entier&#xa0;: dans la limite de %2 nœuds.</translation>
    </message>
    <message>
        <source>%1: more than the budget of %2 nodes. Shown thinned to %3 x %4.</source>
        <translation>%1&#xa0;: plus que la limite de %2 nœuds. Affichage allégé à %3 x %4.</translation>
    </message>
</context>
<context>
    <name>PartMap</name>
    <message>
        <source>Part of the grid</source>
        <translation>Partie de la grille</translation>
    </message>
</context>
<context>
    <name>PictureActions</name>
    <message>
        <source>&amp;Save picture...</source>
        <translation>&amp;Enregistrer l’image...</translation>
    </message>
    <message>
        <source>Save t&amp;urntable...</source>
        <translation>Enregistrer une ro&amp;tation...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimer...</translation>
    </message>
    <message>
        <source>Print pre&amp;view...</source>
        <translation>&amp;Aperçu avant impression...</translation>
    </message>
    <message>
        <source>&amp;Copy picture</source>
        <translation>&amp;Copier l’image</translation>
    </message>
    <message>
        <source>plot</source>
        <translation>graphique</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Saved %1. %2</source>
        <translation>%1 enregistré. %2</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>Enregistrer l’image</translation>
    </message>
    <message>
        <source>Numbered pictures (*.png)</source>
        <translation>Images numérotées (*.png)</translation>
    </message>
    <message>
        <source>Save turntable</source>
        <translation>Enregistrer une rotation</translation>
    </message>
    <message>
        <source>Animations (*.mp4 *.webm *.gif *.webp)</source>
        <translation>Animations (*.mp4 *.webm *.gif *.webp)</translation>
    </message>
    <message>
        <source>Pictures of one turn:</source>
        <translation>Images d’un tour&#xa0;:</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>The picture is on the clipboard.</source>
        <translation>L’image est dans le presse-papiers.</translation>
    </message>
    <message>
        <source>The picture cannot be drawn.</source>
        <translation>L’image ne peut pas être dessinée.</translation>
    </message>
</context>
<context>
    <name>PictureDialog</name>
    <message>
        <source>Save picture</source>
        <translation>Enregistrer l’image</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>&amp;Fichier&#xa0;:</translation>
    </message>
    <message>
        <source>F&amp;ormat:</source>
        <translation>F&amp;ormat&#xa0;:</translation>
    </message>
    <message>
        <source>as the window</source>
        <translation>comme la fenêtre</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>S&amp;ize:</source>
        <translation>&amp;Taille&#xa0;:</translation>
    </message>
    <message>
        <source> dpi</source>
        <translation> ppp</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>&amp;Résolution&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Transparent background</source>
        <translation>&amp;Arrière-plan transparent</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>Images (%1)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists. Shall it be replaced?</source>
        <translation>«&#xa0;%1&#xa0;» existe. Faut-il le remplacer&#xa0;?</translation>
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
        <translation>Rotation, déplacement et zoom du début</translation>
    </message>
    <message>
        <source>&amp;Grid planes</source>
        <translation>Plans de la gri&amp;lle</translation>
    </message>
    <message>
        <source>R&amp;eset view</source>
        <translation>&amp;Réinitialiser la vue</translation>
    </message>
    <message>
        <source>T&amp;ool bars</source>
        <translation>Barres d’ou&amp;tils</translation>
    </message>
</context>
<context>
    <name>PlotMenu</name>
    <message>
        <source>&amp;Scaling</source>
        <translation>É&amp;chelle</translation>
    </message>
    <message>
        <source>Loo&amp;k</source>
        <translation>&amp;Apparence</translation>
    </message>
    <message>
        <source>M&amp;esh lines</source>
        <translation>Lignes du &amp;maillage</translation>
    </message>
    <message>
        <source>Pi&amp;ck values</source>
        <translation>&amp;Lire les valeurs</translation>
    </message>
    <message>
        <source>Show the value under the cursor</source>
        <translation>Afficher la valeur sous le curseur</translation>
    </message>
    <message>
        <source>&amp;Lighting</source>
        <translation>&amp;Éclairage</translation>
    </message>
    <message>
        <source>Perspecti&amp;ve</source>
        <translation>&amp;Perspective</translation>
    </message>
    <message>
        <source>&amp;Automatic</source>
        <translation>&amp;Automatique</translation>
    </message>
    <message>
        <source>&amp;Equal units on all axes</source>
        <translation>Unités é&amp;gales sur tous les axes</translation>
    </message>
    <message>
        <source>By &amp;hand</source>
        <translation>À la &amp;main</translation>
    </message>
    <message>
        <source>Settin&amp;gs...</source>
        <translation>Paramè&amp;tres...</translation>
    </message>
    <message>
        <source>Everything that can be changed of this plot</source>
        <translation>Tout ce qui peut être modifié dans ce graphique</translation>
    </message>
    <message>
        <source>Pa&amp;use</source>
        <translation>Pau&amp;se</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Démarrer</translation>
    </message>
    <message>
        <source>&amp;Drop a stone</source>
        <translation>Lâcher une p&amp;ierre</translation>
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
        <translation>Ouvrir un autre graphique depuis la page d’accueil</translation>
    </message>
</context>
<context>
    <name>PlotSource</name>
    <message>
        <source>&quot;%1&quot; cannot be drawn.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être dessiné.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no values above zero to show logarithmically: nothing can be drawn.</source>
        <translation>«&#xa0;%1&#xa0;» n’a aucune valeur supérieure à zéro à montrer en échelle logarithmique&#xa0;: rien ne peut être dessiné.</translation>
    </message>
</context>
<context>
    <name>PlotTabs</name>
    <message>
        <source>Start page</source>
        <translation>Page d’accueil</translation>
    </message>
    <message>
        <source>Files, examples and formulas</source>
        <translation>Fichiers, exemples et formules</translation>
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
        <translation>Préférences</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Langue&#xa0;:</translation>
    </message>
    <message>
        <source>L&amp;ook of new plots:</source>
        <translation>&amp;Apparence des nouveaux graphiques&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Grids up to:</source>
        <translation>&amp;Grilles jusqu’à&#xa0;:</translation>
    </message>
    <message>
        <source>Language of the system</source>
        <translation>Langue du système</translation>
    </message>
    <message>
        <source>As in the last plot</source>
        <translation>Comme dans le dernier graphique</translation>
    </message>
    <message>
        <source> million nodes</source>
        <translation> millions de nœuds</translation>
    </message>
    <message>
        <source>Larger grids are read thinned.</source>
        <translation>Les grilles plus grandes sont lues allégées.</translation>
    </message>
    <message>
        <source>&amp;Show large grids coarser while they are turned</source>
        <translation>&amp;Montrer les grandes grilles plus grossièrement pendant qu’elles tournent</translation>
    </message>
    <message>
        <source>A grid of this size takes about %1 of memory; %2 are free.</source>
        <translation>Une grille de cette taille prend environ %1 de mémoire&#xa0;; %2 sont libres.</translation>
    </message>
    <message>
        <source>A grid of this size takes about %1 of memory.</source>
        <translation>Une grille de cette taille prend environ %1 de mémoire.</translation>
    </message>
</context>
<context>
    <name>ProgressBox</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Drawing %1...</source>
        <translation>Dessin de %1...</translation>
    </message>
    <message>
        <source>Reading %1...</source>
        <translation>Lecture de %1...</translation>
    </message>
</context>
<context>
    <name>ProgressLine</name>
    <message>
        <source>voranview: drawing %1</source>
        <translation>voranview&#xa0;: dessin de %1</translation>
    </message>
    <message>
        <source>voranview: reading %1</source>
        <translation>voranview&#xa0;: lecture de %1</translation>
    </message>
    <message>
        <source>voranview: writing %1</source>
        <translation>voranview&#xa0;: écriture de %1</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>Recent &amp;files</source>
        <translation>Fichiers &amp;récents</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1 (introuvable)</translation>
    </message>
    <message>
        <source>No files yet</source>
        <translation>Aucun fichier pour l’instant</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translation>&amp;Effacer la liste</translation>
    </message>
</context>
<context>
    <name>SliceCurve</name>
    <message>
        <source>%1 over %2</source>
        <translation>%1 en fonction de %2</translation>
    </message>
</context>
<context>
    <name>SliceData</name>
    <message>
        <source>%1 at %2 = %3</source>
        <translation>%1 à %2 = %3</translation>
    </message>
</context>
<context>
    <name>SlicePanel</name>
    <message>
        <source>Hold</source>
        <translation>Garder</translation>
    </message>
    <message>
        <source>Keep this point while the mouse moves on. A click on a point of the plot does the same, a click beside the data ends it.</source>
        <translation>Garder ce point pendant que la souris continue. Un clic sur un point du graphique fait de même, un clic à côté des données y met fin.</translation>
    </message>
    <message>
        <source>Copy the curves as CSV</source>
        <translation>Copier les courbes en CSV</translation>
    </message>
    <message>
        <source>Save the curves as a CSV file</source>
        <translation>Enregistrer les courbes dans un fichier CSV</translation>
    </message>
    <message>
        <source>Spectrum</source>
        <translation>Spectre</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Across</source>
        <translation>En travers</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Les deux</translation>
    </message>
    <message>
        <source>The picked spectrum</source>
        <translation>Le spectre lu</translation>
    </message>
    <message>
        <source>Along x through the picked point</source>
        <translation>Suivant x par le point lu</translation>
    </message>
    <message>
        <source>All spectra at the picked position</source>
        <translation>Tous les spectres à la position lue</translation>
    </message>
    <message>
        <source>Along y through the picked point</source>
        <translation>Suivant y par le point lu</translation>
    </message>
    <message>
        <source>Both curves</source>
        <translation>Les deux courbes</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy as CSV</source>
        <translation>Copier en CSV</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Enregistrer...</translation>
    </message>
    <message>
        <source>Save CSV...</source>
        <translation>Enregistrer en CSV...</translation>
    </message>
    <message>
        <source>The curves are on the clipboard as CSV.</source>
        <translation>Les courbes sont en CSV dans le presse-papiers.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être écrit&#xa0;: %2.</translation>
    </message>
    <message>
        <source>slice.csv</source>
        <translation>coupe.csv</translation>
    </message>
    <message>
        <source>Save CSV</source>
        <translation>Enregistrer en CSV</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation>Fichiers CSV (*.csv)</translation>
    </message>
    <message>
        <source>Saved %1.</source>
        <translation>%1 enregistré.</translation>
    </message>
</context>
<context>
    <name>SpectraFile</name>
    <message>
        <source>a file of spectra</source>
        <translation>un fichier de spectres</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: line 1: found UTF-16 text, expected UTF-8.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être lu&#xa0;: ligne 1&#xa0;: texte UTF-16 au lieu d’UTF-8.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no numbers.</source>
        <translation>«&#xa0;%1&#xa0;» ne contient pas de nombres.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs about %2 of memory for about %L3 million values; %4 are free.</source>
        <translation>«&#xa0;%1&#xa0;» a besoin d’environ %2 de mémoire pour environ %L3 millions de valeurs&#xa0;; %4 sont libres.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être lu&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Comment lines passed over: %L1.</source>
        <translation>Lignes de commentaire ignorées&#xa0;: %L1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than can be had.</source>
        <translation>«&#xa0;%1&#xa0;» a besoin de plus de mémoire qu’il n’y en a.</translation>
    </message>
</context>
<context>
    <name>SpectraSource</name>
    <message>
        <source>%L1 to %L2, values %L3 to %L4</source>
        <translation>%L1 à %L2, valeurs %L3 à %L4</translation>
    </message>
    <message>
        <source>%L1 spectra, %L2 points, %3</source>
        <translation>%L1 spectres, %L2 points, %3</translation>
    </message>
    <message>
        <source>%1 %2: %L3 at %L4</source>
        <translation>%1 %2&#xa0;: %L3 à %L4</translation>
    </message>
</context>
<context>
    <name>SpectraTable</name>
    <message>
        <source>line %1, column %2: found %3, expected %4</source>
        <translation>ligne %1, colonne %2&#xa0;: trouvé %3, attendu %4</translation>
    </message>
    <message>
        <source>point</source>
        <translation>point</translation>
    </message>
    <message>
        <source>comma</source>
        <translation>virgule</translation>
    </message>
    <message>
        <source>a number with a decimal %1</source>
        <translation>un nombre avec le séparateur décimal %1</translation>
    </message>
    <message>
        <source>a number with a decimal %1 as in line %2</source>
        <translation>un nombre avec le séparateur décimal %1 comme à la ligne %2</translation>
    </message>
    <message>
        <source>an empty cell</source>
        <translation>une cellule vide</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un nombre</translation>
    </message>
    <message>
        <source>a position that single precision holds</source>
        <translation>une position que contient la simple précision</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>ligne %1, colonne %2</translation>
    </message>
    <message>
        <source>a single column</source>
        <translation>une seule colonne</translation>
    </message>
    <message>
        <source>cells parted by commas, semicolons or tabs</source>
        <translation>des cellules séparées par des virgules, des points-virgules ou des tabulations</translation>
    </message>
    <message>
        <source>line %1, columns %2 and %3: both have the position %4</source>
        <translation>ligne %1, colonnes %2 et %3&#xa0;: les deux ont la position %4</translation>
    </message>
    <message>
        <source>the only position</source>
        <translation>la seule position</translation>
    </message>
    <message>
        <source>at least two</source>
        <translation>au moins deux</translation>
    </message>
    <message>
        <source>line %1: found %2 columns of names, expected either positions from the second column on or columns in pairs of x and y</source>
        <translation>ligne %1&#xa0;: trouvé %2 colonnes de noms, attendu soit des positions à partir de la deuxième colonne, soit des colonnes par paires de x et y</translation>
    </message>
    <message>
        <source>%1 columns as in the first row</source>
        <translation>%1 colonnes comme à la première ligne</translation>
    </message>
    <message>
        <source>the end of the row</source>
        <translation>la fin de la ligne</translation>
    </message>
    <message>
        <source>line %1 begins with %2</source>
        <translation>la ligne %1 commence par %2</translation>
    </message>
    <message>
        <source>lines %1 and %2, column %3: both have the position %4</source>
        <translation>lignes %1 et %2, colonne %3&#xa0;: les deux ont la position %4</translation>
    </message>
    <message>
        <source>Not every row begins with a number (%1); all spectra are placed by their row numbers.</source>
        <translation>Toutes les lignes ne commencent pas par un nombre (%1)&#xa0;; tous les spectres sont placés selon leur numéro de ligne.</translation>
    </message>
    <message>
        <source>Lines %1 and %2 have the same position %3</source>
        <translation>Les lignes %1 et %2 ont la même position %3</translation>
    </message>
    <message>
        <source>%1 more clash likewise</source>
        <translation>%1 autres coïncident de même</translation>
    </message>
    <message>
        <source>%1; all spectra are placed by their row numbers.</source>
        <translation>%1&#xa0;; tous les spectres sont placés selon leur numéro de ligne.</translation>
    </message>
    <message>
        <source>it has no rows</source>
        <translation>il n’a pas de lignes</translation>
    </message>
    <message>
        <source>it has only one row, expected a row of positions and then a row for each spectrum</source>
        <translation>il n’a qu’une ligne, attendu une ligne de positions puis une ligne par spectre</translation>
    </message>
    <message>
        <source>columns %1 and %2: found %3 points, expected at least two</source>
        <translation>colonnes %1 et %2&#xa0;: trouvé %3 points, attendu au moins deux</translation>
    </message>
    <message>
        <source>every value is missing</source>
        <translation>toutes les valeurs manquent</translation>
    </message>
    <message>
        <source>Values too large to draw are missing: %L1, the first in %2.</source>
        <translation>Les valeurs trop grandes pour être dessinées manquent&#xa0;: %L1, la première à %2.</translation>
    </message>
    <message>
        <source>The columns are read as pairs of x and y; spectra: %L1.</source>
        <translation>Les colonnes sont lues comme des paires de x et y&#xa0;; spectres&#xa0;: %L1.</translation>
    </message>
    <message>
        <source>Spectrum %1</source>
        <translation>Spectre %1</translation>
    </message>
    <message>
        <source>Spectrum</source>
        <translation>Spectre</translation>
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
        <translation>&amp;Ouvrir un fichier...</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>À essayer</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Fichiers récents</translation>
    </message>
    <message>
        <source>The files that you open will be listed here.</source>
        <translation>Les fichiers ouverts seront listés ici.</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translation>&amp;Effacer la liste</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1 (introuvable)</translation>
    </message>
    <message>
        <source>Drop a grid, spectra or a mesh into this window, or paste a table.</source>
        <translation>Déposer une grille, des spectres ou un maillage dans cette fenêtre, ou coller un tableau.</translation>
    </message>
</context>
<context>
    <name>TabActions</name>
    <message>
        <source>Star&amp;t page</source>
        <translation>Page d’accuei&amp;l</translation>
    </message>
    <message>
        <source>Open another plot in a new tab</source>
        <translation>Ouvrir un autre graphique dans un nouvel onglet</translation>
    </message>
    <message>
        <source>&amp;Close plot</source>
        <translation>Fer&amp;mer le graphique</translation>
    </message>
    <message>
        <source>Close the plot that is shown</source>
        <translation>Fermer le graphique affiché</translation>
    </message>
    <message>
        <source>Close ot&amp;hers</source>
        <translation>&amp;Fermer les autres</translation>
    </message>
    <message>
        <source>Close all plots but the one that is shown</source>
        <translation>Fermer tous les graphiques sauf celui qui est affiché</translation>
    </message>
    <message>
        <source>S&amp;how beside</source>
        <translation>Montrer à &amp;côté</translation>
    </message>
    <message>
        <source>Move the plot to a place of its own, right of another plot</source>
        <translation>Mettre le graphique à une place à lui, à droite d’un autre</translation>
    </message>
    <message>
        <source>Sho&amp;w below</source>
        <translation>&amp;Montrer en dessous</translation>
    </message>
    <message>
        <source>Move the plot to a place of its own, below another plot</source>
        <translation>Mettre le graphique à une place à lui, sous un autre</translation>
    </message>
    <message>
        <source>Move to the &amp;next place</source>
        <translation>Déplacer vers la place sui&amp;vante</translation>
    </message>
    <message>
        <source>Add the plot to the tabs of another place</source>
        <translation>Ajouter le graphique aux onglets d’une autre place</translation>
    </message>
    <message>
        <source>&amp;All in one place</source>
        <translation>Tout à une seul&amp;e place</translation>
    </message>
    <message>
        <source>Bring all plots back into the tabs of one place</source>
        <translation>Ramener tous les graphiques dans les onglets d’une seule place</translation>
    </message>
    <message>
        <source>Ne&amp;xt plot</source>
        <translation>Grap&amp;hique suivant</translation>
    </message>
    <message>
        <source>Pre&amp;vious plot</source>
        <translation>Graphi&amp;que précédent</translation>
    </message>
</context>
<context>
    <name>TableDialog</name>
    <message>
        <source>Paste data</source>
        <translation>Coller les données</translation>
    </message>
    <message>
        <source>The table has %1 rows and %2 columns. What do its cells mean?</source>
        <translation>Le tableau a %1 lignes et %2 colonnes. Que signifient ses cellules&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Afficher</translation>
    </message>
    <message>
        <source>The cells are</source>
        <translation>Les cellules sont</translation>
    </message>
    <message>
        <source>Surface: &amp;heights</source>
        <translation>Surface&#xa0;: &amp;hauteurs</translation>
    </message>
    <message>
        <source>Surface: first row is x, first &amp;column is y</source>
        <translation>Surface&#xa0;: première ligne x, première &amp;colonne y</translation>
    </message>
    <message>
        <source>Surface: first &amp;row is x</source>
        <translation>Surface&#xa0;: première &amp;ligne x</translation>
    </message>
    <message>
        <source>Surface: first column is &amp;y</source>
        <translation>Surface&#xa0;: première colonne &amp;y</translation>
    </message>
    <message>
        <source>x, y, &amp;z columns</source>
        <translation>Colonnes x, y, &amp;z</translation>
    </message>
    <message>
        <source>&amp;Spectra: first column is x</source>
        <translation>&amp;Spectres&#xa0;: première colonne x</translation>
    </message>
    <message>
        <source>The table does not have this form.</source>
        <translation>Le tableau n’a pas cette forme.</translation>
    </message>
</context>
<context>
    <name>TableSource</name>
    <message>
        <source>Pasted table</source>
        <translation>Tableau collé</translation>
    </message>
    <message>
        <source>The table cannot be drawn: its uneven rows or columns lie so far from zero that they fall together; take a constant off them first.</source>
        <translation>Le tableau ne peut pas être dessiné&#xa0;: ses lignes ou colonnes irrégulières sont si loin de zéro qu’elles se confondent&#xa0;; en retrancher d’abord une constante.</translation>
    </message>
    <message>
        <source>%1 spectra, %2 points each</source>
        <translation>%1 spectres de %2 points chacun</translation>
    </message>
    <message>
        <source>%1: %2 at %3</source>
        <translation>%1&#xa0;: %2 à %3</translation>
    </message>
</context>
<context>
    <name>ToroidSource</name>
    <message>
        <source>Toroid</source>
        <translation>Tore</translation>
    </message>
    <message>
        <source>%L1 x %L2 nodes</source>
        <translation>%L1 x %L2 nœuds</translation>
    </message>
</context>
<context>
    <name>ValueTableModel</name>
    <message>
        <source>Missing</source>
        <translation>Manquants</translation>
    </message>
</context>
<context>
    <name>ValueTableView</name>
    <message>
        <source>The plot shows the point of the chosen cell.</source>
        <translation>Le graphique montre le point de la cellule choisie.</translation>
    </message>
    <message>
        <source>Choose at most %1 cells to copy.</source>
        <translation>Choisir au plus %1 cellules à copier.</translation>
    </message>
    <message>
        <source>The chosen cells are on the clipboard: %1.</source>
        <translation>Les cellules choisies sont dans le presse-papiers&#xa0;: %1.</translation>
    </message>
    <message>
        <source>&amp;Copy cells</source>
        <translation>&amp;Copier les cellules</translation>
    </message>
</context>
<context>
    <name>ViewChange</name>
    <message>
        <source>rotate</source>
        <translation>rotation</translation>
    </message>
    <message>
        <source>shift</source>
        <translation>déplacement</translation>
    </message>
    <message>
        <source>zoom</source>
        <translation>zoom</translation>
    </message>
    <message>
        <source>projection</source>
        <translation>projection</translation>
    </message>
    <message>
        <source>stretch</source>
        <translation>étirement</translation>
    </message>
    <message>
        <source>change of view</source>
        <translation>changement de vue</translation>
    </message>
</context>
<context>
    <name>ViewHistory</name>
    <message>
        <source>&amp;Undo</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>A&amp;nnuler&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Réta&amp;blir</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>Réta&amp;blir&#xa0;: %1</translation>
    </message>
    <message>
        <source>link of views</source>
        <translation>liaison des vues</translation>
    </message>
    <message>
        <source>auto-rotation</source>
        <translation>rotation automatique</translation>
    </message>
    <message>
        <source>reset view</source>
        <translation>réinitialisation de la vue</translation>
    </message>
    <message>
        <source>standard view</source>
        <translation>vue standard</translation>
    </message>
</context>
<context>
    <name>ViewerBindings</name>
    <message>
        <source>&amp;Mouse and keys...</source>
        <translation>&amp;Souris et touches...</translation>
    </message>
    <message>
        <source>Which drags and keys turn, move and stretch the plot</source>
        <translation>Les gestes et les touches qui tournent, déplacent et étirent le graphique</translation>
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
        <translation>Valeur</translation>
    </message>
</context>
<context>
    <name>ViewerWindow</name>
    <message>
        <source>&amp;Plot</source>
        <translation>&amp;Graphique</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Ouvrir...</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>From &amp;formula...</source>
        <translation>À partir d’une &amp;formule...</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formule</translation>
    </message>
    <message>
        <source>z as a function of x and y</source>
        <translation>z en fonction de x et y</translation>
    </message>
    <message>
        <source>&amp;Toroid</source>
        <translation>&amp;Tore</translation>
    </message>
    <message>
        <source>A ring with a tilted tube</source>
        <translation>Un anneau à tube incliné</translation>
    </message>
    <message>
        <source>&amp;Water surface</source>
        <translation>&amp;Surface de l’eau</translation>
    </message>
    <message>
        <source>Ripples around a falling stone</source>
        <translation>Des rides autour d’une pierre qui tombe</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Status bar</source>
        <translation>&amp;Barre d’état</translation>
    </message>
    <message>
        <source>F&amp;ull screen</source>
        <translation>&amp;Plein écran</translation>
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
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>All data (*)</source>
        <translation>Toutes les données (*)</translation>
    </message>
    <message>
        <source>Grids (*.asc *.tif *.tiff *.vrt *.nc *.grd *.img *.dem *.hgt *.xyz *.bil *.flt)</source>
        <translation>Grilles (*.asc *.tif *.tiff *.vrt *.nc *.grd *.img *.dem *.hgt *.xyz *.bil *.flt)</translation>
    </message>
    <message>
        <source>Spectra (*.csv *.tsv *.txt *.dat)</source>
        <translation>Spectres (*.csv *.tsv *.txt *.dat)</translation>
    </message>
    <message>
        <source>Meshes (*.off *.obj *.ply *.stl *.3ds *.dae *.gltf *.glb *.fbx *.x3d)</source>
        <translation>Maillages (*.off *.obj *.ply *.stl *.3ds *.dae *.gltf *.glb *.fbx *.x3d)</translation>
    </message>
    <message>
        <source>Pr&amp;eferences...</source>
        <translation>&amp;Préférences...</translation>
    </message>
    <message>
        <source>Language, look of new plots, size of grids</source>
        <translation>Langue, apparence des nouveaux graphiques, taille des grilles</translation>
    </message>
    <message>
        <source>L&amp;ink views</source>
        <translation>S&amp;ynchroniser les vues</translation>
    </message>
    <message>
        <source>Turn, zoom and shift all plots together</source>
        <translation>Tourner, zoomer et déplacer tous les graphiques ensemble</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>&amp;About VORAN Viewer...</source>
        <translation>À &amp;propos de VORAN Viewer...</translation>
    </message>
</context>
<context>
    <name>WaterSource</name>
    <message>
        <source>Water surface</source>
        <translation>Surface de l’eau</translation>
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
        <translation>Ctrl+D lâche une pierre, F5 met en pause.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>--part shows a part of it in full, --budget more nodes of all of it.</source>
        <translation>--part en montre une partie en entier, --budget plus de nœuds de l’ensemble.</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CommandLine</name>
    <message>
        <source>Shows grids of heights, meshes, spectra and formulas as interactive three-dimensional plots.</source>
        <translation>Affiche des grilles de hauteurs, des maillages, des spectres et des formules sous forme de graphiques interactifs en trois dimensions.</translation>
    </message>
    <message>
        <source>A grid of any format that GDAL reads, a mesh (OFF, OBJ, PLY, STL, glTF ...) or spectra in a CSV file.</source>
        <translation>Une grille dans un format lu par GDAL, un maillage (OFF, OBJ, PLY, STL, glTF ...) ou des spectres dans un fichier CSV.</translation>
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
        <source>Write the plot as %1 and leave; may stand beside other formats.</source>
        <translation>Écrire le graphique en %1 et quitter&#xa0;; peut accompagner d’autres formats.</translation>
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
        <source>Only one file can be shown; %1 are named.</source>
        <translation>Un seul fichier peut être affiché&#xa0;; %1 sont indiqués.</translation>
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
        <source>The option --band is for grid files; none is named.</source>
        <translation>L’option --band concerne les fichiers de grille&#xa0;; aucun n’est indiqué.</translation>
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
    <name>PlotSource</name>
    <message>
        <source>&quot;%1&quot; cannot be drawn.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être dessiné.</translation>
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
    <name>QObject</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
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
        <source>Drop a grid, spectra or a mesh into this window.</source>
        <translation>Déposer une grille, des spectres ou un maillage dans cette fenêtre.</translation>
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
        <source>&amp;Close plot</source>
        <translation>Fer&amp;mer le graphique</translation>
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
</TS>

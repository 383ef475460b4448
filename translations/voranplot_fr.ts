<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Field</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
</context>
<context>
    <name>Gesture</name>
    <message>
        <source>Left button</source>
        <translation>Bouton gauche</translation>
    </message>
    <message>
        <source>Middle button</source>
        <translation>Bouton du milieu</translation>
    </message>
    <message>
        <source>Right button</source>
        <translation>Bouton droit</translation>
    </message>
    <message>
        <source>Back button</source>
        <translation>Bouton Précédent</translation>
    </message>
    <message>
        <source>Forward button</source>
        <translation>Bouton Suivant</translation>
    </message>
    <message>
        <source>No modifier</source>
        <translation>Aucun modificateur</translation>
    </message>
</context>
<context>
    <name>GradientManager</name>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
</context>
<context>
    <name>GradientName</name>
    <message>
        <source>Greys</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>Cool-warm</source>
        <translation>Froid-chaud</translation>
    </message>
    <message>
        <source>Blue to yellow</source>
        <translation>Bleu à jaune</translation>
    </message>
</context>
<context>
    <name>Look</name>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Impression</translation>
    </message>
</context>
<context>
    <name>PictureSession</name>
    <message>
        <source>The plot cannot be drawn: it is just loading.</source>
        <translation>Le graphique ne peut pas être dessiné&#xa0;: il est en cours de chargement.</translation>
    </message>
</context>
<context>
    <name>PlotBindings</name>
    <message>
        <source>Turn around X</source>
        <translation>Tourner autour de X</translation>
    </message>
    <message>
        <source>Turn around Y</source>
        <translation>Tourner autour de Y</translation>
    </message>
    <message>
        <source>Turn around Z</source>
        <translation>Tourner autour de Z</translation>
    </message>
    <message>
        <source>Stretch along X</source>
        <translation>Étirer suivant X</translation>
    </message>
    <message>
        <source>Stretch along Y</source>
        <translation>Étirer suivant Y</translation>
    </message>
    <message>
        <source>Stretch along Z</source>
        <translation>Étirer suivant Z</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Move sideways</source>
        <translation>Déplacer latéralement</translation>
    </message>
    <message>
        <source>Move up and down</source>
        <translation>Déplacer verticalement</translation>
    </message>
    <message>
        <source>Turn around X, forward</source>
        <translation>Tourner autour de X, en avant</translation>
    </message>
    <message>
        <source>Turn around X, back</source>
        <translation>Tourner autour de X, en arrière</translation>
    </message>
    <message>
        <source>Turn around Y, forward</source>
        <translation>Tourner autour de Y, en avant</translation>
    </message>
    <message>
        <source>Turn around Y, back</source>
        <translation>Tourner autour de Y, en arrière</translation>
    </message>
    <message>
        <source>Turn around Z, forward</source>
        <translation>Tourner autour de Z, en avant</translation>
    </message>
    <message>
        <source>Turn around Z, back</source>
        <translation>Tourner autour de Z, en arrière</translation>
    </message>
    <message>
        <source>Shrink along X</source>
        <translation>Comprimer suivant X</translation>
    </message>
    <message>
        <source>Shrink along Y</source>
        <translation>Comprimer suivant Y</translation>
    </message>
    <message>
        <source>Shrink along Z</source>
        <translation>Comprimer suivant Z</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>Déplacer vers la droite</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>Déplacer vers la gauche</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Déplacer vers le haut</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Déplacer vers le bas</translation>
    </message>
    <message>
        <source>The key switches the lighting.</source>
        <translation>La touche bascule l’éclairage.</translation>
    </message>
    <message>
        <source>The key switches the picking of values.</source>
        <translation>La touche bascule la lecture des valeurs.</translation>
    </message>
    <message>
        <source>The key switches the information on frames.</source>
        <translation>La touche bascule les informations sur les images.</translation>
    </message>
    <message>
        <source>The key switches the normals.</source>
        <translation>La touche bascule les normales.</translation>
    </message>
    <message>
        <source>The key switches automatic scaling.</source>
        <translation>La touche bascule la mise à l’échelle automatique.</translation>
    </message>
    <message>
        <source>Pick values</source>
        <translation>Lire les valeurs</translation>
    </message>
    <message>
        <source>The same gesture does &quot;%1&quot;.</source>
        <translation>Le même geste effectue «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The right button opens the menu.</source>
        <translation>Le bouton droit ouvre le menu.</translation>
    </message>
    <message>
        <source>There is no action &quot;%1&quot; of mouse or keys.</source>
        <translation>Il n’existe aucune action «&#xa0;%1&#xa0;» de la souris ou des touches.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no gesture for &quot;%2&quot;.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un geste pour «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not used for &quot;%2&quot;: %3</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas utilisé pour «&#xa0;%2&#xa0;»&#xa0;: %3</translation>
    </message>
</context>
<context>
    <name>PlotTemplate</name>
    <message>
        <source>Settings applied: %1.</source>
        <translation>Paramètres appliqués&#xa0;: %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no template of a plot.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un modèle de graphique.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been written in the format %2 by a newer version; this one reads up to %3.</source>
        <translation>«&#xa0;%1&#xa0;» a été écrit au format %2 par une version plus récente&#xa0;; celle-ci lit les formats jusqu’à %3.</translation>
    </message>
    <message>
        <source>The value is not in the range from %1 to %2.</source>
        <translation>La valeur n’est pas comprise entre %1 et %2.</translation>
    </message>
    <message>
        <source>This belongs to the data or to the way of working, not to a template.</source>
        <translation>Cela relève des données ou de la façon de travailler, pas d’un modèle.</translation>
    </message>
    <message>
        <source>The plot has no such setting.</source>
        <translation>Le graphique n’a pas ce paramètre.</translation>
    </message>
    <message>
        <source>With the other settings the plot keeps the value %1.</source>
        <translation>Avec les autres paramètres, le graphique garde la valeur %1.</translation>
    </message>
    <message>
        <source>The stops of the gradient are missing.</source>
        <translation>Les points du dégradé manquent.</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Apply template</source>
        <translation>Appliquer un modèle</translation>
    </message>
    <message>
        <source>The line is not of the form KEY=VALUE.</source>
        <translation>La ligne n’est pas de la forme CLÉ=VALEUR.</translation>
    </message>
    <message>
        <source>A quotation mark is missing.</source>
        <translation>Il manque un guillemet.</translation>
    </message>
    <message>
        <source>The value holds a sign that no template needs.</source>
        <translation>La valeur contient un caractère dont aucun modèle n’a besoin.</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être lu&#xa0;: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than a template can be.</source>
        <translation>«&#xa0;%1&#xa0;» est plus grand qu’un modèle ne peut l’être.</translation>
    </message>
    <message>
        <source>The line has no end: the file may have been cut off.</source>
        <translation>La ligne n’a pas de fin&#xa0;: le fichier a peut-être été tronqué.</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>ligne %1</translation>
    </message>
    <message>
        <source>There is no room for temporary files: %1.</source>
        <translation>Il n’y a pas de place pour les fichiers temporaires&#xa0;: %1.</translation>
    </message>
    <message>
        <source>There is no room for temporary files.</source>
        <translation>Il n’y a pas de place pour les fichiers temporaires.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2. What was there before stays.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être écrit&#xa0;: %2. Ce qui s’y trouvait avant reste.</translation>
    </message>
    <message>
        <source>true or false is expected</source>
        <translation>true ou false est attendu</translation>
    </message>
    <message>
        <source>a whole number is expected</source>
        <translation>un nombre entier est attendu</translation>
    </message>
    <message>
        <source>a number is expected</source>
        <translation>un nombre est attendu</translation>
    </message>
    <message>
        <source>a color such as #ff336699 is expected</source>
        <translation>une couleur telle que #ff336699 est attendue</translation>
    </message>
    <message>
        <source>a font such as &quot;DejaVu Sans, 10 pt, bold&quot; is expected</source>
        <translation>une police telle que «&#xa0;DejaVu Sans, 10 pt, bold&#xa0;» est attendue</translation>
    </message>
    <message>
        <source>the plot offers: %1</source>
        <translation>le graphique propose&#xa0;: %1</translation>
    </message>
    <message>
        <source>a text of at most %1 letters is expected</source>
        <translation>un texte d’au plus %1 caractères est attendu</translation>
    </message>
    <message>
        <source>This is no value of the setting; %1.</source>
        <translation>Ce n’est pas une valeur de ce paramètre&#xa0;; %1.</translation>
    </message>
    <message>
        <source>The gradient has more than %1 stops.</source>
        <translation>Le dégradé a plus de %1 points.</translation>
    </message>
    <message>
        <source>The stop &quot;%1&quot; is not a position from 0 to 1, at or behind the one before, and a color such as #ff336699.</source>
        <translation>Le point «&#xa0;%1&#xa0;» n’est pas une position de 0 à 1, égale ou supérieure à la précédente, avec une couleur telle que #ff336699.</translation>
    </message>
</context>
<context>
    <name>Preview</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
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
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>TopCenter</source>
        <translation>En haut au centre</translation>
    </message>
    <message>
        <source>TopRight</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>CenterLeft</source>
        <translation>Au centre à gauche</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>CenterRight</source>
        <translation>Au centre à droite</translation>
    </message>
    <message>
        <source>BottomLeft</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>BottomCenter</source>
        <translation>En bas au centre</translation>
    </message>
    <message>
        <source>BottomRight</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Visible</translation>
    </message>
    <message>
        <source>Whether the text is shown.</source>
        <translation>Indique si le texte est affiché.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>The words that are shown.</source>
        <translation>Les mots affichés.</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>The font of the text.</source>
        <translation>La police du texte.</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>The color of the text.</source>
        <translation>La couleur du texte.</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>The turn of the text, clockwise.</source>
        <translation>La rotation du texte dans le sens horaire.</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Alignement</translation>
    </message>
    <message>
        <source>The corner or edge of the text that lies at its place.</source>
        <translation>Le coin ou le bord du texte placé à son emplacement.</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Décalage</translation>
    </message>
    <message>
        <source>How far the text stands off its place, to the side of its alignment.</source>
        <translation>L’écart du texte par rapport à son emplacement, du côté de son alignement.</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Whether the numbers are shown.</source>
        <translation>Indique si les nombres sont affichés.</translation>
    </message>
    <message>
        <source>The font of the numbers.</source>
        <translation>La police des nombres.</translation>
    </message>
    <message>
        <source>The color of the numbers.</source>
        <translation>La couleur des nombres.</translation>
    </message>
    <message>
        <source>The corner or edge of a number that lies at its tick.</source>
        <translation>Le coin ou le bord d’un nombre placé à sa graduation.</translation>
    </message>
    <message>
        <source>Whether the axis line is shown.</source>
        <translation>Indique si la ligne de l’axe est affichée.</translation>
    </message>
    <message>
        <source>The color of the axis line and its ticks.</source>
        <translation>La couleur de la ligne de l’axe et de ses graduations.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>The width of the axis line.</source>
        <translation>La largeur de la ligne de l’axe.</translation>
    </message>
    <message>
        <source>Whether the ticks are shown.</source>
        <translation>Indique si les graduations sont affichées.</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direction</translation>
    </message>
    <message>
        <source>Where the ticks lie on their axis.</source>
        <translation>La position des graduations sur leur axe.</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Vers l’extérieur</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Des deux côtés</translation>
    </message>
    <message>
        <source>Whether the arrow is shown.</source>
        <translation>Indique si la flèche est affichée.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>How large the arrow is.</source>
        <translation>La taille de la flèche.</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Petite</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Grande</translation>
    </message>
    <message>
        <source>The color of the arrow.</source>
        <translation>La couleur de la flèche.</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>How the arrow is drawn.</source>
        <translation>La façon dont la flèche est dessinée.</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>Pleine</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Contour</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Finesse</translation>
    </message>
    <message>
        <source>The sides of the arrow.</source>
        <translation>Le nombre de faces de la flèche.</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>How far the arrow stands beyond the end of its axis, in lengths of the axis.</source>
        <translation>L’écart entre la flèche et l’extrémité de son axe, en longueurs d’axe.</translation>
    </message>
</context>
<context>
    <name>Zel3D::AdditionsPage</name>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>The width of the dots of the style that draws points.</source>
        <translation>La largeur des points lorsque le graphique dessine des points.</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Round</source>
        <translation>Ronds</translation>
    </message>
    <message>
        <source>Draws round dots in place of squares.</source>
        <translation>Dessine des points ronds au lieu de carrés.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>The width of the bars of a histogram; bars of width 1 touch.</source>
        <translation>La largeur des barres d’un histogramme&#xa0;; des barres de largeur 1 se touchent.</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Côtés</translation>
    </message>
    <message>
        <source>The number of sides of a bar.</source>
        <translation>Le nombre de côtés d’une barre.</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>The turn of a bar around its length.</source>
        <translation>La rotation d’une barre autour de sa longueur.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>How little of what lies behind shines through.</source>
        <translation>Plus elle est grande, moins ce qui est derrière transparaît.</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Arêtes</translation>
    </message>
    <message>
        <source>Draws lines along the edges of the bars.</source>
        <translation>Dessine des lignes le long des arêtes des barres.</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>Marqueurs</translation>
    </message>
    <message>
        <source>What is drawn at every point of the data, whatever the style.</source>
        <translation>Ce qui est dessiné à chaque point des données, quel que soit le style.</translation>
    </message>
    <message>
        <source>Dots</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>Barres</translation>
    </message>
</context>
<context>
    <name>Zel3D::AxesGroupBox</name>
    <message>
        <source>Axis</source>
        <translation>Axe</translation>
    </message>
    <message>
        <source>Edit all axes of this direction</source>
        <translation>Modifier tous les axes de cette direction</translation>
    </message>
    <message>
        <source>The axis that is edited below; it is marked in the plot.</source>
        <translation>L’axe modifié ci-dessous&#xa0;; il est marqué dans le graphique.</translation>
    </message>
    <message>
        <source>Click an edge of the box to edit its axis.</source>
        <translation>Cliquer sur une arête de la boîte pour modifier son axe.</translation>
    </message>
    <message>
        <source>What is edited below holds for the four axes that run in this direction.</source>
        <translation>Les modifications ci-dessous valent pour les quatre axes de cette direction.</translation>
    </message>
</context>
<context>
    <name>Zel3D::AxesPage</name>
    <message>
        <source>Best edges</source>
        <translation>Meilleures arêtes</translation>
    </message>
    <message>
        <source>Shows each axis on the edge of the box where it is easiest to read.</source>
        <translation>Affiche chaque axe sur l’arête de la boîte où il est le plus lisible.</translation>
    </message>
    <message>
        <source>Axis visible</source>
        <translation>Axe visible</translation>
    </message>
    <message>
        <source>Whether the axis is shown; the plot chooses while it shows the axes on their best edges.</source>
        <translation>Indique si l’axe est affiché&#xa0;; le graphique choisit lui-même tant qu’il affiche les axes sur leurs meilleures arêtes.</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Moves the name away from the axis, in units of the data.</source>
        <translation>Écarte le nom de l’axe, en unités des données.</translation>
    </message>
    <message>
        <source>Line visible</source>
        <translation>Ligne visible</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Ticks</source>
        <translation>Graduations</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Nombres</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Flèche</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Arêtes</translation>
    </message>
</context>
<context>
    <name>Zel3D::BasePlot</name>
    <message>
        <source>&amp;Top view</source>
        <translation>Vue de &amp;dessus</translation>
    </message>
    <message>
        <source>Top view</source>
        <translation>Vue de dessus</translation>
    </message>
    <message>
        <source>&amp;Bottom view</source>
        <translation>Vue de dess&amp;ous</translation>
    </message>
    <message>
        <source>Bottom view</source>
        <translation>Vue de dessous</translation>
    </message>
    <message>
        <source>&amp;Left view</source>
        <translation>Vue de &amp;gauche</translation>
    </message>
    <message>
        <source>Left view</source>
        <translation>Vue de gauche</translation>
    </message>
    <message>
        <source>&amp;Right view</source>
        <translation>Vue de dro&amp;ite</translation>
    </message>
    <message>
        <source>Right view</source>
        <translation>Vue de droite</translation>
    </message>
    <message>
        <source>&amp;Front view</source>
        <translation>Vue de &amp;face</translation>
    </message>
    <message>
        <source>Front view</source>
        <translation>Vue de face</translation>
    </message>
    <message>
        <source>Bac&amp;k view</source>
        <translation>Vue &amp;arrière</translation>
    </message>
    <message>
        <source>Back view</source>
        <translation>Vue arrière</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Dessus</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Dessous</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Arrière</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Views</source>
        <translation>Vues</translation>
    </message>
    <message>
        <source>Grid style</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>Plot style</source>
        <translation>Tracé</translation>
    </message>
</context>
<context>
    <name>Zel3D::BindingsDialog</name>
    <message>
        <source>S&amp;wap</source>
        <translation>É&amp;changer</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Réinitialiser</translation>
    </message>
    <message>
        <source>Mouse and keys</source>
        <translation>Souris et touches</translation>
    </message>
    <message>
        <source>Actions and their gestures</source>
        <translation>Actions et leurs gestes</translation>
    </message>
    <message>
        <source>Gives the other action the gesture that this one had</source>
        <translation>Donne à l’autre action le geste que celle-ci avait</translation>
    </message>
    <message>
        <source>Brings the usual gesture of this action back</source>
        <translation>Rétablit le geste habituel de cette action</translation>
    </message>
    <message>
        <source>Reset &amp;all</source>
        <translation>&amp;Tout réinitialiser</translation>
    </message>
    <message>
        <source>Some gestures clash.</source>
        <translation>Certains gestes sont en conflit.</translation>
    </message>
</context>
<context>
    <name>Zel3D::BindingsModel</name>
    <message>
        <source>The key is a shortcut for &quot;%1&quot;.</source>
        <translation>La touche est un raccourci pour «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Drag sideways</source>
        <translation>Glisser latéralement</translation>
    </message>
    <message>
        <source>Drag up and down</source>
        <translation>Glisser verticalement</translation>
    </message>
    <message>
        <source>Hover over the data</source>
        <translation>Survoler les données</translation>
    </message>
    <message>
        <source>Press</source>
        <translation>Appuyer</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Gesture</source>
        <translation>Geste</translation>
    </message>
    <message>
        <source>How</source>
        <translation>Comment</translation>
    </message>
</context>
<context>
    <name>Zel3D::BoxPicker</name>
    <message>
        <source>X axis, front bottom</source>
        <translation>Axe X, avant bas</translation>
    </message>
    <message>
        <source>Y axis, left bottom</source>
        <translation>Axe Y, gauche bas</translation>
    </message>
    <message>
        <source>Z axis, back left</source>
        <translation>Axe Z, arrière gauche</translation>
    </message>
    <message>
        <source>X axis, front top</source>
        <translation>Axe X, avant haut</translation>
    </message>
    <message>
        <source>X axis, back top</source>
        <translation>Axe X, arrière haut</translation>
    </message>
    <message>
        <source>X axis, back bottom</source>
        <translation>Axe X, arrière bas</translation>
    </message>
    <message>
        <source>Y axis, left top</source>
        <translation>Axe Y, gauche haut</translation>
    </message>
    <message>
        <source>Y axis, right top</source>
        <translation>Axe Y, droite haut</translation>
    </message>
    <message>
        <source>Y axis, right bottom</source>
        <translation>Axe Y, droite bas</translation>
    </message>
    <message>
        <source>Z axis, front left</source>
        <translation>Axe Z, avant gauche</translation>
    </message>
    <message>
        <source>Z axis, back right</source>
        <translation>Axe Z, arrière droite</translation>
    </message>
    <message>
        <source>Z axis, front right</source>
        <translation>Axe Z, avant droite</translation>
    </message>
    <message>
        <source>Drawing of the box</source>
        <translation>Dessin de la boîte</translation>
    </message>
</context>
<context>
    <name>Zel3D::ColorButton</name>
    <message>
        <source>No color</source>
        <translation>Aucune couleur</translation>
    </message>
    <message>
        <source>Choose a color</source>
        <translation>Choisir une couleur</translation>
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
        <translation>Deutéranopie</translation>
    </message>
    <message>
        <source>Tritanopia</source>
        <translation>Tritanopie</translation>
    </message>
    <message>
        <source>Normal vision</source>
        <translation>Vision normale</translation>
    </message>
    <message>
        <source>Lightness hardly changes: the gradient cannot be read in grey.</source>
        <translation>La clarté ne change guère&#xa0;: le dégradé est illisible en gris.</translation>
    </message>
    <message>
        <source>Lightness changes its direction %1 times, first at %2: different values look equally light.</source>
        <translation>La clarté change de sens %1 fois, d’abord à %2&#xa0;: des valeurs différentes paraissent aussi claires.</translation>
    </message>
    <message>
        <source>Lightness rises evenly.</source>
        <translation>La clarté croît régulièrement.</translation>
    </message>
    <message>
        <source>Lightness falls evenly.</source>
        <translation>La clarté décroît régulièrement.</translation>
    </message>
    <message>
        <source>Lightness rises unevenly, most of all at %1: equal steps look unequal.</source>
        <translation>La clarté croît irrégulièrement, surtout à %1&#xa0;: des pas égaux paraissent inégaux.</translation>
    </message>
    <message>
        <source>Lightness falls unevenly, most of all at %1: equal steps look unequal.</source>
        <translation>La clarté décroît irrégulièrement, surtout à %1&#xa0;: des pas égaux paraissent inégaux.</translation>
    </message>
    <message>
        <source>Lightness rises up to %1 and then falls: for values around a middle.</source>
        <translation>La clarté croît jusqu’à %1, puis décroît&#xa0;: pour des valeurs autour d’un milieu.</translation>
    </message>
    <message>
        <source>Lightness falls up to %1 and then rises: for values around a middle.</source>
        <translation>La clarté décroît jusqu’à %1, puis croît&#xa0;: pour des valeurs autour d’un milieu.</translation>
    </message>
    <message>
        <source>It does so unevenly, most of all at %1.</source>
        <translation>Elle le fait irrégulièrement, surtout à %1.</translation>
    </message>
</context>
<context>
    <name>Zel3D::CommonPage</name>
    <message>
        <source>Background</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>The color behind the scene.</source>
        <translation>La couleur derrière la scène.</translation>
    </message>
    <message>
        <source>Projection</source>
        <translation>Projection</translation>
    </message>
    <message>
        <source>Parallel rays, or rays through one eye point.</source>
        <translation>Rayons parallèles ou rayons passant par un point de vue.</translation>
    </message>
    <message>
        <source>Orthogonal</source>
        <translation>Orthogonale</translation>
    </message>
    <message>
        <source>Perspective</source>
        <translation>Perspective</translation>
    </message>
    <message>
        <source>Keep proportions</source>
        <translation>Garder les proportions</translation>
    </message>
    <message>
        <source>The scene does not stretch with the window.</source>
        <translation>La scène ne se déforme pas avec la fenêtre.</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Fréquence d’images</translation>
    </message>
    <message>
        <source>Writes the information on drawn frames into the corner.</source>
        <translation>Écrit dans le coin les informations sur les images dessinées.</translation>
    </message>
    <message>
        <source>Tool tips</source>
        <translation>Infobulles</translation>
    </message>
    <message>
        <source>Shows the values of what is under the mouse.</source>
        <translation>Affiche les valeurs sous la souris.</translation>
    </message>
    <message>
        <source>Picking</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Finds the point of the data under the mouse.</source>
        <translation>Trouve le point des données sous la souris.</translation>
    </message>
    <message>
        <source>Mark picked point</source>
        <translation>Marquer le point lu</translation>
    </message>
    <message>
        <source>Marks the point that was found in the scene.</source>
        <translation>Marque dans la scène le point trouvé.</translation>
    </message>
    <message>
        <source>Around %1</source>
        <translation>Autour de %1</translation>
    </message>
    <message>
        <source>The rotation of the scene around the axis.</source>
        <translation>La rotation de la scène autour de l’axe.</translation>
    </message>
    <message>
        <source>Automatic rotation</source>
        <translation>Rotation automatique</translation>
    </message>
    <message>
        <source>A quick drag keeps the scene turning when it is released.</source>
        <translation>Un glissement rapide laisse tourner la scène quand on relâche.</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Seuil</translation>
    </message>
    <message>
        <source>The last step that a drag must exceed to keep turning.</source>
        <translation>Le dernier pas que le glissement doit dépasser pour que la rotation continue.</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Moves the scene along the axis, in units of the data.</source>
        <translation>Déplace la scène le long de l’axe, en unités des données.</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Déplacement</translation>
    </message>
    <message>
        <source>Moves the picture in the window; 1 is the radius of the scene.</source>
        <translation>Déplace l’image dans la fenêtre&#xa0;; 1 est le rayon de la scène.</translation>
    </message>
    <message>
        <source>Viewport shift</source>
        <translation>Décalage de l’image</translation>
    </message>
    <message>
        <source>Automatic scaling</source>
        <translation>Échelle automatique</translation>
    </message>
    <message>
        <source>How the axes are scaled: the data as a cube, one unit equally long on every axis, or as set below.</source>
        <translation>La mise à l’échelle des axes&#xa0;: les données en cube, une unité de même longueur sur chaque axe, ou selon le réglage ci-dessous.</translation>
    </message>
    <message>
        <source>Cube</source>
        <translation>Cube</translation>
    </message>
    <message>
        <source>Equal units</source>
        <translation>Unités égales</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivée</translation>
    </message>
    <message>
        <source>Stretches the scene along the axis.</source>
        <translation>Étire la scène le long de l’axe.</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Échelle</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>How large the scene is drawn.</source>
        <translation>La taille à laquelle la scène est dessinée.</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>The step from one drawn node to the next; 1 draws every node.</source>
        <translation>Le pas d’un nœud dessiné au suivant&#xa0;; 1 dessine chaque nœud.</translation>
    </message>
    <message>
        <source>Shading</source>
        <translation>Ombrage</translation>
    </message>
    <message>
        <source>One color a polygon, or colors that run from corner to corner.</source>
        <translation>Une couleur par polygone, ou des couleurs qui varient d’un sommet à l’autre.</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>Plat</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Lissé</translation>
    </message>
    <message>
        <source>Polygon offset</source>
        <translation>Décalage des polygones</translation>
    </message>
    <message>
        <source>How far surfaces stand back behind the lines drawn on them.</source>
        <translation>Le recul des surfaces derrière les lignes qui y sont dessinées.</translation>
    </message>
    <message>
        <source>Contour plot</source>
        <translation>Carte de contours</translation>
    </message>
    <message>
        <source>The flat copy of the surface on a plane of the box.</source>
        <translation>La copie plane de la surface sur un plan de la boîte.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Dessus</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Dessous</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vue</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Dessin</translation>
    </message>
</context>
<context>
    <name>Zel3D::FieldBinder</name>
    <message>
        <source>Restore defaults</source>
        <translation>Rétablir les valeurs par défaut</translation>
    </message>
</context>
<context>
    <name>Zel3D::FieldForm</name>
    <message>
        <source>Restore the default of %1</source>
        <translation>Rétablir la valeur par défaut de %1</translation>
    </message>
    <message>
        <source>Restore the default</source>
        <translation>Rétablir la valeur par défaut</translation>
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
        <translation>Taille de la police</translation>
    </message>
    <message>
        <source>Font size, %1 to %2 points</source>
        <translation>Taille de la police, de %1 à %2 points</translation>
    </message>
    <message>
        <source>B</source>
        <translation>G</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Gras</translation>
    </message>
    <message>
        <source>I</source>
        <translation>I</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Italique</translation>
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
        <translation>Cliquer ici avec le bouton de la souris en maintenant les modificateurs.</translation>
    </message>
    <message>
        <source>Click here, then press the key, holding the modifiers.</source>
        <translation>Cliquer ici, puis appuyer sur la touche en maintenant les modificateurs.</translation>
    </message>
    <message>
        <source>Click here, holding the modifiers.</source>
        <translation>Cliquer ici en maintenant les modificateurs.</translation>
    </message>
</context>
<context>
    <name>Zel3D::GradientButton</name>
    <message>
        <source>Gradient</source>
        <translation>Dégradé</translation>
    </message>
    <message>
        <source>No gradient</source>
        <translation>Aucun dégradé</translation>
    </message>
    <message>
        <source>Gradient: %1</source>
        <translation>Dégradé&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Modifier...</translation>
    </message>
    <message>
        <source>&amp;Edit a copy...</source>
        <translation>&amp;Modifier une copie...</translation>
    </message>
    <message>
        <source>&amp;All gradients...</source>
        <translation>&amp;Tous les dégradés...</translation>
    </message>
</context>
<context>
    <name>Zel3D::GradientEditDialog</name>
    <message>
        <source>Edit gradient</source>
        <translation>Modifier le dégradé</translation>
    </message>
    <message>
        <source>&amp;Stops</source>
        <translation>&amp;Points</translation>
    </message>
    <message>
        <source>Drag a handle to move a stop, with Shift in steps of 5 %; drag it off to remove it.
Double click beside the handles to add a stop, on a handle to choose its color.
Keys: Up and Down select, Left and Right move (Ctrl: 0.1 %, Shift: 5 %),
Insert adds, Delete removes, Return chooses the color.</source>
        <translation>Glisser une poignée déplace le point, avec Maj par pas de 5&#xa0;%&#xa0;; la sortir de la barre le supprime.
Un double-clic à côté des poignées ajoute un point, sur une poignée choisit sa couleur.
Touches&#xa0;: Haut et Bas sélectionnent, Gauche et Droite déplacent (Ctrl&#xa0;: 0,1&#xa0;%, Maj&#xa0;: 5&#xa0;%),
Inser ajoute, Suppr supprime, Entrée choisit la couleur.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source> %</source>
        <translation>&#xa0;%</translation>
    </message>
    <message>
        <source>&amp;Position</source>
        <translation>P&amp;osition</translation>
    </message>
    <message>
        <source>Position of the stop</source>
        <translation>Position du point</translation>
    </message>
    <message>
        <source>Position of the stop, 0 to 100 %</source>
        <translation>Position du point, de 0 à 100&#xa0;%</translation>
    </message>
    <message>
        <source>&amp;Color</source>
        <translation>&amp;Couleur</translation>
    </message>
    <message>
        <source>Color of the stop</source>
        <translation>Couleur du point</translation>
    </message>
    <message>
        <source>Chooses the color of the stop and how opaque it is</source>
        <translation>Choisit la couleur du point et son opacité</translation>
    </message>
    <message>
        <source>&amp;Hex</source>
        <translation>&amp;Hex</translation>
    </message>
    <message>
        <source>Color of the stop as a hexadecimal number</source>
        <translation>Couleur du point en notation hexadécimale</translation>
    </message>
    <message>
        <source>Color as #rrggbb or #rrggbbaa, each pair from 00 to ff; aa is 00 where it is transparent</source>
        <translation>Couleur sous la forme #rrggbb ou #rrggbbaa, chaque paire de 00 à ff&#xa0;; aa vaut 00 si elle est transparente</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message>
        <source>Adds a stop half way to the next one</source>
        <translation>Ajoute un point à mi-chemin du suivant</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Removes the stop; one always remains</source>
        <translation>Supprime le point&#xa0;; il en reste toujours un</translation>
    </message>
    <message>
        <source>Re&amp;verse</source>
        <translation>&amp;Inverser</translation>
    </message>
    <message>
        <source>Turns the gradient round</source>
        <translation>Inverse le dégradé</translation>
    </message>
    <message>
        <source>&amp;Distribute</source>
        <translation>&amp;Répartir</translation>
    </message>
    <message>
        <source>Spreads the stops evenly</source>
        <translation>Répartit les points régulièrement</translation>
    </message>
    <message>
        <source>S&amp;nap</source>
        <translation>A&amp;ligner</translation>
    </message>
    <message>
        <source>Moves every stop to the nearest multiple of 5 %</source>
        <translation>Déplace chaque point au multiple de 5&#xa0;% le plus proche</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>Takes the last change back (Ctrl+Z)</source>
        <translation>Annule la dernière modification (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Red&amp;o</source>
        <translation>Réta&amp;blir</translation>
    </message>
    <message>
        <source>Makes the change again (Ctrl+Shift+Z)</source>
        <translation>Rétablit la modification (Ctrl+Maj+Z)</translation>
    </message>
    <message>
        <source>Edit gradient “%1”</source>
        <translation>Modifier le dégradé «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>Zel3D::GradientEditor</name>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
</context>
<context>
    <name>Zel3D::GradientFile</name>
    <message>
        <source>A slice is a value, a color, a value and a color.</source>
        <translation>Une tranche est formée d’une valeur, d’une couleur, d’une valeur et d’une couleur.</translation>
    </message>
    <message>
        <source>The ends of the slice are not numbers.</source>
        <translation>Les extrémités de la tranche ne sont pas des nombres.</translation>
    </message>
    <message>
        <source>The slice does not rise.</source>
        <translation>La tranche n’est pas croissante.</translation>
    </message>
    <message>
        <source>The slice does not begin where the one before ends.</source>
        <translation>La tranche ne commence pas où la précédente finit.</translation>
    </message>
    <message>
        <source>“%1” is no color.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une couleur.</translation>
    </message>
    <message>
        <source>The transparency lies outside 0 ... 100.</source>
        <translation>La transparence est hors de 0 ... 100.</translation>
    </message>
    <message>
        <source>The color has %1 components.</source>
        <translation>La couleur a %1 composantes.</translation>
    </message>
    <message>
        <source>The color component “%1” is no number from 0 to %2.</source>
        <translation>La composante «&#xa0;%1&#xa0;» n’est pas un nombre de 0 à %2.</translation>
    </message>
    <message>
        <source>There is no slice of colors.</source>
        <translation>Il n’y a aucune tranche de couleurs.</translation>
    </message>
    <message>
        <source>The values span too much.</source>
        <translation>L’étendue des valeurs est trop grande.</translation>
    </message>
    <message>
        <source>“%1” is no color with a position in per cent.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une couleur avec une position en pour cent.</translation>
    </message>
    <message>
        <source>“%1” is no position in per cent.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une position en pour cent.</translation>
    </message>
    <message>
        <source>A hint does not stand between two colors.</source>
        <translation>Une indication n’est pas placée entre deux couleurs.</translation>
    </message>
    <message>
        <source>A gradient needs two colors.</source>
        <translation>Un dégradé a besoin de deux couleurs.</translation>
    </message>
    <message>
        <source>There is no linear-gradient().</source>
        <translation>Il n’y a pas de linear-gradient().</translation>
    </message>
    <message>
        <source>Repeating gradients are not read.</source>
        <translation>Les dégradés répétés ne sont pas lus.</translation>
    </message>
    <message>
        <source>The closing bracket of linear-gradient() is missing.</source>
        <translation>La parenthèse fermante de linear-gradient() manque.</translation>
    </message>
    <message>
        <source>A segment has 13 or 15 numbers, not %1.</source>
        <translation>Un segment a 13 ou 15 nombres, pas %1.</translation>
    </message>
    <message>
        <source>“%1” is not a number.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre.</translation>
    </message>
    <message>
        <source>The segment does not begin where the one before ends.</source>
        <translation>Le segment ne commence pas où le précédent finit.</translation>
    </message>
    <message>
        <source>Left, middle and right of the segment do not rise within 0 ... 1.</source>
        <translation>La gauche, le milieu et la droite du segment ne croissent pas dans 0 ... 1.</translation>
    </message>
    <message>
        <source>A color component lies outside 0 ... 1.</source>
        <translation>Une composante de couleur est hors de 0 ... 1.</translation>
    </message>
    <message>
        <source>The blending is not one of 0 ... 5.</source>
        <translation>Le mélange n’est pas l’un de 0 ... 5.</translation>
    </message>
    <message>
        <source>The coloring is not one of 0 ... 2.</source>
        <translation>La coloration n’est pas l’une de 0 ... 2.</translation>
    </message>
    <message>
        <source>The first line is not “GIMP Gradient”.</source>
        <translation>La première ligne n’est pas «&#xa0;GIMP Gradient&#xa0;».</translation>
    </message>
    <message>
        <source>The number of segments is missing.</source>
        <translation>Le nombre de segments manque.</translation>
    </message>
    <message>
        <source>The file ends after %1 of %2 segments.</source>
        <translation>Le fichier finit après %1 segments sur %2.</translation>
    </message>
    <message>
        <source>The last segment does not end at 1.</source>
        <translation>Le dernier segment ne finit pas à 1.</translation>
    </message>
    <message>
        <source>This is not a text file.</source>
        <translation>Ce n’est pas un fichier texte.</translation>
    </message>
    <message>
        <source>The line is longer than %1 characters.</source>
        <translation>La ligne est plus longue que %1 caractères.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The file is larger than %1 bytes.</source>
        <translation>Le fichier est plus grand que %1 octets.</translation>
    </message>
    <message>
        <source>The first line is not “%1”.</source>
        <translation>La première ligne n’est pas «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>A stop is a position from 0 to 1 and a color, not “%1”.</source>
        <translation>Un point est une position de 0 à 1 et une couleur, pas «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>“%1” is no color like #rrggbbaa.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une couleur telle que #rrggbbaa.</translation>
    </message>
    <message>
        <source>The position is less than the one before.</source>
        <translation>La position est inférieure à la précédente.</translation>
    </message>
    <message>
        <source>There is no stop.</source>
        <translation>Il n’y a aucun point.</translation>
    </message>
    <message>
        <source>There are more than %1 stops.</source>
        <translation>Il y a plus de %1 points.</translation>
    </message>
</context>
<context>
    <name>Zel3D::GradientListDialog</name>
    <message>
        <source>Gradients</source>
        <translation>Dégradés</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>&amp;Filtre</translation>
    </message>
    <message>
        <source>Filter of the names</source>
        <translation>Filtre des noms</translation>
    </message>
    <message>
        <source>Shows only the gradients whose names contain this text</source>
        <translation>N’affiche que les dégradés dont le nom contient ce texte</translation>
    </message>
    <message>
        <source>Part of a name</source>
        <translation>Partie d’un nom</translation>
    </message>
    <message>
        <source>&amp;Gradients</source>
        <translation>&amp;Dégradés</translation>
    </message>
    <message>
        <source>Select a gradient; F2 renames it, Return edits it, Delete removes it</source>
        <translation>Sélectionner un dégradé&#xa0;; F2 le renomme, Entrée le modifie, Suppr le supprime</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message>
        <source>Adds a new gradient or one from a published table</source>
        <translation>Ajoute un nouveau dégradé ou un dégradé d’une table publiée</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>D&amp;upliquer</translation>
    </message>
    <message>
        <source>Adds a copy of the gradient</source>
        <translation>Ajoute une copie du dégradé</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>Gives the gradient another name</source>
        <translation>Donne un autre nom au dégradé</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Modifier...</translation>
    </message>
    <message>
        <source>Changes the stops of the gradient</source>
        <translation>Modifie les points du dégradé</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Removes the gradient; it can be put back</source>
        <translation>Supprime le dégradé&#xa0;; il peut être restauré</translation>
    </message>
    <message>
        <source>&amp;Put back</source>
        <translation>R&amp;estaurer</translation>
    </message>
    <message>
        <source>Puts the gradient back that was removed last (Ctrl+Z)</source>
        <translation>Restaure le dernier dégradé supprimé (Ctrl+Z)</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importer...</translation>
    </message>
    <message>
        <source>Reads a gradient from a text file, CSS, GMT (.cpt) or GIMP (.ggr)</source>
        <translation>Lit un dégradé d’un fichier texte, CSS, GMT (.cpt) ou GIMP (.ggr)</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>E&amp;xporter...</translation>
    </message>
    <message>
        <source>Writes the gradient to a text file</source>
        <translation>Écrit le dégradé dans un fichier texte</translation>
    </message>
    <message>
        <source>&amp;New gradient</source>
        <translation>&amp;Nouveau dégradé</translation>
    </message>
    <message>
        <source>New gradient</source>
        <translation>Nouveau dégradé</translation>
    </message>
    <message>
        <source>&amp;From low to high</source>
        <translation>&amp;Du bas vers le haut</translation>
    </message>
    <message>
        <source>&amp;Around a middle</source>
        <translation>&amp;Autour d’un milieu</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>Le fichier ne peut pas être lu&#xa0;: %1</translation>
    </message>
    <message>
        <source>The file cannot be written: %1</source>
        <translation>Le fichier ne peut pas être écrit&#xa0;: %1</translation>
    </message>
    <message>
        <source>“%1” was written.</source>
        <translation>«&#xa0;%1&#xa0;» a été écrit.</translation>
    </message>
    <message>
        <source>Import a gradient</source>
        <translation>Importer un dégradé</translation>
    </message>
    <message>
        <source>Gradients (*.gradient *.txt *.css *.cpt *.ggr);;All files (*)</source>
        <translation>Dégradés (*.gradient *.txt *.css *.cpt *.ggr);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Export the gradient</source>
        <translation>Exporter le dégradé</translation>
    </message>
    <message>
        <source>Gradients (*.gradient);;All files (*)</source>
        <translation>Dégradés (*.gradient);;Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>Zel3D::GradientListModel</name>
    <message>
        <source>%1: built in, duplicate it to change it</source>
        <translation>%1&#xa0;: intégré, le dupliquer pour le modifier</translation>
    </message>
    <message>
        <source>“%1” was removed.</source>
        <translation>«&#xa0;%1&#xa0;» a été supprimé.</translation>
    </message>
    <message>
        <source>“%1” was put back.</source>
        <translation>«&#xa0;%1&#xa0;» a été restauré.</translation>
    </message>
    <message>
        <source>“%1” was added.</source>
        <translation>«&#xa0;%1&#xa0;» a été ajouté.</translation>
    </message>
    <message>
        <source>A gradient needs a name.</source>
        <translation>Un dégradé a besoin d’un nom.</translation>
    </message>
    <message>
        <source>There is a gradient “%1” already; this one is now called “%2”.</source>
        <translation>Il existe déjà un dégradé «&#xa0;%1&#xa0;»&#xa0;; celui-ci s’appelle maintenant «&#xa0;%2&#xa0;».</translation>
    </message>
</context>
<context>
    <name>Zel3D::GradientPreview</name>
    <message>
        <source>Without cones for long waves (red), about 1 % of men</source>
        <translation>Sans cônes pour les ondes longues (rouge), environ 1&#xa0;% des hommes</translation>
    </message>
    <message>
        <source>Without cones for middle waves (green), about 1 % of men</source>
        <translation>Sans cônes pour les ondes moyennes (vert), environ 1&#xa0;% des hommes</translation>
    </message>
    <message>
        <source>Without cones for short waves (blue), rare</source>
        <translation>Sans cônes pour les ondes courtes (bleu), rare</translation>
    </message>
    <message>
        <source>With all three kinds of cones</source>
        <translation>Avec les trois types de cônes</translation>
    </message>
    <message>
        <source>Preview: %1</source>
        <translation>Aperçu&#xa0;: %1</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Clarté</translation>
    </message>
    <message>
        <source>CIE lightness L* along the gradient, 0 at the bottom, 100 at the top</source>
        <translation>Clarté CIE L* le long du dégradé, 0 en bas, 100 en haut</translation>
    </message>
    <message>
        <source>Note about the lightness</source>
        <translation>Remarque sur la clarté</translation>
    </message>
</context>
<context>
    <name>Zel3D::GradientStopsWidget</name>
    <message>
        <source>Stops of the gradient</source>
        <translation>Points du dégradé</translation>
    </message>
    <message>
        <source>No stops</source>
        <translation>Aucun point</translation>
    </message>
    <message>
        <source>Stop %1 of %2 at %3 %, color %4</source>
        <translation>Point %1 sur %2 à %3&#xa0;%, couleur %4</translation>
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
        <translation>Dessus</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Dessous</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Côtés</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profondeur</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Arrière</translation>
    </message>
    <message>
        <source>SolidLine</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>DashLine</source>
        <translation>Tirets</translation>
    </message>
    <message>
        <source>DotLine</source>
        <translation>Pointillés</translation>
    </message>
    <message>
        <source>DashDotLine</source>
        <translation>Tiret, point</translation>
    </message>
    <message>
        <source>DashDotDotLine</source>
        <translation>Tiret, point, point</translation>
    </message>
    <message>
        <source>Whether this plane of the box shows grid lines.</source>
        <translation>Indique si ce plan de la boîte montre des lignes de grille.</translation>
    </message>
    <message>
        <source>Behind the data</source>
        <translation>Derrière les données</translation>
    </message>
    <message>
        <source>Of two opposite planes the one behind the data shows the lines.</source>
        <translation>De deux plans opposés, celui qui est derrière les données montre les lignes.</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>The color of all grid lines.</source>
        <translation>La couleur de toutes les lignes de grille.</translation>
    </message>
    <message>
        <source>Smooth lines</source>
        <translation>Lignes lissées</translation>
    </message>
    <message>
        <source>Draws the axes without steps.</source>
        <translation>Dessine les axes sans escaliers.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>The width of the lines; minor lines are never wider than major ones.</source>
        <translation>La largeur des lignes&#xa0;; les lignes secondaires ne sont jamais plus larges que les principales.</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Visible</translation>
    </message>
    <message>
        <source>Lines at the numbers.</source>
        <translation>Lignes aux nombres.</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>How the lines are broken.</source>
        <translation>La façon dont les lignes sont interrompues.</translation>
    </message>
    <message>
        <source>Lines between the numbers.</source>
        <translation>Lignes entre les nombres.</translation>
    </message>
    <message>
        <source>Planes</source>
        <translation>Plans</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Major lines</source>
        <translation>Lignes principales</translation>
    </message>
    <message>
        <source>Minor lines</source>
        <translation>Lignes secondaires</translation>
    </message>
</context>
<context>
    <name>Zel3D::LegendPage</name>
    <message>
        <source>Across</source>
        <translation>Horizontalement</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Coin</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Verticalement</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>The place of the bar, in percent of the window from its lower left corner.</source>
        <translation>La place de la barre, en pour cent de la fenêtre depuis son coin inférieur gauche.</translation>
    </message>
    <message>
        <source>The width of the ticks.</source>
        <translation>La largeur des graduations.</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Major</source>
        <translation>Principale</translation>
    </message>
    <message>
        <source>Minor</source>
        <translation>Secondaire</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Visible</translation>
    </message>
    <message>
        <source>Whether the color legend is shown.</source>
        <translation>Indique si la légende des couleurs est affichée.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>The edge of the window at which the legend stands.</source>
        <translation>Le bord de la fenêtre où se trouve la légende.</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>En haut</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>En bas</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>À gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>À droite</translation>
    </message>
    <message>
        <source>Automatic place</source>
        <translation>Place automatique</translation>
    </message>
    <message>
        <source>Places the legend along that edge; otherwise in the rectangle below.</source>
        <translation>Place la légende le long de ce bord&#xa0;; sinon dans le rectangle ci-dessous.</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>Légende</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>Axis line</source>
        <translation>Ligne de l’axe</translation>
    </message>
    <message>
        <source>Ticks</source>
        <translation>Graduations</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Nombres</translation>
    </message>
</context>
<context>
    <name>Zel3D::LightingPage</name>
    <message>
        <source>Lighting</source>
        <translation>Éclairage</translation>
    </message>
    <message>
        <source>Lights the scene with the lights below.</source>
        <translation>Éclaire la scène avec les lumières ci-dessous.</translation>
    </message>
    <message>
        <source>Show lights</source>
        <translation>Montrer les lumières</translation>
    </message>
    <message>
        <source>Draws a marker where each light stands.</source>
        <translation>Dessine un repère à la place de chaque lumière.</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Allumée</translation>
    </message>
    <message>
        <source>Switches the light on.</source>
        <translation>Allume la lumière.</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Parallel rays, a point that shines to all sides, or a cone.</source>
        <translation>Rayons parallèles, un point qui éclaire de tous côtés, ou un cône.</translation>
    </message>
    <message>
        <source>Directional</source>
        <translation>Directionnelle</translation>
    </message>
    <message>
        <source>Dotted</source>
        <translation>Ponctuelle</translation>
    </message>
    <message>
        <source>Spot</source>
        <translation>Projecteur</translation>
    </message>
    <message>
        <source>Ambient</source>
        <translation>Ambiante</translation>
    </message>
    <message>
        <source>The color that reaches every side.</source>
        <translation>La couleur qui atteint toutes les faces.</translation>
    </message>
    <message>
        <source>Diffuse</source>
        <translation>Diffuse</translation>
    </message>
    <message>
        <source>The color of the sides that face the light.</source>
        <translation>La couleur des faces tournées vers la lumière.</translation>
    </message>
    <message>
        <source>Specular</source>
        <translation>Spéculaire</translation>
    </message>
    <message>
        <source>The color of highlights.</source>
        <translation>La couleur des reflets.</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>The distance from the center of the scene, in its units.</source>
        <translation>La distance au centre de la scène, dans ses unités.</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direction</translation>
    </message>
    <message>
        <source>The angle around the z axis.</source>
        <translation>L’angle autour de l’axe z.</translation>
    </message>
    <message>
        <source>Tilt</source>
        <translation>Inclinaison</translation>
    </message>
    <message>
        <source>The angle from the z axis; 0 is above.</source>
        <translation>L’angle à partir de l’axe z&#xa0;; 0 est au-dessus.</translation>
    </message>
    <message>
        <source>How the light fades with the distance; directional light does not.</source>
        <translation>La façon dont la lumière faiblit avec la distance&#xa0;; une lumière directionnelle ne faiblit pas.</translation>
    </message>
    <message>
        <source>Fading</source>
        <translation>Atténuation</translation>
    </message>
    <message>
        <source>The point at which the cone aims, from the center of the scene.</source>
        <translation>Le point visé par le cône, depuis le centre de la scène.</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Cible</translation>
    </message>
    <message>
        <source>Constant</source>
        <translation>Fixe</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linéaire</translation>
    </message>
    <message>
        <source>Quadratic</source>
        <translation>Carrée</translation>
    </message>
    <message>
        <source>Concentration</source>
        <translation>Concentration</translation>
    </message>
    <message>
        <source>How much brighter the middle of the cone is.</source>
        <translation>De combien le milieu du cône est plus clair.</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>Ouverture</translation>
    </message>
    <message>
        <source>Half the opening angle of the cone.</source>
        <translation>La moitié de l’angle d’ouverture du cône.</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Scène</translation>
    </message>
    <message>
        <source>Light %1</source>
        <translation>Lumière %1</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>Rayons</translation>
    </message>
</context>
<context>
    <name>Zel3D::MarkersEditor</name>
    <message>
        <source>Dot in the color of the data</source>
        <translation>Point de la couleur des données</translation>
    </message>
    <message>
        <source>Dot in one color</source>
        <translation>Point d’une seule couleur</translation>
    </message>
    <message>
        <source>Sphere</source>
        <translation>Sphère</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Barre</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Flèche</translation>
    </message>
    <message>
        <source>Marker of the program</source>
        <translation>Marqueur du programme</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>The width of a dot.</source>
        <translation>La largeur d’un point.</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>The color of the marker.</source>
        <translation>La couleur du marqueur.</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Rayon</translation>
    </message>
    <message>
        <source>The radius of the marker, in units of the data.</source>
        <translation>Le rayon du marqueur, en unités des données.</translation>
    </message>
    <message>
        <source>Round</source>
        <translation>Rond</translation>
    </message>
    <message>
        <source>Draws round dots in place of squares.</source>
        <translation>Dessine des points ronds au lieu de carrés.</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Côtés</translation>
    </message>
    <message>
        <source>The number of sides of a bar.</source>
        <translation>Le nombre de côtés d’une barre.</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>The turn of a bar around its length.</source>
        <translation>La rotation d’une barre autour de sa longueur.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>How little of what lies behind shines through.</source>
        <translation>Plus elle est grande, moins ce qui est derrière transparaît.</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Arêtes</translation>
    </message>
    <message>
        <source>Draws lines along the edges.</source>
        <translation>Dessine des lignes le long des arêtes.</translation>
    </message>
    <message>
        <source>The point at which all arrows aim, in units of the data.</source>
        <translation>Le point visé par toutes les flèches, en unités des données.</translation>
    </message>
    <message>
        <source>End X</source>
        <translation>Extrémité X</translation>
    </message>
    <message>
        <source>End Y</source>
        <translation>Extrémité Y</translation>
    </message>
    <message>
        <source>End Z</source>
        <translation>Extrémité Z</translation>
    </message>
    <message>
        <source>The sides of the head.</source>
        <translation>Le nombre de faces de la pointe.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Adds a marker at every point of the data</source>
        <translation>Ajoute un marqueur à chaque point des données</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Removes the chosen marker</source>
        <translation>Supprime le marqueur choisi</translation>
    </message>
</context>
<context>
    <name>Zel3D::PicturePrinter</name>
    <message>
        <source>The printer takes no page.</source>
        <translation>L’imprimante n’accepte aucune page.</translation>
    </message>
    <message>
        <source>The page cannot be printed.</source>
        <translation>La page ne peut pas être imprimée.</translation>
    </message>
</context>
<context>
    <name>Zel3D::PictureWriter</name>
    <message>
        <source>The picture &quot;%1&quot; cannot be written: %2.</source>
        <translation>L’image «&#xa0;%1&#xa0;» ne peut pas être écrite&#xa0;: %2.</translation>
    </message>
    <message>
        <source>its name has no suffix that tells the format</source>
        <translation>son nom n’a pas d’extension qui indique le format</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a format of pictures</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un format d’image</translation>
    </message>
    <message>
        <source>The data have more than %1 polygons, lines and points; they are an image in the file.</source>
        <translation>Les données ont plus de %1 polygones, lignes et points&#xa0;; elles forment une image matricielle dans le fichier.</translation>
    </message>
    <message>
        <source>Qt has no plugin that writes &quot;%1&quot;</source>
        <translation>Qt n’a pas de module qui écrit «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; does not exist</source>
        <translation>le dossier «&#xa0;%1&#xa0;» n’existe pas</translation>
    </message>
</context>
<context>
    <name>Zel3D::PlotSettingsDialog</name>
    <message>
        <source>Common</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>Additions</source>
        <translation>Compléments</translation>
    </message>
    <message>
        <source>Axes</source>
        <translation>Axes</translation>
    </message>
    <message>
        <source>Scales</source>
        <translation>Échelles</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>Légende</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>Éclairage</translation>
    </message>
    <message>
        <source>Plot style</source>
        <translation>Tracé</translation>
    </message>
</context>
<context>
    <name>Zel3D::PlotSettingsDialogBase</name>
    <message>
        <source>Plot settings</source>
        <translation>Paramètres du graphique</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Rechercher un paramètre</translation>
    </message>
    <message>
        <source>Finds a setting by its words</source>
        <translation>Trouve un paramètre par ses mots</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Rétablir les valeurs par défaut</translation>
    </message>
    <message>
        <source>This page</source>
        <translation>Cette page</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Toutes les pages</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Modèle</translation>
    </message>
</context>
<context>
    <name>Zel3D::PlotStatusBar</name>
    <message>
        <source>Rotation: [X;Y;Z]</source>
        <translation>Rotation&#xa0;: [X;Y;Z]</translation>
    </message>
    <message>
        <source>Viewport shift: [X;Y]</source>
        <translation>Décalage de l’image&#xa0;: [X;Y]</translation>
    </message>
    <message>
        <source>Scale: [X;Y;Z]</source>
        <translation>Échelle&#xa0;: [X;Y;Z]</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Rotation: %0; %1; %2</source>
        <translation>Rotation&#xa0;: %0; %1; %2</translation>
    </message>
    <message>
        <source>Scale: %0; %1; %2</source>
        <translation>Échelle&#xa0;: %0; %1; %2</translation>
    </message>
    <message>
        <source>Turn: %0; %1; %2</source>
        <translation>Rotation&#xa0;: %0; %1; %2</translation>
    </message>
    <message>
        <source>Viewport shift: %0; %1</source>
        <translation>Décalage de l’image&#xa0;: %0; %1</translation>
    </message>
    <message>
        <source>Scaling: %0; %1; %2</source>
        <translation>Échelle&#xa0;: %0; %1; %2</translation>
    </message>
    <message>
        <source>Zoom: %0</source>
        <translation>Zoom&#xa0;: %0</translation>
    </message>
    <message>
        <source>Selecting on</source>
        <translation>Lecture activée</translation>
    </message>
    <message>
        <source>Selecting off</source>
        <translation>Lecture désactivée</translation>
    </message>
    <message>
        <source>Lighting on</source>
        <translation>Éclairage activé</translation>
    </message>
    <message>
        <source>Lighting off</source>
        <translation>Éclairage désactivé</translation>
    </message>
    <message>
        <source>Auto scaling on</source>
        <translation>Échelle automatique activée</translation>
    </message>
    <message>
        <source>Auto scaling off</source>
        <translation>Échelle automatique désactivée</translation>
    </message>
    <message>
        <source>Show info on</source>
        <translation>Informations sur les images activées</translation>
    </message>
    <message>
        <source>Show info off</source>
        <translation>Informations sur les images désactivées</translation>
    </message>
    <message>
        <source>Value: %0</source>
        <translation>Valeur&#xa0;: %0</translation>
    </message>
</context>
<context>
    <name>Zel3D::PlotStylePage</name>
    <message>
        <source>Style</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>What is drawn of the data.</source>
        <translation>Ce qui est dessiné des données.</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Dégradé</translation>
    </message>
    <message>
        <source>The colors of the values.</source>
        <translation>Les couleurs des valeurs.</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>The color of the mesh lines.</source>
        <translation>La couleur des lignes du maillage.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>The width of the mesh lines.</source>
        <translation>La largeur des lignes du maillage.</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Lines along columns</source>
        <translation>Lignes le long des colonnes</translation>
    </message>
    <message>
        <source>Mesh lines at equal x.</source>
        <translation>Lignes du maillage à x constant.</translation>
    </message>
    <message>
        <source>Lines along rows</source>
        <translation>Lignes le long des rangées</translation>
    </message>
    <message>
        <source>Mesh lines at equal y.</source>
        <translation>Lignes du maillage à y constant.</translation>
    </message>
    <message>
        <source>Smooth lines</source>
        <translation>Lignes lissées</translation>
    </message>
    <message>
        <source>Draws the mesh without steps.</source>
        <translation>Dessine le maillage sans escaliers.</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Visible</translation>
    </message>
    <message>
        <source>Shows the normals of the surface as arrows.</source>
        <translation>Affiche les normales de la surface sous forme de flèches.</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>The length of the arrows in parts of the diagonal of the data&apos;s box.</source>
        <translation>La longueur des flèches en fractions de la diagonale de la boîte des données.</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Finesse</translation>
    </message>
    <message>
        <source>The sides of an arrow&apos;s head.</source>
        <translation>Le nombre de faces de la pointe d’une flèche.</translation>
    </message>
    <message>
        <source>Mesh</source>
        <translation>Maillage</translation>
    </message>
    <message>
        <source>Normals</source>
        <translation>Normales</translation>
    </message>
</context>
<context>
    <name>Zel3D::RasterPicture</name>
    <message>
        <source>A picture of %1 by %2 pixels is too large.</source>
        <translation>Une image de %1 sur %2 pixels est trop grande.</translation>
    </message>
    <message>
        <source>The driver has no memory for a picture.</source>
        <translation>Le pilote n’a pas de mémoire pour une image.</translation>
    </message>
    <message>
        <source>The driver could not draw the picture.</source>
        <translation>Le pilote n’a pas pu dessiner l’image.</translation>
    </message>
</context>
<context>
    <name>Zel3D::SHPlot</name>
    <message>
        <source>No plot</source>
        <translation>Aucun graphique</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>Wireframe</source>
        <translation>Fil de fer</translation>
    </message>
    <message>
        <source>Hidden line</source>
        <translation>Lignes cachées</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>Rempli</translation>
    </message>
    <message>
        <source>Filled and mesh</source>
        <translation>Rempli avec maillage</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>Histogramme</translation>
    </message>
</context>
<context>
    <name>Zel3D::ScalesPage</name>
    <message>
        <source>Scale</source>
        <translation>Échelle</translation>
    </message>
    <message>
        <source>How values lie along the axis.</source>
        <translation>La répartition des valeurs le long de l’axe.</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linéaire</translation>
    </message>
    <message>
        <source>Logarithmic</source>
        <translation>Logarithmique</translation>
    </message>
    <message>
        <source>Major</source>
        <translation>Principal</translation>
    </message>
    <message>
        <source>Into how many parts numbers divide the axis.</source>
        <translation>Le nombre de parties en lesquelles les nombres divisent l’axe.</translation>
    </message>
    <message>
        <source>Minor</source>
        <translation>Secondaire</translation>
    </message>
    <message>
        <source>Into how many parts small ticks divide each of them.</source>
        <translation>Le nombre de parties en lesquelles de petites graduations divisent chacune d’elles.</translation>
    </message>
    <message>
        <source>X axis</source>
        <translation>Axe X</translation>
    </message>
    <message>
        <source>Y axis</source>
        <translation>Axe Y</translation>
    </message>
    <message>
        <source>Z axis and legend</source>
        <translation>Axe Z et légende</translation>
    </message>
    <message>
        <source>Linear intervals</source>
        <translation>Intervalles linéaires</translation>
    </message>
    <message>
        <source>Logarithmic intervals</source>
        <translation>Intervalles logarithmiques</translation>
    </message>
</context>
<context>
    <name>Zel3D::Spectrum</name>
    <message>
        <source>No plot</source>
        <translation>Aucun graphique</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>Rempli</translation>
    </message>
    <message>
        <source>Filled and frame</source>
        <translation>Rempli avec cadre</translation>
    </message>
</context>
<context>
    <name>Zel3D::TemplateActions</name>
    <message>
        <source>Plot templates (*.%1);;All files (*)</source>
        <translation>Modèles de graphique (*.%1);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>&amp;Template</source>
        <translation>M&amp;odèle</translation>
    </message>
    <message>
        <source>&amp;Save as template...</source>
        <translation>&amp;Enregistrer comme modèle...</translation>
    </message>
    <message>
        <source>Keep the appearance of the plot in a file</source>
        <translation>Conserver l’apparence du graphique dans un fichier</translation>
    </message>
    <message>
        <source>Save with &amp;view...</source>
        <translation>Enregistrer avec la &amp;vue...</translation>
    </message>
    <message>
        <source>Keep the appearance, rotation, shift, scale and zoom of the plot in a file</source>
        <translation>Conserver l’apparence, la rotation, le déplacement, l’échelle et le zoom du graphique dans un fichier</translation>
    </message>
    <message>
        <source>&amp;Apply template...</source>
        <translation>&amp;Appliquer un modèle...</translation>
    </message>
    <message>
        <source>Give the plot the appearance that a file holds</source>
        <translation>Donner au graphique l’apparence conservée dans un fichier</translation>
    </message>
    <message>
        <source>Save as template</source>
        <translation>Enregistrer comme modèle</translation>
    </message>
    <message>
        <source>Apply template</source>
        <translation>Appliquer un modèle</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
    <message>
        <source>Applied %1</source>
        <translation>%1 appliqué</translation>
    </message>
    <message>
        <source>%1 more in the details.</source>
        <translation>%1 de plus dans les détails.</translation>
    </message>
</context>
<context>
    <name>Zel3D::TitlePage</name>
    <message>
        <source>The place of the title, from the lower left corner.</source>
        <translation>La place du titre, depuis le coin inférieur gauche.</translation>
    </message>
    <message>
        <source>Across</source>
        <translation>Horizontalement</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Verticalement</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
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
        <translation>L’animation «&#xa0;%1&#xa0;» ne peut pas être écrite&#xa0;: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no animated format</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un format animé</translation>
    </message>
    <message>
        <source>the program ffmpeg is not installed</source>
        <translation>le programme ffmpeg n’est pas installé</translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; does not exist</source>
        <translation>le dossier «&#xa0;%1&#xa0;» n’existe pas</translation>
    </message>
    <message>
        <source>ffmpeg failed</source>
        <translation>ffmpeg a échoué</translation>
    </message>
    <message>
        <source>ffmpeg says &quot;%1&quot;</source>
        <translation>ffmpeg indique «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>Zel3D::VectorPicture</name>
    <message>
        <source>Axes and legend have too many lines for a vector picture.</source>
        <translation>Les axes et la légende ont trop de lignes pour une image vectorielle.</translation>
    </message>
    <message>
        <source>The driver could not draw the picture.</source>
        <translation>Le pilote n’a pas pu dessiner l’image.</translation>
    </message>
    <message>
        <source>The plot cannot be drawn.</source>
        <translation>Le graphique ne peut pas être dessiné.</translation>
    </message>
    <message>
        <source>The vector file cannot be made.</source>
        <translation>Le fichier vectoriel ne peut pas être créé.</translation>
    </message>
</context>
<context>
    <name>Zel3D::ZelGLWidget</name>
    <message>
        <source>%0 fps</source>
        <translation>%0 images/s</translation>
    </message>
</context>
</TS>

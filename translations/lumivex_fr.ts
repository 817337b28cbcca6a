<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AboutWindow</name>
    <message>
        <source>windows and drawing</source>
        <translation>fenêtres et dessin</translation>
    </message>
    <message>
        <source>picture files</source>
        <translation>fichiers d’image</translation>
    </message>
    <message>
        <source>camera raw files</source>
        <translation>fichiers bruts d’appareils photo</translation>
    </message>
    <message>
        <source>what files say about their pictures</source>
        <translation>métadonnées des fichiers</translation>
    </message>
    <message>
        <source>color profiles</source>
        <translation>profils de couleur</translation>
    </message>
    <message>
        <source>work on all cores</source>
        <translation>calcul sur tous les cœurs</translation>
    </message>
    <message>
        <source>vector arithmetic</source>
        <translation>calcul vectoriel</translation>
    </message>
    <message>
        <source>barcodes</source>
        <translation>codes-barres</translation>
    </message>
    <message>
        <source>the packed undo history</source>
        <translation>l’historique compressé</translation>
    </message>
    <message>
        <source>surfaces and solid bodies</source>
        <translation>surfaces et solides</translation>
    </message>
    <message>
        <source>About Lumivex</source>
        <translation>À propos de Lumivex</translation>
    </message>
    <message>
        <source>The program&apos;s icon</source>
        <translation>L’icône du programme</translation>
    </message>
    <message>
        <source>Version, license and libraries; the text can be selected and copied</source>
        <translation>Version, licence et bibliothèques&#xa0;; le texte peut être sélectionné et copié</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>A picture editor with live filters. It uses no network.</source>
        <translation>Un éditeur d’images avec filtres en direct. Il n’utilise pas le réseau.</translation>
    </message>
    <message>
        <source>Free software that comes without any warranty. License: %1</source>
        <translation>Logiciel libre, fourni sans aucune garantie. Licence&#xa0;: %1</translation>
    </message>
    <message>
        <source>It stands on these libraries:</source>
        <translation>Il repose sur ces bibliothèques&#xa0;:</translation>
    </message>
</context>
<context>
    <name>AlertPanel</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Enregistrer…</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>Ne pas enregistrer</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
</context>
<context>
    <name>BaseEffect</name>
    <message>
        <source>Flare Effect</source>
        <translation>Éclat lumineux</translation>
    </message>
    <message>
        <source>Flare Effect Generator</source>
        <translation>Générateur d’éclat lumineux</translation>
    </message>
    <message>
        <source>Hilbert Lines</source>
        <translation>Lignes de Hilbert</translation>
    </message>
    <message>
        <source>Hilbert Lines Effect Generator</source>
        <translation>Générateur de lignes de Hilbert</translation>
    </message>
    <message>
        <source>Lines Effect</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Lines Effect Generator</source>
        <translation>Générateur de lignes</translation>
    </message>
    <message>
        <source>Patch Works</source>
        <translation>Patchwork</translation>
    </message>
    <message>
        <source>Patch Works Effect Generator</source>
        <translation>Générateur de patchwork</translation>
    </message>
    <message>
        <source>Pattern Morphing</source>
        <translation>Métamorphose de motifs</translation>
    </message>
    <message>
        <source>Pattern Morphing Effect Generator</source>
        <translation>Générateur de motifs métamorphosés</translation>
    </message>
    <message>
        <source>Plasma Effect</source>
        <translation>Plasma</translation>
    </message>
    <message>
        <source>Plasma Effect Generator</source>
        <translation>Générateur de plasma</translation>
    </message>
    <message>
        <source>Simple Objects</source>
        <translation>Objets simples</translation>
    </message>
    <message>
        <source>Simple Objects Generator</source>
        <translation>Générateur d’objets simples</translation>
    </message>
    <message>
        <source>Sketch Effect</source>
        <translation>Croquis</translation>
    </message>
    <message>
        <source>Sketch Effect Generator</source>
        <translation>Générateur de croquis</translation>
    </message>
    <message>
        <source>Surface Rotate</source>
        <translation>Surface tournante</translation>
    </message>
    <message>
        <source>3D Surface Rotate</source>
        <translation>Surface tournante en 3D</translation>
    </message>
    <message>
        <source>3D Objects</source>
        <translation>Objets 3D</translation>
    </message>
    <message>
        <source>3D Objects Texuture</source>
        <translation>L’image sur des objets 3D</translation>
    </message>
    <message>
        <source>The objects are thrown by chance. Another type or count throws them anew.</source>
        <translation>Les objets sont jetés au hasard. Un autre type ou un autre nombre les jette de nouveau.</translation>
    </message>
</context>
<context>
    <name>BeforeAfterView</name>
    <message>
        <source>Before and after</source>
        <translation>Avant et après</translation>
    </message>
    <message>
        <source>A part of the picture as it is and as the file shows it, pixel by pixel. Drag it to see another part</source>
        <translation>Une partie de l’image telle qu’elle est et telle que le fichier la montre, pixel par pixel. Faites-la glisser pour en voir une autre</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Après</translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message>
        <source>Copying the picture…</source>
        <translation>Copie de l’image…</translation>
    </message>
    <message>
        <source>There was not enough memory to copy the picture</source>
        <translation>Mémoire insuffisante pour copier l’image</translation>
    </message>
    <message>
        <source>Pasting the picture…</source>
        <translation>Collage de l’image…</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be pasted: %2</source>
        <comment>file name, what is wrong</comment>
        <translation>« %1 » ne peut pas être collé : %2</translation>
    </message>
</context>
<context>
    <name>Closing</name>
    <message>
        <source>The window stays open: the picture has changes that are not saved.</source>
        <translation>La fenêtre reste ouverte&#xa0;: l’image a des modifications non enregistrées.</translation>
    </message>
    <message>
        <source>Do you want to save changes?</source>
        <translation>Voulez-vous enregistrer les modifications&#xa0;?</translation>
    </message>
    <message>
        <source>Your changes will be lost if you choose don&apos;t save option.</source>
        <translation>Si vous n’enregistrez pas, vos modifications seront perdues.</translation>
    </message>
</context>
<context>
    <name>ColorLook</name>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Golden</source>
        <translation>Doré</translation>
    </message>
    <message>
        <source>Teal, orange</source>
        <translation>Bleu-orange</translation>
    </message>
    <message>
        <source>Faded</source>
        <translation>Délavé</translation>
    </message>
    <message>
        <source>Dusk</source>
        <translation>Crépuscule</translation>
    </message>
    <message>
        <source>Noir</source>
        <translation>Noir</translation>
    </message>
</context>
<context>
    <name>Command</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>Opens a picture file</source>
        <translation>Ouvre un fichier d’image</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Ouvrir un fichier &amp;récent</translation>
    </message>
    <message>
        <source>Re&amp;vert to Opened File</source>
        <translation>Revenir au fichier ou&amp;vert</translation>
    </message>
    <message>
        <source>Brings back the picture as its file has it</source>
        <translation>Rétablit l’image telle que son fichier la contient</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Saves the result to the picture&apos;s file</source>
        <translation>Enregistre le résultat dans le fichier de l’image</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>Saves the result under another name or in another format</source>
        <translation>Enregistre le résultat sous un autre nom ou dans un autre format</translation>
    </message>
    <message>
        <source>Image &amp;Information ...</source>
        <translation>&amp;Informations sur l’image…</translation>
    </message>
    <message>
        <source>Shows what the picture&apos;s file says about itself</source>
        <translation>Montre ce que le fichier dit de lui-même</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Quitte le programme</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Takes the last change back</source>
        <translation>Annule la dernière modification</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Makes the change again</source>
        <translation>Refait la modification</translation>
    </message>
    <message>
        <source>Undo &amp;History</source>
        <translation>Histori&amp;que</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Puts the result on the clipboard</source>
        <translation>Place le résultat dans le presse-papiers</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>Replaces the picture with the one on the clipboard</source>
        <translation>Remplace l’image par celle du presse-papiers</translation>
    </message>
    <message>
        <source>Reset &amp;All Inputs</source>
        <translation>Réinitialiser &amp;tous les réglages</translation>
    </message>
    <message>
        <source>Gives the filter the values that it has when it is chosen</source>
        <translation>Redonne au filtre ses valeurs de départ</translation>
    </message>
    <message>
        <source>Rando&amp;mize Inputs</source>
        <translation>Réglages au &amp;hasard</translation>
    </message>
    <message>
        <source>Tries other values, all by chance</source>
        <translation>Essaie d’autres valeurs, toutes au hasard</translation>
    </message>
    <message>
        <source>&amp;Find Filter</source>
        <translation>Chercher un &amp;filtre</translation>
    </message>
    <message>
        <source>Goes to the search field of the catalogue</source>
        <translation>Va au champ de recherche du catalogue</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>&amp;Image</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Appliquer</translation>
    </message>
    <message>
        <source>Makes the result the picture</source>
        <translation>Fait du résultat l’image</translation>
    </message>
    <message>
        <source>&amp;Clear Effect</source>
        <translation>&amp;Effacer l’effet</translation>
    </message>
    <message>
        <source>Drops the current filter or effect</source>
        <translation>Abandonne le filtre ou l’effet actuel</translation>
    </message>
    <message>
        <source>Rotate &amp;Left</source>
        <translation>Rotation à &amp;gauche</translation>
    </message>
    <message>
        <source>Turns the picture counter-clockwise</source>
        <translation>Tourne l’image dans le sens inverse des aiguilles d’une montre</translation>
    </message>
    <message>
        <source>Rotate &amp;Right</source>
        <translation>Rotation à &amp;droite</translation>
    </message>
    <message>
        <source>Turns the picture clockwise</source>
        <translation>Tourne l’image dans le sens des aiguilles d’une montre</translation>
    </message>
    <message>
        <source>Flip &amp;Horizontal</source>
        <translation>Retourner &amp;horizontalement</translation>
    </message>
    <message>
        <source>Exchanges left and right</source>
        <translation>Échange la gauche et la droite</translation>
    </message>
    <message>
        <source>Flip &amp;Vertical</source>
        <translation>Retourner &amp;verticalement</translation>
    </message>
    <message>
        <source>Exchanges top and bottom</source>
        <translation>Échange le haut et le bas</translation>
    </message>
    <message>
        <source>Resize &amp;Image ...</source>
        <translation>Redimensionner l’&amp;image…</translation>
    </message>
    <message>
        <source>Changes the size of the picture</source>
        <translation>Change la taille de l’image</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>&amp;Mode</translation>
    </message>
    <message>
        <source>&amp;Standard</source>
        <translation>&amp;Standard</translation>
    </message>
    <message>
        <source>Filters from the catalogue</source>
        <translation>Filtres du catalogue</translation>
    </message>
    <message>
        <source>&amp;3D</source>
        <translation>&amp;3D</translation>
    </message>
    <message>
        <source>Effects in space</source>
        <translation>Effets dans l’espace</translation>
    </message>
    <message>
        <source>&amp;Custom</source>
        <translation>&amp;Créations</translation>
    </message>
    <message>
        <source>Generated effects</source>
        <translation>Effets générés</translation>
    </message>
    <message>
        <source>F&amp;avourites</source>
        <translation>Fa&amp;voris</translation>
    </message>
    <message>
        <source>&amp;Add to the Favourites</source>
        <translation>A&amp;jouter aux favoris</translation>
    </message>
    <message>
        <source>Remembers the current effect with its settings</source>
        <translation>Retient l’effet actuel avec ses réglages</translation>
    </message>
    <message>
        <source>&amp;Remove from the Favourites</source>
        <translation>&amp;Retirer des favoris</translation>
    </message>
    <message>
        <source>Forgets the favourite that is switched on</source>
        <translation>Oublie le favori activé</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Affi&amp;chage</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Zoom &amp;avant</translation>
    </message>
    <message>
        <source>Shows the picture larger</source>
        <translation>Affiche l’image en plus grand</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Zoom a&amp;rrière</translation>
    </message>
    <message>
        <source>Shows the picture smaller</source>
        <translation>Affiche l’image en plus petit</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>&amp;Taille réelle</translation>
    </message>
    <message>
        <source>Shows each pixel of the picture as one point</source>
        <translation>Affiche chaque pixel de l’image comme un point</translation>
    </message>
    <message>
        <source>&amp;Fit in Window</source>
        <translation>Ajuster à la &amp;fenêtre</translation>
    </message>
    <message>
        <source>Shows the whole picture</source>
        <translation>Affiche l’image entière</translation>
    </message>
    <message>
        <source>&amp;Split View</source>
        <translation>Vue &amp;partagée</translation>
    </message>
    <message>
        <source>Shows the picture without the filter beside the result</source>
        <translation>Affiche l’image sans le filtre à côté du résultat</translation>
    </message>
    <message>
        <source>&amp;Histogram</source>
        <translation>&amp;Histogramme</translation>
    </message>
    <message>
        <source>Shows how often each brightness is seen in the result</source>
        <translation>Montre la fréquence de chaque luminosité dans le résultat</translation>
    </message>
    <message>
        <source>Filter &amp;Thumbnails</source>
        <translation>Aperç&amp;us des filtres</translation>
    </message>
    <message>
        <source>Shows in the list what each filter makes of the picture</source>
        <translation>Montre dans la liste ce que chaque filtre fait de l’image</translation>
    </message>
    <message>
        <source>A&amp;ppearance</source>
        <translation>Appare&amp;nce</translation>
    </message>
    <message>
        <source>&amp;As the Desktop</source>
        <translation>Comme le &amp;bureau</translation>
    </message>
    <message>
        <source>Light or dark as the desktop is</source>
        <translation>Clair ou sombre comme le bureau</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Clair</translation>
    </message>
    <message>
        <source>Draws the program light</source>
        <translation>Affiche le programme en clair</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Sombre</translation>
    </message>
    <message>
        <source>Draws the program dark</source>
        <translation>Affiche le programme en sombre</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>Pl&amp;ein écran</translation>
    </message>
    <message>
        <source>Gives the window the whole screen</source>
        <translation>Donne tout l’écran à la fenêtre</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Lumivex &amp;Help</source>
        <translation>&amp;Aide de Lumivex</translation>
    </message>
    <message>
        <source>Opens the help</source>
        <translation>Ouvre l’aide</translation>
    </message>
    <message>
        <source>&amp;About Lumivex</source>
        <translation>À &amp;propos de Lumivex</translation>
    </message>
    <message>
        <source>Says which version this is</source>
        <translation>Indique la version du programme</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>E&amp;xporter…</translation>
    </message>
    <message>
        <source>Writes the result into a file of any format, under any name</source>
        <translation>Écrit le résultat dans un fichier de n’importe quel format, sous n’importe quel nom</translation>
    </message>
    <message>
        <source>Cro&amp;p…</source>
        <translation>Recad&amp;rer…</translation>
    </message>
    <message>
        <source>Keeps a part of the picture</source>
        <translation>Garde une partie de l’image</translation>
    </message>
    <message>
        <source>&amp;Straighten…</source>
        <translation>Redre&amp;sser…</translation>
    </message>
    <message>
        <source>Turns the picture until its horizon is level</source>
        <translation>Tourne l’image jusqu’à ce que son horizon soit droit</translation>
    </message>
    <message>
        <source>&amp;Compare with Opened File</source>
        <translation>&amp;Comparer avec le fichier ouvert</translation>
    </message>
    <message>
        <source>Before and after show the file as it was opened, not the picture without the filter</source>
        <translation>Avant et après montrent le fichier tel qu’il a été ouvert, non l’image sans le filtre</translation>
    </message>
    <message>
        <source>F&amp;it to Picture</source>
        <translation>Adapter à l’&amp;image</translation>
    </message>
    <message>
        <source>Gives the filter values that suit the size of the picture</source>
        <translation>Donne au filtre des valeurs adaptées à la taille de l’image</translation>
    </message>
    <message>
        <source>&amp;Start Filters Fitted to the Picture</source>
        <translation>Commencer par &amp;des valeurs adaptées</translation>
    </message>
    <message>
        <source>Filters start with values that suit the size of the picture</source>
        <translation>Les filtres commencent par des valeurs adaptées à la taille de l’image</translation>
    </message>
    <message>
        <source>Filters in Colu&amp;mns</source>
        <translation>Filtres en co&amp;lonnes</translation>
    </message>
    <message>
        <source>Shows the filters as larger pictures beside each other</source>
        <translation>Montre les filtres en images plus grandes, côte à côte</translation>
    </message>
    <message>
        <source>&amp;Looks…</source>
        <translation>Ren&amp;dus…</translation>
    </message>
    <message>
        <source>Shows the looks that come with the program</source>
        <translation>Montre les rendus fournis avec le programme</translation>
    </message>
    <message>
        <source>&amp;New Window</source>
        <translation>&amp;Nouvelle fenêtre</translation>
    </message>
    <message>
        <source>Opens another window, with a picture of its own</source>
        <translation>Ouvre une autre fenêtre, avec sa propre image</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>I&amp;mprimer…</translation>
    </message>
    <message>
        <source>Puts the result on paper</source>
        <translation>Met le résultat sur papier</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Closes the window</source>
        <translation>Ferme la fenêtre</translation>
    </message>
    <message>
        <source>Pr&amp;eferences…</source>
        <translation>&amp;Préférences…</translation>
    </message>
    <message>
        <source>How the program looks, and what it remembers</source>
        <translation>L’aspect du programme, et ce qu’il retient</translation>
    </message>
    <message>
        <source>Open as Second Pict&amp;ure…</source>
        <translation>Ouvrir comme seconde ima&amp;ge…</translation>
    </message>
    <message>
        <source>Opens a picture file that is blended with the picture</source>
        <translation>Ouvre un fichier image qui se mêle à l’image</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Edits a picture with live filters.</source>
        <translation>Retouche une image avec des filtres en direct.</translation>
    </message>
    <message>
        <source>Open a window of its own, whatever else is open.</source>
        <translation>Ouvrir une fenêtre à part, quoi qu’il y ait d’ouvert.</translation>
    </message>
    <message>
        <source>Picture files to open: the first in a window that is open already, if it can be.</source>
        <translation>Fichiers d’image à ouvrir&#xa0;: le premier, si possible, dans une fenêtre déjà ouverte.</translation>
    </message>
</context>
<context>
    <name>Controller</name>
    <message>
        <source>Changes that were not saved have been replaced.</source>
        <translation>Des modifications non enregistrées ont été remplacées.</translation>
    </message>
</context>
<context>
    <name>CropCanvas</name>
    <message>
        <source>What is kept of the picture</source>
        <translation>Ce qui reste de l’image</translation>
    </message>
    <message>
        <source>Arrow keys move the frame, with Ctrl its upper right corner, with Shift by ten pixels.</source>
        <translation>Les flèches déplacent le cadre, avec Ctrl son coin supérieur droit, avec Maj de dix pixels.</translation>
    </message>
    <message>
        <source>Drag the frame, its corners or its edges</source>
        <translation>Faites glisser le cadre, ses coins ou ses bords</translation>
    </message>
</context>
<context>
    <name>CropPanel</name>
    <message>
        <source>Crop</source>
        <translation>Recadrer</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Keeps what lies in the frame (Return)</source>
        <translation>Garde ce qui est dans le cadre (Entrée)</translation>
    </message>
    <message>
        <source>&amp;Whole Picture</source>
        <translation>&amp;Toute l’image</translation>
    </message>
    <message>
        <source>Makes the frame as large as it can be</source>
        <translation>Rend le cadre aussi grand que possible</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Libre</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Carré</translation>
    </message>
    <message>
        <source>3 : 2</source>
        <translation>3 : 2</translation>
    </message>
    <message>
        <source>4 : 3</source>
        <translation>4 : 3</translation>
    </message>
    <message>
        <source>16 : 9</source>
        <translation>16 : 9</translation>
    </message>
    <message>
        <source>Golden Ratio</source>
        <translation>Nombre d’or</translation>
    </message>
    <message>
        <source>As the Picture</source>
        <translation>Comme l’image</translation>
    </message>
    <message>
        <source>Proportions</source>
        <translation>Proportions</translation>
    </message>
    <message>
        <source>Proportions that the frame keeps</source>
        <translation>Proportions que garde le cadre</translation>
    </message>
    <message>
        <source>The frame is higher than wide</source>
        <translation>Le cadre est plus haut que large</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Width of the frame in pixels</source>
        <translation>Largeur du cadre en pixels</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Height of the frame in pixels</source>
        <translation>Hauteur du cadre en pixels</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
</context>
<context>
    <name>Cropping</name>
    <message>
        <source>Cropping the picture…</source>
        <translation>Recadrage de l’image…</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recadrer</translation>
    </message>
    <message>
        <source>Straightening the picture…</source>
        <translation>Redressement de l’image…</translation>
    </message>
    <message>
        <source>Straighten</source>
        <translation>Redresser</translation>
    </message>
    <message>
        <source>There was not enough memory to crop the picture</source>
        <translation>Il n’y avait pas assez de mémoire pour recadrer l’image</translation>
    </message>
</context>
<context>
    <name>CubeEditor</name>
    <message>
        <source>This is no table of colors: its size is missing.</source>
        <translation>Ce n’est pas une table de couleurs : sa taille manque.</translation>
    </message>
    <message>
        <source>The file has two sizes.</source>
        <translation>Le fichier a deux tailles.</translation>
    </message>
    <message>
        <source>The size is not possible.</source>
        <translation>La taille n’est pas possible.</translation>
    </message>
    <message>
        <source>The domain is not possible.</source>
        <translation>Le domaine n’est pas possible.</translation>
    </message>
    <message>
        <source>The title is not in quotation marks.</source>
        <translation>Le titre n’est pas entre guillemets.</translation>
    </message>
    <message>
        <source>There is a word that means nothing here.</source>
        <translation>Il s’y trouve un mot qui ne signifie rien ici.</translation>
    </message>
    <message>
        <source>There are not three numbers.</source>
        <translation>Il ne s’y trouve pas trois nombres.</translation>
    </message>
    <message>
        <source>There is a word among the colors.</source>
        <translation>Un mot se trouve parmi les couleurs.</translation>
    </message>
    <message>
        <source>Colors are missing at the end.</source>
        <translation>Des couleurs manquent à la fin.</translation>
    </message>
    <message>
        <source>There are more colors than the size says.</source>
        <translation>Il y a plus de couleurs que la taille ne le dit.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1 : %2</translation>
    </message>
    <message>
        <source>Load .cube File…</source>
        <translation>Charger un fichier .cube…</translation>
    </message>
    <message>
        <source>Opens a table of colors, as other programs write it</source>
        <translation>Ouvre une table de couleurs, comme d’autres programmes en écrivent</translation>
    </message>
    <message>
        <source>%1 × %1 × %1 colors</source>
        <translation>%1 × %1 × %1 couleurs</translation>
    </message>
    <message>
        <source>Load a Table of Colors</source>
        <translation>Charger une table de couleurs</translation>
    </message>
    <message>
        <source>Tables of colors (*.cube *.CUBE)</source>
        <translation>Tables de couleurs (*.cube *.CUBE)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be opened.</source>
        <translation>« %1 » ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>“%1” is too large for a table of colors.</source>
        <translation>« %1 » est trop grand pour une table de couleurs.</translation>
    </message>
    <message>
        <source>%1: %2 × %2 × %2 colors</source>
        <comment>title of a table</comment>
        <translation>%1 : %2 × %2 × %2 couleurs</translation>
    </message>
    <message>
        <source>“%1” is damaged.</source>
        <translation>« %1 » est endommagé.</translation>
    </message>
</context>
<context>
    <name>CurveCanvas</name>
    <message>
        <source>Point %1</source>
        <translation>Point %1</translation>
    </message>
    <message>
        <source>%1 %, becomes %2 %</source>
        <comment>a brightness and what a curve makes of it</comment>
        <translation>%1 %, devient %2 %</translation>
    </message>
</context>
<context>
    <name>CurveEditor</name>
    <message>
        <source>Curve</source>
        <translation>Courbe</translation>
    </message>
    <message>
        <source>Drag the points, or go to them by Tab and move them by the arrow keys.
A double click or Delete brings a point back.</source>
        <translation>Déplacez les points, ou passez de l’un à l’autre par Tab et déplacez-les par les flèches.
Un double-clic ou Suppr ramène un point.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Brings all points back</source>
        <translation>Ramène tous les points</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>The curves of all colors are edited</source>
        <translation>Les courbes de toutes les couleurs sont modifiées</translation>
    </message>
    <message>
        <source>The curve of this color is edited</source>
        <translation>La courbe de cette couleur est modifiée</translation>
    </message>
    <message>
        <source>%1 % becomes %2 %</source>
        <comment>a brightness and what a curve makes of it</comment>
        <translation>%1 % devient %2 %</translation>
    </message>
</context>
<context>
    <name>CustomMode</name>
    <message>
        <source>Drag on the picture to move the effect. The arrow keys move it as well.</source>
        <translation>Faites glisser sur l’image pour déplacer l’effet. Les touches fléchées le déplacent aussi.</translation>
    </message>
    <message>
        <source>Choose an effect from the list to draw it over the picture or over a color.</source>
        <translation>Choisissez un effet dans la liste pour le dessiner sur l’image ou sur une couleur.</translation>
    </message>
    <message>
        <source>Applying the effect…</source>
        <translation>Application de l’effet…</translation>
    </message>
    <message>
        <source>Drawing the favourite…</source>
        <translation>Dessin du favori…</translation>
    </message>
    <message>
        <source>Choose Favourite</source>
        <translation>Choisir un favori</translation>
    </message>
    <message>
        <source>There is nothing to set here.</source>
        <translation>Il n’y a rien à régler ici.</translation>
    </message>
</context>
<context>
    <name>DataSource</name>
    <message>
        <source>Geometry</source>
        <translation>Géométrie</translation>
    </message>
    <message>
        <source>Distortion</source>
        <translation>Distorsion</translation>
    </message>
    <message>
        <source>Halftone</source>
        <translation>Demi-teintes</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Netteté</translation>
    </message>
    <message>
        <source>Stylize</source>
        <translation>Esthétiques</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Dégradés</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>Mosaïque</translation>
    </message>
    <message>
        <source>Generator</source>
        <translation>Générateurs</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Fusion</translation>
    </message>
</context>
<context>
    <name>DocPageControl</name>
    <message>
        <source>Previous favourites</source>
        <translation>Favoris précédents</translation>
    </message>
    <message>
        <source>Next favourites</source>
        <translation>Favoris suivants</translation>
    </message>
</context>
<context>
    <name>DraggingOut</name>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Writing the picture…</source>
        <translation>Écriture de l’image…</translation>
    </message>
</context>
<context>
    <name>DropImageView</name>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Drop a picture file here, or drag this one elsewhere</source>
        <translation>Déposez un fichier d’image ici, ou faites glisser celle-ci ailleurs</translation>
    </message>
</context>
<context>
    <name>EditorFold</name>
    <message>
        <source>Closes the editor</source>
        <translation>Ferme l’éditeur</translation>
    </message>
    <message>
        <source>Opens an editor for these values</source>
        <translation>Ouvre un éditeur pour ces valeurs</translation>
    </message>
</context>
<context>
    <name>EditorTable</name>
    <message>
        <source>Edit as a grid</source>
        <translation>Modifier sur une grille</translation>
    </message>
    <message>
        <source>Edit as a curve</source>
        <translation>Modifier sur une courbe</translation>
    </message>
    <message>
        <source>Edit as curves</source>
        <translation>Modifier sur des courbes</translation>
    </message>
    <message>
        <source>Looks and .cube files</source>
        <translation>Looks et fichiers .cube</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Balance des blancs</translation>
    </message>
</context>
<context>
    <name>EffectPanel</name>
    <message>
        <source>Flare opacity:</source>
        <translation>Opacité&#xa0;:</translation>
    </message>
    <message>
        <source>Spikes count:</source>
        <translation>Rayons&#xa0;:</translation>
    </message>
    <message>
        <source>How many spikes the flare has</source>
        <translation>Le nombre de rayons de l’éclat</translation>
    </message>
    <message>
        <source>Background Color:</source>
        <translation>Couleur du fond&#xa0;:</translation>
    </message>
    <message>
        <source>The color laid over the background</source>
        <translation>La couleur posée sur le fond</translation>
    </message>
    <message>
        <source>Background Image:</source>
        <translation>Image de fond&#xa0;:</translation>
    </message>
    <message>
        <source>Lay the effect over the picture</source>
        <translation>Poser l’effet sur l’image</translation>
    </message>
    <message>
        <source>How much of what lies beneath the effect is covered, in percent</source>
        <translation>La part de ce qui se trouve sous l’effet qui est couverte, en pour cent</translation>
    </message>
    <message>
        <source>Generate</source>
        <translation>Générer</translation>
    </message>
    <message>
        <source>Draw the effect anew with other random numbers</source>
        <translation>Redessiner l’effet avec d’autres nombres aléatoires</translation>
    </message>
    <message>
        <source>Objects opacity:</source>
        <translation>Opacité&#xa0;:</translation>
    </message>
    <message>
        <source>Lines level:</source>
        <translation>Niveau&#xa0;:</translation>
    </message>
    <message>
        <source>How often the curve is folded</source>
        <translation>Combien de fois la courbe est repliée</translation>
    </message>
    <message>
        <source>Line width:</source>
        <translation>Épaisseur&#xa0;:</translation>
    </message>
    <message>
        <source>How thick the curve is</source>
        <translation>L’épaisseur de la courbe</translation>
    </message>
    <message>
        <source>Lines count:</source>
        <translation>Lignes&#xa0;:</translation>
    </message>
    <message>
        <source>How many lines are drawn</source>
        <translation>Le nombre de lignes dessinées</translation>
    </message>
    <message>
        <source>How thick the lines are</source>
        <translation>L’épaisseur des lignes</translation>
    </message>
    <message>
        <source>Pattern opacity:</source>
        <translation>Opacité&#xa0;:</translation>
    </message>
    <message>
        <source>Objects count:</source>
        <translation>Objets&#xa0;:</translation>
    </message>
    <message>
        <source>How many ellipses the pattern has</source>
        <translation>Le nombre d’ellipses du motif</translation>
    </message>
    <message>
        <source>Pattern Color:</source>
        <translation>Couleur du motif&#xa0;:</translation>
    </message>
    <message>
        <source>The color of the pattern</source>
        <translation>La couleur du motif</translation>
    </message>
    <message>
        <source>How thick the ellipses&apos; lines are</source>
        <translation>L’épaisseur du trait des ellipses</translation>
    </message>
    <message>
        <source>Proportion:</source>
        <translation>Proportion&#xa0;:</translation>
    </message>
    <message>
        <source>The width of the ellipses in parts of their height</source>
        <translation>La largeur des ellipses par rapport à leur hauteur</translation>
    </message>
    <message>
        <source>Plasma opacity:</source>
        <translation>Opacité&#xa0;:</translation>
    </message>
    <message>
        <source>Object type:</source>
        <translation>Type d’objet&#xa0;:</translation>
    </message>
    <message>
        <source>What is drawn</source>
        <translation>Ce qui est dessiné</translation>
    </message>
    <message>
        <source>Rects</source>
        <translation>Rectangles</translation>
    </message>
    <message>
        <source>Circles</source>
        <translation>Cercles</translation>
    </message>
    <message>
        <source>Bezier Paths</source>
        <translation>Courbes de Bézier</translation>
    </message>
    <message>
        <source>Triangles</source>
        <translation>Triangles</translation>
    </message>
    <message>
        <source>Flowers</source>
        <translation>Fleurs</translation>
    </message>
    <message>
        <source>Balls</source>
        <translation>Boules</translation>
    </message>
    <message>
        <source>Lights</source>
        <translation>Lumières</translation>
    </message>
    <message>
        <source>Spin Squares</source>
        <translation>Carrés tournants</translation>
    </message>
    <message>
        <source>How many objects are drawn</source>
        <translation>Le nombre d’objets dessinés</translation>
    </message>
    <message>
        <source>Move Anchor</source>
        <translation>Déplacer le point d’ancrage</translation>
    </message>
    <message>
        <source>Change to %1</source>
        <comment>%1 is a parameter of an effect</comment>
        <translation>Changer&#xa0;: %1</translation>
    </message>
    <message>
        <source>First Curve:</source>
        <translation>Première courbe&#xa0;:</translation>
    </message>
    <message>
        <source>How far the lower edge bends</source>
        <translation>La courbure du bord inférieur</translation>
    </message>
    <message>
        <source>Second Curve:</source>
        <translation>Seconde courbe&#xa0;:</translation>
    </message>
    <message>
        <source>How far the upper edge bends</source>
        <translation>La courbure du bord supérieur</translation>
    </message>
    <message>
        <source>Filled Poly:</source>
        <translation>Surface pleine&#xa0;:</translation>
    </message>
    <message>
        <source>A closed surface, or else a net of lines</source>
        <translation>Une surface fermée, sinon un réseau de lignes</translation>
    </message>
    <message>
        <source>Colored Light:</source>
        <translation>Lumière colorée&#xa0;:</translation>
    </message>
    <message>
        <source>Tints the picture with the color</source>
        <translation>Teinte l’image avec la couleur</translation>
    </message>
    <message>
        <source>Light color</source>
        <translation>Couleur de la lumière</translation>
    </message>
    <message>
        <source>The color of the light</source>
        <translation>La couleur de la lumière</translation>
    </message>
    <message>
        <source>Light Color</source>
        <translation>Couleur de la lumière</translation>
    </message>
    <message>
        <source>The body that wears the picture</source>
        <translation>Le solide qui porte l’image</translation>
    </message>
    <message>
        <source>Sphere</source>
        <translation>Sphère</translation>
    </message>
    <message>
        <source>Cylinder</source>
        <translation>Cylindre</translation>
    </message>
    <message>
        <source>Torus</source>
        <translation>Tore</translation>
    </message>
    <message>
        <source>Cube</source>
        <translation>Cube</translation>
    </message>
    <message>
        <source>Cone</source>
        <translation>Cône</translation>
    </message>
    <message>
        <source>Pyramid</source>
        <translation>Pyramide</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>Object Type</source>
        <translation>Type d’objet</translation>
    </message>
    <message>
        <source>What is seen around it; transparent when the color is</source>
        <translation>Ce qui se voit autour ; transparent si la couleur l’est</translation>
    </message>
    <message>
        <source>Apply in size of:</source>
        <translation>Appliquer à la taille de :</translation>
    </message>
    <message>
        <source>How large the picture is that Apply makes</source>
        <translation>La taille de l’image que fait Appliquer</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
</context>
<context>
    <name>ExportPanel</name>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Rapide</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Petite</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 octets</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>rounded size, exact size</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>%1 dpi</source>
        <translation>%1 ppp</translation>
    </message>
    <message>
        <source>Working out the size…</source>
        <translation>Calcul de la taille…</translation>
    </message>
    <message>
        <source>%1 bits</source>
        <translation>%1 bits</translation>
    </message>
    <message>
        <source>%1 × %2 px · %3</source>
        <comment>width, height, size of the file</comment>
        <translation>%1 × %2 px · %3</translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>“%1” is a folder.</source>
        <translation>« %1 » est un dossier.</translation>
    </message>
    <message>
        <source>Replace “%1”?</source>
        <translation>Remplacer « %1 » ?</translation>
    </message>
    <message>
        <source>There is a file of that name in this folder already. What is in it will be lost.</source>
        <translation>Ce dossier contient déjà un fichier de ce nom. Son contenu sera perdu.</translation>
    </message>
    <message>
        <source>Size of the file</source>
        <translation>Taille du fichier</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Exports nothing</source>
        <translation>N’exporte rien</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exporter</translation>
    </message>
    <message>
        <source>Writes the file</source>
        <translation>Écrit le fichier</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>The file&apos;s name, written as it is typed</source>
        <translation>Le nom du fichier, écrit tel qu’il est tapé</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>The folder in which the file is written</source>
        <translation>Le dossier dans lequel le fichier est écrit</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Choisir…</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>Chooses the folder</source>
        <translation>Choisit le dossier</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom :</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Dossier :</translation>
    </message>
    <message>
        <source>F&amp;ormat:</source>
        <translation>&amp;Format :</translation>
    </message>
    <message>
        <source>What kind of file is written</source>
        <translation>Quel genre de fichier est écrit</translation>
    </message>
    <message>
        <source>&amp;Lossless</source>
        <translation>&amp;Sans perte</translation>
    </message>
    <message>
        <source>Keeps every pixel exactly; the file becomes larger</source>
        <translation>Garde chaque pixel exactement ; le fichier devient plus gros</translation>
    </message>
    <message>
        <source>C&amp;hroma:</source>
        <translation>C&amp;hrominance :</translation>
    </message>
    <message>
        <source>How sharp colors are stored</source>
        <translation>Avec quelle finesse les couleurs sont stockées</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Full (4:4:4)</source>
        <translation>Complète (4:4:4)</translation>
    </message>
    <message>
        <source>&amp;Progressive</source>
        <translation>&amp;Progressif</translation>
    </message>
    <message>
        <source>Browsers show the whole picture early, and sharpen it while it loads</source>
        <translation>Les navigateurs montrent tôt l’image entière et l’affinent pendant le chargement</translation>
    </message>
    <message>
        <source>Co&amp;mpression:</source>
        <translation>Co&amp;mpression :</translation>
    </message>
    <message>
        <source>How the pixels are packed; none is lost</source>
        <translation>Comment les pixels sont compressés ; aucun n’est perdu</translation>
    </message>
    <message>
        <source>&amp;Depth:</source>
        <translation>P&amp;rofondeur :</translation>
    </message>
    <message>
        <source>Bits of each color component</source>
        <translation>Bits par composante de couleur</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>Réso&amp;lution :</translation>
    </message>
    <message>
        <source>Dots per inch, stored for printing; the pixels stay the same</source>
        <translation>Points par pouce, stockés pour l’impression ; les pixels restent les mêmes</translation>
    </message>
    <message>
        <source>Me&amp;tadata:</source>
        <translation>Mé&amp;tadonnées :</translation>
    </message>
    <message>
        <source>What the opened file says about camera, date, author and place</source>
        <translation>Ce que le fichier ouvert dit de l’appareil, de la date, de l’auteur et du lieu</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>All but the place</source>
        <translation>Toutes sauf le lieu</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Less makes a smaller file</source>
        <translation>Moins donne un fichier plus petit</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>&amp;Qualité :</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Width of the exported picture in pixels</source>
        <translation>Largeur de l’image exportée en pixels</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Height of the exported picture in pixels</source>
        <translation>Hauteur de l’image exportée en pixels</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>T&amp;aille :</translation>
    </message>
    <message>
        <source>&amp;Keep proportions</source>
        <translation>&amp;Garder les proportions</translation>
    </message>
    <message>
        <source>The other side follows the one that is typed</source>
        <translation>L’autre côté suit celui qui est tapé</translation>
    </message>
</context>
<context>
    <name>Exporting</name>
    <message>
        <source>Drawing the picture…</source>
        <translation>Dessin de l’image…</translation>
    </message>
    <message>
        <source>Exporting “%1”…</source>
        <translation>Exportation de « %1 »…</translation>
    </message>
    <message>
        <source>Exported “%1”: %2</source>
        <comment>file name, its size</comment>
        <translation>« %1 » exporté : %2</translation>
    </message>
</context>
<context>
    <name>FavouritesStore</name>
    <message>
        <source>The favourites can&apos;t be written to the disk.</source>
        <translation>Les favoris ne peuvent pas être enregistrés.</translation>
    </message>
    <message>
        <source>A list of favourites is damaged. It is kept as %1.</source>
        <translation>Une liste de favoris est endommagée. Elle est gardée sous %1.</translation>
    </message>
</context>
<context>
    <name>FilledMenus</name>
    <message>
        <source>No Pictures Yet</source>
        <translation>Aucune image pour l’instant</translation>
    </message>
    <message>
        <source>&amp;Clear Menu</source>
        <translation>&amp;Vider le menu</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Modification</translation>
    </message>
    <message>
        <source>Before All Changes</source>
        <translation>Avant toute modification</translation>
    </message>
    <message>
        <source>%1 (%2 times)</source>
        <translation>%1 (%2 fois)</translation>
    </message>
    <message>
        <source>Makes the changes up to this one again</source>
        <translation>Refait les modifications jusqu’à celle-ci</translation>
    </message>
    <message>
        <source>Takes back what came after</source>
        <translation>Annule ce qui a suivi</translation>
    </message>
    <message>
        <source>The present state</source>
        <translation>L’état actuel</translation>
    </message>
</context>
<context>
    <name>Filter</name>
    <message>
        <source>3 by 3 Convolution</source>
        <translation>Convolution 3 × 3</translation>
    </message>
    <message>
        <source>3 by 3 RGB Convolution</source>
        <translation>Convolution RVB 3 × 3</translation>
    </message>
    <message>
        <source>5 by 5 Convolution</source>
        <translation>Convolution 5 × 5</translation>
    </message>
    <message>
        <source>5 by 5 RGB Convolution</source>
        <translation>Convolution RVB 5 × 5</translation>
    </message>
    <message>
        <source>7 by 7 Convolution</source>
        <translation>Convolution 7 × 7</translation>
    </message>
    <message>
        <source>7 by 7 RGB Convolution</source>
        <translation>Convolution RVB 7 × 7</translation>
    </message>
    <message>
        <source>Accordion Fold Transition</source>
        <translation>Transition en accordéon</translation>
    </message>
    <message>
        <source>Addition</source>
        <translation>Addition</translation>
    </message>
    <message>
        <source>Affine Clamp</source>
        <translation>Affine, bords prolongés</translation>
    </message>
    <message>
        <source>Affine Tile</source>
        <translation>Mosaïque affine</translation>
    </message>
    <message>
        <source>Affine Transform</source>
        <translation>Transformation affine</translation>
    </message>
    <message>
        <source>Area Alpha Weighted Histogram</source>
        <translation>Histogramme de zone pondéré par l’alpha</translation>
    </message>
    <message>
        <source>Area Average</source>
        <translation>Moyenne de la zone</translation>
    </message>
    <message>
        <source>Area Bounds Red</source>
        <translation>Limites de la zone rouge</translation>
    </message>
    <message>
        <source>Area Histogram</source>
        <translation>Histogramme de zone</translation>
    </message>
    <message>
        <source>Area Logarithmic Histogram</source>
        <translation>Histogramme logarithmique de zone</translation>
    </message>
    <message>
        <source>Area Maximum</source>
        <translation>Maximum de la zone</translation>
    </message>
    <message>
        <source>Area Maximum Alpha</source>
        <translation>Alpha maximal de la zone</translation>
    </message>
    <message>
        <source>Area Min and Max</source>
        <translation>Minimum et maximum de la zone</translation>
    </message>
    <message>
        <source>Area Min and Max Red</source>
        <translation>Rouge minimal et maximal de la zone</translation>
    </message>
    <message>
        <source>Area Minimum</source>
        <translation>Minimum de la zone</translation>
    </message>
    <message>
        <source>Area Minimum Alpha</source>
        <translation>Alpha minimal de la zone</translation>
    </message>
    <message>
        <source>Attributed Text Image Generator</source>
        <translation>Texte mis en forme</translation>
    </message>
    <message>
        <source>Aztec Code Generator</source>
        <translation>Code Aztec</translation>
    </message>
    <message>
        <source>Bars Swipe Transition</source>
        <translation>Transition par bandes</translation>
    </message>
    <message>
        <source>Bicubic Scale Transform</source>
        <translation>Échelle bicubique</translation>
    </message>
    <message>
        <source>Blend With Alpha Mask</source>
        <translation>Fusion par masque alpha</translation>
    </message>
    <message>
        <source>Blend With Blue Mask</source>
        <translation>Fusion par masque bleu</translation>
    </message>
    <message>
        <source>Blend With Mask</source>
        <translation>Fusion par masque</translation>
    </message>
    <message>
        <source>Blend With Red Mask</source>
        <translation>Fusion par masque rouge</translation>
    </message>
    <message>
        <source>Bloom</source>
        <translation>Halo lumineux</translation>
    </message>
    <message>
        <source>Blurred Rectangle Generator</source>
        <translation>Rectangle flou</translation>
    </message>
    <message>
        <source>Bokeh Blur</source>
        <translation>Flou bokeh</translation>
    </message>
    <message>
        <source>Box Blur</source>
        <translation>Flou carré</translation>
    </message>
    <message>
        <source>Bump Distortion</source>
        <translation>Bosse</translation>
    </message>
    <message>
        <source>Bump Distortion Linear</source>
        <translation>Bosse linéaire</translation>
    </message>
    <message>
        <source>CMYK Halftone</source>
        <translation>Trame CMJN</translation>
    </message>
    <message>
        <source>Canny Edge Detector</source>
        <translation>Contours de Canny</translation>
    </message>
    <message>
        <source>Checkerboard</source>
        <translation>Damier</translation>
    </message>
    <message>
        <source>Circle Splash Distortion</source>
        <translation>Éclaboussure circulaire</translation>
    </message>
    <message>
        <source>Circular Screen</source>
        <translation>Trame circulaire</translation>
    </message>
    <message>
        <source>Circular Wrap Distortion</source>
        <translation>Enroulement circulaire</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>Bords prolongés</translation>
    </message>
    <message>
        <source>Code 128 Barcode Generator</source>
        <translation>Code-barres Code 128</translation>
    </message>
    <message>
        <source>Color Absolute Difference</source>
        <translation>Écart de couleur absolu</translation>
    </message>
    <message>
        <source>Color Blend Mode</source>
        <translation>Mode de fusion Couleur</translation>
    </message>
    <message>
        <source>Color Burn Blend Mode</source>
        <translation>Mode de fusion Densité couleur +</translation>
    </message>
    <message>
        <source>Color Clamp</source>
        <translation>Couleurs bornées</translation>
    </message>
    <message>
        <source>Color Controls</source>
        <translation>Réglages de couleur</translation>
    </message>
    <message>
        <source>Color Cross Polynomial</source>
        <translation>Polynôme croisé</translation>
    </message>
    <message>
        <source>Color Cube</source>
        <translation>Cube de couleurs</translation>
    </message>
    <message>
        <source>Color Cube with ColorSpace</source>
        <translation>Cube, espace colorim.</translation>
    </message>
    <message>
        <source>Color Cubes Mixed With Mask</source>
        <translation>Cubes et masque</translation>
    </message>
    <message>
        <source>Color Curves</source>
        <translation>Courbes de couleur</translation>
    </message>
    <message>
        <source>Color Dodge Blend Mode</source>
        <translation>Mode de fusion Densité couleur −</translation>
    </message>
    <message>
        <source>Color Invert</source>
        <translation>Inversion des couleurs</translation>
    </message>
    <message>
        <source>Color Map</source>
        <translation>Carte de couleurs</translation>
    </message>
    <message>
        <source>Color Matrix</source>
        <translation>Matrice de couleurs</translation>
    </message>
    <message>
        <source>Color Monochrome</source>
        <translation>Monochrome</translation>
    </message>
    <message>
        <source>Color Polynomial</source>
        <translation>Polynôme de couleurs</translation>
    </message>
    <message>
        <source>Color Posterize</source>
        <translation>Postérisation</translation>
    </message>
    <message>
        <source>Color Threshold</source>
        <translation>Seuil de couleur</translation>
    </message>
    <message>
        <source>Color Threshold Otsu</source>
        <translation>Seuil de couleur d’Otsu</translation>
    </message>
    <message>
        <source>Column Average</source>
        <translation>Moyenne des colonnes</translation>
    </message>
    <message>
        <source>Combined Keystone Correction</source>
        <translation>Trapèze, deux sens</translation>
    </message>
    <message>
        <source>Comic Effect</source>
        <translation>Bande dessinée</translation>
    </message>
    <message>
        <source>Constant Color</source>
        <translation>Couleur unie</translation>
    </message>
    <message>
        <source>Convert Lab to RGB</source>
        <translation>De Lab en RVB</translation>
    </message>
    <message>
        <source>Convert RGB to Lab</source>
        <translation>De RVB en Lab</translation>
    </message>
    <message>
        <source>Copy Machine</source>
        <translation>Photocopieur</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recadrage</translation>
    </message>
    <message>
        <source>Crystallize</source>
        <translation>Cristallisation</translation>
    </message>
    <message>
        <source>Darken Blend Mode</source>
        <translation>Mode de fusion Obscurcir</translation>
    </message>
    <message>
        <source>Depth To Disparity</source>
        <translation>Profondeur en disparité</translation>
    </message>
    <message>
        <source>Depth of Field</source>
        <translation>Profondeur de champ</translation>
    </message>
    <message>
        <source>Difference Blend Mode</source>
        <translation>Mode de fusion Différence</translation>
    </message>
    <message>
        <source>Disc Blur</source>
        <translation>Flou en disque</translation>
    </message>
    <message>
        <source>Disintegrate With Mask</source>
        <translation>Désintégration par masque</translation>
    </message>
    <message>
        <source>Disparity To Depth</source>
        <translation>Disparité en profondeur</translation>
    </message>
    <message>
        <source>Displacement Distortion</source>
        <translation>Déplacement</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>Fondu</translation>
    </message>
    <message>
        <source>Distance Gradient From Red Mask</source>
        <translation>Distance du masque rouge</translation>
    </message>
    <message>
        <source>Dither</source>
        <translation>Tramage</translation>
    </message>
    <message>
        <source>Divide Blend Mode</source>
        <translation>Mode de fusion Division</translation>
    </message>
    <message>
        <source>Document Enhancer</source>
        <translation>Document amélioré</translation>
    </message>
    <message>
        <source>Dot Screen</source>
        <translation>Trame de points</translation>
    </message>
    <message>
        <source>Droste</source>
        <translation>Effet Droste</translation>
    </message>
    <message>
        <source>Edge Preserve Upsample Filter</source>
        <translation>Agrandir, contours nets</translation>
    </message>
    <message>
        <source>Edge Work</source>
        <translation>Dessin des contours</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Contours</translation>
    </message>
    <message>
        <source>Eightfold Reflected Tile</source>
        <translation>Mosaïque, 8 reflets</translation>
    </message>
    <message>
        <source>Exclusion Blend Mode</source>
        <translation>Mode de fusion Exclusion</translation>
    </message>
    <message>
        <source>Exposure Adjust</source>
        <translation>Exposition</translation>
    </message>
    <message>
        <source>False Color</source>
        <translation>Fausses couleurs</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Flash</translation>
    </message>
    <message>
        <source>Fourfold Reflected Tile</source>
        <translation>Mosaïque, 4 reflets</translation>
    </message>
    <message>
        <source>Fourfold Rotated Tile</source>
        <translation>Mosaïque, 4 rotations</translation>
    </message>
    <message>
        <source>Fourfold Translated Tile</source>
        <translation>Mosaïque, 4 translations</translation>
    </message>
    <message>
        <source>Gabor Gradients</source>
        <translation>Gradients de Gabor</translation>
    </message>
    <message>
        <source>Gamma Adjust</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Gaussian Blur</source>
        <translation>Flou gaussien</translation>
    </message>
    <message>
        <source>Gaussian Gradient</source>
        <translation>Dégradé gaussien</translation>
    </message>
    <message>
        <source>Glass Distortion</source>
        <translation>Verre</translation>
    </message>
    <message>
        <source>Glass Lozenge</source>
        <translation>Pastille de verre</translation>
    </message>
    <message>
        <source>Glide Reflected Tile</source>
        <translation>Mosaïque, reflets glissés</translation>
    </message>
    <message>
        <source>Gloom</source>
        <translation>Pénombre</translation>
    </message>
    <message>
        <source>Guided Filter</source>
        <translation>Filtre guidé</translation>
    </message>
    <message>
        <source>Hard Light Blend Mode</source>
        <translation>Mode de fusion Lumière crue</translation>
    </message>
    <message>
        <source>Hatched Screen</source>
        <translation>Trame hachurée</translation>
    </message>
    <message>
        <source>Height Field From Mask</source>
        <translation>Relief d’un masque</translation>
    </message>
    <message>
        <source>Hexagonal Pixelate</source>
        <translation>Pixels hexagonaux</translation>
    </message>
    <message>
        <source>Highlight and Shadow Adjust</source>
        <translation>Tons clairs et foncés</translation>
    </message>
    <message>
        <source>Histogram Display</source>
        <translation>Affichage de l’histogramme</translation>
    </message>
    <message>
        <source>Hole Distortion</source>
        <translation>Trou</translation>
    </message>
    <message>
        <source>Horizontal 9 Convolution</source>
        <translation>Convolution horiz. 9</translation>
    </message>
    <message>
        <source>Horizontal 9 RGB Convolution</source>
        <translation>Convolution RVB horiz. 9</translation>
    </message>
    <message>
        <source>Horizontal Keystone Correction</source>
        <translation>Trapèze horizontal</translation>
    </message>
    <message>
        <source>Hue Adjust</source>
        <translation>Teinte</translation>
    </message>
    <message>
        <source>Hue Blend Mode</source>
        <translation>Mode de fusion Teinte</translation>
    </message>
    <message>
        <source>Hue/Saturation/Value Gradient</source>
        <translation>Dégradé TSV</translation>
    </message>
    <message>
        <source>KMeans</source>
        <translation>K-moyennes</translation>
    </message>
    <message>
        <source>Kaleidoscope</source>
        <translation>Kaléidoscope</translation>
    </message>
    <message>
        <source>Lab ∆E</source>
        <translation>∆E Lab</translation>
    </message>
    <message>
        <source>Lanczos Scale Transform</source>
        <translation>Échelle de Lanczos</translation>
    </message>
    <message>
        <source>Lenticular Halo</source>
        <translation>Halo lenticulaire</translation>
    </message>
    <message>
        <source>Light Tunnel Distortion</source>
        <translation>Tunnel de lumière</translation>
    </message>
    <message>
        <source>Lighten Blend Mode</source>
        <translation>Mode de fusion Éclaircir</translation>
    </message>
    <message>
        <source>Line Overlay</source>
        <translation>Dessin au trait</translation>
    </message>
    <message>
        <source>Line Screen</source>
        <translation>Trame de lignes</translation>
    </message>
    <message>
        <source>Linear Burn Blend Mode</source>
        <translation>Mode de fusion Densité linéaire +</translation>
    </message>
    <message>
        <source>Linear Dodge Blend Mode</source>
        <translation>Mode de fusion Densité linéaire −</translation>
    </message>
    <message>
        <source>Linear Gradient</source>
        <translation>Dégradé linéaire</translation>
    </message>
    <message>
        <source>Linear Light Blend Mode</source>
        <translation>Mode de fusion Lumière linéaire</translation>
    </message>
    <message>
        <source>Linear to sRGB Tone Curve</source>
        <translation>Courbe linéaire → sRVB</translation>
    </message>
    <message>
        <source>Luminosity Blend Mode</source>
        <translation>Mode de fusion Luminosité</translation>
    </message>
    <message>
        <source>Mask to Alpha</source>
        <translation>Masque en alpha</translation>
    </message>
    <message>
        <source>Masked Variable Blur</source>
        <translation>Flou variable masqué</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Maximum Component</source>
        <translation>Composante maximale</translation>
    </message>
    <message>
        <source>Maximum Scale Transform</source>
        <translation>Échelle par maximum</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Médian</translation>
    </message>
    <message>
        <source>Mesh Generator</source>
        <translation>Maillage</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Minimum Component</source>
        <translation>Composante minimale</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>Mélange</translation>
    </message>
    <message>
        <source>Mod</source>
        <translation>Transition à trous</translation>
    </message>
    <message>
        <source>Morphology Gradient</source>
        <translation>Gradient morphologique</translation>
    </message>
    <message>
        <source>Morphology Maximum</source>
        <translation>Maximum morphologique</translation>
    </message>
    <message>
        <source>Morphology Minimum</source>
        <translation>Minimum morphologique</translation>
    </message>
    <message>
        <source>Morphology Rectangle Maximum</source>
        <translation>Maximum rectangulaire</translation>
    </message>
    <message>
        <source>Morphology Rectangle Minimum</source>
        <translation>Minimum rectangulaire</translation>
    </message>
    <message>
        <source>Motion Blur</source>
        <translation>Flou de mouvement</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Multiplication</translation>
    </message>
    <message>
        <source>Multiply Blend Mode</source>
        <translation>Mode de fusion Produit</translation>
    </message>
    <message>
        <source>Nine Part Stretched</source>
        <translation>Neuf parties étirées</translation>
    </message>
    <message>
        <source>Nine Part Tiled</source>
        <translation>Neuf parties répétées</translation>
    </message>
    <message>
        <source>Noise Reduction</source>
        <translation>Réduction du bruit</translation>
    </message>
    <message>
        <source>Op Tile</source>
        <translation>Mosaïque Op Art</translation>
    </message>
    <message>
        <source>Overlay Blend Mode</source>
        <translation>Mode de fusion Incrustation</translation>
    </message>
    <message>
        <source>PDF417 Barcode Generator</source>
        <translation>Code-barres PDF417</translation>
    </message>
    <message>
        <source>Page Curl</source>
        <translation>Page tournée</translation>
    </message>
    <message>
        <source>Page Curl With Shadow</source>
        <translation>Page tournée avec ombre</translation>
    </message>
    <message>
        <source>Palette Centroid</source>
        <translation>Centroïde de palette</translation>
    </message>
    <message>
        <source>Palettize</source>
        <translation>Réduction à une palette</translation>
    </message>
    <message>
        <source>Parallelogram Tile</source>
        <translation>Parallélogrammes</translation>
    </message>
    <message>
        <source>Perspective Correction</source>
        <translation>Redresser la perspective</translation>
    </message>
    <message>
        <source>Perspective Rotate</source>
        <translation>Rotation en perspective</translation>
    </message>
    <message>
        <source>Perspective Tile</source>
        <translation>Mosaïque en perspective</translation>
    </message>
    <message>
        <source>Perspective Transform</source>
        <translation>Perspective</translation>
    </message>
    <message>
        <source>Perspective Transform with Extent</source>
        <translation>Perspective, étendue</translation>
    </message>
    <message>
        <source>Photo Effect Chrome</source>
        <translation>Photo chrome</translation>
    </message>
    <message>
        <source>Photo Effect Fade</source>
        <translation>Photo délavée</translation>
    </message>
    <message>
        <source>Photo Effect Instant</source>
        <translation>Photo instantanée</translation>
    </message>
    <message>
        <source>Photo Effect Mono</source>
        <translation>Photo mono</translation>
    </message>
    <message>
        <source>Photo Effect Noir</source>
        <translation>Photo film noir</translation>
    </message>
    <message>
        <source>Photo Effect Process</source>
        <translation>Photo développée</translation>
    </message>
    <message>
        <source>Photo Effect Tonal</source>
        <translation>Photo tonale</translation>
    </message>
    <message>
        <source>Photo Effect Transfer</source>
        <translation>Photo transfert</translation>
    </message>
    <message>
        <source>Pin Light Blend Mode</source>
        <translation>Mode de fusion Lumière ponctuelle</translation>
    </message>
    <message>
        <source>Pinch Distortion</source>
        <translation>Pincement</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>Pixelliser</translation>
    </message>
    <message>
        <source>Pointillize</source>
        <translation>Pointillisme</translation>
    </message>
    <message>
        <source>QR Code Generator</source>
        <translation>Code QR</translation>
    </message>
    <message>
        <source>Radial Gradient</source>
        <translation>Dégradé radial</translation>
    </message>
    <message>
        <source>Random Generator</source>
        <translation>Bruit aléatoire</translation>
    </message>
    <message>
        <source>Ripple</source>
        <translation>Ondulation</translation>
    </message>
    <message>
        <source>Rounded Rectangle Generator</source>
        <translation>Rectangle arrondi</translation>
    </message>
    <message>
        <source>Rounded Rectangle Stroke Generator</source>
        <translation>Cadre arrondi</translation>
    </message>
    <message>
        <source>Row Average</source>
        <translation>Moyenne des lignes</translation>
    </message>
    <message>
        <source>Saliency Map Filter</source>
        <translation>Carte de saillance</translation>
    </message>
    <message>
        <source>Sample Nearest</source>
        <translation>Pixel le plus proche</translation>
    </message>
    <message>
        <source>Saturation Blend Mode</source>
        <translation>Mode de fusion Saturation</translation>
    </message>
    <message>
        <source>Screen Blend Mode</source>
        <translation>Mode de fusion Superposition</translation>
    </message>
    <message>
        <source>Sepia Tone</source>
        <translation>Sépia</translation>
    </message>
    <message>
        <source>Shaded Material</source>
        <translation>Matière ombrée</translation>
    </message>
    <message>
        <source>Sharpen Luminance</source>
        <translation>Netteté de la luminance</translation>
    </message>
    <message>
        <source>Sixfold Reflected Tile</source>
        <translation>Mosaïque, 6 reflets</translation>
    </message>
    <message>
        <source>Sixfold Rotated Tile</source>
        <translation>Mosaïque, 6 rotations</translation>
    </message>
    <message>
        <source>Smooth Linear Gradient</source>
        <translation>Dégradé linéaire doux</translation>
    </message>
    <message>
        <source>Sobel Gradients</source>
        <translation>Gradients de Sobel</translation>
    </message>
    <message>
        <source>Soft Light Blend Mode</source>
        <translation>Mode de fusion Lumière tamisée</translation>
    </message>
    <message>
        <source>Source Atop</source>
        <translation>Source sur le fond</translation>
    </message>
    <message>
        <source>Source In</source>
        <translation>Source à l’intérieur</translation>
    </message>
    <message>
        <source>Source Out</source>
        <translation>Source à l’extérieur</translation>
    </message>
    <message>
        <source>Source Over</source>
        <translation>Source par-dessus</translation>
    </message>
    <message>
        <source>Spot Color</source>
        <translation>Tons directs</translation>
    </message>
    <message>
        <source>Spot Light</source>
        <translation>Projecteur</translation>
    </message>
    <message>
        <source>Star Shine</source>
        <translation>Éclat d’étoile</translation>
    </message>
    <message>
        <source>Straighten</source>
        <translation>Redressement</translation>
    </message>
    <message>
        <source>Stretch Crop</source>
        <translation>Étirer et recadrer</translation>
    </message>
    <message>
        <source>Stripes</source>
        <translation>Rayures</translation>
    </message>
    <message>
        <source>Subtract Blend Mode</source>
        <translation>Mode de fusion Soustraction</translation>
    </message>
    <message>
        <source>Sunbeams</source>
        <translation>Rayons de soleil</translation>
    </message>
    <message>
        <source>Swipe</source>
        <translation>Balayage</translation>
    </message>
    <message>
        <source>Temperature and Tint</source>
        <translation>Température et teinte</translation>
    </message>
    <message>
        <source>Text Image Generator</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Thermal</source>
        <translation>Image thermique</translation>
    </message>
    <message>
        <source>Tone Curve</source>
        <translation>Courbe tonale</translation>
    </message>
    <message>
        <source>Tone Map Headroom</source>
        <translation>Plage tonale</translation>
    </message>
    <message>
        <source>Torus Lens Distortion</source>
        <translation>Lentille torique</translation>
    </message>
    <message>
        <source>Triangle Kaleidoscope</source>
        <translation>Kaléidoscope triangle</translation>
    </message>
    <message>
        <source>Triangle Tile</source>
        <translation>Mosaïque de triangles</translation>
    </message>
    <message>
        <source>Twelvefold Reflected Tile</source>
        <translation>Mosaïque, 12 reflets</translation>
    </message>
    <message>
        <source>Twirl Distortion</source>
        <translation>Tourbillon</translation>
    </message>
    <message>
        <source>Unsharp Mask</source>
        <translation>Masque flou</translation>
    </message>
    <message>
        <source>Vertical 9 Convolution</source>
        <translation>Convolution vert. 9</translation>
    </message>
    <message>
        <source>Vertical 9 RGB Convolution</source>
        <translation>Convolution RVB vert. 9</translation>
    </message>
    <message>
        <source>Vertical Keystone Correction</source>
        <translation>Trapèze vertical</translation>
    </message>
    <message>
        <source>Vibrance</source>
        <translation>Vibrance</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Vignettage</translation>
    </message>
    <message>
        <source>Vignette Effect</source>
        <translation>Effet de vignettage</translation>
    </message>
    <message>
        <source>Vivid Light Blend Mode</source>
        <translation>Mode de fusion Lumière vive</translation>
    </message>
    <message>
        <source>Vortex Distortion</source>
        <translation>Vortex</translation>
    </message>
    <message>
        <source>White Point Adjust</source>
        <translation>Point blanc</translation>
    </message>
    <message>
        <source>X-Ray</source>
        <translation>Rayons X</translation>
    </message>
    <message>
        <source>Zoom Blur</source>
        <translation>Flou de zoom</translation>
    </message>
    <message>
        <source>sRGB Tone Curve to Linear</source>
        <translation>Courbe sRVB → linéaire</translation>
    </message>
</context>
<context>
    <name>FilterCatalogue</name>
    <message>
        <source>Unpin</source>
        <translation>Détacher</translation>
    </message>
    <message>
        <source>Pin to the Top</source>
        <translation>Épingler en haut</translation>
    </message>
</context>
<context>
    <name>FilterDescription</name>
    <message>
        <source>Adds fine even grain, which also hides bands in skies.</source>
        <translation>Ajoute un grain fin et régulier, qui cache aussi les bandes des ciels.</translation>
    </message>
    <message>
        <source>Adds the light of both pictures.</source>
        <translation>Additionne la lumière des deux images.</translation>
    </message>
    <message>
        <source>Adds the picture to the background, up to white.</source>
        <translation>Ajoute l’image au fond, jusqu’au blanc.</translation>
    </message>
    <message>
        <source>Bends red, green and blue by a curve each.</source>
        <translation>Courbe le rouge, le vert et le bleu séparément.</translation>
    </message>
    <message>
        <source>Bends red, green, blue and opacity by a formula each.</source>
        <translation>Courbe rouge, vert, bleu et opacité par une formule chacun.</translation>
    </message>
    <message>
        <source>Bends the picture around a circle.</source>
        <translation>Courbe l’image autour d’un cercle.</translation>
    </message>
    <message>
        <source>Bends the tones by a curve through five points.</source>
        <translation>Courbe les tons par une courbe à cinq points.</translation>
    </message>
    <message>
        <source>Black and white with dramatic contrast.</source>
        <translation>Noir et blanc au contraste dramatique.</translation>
    </message>
    <message>
        <source>Black and white with gentle contrast.</source>
        <translation>Noir et blanc au contraste doux.</translation>
    </message>
    <message>
        <source>Black and white with the picture&apos;s own contrast.</source>
        <translation>Noir et blanc au contraste de l’image.</translation>
    </message>
    <message>
        <source>Bluish shadows and creamy lights, like an instant camera&apos;s print.</source>
        <translation>Ombres bleutées et lumières crème, comme une photo instantanée.</translation>
    </message>
    <message>
        <source>Blurs as a camera lens does: lights become discs with a bright rim.</source>
        <translation>Floute comme un objectif : les lumières deviennent des disques au bord brillant.</translation>
    </message>
    <message>
        <source>Blurs as strongly as a mask is light: keeps some parts sharp.</source>
        <translation>Floute autant qu’un masque est clair : des parties restent nettes.</translation>
    </message>
    <message>
        <source>Blurs evenly over a square: quick and a little hard.</source>
        <translation>Floute également sur un carré : rapide et un peu dur.</translation>
    </message>
    <message>
        <source>Blurs over a disc, like a picture that is out of focus.</source>
        <translation>Floute sur un disque, comme une image hors foyer.</translation>
    </message>
    <message>
        <source>Blurs softly and evenly.</source>
        <translation>Floute avec douceur et régularité.</translation>
    </message>
    <message>
        <source>Breaks the picture into patches of one color, like stained glass.</source>
        <translation>Casse l’image en éclats d’une seule couleur, comme un vitrail.</translation>
    </message>
    <message>
        <source>Brightens linear light values for display (sRGB).</source>
        <translation>Éclaircit les valeurs de lumière linéaire pour l’affichage (sRGB).</translation>
    </message>
    <message>
        <source>Brightens shadows and recovers highlights.</source>
        <translation>Éclaircit les ombres et récupère les hautes lumières.</translation>
    </message>
    <message>
        <source>Brightens the background like two projectors on one wall.</source>
        <translation>Éclaircit le fond comme deux projecteurs sur un mur.</translation>
    </message>
    <message>
        <source>Brightens the background where the picture is light, up to a blaze.</source>
        <translation>Éclaircit le fond là où l’image est claire, jusqu’à éblouir.</translation>
    </message>
    <message>
        <source>Brings the second picture with a moving bar of light, like a copier.</source>
        <translation>Amène la seconde image avec une barre de lumière, comme un copieur.</translation>
    </message>
    <message>
        <source>Brings the second picture with a wave, as a stone does in water.</source>
        <translation>Amène la seconde image avec une onde, comme un caillou dans l’eau.</translation>
    </message>
    <message>
        <source>Burns or dodges strongly, as the picture is dark or light.</source>
        <translation>Densifie ou éclaircit fortement, selon que l’image est sombre ou claire.</translation>
    </message>
    <message>
        <source>Changes the pictures under a flash of light.</source>
        <translation>Change d’image sous un éclair de lumière.</translation>
    </message>
    <message>
        <source>Colors the background with the picture&apos;s hue and saturation.</source>
        <translation>Colore le fond avec la teinte et la saturation de l’image.</translation>
    </message>
    <message>
        <source>Colors the picture like a heat camera: dark is blue, light is hot.</source>
        <translation>Colore l’image comme une caméra thermique : le sombre est bleu, le clair brûlant.</translation>
    </message>
    <message>
        <source>Continues the pixels at a rectangle&apos;s edges without end.</source>
        <translation>Prolonge sans fin les pixels des bords d’un rectangle.</translation>
    </message>
    <message>
        <source>Continues the pixels at the edges without end after moving and turning the picture.</source>
        <translation>Prolonge sans fin les pixels des bords après déplacement et rotation.</translation>
    </message>
    <message>
        <source>Converts a depth map into a disparity map.</source>
        <translation>Convertit une carte de profondeur en carte de disparité.</translation>
    </message>
    <message>
        <source>Converts a disparity map into a depth map.</source>
        <translation>Convertit une carte de disparité en carte de profondeur.</translation>
    </message>
    <message>
        <source>Cool, with blue shadows and greenish lights, like cross-processed film.</source>
        <translation>Froid, aux ombres bleues et lumières verdâtres, comme un film au traitement croisé.</translation>
    </message>
    <message>
        <source>Corrects the white balance: warmer or cooler, greener or pinker.</source>
        <translation>Corrige la balance des blancs : plus chaud ou plus froid, plus vert ou plus rose.</translation>
    </message>
    <message>
        <source>Counts color values of an area in steps of exposure, for very bright pictures.</source>
        <translation>Compte les couleurs d’une zone par degrés d’exposition, pour des images très lumineuses.</translation>
    </message>
    <message>
        <source>Counts how often each color value occurs in an area.</source>
        <translation>Compte chaque valeur de couleur d’une zone.</translation>
    </message>
    <message>
        <source>Counts how often each color value occurs in an area; see-through pixels count less.</source>
        <translation>Compte chaque valeur de couleur d’une zone ; le transparent compte moins.</translation>
    </message>
    <message>
        <source>Covers the picture with irregular patches of color.</source>
        <translation>Couvre l’image de taches de couleur irrégulières.</translation>
    </message>
    <message>
        <source>Covers the picture with soft waves of color.</source>
        <translation>Couvre l’image de douces vagues de couleur.</translation>
    </message>
    <message>
        <source>Cuts the picture into a white line drawing, like a woodcut.</source>
        <translation>Taille l’image en dessin au trait blanc, comme une gravure sur bois.</translation>
    </message>
    <message>
        <source>Darkens all that lies outside a circle.</source>
        <translation>Assombrit ce qui se trouve hors d’un cercle.</translation>
    </message>
    <message>
        <source>Darkens by the picture&apos;s dark parts and brightens by its light ones, like a harsh lamp.</source>
        <translation>Assombrit par le sombre de l’image et éclaircit par le clair, comme une lampe crue.</translation>
    </message>
    <message>
        <source>Darkens display values (sRGB) back to linear light.</source>
        <translation>Assombrit les valeurs d’affichage (sRGB) en lumière linéaire.</translation>
    </message>
    <message>
        <source>Darkens or brightens evenly, as the picture is dark or light.</source>
        <translation>Assombrit ou éclaircit également, selon que l’image est sombre ou claire.</translation>
    </message>
    <message>
        <source>Darkens the background by what the picture lacks of white.</source>
        <translation>Assombrit le fond de ce qui manque de blanc à l’image.</translation>
    </message>
    <message>
        <source>Darkens the background like a transparency laid on it.</source>
        <translation>Assombrit le fond comme un transparent posé dessus.</translation>
    </message>
    <message>
        <source>Darkens the background where the picture is dark, with rich colors.</source>
        <translation>Assombrit le fond là où l’image est sombre, en couleurs denses.</translation>
    </message>
    <message>
        <source>Darkens the corners gently, as a simple lens does.</source>
        <translation>Assombrit doucement les coins, comme un objectif simple.</translation>
    </message>
    <message>
        <source>Dims bright parts into a soft, dark veil.</source>
        <translation>Voile les parties claires d’une douce obscurité.</translation>
    </message>
    <message>
        <source>Dissolves the first picture along the light and dark of a mask.</source>
        <translation>Dissout la première image selon le clair et le sombre d’un masque.</translation>
    </message>
    <message>
        <source>Divides the picture by the background: equal parts become white.</source>
        <translation>Divise l’image par le fond : ce qui est égal devient blanc.</translation>
    </message>
    <message>
        <source>Divides the picture into hexagons of one color.</source>
        <translation>Divise l’image en hexagones d’une seule couleur.</translation>
    </message>
    <message>
        <source>Divides the picture into squares of one color.</source>
        <translation>Divise l’image en carrés d’une seule couleur.</translation>
    </message>
    <message>
        <source>Draws a burst of colored lines from a point.</source>
        <translation>Tire d’un point une gerbe de lignes colorées.</translation>
    </message>
    <message>
        <source>Draws a checkerboard of two colors.</source>
        <translation>Dessine un damier de deux couleurs.</translation>
    </message>
    <message>
        <source>Draws a color wheel with all hues.</source>
        <translation>Dessine un cercle chromatique avec toutes les teintes.</translation>
    </message>
    <message>
        <source>Draws a filled rectangle with round corners.</source>
        <translation>Dessine un rectangle plein aux coins ronds.</translation>
    </message>
    <message>
        <source>Draws a histogram as a chart.</source>
        <translation>Dessine un histogramme.</translation>
    </message>
    <message>
        <source>Draws a passage between two colors along a line, gentle at both ends.</source>
        <translation>Dessine un passage entre deux couleurs le long d’une ligne, doux aux deux bouts.</translation>
    </message>
    <message>
        <source>Draws a passage between two colors from the inside out.</source>
        <translation>Dessine un passage entre deux couleurs du centre vers l’extérieur.</translation>
    </message>
    <message>
        <source>Draws a rectangle with soft edges.</source>
        <translation>Dessine un rectangle aux bords doux.</translation>
    </message>
    <message>
        <source>Draws a rectangular line with round corners, such as a frame.</source>
        <translation>Dessine une ligne rectangulaire aux coins ronds, comme un cadre.</translation>
    </message>
    <message>
        <source>Draws a ring of colored rays, as around a lamp in fog.</source>
        <translation>Dessine un anneau de rayons colorés, comme autour d’une lampe dans la brume.</translation>
    </message>
    <message>
        <source>Draws a rosette of ellipses that changes with each press of Generate.</source>
        <translation>Dessine une rosace d’ellipses qui change à chaque clic sur Générer.</translation>
    </message>
    <message>
        <source>Draws a shining star with a cross of rays.</source>
        <translation>Dessine une étoile brillante aux rayons croisés.</translation>
    </message>
    <message>
        <source>Draws a soft round spot of color.</source>
        <translation>Dessine une tache de couleur ronde et douce.</translation>
    </message>
    <message>
        <source>Draws a star of light with many spikes around a point.</source>
        <translation>Dessine une étoile de lumière aux nombreuses pointes autour d’un point.</translation>
    </message>
    <message>
        <source>Draws a sun with rays of light.</source>
        <translation>Dessine un soleil et ses rayons de lumière.</translation>
    </message>
    <message>
        <source>Draws an even passage between two colors along a line.</source>
        <translation>Dessine un passage régulier entre deux couleurs le long d’une ligne.</translation>
    </message>
    <message>
        <source>Draws lines from a list of points.</source>
        <translation>Dessine des lignes d’après une liste de points.</translation>
    </message>
    <message>
        <source>Draws one line that folds until it fills the picture.</source>
        <translation>Dessine une ligne qui se plie jusqu’à remplir l’image.</translation>
    </message>
    <message>
        <source>Draws stripes of two colors.</source>
        <translation>Dessine des rayures de deux couleurs.</translation>
    </message>
    <message>
        <source>Draws the colors on a circle outwards in straight streaks.</source>
        <translation>Étire vers l’extérieur les couleurs d’un cercle, en traits droits.</translation>
    </message>
    <message>
        <source>Draws the outlines in black and leaves the rest see-through.</source>
        <translation>Trace les contours en noir et laisse le reste transparent.</translation>
    </message>
    <message>
        <source>Draws the picture in black and white rings.</source>
        <translation>Dessine l’image en anneaux noirs et blancs.</translation>
    </message>
    <message>
        <source>Draws the picture in black dots on white, like a newspaper.</source>
        <translation>Dessine l’image en points noirs sur blanc, comme un journal.</translation>
    </message>
    <message>
        <source>Draws the picture in parallel lines of varying width.</source>
        <translation>Dessine l’image en lignes parallèles de largeur variable.</translation>
    </message>
    <message>
        <source>Draws the picture in two layers of crossing lines.</source>
        <translation>Dessine l’image en deux couches de lignes croisées.</translation>
    </message>
    <message>
        <source>Draws the picture together towards a point.</source>
        <translation>Resserre l’image vers un point.</translation>
    </message>
    <message>
        <source>Draws thin white lines along clear edges, on black.</source>
        <translation>Trace de fines lignes blanches sur les contours nets, sur fond noir.</translation>
    </message>
    <message>
        <source>Enlarges a small picture so that its edges follow those of the large one.</source>
        <translation>Agrandit une petite image dont les contours suivent ceux de la grande.</translation>
    </message>
    <message>
        <source>Enlarges a small picture, or smooths a mask, along the edges of a guide picture.</source>
        <translation>Agrandit une petite image, ou lisse un masque, le long des contours d’une image guide.</translation>
    </message>
    <message>
        <source>Enlivens pale colors and spares skin.</source>
        <translation>Ravive les couleurs pâles et ménage la peau.</translation>
    </message>
    <message>
        <source>Fades from the first picture into the second.</source>
        <translation>Passe en fondu de la première image à la seconde.</translation>
    </message>
    <message>
        <source>Fills everything with colored noise.</source>
        <translation>Remplit tout de bruit coloré.</translation>
    </message>
    <message>
        <source>Fills everything with one color.</source>
        <translation>Remplit tout d’une couleur.</translation>
    </message>
    <message>
        <source>Fills squares with small turned copies of what lies below them.</source>
        <translation>Remplit des carrés de petites copies tournées de ce qu’ils recouvrent.</translation>
    </message>
    <message>
        <source>Finds an area&apos;s most opaque pixel.</source>
        <translation>Trouve le pixel le plus opaque d’une zone.</translation>
    </message>
    <message>
        <source>Finds an area&apos;s most see-through pixel.</source>
        <translation>Trouve le pixel le plus transparent d’une zone.</translation>
    </message>
    <message>
        <source>Finds the greatest red, green, blue and opacity of an area.</source>
        <translation>Trouve les plus grandes valeurs de rouge, vert, bleu et opacité d’une zone.</translation>
    </message>
    <message>
        <source>Finds the least and the greatest red of an area.</source>
        <translation>Trouve le plus petit et le plus grand rouge d’une zone.</translation>
    </message>
    <message>
        <source>Finds the least and the greatest values of an area, side by side.</source>
        <translation>Trouve les plus petites et plus grandes valeurs d’une zone, côte à côte.</translation>
    </message>
    <message>
        <source>Finds the least red, green, blue and opacity of an area.</source>
        <translation>Trouve les plus petites valeurs de rouge, vert, bleu et opacité d’une zone.</translation>
    </message>
    <message>
        <source>Finds the main colors of an area, as a palette.</source>
        <translation>Trouve les couleurs principales d’une zone, en palette.</translation>
    </message>
    <message>
        <source>Finds the rectangle in which there is any red.</source>
        <translation>Trouve le rectangle où il y a du rouge.</translation>
    </message>
    <message>
        <source>Finds where in the picture each color of a palette lies on average.</source>
        <translation>Trouve où chaque couleur d’une palette se situe en moyenne dans l’image.</translation>
    </message>
    <message>
        <source>Fits the picture to another shape by cutting some and stretching the edges more than the middle.</source>
        <translation>Donne à l’image une autre forme : en coupe un peu et étire les bords plus que le milieu.</translation>
    </message>
    <message>
        <source>Fits very bright lights (HDR) into what a display can show.</source>
        <translation>Ramène les lumières très vives (HDR) à ce qu’un écran peut montrer.</translation>
    </message>
    <message>
        <source>Gently darkens or brightens, like a soft lamp.</source>
        <translation>Assombrit ou éclaircit en douceur, comme une lampe douce.</translation>
    </message>
    <message>
        <source>Gives each lightness a color of a gradient picture.</source>
        <translation>Donne à chaque clarté une couleur d’une image de dégradé.</translation>
    </message>
    <message>
        <source>Gives the background the picture&apos;s hues.</source>
        <translation>Donne au fond les teintes de l’image.</translation>
    </message>
    <message>
        <source>Gives the background the picture&apos;s lightness and keeps its own colors.</source>
        <translation>Donne au fond la luminosité de l’image et lui laisse ses couleurs.</translation>
    </message>
    <message>
        <source>Gives the background the picture&apos;s saturation.</source>
        <translation>Donne au fond la saturation de l’image.</translation>
    </message>
    <message>
        <source>Grades colors by two tables (LUTs), which a mask mixes.</source>
        <translation>Change les couleurs par deux tables (LUT) qu’un masque mélange.</translation>
    </message>
    <message>
        <source>Grows dark parts into rectangles.</source>
        <translation>Fait grandir le sombre en rectangles.</translation>
    </message>
    <message>
        <source>Grows dark parts into round blobs and swallows light detail.</source>
        <translation>Fait grandir le sombre en taches rondes et avale les détails clairs.</translation>
    </message>
    <message>
        <source>Grows light parts into rectangles.</source>
        <translation>Fait grandir le clair en rectangles.</translation>
    </message>
    <message>
        <source>Grows light parts into round blobs and swallows dark detail.</source>
        <translation>Fait grandir le clair en taches rondes et avale les détails sombres.</translation>
    </message>
    <message>
        <source>Keeps a rectangle of the picture and cuts off the rest.</source>
        <translation>Garde un rectangle de l’image et coupe le reste.</translation>
    </message>
    <message>
        <source>Keeps a strip sharp and vivid and blurs the rest, so that scenes look like models.</source>
        <translation>Garde une bande nette et vive et floute le reste : la scène a l’air d’une maquette.</translation>
    </message>
    <message>
        <source>Keeps each color between a least and a greatest value.</source>
        <translation>Tient chaque couleur entre une valeur minimale et une maximale.</translation>
    </message>
    <message>
        <source>Keeps the darker of both pictures in each color.</source>
        <translation>Garde dans chaque couleur le plus sombre des deux images.</translation>
    </message>
    <message>
        <source>Keeps the greater value of both pictures in each color.</source>
        <translation>Garde dans chaque couleur la plus grande valeur des deux images.</translation>
    </message>
    <message>
        <source>Keeps the lighter of both pictures in each color.</source>
        <translation>Garde dans chaque couleur le plus clair des deux images.</translation>
    </message>
    <message>
        <source>Keeps the smaller value of both pictures in each color.</source>
        <translation>Garde dans chaque couleur la plus petite valeur des deux images.</translation>
    </message>
    <message>
        <source>Lays a ring of glass on the picture.</source>
        <translation>Pose un anneau de verre sur l’image.</translation>
    </message>
    <message>
        <source>Lays a round bar of glass on the picture.</source>
        <translation>Pose une barre de verre ronde sur l’image.</translation>
    </message>
    <message>
        <source>Lays a second picture over this one where a mask is blue.</source>
        <translation>Pose une seconde image sur celle-ci là où un masque est bleu.</translation>
    </message>
    <message>
        <source>Lays a second picture over this one where a mask is light.</source>
        <translation>Pose une seconde image sur celle-ci là où un masque est clair.</translation>
    </message>
    <message>
        <source>Lays a second picture over this one where a mask is opaque.</source>
        <translation>Pose une seconde image sur celle-ci là où un masque est opaque.</translation>
    </message>
    <message>
        <source>Lays a second picture over this one where a mask is red.</source>
        <translation>Pose une seconde image sur celle-ci là où un masque est rouge.</translation>
    </message>
    <message>
        <source>Lays the picture on the background, but only where the background is.</source>
        <translation>Pose l’image sur le fond, mais seulement là où est le fond.</translation>
    </message>
    <message>
        <source>Lays the picture over the background.</source>
        <translation>Pose l’image sur le fond.</translation>
    </message>
    <message>
        <source>Leaves only a few steps of each color, like a poster.</source>
        <translation>Ne laisse que quelques degrés de chaque couleur, comme une affiche.</translation>
    </message>
    <message>
        <source>Lets bright parts glow softly beyond their edges.</source>
        <translation>Fait rayonner doucement les parties claires au-delà de leurs bords.</translation>
    </message>
    <message>
        <source>Lightens or darkens the middle tones; black and white stay.</source>
        <translation>Éclaircit ou assombrit les tons moyens ; le noir et le blanc restent.</translation>
    </message>
    <message>
        <source>Lights the picture as a relief, with the surface of a shaded ball.</source>
        <translation>Éclaire l’image comme un relief, avec la surface d’une boule ombrée.</translation>
    </message>
    <message>
        <source>Lights the picture with a lamp and leaves the rest dark.</source>
        <translation>Éclaire l’image d’une lampe et laisse le reste dans l’ombre.</translation>
    </message>
    <message>
        <source>Looks colors up in a table (LUT) that is made for a color space.</source>
        <translation>Cherche les couleurs dans une table (LUT) faite pour un espace de couleurs.</translation>
    </message>
    <message>
        <source>Looks colors up in a table (LUT), for film looks and color grading.</source>
        <translation>Cherche les couleurs dans une table (LUT), pour des rendus de film et l’étalonnage.</translation>
    </message>
    <message>
        <source>Makes a QR code of a text or a web address.</source>
        <translation>Fait un QR code d’un texte ou d’une adresse web.</translation>
    </message>
    <message>
        <source>Makes a dark gray picture of each pixel&apos;s weakest color.</source>
        <translation>Fait une image grise et sombre de la couleur la plus faible de chaque pixel.</translation>
    </message>
    <message>
        <source>Makes a light gray picture of each pixel&apos;s strongest color.</source>
        <translation>Fait une image grise et claire de la couleur la plus forte de chaque pixel.</translation>
    </message>
    <message>
        <source>Makes a pale blue negative, like an X-ray plate.</source>
        <translation>Fait un négatif bleu pâle, comme une radiographie.</translation>
    </message>
    <message>
        <source>Makes a pattern of a narrow triangle, mirrored in twelve directions.</source>
        <translation>Fait un motif d’un triangle étroit, en miroir dans douze directions.</translation>
    </message>
    <message>
        <source>Makes a pattern of a patch, mirrored to all four sides.</source>
        <translation>Fait un motif d’un morceau, en miroir des quatre côtés.</translation>
    </message>
    <message>
        <source>Makes a pattern of a patch, repeated side by side.</source>
        <translation>Fait un motif d’un morceau, répété côte à côte.</translation>
    </message>
    <message>
        <source>Makes a pattern of a slanted patch and its mirror image.</source>
        <translation>Fait un motif d’un morceau penché et de son reflet.</translation>
    </message>
    <message>
        <source>Makes a pattern of a square, turned by quarters.</source>
        <translation>Fait un motif d’un carré, tourné par quarts.</translation>
    </message>
    <message>
        <source>Makes a pattern of a triangle, mirrored in eight directions.</source>
        <translation>Fait un motif d’un triangle, en miroir dans huit directions.</translation>
    </message>
    <message>
        <source>Makes a pattern of a triangle, mirrored in six directions.</source>
        <translation>Fait un motif d’un triangle, en miroir dans six directions.</translation>
    </message>
    <message>
        <source>Makes a pattern of hexagons, turned in six steps.</source>
        <translation>Fait un motif d’hexagones, tourné en six pas.</translation>
    </message>
    <message>
        <source>Makes a pattern of rows, each second one mirrored and shifted.</source>
        <translation>Fait un motif de rangées, une sur deux en miroir et décalée.</translation>
    </message>
    <message>
        <source>Makes a pattern of triangles that point up and down by turns.</source>
        <translation>Fait un motif de triangles, pointe en haut et en bas tour à tour.</translation>
    </message>
    <message>
        <source>Makes a stacked barcode, as on boarding passes, of a message.</source>
        <translation>Fait d’un message un code empilé, comme sur les cartes d’embarquement.</translation>
    </message>
    <message>
        <source>Makes a striped barcode, as on parcels, of a message.</source>
        <translation>Fait d’un message un code-barres, comme sur les colis.</translation>
    </message>
    <message>
        <source>Makes an Aztec code, as on railway tickets, of a message.</source>
        <translation>Fait d’un message un code Aztec, comme sur les billets de train.</translation>
    </message>
    <message>
        <source>Makes converging lines parallel, upright and level ones alike.</source>
        <translation>Redresse les lignes qui convergent, verticales et horizontales à la fois.</translation>
    </message>
    <message>
        <source>Makes dark parts see-through and light parts white.</source>
        <translation>Rend les parties sombres transparentes et les claires blanches.</translation>
    </message>
    <message>
        <source>Makes each color either full or nothing, at a limit you set.</source>
        <translation>Met chaque couleur à tout ou rien, à une limite que vous choisissez.</translation>
    </message>
    <message>
        <source>Makes hills of the white shapes of a mask: black at the rim, white inside.</source>
        <translation>Fait des collines des formes blanches d’un masque : noires au bord, blanches dedans.</translation>
    </message>
    <message>
        <source>Makes level lines parallel that run together to the left or right.</source>
        <translation>Rend parallèles les lignes horizontales qui se rejoignent à gauche ou à droite.</translation>
    </message>
    <message>
        <source>Makes one column of the mean colors of an area&apos;s rows.</source>
        <translation>Fait une colonne des couleurs moyennes des lignes d’une zone.</translation>
    </message>
    <message>
        <source>Makes one pixel of an area&apos;s mean color.</source>
        <translation>Fait un pixel de la couleur moyenne d’une zone.</translation>
    </message>
    <message>
        <source>Makes one row of the mean colors of an area&apos;s columns.</source>
        <translation>Fait une ligne des couleurs moyennes des colonnes d’une zone.</translation>
    </message>
    <message>
        <source>Makes paper white and writing dark, as from a scanner.</source>
        <translation>Blanchit le papier et noircit l’écriture, comme un scanner.</translation>
    </message>
    <message>
        <source>Makes the picture lighter or darker, as a longer or shorter exposure would.</source>
        <translation>Éclaircit ou assombrit l’image, comme une pose plus longue ou plus courte.</translation>
    </message>
    <message>
        <source>Makes upright lines parallel, such as those of a building seen from below.</source>
        <translation>Redresse les verticales, comme celles d’un bâtiment vu d’en bas.</translation>
    </message>
    <message>
        <source>Mirrors a sector of the picture around a point.</source>
        <translation>Reflète un secteur de l’image autour d’un point.</translation>
    </message>
    <message>
        <source>Mirrors a triangle of the picture without end; the copies fade outwards.</source>
        <translation>Reflète sans fin un triangle de l’image ; les copies s’assombrissent vers l’extérieur.</translation>
    </message>
    <message>
        <source>Mixes red, green and blue with each other by formulas up to the square.</source>
        <translation>Mélange rouge, vert et bleu entre eux par des formules jusqu’au carré.</translation>
    </message>
    <message>
        <source>Mixes red, green, blue and opacity by weights.</source>
        <translation>Mélange rouge, vert, bleu et opacité selon des poids.</translation>
    </message>
    <message>
        <source>Mixes the picture with a second one by an amount.</source>
        <translation>Mélange l’image avec une seconde, dans une proportion.</translation>
    </message>
    <message>
        <source>Moves each pixel as far as a second picture is light or dark there.</source>
        <translation>Déplace chaque pixel selon la clarté d’une seconde image à cet endroit.</translation>
    </message>
    <message>
        <source>Moves, turns, scales and slants the picture as a whole.</source>
        <translation>Déplace, tourne, agrandit et incline toute l’image.</translation>
    </message>
    <message>
        <source>Multiplies both pictures, also in opacity.</source>
        <translation>Multiplie les deux images, et leur opacité.</translation>
    </message>
    <message>
        <source>Opens a round hole and pushes the picture outwards around it.</source>
        <translation>Ouvre un trou rond et repousse l’image tout autour.</translation>
    </message>
    <message>
        <source>Paints the picture in round dots on white.</source>
        <translation>Peint l’image en touches rondes sur blanc.</translation>
    </message>
    <message>
        <source>Pale colors and grayed blacks, like a faded print.</source>
        <translation>Couleurs pâles et noirs grisés, comme un tirage fané.</translation>
    </message>
    <message>
        <source>Prints the picture in dots of four inks, like a magazine under a magnifier.</source>
        <translation>Imprime l’image en points de quatre encres, comme un magazine à la loupe.</translation>
    </message>
    <message>
        <source>Pulls the corners of a part of the picture to four places.</source>
        <translation>Tire les coins d’une partie de l’image vers quatre endroits.</translation>
    </message>
    <message>
        <source>Pulls the picture&apos;s corners to four places.</source>
        <translation>Tire les coins de l’image vers quatre endroits.</translation>
    </message>
    <message>
        <source>Puts the picture into itself again and again, along a spiral.</source>
        <translation>Met l’image dans elle-même à l’infini, en spirale.</translation>
    </message>
    <message>
        <source>Raises the background&apos;s contrast and colors it with the picture.</source>
        <translation>Relève le contraste du fond et le colore avec l’image.</translation>
    </message>
    <message>
        <source>Reads the picture&apos;s colors as Lab values and shows them.</source>
        <translation>Lit les couleurs de l’image comme valeurs Lab et les montre.</translation>
    </message>
    <message>
        <source>Recomputes each pixel from 25 neighbors by weights of your own.</source>
        <translation>Recalcule chaque pixel à partir de 25 voisins, avec vos propres poids.</translation>
    </message>
    <message>
        <source>Recomputes each pixel from 49 neighbors by weights of your own.</source>
        <translation>Recalcule chaque pixel à partir de 49 voisins, avec vos propres poids.</translation>
    </message>
    <message>
        <source>Recomputes each pixel from 9 neighbors in its column by weights of your own.</source>
        <translation>Recalcule chaque pixel à partir de 9 voisins de sa colonne, avec vos propres poids.</translation>
    </message>
    <message>
        <source>Recomputes each pixel from 9 neighbors in its row by weights of your own.</source>
        <translation>Recalcule chaque pixel à partir de 9 voisins de sa ligne, avec vos propres poids.</translation>
    </message>
    <message>
        <source>Recomputes each pixel from its 9 neighbors by weights of your own.</source>
        <translation>Recalcule chaque pixel à partir de 9 voisins, avec vos propres poids.</translation>
    </message>
    <message>
        <source>Redraws the picture as a comic: dark outlines, flat colors, printed dots.</source>
        <translation>Redessine l’image en bande dessinée : contours sombres, aplats, points imprimés.</translation>
    </message>
    <message>
        <source>Removes single specks and keeps edges.</source>
        <translation>Enlève les petits points isolés et garde les contours.</translation>
    </message>
    <message>
        <source>Repaints the picture with the colors of a palette picture only.</source>
        <translation>Repeint l’image avec les seules couleurs d’une image palette.</translation>
    </message>
    <message>
        <source>Repeats the middle of the picture and leaves its corners as they are.</source>
        <translation>Répète le milieu de l’image et laisse ses coins tels quels.</translation>
    </message>
    <message>
        <source>Repeats the picture on a floor that runs into the distance.</source>
        <translation>Répète l’image sur un sol qui file au loin.</translation>
    </message>
    <message>
        <source>Repeats the picture without end, moved, turned or scaled.</source>
        <translation>Répète l’image sans fin, déplacée, tournée ou agrandie.</translation>
    </message>
    <message>
        <source>Replaces only what is darker or lighter than the picture allows.</source>
        <translation>Ne remplace que ce qui est plus sombre ou plus clair que l’image ne le permet.</translation>
    </message>
    <message>
        <source>Replaces up to three ranges of colors by others.</source>
        <translation>Remplace jusqu’à trois plages de couleurs par d’autres.</translation>
    </message>
    <message>
        <source>Resizes the picture and keeps fine detail crisp.</source>
        <translation>Change la taille de l’image et garde les détails fins.</translation>
    </message>
    <message>
        <source>Resizes the picture; two numbers decide between soft and crisp.</source>
        <translation>Change la taille de l’image ; deux nombres choisissent entre douceur et netteté.</translation>
    </message>
    <message>
        <source>Scatters random shapes over the picture: rectangles, circles, flowers, balls, lights.</source>
        <translation>Sème sur l’image des formes au hasard : rectangles, cercles, fleurs, balles, lumières.</translation>
    </message>
    <message>
        <source>Sets brightness, contrast and saturation.</source>
        <translation>Règle la luminosité, le contraste et la saturation.</translation>
    </message>
    <message>
        <source>Sharpens edges, or with a wide radius brings out local contrast.</source>
        <translation>Accentue les contours ou, avec un grand rayon, le contraste local.</translation>
    </message>
    <message>
        <source>Sharpens light and dark only, without colored fringes.</source>
        <translation>Renforce la netteté du clair et du sombre seuls, sans franges colorées.</translation>
    </message>
    <message>
        <source>Shows dark in one color and light in another.</source>
        <translation>Montre le sombre dans une couleur et le clair dans une autre.</translation>
    </message>
    <message>
        <source>Shows hard square pixels where later steps enlarge the picture.</source>
        <translation>Montre des pixels durs et carrés là où des étapes suivantes agrandissent l’image.</translation>
    </message>
    <message>
        <source>Shows how differently the eye sees the colors of two pictures.</source>
        <translation>Montre combien l’œil voit différentes les couleurs de deux images.</translation>
    </message>
    <message>
        <source>Shows how far each place is from the red parts of a mask.</source>
        <translation>Montre à quelle distance chaque endroit est des parties rouges d’un masque.</translation>
    </message>
    <message>
        <source>Shows how far two pictures differ, color by color.</source>
        <translation>Montre l’écart de deux images, couleur par couleur.</translation>
    </message>
    <message>
        <source>Shows how much light and dark differ within reach: glowing outlines.</source>
        <translation>Montre l’écart entre clair et sombre alentour : des contours lumineux.</translation>
    </message>
    <message>
        <source>Shows how steeply colors rise to the right (red) and upwards (green), over a wider reach.</source>
        <translation>Montre la pente des couleurs vers la droite (rouge) et le haut (vert), sur une plus grande portée.</translation>
    </message>
    <message>
        <source>Shows how steeply colors rise to the right (red) and upwards (green).</source>
        <translation>Montre la pente des couleurs vers la droite (rouge) et le haut (vert).</translation>
    </message>
    <message>
        <source>Shows in white what strikes the eye first.</source>
        <translation>Montre en blanc ce qui attire l’œil en premier.</translation>
    </message>
    <message>
        <source>Shows the difference of both pictures, softly: middle tones become gray.</source>
        <translation>Montre doucement la différence des deux images : les tons moyens deviennent gris.</translation>
    </message>
    <message>
        <source>Shows the difference of both pictures: equal parts become black.</source>
        <translation>Montre la différence des deux images : ce qui est égal devient noir.</translation>
    </message>
    <message>
        <source>Shows the edges in their colors, on black.</source>
        <translation>Montre les contours dans leurs couleurs, sur fond noir.</translation>
    </message>
    <message>
        <source>Shows the picture in browns, like a very old photograph.</source>
        <translation>Montre l’image en bruns, comme une très vieille photo.</translation>
    </message>
    <message>
        <source>Shows the picture in shades of one color.</source>
        <translation>Montre l’image dans les tons d’une seule couleur.</translation>
    </message>
    <message>
        <source>Shows the picture on a curved surface that you turn in space.</source>
        <translation>Montre l’image sur une surface courbe que vous tournez dans l’espace.</translation>
    </message>
    <message>
        <source>Shows the picture only where the background is not.</source>
        <translation>Ne montre l’image que là où le fond n’est pas.</translation>
    </message>
    <message>
        <source>Shows the picture only where the background is.</source>
        <translation>Ne montre l’image que là où est le fond.</translation>
    </message>
    <message>
        <source>Shows the picture through glass with the relief of a texture.</source>
        <translation>Montre l’image à travers un verre au relief d’une texture.</translation>
    </message>
    <message>
        <source>Shows the second picture through growing round holes.</source>
        <translation>Montre la seconde image par des trous ronds qui grandissent.</translation>
    </message>
    <message>
        <source>Shrinks the picture so that small bright spots survive.</source>
        <translation>Réduit l’image sans perdre les petits points lumineux.</translation>
    </message>
    <message>
        <source>Slides the first picture away in bars.</source>
        <translation>Fait glisser la première image en bandes.</translation>
    </message>
    <message>
        <source>Smears the picture along a direction, as if it had moved.</source>
        <translation>Étale l’image dans une direction, comme si elle avait bougé.</translation>
    </message>
    <message>
        <source>Smears the picture towards a point, as if zoomed during the exposure.</source>
        <translation>Étale l’image vers un point, comme un zoom pendant la pose.</translation>
    </message>
    <message>
        <source>Smooths away fine noise and sharpens what is left.</source>
        <translation>Lisse le bruit fin et accentue le reste.</translation>
    </message>
    <message>
        <source>Splits the picture into black and white at the limit that suits it best.</source>
        <translation>Partage l’image en noir et blanc à la limite qui lui va le mieux.</translation>
    </message>
    <message>
        <source>Stretches the middle of the picture and leaves its corners as they are.</source>
        <translation>Étire le milieu de l’image et laisse ses coins tels quels.</translation>
    </message>
    <message>
        <source>Strong colors, deep shadows and clear lights, like slide film.</source>
        <translation>Couleurs vives, ombres profondes et lumières claires, comme une diapositive.</translation>
    </message>
    <message>
        <source>Swells the picture along a line, like a fold.</source>
        <translation>Gonfle l’image le long d’une ligne, comme un pli.</translation>
    </message>
    <message>
        <source>Swells the picture around a point, or dents it.</source>
        <translation>Gonfle l’image autour d’un point, ou la creuse.</translation>
    </message>
    <message>
        <source>Takes the background&apos;s light away from the picture.</source>
        <translation>Enlève à l’image la lumière du fond.</translation>
    </message>
    <message>
        <source>The same from 25 neighbors, for colors only: opacity stays.</source>
        <translation>Le même avec 25 voisins, pour les couleurs seules : l’opacité reste.</translation>
    </message>
    <message>
        <source>The same from 49 neighbors, for colors only: opacity stays.</source>
        <translation>Le même avec 49 voisins, pour les couleurs seules : l’opacité reste.</translation>
    </message>
    <message>
        <source>The same from 9 neighbors in a column, for colors only: opacity stays.</source>
        <translation>Le même avec 9 voisins de la colonne, pour les couleurs seules : l’opacité reste.</translation>
    </message>
    <message>
        <source>The same from 9 neighbors in a row, for colors only: opacity stays.</source>
        <translation>Le même avec 9 voisins de la ligne, pour les couleurs seules : l’opacité reste.</translation>
    </message>
    <message>
        <source>The same from 9 neighbors, for colors only: opacity stays.</source>
        <translation>Le même avec 9 voisins, pour les couleurs seules : l’opacité reste.</translation>
    </message>
    <message>
        <source>Tints the picture as if white had another color.</source>
        <translation>Teinte l’image comme si le blanc avait une autre couleur.</translation>
    </message>
    <message>
        <source>Turns a slanted quadrilateral, such as a page or a sign, into an upright rectangle.</source>
        <translation>Fait d’un quadrilatère penché, page ou panneau, un rectangle droit.</translation>
    </message>
    <message>
        <source>Turns all colors around the color wheel.</source>
        <translation>Fait tourner toutes les couleurs autour du cercle chromatique.</translation>
    </message>
    <message>
        <source>Turns light into dark and each color into its opposite.</source>
        <translation>Change le clair en sombre et chaque couleur en son contraire.</translation>
    </message>
    <message>
        <source>Turns the first picture like a page that throws a shadow.</source>
        <translation>Tourne la première image comme une page qui jette une ombre.</translation>
    </message>
    <message>
        <source>Turns the first picture like a page.</source>
        <translation>Tourne la première image comme une page.</translation>
    </message>
    <message>
        <source>Turns the picture by a small angle and enlarges it until its frame is full.</source>
        <translation>Tourne l’image d’un petit angle et l’agrandit pour remplir le cadre.</translation>
    </message>
    <message>
        <source>Turns the picture in space, as if the camera had been held otherwise.</source>
        <translation>Tourne l’image dans l’espace, comme si l’appareil avait été tenu autrement.</translation>
    </message>
    <message>
        <source>Turns the picture into a pencil drawing.</source>
        <translation>Fait de l’image un dessin au crayon.</translation>
    </message>
    <message>
        <source>Turns the picture like a whirlpool, many times around its eye.</source>
        <translation>Fait tourner l’image en tourbillon, plusieurs fois autour de son œil.</translation>
    </message>
    <message>
        <source>Twists the picture around a point, most in the middle.</source>
        <translation>Tord l’image autour d’un point, surtout au milieu.</translation>
    </message>
    <message>
        <source>Unfolds the second picture like an accordion.</source>
        <translation>Déplie la seconde image comme un accordéon.</translation>
    </message>
    <message>
        <source>Warm colors and slightly open blacks, like an old transfer print.</source>
        <translation>Couleurs chaudes et noirs un peu ouverts, comme un ancien report.</translation>
    </message>
    <message>
        <source>Winds the colors on a circle outwards into a spiral tunnel.</source>
        <translation>Enroule vers l’extérieur les couleurs d’un cercle en tunnel spiral.</translation>
    </message>
    <message>
        <source>Wipes the second picture over the first.</source>
        <translation>Fait glisser la seconde image sur la première.</translation>
    </message>
    <message>
        <source>Wraps the picture around a solid such as a cube or a ball, which you turn.</source>
        <translation>Enveloppe de l’image un solide, cube ou boule, que vous tournez.</translation>
    </message>
    <message>
        <source>Writes a text in several fonts and colors over the picture.</source>
        <translation>Écrit sur l’image un texte en plusieurs polices et couleurs.</translation>
    </message>
    <message>
        <source>Writes a text over the picture.</source>
        <translation>Écrit un texte sur l’image.</translation>
    </message>
    <message>
        <source>Writes the picture&apos;s colors as Lab values: lightness, green to red, blue to yellow.</source>
        <translation>Écrit les couleurs de l’image en valeurs Lab : clarté, vert à rouge, bleu à jaune.</translation>
    </message>
</context>
<context>
    <name>FilterList</name>
    <message>
        <source>Pinned</source>
        <translation>Épinglés</translation>
    </message>
    <message>
        <source>Recently Used</source>
        <translation>Récemment utilisés</translation>
    </message>
    <message>
        <source>Looks and Effects</source>
        <translation>Rendus et effets</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Trouvés</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Rien trouvé</translation>
    </message>
    <message>
        <source>Nothing found. Nearest:</source>
        <translation>Rien trouvé. Au plus près :</translation>
    </message>
</context>
<context>
    <name>FilterOptions</name>
    <message>
        <source>Standard values are made for small pictures. Start filters with values that fit this one?</source>
        <translation>Les valeurs par défaut sont faites pour de petites images. Commencer par des valeurs adaptées à celle-ci ?</translation>
    </message>
    <message>
        <source>Standard values suit a small picture.</source>
        <translation>Les valeurs par défaut conviennent à une petite image.</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Adapter</translation>
    </message>
    <message>
        <source>Standard Values</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Always Fit</source>
        <translation>Toujours adapter</translation>
    </message>
</context>
<context>
    <name>FilterSearchWords</name>
    <message>
        <source>3d, cube, sphere, ball, globe, cylinder, cone, pyramid, ring, object, texture, planet, box</source>
        <translation>3d, cube, sphère, boule, globe, cylindre, cône, pyramide, anneau, objet, planète</translation>
    </message>
    <message>
        <source>3d, surface, curved, flag, bend, paper, rotate, tilt, page</source>
        <translation>3d, surface, courbe, drapeau, courber, papier, tourner, incliner, page</translation>
    </message>
    <message>
        <source>add, dodge, lighten, blend mode, glow</source>
        <translation>ajouter, densité, éclaircir, mode de fusion, lueur</translation>
    </message>
    <message>
        <source>add, plus, sum, lighter, double exposure, blend</source>
        <translation>ajouter, additionner, somme, plus clair, surimpression, mélanger</translation>
    </message>
    <message>
        <source>aspect ratio, widescreen, stretch, fit, 16:9, format</source>
        <translation>format, proportions, écran large, étirer, adapter, 16:9</translation>
    </message>
    <message>
        <source>attention, eye catcher, saliency, subject, mask, analysis</source>
        <translation>attention, saillance, sujet, masque, analyse</translation>
    </message>
    <message>
        <source>average color, mean, reduce, statistics</source>
        <translation>moyenne, couleur moyenne, statistique</translation>
    </message>
    <message>
        <source>average, mean, columns, profile, statistics</source>
        <translation>moyenne, colonnes, profil, statistique</translation>
    </message>
    <message>
        <source>average, mean, rows, profile, statistics</source>
        <translation>moyenne, lignes, profil, statistique</translation>
    </message>
    <message>
        <source>aztec code, barcode, ticket, 2d code, matrix code</source>
        <translation>code aztec, code-barres, billet, code 2d</translation>
    </message>
    <message>
        <source>barcode, bar code, strip code, label, parcel, code 128</source>
        <translation>code-barres, colis, étiquette, code 128</translation>
    </message>
    <message>
        <source>barcode, boarding pass, pdf417, stacked code, ticket, id card</source>
        <translation>code-barres, carte d’embarquement, pdf417, billet, carte d’identité</translation>
    </message>
    <message>
        <source>bars, blinds, strips, slide, transition</source>
        <translation>bandes, stores, rayures, glisser, transition</translation>
    </message>
    <message>
        <source>black and white, film noir, dramatic, high contrast, monochrome, grayscale, bw, gray, dark, desaturate, look</source>
        <translation>noir et blanc, film noir, dramatique, contraste fort, niveaux de gris, nb, gris, sombre, désaturer, rendu</translation>
    </message>
    <message>
        <source>black and white, grayscale, desaturate, gray, bw, monochrome, remove color, neutral, colorless, look</source>
        <translation>noir et blanc, niveaux de gris, désaturer, gris, nb, enlever la couleur, neutre, rendu</translation>
    </message>
    <message>
        <source>black and white, monochrome, grayscale, gray, bw, desaturate, soft, film, look</source>
        <translation>noir et blanc, niveaux de gris, gris, nb, désaturer, monochrome, film, rendu</translation>
    </message>
    <message>
        <source>blend, double exposure, fade, opacity, combine, two pictures, crossfade, overlay</source>
        <translation>mélanger, surimpression, double exposition, opacité, deux images, combiner, fondu</translation>
    </message>
    <message>
        <source>blur, soften, soft, smooth, unsharp, blurry, background blur, hide detail</source>
        <translation>flou, flouter, adoucir, doux, brouiller, arrière-plan flou</translation>
    </message>
    <message>
        <source>bokeh, lens blur, out of focus, blur, defocus, background blur, portrait, light discs</source>
        <translation>bokeh, flou d’objectif, flou, arrière-plan flou, portrait, disques de lumière</translation>
    </message>
    <message>
        <source>bounding box, bounds, red, find, mask</source>
        <translation>rectangle englobant, limites, rouge, trouver, masque</translation>
    </message>
    <message>
        <source>brightness, contrast, saturation, color, brighten, lighten, darken, desaturate, colorful, adjust, enhance, improve</source>
        <translation>luminosité, contraste, saturation, couleur, éclaircir, assombrir, désaturer, coloré, améliorer</translation>
    </message>
    <message>
        <source>bulge, fisheye, magnify, swell, lens, big nose, fish eye</source>
        <translation>gonfler, bosse, œil de poisson, loupe, grossir, fisheye, gros nez</translation>
    </message>
    <message>
        <source>bulge, fold, crease, ridge</source>
        <translation>pli, bosse, gonfler, relief</translation>
    </message>
    <message>
        <source>burn, darken, blend mode, contrast</source>
        <translation>densité, assombrir, mode de fusion, contraste</translation>
    </message>
    <message>
        <source>burn, darken, blend mode, subtract</source>
        <translation>densité, assombrir, mode de fusion, soustraire</translation>
    </message>
    <message>
        <source>cartoon, comic, manga, toon, drawing, illustration, anime, graphic novel</source>
        <translation>bande dessinée, bd, dessin animé, cartoon, comic, manga, dessin, illustration</translation>
    </message>
    <message>
        <source>channel mixer, formula, coefficients, color mixing, cross process</source>
        <translation>mélangeur de couches, formule, coefficients, traitement croisé</translation>
    </message>
    <message>
        <source>channel mixer, swap channels, opacity, transparency, matrix, color channels, fade out, bgr</source>
        <translation>mélangeur de couches, échanger les couches, opacité, transparence, matrice</translation>
    </message>
    <message>
        <source>chess, checkers, checkerboard, squares, pattern, chequered, transparency grid</source>
        <translation>damier, échiquier, carreaux, carrés, motif</translation>
    </message>
    <message>
        <source>clip, limit, clamp, range, levels, cut off</source>
        <translation>limiter, écrêter, plage, niveaux</translation>
    </message>
    <message>
        <source>clipping mask, on top, overlay, composite</source>
        <translation>masque d’écrêtage, dessus, superposer, montage</translation>
    </message>
    <message>
        <source>color wheel, rainbow, hues, spectrum, color circle, color picker</source>
        <translation>cercle chromatique, roue des couleurs, arc-en-ciel, teintes, spectre</translation>
    </message>
    <message>
        <source>colorize, blend mode, hue, saturation, tint</source>
        <translation>coloriser, mode de fusion, teinte, saturation</translation>
    </message>
    <message>
        <source>compare, difference, delta e, color difference, analysis</source>
        <translation>comparer, différence, delta e, écart de couleur, analyse</translation>
    </message>
    <message>
        <source>copier, scanner, light bar, scan, transition</source>
        <translation>copieur, photocopieur, scanner, barre de lumière, transition</translation>
    </message>
    <message>
        <source>crop, cut, trim, cut out</source>
        <translation>recadrer, rogner, couper, découper, recadrage</translation>
    </message>
    <message>
        <source>cross process, cool, cold, blue, green, lomo, film, look, retro, teal</source>
        <translation>traitement croisé, froid, bleu, vert, lomo, film, rendu, rétro</translation>
    </message>
    <message>
        <source>curve, curves, contrast, levels, gradation, shadows, highlights, midtones, black point, s-curve</source>
        <translation>courbe, courbes, contraste, niveaux, gradation, ombres, hautes lumières, tons moyens, point noir</translation>
    </message>
    <message>
        <source>curves, rgb curves, gradation, color curves, levels, tone</source>
        <translation>courbes, courbes rvb, gradation, niveaux, tons</translation>
    </message>
    <message>
        <source>darker, blend mode, minimum</source>
        <translation>plus sombre, obscurcir, mode de fusion, minimum</translation>
    </message>
    <message>
        <source>darkest, dark gray, grayscale, black and white</source>
        <translation>plus sombre, gris sombre, niveaux de gris, noir et blanc</translation>
    </message>
    <message>
        <source>denoise, noise reduction, reduce noise, grain removal, smooth skin, skin, iso noise, clean, high iso</source>
        <translation>débruiter, réduire le bruit, bruit, lisser la peau, peau, grain, nettoyer</translation>
    </message>
    <message>
        <source>depth map, disparity, convert, stereo, 3d</source>
        <translation>carte de profondeur, disparité, convertir, stéréo, 3d</translation>
    </message>
    <message>
        <source>difference, compare, blend mode, invert</source>
        <translation>différence, comparer, mode de fusion</translation>
    </message>
    <message>
        <source>difference, compare, subtract, spot the difference, changes, analysis</source>
        <translation>différence, comparer, soustraire, changements, analyse</translation>
    </message>
    <message>
        <source>dilate, grow, expand, thicken, blocks, morphology</source>
        <translation>dilater, grandir, épaissir, blocs, morphologie</translation>
    </message>
    <message>
        <source>dilate, grow, expand, thicken, bright spots, morphology, paint, oil painting</source>
        <translation>dilater, grandir, épaissir, taches claires, morphologie, peinture, peinture à l’huile</translation>
    </message>
    <message>
        <source>displace, displacement map, glitch, ripple, texture, wobble, warp, water</source>
        <translation>déplacer, décaler, glitch, bug, ondulation, texture, eau</translation>
    </message>
    <message>
        <source>distance, glow outline, feather, mask, distance field</source>
        <translation>distance, contour, masque</translation>
    </message>
    <message>
        <source>divide, flat field, blend mode, brighten</source>
        <translation>diviser, mode de fusion, éclaircir</translation>
    </message>
    <message>
        <source>dodge, lighten, brighten, blend mode, glow</source>
        <translation>densité, éclaircir, mode de fusion, lueur</translation>
    </message>
    <message>
        <source>droste, spiral, recursion, picture in picture, infinity, endless</source>
        <translation>droste, spirale, mise en abyme, infini, récursion</translation>
    </message>
    <message>
        <source>duotone, two colors, colorize, false color, tint, pop art, bicolor, split tone</source>
        <translation>bichromie, deux couleurs, coloriser, fausses couleurs, teinter, pop art</translation>
    </message>
    <message>
        <source>edges, edge detection, outline, contour, line drawing, find edges, trace</source>
        <translation>contours, détection de contours, silhouette, dessin au trait</translation>
    </message>
    <message>
        <source>emboss, relief, metal, 3d, chrome, material, plastic, bevel, stone</source>
        <translation>estamper, relief, métal, 3d, chrome, matière, plastique, pierre</translation>
    </message>
    <message>
        <source>erode, shrink, thin, blocks, morphology</source>
        <translation>éroder, rétrécir, amincir, blocs, morphologie</translation>
    </message>
    <message>
        <source>erode, shrink, thin, dark spots, morphology, paint, oil painting</source>
        <translation>éroder, rétrécir, amincir, taches sombres, morphologie, peinture, peinture à l’huile</translation>
    </message>
    <message>
        <source>exclusion, difference, blend mode, soft</source>
        <translation>exclusion, différence, mode de fusion, doux</translation>
    </message>
    <message>
        <source>exposure, brightness, brighten, lighten, darken, too dark, too bright, underexposed, overexposed, ev, light</source>
        <translation>exposition, luminosité, éclaircir, assombrir, trop sombre, trop clair, sous-exposé, surexposé, lumière</translation>
    </message>
    <message>
        <source>extend edges, stretched edges, smear, endless</source>
        <translation>prolonger les bords, étaler, sans fin</translation>
    </message>
    <message>
        <source>extend edges, stretched edges, smear, extend canvas</source>
        <translation>prolonger les bords, étaler, agrandir la toile</translation>
    </message>
    <message>
        <source>fade, crossfade, dissolve, transition</source>
        <translation>fondu, fondu enchaîné, dissoudre, transition</translation>
    </message>
    <message>
        <source>faded, vintage, old photo, pale, retro, washed out, matte, film, look, faded film</source>
        <translation>fané, vieille photo, pâle, vintage, rétro, délavé, mat, film, rendu</translation>
    </message>
    <message>
        <source>fill, solid color, one color, plain, background</source>
        <translation>remplir, couleur unie, une couleur, aplat, fond</translation>
    </message>
    <message>
        <source>find edges, edge detection, neon, outline, contour, glowing edges</source>
        <translation>trouver les contours, détection de contours, néon, silhouette, contours lumineux</translation>
    </message>
    <message>
        <source>flare, lens flare, star, sun, spikes, starburst, light</source>
        <translation>reflet d’objectif, éclat, étoile, soleil, pointes, lumière</translation>
    </message>
    <message>
        <source>flash, burst, sun, light, transition</source>
        <translation>éclair, flash, soleil, lumière, transition</translation>
    </message>
    <message>
        <source>floor, perspective, tile, horizon, repeat, 3d, ground</source>
        <translation>sol, perspective, carrelage, horizon, répéter, 3d</translation>
    </message>
    <message>
        <source>fold, accordion, transition, leporello</source>
        <translation>pli, accordéon, transition, dépliant</translation>
    </message>
    <message>
        <source>formula, curve, levels, coefficients, cubic, tone</source>
        <translation>formule, courbe, niveaux, coefficients</translation>
    </message>
    <message>
        <source>frame, border, outline, rounded corners, rectangle, line, box, edge</source>
        <translation>cadre, bordure, encadrement, coins ronds, rectangle, ligne, bord</translation>
    </message>
    <message>
        <source>frosted glass, glass, rain, bathroom window, water, texture, relief</source>
        <translation>verre dépoli, verre, pluie, vitre, eau, texture, relief</translation>
    </message>
    <message>
        <source>gamma, midtones, brighten, lighten, darken, brightness, tone</source>
        <translation>gamma, tons moyens, éclaircir, assombrir, luminosité</translation>
    </message>
    <message>
        <source>gloomy, dark, moody, mist, fog, sad, dull, soft</source>
        <translation>sombre, morose, voile, brouillard, triste, terne, doux</translation>
    </message>
    <message>
        <source>glow, dreamy, bloom, soft light, soft focus, shine, halo, orton, romantic, haze, diffuse</source>
        <translation>lueur, rêveur, rayonner, lumière douce, halo, éclat, romantique, brume</translation>
    </message>
    <message>
        <source>gradient map, colorize, tone map, duotone, tritone, map, recolor</source>
        <translation>dégradé de couleurs, coloriser, bichromie, table de couleurs, recolorer</translation>
    </message>
    <message>
        <source>gradient, color gradient, fade, blend of colors, background, sky</source>
        <translation>dégradé, dégradé de couleurs, fond, ciel, passage</translation>
    </message>
    <message>
        <source>gradient, radial, circle, spot, background, round</source>
        <translation>dégradé, radial, cercle, tache, fond, rond</translation>
    </message>
    <message>
        <source>gradient, slope, edges, edge detection, analysis, normal map</source>
        <translation>pente, dégradé, contours, détection de contours, analyse</translation>
    </message>
    <message>
        <source>gradient, slope, edges, texture, analysis</source>
        <translation>pente, dégradé, contours, texture, analyse</translation>
    </message>
    <message>
        <source>gradient, soft gradient, smooth, fade, background</source>
        <translation>dégradé, dégradé doux, doux, fond</translation>
    </message>
    <message>
        <source>gradient, soft spot, glow, radial, circle, fade</source>
        <translation>dégradé, tache douce, lueur, cercle, rond</translation>
    </message>
    <message>
        <source>grain, film grain, noise, add noise, banding, dither, analog, iso</source>
        <translation>grain, grain de film, bruit, ajouter du bruit, bandes, argentique</translation>
    </message>
    <message>
        <source>grid, mesh, lines, net, wireframe</source>
        <translation>grille, maillage, lignes, filet, fil de fer</translation>
    </message>
    <message>
        <source>guided filter, refine mask, edges, smoothing, matting</source>
        <translation>filtre guidé, affiner un masque, contours, lisser</translation>
    </message>
    <message>
        <source>halftone, print, newspaper, magazine, cmyk, ink dots, offset, pop art, comic dots</source>
        <translation>trame, impression, journal, magazine, quadrichromie, points de couleur, pop art</translation>
    </message>
    <message>
        <source>halo, ring of light, lens flare, lamp, corona, rainbow ring, glow</source>
        <translation>halo, anneau de lumière, reflet d’objectif, lampe, arc-en-ciel, auréole</translation>
    </message>
    <message>
        <source>hard light, contrast, blend mode</source>
        <translation>lumière crue, contraste, mode de fusion</translation>
    </message>
    <message>
        <source>hatching, crosshatch, engraving, etching, banknote, halftone, lines</source>
        <translation>hachures, hachures croisées, gravure, eau-forte, billet de banque, trame, lignes</translation>
    </message>
    <message>
        <source>hdr, tone mapping, high dynamic range, highlights, headroom, compress lights</source>
        <translation>hdr, plage dynamique, hautes lumières, compression des tons</translation>
    </message>
    <message>
        <source>heat map, thermal, infrared, heat camera, thermography, heat vision</source>
        <translation>thermique, caméra thermique, infrarouge, chaleur, thermographie</translation>
    </message>
    <message>
        <source>height map, bevel, relief, emboss, bump map, depth, 3d text</source>
        <translation>carte de hauteur, relief, biseau, estamper, profondeur</translation>
    </message>
    <message>
        <source>hilbert curve, maze, labyrinth, fractal, space filling, circuit, lines</source>
        <translation>courbe de hilbert, labyrinthe, fractale, circuit, lignes</translation>
    </message>
    <message>
        <source>histogram, chart, graph, diagram, distribution</source>
        <translation>histogramme, graphique, diagramme, répartition</translation>
    </message>
    <message>
        <source>histogram, count, statistics, distribution, analysis</source>
        <translation>histogramme, compter, statistique, répartition, analyse</translation>
    </message>
    <message>
        <source>histogram, hdr, stops, exposure, statistics</source>
        <translation>histogramme, hdr, diaphragmes, exposition, statistique</translation>
    </message>
    <message>
        <source>hole, black hole, gap, push away</source>
        <translation>trou, trou noir, ouverture</translation>
    </message>
    <message>
        <source>holes, dots, bubbles, circles, transition</source>
        <translation>trous, points, bulles, cercles, transition</translation>
    </message>
    <message>
        <source>honeycomb, hexagon, mosaic, pixel, tiles, censor</source>
        <translation>nid d’abeille, hexagone, mosaïque, pixels, carreaux, censurer</translation>
    </message>
    <message>
        <source>hue, change colors, color shift, shift colors, rotate colors, psychedelic, recolor</source>
        <translation>teinte, changer les couleurs, décaler les couleurs, psychédélique, recolorer</translation>
    </message>
    <message>
        <source>hue, recolor, blend mode</source>
        <translation>teinte, recolorer, mode de fusion</translation>
    </message>
    <message>
        <source>kaleidoscope, mirror, mandala, symmetry, star, snowflake</source>
        <translation>kaléidoscope, miroir, mandala, symétrie, étoile, flocon</translation>
    </message>
    <message>
        <source>kaleidoscope, mirror, triangle, symmetry, fade, pattern</source>
        <translation>kaléidoscope, miroir, triangle, symétrie, motif</translation>
    </message>
    <message>
        <source>kernel, column, custom filter, weights</source>
        <translation>noyau, colonne, filtre personnel, poids</translation>
    </message>
    <message>
        <source>kernel, matrix, custom filter, weights</source>
        <translation>noyau, matrice, filtre personnel, poids</translation>
    </message>
    <message>
        <source>kernel, matrix, custom filter, weights, emboss</source>
        <translation>noyau, matrice, filtre personnel, poids, estamper</translation>
    </message>
    <message>
        <source>kernel, matrix, emboss, sharpen, custom filter, weights, edge</source>
        <translation>noyau, matrice, estamper, accentuer, filtre personnel, poids, contours</translation>
    </message>
    <message>
        <source>kernel, row, custom filter, weights</source>
        <translation>noyau, ligne, filtre personnel, poids</translation>
    </message>
    <message>
        <source>keystone, perspective, converging lines, buildings, architecture, straighten</source>
        <translation>trapèze, redresser, perspective, lignes convergentes, bâtiments, architecture</translation>
    </message>
    <message>
        <source>keystone, perspective, converging lines, facade, straighten</source>
        <translation>trapèze, redresser, perspective, lignes convergentes, façade</translation>
    </message>
    <message>
        <source>keystone, perspective, falling lines, converging lines, buildings, architecture, tower, straighten</source>
        <translation>trapèze, redresser, perspective, lignes fuyantes, bâtiments, architecture, tour</translation>
    </message>
    <message>
        <source>lab, cielab, color space, convert</source>
        <translation>lab, cielab, espace de couleurs, convertir</translation>
    </message>
    <message>
        <source>lab, cielab, color space, convert, analysis</source>
        <translation>lab, cielab, espace de couleurs, convertir, analyse</translation>
    </message>
    <message>
        <source>lens blur, out of focus, blur, defocus, bokeh, disc</source>
        <translation>flou d’objectif, flou, flouter, bokeh, disque, mise au point</translation>
    </message>
    <message>
        <source>lighter, blend mode, maximum, fireworks, star trails</source>
        <translation>plus clair, éclaircir, mode de fusion, maximum, feu d’artifice</translation>
    </message>
    <message>
        <source>lightest, bright gray, grayscale, black and white, value</source>
        <translation>plus clair, gris clair, niveaux de gris, noir et blanc</translation>
    </message>
    <message>
        <source>linear light, contrast, blend mode</source>
        <translation>lumière linéaire, contraste, mode de fusion</translation>
    </message>
    <message>
        <source>lines, engraving, etching, banknote, halftone, scan lines, woodcut</source>
        <translation>lignes, gravure, eau-forte, billet de banque, trame, gravure sur bois</translation>
    </message>
    <message>
        <source>lines, rays, burst, beams, starburst, speed lines</source>
        <translation>lignes, rayons, gerbe, faisceau</translation>
    </message>
    <message>
        <source>luminosity, lightness, blend mode</source>
        <translation>luminosité, clarté, mode de fusion</translation>
    </message>
    <message>
        <source>lut, color grading, color lookup, cube, 3d lut, look up table, grade</source>
        <translation>lut, étalonnage, table de couleurs, espace de couleurs</translation>
    </message>
    <message>
        <source>lut, color grading, color lookup, cube, film look, 3d lut, look up table, grade, cinematic</source>
        <translation>lut, étalonnage, table de couleurs, rendu de film, cinéma</translation>
    </message>
    <message>
        <source>magnifier, glass, lens, bar, rod, loupe</source>
        <translation>loupe, verre, lentille, barre</translation>
    </message>
    <message>
        <source>mask, composite, blend, background, combine, blue</source>
        <translation>masque, fondre, fond, montage, combiner, bleu</translation>
    </message>
    <message>
        <source>mask, composite, blend, background, combine, red</source>
        <translation>masque, fondre, fond, montage, combiner, rouge</translation>
    </message>
    <message>
        <source>mask, composite, blend, background, cut out, combine, alpha, replace background</source>
        <translation>masque, fondre, fond, détourer, montage, combiner, remplacer le fond</translation>
    </message>
    <message>
        <source>mask, composite, blend, background, cut out, combine, replace background, layer mask</source>
        <translation>masque, fondre, fond, détourer, montage, combiner, remplacer le fond</translation>
    </message>
    <message>
        <source>mask, cut out, intersect, inside, composite</source>
        <translation>masque, découper, intersection, dedans, montage</translation>
    </message>
    <message>
        <source>mask, cut out, outside, punch out, composite</source>
        <translation>masque, découper, dehors, perforer, montage</translation>
    </message>
    <message>
        <source>mask, dissolve, crumble, disintegrate, transition</source>
        <translation>masque, dissoudre, effriter, transition</translation>
    </message>
    <message>
        <source>maximum, brightest, lightest, statistics</source>
        <translation>maximum, plus clair, statistique</translation>
    </message>
    <message>
        <source>maximum, lighter, lighten, blend</source>
        <translation>maximum, plus clair, éclaircir, mélanger</translation>
    </message>
    <message>
        <source>maximum, opaque, opacity, alpha, statistics</source>
        <translation>maximum, opaque, opacité, alpha, statistique</translation>
    </message>
    <message>
        <source>minimum, darker, darken, blend</source>
        <translation>minimum, plus sombre, assombrir, mélanger</translation>
    </message>
    <message>
        <source>minimum, darkest, statistics</source>
        <translation>minimum, plus sombre, statistique</translation>
    </message>
    <message>
        <source>minimum, maximum, range, contrast, statistics</source>
        <translation>minimum, maximum, plage, contraste, statistique</translation>
    </message>
    <message>
        <source>minimum, maximum, range, red, statistics</source>
        <translation>minimum, maximum, plage, rouge, statistique</translation>
    </message>
    <message>
        <source>minimum, transparent, opacity, alpha, statistics</source>
        <translation>minimum, transparent, opacité, alpha, statistique</translation>
    </message>
    <message>
        <source>mirror, pattern, kaleidoscope, hexagon, tile, snowflake, symmetry</source>
        <translation>miroir, motif, kaléidoscope, hexagone, carreaux, flocon, symétrie</translation>
    </message>
    <message>
        <source>mirror, pattern, kaleidoscope, tile, symmetry, star, rosette</source>
        <translation>miroir, motif, kaléidoscope, carreaux, symétrie, étoile, rosace</translation>
    </message>
    <message>
        <source>mirror, pattern, kaleidoscope, tile, symmetry, wallpaper, ornament</source>
        <translation>miroir, motif, kaléidoscope, carreaux, symétrie, papier peint, ornement</translation>
    </message>
    <message>
        <source>mirror, pattern, tile, symmetry, wallpaper, reflect, ornament</source>
        <translation>miroir, motif, carreaux, symétrie, papier peint, ornement</translation>
    </message>
    <message>
        <source>monochrome, tint, colorize, one color, cyanotype, toned, blue tint, duotone</source>
        <translation>monochrome, teinter, coloriser, une couleur, cyanotype, camaïeu</translation>
    </message>
    <message>
        <source>motion, speed, movement, blur, panning, camera shake, directional blur</source>
        <translation>mouvement, vitesse, flou de bougé, flou, filé, bougé</translation>
    </message>
    <message>
        <source>multiply, darken, blend, mask</source>
        <translation>multiplier, assombrir, mélanger, masque</translation>
    </message>
    <message>
        <source>multiply, darken, shadow, slide, blend mode, texture</source>
        <translation>produit, multiplier, assombrir, ombre, mode de fusion, texture</translation>
    </message>
    <message>
        <source>nearest neighbor, hard pixels, pixel art, no smoothing, enlarge</source>
        <translation>plus proche voisin, pixels durs, pixel art, sans lissage, agrandir</translation>
    </message>
    <message>
        <source>negative, invert, inverse, reverse colors, film negative, opposite</source>
        <translation>négatif, inverser, invertir, contraire, inverser les couleurs</translation>
    </message>
    <message>
        <source>newspaper, halftone, dots, newsprint, print, raster, black and white dots</source>
        <translation>journal, trame, points, impression</translation>
    </message>
    <message>
        <source>noise, random, static, color noise, snow, tv snow, texture, grain</source>
        <translation>bruit, aléatoire, hasard, neige de télévision, neige, texture</translation>
    </message>
    <message>
        <source>op art, tiles, optical art, mosaic, squares, pattern</source>
        <translation>op art, carreaux, mosaïque, carrés, motif</translation>
    </message>
    <message>
        <source>outline, edges, neon, contour, morphology</source>
        <translation>contour, bords, néon, silhouette, morphologie</translation>
    </message>
    <message>
        <source>overlay, contrast, texture, blend mode</source>
        <translation>incrustation, superposer, contraste, texture, mode de fusion</translation>
    </message>
    <message>
        <source>overlay, on top, layer, normal, composite, watermark</source>
        <translation>superposer, dessus, calque, normal, montage, filigrane</translation>
    </message>
    <message>
        <source>page, turn page, book, curl, shadow, transition</source>
        <translation>page, tourner la page, livre, enrouler, ombre, transition</translation>
    </message>
    <message>
        <source>page, turn page, book, curl, transition</source>
        <translation>page, tourner la page, livre, enrouler, transition</translation>
    </message>
    <message>
        <source>palette, center of color, color position, analysis, tracking</source>
        <translation>palette, centre, position des couleurs, analyse</translation>
    </message>
    <message>
        <source>palette, main colors, dominant colors, color scheme, clusters</source>
        <translation>palette, couleurs principales, couleurs dominantes, groupes</translation>
    </message>
    <message>
        <source>palette, reduce colors, limited colors, 8 bit, retro game, indexed color, gif, pixel art</source>
        <translation>palette, réduire les couleurs, peu de couleurs, couleurs indexées, pixel art, gif</translation>
    </message>
    <message>
        <source>patchwork, patches, camouflage, blotches, quilt, texture</source>
        <translation>patchwork, taches, camouflage, pièces, texture</translation>
    </message>
    <message>
        <source>pattern, hexagon, rotate, tile, symmetry, ornament</source>
        <translation>motif, hexagone, tourner, carreaux, symétrie, ornement</translation>
    </message>
    <message>
        <source>pattern, mirror, tile, slanted, zigzag, wallpaper</source>
        <translation>motif, miroir, carreaux, penché, zigzag, papier peint</translation>
    </message>
    <message>
        <source>pattern, mirror, tile, wallpaper, footprints, frieze, ornament</source>
        <translation>motif, miroir, carreaux, papier peint, frise, ornement</translation>
    </message>
    <message>
        <source>pattern, repeat, tile, wallpaper, ornament</source>
        <translation>motif, répéter, carreaux, papier peint, ornement</translation>
    </message>
    <message>
        <source>pattern, rotate, tile, symmetry, wallpaper, pinwheel, ornament</source>
        <translation>motif, tourner, carreaux, symétrie, papier peint, moulinet, ornement</translation>
    </message>
    <message>
        <source>pencil, sketch, drawing, pencil drawing, hand drawn, graphite, draw</source>
        <translation>crayon, croquis, dessin, dessin au crayon, esquisse, dessiner</translation>
    </message>
    <message>
        <source>pencil, sketch, line drawing, drawing, outline, ink, coloring page, contour, charcoal</source>
        <translation>crayon, croquis, dessin au trait, dessin, contour, encre, coloriage, fusain</translation>
    </message>
    <message>
        <source>perspective, corners, distort, 3d, part</source>
        <translation>perspective, coins, déformer, 3d, partie</translation>
    </message>
    <message>
        <source>perspective, corners, distort, 3d, skew, mockup, billboard</source>
        <translation>perspective, coins, déformer, 3d, affiche</translation>
    </message>
    <message>
        <source>perspective, straighten, scan, whiteboard, document, deskew, unwarp, rectify</source>
        <translation>redresser, perspective, numériser, tableau, document, page, panneau</translation>
    </message>
    <message>
        <source>pin light, replace, blend mode</source>
        <translation>lumière ponctuelle, remplacer, mode de fusion</translation>
    </message>
    <message>
        <source>pinch, squeeze, shrink, slim, suck in</source>
        <translation>pincer, resserrer, rétrécir, amincir, aspirer</translation>
    </message>
    <message>
        <source>pixelate, mosaic, pixel art, censor, hide face, pixel, 8 bit, blocks, anonymize, retro game</source>
        <translation>pixeliser, mosaïque, pixel art, censurer, pixels, cacher un visage, anonymiser, 8 bits, jeu rétro</translation>
    </message>
    <message>
        <source>plasma, clouds, psychedelic, colorful, waves, disco, hippie, tie dye</source>
        <translation>plasma, nuages, psychédélique, coloré, vagues, disco</translation>
    </message>
    <message>
        <source>pointillism, impressionism, painting, dots, paint, brush, art, oil painting, watercolor</source>
        <translation>pointillisme, impressionnisme, peinture, points, peindre, pinceau, art, peinture à l’huile, aquarelle</translation>
    </message>
    <message>
        <source>polaroid, instant camera, retro, vintage, old photo, film, look, seventies, 70s</source>
        <translation>photo instantanée, polaroid, rétro, vintage, vieille photo, film, rendu, années 70</translation>
    </message>
    <message>
        <source>poster, posterize, pop art, flat colors, reduce colors, levels, screen print, banding</source>
        <translation>affiche, postériser, poster, pop art, réduire les couleurs, aplats, sérigraphie, isohélie</translation>
    </message>
    <message>
        <source>qr code, qr, barcode, link, web address, url, 2d code, scan code</source>
        <translation>qr code, qr, code-barres, lien, adresse web, url, code 2d</translation>
    </message>
    <message>
        <source>remove specks, denoise, despeckle, dust, salt and pepper, noise, scratches, clean</source>
        <translation>enlever les taches, débruiter, poussière, rayures, bruit, nettoyer</translation>
    </message>
    <message>
        <source>repeat, nine patch, 9-slice, frame, corners, tile</source>
        <translation>répéter, cadre, coins, carreaux</translation>
    </message>
    <message>
        <source>repeat, pattern, tile, wallpaper, seamless, step and repeat</source>
        <translation>répéter, motif, carreaux, papier peint, sans raccord</translation>
    </message>
    <message>
        <source>replace color, change color, selective color, color swap, recolor, poster, posterize</source>
        <translation>remplacer une couleur, changer une couleur, couleur sélective, recolorer, affiche</translation>
    </message>
    <message>
        <source>resize, scale, enlarge, shrink, downscale, upscale, size, thumbnail</source>
        <translation>taille, redimensionner, agrandir, réduire, échelle, vignette</translation>
    </message>
    <message>
        <source>resize, scale, enlarge, shrink, upscale, interpolation</source>
        <translation>taille, redimensionner, agrandir, réduire, échelle</translation>
    </message>
    <message>
        <source>resize, scale, shrink, stars, bright spots</source>
        <translation>taille, redimensionner, réduire, étoiles, points lumineux</translation>
    </message>
    <message>
        <source>ring, glass, lens, donut, torus, magnifier, water drop</source>
        <translation>anneau, verre, lentille, bouée, loupe, goutte d’eau</translation>
    </message>
    <message>
        <source>rings, halftone, circles, engraving, screen print</source>
        <translation>anneaux, trame, cercles, gravure</translation>
    </message>
    <message>
        <source>rosette, spirograph, ellipses, guilloche, flower, pattern, ornament</source>
        <translation>rosace, spirographe, ellipses, guilloche, fleur, motif, ornement</translation>
    </message>
    <message>
        <source>rotate, move, scale, skew, slant, flip, mirror, shift, turn</source>
        <translation>tourner, pivoter, déplacer, échelle, incliner, rotation, retourner, miroir</translation>
    </message>
    <message>
        <source>rotate, tilt, 3d, perspective, camera, pitch, yaw, roll</source>
        <translation>tourner, incliner, basculer, 3d, perspective, appareil</translation>
    </message>
    <message>
        <source>rounded corners, box, rectangle, shape, button, card, panel</source>
        <translation>coins ronds, rectangle, boîte, forme, carte, arrondi</translation>
    </message>
    <message>
        <source>saturation, desaturate, blend mode</source>
        <translation>saturation, désaturer, mode de fusion</translation>
    </message>
    <message>
        <source>scan, document, scanner, paper, whiten, receipt, whiteboard, text, readable, remove shadow</source>
        <translation>scan, document, scanner, numériser, papier, reçu, ticket, tableau, lisible, ombre</translation>
    </message>
    <message>
        <source>screen, lighten, brighten, light leak, double exposure, blend mode</source>
        <translation>superposition, éclaircir, surimpression, mode de fusion</translation>
    </message>
    <message>
        <source>selective blur, tilt shift, partial blur, blur background, mask blur, depth, gradient blur</source>
        <translation>flou partiel, arrière-plan flou, flou, masque, bascule, profondeur, flouter</translation>
    </message>
    <message>
        <source>sepia, old photo, vintage, brown, antique, nostalgic, retro, western, old</source>
        <translation>sépia, vieille photo, vintage, brun, ancien, nostalgie, rétro, vieux</translation>
    </message>
    <message>
        <source>shadows, highlights, hdr, backlight, dynamic range, brighten shadows, fill light, recover, dark faces</source>
        <translation>ombres, hautes lumières, hdr, contre-jour, déboucher les ombres, éclaircir, visages sombres</translation>
    </message>
    <message>
        <source>shapes, confetti, circles, rectangles, flowers, balloons, random shapes, bubbles, decoration</source>
        <translation>formes, confettis, cercles, rectangles, fleurs, ballons, formes au hasard, bulles</translation>
    </message>
    <message>
        <source>sharpen, sharpness, detail, clarity, local contrast, structure, crisp, unsharp</source>
        <translation>netteté, accentuer, renforcer, clarté, détails, contraste local, structure, net</translation>
    </message>
    <message>
        <source>sharpen, sharpness, detail, crisp, focus, clear</source>
        <translation>netteté, accentuer, renforcer, détails, net</translation>
    </message>
    <message>
        <source>soft light, contrast, blend mode, gentle</source>
        <translation>lumière tamisée, lumière douce, contraste, mode de fusion</translation>
    </message>
    <message>
        <source>soft rectangle, shadow, drop shadow, box, glow, panel</source>
        <translation>rectangle doux, ombre, ombre portée, boîte, lueur</translation>
    </message>
    <message>
        <source>soften, blur, average, smooth</source>
        <translation>adoucir, flou, lisser, moyenne, flouter</translation>
    </message>
    <message>
        <source>spotlight, lamp, lighting, stage light, flashlight, dark surroundings</source>
        <translation>projecteur, lampe, éclairage, lumière de scène, lampe de poche</translation>
    </message>
    <message>
        <source>srgb, linear, gamma, convert, color space</source>
        <translation>srgb, linéaire, gamma, convertir, espace de couleurs</translation>
    </message>
    <message>
        <source>srgb, linear, gamma, convert, color space, raw</source>
        <translation>srgb, linéaire, gamma, convertir, espace de couleurs</translation>
    </message>
    <message>
        <source>stained glass, crystal, mosaic, low poly, polygons, cells, voronoi, shards</source>
        <translation>vitrail, cristal, mosaïque, polygones, cellules, éclats</translation>
    </message>
    <message>
        <source>star, sparkle, lens flare, shine, glitter, glint, twinkle, light, cross</source>
        <translation>étoile, scintillement, paillettes, reflet d’objectif, éclat, lumière, croix</translation>
    </message>
    <message>
        <source>straighten, horizon, level, rotate, tilt, crooked</source>
        <translation>redresser, horizon, niveau, tourner, penché, de travers</translation>
    </message>
    <message>
        <source>streaks, radial, splash, stretched pixels, rays</source>
        <translation>rayons, traînées, cercle, éclaboussure</translation>
    </message>
    <message>
        <source>stretch, nine patch, 9-slice, widen, frame, corners</source>
        <translation>étirer, cadre, coins, élargir</translation>
    </message>
    <message>
        <source>stripes, lines, bars, pattern, zebra</source>
        <translation>rayures, lignes, bandes, motif, zèbre</translation>
    </message>
    <message>
        <source>subtract, minus, darken, blend mode</source>
        <translation>soustraire, moins, assombrir, mode de fusion</translation>
    </message>
    <message>
        <source>sun, sun rays, sunbeams, rays of light, lens flare, sunshine, god rays, light</source>
        <translation>soleil, rayons de soleil, rayons de lumière, reflet d’objectif, lumière</translation>
    </message>
    <message>
        <source>swirl, twirl, twist, whirl, spiral, rotate</source>
        <translation>tourbillon, tordre, torsion, spirale, tourner</translation>
    </message>
    <message>
        <source>text, caption, meme, title, lettering, watermark, write, words, font, typography</source>
        <translation>texte, légende, mème, meme, titre, filigrane, écrire, police</translation>
    </message>
    <message>
        <source>text, caption, title, lettering, colored text, font, write, words, quote</source>
        <translation>texte, légende, titre, texte coloré, police, écrire, citation</translation>
    </message>
    <message>
        <source>threshold, automatic threshold, black and white, stencil, binary, text, silhouette, photocopy, line art</source>
        <translation>seuil, seuil automatique, noir et blanc, pochoir, texte, silhouette, photocopie</translation>
    </message>
    <message>
        <source>threshold, stencil, two tone, hard black and white, photocopy, pop art, silhouette, binary, fax</source>
        <translation>seuil, pochoir, deux tons, noir et blanc dur, photocopie, silhouette, pop art</translation>
    </message>
    <message>
        <source>tilt shift, miniature, depth of field, toy town, shallow focus, diorama, model, background blur</source>
        <translation>bascule, tilt-shift, miniature, profondeur de champ, maquette, jouet, arrière-plan flou</translation>
    </message>
    <message>
        <source>tiny planet, polar, wrap, circle, ring, arc, bend, little planet</source>
        <translation>petite planète, cercle, anneau, arc, courber, polaire, enrouler</translation>
    </message>
    <message>
        <source>transparent, alpha, mask, see through, transparency, remove background, knock out</source>
        <translation>transparent, alpha, masque, transparence, enlever le fond</translation>
    </message>
    <message>
        <source>triangles, pattern, tile, symmetry, wallpaper</source>
        <translation>triangles, motif, carreaux, symétrie, papier peint</translation>
    </message>
    <message>
        <source>tunnel, spiral, whirl, time tunnel, vortex, wormhole</source>
        <translation>tunnel, spirale, tourbillon, trou de ver</translation>
    </message>
    <message>
        <source>two luts, lut, color grading, mask, local grading, look up table</source>
        <translation>deux lut, lut, étalonnage, masque, local, table de couleurs</translation>
    </message>
    <message>
        <source>upsample, upscale, enlarge, edges, depth map, super resolution</source>
        <translation>agrandir, suréchantillonner, contours, carte de profondeur</translation>
    </message>
    <message>
        <source>vibrance, vivid, saturation, colorful, skin tones, boost colors, lively, dull colors</source>
        <translation>vibrance, vif, saturation, couleurs vives, tons chair, raviver, couleurs ternes</translation>
    </message>
    <message>
        <source>vignette, dark corners, darken edges, lens, frame, border, lomo</source>
        <translation>vignettage, vignette, coins sombres, assombrir les bords, cadre, bord, lomo</translation>
    </message>
    <message>
        <source>vignette, dark edges, darken edges, spotlight, circle, focus, frame, highlight subject</source>
        <translation>vignettage, vignette, bords sombres, assombrir les bords, cercle, cadre</translation>
    </message>
    <message>
        <source>vivid light, contrast, strong, blend mode</source>
        <translation>lumière vive, contraste, fort, mode de fusion</translation>
    </message>
    <message>
        <source>vivid, slide film, strong colors, punchy, film, look, saturated, chrome, summer</source>
        <translation>vif, diapositive, couleurs vives, film, rendu, éclatant, chrome, été</translation>
    </message>
    <message>
        <source>vortex, whirlpool, swirl, twist, whirl, spiral, tornado</source>
        <translation>tourbillon, vortex, tordre, spirale, tornade</translation>
    </message>
    <message>
        <source>warm, vintage, retro, old photo, golden, sunset, film, look, cozy</source>
        <translation>chaud, vintage, rétro, vieille photo, doré, coucher de soleil, film, rendu</translation>
    </message>
    <message>
        <source>water, wave, ripple, pond, drop, transition</source>
        <translation>eau, onde, vague, étang, goutte, transition</translation>
    </message>
    <message>
        <source>white balance, temperature, color temperature, tint, warm, cool, warmer, cooler, kelvin, color cast, orange, indoor light</source>
        <translation>balance des blancs, température de couleur, température, teinte, chaud, froid, kelvin, dominante</translation>
    </message>
    <message>
        <source>white balance, white point, tint, color cast, warm, cool, color filter</source>
        <translation>balance des blancs, point blanc, teinte, dominante, chaud, froid, filtre coloré</translation>
    </message>
    <message>
        <source>wipe, swipe, slide, transition</source>
        <translation>balayer, volet, glisser, transition</translation>
    </message>
    <message>
        <source>woodcut, linocut, engraving, line drawing, drawing, stencil, scraper board</source>
        <translation>gravure sur bois, linogravure, gravure, dessin au trait, dessin, pochoir</translation>
    </message>
    <message>
        <source>x-ray, xray, radiograph, negative, bones, medical, hospital</source>
        <translation>rayons x, radiographie, radio, négatif, os, médecine</translation>
    </message>
    <message>
        <source>zoom, speed, radial blur, blur, explosion, rush, tunnel</source>
        <translation>zoom, vitesse, flou radial, flou, explosion, aspiration</translation>
    </message>
</context>
<context>
    <name>FilterView</name>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
</context>
<context>
    <name>HelpPage</name>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>A page of the help book; links lead to the others</source>
        <translation>Une page du livre d’aide&#xa0;; les liens mènent aux autres</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Lumivex Help</source>
        <translation>Aide de Lumivex</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>The pages of the help book</source>
        <translation>Les pages du livre d’aide</translation>
    </message>
</context>
<context>
    <name>HistogramView</name>
    <message>
        <source>Histogram</source>
        <translation>Histogramme</translation>
    </message>
    <message>
        <source>There is no picture.</source>
        <translation>Il n’y a pas d’image.</translation>
    </message>
    <message>
        <source>Mean brightness %1 %, black %2 %, white %3 %</source>
        <translation>Luminosité moyenne %1&#xa0;%, noir %2&#xa0;%, blanc %3&#xa0;%</translation>
    </message>
    <message>
        <source>How often each brightness is seen, from black to white.
%1</source>
        <translation>La fréquence de chaque luminosité, du noir au blanc.
%1</translation>
    </message>
    <message>
        <source>Luma</source>
        <translation>Luminance</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
</context>
<context>
    <name>ImageInfo</name>
    <message>
        <source>Image Information</source>
        <translation>Informations sur l’image</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Fichier&#xa0;:</translation>
    </message>
    <message>
        <source>n/a</source>
        <translation>s.o.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Where the picture&apos;s file is</source>
        <translation>L’emplacement du fichier de l’image</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Type&#xa0;:</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>What the file&apos;s content is, whatever its name says</source>
        <translation>Ce que contient le fichier, quel que soit son nom</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Taille&#xa0;:</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Of the file on the disk</source>
        <translation>Du fichier sur le disque</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>All that the file says about its picture</source>
        <translation>Tout ce que le fichier dit de son image</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Propriété</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>PNG Image</source>
        <translation>Image PNG</translation>
    </message>
    <message>
        <source>GIF Image</source>
        <translation>Image GIF</translation>
    </message>
    <message>
        <source>JPG Image</source>
        <translation>Image JPG</translation>
    </message>
    <message>
        <source>WebP Image</source>
        <translation>Image WebP</translation>
    </message>
    <message>
        <source>TIFF Image</source>
        <translation>Image TIFF</translation>
    </message>
    <message>
        <source>BMP Image</source>
        <translation>Image BMP</translation>
    </message>
    <message>
        <source>SVG Image</source>
        <translation>Image SVG</translation>
    </message>
    <message>
        <source>RAW Image</source>
        <translation>Image RAW</translation>
    </message>
    <message>
        <source>PDF Image</source>
        <translation>Image PDF</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 octets</translation>
    </message>
</context>
<context>
    <name>Input</name>
    <message>
        <source>A Vector</source>
        <translation>Vecteur A</translation>
    </message>
    <message>
        <source>A larger image to use as a guide.</source>
        <translation>Image guide</translation>
    </message>
    <message>
        <source>Acute Angle</source>
        <translation>Angle aigu</translation>
    </message>
    <message>
        <source>Alpha Coefficients</source>
        <translation>Alpha</translation>
    </message>
    <message>
        <source>Alpha Vector</source>
        <translation>Vecteur alpha</translation>
    </message>
    <message>
        <source>Always Specify Compaction</source>
        <translation>Indiquer la forme</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Quantité</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>Rapport l/h</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>B Vector</source>
        <translation>Vecteur B</translation>
    </message>
    <message>
        <source>Background Image</source>
        <translation>Image de fond</translation>
    </message>
    <message>
        <source>Backside Image</source>
        <translation>Verso</translation>
    </message>
    <message>
        <source>Bar Offset</source>
        <translation>Décalage</translation>
    </message>
    <message>
        <source>Barcode Height</source>
        <translation>Hauteur code</translation>
    </message>
    <message>
        <source>Bias</source>
        <translation>Biais</translation>
    </message>
    <message>
        <source>Bias Vector</source>
        <translation>Biais</translation>
    </message>
    <message>
        <source>Blue Coefficients</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Blue Vector</source>
        <translation>Vecteur bleu</translation>
    </message>
    <message>
        <source>Bottom Height</source>
        <translation>Hauteur bas</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>Breakpoint 0</source>
        <translation>Inflexion 0</translation>
    </message>
    <message>
        <source>Breakpoint 1</source>
        <translation>Inflexion 1</translation>
    </message>
    <message>
        <source>Breakpoint0</source>
        <translation>Inflexion 0</translation>
    </message>
    <message>
        <source>Breakpoint1</source>
        <translation>Inflexion 1</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>C</source>
        <translation>C</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>Center Color 1</source>
        <translation>Centre 1</translation>
    </message>
    <message>
        <source>Center Color 2</source>
        <translation>Centre 2</translation>
    </message>
    <message>
        <source>Center Color 3</source>
        <translation>Centre 3</translation>
    </message>
    <message>
        <source>Center Stretch Amount</source>
        <translation>Étirement</translation>
    </message>
    <message>
        <source>Closeness 1</source>
        <translation>Proximité 1</translation>
    </message>
    <message>
        <source>Closeness 2</source>
        <translation>Proximité 2</translation>
    </message>
    <message>
        <source>Closeness 3</source>
        <translation>Proximité 3</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Color 0</source>
        <translation>Couleur 0</translation>
    </message>
    <message>
        <source>Color 1</source>
        <translation>Couleur 1</translation>
    </message>
    <message>
        <source>Color 2</source>
        <translation>Couleur 2</translation>
    </message>
    <message>
        <source>Color Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Compact Style</source>
        <translation>Forme compacte</translation>
    </message>
    <message>
        <source>Compaction Mode</source>
        <translation>Compactage</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Compression</translation>
    </message>
    <message>
        <source>Concentration</source>
        <translation>Concentration</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Contrast 1</source>
        <translation>Contraste 1</translation>
    </message>
    <message>
        <source>Contrast 2</source>
        <translation>Contraste 2</translation>
    </message>
    <message>
        <source>Contrast 3</source>
        <translation>Contraste 3</translation>
    </message>
    <message>
        <source>Correction Level</source>
        <translation>Correction</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recadrer</translation>
    </message>
    <message>
        <source>Crop Amount</source>
        <translation>Recadrage</translation>
    </message>
    <message>
        <source>Cross Angle</source>
        <translation>Angle croix</translation>
    </message>
    <message>
        <source>Cross Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>Cross Scale</source>
        <translation>Taille croix</translation>
    </message>
    <message>
        <source>Cross Width</source>
        <translation>Largeur croix</translation>
    </message>
    <message>
        <source>Cube 0 Data</source>
        <translation>Données du cube 0</translation>
    </message>
    <message>
        <source>Cube 1 Data</source>
        <translation>Données du cube 1</translation>
    </message>
    <message>
        <source>Cube Data</source>
        <translation>Données du cube</translation>
    </message>
    <message>
        <source>Cube Dimension</source>
        <translation>Taille cube</translation>
    </message>
    <message>
        <source>Curves Data</source>
        <translation>Données des courbes</translation>
    </message>
    <message>
        <source>Curves Domain</source>
        <translation>Domaine des courbes</translation>
    </message>
    <message>
        <source>Data Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>Decay</source>
        <translation>Décroissance</translation>
    </message>
    <message>
        <source>Displacement Image</source>
        <translation>Déplacement</translation>
    </message>
    <message>
        <source>Dither</source>
        <translation>Tramage</translation>
    </message>
    <message>
        <source>E V</source>
        <translation>Valeur EV</translation>
    </message>
    <message>
        <source>EV</source>
        <translation>Valeur EV</translation>
    </message>
    <message>
        <source>Edge Intensity</source>
        <translation>Contours</translation>
    </message>
    <message>
        <source>Epsilon</source>
        <translation>Epsilon</translation>
    </message>
    <message>
        <source>Extent</source>
        <translation>Étendue</translation>
    </message>
    <message>
        <source>Extrapolate</source>
        <translation>Extrapoler</translation>
    </message>
    <message>
        <source>Fade Threshold</source>
        <translation>Seuil</translation>
    </message>
    <message>
        <source>Falloff</source>
        <translation>Atténuation</translation>
    </message>
    <message>
        <source>Flip Y Tiles</source>
        <translation>Retourner en Y</translation>
    </message>
    <message>
        <source>Focal Length</source>
        <translation>Focale</translation>
    </message>
    <message>
        <source>Fold Shadow Amount</source>
        <translation>Ombre plis</translation>
    </message>
    <message>
        <source>Font Name</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Font Size</source>
        <translation>Corps</translation>
    </message>
    <message>
        <source>G C R</source>
        <translation>GCR</translation>
    </message>
    <message>
        <source>G Vector</source>
        <translation>Vecteur V</translation>
    </message>
    <message>
        <source>Gaussian Sigma</source>
        <translation>Sigma gauss.</translation>
    </message>
    <message>
        <source>Gradient Image</source>
        <translation>Dégradé</translation>
    </message>
    <message>
        <source>Gray Component Replacement</source>
        <translation>Gris (GCR)</translation>
    </message>
    <message>
        <source>Green Coefficients</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Green Vector</source>
        <translation>Vecteur vert</translation>
    </message>
    <message>
        <source>Grow Amount</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Guide Image</source>
        <translation>Image guide</translation>
    </message>
    <message>
        <source>Halo Overlap</source>
        <translation>Recouvrement</translation>
    </message>
    <message>
        <source>Halo Radius</source>
        <translation>Rayon du halo</translation>
    </message>
    <message>
        <source>Halo Width</source>
        <translation>Largeur halo</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>High Limit</source>
        <translation>Limite haute</translation>
    </message>
    <message>
        <source>Highlight Amount</source>
        <translation>Tons clairs</translation>
    </message>
    <message>
        <source>Hysteresis Passes</source>
        <translation>Hystérésis</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Image 2</source>
        <translation>Image 2</translation>
    </message>
    <message>
        <source>Image2</source>
        <translation>Image 2</translation>
    </message>
    <message>
        <source>Inset Point 0</source>
        <translation>Point intérieur 0</translation>
    </message>
    <message>
        <source>Inset Point 1</source>
        <translation>Point intérieur 1</translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation>Intensité</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Couches</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>Niveaux</translation>
    </message>
    <message>
        <source>Light Points At</source>
        <translation>Cible lumière</translation>
    </message>
    <message>
        <source>Light Position</source>
        <translation>Lumière</translation>
    </message>
    <message>
        <source>Low Limit</source>
        <translation>Limite basse</translation>
    </message>
    <message>
        <source>Luma Sigma</source>
        <translation>Sigma luma</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>Masque</translation>
    </message>
    <message>
        <source>Mask Image</source>
        <translation>Masque</translation>
    </message>
    <message>
        <source>Max Components</source>
        <translation>Maximums</translation>
    </message>
    <message>
        <source>Max Height</source>
        <translation>Hauteur max.</translation>
    </message>
    <message>
        <source>Max Striation Radius</source>
        <translation>Rayon stries</translation>
    </message>
    <message>
        <source>Max Width</source>
        <translation>Largeur max.</translation>
    </message>
    <message>
        <source>Maximum Distance</source>
        <translation>Distance max.</translation>
    </message>
    <message>
        <source>Maximum Stop</source>
        <translation>Diaph. max.</translation>
    </message>
    <message>
        <source>Maximum Striation Radius</source>
        <translation>Rayon stries</translation>
    </message>
    <message>
        <source>Means</source>
        <translation>Moyennes</translation>
    </message>
    <message>
        <source>Mesh</source>
        <translation>Maillage</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Min Components</source>
        <translation>Minimums</translation>
    </message>
    <message>
        <source>Min Height</source>
        <translation>Hauteur min.</translation>
    </message>
    <message>
        <source>Min Width</source>
        <translation>Largeur min.</translation>
    </message>
    <message>
        <source>Minimum Stop</source>
        <translation>Diaph. min.</translation>
    </message>
    <message>
        <source>N R Noise Level</source>
        <translation>Bruit</translation>
    </message>
    <message>
        <source>N R Sharpness</source>
        <translation>Netteté</translation>
    </message>
    <message>
        <source>NR Noise Level</source>
        <translation>Bruit</translation>
    </message>
    <message>
        <source>NR Sharpness</source>
        <translation>Netteté</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>Neutre</translation>
    </message>
    <message>
        <source>Noise Level</source>
        <translation>Bruit</translation>
    </message>
    <message>
        <source>Normalize</source>
        <translation>Normaliser</translation>
    </message>
    <message>
        <source>Number Of Folds</source>
        <translation>Plis</translation>
    </message>
    <message>
        <source>Number of Folds</source>
        <translation>Plis</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>Padding</source>
        <translation>Marge</translation>
    </message>
    <message>
        <source>Palette Image</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Passes</source>
        <translation>Passes</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>Perceptif</translation>
    </message>
    <message>
        <source>Periodicity</source>
        <translation>Périodicité</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Tangage</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Point</translation>
    </message>
    <message>
        <source>Point 0</source>
        <translation>Point 0</translation>
    </message>
    <message>
        <source>Point 1</source>
        <translation>Point 1</translation>
    </message>
    <message>
        <source>Point 2</source>
        <translation>Point 2</translation>
    </message>
    <message>
        <source>Point 3</source>
        <translation>Point 3</translation>
    </message>
    <message>
        <source>Point 4</source>
        <translation>Point 4</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Puissance</translation>
    </message>
    <message>
        <source>Preferred Aspect Ratio</source>
        <translation>Rapport l/h</translation>
    </message>
    <message>
        <source>Quiet Space</source>
        <translation>Marge claire</translation>
    </message>
    <message>
        <source>R Vector</source>
        <translation>Vecteur R</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Rayon</translation>
    </message>
    <message>
        <source>Radius 0</source>
        <translation>Rayon 0</translation>
    </message>
    <message>
        <source>Radius 1</source>
        <translation>Rayon 1</translation>
    </message>
    <message>
        <source>Radius 2</source>
        <translation>Rayon 2</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>Red Coefficients</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Red Vector</source>
        <translation>Vecteur rouge</translation>
    </message>
    <message>
        <source>Refraction</source>
        <translation>Réfraction</translation>
    </message>
    <message>
        <source>Replacement Color 1</source>
        <translation>Substitut 1</translation>
    </message>
    <message>
        <source>Replacement Color 2</source>
        <translation>Substitut 2</translation>
    </message>
    <message>
        <source>Replacement Color 3</source>
        <translation>Substitut 3</translation>
    </message>
    <message>
        <source>Ring Amount</source>
        <translation>Force anneau</translation>
    </message>
    <message>
        <source>Ring Size</source>
        <translation>Taille anneau</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Roulis</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Échelle</translation>
    </message>
    <message>
        <source>Scale Factor</source>
        <translation>Facteur</translation>
    </message>
    <message>
        <source>Shading Image</source>
        <translation>Ombrage</translation>
    </message>
    <message>
        <source>Shadow Amount</source>
        <translation>Ombres</translation>
    </message>
    <message>
        <source>Shadow Density</source>
        <translation>Densité ombre</translation>
    </message>
    <message>
        <source>Shadow Extent</source>
        <translation>Étendue ombre</translation>
    </message>
    <message>
        <source>Shadow Offset</source>
        <translation>Décal. ombre</translation>
    </message>
    <message>
        <source>Shadow Radius</source>
        <translation>Rayon ombre</translation>
    </message>
    <message>
        <source>Shadow Size</source>
        <translation>Taille ombre</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Netteté</translation>
    </message>
    <message>
        <source>Sigma</source>
        <translation>Sigma</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Small Image</source>
        <translation>Petite image</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Douceur</translation>
    </message>
    <message>
        <source>Source Headroom</source>
        <translation>Plage source</translation>
    </message>
    <message>
        <source>Spatial Sigma</source>
        <translation>Sigma spatial</translation>
    </message>
    <message>
        <source>Strands</source>
        <translation>Brins</translation>
    </message>
    <message>
        <source>Striation Contrast</source>
        <translation>Contr. stries</translation>
    </message>
    <message>
        <source>Striation Strength</source>
        <translation>Force stries</translation>
    </message>
    <message>
        <source>Sun Radius</source>
        <translation>Rayon soleil</translation>
    </message>
    <message>
        <source>Target Headroom</source>
        <translation>Plage cible</translation>
    </message>
    <message>
        <source>Target Image</source>
        <translation>Image cible</translation>
    </message>
    <message>
        <source>Target Neutral</source>
        <translation>Neutre cible</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>Texture</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Seuil</translation>
    </message>
    <message>
        <source>Threshold High</source>
        <translation>Seuil haut</translation>
    </message>
    <message>
        <source>Threshold Low</source>
        <translation>Seuil bas</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Transform</source>
        <translation>Transformation</translation>
    </message>
    <message>
        <source>U C R</source>
        <translation>UCR</translation>
    </message>
    <message>
        <source>Under Color Removal</source>
        <translation>Couleur (UCR)</translation>
    </message>
    <message>
        <source>Unsharp Mask Intensity</source>
        <translation>Masque flou</translation>
    </message>
    <message>
        <source>Unsharp Mask Radius</source>
        <translation>Rayon du flou</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Weights</source>
        <translation>Poids</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Yaw</source>
        <translation>Lacet</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
</context>
<context>
    <name>InputDescription</name>
    <message>
        <source>A point of the curve: brightness before and after, from 0 to 1.</source>
        <translation>Un point de la courbe : clarté avant et après, de 0 à 1.</translation>
    </message>
    <message>
        <source>A round picture that says how light falls on slopes of each direction.</source>
        <translation>Une image ronde qui dit comment la lumière tombe sur chaque pente.</translation>
    </message>
    <message>
        <source>A row of colors to begin with.</source>
        <translation>Une rangée de couleurs de départ.</translation>
    </message>
    <message>
        <source>A row of the colors that may be used.</source>
        <translation>Une rangée des couleurs permises.</translation>
    </message>
    <message>
        <source>Brings the values to 0 to 1, so that they can be shown.</source>
        <translation>Ramène les valeurs entre 0 et 1 pour les montrer.</translation>
    </message>
    <message>
        <source>From which brightness on something counts.</source>
        <translation>La clarté à partir de laquelle quelque chose compte.</translation>
    </message>
    <message>
        <source>Goes on beyond white and black as the table ends, instead of clipping.</source>
        <translation>Prolonge la table au-delà du blanc et du noir au lieu d’écrêter.</translation>
    </message>
    <message>
        <source>How abruptly the color is replaced.</source>
        <translation>La brusquerie du remplacement de la couleur.</translation>
    </message>
    <message>
        <source>How bright it is.</source>
        <translation>La clarté.</translation>
    </message>
    <message>
        <source>How bright the colors are.</source>
        <translation>La clarté des couleurs.</translation>
    </message>
    <message>
        <source>How colorful the picture is: 0 is gray, 1 as it was.</source>
        <translation>La vivacité des couleurs : 0 est gris, 1 inchangé.</translation>
    </message>
    <message>
        <source>How crisp the enlarged picture is.</source>
        <translation>Le piqué de l’image agrandie.</translation>
    </message>
    <message>
        <source>How dark the folds are.</source>
        <translation>L’ombre des plis.</translation>
    </message>
    <message>
        <source>How dark the lines are.</source>
        <translation>La noirceur des traits.</translation>
    </message>
    <message>
        <source>How dark the shadow is.</source>
        <translation>L’opacité de l’ombre.</translation>
    </message>
    <message>
        <source>How different in brightness neighbors may be and still count.</source>
        <translation>L’écart de clarté jusqu’où comptent les voisins.</translation>
    </message>
    <message>
        <source>How far from the middle the picture stays bright, as a share of half its diagonal.</source>
        <translation>Jusqu’où, depuis le milieu, l’image reste claire, en part de sa demi-diagonale.</translation>
    </message>
    <message>
        <source>How far light and dark are apart; 1 is as it was.</source>
        <translation>L’écart entre clair et sombre ; 1 est inchangé.</translation>
    </message>
    <message>
        <source>How far neighbors count.</source>
        <translation>Jusqu’où comptent les voisins.</translation>
    </message>
    <message>
        <source>How far the blur reaches, as a standard deviation in pixels.</source>
        <translation>L’étendue du flou, en écart type, en pixels.</translation>
    </message>
    <message>
        <source>How far the camera is turned about what it looks at.</source>
        <translation>De combien l’appareil est tourné autour de son axe.</translation>
    </message>
    <message>
        <source>How far the camera looks to the side.</source>
        <translation>De combien l’appareil regarde sur le côté.</translation>
    </message>
    <message>
        <source>How far the camera looks up or down.</source>
        <translation>De combien l’appareil regarde vers le haut ou le bas.</translation>
    </message>
    <message>
        <source>How far the change from one picture to the other has come: 0 is the first, 1 the second.</source>
        <translation>L’avancement du passage d’une image à l’autre : 0 est la première, 1 la seconde.</translation>
    </message>
    <message>
        <source>How far the colors of the ring lie over each other; 1 makes white.</source>
        <translation>Le recouvrement des couleurs de l’anneau ; 1 donne du blanc.</translation>
    </message>
    <message>
        <source>How far the cross is turned.</source>
        <translation>De combien la croix est tournée.</translation>
    </message>
    <message>
        <source>How far the effect reaches, in pixels of the picture.</source>
        <translation>Jusqu’où va l’effet, en pixels de l’image.</translation>
    </message>
    <message>
        <source>How far the pattern is turned.</source>
        <translation>De combien le motif est tourné.</translation>
    </message>
    <message>
        <source>How far the rays cover each other instead of adding up.</source>
        <translation>Dans quelle mesure les rayons se couvrent au lieu de s’ajouter.</translation>
    </message>
    <message>
        <source>How far the rays differ from each other.</source>
        <translation>L’écart entre les rayons.</translation>
    </message>
    <message>
        <source>How far the rays reach, in radii.</source>
        <translation>La portée des rayons, en rayons du centre.</translation>
    </message>
    <message>
        <source>How far the shadow lies to the side and upwards.</source>
        <translation>Le décalage de l’ombre sur le côté et vers le haut.</translation>
    </message>
    <message>
        <source>How far weak edges are followed.</source>
        <translation>Jusqu’où les contours faibles sont suivis.</translation>
    </message>
    <message>
        <source>How gradually it grows dark beyond the radius.</source>
        <translation>La douceur de l’assombrissement au-delà du rayon.</translation>
    </message>
    <message>
        <source>How hard edges are.</source>
        <translation>La dureté des bords.</translation>
    </message>
    <message>
        <source>How hard the rays end.</source>
        <translation>La netteté des rayons.</translation>
    </message>
    <message>
        <source>How high it is, in pixels of the picture.</source>
        <translation>La hauteur, en pixels de l’image.</translation>
    </message>
    <message>
        <source>How high the bars are, in modules.</source>
        <translation>La hauteur des barres, en modules.</translation>
    </message>
    <message>
        <source>How large differences are that count as noise.</source>
        <translation>La taille des différences tenues pour du bruit.</translation>
    </message>
    <message>
        <source>How large it is, in pixels of the picture.</source>
        <translation>La taille, en pixels de l’image.</translation>
    </message>
    <message>
        <source>How large the ring of light is, in pixels of the picture.</source>
        <translation>La taille de l’anneau de lumière, en pixels de l’image.</translation>
    </message>
    <message>
        <source>How large the sun is, in pixels of the picture.</source>
        <translation>La taille du soleil, en pixels de l’image.</translation>
    </message>
    <message>
        <source>How long the rays of the cross are.</source>
        <translation>La longueur des rayons de la croix.</translation>
    </message>
    <message>
        <source>How many arms the spiral has.</source>
        <translation>Le nombre de bras de la spirale.</translation>
    </message>
    <message>
        <source>How many columns of data the code has; 0 chooses.</source>
        <translation>Le nombre de colonnes de données du code ; 0 choisit.</translation>
    </message>
    <message>
        <source>How many folds there are.</source>
        <translation>Le nombre de plis.</translation>
    </message>
    <message>
        <source>How many parts there are: bins, colors or sectors.</source>
        <translation>Le nombre de parties : classes, couleurs ou secteurs.</translation>
    </message>
    <message>
        <source>How many pictures a turn holds.</source>
        <translation>Le nombre d’images par tour.</translation>
    </message>
    <message>
        <source>How many pixels of the picture a point of the text takes.</source>
        <translation>Le nombre de pixels de l’image pour un point du texte.</translation>
    </message>
    <message>
        <source>How many rings the code has; 0 takes as few as will do.</source>
        <translation>Le nombre d’anneaux du code ; 0 en prend le moins possible.</translation>
    </message>
    <message>
        <source>How many rows the code has; 0 chooses.</source>
        <translation>Le nombre de lignes du code ; 0 choisit.</translation>
    </message>
    <message>
        <source>How many steps each side of the color table has.</source>
        <translation>Le nombre de pas de chaque côté de la table de couleurs.</translation>
    </message>
    <message>
        <source>How many steps of brightness each color keeps.</source>
        <translation>Le nombre de niveaux que garde chaque couleur.</translation>
    </message>
    <message>
        <source>How many times brighter than white the picture becomes.</source>
        <translation>Combien de fois l’image dépasse le blanc.</translation>
    </message>
    <message>
        <source>How many times brighter than white the result may become.</source>
        <translation>Combien de fois le résultat peut dépasser le blanc.</translation>
    </message>
    <message>
        <source>How much brighter the rim of each disc of light is.</source>
        <translation>De combien le bord de chaque disque de lumière est plus clair.</translation>
    </message>
    <message>
        <source>How much each neighbor of a pixel counts, row by row from the top left.</source>
        <translation>Le poids de chaque voisin d’un pixel, ligne par ligne depuis le coin supérieur gauche.</translation>
    </message>
    <message>
        <source>How much edges are sharpened before they are drawn.</source>
        <translation>Le renforcement des bords avant leur tracé.</translation>
    </message>
    <message>
        <source>How much edges are sharpened.</source>
        <translation>La force du renforcement des bords.</translation>
    </message>
    <message>
        <source>How much later each bar starts than the one before.</source>
        <translation>Le retard de chaque bande sur la précédente.</translation>
    </message>
    <message>
        <source>How much light is left from one tile to the next.</source>
        <translation>La lumière qui reste d’une tuile à l’autre.</translation>
    </message>
    <message>
        <source>How much noise hides the steps between colors.</source>
        <translation>Le bruit qui cache les pas entre les couleurs.</translation>
    </message>
    <message>
        <source>How much noise is taken away before edges are drawn.</source>
        <translation>Le bruit enlevé avant le tracé des contours.</translation>
    </message>
    <message>
        <source>How much of the bottom both pictures have in common.</source>
        <translation>La hauteur du bas que les deux images ont en commun.</translation>
    </message>
    <message>
        <source>How much of the code may be damaged and still be read.</source>
        <translation>La part du code qui peut être abîmée tout en restant lisible.</translation>
    </message>
    <message>
        <source>How much of the effect is seen.</source>
        <translation>La part visible de l’effet.</translation>
    </message>
    <message>
        <source>How much of the fitting is done by cutting: 0 only stretches, 1 only cuts.</source>
        <translation>La part de rognage : 0 ne fait qu’étirer, 1 ne fait que rogner.</translation>
    </message>
    <message>
        <source>How much of the highlights stays: less than 1 lowers them.</source>
        <translation>Ce qui reste des hautes lumières : moins de 1 les baisse.</translation>
    </message>
    <message>
        <source>How much of the upper picture is seen: 0 shows the background alone, 1 the picture alone.</source>
        <translation>La part visible de l’image du dessus : 0 montre le fond seul, 1 l’image seule.</translation>
    </message>
    <message>
        <source>How much of what the three inks have in common is printed in black.</source>
        <translation>La part commune des trois encres imprimée en noir.</translation>
    </message>
    <message>
        <source>How much red, green, blue and opacity give to the new blue.</source>
        <translation>L’apport du rouge, du vert, du bleu et de l’opacité au nouveau bleu.</translation>
    </message>
    <message>
        <source>How much red, green, blue and opacity give to the new green.</source>
        <translation>L’apport du rouge, du vert, du bleu et de l’opacité au nouveau vert.</translation>
    </message>
    <message>
        <source>How much red, green, blue and opacity give to the new opacity.</source>
        <translation>L’apport du rouge, du vert, du bleu et de l’opacité à la nouvelle opacité.</translation>
    </message>
    <message>
        <source>How much red, green, blue and opacity give to the new red.</source>
        <translation>L’apport du rouge, du vert, du bleu et de l’opacité au nouveau rouge.</translation>
    </message>
    <message>
        <source>How much the middle is stretched along: 0 leaves it to the edges.</source>
        <translation>La part d’étirement du milieu : 0 la laisse aux bords.</translation>
    </message>
    <message>
        <source>How much the picture is smoothed before edges are looked for.</source>
        <translation>Le lissage de l’image avant la recherche des contours.</translation>
    </message>
    <message>
        <source>How much the shadows change.</source>
        <translation>L’effet sur les ombres.</translation>
    </message>
    <message>
        <source>How much wider and higher the picture becomes.</source>
        <translation>De combien l’image s’élargit et grandit.</translation>
    </message>
    <message>
        <source>How much wider than high the result becomes; 1 keeps the proportions.</source>
        <translation>De combien le résultat devient plus large que haut ; 1 garde les proportions.</translation>
    </message>
    <message>
        <source>How narrow the cone of light is: smaller is narrower.</source>
        <translation>L’étroitesse du cône de lumière : plus petit est plus étroit.</translation>
    </message>
    <message>
        <source>How near a color must be to be replaced.</source>
        <translation>La ressemblance qu’il faut pour être remplacée.</translation>
    </message>
    <message>
        <source>How near the spiral is seen from.</source>
        <translation>De quelle distance on voit la spirale.</translation>
    </message>
    <message>
        <source>How often the colors are improved.</source>
        <translation>Le nombre d’améliorations des couleurs.</translation>
    </message>
    <message>
        <source>How opaque it is.</source>
        <translation>L’opacité.</translation>
    </message>
    <message>
        <source>How small a difference is still no edge, or still light.</source>
        <translation>La plus petite différence qui compte encore.</translation>
    </message>
    <message>
        <source>How soft edges are.</source>
        <translation>La douceur des bords.</translation>
    </message>
    <message>
        <source>How soft the enlarged picture is.</source>
        <translation>La douceur de l’image agrandie.</translation>
    </message>
    <message>
        <source>How soft the shadow is, in pixels of the picture.</source>
        <translation>La douceur de l’ombre, en pixels de l’image.</translation>
    </message>
    <message>
        <source>How strong an edge must be to be found.</source>
        <translation>La force qu’il faut à un contour pour être trouvé.</translation>
    </message>
    <message>
        <source>How strong or how large the effect is.</source>
        <translation>La force ou la taille de l’effet.</translation>
    </message>
    <message>
        <source>How strongly the glass bends light; 1 is air, 1.5 window glass.</source>
        <translation>La réfraction du verre : 1 est l’air, 1,5 le verre de vitre.</translation>
    </message>
    <message>
        <source>How the message is packed: 0 chooses, 1 digits, 2 text, 3 bytes.</source>
        <translation>La compression du message : 0 choisit, 1 chiffres, 2 texte, 3 octets.</translation>
    </message>
    <message>
        <source>How the picture is moved, turned, scaled and slanted.</source>
        <translation>Comment l’image est déplacée, tournée, mise à l’échelle et inclinée.</translation>
    </message>
    <message>
        <source>How tightly the holes are twisted.</source>
        <translation>Le resserrement de la torsion des trous.</translation>
    </message>
    <message>
        <source>How weak an edge may become that goes on from a strong one.</source>
        <translation>La faiblesse permise à un contour qui prolonge un contour fort.</translation>
    </message>
    <message>
        <source>How wide one element is, in pixels of the picture.</source>
        <translation>La largeur d’un élément, en pixels de l’image.</translation>
    </message>
    <message>
        <source>How wide that rim is.</source>
        <translation>La largeur de ce bord.</translation>
    </message>
    <message>
        <source>How wide the edges are that are sharpened.</source>
        <translation>La largeur des bords renforcés.</translation>
    </message>
    <message>
        <source>How wide the rays are, in pixels of the picture.</source>
        <translation>La largeur des rayons, en pixels de l’image.</translation>
    </message>
    <message>
        <source>How wide the ring of light is.</source>
        <translation>La largeur de l’anneau de lumière.</translation>
    </message>
    <message>
        <source>How wide the shadow is.</source>
        <translation>La largeur de l’ombre.</translation>
    </message>
    <message>
        <source>How wide to high the code should be if it can.</source>
        <translation>Le rapport largeur sur hauteur souhaité pour le code.</translation>
    </message>
    <message>
        <source>In which values the table or gradient is meant.</source>
        <translation>Les valeurs dans lesquelles la table ou le dégradé s’entend.</translation>
    </message>
    <message>
        <source>Is added to every result; with 0.5 the middle becomes gray.</source>
        <translation>Est ajouté à chaque résultat ; avec 0,5 le milieu devient gris.</translation>
    </message>
    <message>
        <source>Is added to red, green, blue and opacity.</source>
        <translation>Est ajouté au rouge, au vert, au bleu et à l’opacité.</translation>
    </message>
    <message>
        <source>Judges differences as the eye does, not by light alone.</source>
        <translation>Juge les différences comme l’œil, et non d’après la lumière seule.</translation>
    </message>
    <message>
        <source>Leaves out what readers can do without, for a smaller code.</source>
        <translation>Omet ce dont les lecteurs peuvent se passer, pour un code plus petit.</translation>
    </message>
    <message>
        <source>Makes the result as large as the straightened part alone.</source>
        <translation>Donne au résultat la taille de la seule partie redressée.</translation>
    </message>
    <message>
        <source>Mirrors every second tile from top to bottom.</source>
        <translation>Retourne une tuile sur deux de haut en bas.</translation>
    </message>
    <message>
        <source>Moves the picture by its brightness: red to the side, green upwards.</source>
        <translation>Déplace l’image par sa clarté : le rouge sur le côté, le vert vers le haut.</translation>
    </message>
    <message>
        <source>Of the lens the picture was taken with, on 35 mm film; longer ones bend less.</source>
        <translation>De l’objectif de prise de vue, en équivalent 35 mm ; les plus longues déforment moins.</translation>
    </message>
    <message>
        <source>One of the points that the filter goes by.</source>
        <translation>Un des points que suit le filtre.</translation>
    </message>
    <message>
        <source>One of the two color tables between which the mask decides.</source>
        <translation>Une des deux tables de couleurs entre lesquelles décide le masque.</translation>
    </message>
    <message>
        <source>Says by its brightness how strong the effect is at each place.</source>
        <translation>Indique par sa clarté la force de l’effet en chaque endroit.</translation>
    </message>
    <message>
        <source>Says by its brightness or transparency where which picture is seen.</source>
        <translation>Indique par sa clarté ou sa transparence où l’on voit quelle image.</translation>
    </message>
    <message>
        <source>Says in the code how it is packed, also where readers know.</source>
        <translation>Indique dans le code sa compression, même si les lecteurs la connaissent.</translation>
    </message>
    <message>
        <source>Steps of exposure: each doubles the light.</source>
        <translation>Valeurs d’exposition : chacune double la lumière.</translation>
    </message>
    <message>
        <source>The brightest step of exposure that is counted.</source>
        <translation>Le diaphragme le plus clair compté.</translation>
    </message>
    <message>
        <source>The color table: what each color becomes.</source>
        <translation>La table de couleurs : ce que devient chaque couleur.</translation>
    </message>
    <message>
        <source>The color that is looked for.</source>
        <translation>La couleur recherchée.</translation>
    </message>
    <message>
        <source>The color that takes its place.</source>
        <translation>La couleur qui prend sa place.</translation>
    </message>
    <message>
        <source>The color that the filter works with.</source>
        <translation>La couleur avec laquelle travaille le filtre.</translation>
    </message>
    <message>
        <source>The colors that take the place of dark to light, from left to right.</source>
        <translation>Les couleurs qui remplacent le sombre au clair, de gauche à droite.</translation>
    </message>
    <message>
        <source>The curves: what becomes of red, green and blue, from dark to light.</source>
        <translation>Les courbes : ce que deviennent le rouge, le vert et le bleu, du sombre au clair.</translation>
    </message>
    <message>
        <source>The darkest and brightest value that the curves are about.</source>
        <translation>Les valeurs la plus sombre et la plus claire des courbes.</translation>
    </message>
    <message>
        <source>The darkest step of exposure that is counted.</source>
        <translation>Le diaphragme le plus sombre compté.</translation>
    </message>
    <message>
        <source>The direction, counted counterclockwise from the right.</source>
        <translation>La direction, comptée depuis la droite dans le sens inverse des aiguilles d’une montre.</translation>
    </message>
    <message>
        <source>The distance at which white is reached, in pixels of the picture.</source>
        <translation>La distance où le blanc est atteint, en pixels de l’image.</translation>
    </message>
    <message>
        <source>The exponent: above 1 the middle tones darken, below they brighten.</source>
        <translation>L’exposant : au-dessus de 1 les tons moyens s’assombrissent, en dessous ils s’éclaircissent.</translation>
    </message>
    <message>
        <source>The first of the two colors; for false colors, what black becomes.</source>
        <translation>La première des deux couleurs ; en fausses couleurs, ce que devient le noir.</translation>
    </message>
    <message>
        <source>The free space around the code, in modules.</source>
        <translation>L’espace libre autour du code, en modules.</translation>
    </message>
    <message>
        <source>The free space around the text.</source>
        <translation>L’espace libre autour du texte.</translation>
    </message>
    <message>
        <source>The greatest height of the code, in modules.</source>
        <translation>La hauteur maximale du code, en modules.</translation>
    </message>
    <message>
        <source>The greatest width of the code, in modules.</source>
        <translation>La largeur maximale du code, en modules.</translation>
    </message>
    <message>
        <source>The height of the letters in points.</source>
        <translation>La hauteur des lettres en points.</translation>
    </message>
    <message>
        <source>The large picture along whose edges the small one is enlarged.</source>
        <translation>La grande image dont les contours guident l’agrandissement.</translation>
    </message>
    <message>
        <source>The least height of the code, in modules.</source>
        <translation>La hauteur minimale du code, en modules.</translation>
    </message>
    <message>
        <source>The least red, green, blue and opacity that is left.</source>
        <translation>Le minimum de rouge, de vert, de bleu et d’opacité.</translation>
    </message>
    <message>
        <source>The least width of the code, in modules.</source>
        <translation>La largeur minimale du code, en modules.</translation>
    </message>
    <message>
        <source>The light it is to look like: temperature in kelvin, and tint.</source>
        <translation>La lumière voulue : température en kelvins et teinte.</translation>
    </message>
    <message>
        <source>The light that the picture was taken in: temperature in kelvin, and tint.</source>
        <translation>La lumière de la prise de vue : température en kelvins et teinte.</translation>
    </message>
    <message>
        <source>The lines that are drawn, by their ends.</source>
        <translation>Les lignes tracées, par leurs extrémités.</translation>
    </message>
    <message>
        <source>The lower left corner of the frame in which the picture stands again.</source>
        <translation>Le coin inférieur gauche du cadre où l’image se répète.</translation>
    </message>
    <message>
        <source>The lower left corner of the part that grows.</source>
        <translation>Le coin inférieur gauche de la partie qui grandit.</translation>
    </message>
    <message>
        <source>The lower left corner.</source>
        <translation>Le coin inférieur gauche.</translation>
    </message>
    <message>
        <source>The lower right corner.</source>
        <translation>Le coin inférieur droit.</translation>
    </message>
    <message>
        <source>The most red, green, blue and opacity that is left.</source>
        <translation>Le maximum de rouge, de vert, de bleu et d’opacité.</translation>
    </message>
    <message>
        <source>The numbers from which the new blue is computed.</source>
        <translation>Les nombres dont on calcule le nouveau bleu.</translation>
    </message>
    <message>
        <source>The numbers from which the new green is computed.</source>
        <translation>Les nombres dont on calcule le nouveau vert.</translation>
    </message>
    <message>
        <source>The numbers from which the new opacity is computed.</source>
        <translation>Les nombres dont on calcule la nouvelle opacité.</translation>
    </message>
    <message>
        <source>The numbers from which the new red is computed.</source>
        <translation>Les nombres dont on calcule le nouveau rouge.</translation>
    </message>
    <message>
        <source>The part of the picture that counts.</source>
        <translation>La partie de l’image qui compte.</translation>
    </message>
    <message>
        <source>The part of the picture that stays.</source>
        <translation>La partie de l’image qui reste.</translation>
    </message>
    <message>
        <source>The part of the picture where there is a shadow.</source>
        <translation>La partie de l’image où il y a une ombre.</translation>
    </message>
    <message>
        <source>The picture that lies under the other one.</source>
        <translation>L’image placée sous l’autre.</translation>
    </message>
    <message>
        <source>The picture that the change ends with.</source>
        <translation>L’image à laquelle aboutit la transition.</translation>
    </message>
    <message>
        <source>The picture that the filter changes.</source>
        <translation>L’image que le filtre modifie.</translation>
    </message>
    <message>
        <source>The picture that the first one is compared with.</source>
        <translation>L’image à laquelle la première est comparée.</translation>
    </message>
    <message>
        <source>The picture whose relief the glass has.</source>
        <translation>L’image dont le verre a le relief.</translation>
    </message>
    <message>
        <source>The place in the picture that the effect goes out from.</source>
        <translation>L’endroit de l’image d’où part l’effet.</translation>
    </message>
    <message>
        <source>The place that the lamp shines at.</source>
        <translation>L’endroit que vise la lampe.</translation>
    </message>
    <message>
        <source>The point that the pattern grows from.</source>
        <translation>Le point d’où part le motif.</translation>
    </message>
    <message>
        <source>The second of the two colors; for false colors, what white becomes.</source>
        <translation>La seconde des deux couleurs ; en fausses couleurs, ce que devient le blanc.</translation>
    </message>
    <message>
        <source>The sharp angle of a tile&apos;s corner.</source>
        <translation>L’angle aigu d’un coin de tuile.</translation>
    </message>
    <message>
        <source>The small picture that is enlarged.</source>
        <translation>La petite image qui est agrandie.</translation>
    </message>
    <message>
        <source>The text that the code holds.</source>
        <translation>Le texte que contient le code.</translation>
    </message>
    <message>
        <source>The typeface.</source>
        <translation>La police.</translation>
    </message>
    <message>
        <source>The upper left corner.</source>
        <translation>Le coin supérieur gauche.</translation>
    </message>
    <message>
        <source>The upper right corner of the frame in which the picture stands again.</source>
        <translation>Le coin supérieur droit du cadre où l’image se répète.</translation>
    </message>
    <message>
        <source>The upper right corner of the part that grows.</source>
        <translation>Le coin supérieur droit de la partie qui grandit.</translation>
    </message>
    <message>
        <source>The upper right corner.</source>
        <translation>Le coin supérieur droit.</translation>
    </message>
    <message>
        <source>What is on the back of the page.</source>
        <translation>Ce qui est au dos de la page.</translation>
    </message>
    <message>
        <source>What is written.</source>
        <translation>Ce qui est écrit.</translation>
    </message>
    <message>
        <source>What lies above it is drawn lighter.</source>
        <translation>Ce qui est au-dessus est tracé plus clair.</translation>
    </message>
    <message>
        <source>What lies below it is drawn darker.</source>
        <translation>Ce qui est en dessous est tracé plus sombre.</translation>
    </message>
    <message>
        <source>When the second picture begins to come through the light.</source>
        <translation>Le moment où la seconde image perce la lumière.</translation>
    </message>
    <message>
        <source>Where the first color ends, in pixels from the center.</source>
        <translation>Où finit la première couleur, en pixels depuis le centre.</translation>
    </message>
    <message>
        <source>Where the lamp hangs: to the side, upwards and above the picture.</source>
        <translation>Où pend la lampe : sur le côté, vers le haut et au-dessus de l’image.</translation>
    </message>
    <message>
        <source>Where the second color begins, in pixels from the center.</source>
        <translation>Où commence la seconde couleur, en pixels depuis le centre.</translation>
    </message>
    <message>
        <source>Whether black replaces the inks in the shadows alone (0) or everywhere (1).</source>
        <translation>Si le noir remplace les encres dans les ombres seules (0) ou partout (1).</translation>
    </message>
</context>
<context>
    <name>KernelEditor</name>
    <message>
        <source>Normalize</source>
        <translation>Normaliser</translation>
    </message>
    <message>
        <source>Known weights</source>
        <translation>Poids connus</translation>
    </message>
    <message>
        <source>Sets all weights to ones that are known by a name</source>
        <translation>Remplace tous les poids par des poids connus sous un nom</translation>
    </message>
    <message>
        <source>Own weights</source>
        <translation>Poids personnels</translation>
    </message>
    <message>
        <source>Makes the sum of all weights 1, so that the picture stays as light as it is</source>
        <translation>Ramène la somme des poids à 1, pour que l’image reste aussi claire</translation>
    </message>
    <message>
        <source>Weight in row %1, column %2</source>
        <translation>Poids de la ligne %1, colonne %2</translation>
    </message>
    <message>
        <source>Sum %1</source>
        <translation>Somme %1</translation>
    </message>
</context>
<context>
    <name>KernelPreset</name>
    <message>
        <source>No change</source>
        <translation>Sans changement</translation>
    </message>
    <message>
        <source>Box blur</source>
        <translation>Flou uniforme</translation>
    </message>
    <message>
        <source>Gaussian blur</source>
        <translation>Flou gaussien</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Netteté</translation>
    </message>
    <message>
        <source>Emboss</source>
        <translation>Relief</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Contours</translation>
    </message>
    <message>
        <source>Upright edges</source>
        <translation>Contours verticaux</translation>
    </message>
    <message>
        <source>Level edges</source>
        <translation>Contours horizontaux</translation>
    </message>
</context>
<context>
    <name>LayerRows</name>
    <message>
        <source>%1
A double click brings the standard value back</source>
        <translation>%1
Un double-clic rétablit la valeur par défaut</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>Réinitialiser&#xa0;: %1</translation>
    </message>
    <message>
        <source>Font Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>How large the letters are, in points</source>
        <translation>La taille des lettres, en points</translation>
    </message>
    <message>
        <source>Type here</source>
        <translation>Saisir ici</translation>
    </message>
    <message>
        <source>%1: what is written on the picture</source>
        <translation>%1 : ce qui s’écrit sur l’image</translation>
    </message>
    <message>
        <source>Standard</source>
        <comment>font</comment>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>The family of letters</source>
        <translation>La famille des lettres</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>The color of the letters, and how opaque they are</source>
        <translation>La couleur des lettres, et leur opacité</translation>
    </message>
    <message>
        <source>Low (7 %)</source>
        <translation>Faible (7 %)</translation>
    </message>
    <message>
        <source>Medium (15 %)</source>
        <translation>Moyenne (15 %)</translation>
    </message>
    <message>
        <source>Good (25 %)</source>
        <translation>Bonne (25 %)</translation>
    </message>
    <message>
        <source>High (30 %)</source>
        <translation>Forte (30 %)</translation>
    </message>
    <message>
        <source>Correction</source>
        <translation>Correction</translation>
    </message>
    <message>
        <source>How much of the code may be hidden or dirty</source>
        <translation>Ce qui du code peut être caché ou sali</translation>
    </message>
    <message>
        <source>Placing</source>
        <translation>Disposition</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Quantité</translation>
    </message>
    <message>
        <source>How much of the result is seen, in percent</source>
        <translation>Ce que l’on voit du résultat, en pour cent</translation>
    </message>
    <message>
        <source>Own Size</source>
        <translation>Taille propre</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Remplir</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Étirer</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>Mosaïque</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Placer</translation>
    </message>
    <message>
        <source>How the second picture is brought onto the picture. Drag it where it is to be when it is placed or tiled</source>
        <translation>Comment la seconde image vient sur l’image. Placée ou en mosaïque, elle se déplace là où elle doit être</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centrer</translation>
    </message>
    <message>
        <source>Moves it to the middle of the picture</source>
        <translation>Le met au milieu de l’image</translation>
    </message>
    <message>
        <source>As large as it is seen whole, in the middle of the picture</source>
        <translation>Aussi grand qu’on le voie en entier, au milieu de l’image</translation>
    </message>
</context>
<context>
    <name>Look</name>
    <message>
        <source>Film Grain</source>
        <translation>Grain de film</translation>
    </message>
    <message>
        <source>The fine grain of analog film.</source>
        <translation>Le grain fin du film argentique.</translation>
    </message>
    <message>
        <source>grain, film grain, analog, noise</source>
        <translation>grain, grain de film, argentique, bruit</translation>
    </message>
    <message>
        <source>Faded Film</source>
        <translation>Film fané</translation>
    </message>
    <message>
        <source>Pale colors and open blacks, as after years.</source>
        <translation>Couleurs pâles et noirs ouverts, comme après des années.</translation>
    </message>
    <message>
        <source>faded, vintage, old photo, retro, matte</source>
        <translation>fané, vintage, vieille photo, rétro, mat</translation>
    </message>
    <message>
        <source>Cross Process</source>
        <translation>Traitement croisé</translation>
    </message>
    <message>
        <source>Blue shadows and greenish lights, as from film in the wrong bath.</source>
        <translation>Ombres bleues et lumières verdâtres, comme un film dans le mauvais bain.</translation>
    </message>
    <message>
        <source>cross process, lomo, cool, retro</source>
        <translation>traitement croisé, lomo, froid, rétro</translation>
    </message>
    <message>
        <source>Soft Portrait</source>
        <translation>Portrait doux</translation>
    </message>
    <message>
        <source>A gentle glow over skin and lights.</source>
        <translation>Une lueur douce sur la peau et les lumières.</translation>
    </message>
    <message>
        <source>portrait, soft, glow, dreamy, skin, wedding</source>
        <translation>portrait, doux, lueur, rêveur, peau, mariage</translation>
    </message>
    <message>
        <source>Dramatic Black and White</source>
        <translation>Noir et blanc dramatique</translation>
    </message>
    <message>
        <source>Deep blacks and bright whites without any color.</source>
        <translation>Des noirs profonds et des blancs éclatants, sans couleur.</translation>
    </message>
    <message>
        <source>black and white, dramatic, noir, high contrast</source>
        <translation>noir et blanc, dramatique, noir, contraste fort</translation>
    </message>
    <message>
        <source>Tilt-Shift</source>
        <translation>Effet maquette</translation>
    </message>
    <message>
        <source>A sharp, vivid strip in a blurred scene, which looks like a model.</source>
        <translation>Une bande nette et vive dans une scène floue, qui a l’air d’une maquette.</translation>
    </message>
    <message>
        <source>tilt shift, miniature, model, toy town</source>
        <translation>tilt-shift, miniature, maquette, jouet</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Cadre</translation>
    </message>
    <message>
        <source>A white border inside the picture&apos;s edges.</source>
        <translation>Un bord blanc à l’intérieur de l’image.</translation>
    </message>
    <message>
        <source>frame, border, white border, mat</source>
        <translation>cadre, bordure, bord blanc, passe-partout</translation>
    </message>
    <message>
        <source>Instant Print</source>
        <translation>Photo instantanée</translation>
    </message>
    <message>
        <source>The creamy border of an instant print, wide at the bottom.</source>
        <translation>Le bord crème d’une photo instantanée, large en bas.</translation>
    </message>
    <message>
        <source>polaroid, instant camera, frame, border, retro</source>
        <translation>polaroid, photo instantanée, cadre, bordure, rétro</translation>
    </message>
    <message>
        <source>Duotone</source>
        <translation>Bichromie</translation>
    </message>
    <message>
        <source>Night blue for dark, warm cream for light.</source>
        <translation>Bleu nuit pour le sombre, crème chaude pour le clair.</translation>
    </message>
    <message>
        <source>duotone, two colors, split tone</source>
        <translation>bichromie, deux couleurs</translation>
    </message>
    <message>
        <source>Glitch</source>
        <translation>Brouillage</translation>
    </message>
    <message>
        <source>Bands of the picture slip aside, as in bad reception.</source>
        <translation>Des bandes de l’image glissent, comme une mauvaise réception.</translation>
    </message>
    <message>
        <source>glitch, broken, television, error, vhs</source>
        <translation>glitch, brouillage, cassé, télévision, erreur, vhs</translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation>Crayons de couleur</translation>
    </message>
    <message>
        <source>A drawing in colored pencils.</source>
        <translation>Un dessin aux crayons de couleur.</translation>
    </message>
    <message>
        <source>pencil, drawing, sketch, colored pencil, crayon</source>
        <translation>crayon, dessin, croquis, crayons de couleur</translation>
    </message>
    <message>
        <source>Poster</source>
        <translation>Affiche</translation>
    </message>
    <message>
        <source>A few flat colors, as from a silk screen.</source>
        <translation>Quelques aplats de couleur, comme une sérigraphie.</translation>
    </message>
    <message>
        <source>poster, pop art, flat colors, screen print</source>
        <translation>affiche, poster, pop art, aplats, sérigraphie</translation>
    </message>
</context>
<context>
    <name>LookButton</name>
    <message>
        <source>Sets the table of colors to the look “%1”</source>
        <translation>Donne à la table de couleurs le look « %1 »</translation>
    </message>
</context>
<context>
    <name>LooksPopup</name>
    <message>
        <source>Looks</source>
        <translation>Rendus</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Lumivex</source>
        <translation>Lumivex</translation>
    </message>
    <message>
        <source>Filters from the catalogue</source>
        <translation>Filtres du catalogue</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Effects in space</source>
        <translation>Effets dans l’espace</translation>
    </message>
    <message>
        <source>3D</source>
        <translation>3D</translation>
    </message>
    <message>
        <source>Generated effects</source>
        <translation>Effets générés</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Créations</translation>
    </message>
    <message>
        <source>Open a picture</source>
        <translation>Ouvrir une image</translation>
    </message>
    <message>
        <source>Save the picture</source>
        <translation>Enregistrer l’image</translation>
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
        <source>Turn left</source>
        <translation>Tourner à gauche</translation>
    </message>
    <message>
        <source>Turn right</source>
        <translation>Tourner à droite</translation>
    </message>
    <message>
        <source>Exchange left and right</source>
        <translation>Échanger la gauche et la droite</translation>
    </message>
    <message>
        <source>Turn upside down</source>
        <translation>Échanger le haut et le bas</translation>
    </message>
    <message>
        <source>Change the size of the picture</source>
        <translation>Changer la taille de l’image</translation>
    </message>
    <message>
        <source>Information about the file</source>
        <translation>Informations sur le fichier</translation>
    </message>
    <message>
        <source>Copy the result</source>
        <translation>Copier le résultat</translation>
    </message>
    <message>
        <source>Paste a picture</source>
        <translation>Coller une image</translation>
    </message>
    <message>
        <source>Make the result the picture</source>
        <translation>Faire du résultat l’image</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Search filters</source>
        <translation>Rechercher un filtre</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtres</translation>
    </message>
    <message>
        <source>3D effects</source>
        <translation>Effets 3D</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoris</translation>
    </message>
    <message>
        <source>No favourites yet</source>
        <translation>Aucun favori pour l’instant</translation>
    </message>
    <message>
        <source>Add to the favourites</source>
        <translation>Ajouter aux favoris</translation>
    </message>
    <message>
        <source>Picture area</source>
        <translation>Zone de l’image</translation>
    </message>
    <message>
        <source>Choose a filter from the list to see what it makes of the picture.</source>
        <translation>Choisissez un filtre dans la liste pour voir ce qu’il fait de l’image.</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>Hold to see the picture without the filter (F7)</source>
        <translation>Maintenir pour voir l’image sans le filtre (F7)</translation>
    </message>
    <message>
        <source>Hold to see the picture without the filter</source>
        <translation>Maintenir pour voir l’image sans le filtre</translation>
    </message>
    <message>
        <source>Compare side by side, with a divider on the picture</source>
        <translation>Comparer côte à côte, avec un séparateur sur l’image</translation>
    </message>
    <message>
        <source>Split view</source>
        <translation>Vue partagée</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Fit the picture into the window</source>
        <translation>Ajuster l’image à la fenêtre</translation>
    </message>
    <message>
        <source>Show the picture at actual size</source>
        <translation>Afficher l’image en taille réelle</translation>
    </message>
    <message>
        <source>Zoom; double-click for actual size, or the whole picture</source>
        <translation>Zoom&#xa0;; double-clic pour la taille réelle ou l’image entière</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Keeps the picture that was there (Esc)</source>
        <translation>Garde l’image précédente (Échap)</translation>
    </message>
    <message>
        <source>Cancel opening</source>
        <translation>Annuler l’ouverture</translation>
    </message>
    <message>
        <source>Export the picture into a file of any format</source>
        <translation>Exporter l’image dans un fichier de n’importe quel format</translation>
    </message>
    <message>
        <source>Shows the filters as larger pictures beside each other</source>
        <translation>Montre les filtres en images plus grandes, côte à côte</translation>
    </message>
    <message>
        <source>Filters in columns</source>
        <translation>Filtres en colonnes</translation>
    </message>
    <message>
        <source>Gives the filter values that suit the size of the picture</source>
        <translation>Donne au filtre des valeurs adaptées à la taille de l’image</translation>
    </message>
    <message>
        <source>Fit to Picture</source>
        <translation>Adapter à l’image</translation>
    </message>
    <message>
        <source>Cuts the result to the picture, without transparent edges</source>
        <translation>Coupe le résultat au cadre de l’image, sans bords transparents</translation>
    </message>
    <message>
        <source>Keep the picture’s size</source>
        <translation>Garder la taille de l’image</translation>
    </message>
    <message>
        <source>Finds filters by their name and by what they do: “old photo”, “sharpen”, “frame”. Return takes the first one.</source>
        <translation>Trouve les filtres par leur nom et par ce qu’ils font : « vieille photo », « netteté », « cadre ». Entrée prend le premier.</translation>
    </message>
    <message>
        <source>Looks</source>
        <translation>Rendus</translation>
    </message>
</context>
<context>
    <name>Mode</name>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Re&amp;name…</source>
        <translation>Re&amp;nommer…</translation>
    </message>
    <message>
        <source>Move &amp;Left</source>
        <translation>Vers la &amp;gauche</translation>
    </message>
    <message>
        <source>Move &amp;Right</source>
        <translation>Vers la &amp;droite</translation>
    </message>
    <message>
        <source>Re&amp;place by Present Values</source>
        <translation>Rem&amp;placer par les valeurs actuelles</translation>
    </message>
    <message>
        <source>R&amp;emove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Rename Favourite</source>
        <translation>Renommer le favori</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom :</translation>
    </message>
</context>
<context>
    <name>ModeSwitch</name>
    <message>
        <source>Change Mode</source>
        <translation>Changer de mode</translation>
    </message>
</context>
<context>
    <name>MyImageView</name>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Tab goes from point to point of the filter, arrow keys move the point; the wheel zooms.</source>
        <translation>Tab va d’un point du filtre à l’autre, les touches fléchées déplacent le point&#xa0;; la molette zoome.</translation>
    </message>
    <message>
        <source>The picture as the filter shows it. Drag the points of the filter, zoom with the wheel, move the picture with the middle button or the space bar held.</source>
        <translation>L’image telle que le filtre la montre. Faites glisser les points du filtre, zoomez avec la molette, déplacez l’image avec le bouton central ou en maintenant la barre d’espace.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>MyOGLView</name>
    <message>
        <source>3D picture</source>
        <translation>Image 3D</translation>
    </message>
    <message>
        <source>Drag to turn. The arrow keys turn it as well.</source>
        <translation>Faites glisser pour tourner. Les touches fléchées tournent aussi.</translation>
    </message>
    <message>
        <source>Nothing is to be seen from this side. Drag to turn it.</source>
        <translation>On ne voit rien de ce côté. Faites glisser pour tourner.</translation>
    </message>
</context>
<context>
    <name>NumberText</name>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message>
        <source>Open Picture</source>
        <translation>Ouvrir une image</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>Images (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Open in New Window</source>
        <translation>Ouvrir dans une nouvelle fenêtre</translation>
    </message>
    <message>
        <source>Leaves this window&apos;s picture as it is</source>
        <translation>Laisse l’image de cette fenêtre telle quelle</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Revert to Opened File</source>
        <translation>Revenir au fichier ouvert</translation>
    </message>
    <message>
        <source>%1 is incomplete: the rest of the picture is missing.</source>
        <translation>%1 est incomplet : le reste de l’image manque.</translation>
    </message>
    <message>
        <source>Open as Second Picture</source>
        <translation>Ouvrir comme seconde image</translation>
    </message>
</context>
<context>
    <name>OpeningView</name>
    <message>
        <source>Opening “%1”…</source>
        <translation>Ouverture de «&#xa0;%1&#xa0;»…</translation>
    </message>
</context>
<context>
    <name>Overlay</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Leaves everything as it was (Esc)</source>
        <translation>Laisse tout en l’état (Échap)</translation>
    </message>
</context>
<context>
    <name>ParameterView</name>
    <message>
        <source>%1
A double click brings the standard value back</source>
        <translation>%1
Un double-clic rétablit la valeur par défaut</translation>
    </message>
    <message>
        <source>%1: type a number</source>
        <translation>%1&#xa0;: saisissez un nombre</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>Réinitialiser&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1: %2 to %3%4</source>
        <comment>name, smallest and largest value, unit</comment>
        <translation>%1&#xa0;: de %2 à %3%4</translation>
    </message>
    <message>
        <source>%1: choose a color and how opaque it is</source>
        <translation>%1&#xa0;: choisissez une couleur et son opacité</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>parameter and X, Y, Z or W</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Échelle</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Étirement</translation>
    </message>
    <message>
        <source>Skew</source>
        <translation>Inclinaison</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>parameter and its part, as in Transform Angle</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>Choose %1</source>
        <translation>Choisir&#xa0;: %1</translation>
    </message>
    <message>
        <source>Opens a picture file for %1</source>
        <translation>Ouvre un fichier d’image pour «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
</context>
<context>
    <name>PictureMessage</name>
    <message>
        <source>There is no file “%1”.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Ce fichier n’existe pas.</translation>
    </message>
    <message>
        <source>“%1” is a folder, not a picture.</source>
        <translation>«&#xa0;%1&#xa0;» est un dossier, pas une image.</translation>
    </message>
    <message>
        <source>A folder is not a picture.</source>
        <translation>Un dossier n’est pas une image.</translation>
    </message>
    <message>
        <source>“%1” is not an ordinary file.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>It is not an ordinary file.</source>
        <translation>Ce n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be read: %2.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être lu&#xa0;: %2.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be read.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The picture can&apos;t be read.</source>
        <translation>L’image ne peut pas être lue.</translation>
    </message>
    <message>
        <source>“%1” is empty.</source>
        <translation>«&#xa0;%1&#xa0;» ne contient rien.</translation>
    </message>
    <message>
        <source>The picture is empty.</source>
        <translation>L’image ne contient rien.</translation>
    </message>
    <message>
        <source>“%1” is not a picture of a kind that can be opened.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une image d’un genre que l’on peut ouvrir.</translation>
    </message>
    <message>
        <source>It is not a picture of a kind that can be opened.</source>
        <translation>Ce n’est pas une image d’un genre que l’on peut ouvrir.</translation>
    </message>
    <message>
        <source>“%1” comes from a camera whose raw format is not known.</source>
        <translation>«&#xa0;%1&#xa0;» provient d’un appareil dont le format brut est inconnu.</translation>
    </message>
    <message>
        <source>The picture comes from a camera whose raw format is not known.</source>
        <translation>L’image provient d’un appareil dont le format brut est inconnu.</translation>
    </message>
    <message>
        <source>“%1” is damaged or incomplete, so it can&apos;t be opened.</source>
        <translation>Impossible d’ouvrir «&#xa0;%1&#xa0;»&#xa0;: les données sont abîmées ou incomplètes.</translation>
    </message>
    <message>
        <source>The picture is damaged or incomplete, so it can&apos;t be opened.</source>
        <translation>Impossible d’ouvrir l’image&#xa0;: les données sont abîmées ou incomplètes.</translation>
    </message>
    <message>
        <source>“%1” is too large to be opened: %2 pixels.</source>
        <translation>Impossible d’ouvrir «&#xa0;%1&#xa0;», de trop grande taille&#xa0;: %2 pixels.</translation>
    </message>
    <message>
        <source>“%1” is too large to be opened.</source>
        <translation>Impossible d’ouvrir «&#xa0;%1&#xa0;», de trop grande taille.</translation>
    </message>
    <message>
        <source>The picture is too large to be opened: %2 pixels.</source>
        <translation>Impossible d’ouvrir l’image, de trop grande taille&#xa0;: %2 pixels.</translation>
    </message>
    <message>
        <source>The picture is too large to be opened.</source>
        <translation>Impossible d’ouvrir l’image, de trop grande taille.</translation>
    </message>
    <message>
        <source>“%1” has a kind of pixel that can&apos;t be shown.</source>
        <translation>«&#xa0;%1&#xa0;» a un genre de pixels qui ne peut être affiché.</translation>
    </message>
    <message>
        <source>The picture has a kind of pixel that can&apos;t be shown.</source>
        <translation>L’image a un genre de pixels qui ne peut être affiché.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be opened.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>The picture can&apos;t be opened.</source>
        <translation>L’image ne peut pas être ouverte.</translation>
    </message>
    <message>
        <source>Opening “%1” took too long.</source>
        <translation>L’ouverture de «&#xa0;%1&#xa0;» a pris trop de temps.</translation>
    </message>
    <message>
        <source>Opening the picture took too long.</source>
        <translation>L’ouverture de l’image a pris trop de temps.</translation>
    </message>
    <message>
        <source>Opening “%1” was given up.</source>
        <translation>L’ouverture de «&#xa0;%1&#xa0;» a été abandonnée.</translation>
    </message>
    <message>
        <source>Opening the picture was given up.</source>
        <translation>L’ouverture de l’image a été abandonnée.</translation>
    </message>
    <message>
        <source>There is not enough memory to open “%1”.</source>
        <translation>Mémoire insuffisante pour ouvrir «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>There is not enough memory to open the picture.</source>
        <translation>Mémoire insuffisante pour ouvrir l’image.</translation>
    </message>
    <message>
        <source>There is no picture to write.</source>
        <translation>Il n’y a pas d’image à écrire.</translation>
    </message>
    <message>
        <source>The picture was not written.</source>
        <translation>L’image n’a pas été écrite.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be written: %2.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être écrit&#xa0;: %2.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be written.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>The picture can&apos;t be written.</source>
        <translation>L’image ne peut pas être écrite.</translation>
    </message>
    <message>
        <source>There was not enough memory to save the picture.</source>
        <translation>Mémoire insuffisante pour enregistrer l’image.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be written: there is no space left on the disk.</source>
        <translation>« %1 » ne peut pas être écrit : il n’y a plus de place sur le disque.</translation>
    </message>
    <message>
        <source>There is no space left on the disk.</source>
        <translation>Il n’y a plus de place sur le disque.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be written: you may not write into this folder.</source>
        <translation>« %1 » ne peut pas être écrit : vous n’avez pas le droit d’écrire dans ce dossier.</translation>
    </message>
    <message>
        <source>You may not write into this folder.</source>
        <translation>Vous n’avez pas le droit d’écrire dans ce dossier.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be written: the disk is read-only.</source>
        <translation>« %1 » ne peut pas être écrit : le disque est en lecture seule.</translation>
    </message>
    <message>
        <source>The disk is read-only.</source>
        <translation>Le disque est en lecture seule.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be written: there is no such folder.</source>
        <translation>« %1 » ne peut pas être écrit : ce dossier n’existe pas.</translation>
    </message>
    <message>
        <source>There is no folder of that name.</source>
        <translation>Il n’y a pas de dossier de ce nom.</translation>
    </message>
</context>
<context>
    <name>PictureProperty</name>
    <message>
        <source>PixelWidth</source>
        <translation>Largeur en pixels</translation>
    </message>
    <message>
        <source>PixelHeight</source>
        <translation>Hauteur en pixels</translation>
    </message>
    <message>
        <source>ColorModel</source>
        <translation>Modèle de couleur</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>DPIWidth</source>
        <translation>Résolution horizontale (ppp)</translation>
    </message>
    <message>
        <source>DPIHeight</source>
        <translation>Résolution verticale (ppp)</translation>
    </message>
    <message>
        <source>ProfileName</source>
        <translation>Profil de couleur</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profondeur</translation>
    </message>
    <message>
        <source>HasAlpha</source>
        <translation>Transparence</translation>
    </message>
    <message>
        <source>IsFloat</source>
        <translation>Virgule flottante</translation>
    </message>
    <message>
        <source>IsProgressive</source>
        <translation>Progressif</translation>
    </message>
    <message>
        <source>FrameCount</source>
        <translation>Nombre d’images</translation>
    </message>
    <message>
        <source>LoopCount</source>
        <translation>Répétitions</translation>
    </message>
    <message>
        <source>DelayTime</source>
        <translation>Durée d’affichage</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>Marque</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>LensModel</source>
        <translation>Objectif</translation>
    </message>
    <message>
        <source>ExposureTime</source>
        <translation>Temps de pose</translation>
    </message>
    <message>
        <source>FNumber</source>
        <translation>Ouverture</translation>
    </message>
    <message>
        <source>FocalLength</source>
        <translation>Distance focale</translation>
    </message>
    <message>
        <source>ISOSpeedRatings</source>
        <translation>Sensibilité ISO</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Flash</translation>
    </message>
    <message>
        <source>WhiteBalance</source>
        <translation>Balance des blancs</translation>
    </message>
    <message>
        <source>DateTime</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>DateTimeOriginal</source>
        <translation>Date de prise de vue</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Auteur</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>ImageDescription</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Logiciel</translation>
    </message>
</context>
<context>
    <name>PreferencesPanel</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Takes the choices (Return)</source>
        <translation>Prend les choix (Entrée)</translation>
    </message>
    <message>
        <source>&amp;Appearance:</source>
        <translation>&amp;Apparence :</translation>
    </message>
    <message>
        <source>Whether the program is drawn light or dark</source>
        <translation>Si le programme est dessiné clair ou sombre</translation>
    </message>
    <message>
        <source>As the Desktop</source>
        <translation>Comme le bureau</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>&amp;Missing folder in Save As:</source>
        <translation>Dossier &amp;manquant dans Enregistrer sous :</translation>
    </message>
    <message>
        <source>What Save As does where the folder in lower case is missing</source>
        <translation>Ce que fait Enregistrer sous quand le dossier en minuscules manque</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>Demander</translation>
    </message>
    <message>
        <source>Make Folder</source>
        <translation>Créer le dossier</translation>
    </message>
    <message>
        <source>Use Chosen Folder</source>
        <translation>Utiliser le dossier choisi</translation>
    </message>
    <message>
        <source>Forget the recent pictures (%1)</source>
        <translation>Oublier les images récentes (%1)</translation>
    </message>
    <message>
        <source>Empties the menu Open Recent</source>
        <translation>Vide le menu des fichiers récents</translation>
    </message>
    <message>
        <source>Forget the settings of exports</source>
        <translation>Oublier les réglages des exportations</translation>
    </message>
    <message>
        <source>Each format starts with its standard settings again</source>
        <translation>Chaque format reprend ses réglages standard</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>Drawing the picture…</source>
        <translation>Dessin de l’image…</translation>
    </message>
    <message>
        <source>There was not enough memory to print the picture</source>
        <translation>Il n’y avait pas assez de mémoire pour imprimer l’image</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>The picture can&apos;t be printed there</source>
        <translation>L’image ne peut pas être imprimée là</translation>
    </message>
    <message>
        <source>Printed “%1”</source>
        <translation>« %1 » imprimé</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Stops and leaves everything as it was</source>
        <translation>Arrête et laisse tout comme avant</translation>
    </message>
</context>
<context>
    <name>ResizePanel</name>
    <message>
        <source>Resize Image</source>
        <translation>Redimensionner l’image</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Largeur&#xa0;:</translation>
    </message>
    <message>
        <source>The new width, in the unit beside</source>
        <translation>La nouvelle largeur, dans l’unité indiquée à côté</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>The unit of width and height</source>
        <translation>L’unité de la largeur et de la hauteur</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>pour cent</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>pouces</translation>
    </message>
    <message>
        <source>millimeters</source>
        <translation>millimètres</translation>
    </message>
    <message>
        <source>centimeters</source>
        <translation>centimètres</translation>
    </message>
    <message>
        <source>picas</source>
        <translation>picas</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Hauteur&#xa0;:</translation>
    </message>
    <message>
        <source>The new height, in the unit beside</source>
        <translation>La nouvelle hauteur, dans l’unité indiquée à côté</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>&amp;Keep proportions</source>
        <translation>&amp;Conserver les proportions</translation>
    </message>
    <message>
        <source>The other side follows the one that is typed</source>
        <translation>L’autre côté suit celui qui est saisi</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Closes the panel and changes nothing</source>
        <translation>Ferme la fenêtre sans rien changer</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Redimensionner</translation>
    </message>
    <message>
        <source>Gives the picture this size</source>
        <translation>Donne cette taille à l’image</translation>
    </message>
    <message>
        <source>%1 x %2 pixels</source>
        <translation>%1 × %2 pixels</translation>
    </message>
</context>
<context>
    <name>Resizing</name>
    <message>
        <source>The picture can&apos;t have that size.</source>
        <translation>L’image ne peut pas avoir cette taille.</translation>
    </message>
    <message>
        <source>Its width and its height are numbers above zero.</source>
        <translation>Sa largeur et sa hauteur sont des nombres supérieurs à zéro.</translation>
    </message>
    <message>
        <source>The picture can&apos;t be made that large.</source>
        <translation>L’image ne peut pas devenir aussi grande.</translation>
    </message>
    <message>
        <source>Up to %1 million pixels fit into this computer&apos;s memory.</source>
        <translation>La mémoire de cet ordinateur contient jusqu’à %1 millions de pixels.</translation>
    </message>
    <message>
        <source>Resizing the picture…</source>
        <translation>Redimensionnement de l’image…</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Redimensionner</translation>
    </message>
    <message>
        <source>There was not enough memory to resize the picture</source>
        <translation>Mémoire insuffisante pour redimensionner l’image</translation>
    </message>
</context>
<context>
    <name>SaveOptions</name>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format&#xa0;:</translation>
    </message>
    <message>
        <source>What kind of file is written; the name gets its extension</source>
        <translation>Le genre de fichier écrit&#xa0;; le nom reçoit son extension</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>&amp;Résolution&#xa0;:</translation>
    </message>
    <message>
        <source>Dots per inch</source>
        <translation>Points par pouce</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>72 dpi</source>
        <translation>72 ppp</translation>
    </message>
    <message>
        <source>96 dpi</source>
        <translation>96 ppp</translation>
    </message>
    <message>
        <source>150 dpi</source>
        <translation>150 ppp</translation>
    </message>
    <message>
        <source>300 dpi</source>
        <translation>300 ppp</translation>
    </message>
    <message>
        <source>600 dpi</source>
        <translation>600 ppp</translation>
    </message>
</context>
<context>
    <name>SavePanel</name>
    <message>
        <source>Will be written to %1</source>
        <translation>Sera écrit dans %1</translation>
    </message>
    <message>
        <source>Will be written to %1, where there is no folder yet</source>
        <translation>Sera écrit dans %1, dont le dossier n’existe pas encore</translation>
    </message>
</context>
<context>
    <name>SaveTarget</name>
    <message>
        <source>There is no folder “%1”.</source>
        <translation>Le dossier « %1 » n’existe pas.</translation>
    </message>
    <message>
        <source>Save As writes the whole path in lower case. You chose the folder “%1”. Export writes names as they are typed.</source>
        <translation>« Enregistrer sous » écrit tout le chemin en minuscules. Vous avez choisi le dossier « %1 ». L’export écrit les noms tels qu’ils sont saisis.</translation>
    </message>
    <message>
        <source>Make Folder</source>
        <translation>Créer le dossier</translation>
    </message>
    <message>
        <source>Use Chosen Folder</source>
        <translation>Utiliser le dossier choisi</translation>
    </message>
    <message>
        <source>Don&apos;t ask again</source>
        <translation>Ne plus demander</translation>
    </message>
</context>
<context>
    <name>Saving</name>
    <message>
        <source>Couldn&apos;t save file.</source>
        <translation>Impossible d’enregistrer le fichier.</translation>
    </message>
    <message>
        <source>File I/O error occured.</source>
        <translation>Une erreur d’entrée-sortie s’est produite.</translation>
    </message>
    <message>
        <source>Do you want to replace an existing file?</source>
        <translation>Voulez-vous remplacer le fichier existant&#xa0;?</translation>
    </message>
    <message>
        <source>A file with the same name is already exists. Replacing it will overwrite its current contents.</source>
        <translation>Un fichier du même nom existe déjà. Le remplacer écrasera son contenu.</translation>
    </message>
    <message>
        <source>Save Image As:</source>
        <translation>Enregistrer l’image sous&#xa0;:</translation>
    </message>
    <message>
        <source>Saving “%1”…</source>
        <translation>Enregistrement de «&#xa0;%1&#xa0;»…</translation>
    </message>
    <message>
        <source>The “%1” that was there is in the trash.</source>
        <translation>L’ancien fichier « %1 » est dans la corbeille.</translation>
    </message>
    <message>
        <source>The “%1” that was there is kept for 30 days in %2.</source>
        <translation>L’ancien fichier « %1 » est gardé 30 jours dans %2.</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>Lumivex ended unexpectedly. Restore the picture?</source>
        <translation>Lumivex s’est arrêté de façon inattendue. Restaurer l’image&#xa0;?</translation>
    </message>
    <message>
        <source>Lumivex ended unexpectedly. Restore “%1”?</source>
        <translation>Lumivex s’est arrêté de façon inattendue. Restaurer «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>The picture comes back with its filter, as it was at most a minute before.</source>
        <translation>L’image revient avec son filtre, telle qu’elle était au plus une minute avant.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Goes on where the work ended</source>
        <translation>Reprend là où le travail s’est arrêté</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>Forgets the changes for good</source>
        <translation>Oublie définitivement les modifications</translation>
    </message>
    <message>
        <source>Restoring the picture…</source>
        <translation>Restauration de l’image…</translation>
    </message>
    <message>
        <source>The picture can&apos;t be restored; its journal is damaged.</source>
        <translation>L’image ne peut pas être restaurée&#xa0;; son journal est endommagé.</translation>
    </message>
    <message>
        <source>Do you want to open “%1” here?</source>
        <translation>Voulez-vous ouvrir «&#xa0;%1&#xa0;» ici&#xa0;?</translation>
    </message>
    <message>
        <source>Your changes will be lost if you did not save them.</source>
        <translation>Les modifications non enregistrées seront perdues.</translation>
    </message>
</context>
<context>
    <name>SplitDivider</name>
    <message>
        <source>Divider</source>
        <translation>Séparateur</translation>
    </message>
    <message>
        <source>The picture without the filter is left of it, the result is right of it.</source>
        <translation>L’image sans le filtre est à gauche, le résultat à droite.</translation>
    </message>
    <message>
        <source>Drag to compare: without the filter on the left, with it on the right</source>
        <translation>Faites glisser pour comparer&#xa0;: à gauche sans le filtre, à droite avec</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>StandardMode</name>
    <message>
        <source>Choose a filter from the list to see what it makes of the picture.</source>
        <translation>Choisissez un filtre dans la liste pour voir ce qu’il fait de l’image.</translation>
    </message>
    <message>
        <source>Drag the points on the picture.</source>
        <translation>Faites glisser les points sur l’image.</translation>
    </message>
    <message>
        <source>There is nothing to set here.</source>
        <translation>Il n’y a rien à régler ici.</translation>
    </message>
    <message>
        <source>Applying the filter…</source>
        <translation>Application du filtre…</translation>
    </message>
    <message>
        <source>Reset All Inputs</source>
        <translation>Réinitialiser tous les réglages</translation>
    </message>
    <message>
        <source>Randomize Inputs</source>
        <translation>Réglages au hasard</translation>
    </message>
    <message>
        <source>Fit to Picture</source>
        <translation>Adapter à l’image</translation>
    </message>
    <message>
        <source>Open as Second Picture</source>
        <translation>Ouvrir comme seconde image</translation>
    </message>
</context>
<context>
    <name>StatusRow</name>
    <message>
        <source>sRGB 16-bit</source>
        <translation>sRVB 16 bits</translation>
    </message>
    <message>
        <source>sRGB 32-bit float</source>
        <translation>sRVB 32 bits flottants</translation>
    </message>
    <message>
        <source>sRGB 8-bit</source>
        <translation>sRVB 8 bits</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Aucune image</translation>
    </message>
    <message>
        <source>%1 × %2 px · %3</source>
        <comment>width, height, color space and depth</comment>
        <translation>%1 × %2 px · %3</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>%1 ne peut pas être lu</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>file name, what is wrong</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source> · result: %1 × %2 px</source>
        <comment>after the picture&apos;s size, for a result that is larger</comment>
        <translation> · résultat : %1 × %2 px</translation>
    </message>
    <message>
        <source>%1 16-bit</source>
        <comment>name of a color space</comment>
        <translation>%1 16 bits</translation>
    </message>
    <message>
        <source>%1 8-bit</source>
        <comment>name of a color space</comment>
        <translation>%1 8 bits</translation>
    </message>
</context>
<context>
    <name>StraightenCanvas</name>
    <message>
        <source>The turned picture</source>
        <translation>L’image tournée</translation>
    </message>
    <message>
        <source>Arrow keys turn it by a tenth of a degree, with Shift by a whole one.</source>
        <translation>Les flèches la tournent d’un dixième de degré, avec Maj d’un degré entier.</translation>
    </message>
    <message>
        <source>Drag along the horizon, or along what is to be upright</source>
        <translation>Tracez un trait le long de l’horizon, ou de ce qui doit être d’aplomb</translation>
    </message>
</context>
<context>
    <name>StraightenPanel</name>
    <message>
        <source>Straighten</source>
        <translation>Redresser</translation>
    </message>
    <message>
        <source>Fine</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Crop to Fill</source>
        <translation>Recadrer pour remplir</translation>
    </message>
    <message>
        <source>Turns the picture (Return)</source>
        <translation>Tourne l’image (Entrée)</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Turns the picture; Shift makes it finer</source>
        <translation>Tourne l’image ; plus finement avec Maj</translation>
    </message>
    <message>
        <source>Degrees, counterclockwise</source>
        <translation>Degrés, dans le sens inverse des aiguilles d’une montre</translation>
    </message>
    <message>
        <source>The slider turns by up to five degrees from here</source>
        <translation>Le curseur tourne de cinq degrés au plus à partir d’ici</translation>
    </message>
    <message>
        <source>Cuts the empty corners off</source>
        <translation>Coupe les coins vides</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Réinitialiser</translation>
    </message>
    <message>
        <source>Shows the picture as it is</source>
        <translation>Montre l’image telle quelle</translation>
    </message>
</context>
<context>
    <name>ThreeDMode</name>
    <message>
        <source>Drag the picture to turn it. The arrow keys turn it as well.</source>
        <translation>Faites glisser l’image pour la tourner. Les touches fléchées la tournent aussi.</translation>
    </message>
    <message>
        <source>Choose an effect from the list to see the picture in space.</source>
        <translation>Choisissez un effet dans la liste pour voir l’image dans l’espace.</translation>
    </message>
    <message>
        <source>Applied in the picture&apos;s size: %1 × %2 pixels</source>
        <comment>width, height</comment>
        <translation>Appliqué à la taille de l’image : %1 × %2 pixels</translation>
    </message>
    <message>
        <source>Applied in the window&apos;s size: %1 × %2 pixels</source>
        <comment>width, height</comment>
        <translation>Appliqué à la taille de la fenêtre : %1 × %2 pixels</translation>
    </message>
</context>
<context>
    <name>ThreeDStage</name>
    <message>
        <source>3D effects need OpenGL 2.1, which this machine does not offer.
Everything else works without it.</source>
        <translation>Les effets 3D demandent OpenGL 2.1, que cette machine n’offre pas.
Tout le reste fonctionne sans.</translation>
    </message>
</context>
<context>
    <name>TurnedEffect</name>
    <message>
        <source>Rotate</source>
        <translation>Rotation</translation>
    </message>
</context>
<context>
    <name>Turning</name>
    <message>
        <source>Rotating the picture…</source>
        <translation>Rotation de l’image…</translation>
    </message>
    <message>
        <source>Rotate Left</source>
        <translation>Rotation à gauche</translation>
    </message>
    <message>
        <source>Rotate Right</source>
        <translation>Rotation à droite</translation>
    </message>
    <message>
        <source>Flipping the picture…</source>
        <translation>Retournement de l’image…</translation>
    </message>
    <message>
        <source>Flip Vertical</source>
        <translation>Retourner verticalement</translation>
    </message>
    <message>
        <source>Flip Horizontal</source>
        <translation>Retourner horizontalement</translation>
    </message>
    <message>
        <source>There was not enough memory to turn the picture</source>
        <translation>Mémoire insuffisante pour tourner l’image</translation>
    </message>
</context>
<context>
    <name>UndoManager</name>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <comment>%1 is what is undone</comment>
        <translation>Annuler&#xa0;: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <comment>%1 is what is redone</comment>
        <translation>Rétablir&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>UndoNames</name>
    <message>
        <source>Change to %1 %2</source>
        <comment>%1 is a filter, %2 one of its parameters</comment>
        <translation>%1&#xa0;: changer %2</translation>
    </message>
    <message>
        <source>Placing</source>
        <translation>Disposition</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Placer</translation>
    </message>
</context>
<context>
    <name>WhiteEditor</name>
    <message>
        <source>Pick a Grey</source>
        <translation>Prélever un gris</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>Teinte</translation>
    </message>
    <message>
        <source>The light of the picture in kelvin: to the right, the picture becomes warmer</source>
        <translation>La lumière de l’image en kelvins : vers la droite, l’image devient plus chaude</translation>
    </message>
    <message>
        <source>To the right, the picture becomes more magenta, to the left greener</source>
        <translation>Vers la droite, l’image tire sur le magenta, vers la gauche sur le vert</translation>
    </message>
    <message>
        <source>Click on something in the picture that is grey or white. Escape leaves it as it is.</source>
        <translation>Cliquez dans l’image sur quelque chose de gris ou de blanc. Échap la laisse telle quelle.</translation>
    </message>
    <message>
        <source>%1: type a number</source>
        <translation>%1 : saisir un nombre</translation>
    </message>
</context>
<context>
    <name>ZoomedCanvas</name>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>customEffImageView</name>
    <message>
        <source>Generated picture</source>
        <translation>Image générée</translation>
    </message>
    <message>
        <source>Arrow keys move the anchor of effects that have one; the wheel zooms.</source>
        <translation>Les touches fléchées déplacent le point d’ancrage des effets qui en ont un&#xa0;; la molette zoome.</translation>
    </message>
    <message>
        <source>The picture as the effect makes it. Drag to place the effect&apos;s anchor, zoom with the wheel, move the picture with the middle button or the space bar held.</source>
        <translation>L’image telle que l’effet la fait. Faites glisser pour placer le point d’ancrage, zoomez avec la molette, déplacez l’image avec le bouton central ou en maintenant la barre d’espace.</translation>
    </message>
</context>
<context>
    <name>onlyTextClosedButton</name>
    <message>
        <source>Remove from the favourites</source>
        <translation>Retirer des favoris</translation>
    </message>
</context>
</TS>

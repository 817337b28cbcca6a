<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutWindow</name>
    <message>
        <source>windows and drawing</source>
        <translation>Fenster und Zeichnen</translation>
    </message>
    <message>
        <source>picture files</source>
        <translation>Bilddateien</translation>
    </message>
    <message>
        <source>camera raw files</source>
        <translation>Rohdaten von Kameras</translation>
    </message>
    <message>
        <source>what files say about their pictures</source>
        <translation>Angaben der Dateien zu ihren Bildern</translation>
    </message>
    <message>
        <source>color profiles</source>
        <translation>Farbprofile</translation>
    </message>
    <message>
        <source>work on all cores</source>
        <translation>Arbeit auf allen Kernen</translation>
    </message>
    <message>
        <source>vector arithmetic</source>
        <translation>Vektorarithmetik</translation>
    </message>
    <message>
        <source>barcodes</source>
        <translation>Strichcodes</translation>
    </message>
    <message>
        <source>the packed undo history</source>
        <translation>das gepackte Änderungsprotokoll</translation>
    </message>
    <message>
        <source>surfaces and solid bodies</source>
        <translation>Flächen und Körper</translation>
    </message>
    <message>
        <source>About Lumivex</source>
        <translation>Über Lumivex</translation>
    </message>
    <message>
        <source>The program&apos;s icon</source>
        <translation>Das Symbol des Programms</translation>
    </message>
    <message>
        <source>Version, license and libraries; the text can be selected and copied</source>
        <translation>Version, Lizenz und Bibliotheken; der Text lässt sich auswählen und kopieren</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>A picture editor with live filters. It uses no network.</source>
        <translation>Ein Bildbearbeitungsprogramm mit Live-Filtern. Es nutzt kein Netz.</translation>
    </message>
    <message>
        <source>Free software that comes without any warranty. License: %1</source>
        <translation>Freie Software ohne jede Gewährleistung. Lizenz: %1</translation>
    </message>
    <message>
        <source>It stands on these libraries:</source>
        <translation>Es baut auf diesen Bibliotheken auf:</translation>
    </message>
</context>
<context>
    <name>AlertPanel</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Speichern …</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>Nicht speichern</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
</context>
<context>
    <name>BaseEffect</name>
    <message>
        <source>Flare Effect</source>
        <translation>Lichtstern</translation>
    </message>
    <message>
        <source>Flare Effect Generator</source>
        <translation>Erzeugt einen Lichtstern</translation>
    </message>
    <message>
        <source>Hilbert Lines</source>
        <translation>Hilbert-Linien</translation>
    </message>
    <message>
        <source>Hilbert Lines Effect Generator</source>
        <translation>Erzeugt Hilbert-Linien</translation>
    </message>
    <message>
        <source>Lines Effect</source>
        <translation>Linien</translation>
    </message>
    <message>
        <source>Lines Effect Generator</source>
        <translation>Erzeugt Linien</translation>
    </message>
    <message>
        <source>Patch Works</source>
        <translation>Flickenteppich</translation>
    </message>
    <message>
        <source>Patch Works Effect Generator</source>
        <translation>Erzeugt einen Flickenteppich</translation>
    </message>
    <message>
        <source>Pattern Morphing</source>
        <translation>Mustermorphing</translation>
    </message>
    <message>
        <source>Pattern Morphing Effect Generator</source>
        <translation>Erzeugt ein Mustermorphing</translation>
    </message>
    <message>
        <source>Plasma Effect</source>
        <translation>Plasma</translation>
    </message>
    <message>
        <source>Plasma Effect Generator</source>
        <translation>Erzeugt Plasma</translation>
    </message>
    <message>
        <source>Simple Objects</source>
        <translation>Einfache Objekte</translation>
    </message>
    <message>
        <source>Simple Objects Generator</source>
        <translation>Erzeugt einfache Objekte</translation>
    </message>
    <message>
        <source>Sketch Effect</source>
        <translation>Skizze</translation>
    </message>
    <message>
        <source>Sketch Effect Generator</source>
        <translation>Erzeugt eine Skizze</translation>
    </message>
    <message>
        <source>Surface Rotate</source>
        <translation>Gedrehte Fläche</translation>
    </message>
    <message>
        <source>3D Surface Rotate</source>
        <translation>Gedrehte Fläche im Raum</translation>
    </message>
    <message>
        <source>3D Objects</source>
        <translation>3D-Objekte</translation>
    </message>
    <message>
        <source>3D Objects Texuture</source>
        <translation>Das Bild auf 3D-Objekten</translation>
    </message>
</context>
<context>
    <name>BeforeAfterView</name>
    <message>
        <source>Before and after</source>
        <translation>Vorher und nachher</translation>
    </message>
    <message>
        <source>A part of the picture as it is and as the file shows it, pixel by pixel. Drag it to see another part</source>
        <translation>Ein Teil des Bildes, wie es ist und wie die Datei es zeigt, Pixel für Pixel. Ziehen zeigt einen anderen Teil</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message>
        <source>Copying the picture…</source>
        <translation>Bild wird kopiert …</translation>
    </message>
    <message>
        <source>There was not enough memory to copy the picture</source>
        <translation>Der Speicher reichte nicht, um das Bild zu kopieren</translation>
    </message>
    <message>
        <source>Pasting the picture…</source>
        <translation>Bild wird eingefügt …</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
</context>
<context>
    <name>Closing</name>
    <message>
        <source>The window stays open: the picture has changes that are not saved.</source>
        <translation>Das Fenster bleibt offen: Das Bild hat Änderungen, die nicht gespeichert sind.</translation>
    </message>
    <message>
        <source>Do you want to save changes?</source>
        <translation>Möchten Sie die Änderungen speichern?</translation>
    </message>
    <message>
        <source>Your changes will be lost if you choose don&apos;t save option.</source>
        <translation>Wenn Sie nicht speichern, gehen Ihre Änderungen verloren.</translation>
    </message>
</context>
<context>
    <name>Command</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>Opens a picture file</source>
        <translation>Öffnet eine Bilddatei</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Re&amp;vert to Opened File</source>
        <translation>Zur geöffneten &amp;Datei zurückkehren</translation>
    </message>
    <message>
        <source>Brings back the picture as its file has it</source>
        <translation>Holt das Bild zurück, wie es in seiner Datei steht</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Saves the result to the picture&apos;s file</source>
        <translation>Speichert das Ergebnis in der Datei des Bildes</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>Saves the result under another name or in another format</source>
        <translation>Speichert das Ergebnis unter anderem Namen oder in anderem Format</translation>
    </message>
    <message>
        <source>Image &amp;Information ...</source>
        <translation>Bild&amp;informationen …</translation>
    </message>
    <message>
        <source>Shows what the picture&apos;s file says about itself</source>
        <translation>Zeigt, was die Datei des Bildes über sich sagt</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Beendet das Programm</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Takes the last change back</source>
        <translation>Nimmt die letzte Änderung zurück</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Makes the change again</source>
        <translation>Führt die Änderung wieder aus</translation>
    </message>
    <message>
        <source>Undo &amp;History</source>
        <translation>&amp;Verlauf</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Puts the result on the clipboard</source>
        <translation>Legt das Ergebnis in die Zwischenablage</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Replaces the picture with the one on the clipboard</source>
        <translation>Ersetzt das Bild durch das in der Zwischenablage</translation>
    </message>
    <message>
        <source>Reset &amp;All Inputs</source>
        <translation>&amp;Alle Werte zurücksetzen</translation>
    </message>
    <message>
        <source>Gives the filter the values that it has when it is chosen</source>
        <translation>Gibt dem Filter die Werte, die er zu Beginn hat</translation>
    </message>
    <message>
        <source>Rando&amp;mize Inputs</source>
        <translation>&amp;Zufällige Werte</translation>
    </message>
    <message>
        <source>Tries other values, all by chance</source>
        <translation>Probiert andere, zufällige Werte aus</translation>
    </message>
    <message>
        <source>&amp;Find Filter</source>
        <translation>Filter &amp;suchen</translation>
    </message>
    <message>
        <source>Goes to the search field of the catalogue</source>
        <translation>Geht zum Suchfeld des Katalogs</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>B&amp;ild</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <source>Makes the result the picture</source>
        <translation>Macht das Ergebnis zum Bild</translation>
    </message>
    <message>
        <source>&amp;Clear Effect</source>
        <translation>&amp;Effekt verwerfen</translation>
    </message>
    <message>
        <source>Drops the current filter or effect</source>
        <translation>Verwirft den aktuellen Filter oder Effekt</translation>
    </message>
    <message>
        <source>Rotate &amp;Left</source>
        <translation>Nach &amp;links drehen</translation>
    </message>
    <message>
        <source>Turns the picture counter-clockwise</source>
        <translation>Dreht das Bild gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <source>Rotate &amp;Right</source>
        <translation>Nach &amp;rechts drehen</translation>
    </message>
    <message>
        <source>Turns the picture clockwise</source>
        <translation>Dreht das Bild im Uhrzeigersinn</translation>
    </message>
    <message>
        <source>Flip &amp;Horizontal</source>
        <translation>&amp;Horizontal spiegeln</translation>
    </message>
    <message>
        <source>Exchanges left and right</source>
        <translation>Vertauscht links und rechts</translation>
    </message>
    <message>
        <source>Flip &amp;Vertical</source>
        <translation>&amp;Vertikal spiegeln</translation>
    </message>
    <message>
        <source>Exchanges top and bottom</source>
        <translation>Vertauscht oben und unten</translation>
    </message>
    <message>
        <source>Resize &amp;Image ...</source>
        <translation>Bild&amp;größe ändern …</translation>
    </message>
    <message>
        <source>Changes the size of the picture</source>
        <translation>Ändert die Größe des Bildes</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>&amp;Modus</translation>
    </message>
    <message>
        <source>&amp;Standard</source>
        <translation>&amp;Standard</translation>
    </message>
    <message>
        <source>Filters from the catalogue</source>
        <translation>Filter aus dem Katalog</translation>
    </message>
    <message>
        <source>&amp;3D</source>
        <translation>&amp;3D</translation>
    </message>
    <message>
        <source>Effects in space</source>
        <translation>Effekte im Raum</translation>
    </message>
    <message>
        <source>&amp;Custom</source>
        <translation>&amp;Eigene</translation>
    </message>
    <message>
        <source>Generated effects</source>
        <translation>Erzeugte Effekte</translation>
    </message>
    <message>
        <source>F&amp;avourites</source>
        <translation>&amp;Favoriten</translation>
    </message>
    <message>
        <source>&amp;Add to the Favourites</source>
        <translation>Zu den Favoriten &amp;hinzufügen</translation>
    </message>
    <message>
        <source>Remembers the current effect with its settings</source>
        <translation>Merkt sich den aktuellen Effekt mit seinen Einstellungen</translation>
    </message>
    <message>
        <source>&amp;Remove from the Favourites</source>
        <translation>Aus den &amp;Favoriten entfernen</translation>
    </message>
    <message>
        <source>Forgets the favourite that is switched on</source>
        <translation>Vergisst den eingeschalteten Favoriten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Shows the picture larger</source>
        <translation>Zeigt das Bild größer</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Shows the picture smaller</source>
        <translation>Zeigt das Bild kleiner</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>&amp;Originalgröße</translation>
    </message>
    <message>
        <source>Shows each pixel of the picture as one point</source>
        <translation>Zeigt jedes Pixel des Bildes als einen Punkt</translation>
    </message>
    <message>
        <source>&amp;Fit in Window</source>
        <translation>&amp;In Fenster einpassen</translation>
    </message>
    <message>
        <source>Shows the whole picture</source>
        <translation>Zeigt das ganze Bild</translation>
    </message>
    <message>
        <source>&amp;Split View</source>
        <translation>Ge&amp;teilte Ansicht</translation>
    </message>
    <message>
        <source>Shows the picture without the filter beside the result</source>
        <translation>Zeigt das Bild ohne den Filter neben dem Ergebnis</translation>
    </message>
    <message>
        <source>&amp;Histogram</source>
        <translation>&amp;Histogramm</translation>
    </message>
    <message>
        <source>Shows how often each brightness is seen in the result</source>
        <translation>Zeigt, wie oft jede Helligkeit im Ergebnis vorkommt</translation>
    </message>
    <message>
        <source>Filter &amp;Thumbnails</source>
        <translation>&amp;Filtervorschau</translation>
    </message>
    <message>
        <source>Shows in the list what each filter makes of the picture</source>
        <translation>Zeigt in der Liste, was jeder Filter aus dem Bild macht</translation>
    </message>
    <message>
        <source>A&amp;ppearance</source>
        <translation>&amp;Erscheinungsbild</translation>
    </message>
    <message>
        <source>&amp;As the Desktop</source>
        <translation>Wie die &amp;Arbeitsumgebung</translation>
    </message>
    <message>
        <source>Light or dark as the desktop is</source>
        <translation>Hell oder dunkel wie die Arbeitsumgebung</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>Draws the program light</source>
        <translation>Zeichnet das Programm hell</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>Draws the program dark</source>
        <translation>Zeichnet das Programm dunkel</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>&amp;Vollbild</translation>
    </message>
    <message>
        <source>Gives the window the whole screen</source>
        <translation>Gibt dem Fenster den ganzen Bildschirm</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Lumivex &amp;Help</source>
        <translation>Lumivex-&amp;Hilfe</translation>
    </message>
    <message>
        <source>Opens the help</source>
        <translation>Öffnet die Hilfe</translation>
    </message>
    <message>
        <source>&amp;About Lumivex</source>
        <translation>Ü&amp;ber Lumivex</translation>
    </message>
    <message>
        <source>Says which version this is</source>
        <translation>Sagt, welche Version das ist</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportieren …</translation>
    </message>
    <message>
        <source>Writes the result into a file of any format, under any name</source>
        <translation>Schreibt das Ergebnis in eine Datei beliebigen Formats und Namens</translation>
    </message>
    <message>
        <source>Cro&amp;p…</source>
        <translation>&amp;Zuschneiden…</translation>
    </message>
    <message>
        <source>Keeps a part of the picture</source>
        <translation>Behält einen Ausschnitt des Bildes</translation>
    </message>
    <message>
        <source>&amp;Straighten…</source>
        <translation>Gera&amp;de ausrichten…</translation>
    </message>
    <message>
        <source>Turns the picture until its horizon is level</source>
        <translation>Dreht das Bild, bis sein Horizont waagerecht ist</translation>
    </message>
    <message>
        <source>&amp;Compare with Opened File</source>
        <translation>Mit der geöffneten &amp;Datei vergleichen</translation>
    </message>
    <message>
        <source>Before and after show the file as it was opened, not the picture without the filter</source>
        <translation>Vorher und nachher zeigen die Datei, wie sie geöffnet wurde, nicht das Bild ohne den Filter</translation>
    </message>
    <message>
        <source>F&amp;it to Picture</source>
        <translation>An das &amp;Bild anpassen</translation>
    </message>
    <message>
        <source>Gives the filter values that suit the size of the picture</source>
        <translation>Gibt dem Filter Werte, die zur Größe des Bildes passen</translation>
    </message>
    <message>
        <source>&amp;Start Filters Fitted to the Picture</source>
        <translation>Filter mit an&amp;gepassten Werten beginnen</translation>
    </message>
    <message>
        <source>Filters start with values that suit the size of the picture</source>
        <translation>Filter beginnen mit Werten, die zur Größe des Bildes passen</translation>
    </message>
    <message>
        <source>Filters in Colu&amp;mns</source>
        <translation>Filter in S&amp;palten</translation>
    </message>
    <message>
        <source>Shows the filters as larger pictures beside each other</source>
        <translation>Zeigt die Filter als größere Bilder nebeneinander</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Edits a picture with live filters.</source>
        <translation>Bearbeitet ein Bild mit Live-Filtern.</translation>
    </message>
    <message>
        <source>Open a window of its own, whatever else is open.</source>
        <translation>Ein eigenes Fenster öffnen, gleich was sonst offen ist.</translation>
    </message>
    <message>
        <source>Picture files to open: the first in a window that is open already, if it can be.</source>
        <translation>Zu öffnende Bilddateien: die erste, wenn möglich, in einem schon offenen Fenster.</translation>
    </message>
</context>
<context>
    <name>Controller</name>
    <message>
        <source>Changes that were not saved have been replaced.</source>
        <translation>Nicht gespeicherte Änderungen wurden ersetzt.</translation>
    </message>
</context>
<context>
    <name>CropCanvas</name>
    <message>
        <source>What is kept of the picture</source>
        <translation>Was vom Bild bleibt</translation>
    </message>
    <message>
        <source>Arrow keys move the frame, with Ctrl its upper right corner, with Shift by ten pixels.</source>
        <translation>Die Pfeiltasten verschieben den Rahmen, mit Strg seine rechte obere Ecke, mit Umschalt um zehn Pixel.</translation>
    </message>
    <message>
        <source>Drag the frame, its corners or its edges</source>
        <translation>Ziehen Sie den Rahmen, seine Ecken oder seine Kanten</translation>
    </message>
</context>
<context>
    <name>CropPanel</name>
    <message>
        <source>Crop</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Keeps what lies in the frame (Return)</source>
        <translation>Behält, was im Rahmen liegt (Eingabetaste)</translation>
    </message>
    <message>
        <source>&amp;Whole Picture</source>
        <translation>&amp;Ganzes Bild</translation>
    </message>
    <message>
        <source>Makes the frame as large as it can be</source>
        <translation>Macht den Rahmen so groß wie möglich</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Frei</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Quadrat</translation>
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
        <translation>Goldener Schnitt</translation>
    </message>
    <message>
        <source>As the Picture</source>
        <translation>Wie das Bild</translation>
    </message>
    <message>
        <source>Proportions</source>
        <translation>Proportionen</translation>
    </message>
    <message>
        <source>Proportions that the frame keeps</source>
        <translation>Proportionen, die der Rahmen behält</translation>
    </message>
    <message>
        <source>The frame is higher than wide</source>
        <translation>Der Rahmen ist höher als breit</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Width of the frame in pixels</source>
        <translation>Breite des Rahmens in Pixel</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Height of the frame in pixels</source>
        <translation>Höhe des Rahmens in Pixel</translation>
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
        <translation>Das Bild wird zugeschnitten…</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <source>Straightening the picture…</source>
        <translation>Das Bild wird gerade ausgerichtet…</translation>
    </message>
    <message>
        <source>Straighten</source>
        <translation>Gerade ausrichten</translation>
    </message>
    <message>
        <source>There was not enough memory to crop the picture</source>
        <translation>Der Speicher reichte nicht, um das Bild zuzuschneiden</translation>
    </message>
</context>
<context>
    <name>CustomMode</name>
    <message>
        <source>Drag on the picture to move the effect. The arrow keys move it as well.</source>
        <translation>Ziehen Sie auf dem Bild, um den Effekt zu verschieben. Auch die Pfeiltasten verschieben ihn.</translation>
    </message>
    <message>
        <source>Choose an effect from the list to draw it over the picture or over a color.</source>
        <translation>Wählen Sie einen Effekt aus der Liste, um ihn über das Bild oder eine Farbe zu zeichnen.</translation>
    </message>
    <message>
        <source>Applying the effect…</source>
        <translation>Effekt wird angewendet …</translation>
    </message>
    <message>
        <source>Drawing the favourite…</source>
        <translation>Favorit wird gezeichnet …</translation>
    </message>
    <message>
        <source>Choose Favourite</source>
        <translation>Favorit wählen</translation>
    </message>
</context>
<context>
    <name>DataSource</name>
    <message>
        <source>Geometry</source>
        <translation>Geometrie</translation>
    </message>
    <message>
        <source>Distortion</source>
        <translation>Verzerrung</translation>
    </message>
    <message>
        <source>Halftone</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Schärfe</translation>
    </message>
    <message>
        <source>Stylize</source>
        <translation>Stilisierung</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Verläufe</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>Kacheln</translation>
    </message>
    <message>
        <source>Generator</source>
        <translation>Generatoren</translation>
    </message>
</context>
<context>
    <name>DocPageControl</name>
    <message>
        <source>Previous favourites</source>
        <translation>Vorherige Favoriten</translation>
    </message>
    <message>
        <source>Next favourites</source>
        <translation>Nächste Favoriten</translation>
    </message>
</context>
<context>
    <name>DropImageView</name>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Drop a picture file here, or drag this one elsewhere</source>
        <translation>Ziehen Sie eine Bilddatei hierher, oder dieses Bild anderswohin</translation>
    </message>
</context>
<context>
    <name>EffectPanel</name>
    <message>
        <source>Flare opacity:</source>
        <translation>Deckkraft:</translation>
    </message>
    <message>
        <source>Spikes count:</source>
        <translation>Zackenzahl:</translation>
    </message>
    <message>
        <source>How many spikes the flare has</source>
        <translation>Wie viele Zacken der Lichtstern hat</translation>
    </message>
    <message>
        <source>Background Color:</source>
        <translation>Hintergrundfarbe:</translation>
    </message>
    <message>
        <source>The color laid over the background</source>
        <translation>Die Farbe, die über dem Hintergrund liegt</translation>
    </message>
    <message>
        <source>Background Image:</source>
        <translation>Hintergrundbild:</translation>
    </message>
    <message>
        <source>Lay the effect over the picture</source>
        <translation>Den Effekt über das Bild legen</translation>
    </message>
    <message>
        <source>How much of what lies beneath the effect is covered, in percent</source>
        <translation>Wie stark der Effekt verdeckt, was darunter liegt, in Prozent</translation>
    </message>
    <message>
        <source>Generate</source>
        <translation>Erzeugen</translation>
    </message>
    <message>
        <source>Draw the effect anew with other random numbers</source>
        <translation>Den Effekt mit anderen Zufallszahlen neu zeichnen</translation>
    </message>
    <message>
        <source>Objects opacity:</source>
        <translation>Deckkraft:</translation>
    </message>
    <message>
        <source>Lines level:</source>
        <translation>Linientiefe:</translation>
    </message>
    <message>
        <source>How often the curve is folded</source>
        <translation>Wie oft die Kurve gefaltet ist</translation>
    </message>
    <message>
        <source>Line width:</source>
        <translation>Linienbreite:</translation>
    </message>
    <message>
        <source>How thick the curve is</source>
        <translation>Wie dick die Kurve ist</translation>
    </message>
    <message>
        <source>Lines count:</source>
        <translation>Linienzahl:</translation>
    </message>
    <message>
        <source>How many lines are drawn</source>
        <translation>Wie viele Linien gezeichnet werden</translation>
    </message>
    <message>
        <source>How thick the lines are</source>
        <translation>Wie dick die Linien sind</translation>
    </message>
    <message>
        <source>Pattern opacity:</source>
        <translation>Deckkraft:</translation>
    </message>
    <message>
        <source>Objects count:</source>
        <translation>Objektzahl:</translation>
    </message>
    <message>
        <source>How many ellipses the pattern has</source>
        <translation>Wie viele Ellipsen das Muster hat</translation>
    </message>
    <message>
        <source>Pattern Color:</source>
        <translation>Musterfarbe:</translation>
    </message>
    <message>
        <source>The color of the pattern</source>
        <translation>Die Farbe des Musters</translation>
    </message>
    <message>
        <source>How thick the ellipses&apos; lines are</source>
        <translation>Wie dick die Linien der Ellipsen sind</translation>
    </message>
    <message>
        <source>Proportion:</source>
        <translation>Verhältnis:</translation>
    </message>
    <message>
        <source>The width of the ellipses in parts of their height</source>
        <translation>Die Breite der Ellipsen im Verhältnis zur Höhe</translation>
    </message>
    <message>
        <source>Plasma opacity:</source>
        <translation>Deckkraft:</translation>
    </message>
    <message>
        <source>Object type:</source>
        <translation>Objektart:</translation>
    </message>
    <message>
        <source>What is drawn</source>
        <translation>Was gezeichnet wird</translation>
    </message>
    <message>
        <source>Rects</source>
        <translation>Rechtecke</translation>
    </message>
    <message>
        <source>Circles</source>
        <translation>Kreise</translation>
    </message>
    <message>
        <source>Bezier Paths</source>
        <translation>Bézierkurven</translation>
    </message>
    <message>
        <source>Triangles</source>
        <translation>Dreiecke</translation>
    </message>
    <message>
        <source>Flowers</source>
        <translation>Blumen</translation>
    </message>
    <message>
        <source>Balls</source>
        <translation>Kugeln</translation>
    </message>
    <message>
        <source>Lights</source>
        <translation>Lichter</translation>
    </message>
    <message>
        <source>Spin Squares</source>
        <translation>Gedrehte Quadrate</translation>
    </message>
    <message>
        <source>How many objects are drawn</source>
        <translation>Wie viele Objekte gezeichnet werden</translation>
    </message>
    <message>
        <source>Move Anchor</source>
        <translation>Ankerpunkt verschieben</translation>
    </message>
    <message>
        <source>Change to %1</source>
        <comment>%1 is a parameter of an effect</comment>
        <translation>%1 ändern</translation>
    </message>
    <message>
        <source>First Curve:</source>
        <translation>Erste Kurve:</translation>
    </message>
    <message>
        <source>How far the lower edge bends</source>
        <translation>Wie weit sich die untere Kante biegt</translation>
    </message>
    <message>
        <source>Second Curve:</source>
        <translation>Zweite Kurve:</translation>
    </message>
    <message>
        <source>How far the upper edge bends</source>
        <translation>Wie weit sich die obere Kante biegt</translation>
    </message>
    <message>
        <source>Filled Poly:</source>
        <translation>Gefüllte Fläche:</translation>
    </message>
    <message>
        <source>A closed surface, or else a net of lines</source>
        <translation>Eine geschlossene Fläche statt eines Liniennetzes</translation>
    </message>
    <message>
        <source>Colored Light:</source>
        <translation>Farbiges Licht:</translation>
    </message>
    <message>
        <source>Tints the picture with the color</source>
        <translation>Tönt das Bild mit der Farbe</translation>
    </message>
    <message>
        <source>Light color</source>
        <translation>Lichtfarbe</translation>
    </message>
    <message>
        <source>The color of the light</source>
        <translation>Die Farbe des Lichts</translation>
    </message>
    <message>
        <source>Light Color</source>
        <translation>Lichtfarbe</translation>
    </message>
    <message>
        <source>The body that wears the picture</source>
        <translation>Der Körper, der das Bild trägt</translation>
    </message>
    <message>
        <source>Sphere</source>
        <translation>Kugel</translation>
    </message>
    <message>
        <source>Cylinder</source>
        <translation>Zylinder</translation>
    </message>
    <message>
        <source>Torus</source>
        <translation>Torus</translation>
    </message>
    <message>
        <source>Cube</source>
        <translation>Würfel</translation>
    </message>
    <message>
        <source>Cone</source>
        <translation>Kegel</translation>
    </message>
    <message>
        <source>Pyramid</source>
        <translation>Pyramide</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Scheibe</translation>
    </message>
    <message>
        <source>Object Type</source>
        <translation>Objektart</translation>
    </message>
</context>
<context>
    <name>ExportPanel</name>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Schnell</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Klein</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Byte</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>rounded size, exact size</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Ohne Titel</translation>
    </message>
    <message>
        <source>%1 dpi</source>
        <translation>%1 dpi</translation>
    </message>
    <message>
        <source>Working out the size…</source>
        <translation>Die Größe wird ermittelt …</translation>
    </message>
    <message>
        <source>%1 bits</source>
        <translation>%1 Bit</translation>
    </message>
    <message>
        <source>%1 × %2 px · %3</source>
        <comment>width, height, size of the file</comment>
        <translation>%1 × %2 px · %3</translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>“%1” is a folder.</source>
        <translation>„%1“ ist ein Ordner.</translation>
    </message>
    <message>
        <source>Replace “%1”?</source>
        <translation>„%1“ ersetzen?</translation>
    </message>
    <message>
        <source>There is a file of that name in this folder already. What is in it will be lost.</source>
        <translation>In diesem Ordner gibt es schon eine Datei dieses Namens. Ihr Inhalt geht verloren.</translation>
    </message>
    <message>
        <source>Size of the file</source>
        <translation>Größe der Datei</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Exports nothing</source>
        <translation>Exportiert nichts</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>Writes the file</source>
        <translation>Schreibt die Datei</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>The file&apos;s name, written as it is typed</source>
        <translation>Der Name der Datei, geschrieben wie getippt</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>The folder in which the file is written</source>
        <translation>Der Ordner, in den die Datei geschrieben wird</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Wählen …</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Chooses the folder</source>
        <translation>Wählt den Ordner</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>O&amp;rdner:</translation>
    </message>
    <message>
        <source>F&amp;ormat:</source>
        <translation>&amp;Format:</translation>
    </message>
    <message>
        <source>What kind of file is written</source>
        <translation>Welche Art von Datei geschrieben wird</translation>
    </message>
    <message>
        <source>&amp;Lossless</source>
        <translation>Ohne &amp;Verlust</translation>
    </message>
    <message>
        <source>Keeps every pixel exactly; the file becomes larger</source>
        <translation>Erhält jedes Pixel genau; die Datei wird größer</translation>
    </message>
    <message>
        <source>C&amp;hroma:</source>
        <translation>Far&amp;bauflösung:</translation>
    </message>
    <message>
        <source>How sharp colors are stored</source>
        <translation>Wie scharf Farben gespeichert werden</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Full (4:4:4)</source>
        <translation>Voll (4:4:4)</translation>
    </message>
    <message>
        <source>&amp;Progressive</source>
        <translation>&amp;Progressiv</translation>
    </message>
    <message>
        <source>Browsers show the whole picture early, and sharpen it while it loads</source>
        <translation>Browser zeigen früh das ganze Bild und schärfen es beim Laden</translation>
    </message>
    <message>
        <source>Co&amp;mpression:</source>
        <translation>&amp;Kompression:</translation>
    </message>
    <message>
        <source>How the pixels are packed; none is lost</source>
        <translation>Wie die Pixel gepackt werden; keines geht verloren</translation>
    </message>
    <message>
        <source>&amp;Depth:</source>
        <translation>Farb&amp;tiefe:</translation>
    </message>
    <message>
        <source>Bits of each color component</source>
        <translation>Bit je Farbanteil</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>A&amp;uflösung:</translation>
    </message>
    <message>
        <source>Dots per inch, stored for printing; the pixels stay the same</source>
        <translation>Punkte je Zoll, für den Druck gespeichert; die Pixel bleiben gleich</translation>
    </message>
    <message>
        <source>Me&amp;tadata:</source>
        <translation>&amp;Metadaten:</translation>
    </message>
    <message>
        <source>What the opened file says about camera, date, author and place</source>
        <translation>Was die geöffnete Datei über Kamera, Datum, Urheber und Ort sagt</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>All but the place</source>
        <translation>Alle außer dem Ort</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Less makes a smaller file</source>
        <translation>Weniger ergibt eine kleinere Datei</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>&amp;Qualität:</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Width of the exported picture in pixels</source>
        <translation>Breite des exportierten Bildes in Pixeln</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Height of the exported picture in pixels</source>
        <translation>Höhe des exportierten Bildes in Pixeln</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Größe:</translation>
    </message>
    <message>
        <source>&amp;Keep proportions</source>
        <translation>&amp;Proportionen erhalten</translation>
    </message>
    <message>
        <source>The other side follows the one that is typed</source>
        <translation>Die andere Seite folgt der getippten</translation>
    </message>
</context>
<context>
    <name>Exporting</name>
    <message>
        <source>Drawing the picture…</source>
        <translation>Das Bild wird gezeichnet …</translation>
    </message>
    <message>
        <source>Exporting “%1”…</source>
        <translation>„%1“ wird exportiert …</translation>
    </message>
    <message>
        <source>Exported “%1”: %2</source>
        <comment>file name, its size</comment>
        <translation>„%1“ exportiert: %2</translation>
    </message>
</context>
<context>
    <name>FavouritesStore</name>
    <message>
        <source>The favourites can&apos;t be written to the disk.</source>
        <translation>Die Favoriten können nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>A list of favourites is damaged. It is kept as %1.</source>
        <translation>Eine Liste von Favoriten ist beschädigt. Sie bleibt als %1 erhalten.</translation>
    </message>
</context>
<context>
    <name>FilledMenus</name>
    <message>
        <source>No Pictures Yet</source>
        <translation>Noch keine Bilder</translation>
    </message>
    <message>
        <source>&amp;Clear Menu</source>
        <translation>&amp;Menü leeren</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Änderung</translation>
    </message>
    <message>
        <source>Before All Changes</source>
        <translation>Vor allen Änderungen</translation>
    </message>
    <message>
        <source>%1 (%2 times)</source>
        <translation>%1 (%2-mal)</translation>
    </message>
    <message>
        <source>Makes the changes up to this one again</source>
        <translation>Stellt die Änderungen bis zu dieser wieder her</translation>
    </message>
    <message>
        <source>Takes back what came after</source>
        <translation>Nimmt zurück, was danach kam</translation>
    </message>
    <message>
        <source>The present state</source>
        <translation>Der jetzige Stand</translation>
    </message>
</context>
<context>
    <name>Filter</name>
    <message>
        <source>3 by 3 Convolution</source>
        <translation>3×3-Faltung</translation>
    </message>
    <message>
        <source>3 by 3 RGB Convolution</source>
        <translation>3×3-RGB-Faltung</translation>
    </message>
    <message>
        <source>5 by 5 Convolution</source>
        <translation>5×5-Faltung</translation>
    </message>
    <message>
        <source>5 by 5 RGB Convolution</source>
        <translation>5×5-RGB-Faltung</translation>
    </message>
    <message>
        <source>7 by 7 Convolution</source>
        <translation>7×7-Faltung</translation>
    </message>
    <message>
        <source>7 by 7 RGB Convolution</source>
        <translation>7×7-RGB-Faltung</translation>
    </message>
    <message>
        <source>Accordion Fold Transition</source>
        <translation>Übergang „Ziehharmonika“</translation>
    </message>
    <message>
        <source>Addition</source>
        <translation>Addition</translation>
    </message>
    <message>
        <source>Affine Clamp</source>
        <translation>Affin, Rand fortgesetzt</translation>
    </message>
    <message>
        <source>Affine Tile</source>
        <translation>Affine Kacheln</translation>
    </message>
    <message>
        <source>Affine Transform</source>
        <translation>Affine Transformation</translation>
    </message>
    <message>
        <source>Area Alpha Weighted Histogram</source>
        <translation>Bereichshistogramm mit Alphagewichtung</translation>
    </message>
    <message>
        <source>Area Average</source>
        <translation>Bereichsmittel</translation>
    </message>
    <message>
        <source>Area Bounds Red</source>
        <translation>Grenzen des Rotbereichs</translation>
    </message>
    <message>
        <source>Area Histogram</source>
        <translation>Bereichshistogramm</translation>
    </message>
    <message>
        <source>Area Logarithmic Histogram</source>
        <translation>Logarithmisches Bereichshistogramm</translation>
    </message>
    <message>
        <source>Area Maximum</source>
        <translation>Bereichsmaximum</translation>
    </message>
    <message>
        <source>Area Maximum Alpha</source>
        <translation>Alphamaximum im Bereich</translation>
    </message>
    <message>
        <source>Area Min and Max</source>
        <translation>Bereichsminimum und -maximum</translation>
    </message>
    <message>
        <source>Area Min and Max Red</source>
        <translation>Rotminimum und -maximum im Bereich</translation>
    </message>
    <message>
        <source>Area Minimum</source>
        <translation>Bereichsminimum</translation>
    </message>
    <message>
        <source>Area Minimum Alpha</source>
        <translation>Alphaminimum im Bereich</translation>
    </message>
    <message>
        <source>Attributed Text Image Generator</source>
        <translation>Formatierter Text</translation>
    </message>
    <message>
        <source>Aztec Code Generator</source>
        <translation>Aztec-Code</translation>
    </message>
    <message>
        <source>Bars Swipe Transition</source>
        <translation>Übergang mit Balken</translation>
    </message>
    <message>
        <source>Bicubic Scale Transform</source>
        <translation>Bikubische Skalierung</translation>
    </message>
    <message>
        <source>Blend With Alpha Mask</source>
        <translation>Mischen mit Alphamaske</translation>
    </message>
    <message>
        <source>Blend With Blue Mask</source>
        <translation>Mischen mit Blaumaske</translation>
    </message>
    <message>
        <source>Blend With Mask</source>
        <translation>Mischen mit Maske</translation>
    </message>
    <message>
        <source>Blend With Red Mask</source>
        <translation>Mischen mit Rotmaske</translation>
    </message>
    <message>
        <source>Bloom</source>
        <translation>Überstrahlung</translation>
    </message>
    <message>
        <source>Blurred Rectangle Generator</source>
        <translation>Weiches Rechteck</translation>
    </message>
    <message>
        <source>Bokeh Blur</source>
        <translation>Bokeh-Weichzeichner</translation>
    </message>
    <message>
        <source>Box Blur</source>
        <translation>Feldweichzeichner</translation>
    </message>
    <message>
        <source>Bump Distortion</source>
        <translation>Beule</translation>
    </message>
    <message>
        <source>Bump Distortion Linear</source>
        <translation>Lineare Beule</translation>
    </message>
    <message>
        <source>CMYK Halftone</source>
        <translation>CMYK-Raster</translation>
    </message>
    <message>
        <source>Canny Edge Detector</source>
        <translation>Canny-Kanten</translation>
    </message>
    <message>
        <source>Checkerboard</source>
        <translation>Schachbrett</translation>
    </message>
    <message>
        <source>Circle Splash Distortion</source>
        <translation>Kreisspritzer</translation>
    </message>
    <message>
        <source>Circular Screen</source>
        <translation>Kreisraster</translation>
    </message>
    <message>
        <source>Circular Wrap Distortion</source>
        <translation>Kreisbogen</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>Rand fortsetzen</translation>
    </message>
    <message>
        <source>Code 128 Barcode Generator</source>
        <translation>Strichcode (Code 128)</translation>
    </message>
    <message>
        <source>Color Absolute Difference</source>
        <translation>Absolute Farbdifferenz</translation>
    </message>
    <message>
        <source>Color Blend Mode</source>
        <translation>Mischmodus „Farbe“</translation>
    </message>
    <message>
        <source>Color Burn Blend Mode</source>
        <translation>Mischmodus „Farbig nachbelichten“</translation>
    </message>
    <message>
        <source>Color Clamp</source>
        <translation>Farben begrenzen</translation>
    </message>
    <message>
        <source>Color Controls</source>
        <translation>Farbregler</translation>
    </message>
    <message>
        <source>Color Cross Polynomial</source>
        <translation>Farbpolynom über Kreuz</translation>
    </message>
    <message>
        <source>Color Cube</source>
        <translation>Farbwürfel</translation>
    </message>
    <message>
        <source>Color Cube with ColorSpace</source>
        <translation>Farbwürfel mit Farbraum</translation>
    </message>
    <message>
        <source>Color Cubes Mixed With Mask</source>
        <translation>Farbwürfel mit Maske</translation>
    </message>
    <message>
        <source>Color Curves</source>
        <translation>Farbkurven</translation>
    </message>
    <message>
        <source>Color Dodge Blend Mode</source>
        <translation>Mischmodus „Farbig abwedeln“</translation>
    </message>
    <message>
        <source>Color Invert</source>
        <translation>Farben umkehren</translation>
    </message>
    <message>
        <source>Color Map</source>
        <translation>Farbzuordnung</translation>
    </message>
    <message>
        <source>Color Matrix</source>
        <translation>Farbmatrix</translation>
    </message>
    <message>
        <source>Color Monochrome</source>
        <translation>Monochrom</translation>
    </message>
    <message>
        <source>Color Polynomial</source>
        <translation>Farbpolynom</translation>
    </message>
    <message>
        <source>Color Posterize</source>
        <translation>Tontrennung</translation>
    </message>
    <message>
        <source>Color Threshold</source>
        <translation>Farbschwelle</translation>
    </message>
    <message>
        <source>Color Threshold Otsu</source>
        <translation>Farbschwelle nach Otsu</translation>
    </message>
    <message>
        <source>Column Average</source>
        <translation>Spaltenmittel</translation>
    </message>
    <message>
        <source>Combined Keystone Correction</source>
        <translation>Entzerrung, beidseitig</translation>
    </message>
    <message>
        <source>Comic Effect</source>
        <translation>Comic</translation>
    </message>
    <message>
        <source>Constant Color</source>
        <translation>Einheitliche Farbe</translation>
    </message>
    <message>
        <source>Convert Lab to RGB</source>
        <translation>Lab in RGB umwandeln</translation>
    </message>
    <message>
        <source>Convert RGB to Lab</source>
        <translation>RGB in Lab umwandeln</translation>
    </message>
    <message>
        <source>Copy Machine</source>
        <translation>Fotokopierer</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <source>Crystallize</source>
        <translation>Kristallisieren</translation>
    </message>
    <message>
        <source>Darken Blend Mode</source>
        <translation>Mischmodus „Abdunkeln“</translation>
    </message>
    <message>
        <source>Depth To Disparity</source>
        <translation>Tiefe in Disparität</translation>
    </message>
    <message>
        <source>Depth of Field</source>
        <translation>Tiefenschärfe</translation>
    </message>
    <message>
        <source>Difference Blend Mode</source>
        <translation>Mischmodus „Differenz“</translation>
    </message>
    <message>
        <source>Disc Blur</source>
        <translation>Scheibenweichzeichner</translation>
    </message>
    <message>
        <source>Disintegrate With Mask</source>
        <translation>Auflösen mit Maske</translation>
    </message>
    <message>
        <source>Disparity To Depth</source>
        <translation>Disparität in Tiefe</translation>
    </message>
    <message>
        <source>Displacement Distortion</source>
        <translation>Versetzung</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>Überblenden</translation>
    </message>
    <message>
        <source>Distance Gradient From Red Mask</source>
        <translation>Abstand von Rotmaske</translation>
    </message>
    <message>
        <source>Dither</source>
        <translation>Dithering</translation>
    </message>
    <message>
        <source>Divide Blend Mode</source>
        <translation>Mischmodus „Dividieren“</translation>
    </message>
    <message>
        <source>Document Enhancer</source>
        <translation>Dokumentverbesserung</translation>
    </message>
    <message>
        <source>Dot Screen</source>
        <translation>Punktraster</translation>
    </message>
    <message>
        <source>Droste</source>
        <translation>Droste-Effekt</translation>
    </message>
    <message>
        <source>Edge Preserve Upsample Filter</source>
        <translation>Kantentreu vergrößern</translation>
    </message>
    <message>
        <source>Edge Work</source>
        <translation>Kantenzeichnung</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Kanten</translation>
    </message>
    <message>
        <source>Eightfold Reflected Tile</source>
        <translation>Spiegelkacheln, achtfach</translation>
    </message>
    <message>
        <source>Exclusion Blend Mode</source>
        <translation>Mischmodus „Ausschluss“</translation>
    </message>
    <message>
        <source>Exposure Adjust</source>
        <translation>Belichtung</translation>
    </message>
    <message>
        <source>False Color</source>
        <translation>Falschfarben</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Blitz</translation>
    </message>
    <message>
        <source>Fourfold Reflected Tile</source>
        <translation>Spiegelkacheln, vierfach</translation>
    </message>
    <message>
        <source>Fourfold Rotated Tile</source>
        <translation>Drehkacheln, vierfach</translation>
    </message>
    <message>
        <source>Fourfold Translated Tile</source>
        <translation>Schubkacheln, vierfach</translation>
    </message>
    <message>
        <source>Gabor Gradients</source>
        <translation>Gabor-Gradienten</translation>
    </message>
    <message>
        <source>Gamma Adjust</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Gaussian Blur</source>
        <translation>Gaußscher Weichzeichner</translation>
    </message>
    <message>
        <source>Gaussian Gradient</source>
        <translation>Gaußscher Verlauf</translation>
    </message>
    <message>
        <source>Glass Distortion</source>
        <translation>Glas</translation>
    </message>
    <message>
        <source>Glass Lozenge</source>
        <translation>Glasraute</translation>
    </message>
    <message>
        <source>Glide Reflected Tile</source>
        <translation>Gleitspiegelkacheln</translation>
    </message>
    <message>
        <source>Gloom</source>
        <translation>Düsternis</translation>
    </message>
    <message>
        <source>Guided Filter</source>
        <translation>Geführter Filter</translation>
    </message>
    <message>
        <source>Hard Light Blend Mode</source>
        <translation>Mischmodus „Hartes Licht“</translation>
    </message>
    <message>
        <source>Hatched Screen</source>
        <translation>Schraffurraster</translation>
    </message>
    <message>
        <source>Height Field From Mask</source>
        <translation>Höhenfeld aus Maske</translation>
    </message>
    <message>
        <source>Hexagonal Pixelate</source>
        <translation>Sechseckig verpixeln</translation>
    </message>
    <message>
        <source>Highlight and Shadow Adjust</source>
        <translation>Lichter und Tiefen</translation>
    </message>
    <message>
        <source>Histogram Display</source>
        <translation>Histogrammanzeige</translation>
    </message>
    <message>
        <source>Hole Distortion</source>
        <translation>Loch</translation>
    </message>
    <message>
        <source>Horizontal 9 Convolution</source>
        <translation>Waagerechte 9er-Faltung</translation>
    </message>
    <message>
        <source>Horizontal 9 RGB Convolution</source>
        <translation>Waag. 9er-RGB-Faltung</translation>
    </message>
    <message>
        <source>Horizontal Keystone Correction</source>
        <translation>Horizontale Entzerrung</translation>
    </message>
    <message>
        <source>Hue Adjust</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Hue Blend Mode</source>
        <translation>Mischmodus „Farbton“</translation>
    </message>
    <message>
        <source>Hue/Saturation/Value Gradient</source>
        <translation>Farbkreisverlauf (HSV)</translation>
    </message>
    <message>
        <source>KMeans</source>
        <translation>K-Means</translation>
    </message>
    <message>
        <source>Kaleidoscope</source>
        <translation>Kaleidoskop</translation>
    </message>
    <message>
        <source>Lab ∆E</source>
        <translation>Lab-∆E</translation>
    </message>
    <message>
        <source>Lanczos Scale Transform</source>
        <translation>Lanczos-Skalierung</translation>
    </message>
    <message>
        <source>Lenticular Halo</source>
        <translation>Linsenhof</translation>
    </message>
    <message>
        <source>Light Tunnel Distortion</source>
        <translation>Lichttunnel</translation>
    </message>
    <message>
        <source>Lighten Blend Mode</source>
        <translation>Mischmodus „Aufhellen“</translation>
    </message>
    <message>
        <source>Line Overlay</source>
        <translation>Linienzeichnung</translation>
    </message>
    <message>
        <source>Line Screen</source>
        <translation>Linienraster</translation>
    </message>
    <message>
        <source>Linear Burn Blend Mode</source>
        <translation>Mischmodus „Linear nachbelichten“</translation>
    </message>
    <message>
        <source>Linear Dodge Blend Mode</source>
        <translation>Mischmodus „Linear abwedeln“</translation>
    </message>
    <message>
        <source>Linear Gradient</source>
        <translation>Linearer Verlauf</translation>
    </message>
    <message>
        <source>Linear Light Blend Mode</source>
        <translation>Mischmodus „Lineares Licht“</translation>
    </message>
    <message>
        <source>Linear to sRGB Tone Curve</source>
        <translation>Kurve linear zu sRGB</translation>
    </message>
    <message>
        <source>Luminosity Blend Mode</source>
        <translation>Mischmodus „Luminanz“</translation>
    </message>
    <message>
        <source>Mask to Alpha</source>
        <translation>Maske in Alpha</translation>
    </message>
    <message>
        <source>Masked Variable Blur</source>
        <translation>Weichzeichner mit Maske</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Maximum Component</source>
        <translation>Größte Komponente</translation>
    </message>
    <message>
        <source>Maximum Scale Transform</source>
        <translation>Maximum-Skalierung</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>Mesh Generator</source>
        <translation>Netz</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Minimum Component</source>
        <translation>Kleinste Komponente</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>Mischen</translation>
    </message>
    <message>
        <source>Mod</source>
        <translation>Übergang mit Löchern</translation>
    </message>
    <message>
        <source>Morphology Gradient</source>
        <translation>Morphol. Gradient</translation>
    </message>
    <message>
        <source>Morphology Maximum</source>
        <translation>Morphol. Maximum</translation>
    </message>
    <message>
        <source>Morphology Minimum</source>
        <translation>Morphol. Minimum</translation>
    </message>
    <message>
        <source>Morphology Rectangle Maximum</source>
        <translation>Maximum im Rechteck</translation>
    </message>
    <message>
        <source>Morphology Rectangle Minimum</source>
        <translation>Minimum im Rechteck</translation>
    </message>
    <message>
        <source>Motion Blur</source>
        <translation>Bewegungsunschärfe</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Multiplizieren</translation>
    </message>
    <message>
        <source>Multiply Blend Mode</source>
        <translation>Mischmodus „Multiplizieren“</translation>
    </message>
    <message>
        <source>Nine Part Stretched</source>
        <translation>Neunteilig gestreckt</translation>
    </message>
    <message>
        <source>Nine Part Tiled</source>
        <translation>Neunteilig gekachelt</translation>
    </message>
    <message>
        <source>Noise Reduction</source>
        <translation>Rauschminderung</translation>
    </message>
    <message>
        <source>Op Tile</source>
        <translation>Op-Art-Kacheln</translation>
    </message>
    <message>
        <source>Overlay Blend Mode</source>
        <translation>Mischmodus „Ineinanderkopieren“</translation>
    </message>
    <message>
        <source>PDF417 Barcode Generator</source>
        <translation>Strichcode (PDF417)</translation>
    </message>
    <message>
        <source>Page Curl</source>
        <translation>Umblättern</translation>
    </message>
    <message>
        <source>Page Curl With Shadow</source>
        <translation>Umblättern mit Schatten</translation>
    </message>
    <message>
        <source>Palette Centroid</source>
        <translation>Palettenschwerpunkt</translation>
    </message>
    <message>
        <source>Palettize</source>
        <translation>Auf Palette reduzieren</translation>
    </message>
    <message>
        <source>Parallelogram Tile</source>
        <translation>Parallelogrammkacheln</translation>
    </message>
    <message>
        <source>Perspective Correction</source>
        <translation>Perspektivkorrektur</translation>
    </message>
    <message>
        <source>Perspective Rotate</source>
        <translation>Perspektivische Drehung</translation>
    </message>
    <message>
        <source>Perspective Tile</source>
        <translation>Perspektivische Kacheln</translation>
    </message>
    <message>
        <source>Perspective Transform</source>
        <translation>Perspektive</translation>
    </message>
    <message>
        <source>Perspective Transform with Extent</source>
        <translation>Perspektive, Ausschnitt</translation>
    </message>
    <message>
        <source>Photo Effect Chrome</source>
        <translation>Foto „Chrom“</translation>
    </message>
    <message>
        <source>Photo Effect Fade</source>
        <translation>Foto „Verblasst“</translation>
    </message>
    <message>
        <source>Photo Effect Instant</source>
        <translation>Foto „Sofortbild“</translation>
    </message>
    <message>
        <source>Photo Effect Mono</source>
        <translation>Foto „Mono“</translation>
    </message>
    <message>
        <source>Photo Effect Noir</source>
        <translation>Foto „Noir“</translation>
    </message>
    <message>
        <source>Photo Effect Process</source>
        <translation>Foto „Entwicklung“</translation>
    </message>
    <message>
        <source>Photo Effect Tonal</source>
        <translation>Foto „Tonal“</translation>
    </message>
    <message>
        <source>Photo Effect Transfer</source>
        <translation>Foto „Transfer“</translation>
    </message>
    <message>
        <source>Pin Light Blend Mode</source>
        <translation>Mischmodus „Lichtpunkte“</translation>
    </message>
    <message>
        <source>Pinch Distortion</source>
        <translation>Einschnürung</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>Verpixeln</translation>
    </message>
    <message>
        <source>Pointillize</source>
        <translation>Pointillieren</translation>
    </message>
    <message>
        <source>QR Code Generator</source>
        <translation>QR-Code</translation>
    </message>
    <message>
        <source>Radial Gradient</source>
        <translation>Radialer Verlauf</translation>
    </message>
    <message>
        <source>Random Generator</source>
        <translation>Zufallsrauschen</translation>
    </message>
    <message>
        <source>Ripple</source>
        <translation>Wellenkreis</translation>
    </message>
    <message>
        <source>Rounded Rectangle Generator</source>
        <translation>Abgerundetes Rechteck</translation>
    </message>
    <message>
        <source>Rounded Rectangle Stroke Generator</source>
        <translation>Abgerundeter Rahmen</translation>
    </message>
    <message>
        <source>Row Average</source>
        <translation>Zeilenmittel</translation>
    </message>
    <message>
        <source>Saliency Map Filter</source>
        <translation>Auffälligkeitskarte</translation>
    </message>
    <message>
        <source>Sample Nearest</source>
        <translation>Nächstes Pixel</translation>
    </message>
    <message>
        <source>Saturation Blend Mode</source>
        <translation>Mischmodus „Sättigung“</translation>
    </message>
    <message>
        <source>Screen Blend Mode</source>
        <translation>Mischmodus „Negativ multiplizieren“</translation>
    </message>
    <message>
        <source>Sepia Tone</source>
        <translation>Sepia</translation>
    </message>
    <message>
        <source>Shaded Material</source>
        <translation>Schattiertes Material</translation>
    </message>
    <message>
        <source>Sharpen Luminance</source>
        <translation>Luminanz schärfen</translation>
    </message>
    <message>
        <source>Sixfold Reflected Tile</source>
        <translation>Spiegelkacheln, sechsfach</translation>
    </message>
    <message>
        <source>Sixfold Rotated Tile</source>
        <translation>Drehkacheln, sechsfach</translation>
    </message>
    <message>
        <source>Smooth Linear Gradient</source>
        <translation>Sanfter linearer Verlauf</translation>
    </message>
    <message>
        <source>Sobel Gradients</source>
        <translation>Sobel-Gradienten</translation>
    </message>
    <message>
        <source>Soft Light Blend Mode</source>
        <translation>Mischmodus „Weiches Licht“</translation>
    </message>
    <message>
        <source>Source Atop</source>
        <translation>Quelle auf Hintergrund</translation>
    </message>
    <message>
        <source>Source In</source>
        <translation>Quelle innerhalb</translation>
    </message>
    <message>
        <source>Source Out</source>
        <translation>Quelle außerhalb</translation>
    </message>
    <message>
        <source>Source Over</source>
        <translation>Quelle darüber</translation>
    </message>
    <message>
        <source>Spot Color</source>
        <translation>Schmuckfarben</translation>
    </message>
    <message>
        <source>Spot Light</source>
        <translation>Spotlicht</translation>
    </message>
    <message>
        <source>Star Shine</source>
        <translation>Sternenglanz</translation>
    </message>
    <message>
        <source>Straighten</source>
        <translation>Gerade richten</translation>
    </message>
    <message>
        <source>Stretch Crop</source>
        <translation>Strecken und stutzen</translation>
    </message>
    <message>
        <source>Stripes</source>
        <translation>Streifen</translation>
    </message>
    <message>
        <source>Subtract Blend Mode</source>
        <translation>Mischmodus „Subtrahieren“</translation>
    </message>
    <message>
        <source>Sunbeams</source>
        <translation>Sonnenstrahlen</translation>
    </message>
    <message>
        <source>Swipe</source>
        <translation>Wischen</translation>
    </message>
    <message>
        <source>Temperature and Tint</source>
        <translation>Temperatur und Tönung</translation>
    </message>
    <message>
        <source>Text Image Generator</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Thermal</source>
        <translation>Wärmebild</translation>
    </message>
    <message>
        <source>Tone Curve</source>
        <translation>Tonwertkurve</translation>
    </message>
    <message>
        <source>Tone Map Headroom</source>
        <translation>Tonwertumfang</translation>
    </message>
    <message>
        <source>Torus Lens Distortion</source>
        <translation>Toruslinse</translation>
    </message>
    <message>
        <source>Triangle Kaleidoscope</source>
        <translation>Dreieckskaleidoskop</translation>
    </message>
    <message>
        <source>Triangle Tile</source>
        <translation>Dreieckskacheln</translation>
    </message>
    <message>
        <source>Twelvefold Reflected Tile</source>
        <translation>Spiegelkacheln, zwölffach</translation>
    </message>
    <message>
        <source>Twirl Distortion</source>
        <translation>Strudel</translation>
    </message>
    <message>
        <source>Unsharp Mask</source>
        <translation>Unscharf maskieren</translation>
    </message>
    <message>
        <source>Vertical 9 Convolution</source>
        <translation>Senkrechte 9er-Faltung</translation>
    </message>
    <message>
        <source>Vertical 9 RGB Convolution</source>
        <translation>Senkr. 9er-RGB-Faltung</translation>
    </message>
    <message>
        <source>Vertical Keystone Correction</source>
        <translation>Vertikale Entzerrung</translation>
    </message>
    <message>
        <source>Vibrance</source>
        <translation>Dynamik</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Vignette</translation>
    </message>
    <message>
        <source>Vignette Effect</source>
        <translation>Vignetteneffekt</translation>
    </message>
    <message>
        <source>Vivid Light Blend Mode</source>
        <translation>Mischmodus „Strahlendes Licht“</translation>
    </message>
    <message>
        <source>Vortex Distortion</source>
        <translation>Wirbel</translation>
    </message>
    <message>
        <source>White Point Adjust</source>
        <translation>Weißpunkt</translation>
    </message>
    <message>
        <source>X-Ray</source>
        <translation>Röntgenbild</translation>
    </message>
    <message>
        <source>Zoom Blur</source>
        <translation>Zoom-Weichzeichner</translation>
    </message>
    <message>
        <source>sRGB Tone Curve to Linear</source>
        <translation>Kurve sRGB zu linear</translation>
    </message>
</context>
<context>
    <name>FilterOptions</name>
    <message>
        <source>Standard values are made for small pictures. Start filters with values that fit this one?</source>
        <translation>Standardwerte sind für kleine Bilder gemacht. Sollen Filter mit Werten beginnen, die zu diesem passen?</translation>
    </message>
    <message>
        <source>Standard values suit a small picture.</source>
        <translation>Standardwerte passen zu einem kleinen Bild.</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Anpassen</translation>
    </message>
    <message>
        <source>Standard Values</source>
        <translation>Standardwerte</translation>
    </message>
    <message>
        <source>Always Fit</source>
        <translation>Immer anpassen</translation>
    </message>
</context>
<context>
    <name>FilterView</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
</context>
<context>
    <name>HelpPage</name>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>A page of the help book; links lead to the others</source>
        <translation>Eine Seite des Hilfebuchs; Verweise führen zu den anderen</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Lumivex Help</source>
        <translation>Lumivex-Hilfe</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>The pages of the help book</source>
        <translation>Die Seiten des Hilfebuchs</translation>
    </message>
</context>
<context>
    <name>HistogramView</name>
    <message>
        <source>Histogram</source>
        <translation>Histogramm</translation>
    </message>
    <message>
        <source>There is no picture.</source>
        <translation>Es gibt kein Bild.</translation>
    </message>
    <message>
        <source>Mean brightness %1 %, black %2 %, white %3 %</source>
        <translation>Mittlere Helligkeit %1&#xa0;%, schwarz %2&#xa0;%, weiß %3&#xa0;%</translation>
    </message>
    <message>
        <source>How often each brightness is seen, from black to white.
%1</source>
        <translation>Wie oft jede Helligkeit vorkommt, von Schwarz bis Weiß.
%1</translation>
    </message>
    <message>
        <source>Luma</source>
        <translation>Luminanz</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
</context>
<context>
    <name>ImageInfo</name>
    <message>
        <source>Image Information</source>
        <translation>Bildinformationen</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Datei:</translation>
    </message>
    <message>
        <source>n/a</source>
        <translation>–</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Where the picture&apos;s file is</source>
        <translation>Wo die Datei des Bildes liegt</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Typ:</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>What the file&apos;s content is, whatever its name says</source>
        <translation>Was die Datei enthält, gleich wie sie heißt</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Größe:</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Of the file on the disk</source>
        <translation>Der Datei auf dem Datenträger</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>All that the file says about its picture</source>
        <translation>Alles, was die Datei über ihr Bild sagt</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>PNG Image</source>
        <translation>PNG-Bild</translation>
    </message>
    <message>
        <source>GIF Image</source>
        <translation>GIF-Bild</translation>
    </message>
    <message>
        <source>JPG Image</source>
        <translation>JPG-Bild</translation>
    </message>
    <message>
        <source>WebP Image</source>
        <translation>WebP-Bild</translation>
    </message>
    <message>
        <source>TIFF Image</source>
        <translation>TIFF-Bild</translation>
    </message>
    <message>
        <source>BMP Image</source>
        <translation>BMP-Bild</translation>
    </message>
    <message>
        <source>SVG Image</source>
        <translation>SVG-Bild</translation>
    </message>
    <message>
        <source>RAW Image</source>
        <translation>Rohdatenbild (RAW)</translation>
    </message>
    <message>
        <source>PDF Image</source>
        <translation>PDF-Bild</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Bytes</translation>
    </message>
</context>
<context>
    <name>Input</name>
    <message>
        <source>A Vector</source>
        <translation>Vektor A</translation>
    </message>
    <message>
        <source>A larger image to use as a guide.</source>
        <translation>Führungsbild</translation>
    </message>
    <message>
        <source>Acute Angle</source>
        <translation>Spitzer Winkel</translation>
    </message>
    <message>
        <source>Alpha Coefficients</source>
        <translation>Alpha</translation>
    </message>
    <message>
        <source>Alpha Vector</source>
        <translation>Alphavektor</translation>
    </message>
    <message>
        <source>Always Specify Compaction</source>
        <translation>Packung angeben</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>Verhältnis</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>B Vector</source>
        <translation>Vektor B</translation>
    </message>
    <message>
        <source>Background Image</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Backside Image</source>
        <translation>Rückseite</translation>
    </message>
    <message>
        <source>Bar Offset</source>
        <translation>Balkenversatz</translation>
    </message>
    <message>
        <source>Barcode Height</source>
        <translation>Codehöhe</translation>
    </message>
    <message>
        <source>Bias</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>Bias Vector</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>Blue Coefficients</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Blue Vector</source>
        <translation>Blauvektor</translation>
    </message>
    <message>
        <source>Bottom Height</source>
        <translation>Höhe unten</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Breakpoint 0</source>
        <translation>Knickpunkt 0</translation>
    </message>
    <message>
        <source>Breakpoint 1</source>
        <translation>Knickpunkt 1</translation>
    </message>
    <message>
        <source>Breakpoint0</source>
        <translation>Knickpunkt 0</translation>
    </message>
    <message>
        <source>Breakpoint1</source>
        <translation>Knickpunkt 1</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>C</source>
        <translation>C</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Center Color 1</source>
        <translation>Mittenfarbe 1</translation>
    </message>
    <message>
        <source>Center Color 2</source>
        <translation>Mittenfarbe 2</translation>
    </message>
    <message>
        <source>Center Color 3</source>
        <translation>Mittenfarbe 3</translation>
    </message>
    <message>
        <source>Center Stretch Amount</source>
        <translation>Streckung</translation>
    </message>
    <message>
        <source>Closeness 1</source>
        <translation>Nähe 1</translation>
    </message>
    <message>
        <source>Closeness 2</source>
        <translation>Nähe 2</translation>
    </message>
    <message>
        <source>Closeness 3</source>
        <translation>Nähe 3</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Color 0</source>
        <translation>Farbe 0</translation>
    </message>
    <message>
        <source>Color 1</source>
        <translation>Farbe 1</translation>
    </message>
    <message>
        <source>Color 2</source>
        <translation>Farbe 2</translation>
    </message>
    <message>
        <source>Color Space</source>
        <translation>Farbraum</translation>
    </message>
    <message>
        <source>Compact Style</source>
        <translation>Kompakte Form</translation>
    </message>
    <message>
        <source>Compaction Mode</source>
        <translation>Packmodus</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Kompression</translation>
    </message>
    <message>
        <source>Concentration</source>
        <translation>Bündelung</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Contrast 1</source>
        <translation>Kontrast 1</translation>
    </message>
    <message>
        <source>Contrast 2</source>
        <translation>Kontrast 2</translation>
    </message>
    <message>
        <source>Contrast 3</source>
        <translation>Kontrast 3</translation>
    </message>
    <message>
        <source>Correction Level</source>
        <translation>Korrektur</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <source>Crop Amount</source>
        <translation>Zuschnitt</translation>
    </message>
    <message>
        <source>Cross Angle</source>
        <translation>Strahlwinkel</translation>
    </message>
    <message>
        <source>Cross Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Cross Scale</source>
        <translation>Strahlgröße</translation>
    </message>
    <message>
        <source>Cross Width</source>
        <translation>Strahlbreite</translation>
    </message>
    <message>
        <source>Cube 0 Data</source>
        <translation>Daten von Würfel 0</translation>
    </message>
    <message>
        <source>Cube 1 Data</source>
        <translation>Daten von Würfel 1</translation>
    </message>
    <message>
        <source>Cube Data</source>
        <translation>Würfeldaten</translation>
    </message>
    <message>
        <source>Cube Dimension</source>
        <translation>Würfelgröße</translation>
    </message>
    <message>
        <source>Curves Data</source>
        <translation>Kurvendaten</translation>
    </message>
    <message>
        <source>Curves Domain</source>
        <translation>Kurvenbereich</translation>
    </message>
    <message>
        <source>Data Columns</source>
        <translation>Datenspalten</translation>
    </message>
    <message>
        <source>Decay</source>
        <translation>Abklingen</translation>
    </message>
    <message>
        <source>Displacement Image</source>
        <translation>Versatzbild</translation>
    </message>
    <message>
        <source>Dither</source>
        <translation>Dithering</translation>
    </message>
    <message>
        <source>E V</source>
        <translation>Lichtwert (EV)</translation>
    </message>
    <message>
        <source>EV</source>
        <translation>Lichtwert (EV)</translation>
    </message>
    <message>
        <source>Edge Intensity</source>
        <translation>Kantenstärke</translation>
    </message>
    <message>
        <source>Epsilon</source>
        <translation>Epsilon</translation>
    </message>
    <message>
        <source>Extent</source>
        <translation>Ausdehnung</translation>
    </message>
    <message>
        <source>Extrapolate</source>
        <translation>Extrapolieren</translation>
    </message>
    <message>
        <source>Fade Threshold</source>
        <translation>Blendgrenze</translation>
    </message>
    <message>
        <source>Falloff</source>
        <translation>Abfall</translation>
    </message>
    <message>
        <source>Flip Y Tiles</source>
        <translation>Kacheln in y spiegeln</translation>
    </message>
    <message>
        <source>Focal Length</source>
        <translation>Brennweite</translation>
    </message>
    <message>
        <source>Fold Shadow Amount</source>
        <translation>Faltenschatten</translation>
    </message>
    <message>
        <source>Font Name</source>
        <translation>Schriftart</translation>
    </message>
    <message>
        <source>Font Size</source>
        <translation>Schriftgröße</translation>
    </message>
    <message>
        <source>G C R</source>
        <translation>GCR</translation>
    </message>
    <message>
        <source>G Vector</source>
        <translation>Vektor G</translation>
    </message>
    <message>
        <source>Gaussian Sigma</source>
        <translation>Gauß-Sigma</translation>
    </message>
    <message>
        <source>Gradient Image</source>
        <translation>Verlaufsbild</translation>
    </message>
    <message>
        <source>Gray Component Replacement</source>
        <translation>Grau (GCR)</translation>
    </message>
    <message>
        <source>Green Coefficients</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Green Vector</source>
        <translation>Grünvektor</translation>
    </message>
    <message>
        <source>Grow Amount</source>
        <translation>Vergrößerung</translation>
    </message>
    <message>
        <source>Guide Image</source>
        <translation>Führungsbild</translation>
    </message>
    <message>
        <source>Halo Overlap</source>
        <translation>Überlappung</translation>
    </message>
    <message>
        <source>Halo Radius</source>
        <translation>Hofradius</translation>
    </message>
    <message>
        <source>Halo Width</source>
        <translation>Hofbreite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>High Limit</source>
        <translation>Obere Grenze</translation>
    </message>
    <message>
        <source>Highlight Amount</source>
        <translation>Lichter</translation>
    </message>
    <message>
        <source>Hysteresis Passes</source>
        <translation>Hysterese</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Image 2</source>
        <translation>Bild 2</translation>
    </message>
    <message>
        <source>Image2</source>
        <translation>Bild 2</translation>
    </message>
    <message>
        <source>Inset Point 0</source>
        <translation>Innenpunkt 0</translation>
    </message>
    <message>
        <source>Inset Point 1</source>
        <translation>Innenpunkt 1</translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation>Intensität</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Lagen</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>Stufen</translation>
    </message>
    <message>
        <source>Light Points At</source>
        <translation>Lichtziel</translation>
    </message>
    <message>
        <source>Light Position</source>
        <translation>Lichtposition</translation>
    </message>
    <message>
        <source>Low Limit</source>
        <translation>Untere Grenze</translation>
    </message>
    <message>
        <source>Luma Sigma</source>
        <translation>Luma-Sigma</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>Maske</translation>
    </message>
    <message>
        <source>Mask Image</source>
        <translation>Maskenbild</translation>
    </message>
    <message>
        <source>Max Components</source>
        <translation>Größte Werte</translation>
    </message>
    <message>
        <source>Max Height</source>
        <translation>Max. Höhe</translation>
    </message>
    <message>
        <source>Max Striation Radius</source>
        <translation>Riefenradius</translation>
    </message>
    <message>
        <source>Max Width</source>
        <translation>Max. Breite</translation>
    </message>
    <message>
        <source>Maximum Distance</source>
        <translation>Max. Abstand</translation>
    </message>
    <message>
        <source>Maximum Stop</source>
        <translation>Max. Blende</translation>
    </message>
    <message>
        <source>Maximum Striation Radius</source>
        <translation>Riefenradius</translation>
    </message>
    <message>
        <source>Means</source>
        <translation>Mittelwerte</translation>
    </message>
    <message>
        <source>Mesh</source>
        <translation>Netz</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>Min Components</source>
        <translation>Kleinste Werte</translation>
    </message>
    <message>
        <source>Min Height</source>
        <translation>Min. Höhe</translation>
    </message>
    <message>
        <source>Min Width</source>
        <translation>Min. Breite</translation>
    </message>
    <message>
        <source>Minimum Stop</source>
        <translation>Min. Blende</translation>
    </message>
    <message>
        <source>N R Noise Level</source>
        <translation>Rauschpegel</translation>
    </message>
    <message>
        <source>N R Sharpness</source>
        <translation>Schärfe</translation>
    </message>
    <message>
        <source>NR Noise Level</source>
        <translation>Rauschpegel</translation>
    </message>
    <message>
        <source>NR Sharpness</source>
        <translation>Schärfe</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>Neutralpunkt</translation>
    </message>
    <message>
        <source>Noise Level</source>
        <translation>Rauschpegel</translation>
    </message>
    <message>
        <source>Normalize</source>
        <translation>Normalisieren</translation>
    </message>
    <message>
        <source>Number Of Folds</source>
        <translation>Faltenzahl</translation>
    </message>
    <message>
        <source>Number of Folds</source>
        <translation>Faltenzahl</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Padding</source>
        <translation>Rand</translation>
    </message>
    <message>
        <source>Palette Image</source>
        <translation>Palettenbild</translation>
    </message>
    <message>
        <source>Passes</source>
        <translation>Durchläufe</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>Nach Wahrnehmung</translation>
    </message>
    <message>
        <source>Periodicity</source>
        <translation>Periodizität</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Nicken</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Point 0</source>
        <translation>Punkt 0</translation>
    </message>
    <message>
        <source>Point 1</source>
        <translation>Punkt 1</translation>
    </message>
    <message>
        <source>Point 2</source>
        <translation>Punkt 2</translation>
    </message>
    <message>
        <source>Point 3</source>
        <translation>Punkt 3</translation>
    </message>
    <message>
        <source>Point 4</source>
        <translation>Punkt 4</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Exponent</translation>
    </message>
    <message>
        <source>Preferred Aspect Ratio</source>
        <translation>Verhältnis</translation>
    </message>
    <message>
        <source>Quiet Space</source>
        <translation>Ruhezone</translation>
    </message>
    <message>
        <source>R Vector</source>
        <translation>Vektor R</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Radius 0</source>
        <translation>Radius 0</translation>
    </message>
    <message>
        <source>Radius 1</source>
        <translation>Radius 1</translation>
    </message>
    <message>
        <source>Radius 2</source>
        <translation>Radius 2</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Red Coefficients</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Red Vector</source>
        <translation>Rotvektor</translation>
    </message>
    <message>
        <source>Refraction</source>
        <translation>Brechung</translation>
    </message>
    <message>
        <source>Replacement Color 1</source>
        <translation>Ersatzfarbe 1</translation>
    </message>
    <message>
        <source>Replacement Color 2</source>
        <translation>Ersatzfarbe 2</translation>
    </message>
    <message>
        <source>Replacement Color 3</source>
        <translation>Ersatzfarbe 3</translation>
    </message>
    <message>
        <source>Ring Amount</source>
        <translation>Ringstärke</translation>
    </message>
    <message>
        <source>Ring Size</source>
        <translation>Ringgröße</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rollen</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Scale Factor</source>
        <translation>Maßstab</translation>
    </message>
    <message>
        <source>Shading Image</source>
        <translation>Schattierung</translation>
    </message>
    <message>
        <source>Shadow Amount</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>Shadow Density</source>
        <translation>Schattenstärke</translation>
    </message>
    <message>
        <source>Shadow Extent</source>
        <translation>Schattenmaß</translation>
    </message>
    <message>
        <source>Shadow Offset</source>
        <translation>Schattenlage</translation>
    </message>
    <message>
        <source>Shadow Radius</source>
        <translation>Schattenradius</translation>
    </message>
    <message>
        <source>Shadow Size</source>
        <translation>Schattengröße</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Schärfe</translation>
    </message>
    <message>
        <source>Sigma</source>
        <translation>Sigma</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Small Image</source>
        <translation>Kleines Bild</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Weichheit</translation>
    </message>
    <message>
        <source>Source Headroom</source>
        <translation>Quellumfang</translation>
    </message>
    <message>
        <source>Spatial Sigma</source>
        <translation>Raum-Sigma</translation>
    </message>
    <message>
        <source>Strands</source>
        <translation>Stränge</translation>
    </message>
    <message>
        <source>Striation Contrast</source>
        <translation>Riefenkontrast</translation>
    </message>
    <message>
        <source>Striation Strength</source>
        <translation>Riefenstärke</translation>
    </message>
    <message>
        <source>Sun Radius</source>
        <translation>Sonnenradius</translation>
    </message>
    <message>
        <source>Target Headroom</source>
        <translation>Zielumfang</translation>
    </message>
    <message>
        <source>Target Image</source>
        <translation>Zielbild</translation>
    </message>
    <message>
        <source>Target Neutral</source>
        <translation>Zielneutral</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>Textur</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Schwelle</translation>
    </message>
    <message>
        <source>Threshold High</source>
        <translation>Obere Schwelle</translation>
    </message>
    <message>
        <source>Threshold Low</source>
        <translation>Untere Schwelle</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>Oben rechts</translation>
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
        <translation>Bunt (UCR)</translation>
    </message>
    <message>
        <source>Unsharp Mask Intensity</source>
        <translation>Schärfung</translation>
    </message>
    <message>
        <source>Unsharp Mask Radius</source>
        <translation>Schärferadius</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Weights</source>
        <translation>Gewichte</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Yaw</source>
        <translation>Gieren</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
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
        <translation>Filter aus dem Katalog</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Effects in space</source>
        <translation>Effekte im Raum</translation>
    </message>
    <message>
        <source>3D</source>
        <translation>3D</translation>
    </message>
    <message>
        <source>Generated effects</source>
        <translation>Erzeugte Effekte</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigene</translation>
    </message>
    <message>
        <source>Open a picture</source>
        <translation>Ein Bild öffnen</translation>
    </message>
    <message>
        <source>Save the picture</source>
        <translation>Das Bild speichern</translation>
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
        <source>Turn left</source>
        <translation>Nach links drehen</translation>
    </message>
    <message>
        <source>Turn right</source>
        <translation>Nach rechts drehen</translation>
    </message>
    <message>
        <source>Exchange left and right</source>
        <translation>Links und rechts vertauschen</translation>
    </message>
    <message>
        <source>Turn upside down</source>
        <translation>Auf den Kopf stellen</translation>
    </message>
    <message>
        <source>Change the size of the picture</source>
        <translation>Die Bildgröße ändern</translation>
    </message>
    <message>
        <source>Information about the file</source>
        <translation>Informationen zur Datei</translation>
    </message>
    <message>
        <source>Copy the result</source>
        <translation>Das Ergebnis kopieren</translation>
    </message>
    <message>
        <source>Paste a picture</source>
        <translation>Ein Bild einfügen</translation>
    </message>
    <message>
        <source>Make the result the picture</source>
        <translation>Das Ergebnis zum Bild machen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Search filters</source>
        <translation>Filter suchen</translation>
    </message>
    <message>
        <source>Shows the filters whose name holds what you type. Return takes the first one.</source>
        <translation>Zeigt die Filter, deren Name den eingegebenen Text enthält. Die Eingabetaste nimmt den ersten.</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>3D effects</source>
        <translation>3D-Effekte</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>No favourites yet</source>
        <translation>Noch keine Favoriten</translation>
    </message>
    <message>
        <source>Add to the favourites</source>
        <translation>Zu den Favoriten hinzufügen</translation>
    </message>
    <message>
        <source>Picture area</source>
        <translation>Bildbereich</translation>
    </message>
    <message>
        <source>Choose a filter from the list to see what it makes of the picture.</source>
        <translation>Wählen Sie einen Filter aus der Liste, um zu sehen, was er aus dem Bild macht.</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>Hold to see the picture without the filter (F7)</source>
        <translation>Gedrückt halten, um das Bild ohne den Filter zu sehen (F7)</translation>
    </message>
    <message>
        <source>Hold to see the picture without the filter</source>
        <translation>Gedrückt halten, um das Bild ohne den Filter zu sehen</translation>
    </message>
    <message>
        <source>Compare side by side, with a divider on the picture</source>
        <translation>Nebeneinander vergleichen, mit einer Trennlinie auf dem Bild</translation>
    </message>
    <message>
        <source>Split view</source>
        <translation>Geteilte Ansicht</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Fit the picture into the window</source>
        <translation>Das Bild ins Fenster einpassen</translation>
    </message>
    <message>
        <source>Show the picture at actual size</source>
        <translation>Das Bild in Originalgröße zeigen</translation>
    </message>
    <message>
        <source>Zoom; double-click for actual size, or the whole picture</source>
        <translation>Zoom; Doppelklick für Originalgröße oder das ganze Bild</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Keeps the picture that was there (Esc)</source>
        <translation>Behält das bisherige Bild (Esc)</translation>
    </message>
    <message>
        <source>Cancel opening</source>
        <translation>Öffnen abbrechen</translation>
    </message>
    <message>
        <source>Export the picture into a file of any format</source>
        <translation>Das Bild in eine Datei beliebigen Formats exportieren</translation>
    </message>
    <message>
        <source>Shows the filters as larger pictures beside each other</source>
        <translation>Zeigt die Filter als größere Bilder nebeneinander</translation>
    </message>
    <message>
        <source>Filters in columns</source>
        <translation>Filter in Spalten</translation>
    </message>
    <message>
        <source>Gives the filter values that suit the size of the picture</source>
        <translation>Gibt dem Filter Werte, die zur Größe des Bildes passen</translation>
    </message>
    <message>
        <source>Fit to Picture</source>
        <translation>An das Bild anpassen</translation>
    </message>
    <message>
        <source>Cuts the result to the picture, without transparent edges</source>
        <translation>Schneidet das Ergebnis auf das Bild zu, ohne durchsichtige Ränder</translation>
    </message>
    <message>
        <source>Keep the picture’s size</source>
        <translation>Bildgröße beibehalten</translation>
    </message>
</context>
<context>
    <name>Mode</name>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Re&amp;name…</source>
        <translation>Um&amp;benennen…</translation>
    </message>
    <message>
        <source>Move &amp;Left</source>
        <translation>Nach &amp;links</translation>
    </message>
    <message>
        <source>Move &amp;Right</source>
        <translation>Nach &amp;rechts</translation>
    </message>
    <message>
        <source>Re&amp;place by Present Values</source>
        <translation>Durch die jetzigen &amp;Werte ersetzen</translation>
    </message>
    <message>
        <source>R&amp;emove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Rename Favourite</source>
        <translation>Favorit umbenennen</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
</context>
<context>
    <name>ModeSwitch</name>
    <message>
        <source>Change Mode</source>
        <translation>Modus wechseln</translation>
    </message>
</context>
<context>
    <name>MyImageView</name>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Tab goes from point to point of the filter, arrow keys move the point; the wheel zooms.</source>
        <translation>Die Tabulatortaste geht von Punkt zu Punkt des Filters, Pfeiltasten bewegen den Punkt; das Rad zoomt.</translation>
    </message>
    <message>
        <source>The picture as the filter shows it. Drag the points of the filter, zoom with the wheel, move the picture with the middle button or the space bar held.</source>
        <translation>Das Bild, wie der Filter es zeigt. Ziehen Sie die Punkte des Filters, zoomen Sie mit dem Rad, verschieben Sie das Bild mit der mittleren Taste oder bei gedrückter Leertaste.</translation>
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
        <translation>3D-Bild</translation>
    </message>
    <message>
        <source>Drag to turn. The arrow keys turn it as well.</source>
        <translation>Ziehen dreht das Bild. Auch die Pfeiltasten drehen es.</translation>
    </message>
    <message>
        <source>Nothing is to be seen from this side. Drag to turn it.</source>
        <translation>Von dieser Seite ist nichts zu sehen. Ziehen Sie, um es zu drehen.</translation>
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
        <translation>Bild öffnen</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>Bilder (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Open in New Window</source>
        <translation>In neuem Fenster öffnen</translation>
    </message>
    <message>
        <source>Leaves this window&apos;s picture as it is</source>
        <translation>Lässt das Bild in diesem Fenster, wie es ist</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Revert to Opened File</source>
        <translation>Zur geöffneten Datei zurückkehren</translation>
    </message>
</context>
<context>
    <name>OpeningView</name>
    <message>
        <source>Opening “%1”…</source>
        <translation>„%1“ wird geöffnet …</translation>
    </message>
</context>
<context>
    <name>Overlay</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Leaves everything as it was (Esc)</source>
        <translation>Lässt alles, wie es war (Esc)</translation>
    </message>
</context>
<context>
    <name>ParameterView</name>
    <message>
        <source>%1
A double click brings the standard value back</source>
        <translation>%1
Ein Doppelklick stellt den Standardwert wieder her</translation>
    </message>
    <message>
        <source>%1: type a number</source>
        <translation>%1: eine Zahl eingeben</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>%1 zurücksetzen</translation>
    </message>
    <message>
        <source>%1: %2 to %3%4</source>
        <comment>name, smallest and largest value, unit</comment>
        <translation>%1: %2 bis %3%4</translation>
    </message>
    <message>
        <source>%1: choose a color and how opaque it is</source>
        <translation>%1: Farbe und Deckkraft wählen</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>parameter and X, Y, Z or W</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Streckung</translation>
    </message>
    <message>
        <source>Skew</source>
        <translation>Neigung</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>parameter and its part, as in Transform Angle</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Choose %1</source>
        <translation>%1 auswählen</translation>
    </message>
    <message>
        <source>Opens a picture file for %1</source>
        <translation>Öffnet eine Bilddatei für „%1“</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
</context>
<context>
    <name>PictureMessage</name>
    <message>
        <source>There is no file “%1”.</source>
        <translation>Es gibt keine Datei „%1“.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Diese Datei gibt es nicht.</translation>
    </message>
    <message>
        <source>“%1” is a folder, not a picture.</source>
        <translation>„%1“ ist ein Ordner, kein Bild.</translation>
    </message>
    <message>
        <source>A folder is not a picture.</source>
        <translation>Ein Ordner ist kein Bild.</translation>
    </message>
    <message>
        <source>“%1” is not an ordinary file.</source>
        <translation>„%1“ ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>It is not an ordinary file.</source>
        <translation>Das ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be read: %2.</source>
        <translation>„%1“ kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be read.</source>
        <translation>„%1“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The picture can&apos;t be read.</source>
        <translation>Das Bild kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>“%1” is empty.</source>
        <translation>„%1“ ist leer.</translation>
    </message>
    <message>
        <source>The picture is empty.</source>
        <translation>Das Bild ist leer.</translation>
    </message>
    <message>
        <source>“%1” is not a picture of a kind that can be opened.</source>
        <translation>„%1“ ist kein Bild einer Art, die geöffnet werden kann.</translation>
    </message>
    <message>
        <source>It is not a picture of a kind that can be opened.</source>
        <translation>Das ist kein Bild einer Art, die geöffnet werden kann.</translation>
    </message>
    <message>
        <source>“%1” comes from a camera whose raw format is not known.</source>
        <translation>„%1“ kommt von einer Kamera, deren Rohformat nicht bekannt ist.</translation>
    </message>
    <message>
        <source>The picture comes from a camera whose raw format is not known.</source>
        <translation>Das Bild kommt von einer Kamera, deren Rohformat nicht bekannt ist.</translation>
    </message>
    <message>
        <source>“%1” is damaged or incomplete, so it can&apos;t be opened.</source>
        <translation>„%1“ ist beschädigt oder unvollständig und kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The picture is damaged or incomplete, so it can&apos;t be opened.</source>
        <translation>Das Bild ist beschädigt oder unvollständig und kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>“%1” is too large to be opened: %2 pixels.</source>
        <translation>„%1“ ist zu groß zum Öffnen: %2 Pixel.</translation>
    </message>
    <message>
        <source>“%1” is too large to be opened.</source>
        <translation>„%1“ ist zu groß zum Öffnen.</translation>
    </message>
    <message>
        <source>The picture is too large to be opened: %2 pixels.</source>
        <translation>Das Bild ist zu groß zum Öffnen: %2 Pixel.</translation>
    </message>
    <message>
        <source>The picture is too large to be opened.</source>
        <translation>Das Bild ist zu groß zum Öffnen.</translation>
    </message>
    <message>
        <source>“%1” has a kind of pixel that can&apos;t be shown.</source>
        <translation>„%1“ hat eine Art von Pixeln, die nicht gezeigt werden kann.</translation>
    </message>
    <message>
        <source>The picture has a kind of pixel that can&apos;t be shown.</source>
        <translation>Das Bild hat eine Art von Pixeln, die nicht gezeigt werden kann.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be opened.</source>
        <translation>„%1“ kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The picture can&apos;t be opened.</source>
        <translation>Das Bild kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Opening “%1” took too long.</source>
        <translation>Das Öffnen von „%1“ dauerte zu lange.</translation>
    </message>
    <message>
        <source>Opening the picture took too long.</source>
        <translation>Das Öffnen des Bildes dauerte zu lange.</translation>
    </message>
    <message>
        <source>Opening “%1” was given up.</source>
        <translation>Das Öffnen von „%1“ wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Opening the picture was given up.</source>
        <translation>Das Öffnen des Bildes wurde abgebrochen.</translation>
    </message>
    <message>
        <source>There is not enough memory to open “%1”.</source>
        <translation>Der Speicher reicht nicht, um „%1“ zu öffnen.</translation>
    </message>
    <message>
        <source>There is not enough memory to open the picture.</source>
        <translation>Der Speicher reicht nicht, um das Bild zu öffnen.</translation>
    </message>
    <message>
        <source>There is no picture to write.</source>
        <translation>Es gibt kein Bild zum Schreiben.</translation>
    </message>
    <message>
        <source>The picture was not written.</source>
        <translation>Das Bild wurde nicht geschrieben.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be written: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be written.</source>
        <translation>„%1“ kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The picture can&apos;t be written.</source>
        <translation>Das Bild kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>There was not enough memory to save the picture.</source>
        <translation>Der Speicher reichte nicht, um das Bild zu speichern.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be written: there is no space left on the disk.</source>
        <translation>„%1“ kann nicht geschrieben werden: Auf dem Datenträger ist kein Platz mehr.</translation>
    </message>
    <message>
        <source>There is no space left on the disk.</source>
        <translation>Auf dem Datenträger ist kein Platz mehr.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be written: you may not write into this folder.</source>
        <translation>„%1“ kann nicht geschrieben werden: Sie dürfen in diesen Ordner nicht schreiben.</translation>
    </message>
    <message>
        <source>You may not write into this folder.</source>
        <translation>Sie dürfen in diesen Ordner nicht schreiben.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be written: the disk is read-only.</source>
        <translation>„%1“ kann nicht geschrieben werden: Der Datenträger ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>The disk is read-only.</source>
        <translation>Der Datenträger ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be written: there is no such folder.</source>
        <translation>„%1“ kann nicht geschrieben werden: Es gibt keinen solchen Ordner.</translation>
    </message>
    <message>
        <source>There is no folder of that name.</source>
        <translation>Es gibt keinen Ordner dieses Namens.</translation>
    </message>
</context>
<context>
    <name>PictureProperty</name>
    <message>
        <source>PixelWidth</source>
        <translation>Breite in Pixel</translation>
    </message>
    <message>
        <source>PixelHeight</source>
        <translation>Höhe in Pixel</translation>
    </message>
    <message>
        <source>ColorModel</source>
        <translation>Farbmodell</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>DPIWidth</source>
        <translation>Auflösung waagerecht (dpi)</translation>
    </message>
    <message>
        <source>DPIHeight</source>
        <translation>Auflösung senkrecht (dpi)</translation>
    </message>
    <message>
        <source>ProfileName</source>
        <translation>Farbprofil</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Bittiefe</translation>
    </message>
    <message>
        <source>HasAlpha</source>
        <translation>Transparenz</translation>
    </message>
    <message>
        <source>IsFloat</source>
        <translation>Gleitkomma</translation>
    </message>
    <message>
        <source>IsProgressive</source>
        <translation>Progressiv</translation>
    </message>
    <message>
        <source>FrameCount</source>
        <translation>Bilderzahl</translation>
    </message>
    <message>
        <source>LoopCount</source>
        <translation>Wiederholungen</translation>
    </message>
    <message>
        <source>DelayTime</source>
        <translation>Anzeigedauer</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>LensModel</source>
        <translation>Objektiv</translation>
    </message>
    <message>
        <source>ExposureTime</source>
        <translation>Belichtungszeit</translation>
    </message>
    <message>
        <source>FNumber</source>
        <translation>Blende</translation>
    </message>
    <message>
        <source>FocalLength</source>
        <translation>Brennweite</translation>
    </message>
    <message>
        <source>ISOSpeedRatings</source>
        <translation>ISO-Empfindlichkeit</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Blitz</translation>
    </message>
    <message>
        <source>WhiteBalance</source>
        <translation>Weißabgleich</translation>
    </message>
    <message>
        <source>DateTime</source>
        <translation>Datum und Zeit</translation>
    </message>
    <message>
        <source>DateTimeOriginal</source>
        <translation>Aufnahmezeit</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Urheber</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>ImageDescription</source>
        <translation>Bildbeschreibung</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stops and leaves everything as it was</source>
        <translation>Hält an und lässt alles, wie es war</translation>
    </message>
</context>
<context>
    <name>ResizePanel</name>
    <message>
        <source>Resize Image</source>
        <translation>Bildgröße ändern</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Breite:</translation>
    </message>
    <message>
        <source>The new width, in the unit beside</source>
        <translation>Die neue Breite, in der Einheit daneben</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>The unit of width and height</source>
        <translation>Die Einheit von Breite und Höhe</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>millimeters</source>
        <translation>Millimeter</translation>
    </message>
    <message>
        <source>centimeters</source>
        <translation>Zentimeter</translation>
    </message>
    <message>
        <source>picas</source>
        <translation>Pica</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Höhe:</translation>
    </message>
    <message>
        <source>The new height, in the unit beside</source>
        <translation>Die neue Höhe, in der Einheit daneben</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>&amp;Keep proportions</source>
        <translation>&amp;Proportionen beibehalten</translation>
    </message>
    <message>
        <source>The other side follows the one that is typed</source>
        <translation>Die andere Seite folgt der eingegebenen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Closes the panel and changes nothing</source>
        <translation>Schließt das Fenster und ändert nichts</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Gives the picture this size</source>
        <translation>Gibt dem Bild diese Größe</translation>
    </message>
    <message>
        <source>%1 x %2 pixels</source>
        <translation>%1 × %2 Pixel</translation>
    </message>
</context>
<context>
    <name>Resizing</name>
    <message>
        <source>The picture can&apos;t have that size.</source>
        <translation>Diese Größe kann das Bild nicht haben.</translation>
    </message>
    <message>
        <source>Its width and its height are numbers above zero.</source>
        <translation>Breite und Höhe sind Zahlen über null.</translation>
    </message>
    <message>
        <source>The picture can&apos;t be made that large.</source>
        <translation>So groß kann das Bild nicht werden.</translation>
    </message>
    <message>
        <source>Up to %1 million pixels fit into this computer&apos;s memory.</source>
        <translation>In den Speicher dieses Rechners passen bis zu %1 Millionen Pixel.</translation>
    </message>
    <message>
        <source>Resizing the picture…</source>
        <translation>Bildgröße wird geändert …</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Größe ändern</translation>
    </message>
    <message>
        <source>There was not enough memory to resize the picture</source>
        <translation>Der Speicher reichte nicht, um die Bildgröße zu ändern</translation>
    </message>
</context>
<context>
    <name>SaveOptions</name>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format:</translation>
    </message>
    <message>
        <source>What kind of file is written; the name gets its extension</source>
        <translation>Welche Art von Datei geschrieben wird; der Name erhält ihre Endung</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>&amp;Auflösung:</translation>
    </message>
    <message>
        <source>Dots per inch</source>
        <translation>Punkte pro Zoll</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>72 dpi</source>
        <translation>72 dpi</translation>
    </message>
    <message>
        <source>96 dpi</source>
        <translation>96 dpi</translation>
    </message>
    <message>
        <source>150 dpi</source>
        <translation>150 dpi</translation>
    </message>
    <message>
        <source>300 dpi</source>
        <translation>300 dpi</translation>
    </message>
    <message>
        <source>600 dpi</source>
        <translation>600 dpi</translation>
    </message>
</context>
<context>
    <name>SavePanel</name>
    <message>
        <source>Will be written to %1</source>
        <translation>Wird nach %1 geschrieben</translation>
    </message>
    <message>
        <source>Will be written to %1, where there is no folder yet</source>
        <translation>Wird nach %1 geschrieben, wo es noch keinen Ordner gibt</translation>
    </message>
</context>
<context>
    <name>SaveTarget</name>
    <message>
        <source>There is no folder “%1”.</source>
        <translation>Den Ordner „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>Save As writes the whole path in lower case. You chose the folder “%1”. Export writes names as they are typed.</source>
        <translation>„Speichern unter“ schreibt den ganzen Pfad klein. Gewählt ist der Ordner „%1“. Der Export schreibt Namen, wie sie eingegeben werden.</translation>
    </message>
    <message>
        <source>Make Folder</source>
        <translation>Ordner anlegen</translation>
    </message>
    <message>
        <source>Use Chosen Folder</source>
        <translation>Gewählten Ordner verwenden</translation>
    </message>
    <message>
        <source>Don&apos;t ask again</source>
        <translation>Nicht mehr fragen</translation>
    </message>
</context>
<context>
    <name>Saving</name>
    <message>
        <source>Couldn&apos;t save file.</source>
        <translation>Die Datei konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>File I/O error occured.</source>
        <translation>Beim Schreiben der Datei ist ein Fehler aufgetreten.</translation>
    </message>
    <message>
        <source>Do you want to replace an existing file?</source>
        <translation>Soll die vorhandene Datei ersetzt werden?</translation>
    </message>
    <message>
        <source>A file with the same name is already exists. Replacing it will overwrite its current contents.</source>
        <translation>Eine Datei mit diesem Namen ist bereits vorhanden. Beim Ersetzen wird ihr Inhalt überschrieben.</translation>
    </message>
    <message>
        <source>Save Image As:</source>
        <translation>Bild speichern unter:</translation>
    </message>
    <message>
        <source>Saving “%1”…</source>
        <translation>„%1“ wird gespeichert …</translation>
    </message>
    <message>
        <source>The “%1” that was there is in the trash.</source>
        <translation>Die vorherige Datei „%1“ liegt im Papierkorb.</translation>
    </message>
    <message>
        <source>The “%1” that was there is kept for 30 days in %2.</source>
        <translation>Die vorherige Datei „%1“ bleibt 30 Tage lang in %2.</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>Lumivex ended unexpectedly. Restore the picture?</source>
        <translation>Lumivex wurde unerwartet beendet. Das Bild wiederherstellen?</translation>
    </message>
    <message>
        <source>Lumivex ended unexpectedly. Restore “%1”?</source>
        <translation>Lumivex wurde unerwartet beendet. „%1“ wiederherstellen?</translation>
    </message>
    <message>
        <source>The picture comes back with its filter, as it was at most a minute before.</source>
        <translation>Das Bild kommt mit seinem Filter zurück, in einem höchstens eine Minute älteren Stand.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Goes on where the work ended</source>
        <translation>Macht da weiter, wo die Arbeit endete</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Forgets the changes for good</source>
        <translation>Vergisst die Änderungen endgültig</translation>
    </message>
    <message>
        <source>Restoring the picture…</source>
        <translation>Bild wird wiederhergestellt …</translation>
    </message>
    <message>
        <source>The picture can&apos;t be restored; its journal is damaged.</source>
        <translation>Das Bild kann nicht wiederhergestellt werden; sein Journal ist beschädigt.</translation>
    </message>
    <message>
        <source>Do you want to open “%1” here?</source>
        <translation>Möchten Sie „%1“ hier öffnen?</translation>
    </message>
    <message>
        <source>Your changes will be lost if you did not save them.</source>
        <translation>Nicht gespeicherte Änderungen gehen verloren.</translation>
    </message>
</context>
<context>
    <name>SplitDivider</name>
    <message>
        <source>Divider</source>
        <translation>Trennlinie</translation>
    </message>
    <message>
        <source>The picture without the filter is left of it, the result is right of it.</source>
        <translation>Links davon ist das Bild ohne den Filter, rechts das Ergebnis.</translation>
    </message>
    <message>
        <source>Drag to compare: without the filter on the left, with it on the right</source>
        <translation>Zum Vergleichen ziehen: links ohne den Filter, rechts mit ihm</translation>
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
        <translation>Wählen Sie einen Filter aus der Liste, um zu sehen, was er aus dem Bild macht.</translation>
    </message>
    <message>
        <source>Drag the points on the picture.</source>
        <translation>Ziehen Sie die Punkte auf dem Bild.</translation>
    </message>
    <message>
        <source>There is nothing to set here.</source>
        <translation>Hier gibt es nichts einzustellen.</translation>
    </message>
    <message>
        <source>Applying the filter…</source>
        <translation>Filter wird angewendet …</translation>
    </message>
    <message>
        <source>Reset All Inputs</source>
        <translation>Alle Werte zurücksetzen</translation>
    </message>
    <message>
        <source>Randomize Inputs</source>
        <translation>Zufällige Werte</translation>
    </message>
    <message>
        <source>Fit to Picture</source>
        <translation>An das Bild anpassen</translation>
    </message>
</context>
<context>
    <name>StatusRow</name>
    <message>
        <source>sRGB 16-bit</source>
        <translation>sRGB, 16 Bit</translation>
    </message>
    <message>
        <source>sRGB 32-bit float</source>
        <translation>sRGB, 32 Bit Gleitkomma</translation>
    </message>
    <message>
        <source>sRGB 8-bit</source>
        <translation>sRGB, 8 Bit</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Kein Bild</translation>
    </message>
    <message>
        <source>%1 × %2 px · %3</source>
        <comment>width, height, color space and depth</comment>
        <translation>%1 × %2 px · %3</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>%1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>file name, what is wrong</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source> · result: %1 × %2 px</source>
        <comment>after the picture&apos;s size, for a result that is larger</comment>
        <translation> · Ergebnis: %1 × %2 px</translation>
    </message>
</context>
<context>
    <name>StraightenCanvas</name>
    <message>
        <source>The turned picture</source>
        <translation>Das gedrehte Bild</translation>
    </message>
    <message>
        <source>Arrow keys turn it by a tenth of a degree, with Shift by a whole one.</source>
        <translation>Die Pfeiltasten drehen es um ein Zehntelgrad, mit Umschalt um ein ganzes.</translation>
    </message>
    <message>
        <source>Drag along the horizon, or along what is to be upright</source>
        <translation>Ziehen Sie entlang dem Horizont oder entlang dem, was senkrecht werden soll</translation>
    </message>
</context>
<context>
    <name>StraightenPanel</name>
    <message>
        <source>Straighten</source>
        <translation>Gerade ausrichten</translation>
    </message>
    <message>
        <source>Fine</source>
        <translation>Fein</translation>
    </message>
    <message>
        <source>Crop to Fill</source>
        <translation>Füllend zuschneiden</translation>
    </message>
    <message>
        <source>Turns the picture (Return)</source>
        <translation>Dreht das Bild (Eingabetaste)</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Turns the picture; Shift makes it finer</source>
        <translation>Dreht das Bild; mit Umschalt feiner</translation>
    </message>
    <message>
        <source>Degrees, counterclockwise</source>
        <translation>Grad, gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <source>The slider turns by up to five degrees from here</source>
        <translation>Der Regler dreht von hier aus um bis zu fünf Grad</translation>
    </message>
    <message>
        <source>Cuts the empty corners off</source>
        <translation>Schneidet die leeren Ecken ab</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>Shows the picture as it is</source>
        <translation>Zeigt das Bild, wie es ist</translation>
    </message>
</context>
<context>
    <name>ThreeDMode</name>
    <message>
        <source>Drag the picture to turn it. The arrow keys turn it as well.</source>
        <translation>Ziehen Sie das Bild, um es zu drehen. Auch die Pfeiltasten drehen es.</translation>
    </message>
    <message>
        <source>Choose an effect from the list to see the picture in space.</source>
        <translation>Wählen Sie einen Effekt aus der Liste, um das Bild im Raum zu sehen.</translation>
    </message>
</context>
<context>
    <name>ThreeDStage</name>
    <message>
        <source>3D effects need OpenGL 2.1, which this machine does not offer.
Everything else works without it.</source>
        <translation>3D-Effekte brauchen OpenGL 2.1, das dieser Rechner nicht bietet.
Alles andere geht auch ohne.</translation>
    </message>
</context>
<context>
    <name>TurnedEffect</name>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
</context>
<context>
    <name>Turning</name>
    <message>
        <source>Rotating the picture…</source>
        <translation>Bild wird gedreht …</translation>
    </message>
    <message>
        <source>Rotate Left</source>
        <translation>Nach links drehen</translation>
    </message>
    <message>
        <source>Rotate Right</source>
        <translation>Nach rechts drehen</translation>
    </message>
    <message>
        <source>Flipping the picture…</source>
        <translation>Bild wird gespiegelt …</translation>
    </message>
    <message>
        <source>Flip Vertical</source>
        <translation>Vertikal spiegeln</translation>
    </message>
    <message>
        <source>Flip Horizontal</source>
        <translation>Horizontal spiegeln</translation>
    </message>
    <message>
        <source>There was not enough memory to turn the picture</source>
        <translation>Der Speicher reichte nicht, um das Bild zu drehen</translation>
    </message>
</context>
<context>
    <name>UndoManager</name>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <comment>%1 is what is undone</comment>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <comment>%1 is what is redone</comment>
        <translation>Wiederholen: %1</translation>
    </message>
</context>
<context>
    <name>UndoNames</name>
    <message>
        <source>Change to %1 %2</source>
        <comment>%1 is a filter, %2 one of its parameters</comment>
        <translation>%1: %2 ändern</translation>
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
        <translation>Erzeugtes Bild</translation>
    </message>
    <message>
        <source>Arrow keys move the anchor of effects that have one; the wheel zooms.</source>
        <translation>Pfeiltasten verschieben den Ankerpunkt von Effekten, die einen haben; das Rad zoomt.</translation>
    </message>
    <message>
        <source>The picture as the effect makes it. Drag to place the effect&apos;s anchor, zoom with the wheel, move the picture with the middle button or the space bar held.</source>
        <translation>Das Bild, wie der Effekt es macht. Ziehen setzt den Ankerpunkt des Effekts; zoomen Sie mit dem Rad, verschieben Sie das Bild mit der mittleren Taste oder bei gedrückter Leertaste.</translation>
    </message>
</context>
<context>
    <name>onlyTextClosedButton</name>
    <message>
        <source>Remove from the favourites</source>
        <translation>Aus den Favoriten entfernen</translation>
    </message>
</context>
</TS>

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
    <message>
        <source>The objects are thrown by chance. Another type or count throws them anew.</source>
        <translation>Die Objekte sind zufällig verteilt. Eine andere Art oder Anzahl verteilt sie neu.</translation>
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
    <message>
        <source>“%1” can&apos;t be pasted: %2</source>
        <comment>file name, what is wrong</comment>
        <translation>„%1“ lässt sich nicht einfügen: %2</translation>
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
    <name>ColorLook</name>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>Golden</source>
        <translation>Golden</translation>
    </message>
    <message>
        <source>Teal, orange</source>
        <translation>Türkis, Orange</translation>
    </message>
    <message>
        <source>Faded</source>
        <translation>Verblasst</translation>
    </message>
    <message>
        <source>Dusk</source>
        <translation>Dämmerung</translation>
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
    <message>
        <source>&amp;Looks…</source>
        <translation>&amp;Looks …</translation>
    </message>
    <message>
        <source>Shows the looks that come with the program</source>
        <translation>Zeigt die Looks, die zum Programm gehören</translation>
    </message>
    <message>
        <source>&amp;New Window</source>
        <translation>&amp;Neues Fenster</translation>
    </message>
    <message>
        <source>Opens another window, with a picture of its own</source>
        <translation>Öffnet ein weiteres Fenster mit einem eigenen Bild</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>D&amp;rucken…</translation>
    </message>
    <message>
        <source>Puts the result on paper</source>
        <translation>Bringt das Ergebnis zu Papier</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Closes the window</source>
        <translation>Schließt das Fenster</translation>
    </message>
    <message>
        <source>Pr&amp;eferences…</source>
        <translation>E&amp;instellungen…</translation>
    </message>
    <message>
        <source>How the program looks, and what it remembers</source>
        <translation>Wie das Programm aussieht und was es sich merkt</translation>
    </message>
    <message>
        <source>Open as Second Pict&amp;ure…</source>
        <translation>Als z&amp;weites Bild öffnen …</translation>
    </message>
    <message>
        <source>Opens a picture file that is blended with the picture</source>
        <translation>Öffnet eine Bilddatei, die mit dem Bild überblendet wird</translation>
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
    <name>CubeEditor</name>
    <message>
        <source>This is no table of colors: its size is missing.</source>
        <translation>Das ist keine Farbtabelle: Ihre Größe fehlt.</translation>
    </message>
    <message>
        <source>The file has two sizes.</source>
        <translation>Die Datei hat zwei Größen.</translation>
    </message>
    <message>
        <source>The size is not possible.</source>
        <translation>Die Größe ist nicht möglich.</translation>
    </message>
    <message>
        <source>The domain is not possible.</source>
        <translation>Der Bereich ist nicht möglich.</translation>
    </message>
    <message>
        <source>The title is not in quotation marks.</source>
        <translation>Der Titel steht nicht in Anführungszeichen.</translation>
    </message>
    <message>
        <source>There is a word that means nothing here.</source>
        <translation>Dort steht ein Wort, das hier nichts bedeutet.</translation>
    </message>
    <message>
        <source>There are not three numbers.</source>
        <translation>Dort stehen nicht drei Zahlen.</translation>
    </message>
    <message>
        <source>There is a word among the colors.</source>
        <translation>Zwischen den Farben steht ein Wort.</translation>
    </message>
    <message>
        <source>Colors are missing at the end.</source>
        <translation>Am Ende fehlen Farben.</translation>
    </message>
    <message>
        <source>There are more colors than the size says.</source>
        <translation>Es sind mehr Farben, als die Größe sagt.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>Load .cube File…</source>
        <translation>.cube-Datei laden …</translation>
    </message>
    <message>
        <source>Opens a table of colors, as other programs write it</source>
        <translation>Öffnet eine Farbtabelle, wie andere Programme sie schreiben</translation>
    </message>
    <message>
        <source>%1 × %1 × %1 colors</source>
        <translation>%1 × %1 × %1 Farben</translation>
    </message>
    <message>
        <source>Load a Table of Colors</source>
        <translation>Farbtabelle laden</translation>
    </message>
    <message>
        <source>Tables of colors (*.cube *.CUBE)</source>
        <translation>Farbtabellen (*.cube *.CUBE)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be opened.</source>
        <translation>„%1“ lässt sich nicht öffnen.</translation>
    </message>
    <message>
        <source>“%1” is too large for a table of colors.</source>
        <translation>„%1“ ist zu groß für eine Farbtabelle.</translation>
    </message>
    <message>
        <source>%1: %2 × %2 × %2 colors</source>
        <comment>title of a table</comment>
        <translation>%1: %2 × %2 × %2 Farben</translation>
    </message>
    <message>
        <source>“%1” is damaged.</source>
        <translation>„%1“ ist beschädigt.</translation>
    </message>
</context>
<context>
    <name>CurveCanvas</name>
    <message>
        <source>Point %1</source>
        <translation>Punkt %1</translation>
    </message>
    <message>
        <source>%1 %, becomes %2 %</source>
        <comment>a brightness and what a curve makes of it</comment>
        <translation>%1 %, wird zu %2 %</translation>
    </message>
</context>
<context>
    <name>CurveEditor</name>
    <message>
        <source>Curve</source>
        <translation>Kurve</translation>
    </message>
    <message>
        <source>Drag the points, or go to them by Tab and move them by the arrow keys.
A double click or Delete brings a point back.</source>
        <translation>Ziehen Sie die Punkte, oder gehen Sie mit der Tabulatortaste zu ihnen und verschieben Sie sie mit den Pfeiltasten.
Ein Doppelklick oder Entf bringt einen Punkt zurück.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Brings all points back</source>
        <translation>Bringt alle Punkte zurück</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
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
    <message>
        <source>The curves of all colors are edited</source>
        <translation>Die Kurven aller Farben werden bearbeitet</translation>
    </message>
    <message>
        <source>The curve of this color is edited</source>
        <translation>Die Kurve dieser Farbe wird bearbeitet</translation>
    </message>
    <message>
        <source>%1 % becomes %2 %</source>
        <comment>a brightness and what a curve makes of it</comment>
        <translation>%1 % wird zu %2 %</translation>
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
    <message>
        <source>There is nothing to set here.</source>
        <translation>Hier gibt es nichts einzustellen.</translation>
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
    <message>
        <source>Blending</source>
        <translation>Überblenden</translation>
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
    <name>DraggingOut</name>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Writing the picture…</source>
        <translation>Das Bild wird geschrieben…</translation>
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
    <name>EditorFold</name>
    <message>
        <source>Closes the editor</source>
        <translation>Schließt den Editor</translation>
    </message>
    <message>
        <source>Opens an editor for these values</source>
        <translation>Öffnet einen Editor für diese Werte</translation>
    </message>
</context>
<context>
    <name>EditorTable</name>
    <message>
        <source>Edit as a grid</source>
        <translation>Als Raster bearbeiten</translation>
    </message>
    <message>
        <source>Edit as a curve</source>
        <translation>Als Kurve bearbeiten</translation>
    </message>
    <message>
        <source>Edit as curves</source>
        <translation>Als Kurven bearbeiten</translation>
    </message>
    <message>
        <source>Looks and .cube files</source>
        <translation>Looks und .cube-Dateien</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Weißabgleich</translation>
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
    <message>
        <source>What is seen around it; transparent when the color is</source>
        <translation>Was darum herum zu sehen ist; durchsichtig, wenn die Farbe es ist</translation>
    </message>
    <message>
        <source>Apply in size of:</source>
        <translation>Anwenden in Größe von:</translation>
    </message>
    <message>
        <source>How large the picture is that Apply makes</source>
        <translation>Wie groß das Bild ist, das „Anwenden“ macht</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
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
    <name>FilterCatalogue</name>
    <message>
        <source>Unpin</source>
        <translation>Lösen</translation>
    </message>
    <message>
        <source>Pin to the Top</source>
        <translation>Oben anheften</translation>
    </message>
</context>
<context>
    <name>FilterDescription</name>
    <message>
        <source>Adds fine even grain, which also hides bands in skies.</source>
        <translation>Fügt feines, gleichmäßiges Korn hinzu, das auch Streifen im Himmel verdeckt.</translation>
    </message>
    <message>
        <source>Adds the light of both pictures.</source>
        <translation>Zählt das Licht beider Bilder zusammen.</translation>
    </message>
    <message>
        <source>Adds the picture to the background, up to white.</source>
        <translation>Zählt das Bild zum Hintergrund hinzu, bis Weiß.</translation>
    </message>
    <message>
        <source>Bends red, green and blue by a curve each.</source>
        <translation>Biegt Rot, Grün und Blau durch je eine Kurve.</translation>
    </message>
    <message>
        <source>Bends red, green, blue and opacity by a formula each.</source>
        <translation>Biegt Rot, Grün, Blau und Deckkraft nach je einer Formel.</translation>
    </message>
    <message>
        <source>Bends the picture around a circle.</source>
        <translation>Biegt das Bild um einen Kreis.</translation>
    </message>
    <message>
        <source>Bends the tones by a curve through five points.</source>
        <translation>Biegt die Töne durch eine Kurve mit fünf Punkten.</translation>
    </message>
    <message>
        <source>Black and white with dramatic contrast.</source>
        <translation>Schwarzweiß mit dramatischem Kontrast.</translation>
    </message>
    <message>
        <source>Black and white with gentle contrast.</source>
        <translation>Schwarzweiß mit sanftem Kontrast.</translation>
    </message>
    <message>
        <source>Black and white with the picture&apos;s own contrast.</source>
        <translation>Schwarzweiß mit dem Kontrast des Bildes.</translation>
    </message>
    <message>
        <source>Bluish shadows and creamy lights, like an instant camera&apos;s print.</source>
        <translation>Bläuliche Schatten und cremefarbene Lichter, wie ein Sofortbild.</translation>
    </message>
    <message>
        <source>Blurs as a camera lens does: lights become discs with a bright rim.</source>
        <translation>Zeichnet weich wie ein Objektiv: Lichter werden zu Scheiben mit hellem Rand.</translation>
    </message>
    <message>
        <source>Blurs as strongly as a mask is light: keeps some parts sharp.</source>
        <translation>Zeichnet so stark weich, wie eine Maske hell ist: Teile bleiben scharf.</translation>
    </message>
    <message>
        <source>Blurs evenly over a square: quick and a little hard.</source>
        <translation>Zeichnet gleichmäßig über ein Quadrat weich: schnell und etwas hart.</translation>
    </message>
    <message>
        <source>Blurs over a disc, like a picture that is out of focus.</source>
        <translation>Zeichnet über eine Scheibe weich, wie bei falscher Entfernung.</translation>
    </message>
    <message>
        <source>Blurs softly and evenly.</source>
        <translation>Zeichnet sanft und gleichmäßig weich.</translation>
    </message>
    <message>
        <source>Breaks the picture into patches of one color, like stained glass.</source>
        <translation>Zerlegt das Bild in einfarbige Scherben, wie ein Kirchenfenster.</translation>
    </message>
    <message>
        <source>Brightens linear light values for display (sRGB).</source>
        <translation>Hellt lineare Lichtwerte für die Anzeige auf (sRGB).</translation>
    </message>
    <message>
        <source>Brightens shadows and recovers highlights.</source>
        <translation>Hellt Schatten auf und holt Zeichnung in Lichter zurück.</translation>
    </message>
    <message>
        <source>Brightens the background like two projectors on one wall.</source>
        <translation>Hellt den Hintergrund auf wie zwei Projektoren auf einer Wand.</translation>
    </message>
    <message>
        <source>Brightens the background where the picture is light, up to a blaze.</source>
        <translation>Hellt den Hintergrund auf, wo das Bild hell ist, bis zum Gleißen.</translation>
    </message>
    <message>
        <source>Brings the second picture with a moving bar of light, like a copier.</source>
        <translation>Bringt das zweite Bild mit einem wandernden Lichtbalken, wie ein Kopierer.</translation>
    </message>
    <message>
        <source>Brings the second picture with a wave, as a stone does in water.</source>
        <translation>Bringt das zweite Bild mit einer Welle, wie ein Stein im Wasser.</translation>
    </message>
    <message>
        <source>Burns or dodges strongly, as the picture is dark or light.</source>
        <translation>Belichtet stark nach oder wedelt ab, je nachdem ob das Bild dunkel oder hell ist.</translation>
    </message>
    <message>
        <source>Changes the pictures under a flash of light.</source>
        <translation>Wechselt die Bilder unter einem Lichtblitz.</translation>
    </message>
    <message>
        <source>Colors the background with the picture&apos;s hue and saturation.</source>
        <translation>Färbt den Hintergrund mit Farbton und Sättigung des Bildes.</translation>
    </message>
    <message>
        <source>Colors the picture like a heat camera: dark is blue, light is hot.</source>
        <translation>Färbt das Bild wie eine Wärmebildkamera: Dunkles ist blau, Helles heiß.</translation>
    </message>
    <message>
        <source>Continues the pixels at a rectangle&apos;s edges without end.</source>
        <translation>Setzt die Punkte am Rand eines Rechtecks endlos fort.</translation>
    </message>
    <message>
        <source>Continues the pixels at the edges without end after moving and turning the picture.</source>
        <translation>Setzt nach dem Verschieben und Drehen die Randpunkte endlos fort.</translation>
    </message>
    <message>
        <source>Converts a depth map into a disparity map.</source>
        <translation>Wandelt eine Tiefenkarte in eine Disparitätskarte um.</translation>
    </message>
    <message>
        <source>Converts a disparity map into a depth map.</source>
        <translation>Wandelt eine Disparitätskarte in eine Tiefenkarte um.</translation>
    </message>
    <message>
        <source>Cool, with blue shadows and greenish lights, like cross-processed film.</source>
        <translation>Kühl, mit blauen Schatten und grünlichen Lichtern, wie crossentwickelter Film.</translation>
    </message>
    <message>
        <source>Corrects the white balance: warmer or cooler, greener or pinker.</source>
        <translation>Berichtigt den Weißabgleich: wärmer oder kühler, grüner oder rosiger.</translation>
    </message>
    <message>
        <source>Counts color values of an area in steps of exposure, for very bright pictures.</source>
        <translation>Zählt die Farbwerte einer Fläche in Belichtungsstufen, für sehr helle Bilder.</translation>
    </message>
    <message>
        <source>Counts how often each color value occurs in an area.</source>
        <translation>Zählt, wie oft jeder Farbwert in einer Fläche vorkommt.</translation>
    </message>
    <message>
        <source>Counts how often each color value occurs in an area; see-through pixels count less.</source>
        <translation>Zählt, wie oft jeder Farbwert in einer Fläche vorkommt; Durchsichtiges zählt weniger.</translation>
    </message>
    <message>
        <source>Covers the picture with irregular patches of color.</source>
        <translation>Überzieht das Bild mit unregelmäßigen Farbflecken.</translation>
    </message>
    <message>
        <source>Covers the picture with soft waves of color.</source>
        <translation>Überzieht das Bild mit weichen Farbwellen.</translation>
    </message>
    <message>
        <source>Cuts the picture into a white line drawing, like a woodcut.</source>
        <translation>Macht aus dem Bild eine weiße Strichzeichnung, wie ein Holzschnitt.</translation>
    </message>
    <message>
        <source>Darkens all that lies outside a circle.</source>
        <translation>Dunkelt ab, was außerhalb eines Kreises liegt.</translation>
    </message>
    <message>
        <source>Darkens by the picture&apos;s dark parts and brightens by its light ones, like a harsh lamp.</source>
        <translation>Dunkelt ab, wo das Bild dunkel, und hellt auf, wo es hell ist, wie eine harte Lampe.</translation>
    </message>
    <message>
        <source>Darkens display values (sRGB) back to linear light.</source>
        <translation>Dunkelt Anzeigewerte (sRGB) zu linearem Licht ab.</translation>
    </message>
    <message>
        <source>Darkens or brightens evenly, as the picture is dark or light.</source>
        <translation>Dunkelt gleichmäßig ab oder hellt auf, je nachdem ob das Bild dunkel oder hell ist.</translation>
    </message>
    <message>
        <source>Darkens the background by what the picture lacks of white.</source>
        <translation>Dunkelt den Hintergrund um das ab, was dem Bild an Weiß fehlt.</translation>
    </message>
    <message>
        <source>Darkens the background like a transparency laid on it.</source>
        <translation>Dunkelt den Hintergrund ab wie eine aufgelegte Folie.</translation>
    </message>
    <message>
        <source>Darkens the background where the picture is dark, with rich colors.</source>
        <translation>Dunkelt den Hintergrund ab, wo das Bild dunkel ist, mit satten Farben.</translation>
    </message>
    <message>
        <source>Darkens the corners gently, as a simple lens does.</source>
        <translation>Dunkelt die Ecken sanft ab, wie ein einfaches Objektiv.</translation>
    </message>
    <message>
        <source>Dims bright parts into a soft, dark veil.</source>
        <translation>Dämpft helle Teile zu einem weichen, dunklen Schleier.</translation>
    </message>
    <message>
        <source>Dissolves the first picture along the light and dark of a mask.</source>
        <translation>Löst das erste Bild nach Hell und Dunkel einer Maske auf.</translation>
    </message>
    <message>
        <source>Divides the picture by the background: equal parts become white.</source>
        <translation>Teilt das Bild durch den Hintergrund: Gleiches wird weiß.</translation>
    </message>
    <message>
        <source>Divides the picture into hexagons of one color.</source>
        <translation>Teilt das Bild in einfarbige Sechsecke.</translation>
    </message>
    <message>
        <source>Divides the picture into squares of one color.</source>
        <translation>Teilt das Bild in einfarbige Quadrate.</translation>
    </message>
    <message>
        <source>Draws a burst of colored lines from a point.</source>
        <translation>Zeichnet ein Bündel farbiger Linien aus einem Punkt.</translation>
    </message>
    <message>
        <source>Draws a checkerboard of two colors.</source>
        <translation>Zeichnet ein Schachbrett aus zwei Farben.</translation>
    </message>
    <message>
        <source>Draws a color wheel with all hues.</source>
        <translation>Zeichnet einen Farbkreis mit allen Farbtönen.</translation>
    </message>
    <message>
        <source>Draws a filled rectangle with round corners.</source>
        <translation>Zeichnet ein gefülltes Rechteck mit runden Ecken.</translation>
    </message>
    <message>
        <source>Draws a histogram as a chart.</source>
        <translation>Zeichnet ein Histogramm als Diagramm.</translation>
    </message>
    <message>
        <source>Draws a passage between two colors along a line, gentle at both ends.</source>
        <translation>Zeichnet einen Übergang zwischen zwei Farben entlang einer Linie, sanft an beiden Enden.</translation>
    </message>
    <message>
        <source>Draws a passage between two colors from the inside out.</source>
        <translation>Zeichnet einen Übergang zwischen zwei Farben von innen nach außen.</translation>
    </message>
    <message>
        <source>Draws a rectangle with soft edges.</source>
        <translation>Zeichnet ein Rechteck mit weichem Rand.</translation>
    </message>
    <message>
        <source>Draws a rectangular line with round corners, such as a frame.</source>
        <translation>Zeichnet eine rechteckige Linie mit runden Ecken, etwa als Rahmen.</translation>
    </message>
    <message>
        <source>Draws a ring of colored rays, as around a lamp in fog.</source>
        <translation>Zeichnet einen Ring aus farbigen Strahlen, wie um eine Lampe im Nebel.</translation>
    </message>
    <message>
        <source>Draws a rosette of ellipses that changes with each press of Generate.</source>
        <translation>Zeichnet eine Rosette aus Ellipsen, die sich bei jedem Druck auf Erzeugen ändert.</translation>
    </message>
    <message>
        <source>Draws a shining star with a cross of rays.</source>
        <translation>Zeichnet einen leuchtenden Stern mit gekreuzten Strahlen.</translation>
    </message>
    <message>
        <source>Draws a soft round spot of color.</source>
        <translation>Zeichnet einen weichen, runden Farbfleck.</translation>
    </message>
    <message>
        <source>Draws a star of light with many spikes around a point.</source>
        <translation>Zeichnet einen Lichtstern mit vielen Zacken um einen Punkt.</translation>
    </message>
    <message>
        <source>Draws a sun with rays of light.</source>
        <translation>Zeichnet eine Sonne mit Lichtstrahlen.</translation>
    </message>
    <message>
        <source>Draws an even passage between two colors along a line.</source>
        <translation>Zeichnet einen gleichmäßigen Übergang zwischen zwei Farben entlang einer Linie.</translation>
    </message>
    <message>
        <source>Draws lines from a list of points.</source>
        <translation>Zeichnet Linien aus einer Liste von Punkten.</translation>
    </message>
    <message>
        <source>Draws one line that folds until it fills the picture.</source>
        <translation>Zeichnet eine Linie, die sich faltet, bis sie das Bild füllt.</translation>
    </message>
    <message>
        <source>Draws stripes of two colors.</source>
        <translation>Zeichnet Streifen in zwei Farben.</translation>
    </message>
    <message>
        <source>Draws the colors on a circle outwards in straight streaks.</source>
        <translation>Zieht die Farben eines Kreises in geraden Strahlen nach außen.</translation>
    </message>
    <message>
        <source>Draws the outlines in black and leaves the rest see-through.</source>
        <translation>Zeichnet die Umrisse schwarz und lässt den Rest durchsichtig.</translation>
    </message>
    <message>
        <source>Draws the picture in black and white rings.</source>
        <translation>Zeichnet das Bild in schwarzen und weißen Ringen.</translation>
    </message>
    <message>
        <source>Draws the picture in black dots on white, like a newspaper.</source>
        <translation>Zeichnet das Bild in schwarzen Punkten auf Weiß, wie in der Zeitung.</translation>
    </message>
    <message>
        <source>Draws the picture in parallel lines of varying width.</source>
        <translation>Zeichnet das Bild in parallelen Linien wechselnder Breite.</translation>
    </message>
    <message>
        <source>Draws the picture in two layers of crossing lines.</source>
        <translation>Zeichnet das Bild in zwei Lagen sich kreuzender Linien.</translation>
    </message>
    <message>
        <source>Draws the picture together towards a point.</source>
        <translation>Zieht das Bild zu einem Punkt hin zusammen.</translation>
    </message>
    <message>
        <source>Draws thin white lines along clear edges, on black.</source>
        <translation>Zeichnet dünne weiße Linien an deutlichen Kanten, auf Schwarz.</translation>
    </message>
    <message>
        <source>Enlarges a small picture so that its edges follow those of the large one.</source>
        <translation>Vergrößert ein kleines Bild so, dass seine Kanten denen des großen folgen.</translation>
    </message>
    <message>
        <source>Enlarges a small picture, or smooths a mask, along the edges of a guide picture.</source>
        <translation>Vergrößert ein kleines Bild oder glättet eine Maske entlang der Kanten eines Leitbildes.</translation>
    </message>
    <message>
        <source>Enlivens pale colors and spares skin.</source>
        <translation>Belebt blasse Farben und schont Haut.</translation>
    </message>
    <message>
        <source>Fades from the first picture into the second.</source>
        <translation>Blendet vom ersten Bild ins zweite.</translation>
    </message>
    <message>
        <source>Fills everything with colored noise.</source>
        <translation>Füllt alles mit farbigem Rauschen.</translation>
    </message>
    <message>
        <source>Fills everything with one color.</source>
        <translation>Füllt alles mit einer Farbe.</translation>
    </message>
    <message>
        <source>Fills squares with small turned copies of what lies below them.</source>
        <translation>Füllt Quadrate mit kleinen, gedrehten Kopien dessen, was unter ihnen liegt.</translation>
    </message>
    <message>
        <source>Finds an area&apos;s most opaque pixel.</source>
        <translation>Findet den deckendsten Bildpunkt einer Fläche.</translation>
    </message>
    <message>
        <source>Finds an area&apos;s most see-through pixel.</source>
        <translation>Findet den durchsichtigsten Bildpunkt einer Fläche.</translation>
    </message>
    <message>
        <source>Finds the greatest red, green, blue and opacity of an area.</source>
        <translation>Findet Rot, Grün, Blau und Deckkraft einer Fläche, jeweils den größten Wert.</translation>
    </message>
    <message>
        <source>Finds the least and the greatest red of an area.</source>
        <translation>Findet das kleinste und größte Rot einer Fläche.</translation>
    </message>
    <message>
        <source>Finds the least and the greatest values of an area, side by side.</source>
        <translation>Findet die kleinsten und größten Werte einer Fläche, nebeneinander.</translation>
    </message>
    <message>
        <source>Finds the least red, green, blue and opacity of an area.</source>
        <translation>Findet Rot, Grün, Blau und Deckkraft einer Fläche, jeweils den kleinsten Wert.</translation>
    </message>
    <message>
        <source>Finds the main colors of an area, as a palette.</source>
        <translation>Findet die Hauptfarben einer Fläche, als Palette.</translation>
    </message>
    <message>
        <source>Finds the rectangle in which there is any red.</source>
        <translation>Findet das Rechteck, in dem Rot vorkommt.</translation>
    </message>
    <message>
        <source>Finds where in the picture each color of a palette lies on average.</source>
        <translation>Findet, wo im Bild jede Farbe einer Palette im Mittel liegt.</translation>
    </message>
    <message>
        <source>Fits the picture to another shape by cutting some and stretching the edges more than the middle.</source>
        <translation>Bringt das Bild in eine andere Form: schneidet etwas ab und dehnt die Ränder stärker als die Mitte.</translation>
    </message>
    <message>
        <source>Fits very bright lights (HDR) into what a display can show.</source>
        <translation>Bringt sehr helle Lichter (HDR) in den Bereich, den ein Bildschirm zeigt.</translation>
    </message>
    <message>
        <source>Gently darkens or brightens, like a soft lamp.</source>
        <translation>Dunkelt sanft ab oder hellt auf, wie eine weiche Lampe.</translation>
    </message>
    <message>
        <source>Gives each lightness a color of a gradient picture.</source>
        <translation>Gibt jeder Helligkeit eine Farbe aus einem Verlaufsbild.</translation>
    </message>
    <message>
        <source>Gives the background the picture&apos;s hues.</source>
        <translation>Gibt dem Hintergrund die Farbtöne des Bildes.</translation>
    </message>
    <message>
        <source>Gives the background the picture&apos;s lightness and keeps its own colors.</source>
        <translation>Gibt dem Hintergrund die Helligkeit des Bildes und lässt ihm seine Farben.</translation>
    </message>
    <message>
        <source>Gives the background the picture&apos;s saturation.</source>
        <translation>Gibt dem Hintergrund die Sättigung des Bildes.</translation>
    </message>
    <message>
        <source>Grades colors by two tables (LUTs), which a mask mixes.</source>
        <translation>Ändert Farben nach zwei Tabellen (LUTs), die eine Maske mischt.</translation>
    </message>
    <message>
        <source>Grows dark parts into rectangles.</source>
        <translation>Lässt Dunkles zu Rechtecken wachsen.</translation>
    </message>
    <message>
        <source>Grows dark parts into round blobs and swallows light detail.</source>
        <translation>Lässt Dunkles zu runden Flecken wachsen und verschluckt helle Einzelheiten.</translation>
    </message>
    <message>
        <source>Grows light parts into rectangles.</source>
        <translation>Lässt Helles zu Rechtecken wachsen.</translation>
    </message>
    <message>
        <source>Grows light parts into round blobs and swallows dark detail.</source>
        <translation>Lässt Helles zu runden Flecken wachsen und verschluckt dunkle Einzelheiten.</translation>
    </message>
    <message>
        <source>Keeps a rectangle of the picture and cuts off the rest.</source>
        <translation>Behält ein Rechteck des Bildes und schneidet den Rest weg.</translation>
    </message>
    <message>
        <source>Keeps a strip sharp and vivid and blurs the rest, so that scenes look like models.</source>
        <translation>Hält einen Streifen scharf und kräftig und zeichnet den Rest weich, sodass alles wie ein Modell aussieht.</translation>
    </message>
    <message>
        <source>Keeps each color between a least and a greatest value.</source>
        <translation>Hält jede Farbe zwischen einem kleinsten und einem größten Wert.</translation>
    </message>
    <message>
        <source>Keeps the darker of both pictures in each color.</source>
        <translation>Behält in jeder Farbe das Dunklere beider Bilder.</translation>
    </message>
    <message>
        <source>Keeps the greater value of both pictures in each color.</source>
        <translation>Behält in jeder Farbe den größeren Wert beider Bilder.</translation>
    </message>
    <message>
        <source>Keeps the lighter of both pictures in each color.</source>
        <translation>Behält in jeder Farbe das Hellere beider Bilder.</translation>
    </message>
    <message>
        <source>Keeps the smaller value of both pictures in each color.</source>
        <translation>Behält in jeder Farbe den kleineren Wert beider Bilder.</translation>
    </message>
    <message>
        <source>Lays a ring of glass on the picture.</source>
        <translation>Legt einen Ring aus Glas auf das Bild.</translation>
    </message>
    <message>
        <source>Lays a round bar of glass on the picture.</source>
        <translation>Legt einen runden Glasstab auf das Bild.</translation>
    </message>
    <message>
        <source>Lays a second picture over this one where a mask is blue.</source>
        <translation>Legt ein zweites Bild über dieses, wo eine Maske blau ist.</translation>
    </message>
    <message>
        <source>Lays a second picture over this one where a mask is light.</source>
        <translation>Legt ein zweites Bild über dieses, wo eine Maske hell ist.</translation>
    </message>
    <message>
        <source>Lays a second picture over this one where a mask is opaque.</source>
        <translation>Legt ein zweites Bild über dieses, wo eine Maske deckt.</translation>
    </message>
    <message>
        <source>Lays a second picture over this one where a mask is red.</source>
        <translation>Legt ein zweites Bild über dieses, wo eine Maske rot ist.</translation>
    </message>
    <message>
        <source>Lays the picture on the background, but only where the background is.</source>
        <translation>Legt das Bild auf den Hintergrund, aber nur, wo dieser ist.</translation>
    </message>
    <message>
        <source>Lays the picture over the background.</source>
        <translation>Legt das Bild über den Hintergrund.</translation>
    </message>
    <message>
        <source>Leaves only a few steps of each color, like a poster.</source>
        <translation>Lässt von jeder Farbe nur wenige Stufen, wie auf einem Plakat.</translation>
    </message>
    <message>
        <source>Lets bright parts glow softly beyond their edges.</source>
        <translation>Lässt helle Teile sanft über ihre Ränder leuchten.</translation>
    </message>
    <message>
        <source>Lightens or darkens the middle tones; black and white stay.</source>
        <translation>Hellt mittlere Töne auf oder dunkelt sie ab; Schwarz und Weiß bleiben.</translation>
    </message>
    <message>
        <source>Lights the picture as a relief, with the surface of a shaded ball.</source>
        <translation>Beleuchtet das Bild als Relief, mit der Oberfläche einer schattierten Kugel.</translation>
    </message>
    <message>
        <source>Lights the picture with a lamp and leaves the rest dark.</source>
        <translation>Beleuchtet das Bild mit einer Lampe und lässt den Rest dunkel.</translation>
    </message>
    <message>
        <source>Looks colors up in a table (LUT) that is made for a color space.</source>
        <translation>Schlägt Farben in einer Tabelle (LUT) nach, die für einen Farbraum gemacht ist.</translation>
    </message>
    <message>
        <source>Looks colors up in a table (LUT), for film looks and color grading.</source>
        <translation>Schlägt Farben in einer Tabelle (LUT) nach, für Filmlooks und Farbkorrektur.</translation>
    </message>
    <message>
        <source>Makes a QR code of a text or a web address.</source>
        <translation>Macht aus einem Text oder einer Internetadresse einen QR-Code.</translation>
    </message>
    <message>
        <source>Makes a dark gray picture of each pixel&apos;s weakest color.</source>
        <translation>Macht ein dunkles Graubild aus der schwächsten Farbe jedes Bildpunkts.</translation>
    </message>
    <message>
        <source>Makes a light gray picture of each pixel&apos;s strongest color.</source>
        <translation>Macht ein helles Graubild aus der stärksten Farbe jedes Bildpunkts.</translation>
    </message>
    <message>
        <source>Makes a pale blue negative, like an X-ray plate.</source>
        <translation>Macht ein blassblaues Negativ, wie eine Röntgenplatte.</translation>
    </message>
    <message>
        <source>Makes a pattern of a narrow triangle, mirrored in twelve directions.</source>
        <translation>Macht ein Muster aus einem schmalen Dreieck, in zwölf Richtungen gespiegelt.</translation>
    </message>
    <message>
        <source>Makes a pattern of a patch, mirrored to all four sides.</source>
        <translation>Macht ein Muster aus einem Stück, nach allen vier Seiten gespiegelt.</translation>
    </message>
    <message>
        <source>Makes a pattern of a patch, repeated side by side.</source>
        <translation>Macht ein Muster aus einem Stück, Seite an Seite wiederholt.</translation>
    </message>
    <message>
        <source>Makes a pattern of a slanted patch and its mirror image.</source>
        <translation>Macht ein Muster aus einem schrägen Stück und seinem Spiegelbild.</translation>
    </message>
    <message>
        <source>Makes a pattern of a square, turned by quarters.</source>
        <translation>Macht ein Muster aus einem Quadrat, viertelweise gedreht.</translation>
    </message>
    <message>
        <source>Makes a pattern of a triangle, mirrored in eight directions.</source>
        <translation>Macht ein Muster aus einem Dreieck, in acht Richtungen gespiegelt.</translation>
    </message>
    <message>
        <source>Makes a pattern of a triangle, mirrored in six directions.</source>
        <translation>Macht ein Muster aus einem Dreieck, in sechs Richtungen gespiegelt.</translation>
    </message>
    <message>
        <source>Makes a pattern of hexagons, turned in six steps.</source>
        <translation>Macht ein Muster aus Sechsecken, in sechs Schritten gedreht.</translation>
    </message>
    <message>
        <source>Makes a pattern of rows, each second one mirrored and shifted.</source>
        <translation>Macht ein Muster aus Reihen, jede zweite gespiegelt und versetzt.</translation>
    </message>
    <message>
        <source>Makes a pattern of triangles that point up and down by turns.</source>
        <translation>Macht ein Muster aus Dreiecken, die abwechselnd nach oben und unten zeigen.</translation>
    </message>
    <message>
        <source>Makes a stacked barcode, as on boarding passes, of a message.</source>
        <translation>Macht aus einer Nachricht einen Stapelcode, wie auf Bordkarten.</translation>
    </message>
    <message>
        <source>Makes a striped barcode, as on parcels, of a message.</source>
        <translation>Macht aus einer Nachricht einen Strichcode, wie auf Paketen.</translation>
    </message>
    <message>
        <source>Makes an Aztec code, as on railway tickets, of a message.</source>
        <translation>Macht aus einer Nachricht einen Aztec-Code, wie auf Bahnfahrkarten.</translation>
    </message>
    <message>
        <source>Makes converging lines parallel, upright and level ones alike.</source>
        <translation>Richtet stürzende Linien auf, senkrechte und waagerechte zugleich.</translation>
    </message>
    <message>
        <source>Makes dark parts see-through and light parts white.</source>
        <translation>Macht dunkle Teile durchsichtig und helle weiß.</translation>
    </message>
    <message>
        <source>Makes each color either full or nothing, at a limit you set.</source>
        <translation>Macht jede Farbe voll oder gar nicht, ab einer Grenze, die Sie wählen.</translation>
    </message>
    <message>
        <source>Makes hills of the white shapes of a mask: black at the rim, white inside.</source>
        <translation>Macht Hügel aus den weißen Formen einer Maske: schwarz am Rand, weiß im Innern.</translation>
    </message>
    <message>
        <source>Makes level lines parallel that run together to the left or right.</source>
        <translation>Macht waagerechte Linien parallel, die nach links oder rechts zusammenlaufen.</translation>
    </message>
    <message>
        <source>Makes one column of the mean colors of an area&apos;s rows.</source>
        <translation>Macht eine Spalte aus den mittleren Farben der Zeilen einer Fläche.</translation>
    </message>
    <message>
        <source>Makes one pixel of an area&apos;s mean color.</source>
        <translation>Macht einen Bildpunkt aus der mittleren Farbe einer Fläche.</translation>
    </message>
    <message>
        <source>Makes one row of the mean colors of an area&apos;s columns.</source>
        <translation>Macht eine Zeile aus den mittleren Farben der Spalten einer Fläche.</translation>
    </message>
    <message>
        <source>Makes paper white and writing dark, as from a scanner.</source>
        <translation>Macht Papier weiß und Schrift dunkel, wie vom Scanner.</translation>
    </message>
    <message>
        <source>Makes the picture lighter or darker, as a longer or shorter exposure would.</source>
        <translation>Macht das Bild heller oder dunkler, wie eine längere oder kürzere Belichtung.</translation>
    </message>
    <message>
        <source>Makes upright lines parallel, such as those of a building seen from below.</source>
        <translation>Richtet stürzende Linien auf, etwa an einem von unten aufgenommenen Gebäude.</translation>
    </message>
    <message>
        <source>Mirrors a sector of the picture around a point.</source>
        <translation>Spiegelt einen Sektor des Bildes um einen Punkt.</translation>
    </message>
    <message>
        <source>Mirrors a triangle of the picture without end; the copies fade outwards.</source>
        <translation>Spiegelt ein Dreieck des Bildes endlos; die Kopien werden nach außen dunkler.</translation>
    </message>
    <message>
        <source>Mixes red, green and blue with each other by formulas up to the square.</source>
        <translation>Mischt Rot, Grün und Blau miteinander nach Formeln bis zum Quadrat.</translation>
    </message>
    <message>
        <source>Mixes red, green, blue and opacity by weights.</source>
        <translation>Mischt Rot, Grün, Blau und Deckkraft nach Gewichten.</translation>
    </message>
    <message>
        <source>Mixes the picture with a second one by an amount.</source>
        <translation>Mischt das Bild zu einem Anteil mit einem zweiten.</translation>
    </message>
    <message>
        <source>Moves each pixel as far as a second picture is light or dark there.</source>
        <translation>Verschiebt jeden Bildpunkt so weit, wie ein zweites Bild dort hell oder dunkel ist.</translation>
    </message>
    <message>
        <source>Moves, turns, scales and slants the picture as a whole.</source>
        <translation>Verschiebt, dreht, skaliert und schert das ganze Bild.</translation>
    </message>
    <message>
        <source>Multiplies both pictures, also in opacity.</source>
        <translation>Multipliziert beide Bilder, auch ihre Deckkraft.</translation>
    </message>
    <message>
        <source>Opens a round hole and pushes the picture outwards around it.</source>
        <translation>Öffnet ein rundes Loch und drängt das Bild darum nach außen.</translation>
    </message>
    <message>
        <source>Paints the picture in round dots on white.</source>
        <translation>Malt das Bild in runden Tupfen auf Weiß.</translation>
    </message>
    <message>
        <source>Pale colors and grayed blacks, like a faded print.</source>
        <translation>Blasse Farben und graue Schwärzen, wie auf einem verblichenen Abzug.</translation>
    </message>
    <message>
        <source>Prints the picture in dots of four inks, like a magazine under a magnifier.</source>
        <translation>Druckt das Bild in Punkten aus vier Farben, wie eine Zeitschrift unter der Lupe.</translation>
    </message>
    <message>
        <source>Pulls the corners of a part of the picture to four places.</source>
        <translation>Zieht die Ecken eines Bildteils an vier Stellen.</translation>
    </message>
    <message>
        <source>Pulls the picture&apos;s corners to four places.</source>
        <translation>Zieht die Ecken des Bildes an vier Stellen.</translation>
    </message>
    <message>
        <source>Puts the picture into itself again and again, along a spiral.</source>
        <translation>Setzt das Bild immer wieder in sich selbst, entlang einer Spirale.</translation>
    </message>
    <message>
        <source>Raises the background&apos;s contrast and colors it with the picture.</source>
        <translation>Hebt den Kontrast des Hintergrunds und färbt ihn mit dem Bild.</translation>
    </message>
    <message>
        <source>Reads the picture&apos;s colors as Lab values and shows them.</source>
        <translation>Liest die Farben des Bildes als Lab-Werte und zeigt sie.</translation>
    </message>
    <message>
        <source>Recomputes each pixel from 25 neighbors by weights of your own.</source>
        <translation>Berechnet jeden Bildpunkt neu aus 25 Nachbarn mit eigenen Gewichten.</translation>
    </message>
    <message>
        <source>Recomputes each pixel from 49 neighbors by weights of your own.</source>
        <translation>Berechnet jeden Bildpunkt neu aus 49 Nachbarn mit eigenen Gewichten.</translation>
    </message>
    <message>
        <source>Recomputes each pixel from 9 neighbors in its column by weights of your own.</source>
        <translation>Berechnet jeden Bildpunkt neu aus 9 Nachbarn seiner Spalte mit eigenen Gewichten.</translation>
    </message>
    <message>
        <source>Recomputes each pixel from 9 neighbors in its row by weights of your own.</source>
        <translation>Berechnet jeden Bildpunkt neu aus 9 Nachbarn seiner Zeile mit eigenen Gewichten.</translation>
    </message>
    <message>
        <source>Recomputes each pixel from its 9 neighbors by weights of your own.</source>
        <translation>Berechnet jeden Bildpunkt neu aus 9 Nachbarn mit eigenen Gewichten.</translation>
    </message>
    <message>
        <source>Redraws the picture as a comic: dark outlines, flat colors, printed dots.</source>
        <translation>Zeichnet das Bild als Comic: dunkle Umrisse, flächige Farben, gedruckte Punkte.</translation>
    </message>
    <message>
        <source>Removes single specks and keeps edges.</source>
        <translation>Entfernt einzelne Pünktchen und erhält Kanten.</translation>
    </message>
    <message>
        <source>Repaints the picture with the colors of a palette picture only.</source>
        <translation>Malt das Bild nur mit den Farben eines Palettenbildes.</translation>
    </message>
    <message>
        <source>Repeats the middle of the picture and leaves its corners as they are.</source>
        <translation>Wiederholt die Mitte des Bildes und lässt die Ecken, wie sie sind.</translation>
    </message>
    <message>
        <source>Repeats the picture on a floor that runs into the distance.</source>
        <translation>Wiederholt das Bild auf einem Boden, der in die Ferne läuft.</translation>
    </message>
    <message>
        <source>Repeats the picture without end, moved, turned or scaled.</source>
        <translation>Wiederholt das Bild endlos, verschoben, gedreht oder skaliert.</translation>
    </message>
    <message>
        <source>Replaces only what is darker or lighter than the picture allows.</source>
        <translation>Ersetzt nur, was dunkler oder heller ist, als das Bild erlaubt.</translation>
    </message>
    <message>
        <source>Replaces up to three ranges of colors by others.</source>
        <translation>Ersetzt bis zu drei Farbbereiche durch andere Farben.</translation>
    </message>
    <message>
        <source>Resizes the picture and keeps fine detail crisp.</source>
        <translation>Ändert die Größe des Bildes und erhält feine Einzelheiten.</translation>
    </message>
    <message>
        <source>Resizes the picture; two numbers decide between soft and crisp.</source>
        <translation>Ändert die Größe des Bildes; zwei Zahlen bestimmen, ob weich oder scharf.</translation>
    </message>
    <message>
        <source>Scatters random shapes over the picture: rectangles, circles, flowers, balls, lights.</source>
        <translation>Streut zufällige Formen über das Bild: Rechtecke, Kreise, Blumen, Bälle, Lichter.</translation>
    </message>
    <message>
        <source>Sets brightness, contrast and saturation.</source>
        <translation>Stellt Helligkeit, Kontrast und Sättigung ein.</translation>
    </message>
    <message>
        <source>Sharpens edges, or with a wide radius brings out local contrast.</source>
        <translation>Schärft Kanten oder hebt, mit großem Radius, den örtlichen Kontrast.</translation>
    </message>
    <message>
        <source>Sharpens light and dark only, without colored fringes.</source>
        <translation>Schärft nur Hell und Dunkel, ohne farbige Säume.</translation>
    </message>
    <message>
        <source>Shows dark in one color and light in another.</source>
        <translation>Zeigt Dunkles in der einen und Helles in der anderen Farbe.</translation>
    </message>
    <message>
        <source>Shows hard square pixels where later steps enlarge the picture.</source>
        <translation>Zeigt harte, quadratische Bildpunkte, wo spätere Schritte das Bild vergrößern.</translation>
    </message>
    <message>
        <source>Shows how differently the eye sees the colors of two pictures.</source>
        <translation>Zeigt, wie verschieden das Auge die Farben zweier Bilder sieht.</translation>
    </message>
    <message>
        <source>Shows how far each place is from the red parts of a mask.</source>
        <translation>Zeigt, wie weit jede Stelle von den roten Teilen einer Maske entfernt ist.</translation>
    </message>
    <message>
        <source>Shows how far two pictures differ, color by color.</source>
        <translation>Zeigt, wie weit zwei Bilder Farbe für Farbe auseinanderliegen.</translation>
    </message>
    <message>
        <source>Shows how much light and dark differ within reach: glowing outlines.</source>
        <translation>Zeigt, wie weit Hell und Dunkel in der Umgebung auseinanderliegen: leuchtende Umrisse.</translation>
    </message>
    <message>
        <source>Shows how steeply colors rise to the right (red) and upwards (green), over a wider reach.</source>
        <translation>Zeigt, wie steil Farben nach rechts (rot) und oben (grün) ansteigen, über ein größeres Stück.</translation>
    </message>
    <message>
        <source>Shows how steeply colors rise to the right (red) and upwards (green).</source>
        <translation>Zeigt, wie steil Farben nach rechts (rot) und oben (grün) ansteigen.</translation>
    </message>
    <message>
        <source>Shows in white what strikes the eye first.</source>
        <translation>Zeigt weiß, was zuerst ins Auge fällt.</translation>
    </message>
    <message>
        <source>Shows the difference of both pictures, softly: middle tones become gray.</source>
        <translation>Zeigt den Unterschied beider Bilder sanft: Mittlere Töne werden grau.</translation>
    </message>
    <message>
        <source>Shows the difference of both pictures: equal parts become black.</source>
        <translation>Zeigt den Unterschied beider Bilder: Gleiches wird schwarz.</translation>
    </message>
    <message>
        <source>Shows the edges in their colors, on black.</source>
        <translation>Zeigt die Kanten in ihren Farben, auf Schwarz.</translation>
    </message>
    <message>
        <source>Shows the picture in browns, like a very old photograph.</source>
        <translation>Zeigt das Bild in Brauntönen, wie ein sehr altes Foto.</translation>
    </message>
    <message>
        <source>Shows the picture in shades of one color.</source>
        <translation>Zeigt das Bild in Abstufungen einer Farbe.</translation>
    </message>
    <message>
        <source>Shows the picture on a curved surface that you turn in space.</source>
        <translation>Zeigt das Bild auf einer gebogenen Fläche, die Sie im Raum drehen.</translation>
    </message>
    <message>
        <source>Shows the picture only where the background is not.</source>
        <translation>Zeigt das Bild nur, wo der Hintergrund nicht ist.</translation>
    </message>
    <message>
        <source>Shows the picture only where the background is.</source>
        <translation>Zeigt das Bild nur, wo der Hintergrund ist.</translation>
    </message>
    <message>
        <source>Shows the picture through glass with the relief of a texture.</source>
        <translation>Zeigt das Bild durch Glas mit dem Relief einer Struktur.</translation>
    </message>
    <message>
        <source>Shows the second picture through growing round holes.</source>
        <translation>Zeigt das zweite Bild durch wachsende runde Löcher.</translation>
    </message>
    <message>
        <source>Shrinks the picture so that small bright spots survive.</source>
        <translation>Verkleinert das Bild so, dass kleine helle Punkte erhalten bleiben.</translation>
    </message>
    <message>
        <source>Slides the first picture away in bars.</source>
        <translation>Schiebt das erste Bild in Balken weg.</translation>
    </message>
    <message>
        <source>Smears the picture along a direction, as if it had moved.</source>
        <translation>Verwischt das Bild in einer Richtung, als hätte es sich bewegt.</translation>
    </message>
    <message>
        <source>Smears the picture towards a point, as if zoomed during the exposure.</source>
        <translation>Verwischt das Bild zu einem Punkt hin, wie beim Zoomen während der Aufnahme.</translation>
    </message>
    <message>
        <source>Smooths away fine noise and sharpens what is left.</source>
        <translation>Glättet feines Rauschen und schärft, was übrig ist.</translation>
    </message>
    <message>
        <source>Splits the picture into black and white at the limit that suits it best.</source>
        <translation>Teilt das Bild an der günstigsten Grenze in Schwarz und Weiß.</translation>
    </message>
    <message>
        <source>Stretches the middle of the picture and leaves its corners as they are.</source>
        <translation>Dehnt die Mitte des Bildes und lässt die Ecken, wie sie sind.</translation>
    </message>
    <message>
        <source>Strong colors, deep shadows and clear lights, like slide film.</source>
        <translation>Kräftige Farben, tiefe Schatten und klare Lichter, wie auf Diafilm.</translation>
    </message>
    <message>
        <source>Swells the picture along a line, like a fold.</source>
        <translation>Wölbt das Bild entlang einer Linie, wie eine Falte.</translation>
    </message>
    <message>
        <source>Swells the picture around a point, or dents it.</source>
        <translation>Wölbt das Bild um einen Punkt auf oder ein.</translation>
    </message>
    <message>
        <source>Takes the background&apos;s light away from the picture.</source>
        <translation>Zieht das Licht des Hintergrunds vom Bild ab.</translation>
    </message>
    <message>
        <source>The same from 25 neighbors, for colors only: opacity stays.</source>
        <translation>Dasselbe aus 25 Nachbarn, nur für Farben: Die Deckkraft bleibt.</translation>
    </message>
    <message>
        <source>The same from 49 neighbors, for colors only: opacity stays.</source>
        <translation>Dasselbe aus 49 Nachbarn, nur für Farben: Die Deckkraft bleibt.</translation>
    </message>
    <message>
        <source>The same from 9 neighbors in a column, for colors only: opacity stays.</source>
        <translation>Dasselbe aus 9 Nachbarn der Spalte, nur für Farben: Die Deckkraft bleibt.</translation>
    </message>
    <message>
        <source>The same from 9 neighbors in a row, for colors only: opacity stays.</source>
        <translation>Dasselbe aus 9 Nachbarn der Zeile, nur für Farben: Die Deckkraft bleibt.</translation>
    </message>
    <message>
        <source>The same from 9 neighbors, for colors only: opacity stays.</source>
        <translation>Dasselbe aus 9 Nachbarn, nur für Farben: Die Deckkraft bleibt.</translation>
    </message>
    <message>
        <source>Tints the picture as if white had another color.</source>
        <translation>Färbt das Bild, als hätte Weiß eine andere Farbe.</translation>
    </message>
    <message>
        <source>Turns a slanted quadrilateral, such as a page or a sign, into an upright rectangle.</source>
        <translation>Macht aus einem schrägen Viereck, etwa einer Seite oder einem Schild, ein gerades Rechteck.</translation>
    </message>
    <message>
        <source>Turns all colors around the color wheel.</source>
        <translation>Dreht alle Farben um den Farbkreis.</translation>
    </message>
    <message>
        <source>Turns light into dark and each color into its opposite.</source>
        <translation>Macht aus Hell Dunkel und aus jeder Farbe ihr Gegenteil.</translation>
    </message>
    <message>
        <source>Turns the first picture like a page that throws a shadow.</source>
        <translation>Blättert das erste Bild um wie eine Seite, die Schatten wirft.</translation>
    </message>
    <message>
        <source>Turns the first picture like a page.</source>
        <translation>Blättert das erste Bild um wie eine Seite.</translation>
    </message>
    <message>
        <source>Turns the picture by a small angle and enlarges it until its frame is full.</source>
        <translation>Dreht das Bild um einen kleinen Winkel und vergrößert es, bis der Rahmen gefüllt ist.</translation>
    </message>
    <message>
        <source>Turns the picture in space, as if the camera had been held otherwise.</source>
        <translation>Dreht das Bild im Raum, als wäre die Kamera anders gehalten worden.</translation>
    </message>
    <message>
        <source>Turns the picture into a pencil drawing.</source>
        <translation>Macht aus dem Bild eine Bleistiftzeichnung.</translation>
    </message>
    <message>
        <source>Turns the picture like a whirlpool, many times around its eye.</source>
        <translation>Dreht das Bild wie ein Strudel viele Male um sein Auge.</translation>
    </message>
    <message>
        <source>Twists the picture around a point, most in the middle.</source>
        <translation>Verdreht das Bild um einen Punkt, am stärksten in der Mitte.</translation>
    </message>
    <message>
        <source>Unfolds the second picture like an accordion.</source>
        <translation>Faltet das zweite Bild auf wie ein Akkordeon.</translation>
    </message>
    <message>
        <source>Warm colors and slightly open blacks, like an old transfer print.</source>
        <translation>Warme Farben und leicht geöffnete Schwärzen, wie ein alter Umdruck.</translation>
    </message>
    <message>
        <source>Winds the colors on a circle outwards into a spiral tunnel.</source>
        <translation>Windet die Farben eines Kreises nach außen zu einem Spiraltunnel.</translation>
    </message>
    <message>
        <source>Wipes the second picture over the first.</source>
        <translation>Wischt das zweite Bild über das erste.</translation>
    </message>
    <message>
        <source>Wraps the picture around a solid such as a cube or a ball, which you turn.</source>
        <translation>Legt das Bild um einen Körper wie Würfel oder Kugel, den Sie drehen.</translation>
    </message>
    <message>
        <source>Writes a text in several fonts and colors over the picture.</source>
        <translation>Schreibt einen Text in mehreren Schriften und Farben über das Bild.</translation>
    </message>
    <message>
        <source>Writes a text over the picture.</source>
        <translation>Schreibt einen Text über das Bild.</translation>
    </message>
    <message>
        <source>Writes the picture&apos;s colors as Lab values: lightness, green to red, blue to yellow.</source>
        <translation>Schreibt die Farben des Bildes als Lab-Werte: Helligkeit, Grün bis Rot, Blau bis Gelb.</translation>
    </message>
</context>
<context>
    <name>FilterList</name>
    <message>
        <source>Pinned</source>
        <translation>Angeheftet</translation>
    </message>
    <message>
        <source>Recently Used</source>
        <translation>Zuletzt benutzt</translation>
    </message>
    <message>
        <source>Looks and Effects</source>
        <translation>Looks und Effekte</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Gefunden</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>Nothing found. Nearest:</source>
        <translation>Nichts gefunden. Am nächsten:</translation>
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
    <name>FilterSearchWords</name>
    <message>
        <source>3d, cube, sphere, ball, globe, cylinder, cone, pyramid, ring, object, texture, planet, box</source>
        <translation>3d, würfel, kugel, ball, globus, zylinder, kegel, pyramide, ring, körper, planet</translation>
    </message>
    <message>
        <source>3d, surface, curved, flag, bend, paper, rotate, tilt, page</source>
        <translation>3d, fläche, gebogen, fahne, biegen, papier, drehen, kippen, seite</translation>
    </message>
    <message>
        <source>add, dodge, lighten, blend mode, glow</source>
        <translation>addieren, abwedeln, aufhellen, füllmethode, leuchten</translation>
    </message>
    <message>
        <source>add, plus, sum, lighter, double exposure, blend</source>
        <translation>addieren, summe, heller, doppelbelichtung, mischen</translation>
    </message>
    <message>
        <source>aspect ratio, widescreen, stretch, fit, 16:9, format</source>
        <translation>seitenverhältnis, format, breitbild, dehnen, anpassen, 16:9</translation>
    </message>
    <message>
        <source>attention, eye catcher, saliency, subject, mask, analysis</source>
        <translation>blickfang, aufmerksamkeit, motiv, maske, analyse</translation>
    </message>
    <message>
        <source>average color, mean, reduce, statistics</source>
        <translation>durchschnitt, mittelwert, mittlere farbe, statistik</translation>
    </message>
    <message>
        <source>average, mean, columns, profile, statistics</source>
        <translation>durchschnitt, mittelwert, spalten, profil, statistik</translation>
    </message>
    <message>
        <source>average, mean, rows, profile, statistics</source>
        <translation>durchschnitt, mittelwert, zeilen, profil, statistik</translation>
    </message>
    <message>
        <source>aztec code, barcode, ticket, 2d code, matrix code</source>
        <translation>aztec-code, barcode, fahrkarte, 2d-code</translation>
    </message>
    <message>
        <source>barcode, bar code, strip code, label, parcel, code 128</source>
        <translation>strichcode, barcode, paket, etikett, code 128</translation>
    </message>
    <message>
        <source>barcode, boarding pass, pdf417, stacked code, ticket, id card</source>
        <translation>barcode, strichcode, bordkarte, pdf417, stapelcode, fahrkarte, ausweis</translation>
    </message>
    <message>
        <source>bars, blinds, strips, slide, transition</source>
        <translation>balken, jalousie, streifen, schieben, übergang</translation>
    </message>
    <message>
        <source>black and white, film noir, dramatic, high contrast, monochrome, grayscale, bw, gray, dark, desaturate, look</source>
        <translation>schwarzweiß, schwarz-weiß, dramatisch, hoher kontrast, graustufen, sw, grau, dunkel, entsättigen, look</translation>
    </message>
    <message>
        <source>black and white, grayscale, desaturate, gray, bw, monochrome, remove color, neutral, colorless, look</source>
        <translation>schwarzweiß, schwarz-weiß, graustufen, entsättigen, grau, sw, farbe entfernen, farblos, look</translation>
    </message>
    <message>
        <source>black and white, monochrome, grayscale, gray, bw, desaturate, soft, film, look</source>
        <translation>schwarzweiß, schwarz-weiß, graustufen, grau, sw, entsättigen, monochrom, film, look</translation>
    </message>
    <message>
        <source>blend, double exposure, fade, opacity, combine, two pictures, crossfade, overlay</source>
        <translation>mischen, überblenden, doppelbelichtung, deckkraft, zwei bilder, verbinden</translation>
    </message>
    <message>
        <source>blur, soften, soft, smooth, unsharp, blurry, background blur, hide detail</source>
        <translation>weichzeichnen, unschärfe, unscharf, weich, verwischen, verschwommen, hintergrund unscharf</translation>
    </message>
    <message>
        <source>bokeh, lens blur, out of focus, blur, defocus, background blur, portrait, light discs</source>
        <translation>bokeh, unscharf, weichzeichnen, hintergrund unscharf, porträt, lichtkreise, unschärfe</translation>
    </message>
    <message>
        <source>bounding box, bounds, red, find, mask</source>
        <translation>umgebendes rechteck, grenzen, rot, finden, maske</translation>
    </message>
    <message>
        <source>brightness, contrast, saturation, color, brighten, lighten, darken, desaturate, colorful, adjust, enhance, improve</source>
        <translation>helligkeit, kontrast, sättigung, farbe, aufhellen, abdunkeln, entsättigen, farbig, heller, dunkler, verbessern</translation>
    </message>
    <message>
        <source>bulge, fisheye, magnify, swell, lens, big nose, fish eye</source>
        <translation>wölben, beule, fischauge, vergrößern, lupe, blähen, knollennase</translation>
    </message>
    <message>
        <source>bulge, fold, crease, ridge</source>
        <translation>falte, wölben, beule, knick</translation>
    </message>
    <message>
        <source>burn, darken, blend mode, contrast</source>
        <translation>nachbelichten, abdunkeln, füllmethode, kontrast</translation>
    </message>
    <message>
        <source>burn, darken, blend mode, subtract</source>
        <translation>nachbelichten, abdunkeln, füllmethode, abziehen</translation>
    </message>
    <message>
        <source>cartoon, comic, manga, toon, drawing, illustration, anime, graphic novel</source>
        <translation>comic, zeichentrick, cartoon, manga, zeichnung, illustration</translation>
    </message>
    <message>
        <source>channel mixer, formula, coefficients, color mixing, cross process</source>
        <translation>kanalmixer, formel, koeffizienten, farben mischen, crossentwicklung</translation>
    </message>
    <message>
        <source>channel mixer, swap channels, opacity, transparency, matrix, color channels, fade out, bgr</source>
        <translation>kanalmixer, kanäle tauschen, deckkraft, transparenz, durchsichtig, matrix, farbkanäle</translation>
    </message>
    <message>
        <source>chess, checkers, checkerboard, squares, pattern, chequered, transparency grid</source>
        <translation>schachbrett, karo, quadrate, muster, kariert</translation>
    </message>
    <message>
        <source>clip, limit, clamp, range, levels, cut off</source>
        <translation>begrenzen, beschneiden, bereich, tonwerte</translation>
    </message>
    <message>
        <source>clipping mask, on top, overlay, composite</source>
        <translation>schnittmaske, darüber, überlagern, montage</translation>
    </message>
    <message>
        <source>color wheel, rainbow, hues, spectrum, color circle, color picker</source>
        <translation>farbkreis, farbrad, regenbogen, farbtöne, spektrum</translation>
    </message>
    <message>
        <source>colorize, blend mode, hue, saturation, tint</source>
        <translation>einfärben, füllmethode, farbton, sättigung</translation>
    </message>
    <message>
        <source>compare, difference, delta e, color difference, analysis</source>
        <translation>vergleichen, unterschied, farbabstand, delta e, analyse</translation>
    </message>
    <message>
        <source>copier, scanner, light bar, scan, transition</source>
        <translation>kopierer, scanner, lichtbalken, übergang</translation>
    </message>
    <message>
        <source>crop, cut, trim, cut out</source>
        <translation>zuschneiden, beschneiden, freistellen, ausschnitt, abschneiden</translation>
    </message>
    <message>
        <source>cross process, cool, cold, blue, green, lomo, film, look, retro, teal</source>
        <translation>crossentwicklung, kühl, kalt, blau, grün, lomo, film, look, retro</translation>
    </message>
    <message>
        <source>curve, curves, contrast, levels, gradation, shadows, highlights, midtones, black point, s-curve</source>
        <translation>kurve, gradationskurve, gradation, kontrast, tonwerte, schatten, lichter, mitteltöne, schwarzpunkt</translation>
    </message>
    <message>
        <source>curves, rgb curves, gradation, color curves, levels, tone</source>
        <translation>kurven, gradation, farbkurven, tonwerte, gradationskurve</translation>
    </message>
    <message>
        <source>darker, blend mode, minimum</source>
        <translation>dunkler, abdunkeln, füllmethode, minimum</translation>
    </message>
    <message>
        <source>darkest, dark gray, grayscale, black and white</source>
        <translation>dunkelste farbe, dunkelgrau, graustufen, schwarzweiß</translation>
    </message>
    <message>
        <source>denoise, noise reduction, reduce noise, grain removal, smooth skin, skin, iso noise, clean, high iso</source>
        <translation>entrauschen, rauschen, rauschen entfernen, haut glätten, haut, körnung entfernen, säubern</translation>
    </message>
    <message>
        <source>depth map, disparity, convert, stereo, 3d</source>
        <translation>tiefenkarte, disparität, umwandeln, stereo, 3d</translation>
    </message>
    <message>
        <source>difference, compare, blend mode, invert</source>
        <translation>unterschied, differenz, vergleichen, füllmethode</translation>
    </message>
    <message>
        <source>difference, compare, subtract, spot the difference, changes, analysis</source>
        <translation>unterschied, differenz, vergleichen, abziehen, änderungen, analyse</translation>
    </message>
    <message>
        <source>dilate, grow, expand, thicken, blocks, morphology</source>
        <translation>aufweiten, wachsen, verdicken, blöcke, morphologie</translation>
    </message>
    <message>
        <source>dilate, grow, expand, thicken, bright spots, morphology, paint, oil painting</source>
        <translation>aufweiten, wachsen, verdicken, helle flecken, morphologie, malerei, ölgemälde</translation>
    </message>
    <message>
        <source>displace, displacement map, glitch, ripple, texture, wobble, warp, water</source>
        <translation>verschieben, versetzen, störung, wellen, struktur, wasser</translation>
    </message>
    <message>
        <source>distance, glow outline, feather, mask, distance field</source>
        <translation>abstand, entfernung, umriss, maske</translation>
    </message>
    <message>
        <source>divide, flat field, blend mode, brighten</source>
        <translation>teilen, dividieren, füllmethode, aufhellen</translation>
    </message>
    <message>
        <source>dodge, lighten, brighten, blend mode, glow</source>
        <translation>abwedeln, aufhellen, füllmethode, leuchten</translation>
    </message>
    <message>
        <source>droste, spiral, recursion, picture in picture, infinity, endless</source>
        <translation>droste, spirale, bild im bild, unendlich, endlos, rekursion</translation>
    </message>
    <message>
        <source>duotone, two colors, colorize, false color, tint, pop art, bicolor, split tone</source>
        <translation>duplex, duoton, zwei farben, einfärben, falschfarben, zweifarbig, pop-art</translation>
    </message>
    <message>
        <source>edges, edge detection, outline, contour, line drawing, find edges, trace</source>
        <translation>kanten, kantenerkennung, umriss, kontur, strichzeichnung</translation>
    </message>
    <message>
        <source>emboss, relief, metal, 3d, chrome, material, plastic, bevel, stone</source>
        <translation>prägen, relief, metall, 3d, chrom, material, kunststoff, stein</translation>
    </message>
    <message>
        <source>erode, shrink, thin, blocks, morphology</source>
        <translation>abtragen, schrumpfen, verdünnen, blöcke, morphologie</translation>
    </message>
    <message>
        <source>erode, shrink, thin, dark spots, morphology, paint, oil painting</source>
        <translation>abtragen, schrumpfen, verdünnen, dunkle flecken, morphologie, malerei, ölgemälde</translation>
    </message>
    <message>
        <source>exclusion, difference, blend mode, soft</source>
        <translation>ausschluss, unterschied, füllmethode, sanft</translation>
    </message>
    <message>
        <source>exposure, brightness, brighten, lighten, darken, too dark, too bright, underexposed, overexposed, ev, light</source>
        <translation>belichtung, helligkeit, aufhellen, abdunkeln, heller, dunkler, zu dunkel, zu hell, unterbelichtet, überbelichtet, licht</translation>
    </message>
    <message>
        <source>extend edges, stretched edges, smear, endless</source>
        <translation>rand fortsetzen, randpunkte, verschmieren, endlos</translation>
    </message>
    <message>
        <source>extend edges, stretched edges, smear, extend canvas</source>
        <translation>rand fortsetzen, randpunkte, verschmieren, leinwand erweitern</translation>
    </message>
    <message>
        <source>fade, crossfade, dissolve, transition</source>
        <translation>überblenden, auflösen, übergang</translation>
    </message>
    <message>
        <source>faded, vintage, old photo, pale, retro, washed out, matte, film, look, faded film</source>
        <translation>verblasst, altes foto, blass, vintage, retro, ausgewaschen, matt, film, look</translation>
    </message>
    <message>
        <source>fill, solid color, one color, plain, background</source>
        <translation>füllen, farbfläche, eine farbe, einfarbig, hintergrund</translation>
    </message>
    <message>
        <source>find edges, edge detection, neon, outline, contour, glowing edges</source>
        <translation>kanten finden, kantenerkennung, neon, umriss, kontur, leuchtende kanten</translation>
    </message>
    <message>
        <source>flare, lens flare, star, sun, spikes, starburst, light</source>
        <translation>lichtreflex, blendenfleck, stern, sonne, zacken, licht</translation>
    </message>
    <message>
        <source>flash, burst, sun, light, transition</source>
        <translation>blitz, sonne, licht, übergang</translation>
    </message>
    <message>
        <source>floor, perspective, tile, horizon, repeat, 3d, ground</source>
        <translation>boden, fußboden, perspektive, kacheln, horizont, wiederholen, 3d</translation>
    </message>
    <message>
        <source>fold, accordion, transition, leporello</source>
        <translation>falten, akkordeon, ziehharmonika, übergang, leporello</translation>
    </message>
    <message>
        <source>formula, curve, levels, coefficients, cubic, tone</source>
        <translation>formel, kurve, tonwerte, koeffizienten</translation>
    </message>
    <message>
        <source>frame, border, outline, rounded corners, rectangle, line, box, edge</source>
        <translation>rahmen, rand, umrandung, bilderrahmen, runde ecken, rechteck, linie</translation>
    </message>
    <message>
        <source>frosted glass, glass, rain, bathroom window, water, texture, relief</source>
        <translation>milchglas, glas, regen, badfenster, wasser, struktur, relief</translation>
    </message>
    <message>
        <source>gamma, midtones, brighten, lighten, darken, brightness, tone</source>
        <translation>gamma, mitteltöne, aufhellen, abdunkeln, helligkeit</translation>
    </message>
    <message>
        <source>gloomy, dark, moody, mist, fog, sad, dull, soft</source>
        <translation>düster, dunkel, trüb, nebel, schleier, traurig, weich</translation>
    </message>
    <message>
        <source>glow, dreamy, bloom, soft light, soft focus, shine, halo, orton, romantic, haze, diffuse</source>
        <translation>leuchten, verträumt, glühen, weiches licht, schein, strahlen, romantisch, dunst</translation>
    </message>
    <message>
        <source>gradient map, colorize, tone map, duotone, tritone, map, recolor</source>
        <translation>verlaufsumsetzung, einfärben, duplex, farbtabelle, umfärben</translation>
    </message>
    <message>
        <source>gradient, color gradient, fade, blend of colors, background, sky</source>
        <translation>verlauf, farbverlauf, übergang, hintergrund, himmel</translation>
    </message>
    <message>
        <source>gradient, radial, circle, spot, background, round</source>
        <translation>verlauf, radial, kreis, fleck, hintergrund, rund</translation>
    </message>
    <message>
        <source>gradient, slope, edges, edge detection, analysis, normal map</source>
        <translation>steigung, gefälle, kanten, kantenerkennung, analyse</translation>
    </message>
    <message>
        <source>gradient, slope, edges, texture, analysis</source>
        <translation>steigung, gefälle, kanten, struktur, analyse</translation>
    </message>
    <message>
        <source>gradient, soft gradient, smooth, fade, background</source>
        <translation>verlauf, farbverlauf, weicher verlauf, sanft, hintergrund</translation>
    </message>
    <message>
        <source>gradient, soft spot, glow, radial, circle, fade</source>
        <translation>verlauf, weicher fleck, schein, kreis, rund</translation>
    </message>
    <message>
        <source>grain, film grain, noise, add noise, banding, dither, analog, iso</source>
        <translation>korn, filmkorn, rauschen, körnung, rauschen hinzufügen, streifen, analog</translation>
    </message>
    <message>
        <source>grid, mesh, lines, net, wireframe</source>
        <translation>gitter, netz, linien, drahtgitter</translation>
    </message>
    <message>
        <source>guided filter, refine mask, edges, smoothing, matting</source>
        <translation>leitbild, maske verfeinern, kanten, glätten</translation>
    </message>
    <message>
        <source>halftone, print, newspaper, magazine, cmyk, ink dots, offset, pop art, comic dots</source>
        <translation>raster, rasterdruck, zeitung, zeitschrift, vierfarbdruck, druck, farbpunkte, pop-art</translation>
    </message>
    <message>
        <source>halo, ring of light, lens flare, lamp, corona, rainbow ring, glow</source>
        <translation>halo, lichtring, lichthof, blendenfleck, lampe, regenbogen, heiligenschein</translation>
    </message>
    <message>
        <source>hard light, contrast, blend mode</source>
        <translation>hartes licht, kontrast, füllmethode</translation>
    </message>
    <message>
        <source>hatching, crosshatch, engraving, etching, banknote, halftone, lines</source>
        <translation>schraffur, kreuzschraffur, kupferstich, radierung, banknote, raster, linien</translation>
    </message>
    <message>
        <source>hdr, tone mapping, high dynamic range, highlights, headroom, compress lights</source>
        <translation>hdr, dynamikumfang, lichter, tonwertkompression</translation>
    </message>
    <message>
        <source>heat map, thermal, infrared, heat camera, thermography, heat vision</source>
        <translation>wärmebild, thermografie, infrarot, hitze, wärmebildkamera</translation>
    </message>
    <message>
        <source>height map, bevel, relief, emboss, bump map, depth, 3d text</source>
        <translation>höhenkarte, relief, prägen, kante, tiefe</translation>
    </message>
    <message>
        <source>hilbert curve, maze, labyrinth, fractal, space filling, circuit, lines</source>
        <translation>hilbert-kurve, irrgarten, labyrinth, fraktal, schaltkreis, linien</translation>
    </message>
    <message>
        <source>histogram, chart, graph, diagram, distribution</source>
        <translation>histogramm, diagramm, grafik, verteilung</translation>
    </message>
    <message>
        <source>histogram, count, statistics, distribution, analysis</source>
        <translation>histogramm, zählen, statistik, verteilung, analyse</translation>
    </message>
    <message>
        <source>histogram, hdr, stops, exposure, statistics</source>
        <translation>histogramm, hdr, blendenstufen, belichtung, statistik</translation>
    </message>
    <message>
        <source>hole, black hole, gap, push away</source>
        <translation>loch, schwarzes loch, öffnung</translation>
    </message>
    <message>
        <source>holes, dots, bubbles, circles, transition</source>
        <translation>löcher, punkte, blasen, kreise, übergang</translation>
    </message>
    <message>
        <source>honeycomb, hexagon, mosaic, pixel, tiles, censor</source>
        <translation>wabe, sechseck, mosaik, pixel, kacheln, unkenntlich</translation>
    </message>
    <message>
        <source>hue, change colors, color shift, shift colors, rotate colors, psychedelic, recolor</source>
        <translation>farbton, farben ändern, farben verschieben, umfärben, psychedelisch</translation>
    </message>
    <message>
        <source>hue, recolor, blend mode</source>
        <translation>farbton, umfärben, füllmethode</translation>
    </message>
    <message>
        <source>kaleidoscope, mirror, mandala, symmetry, star, snowflake</source>
        <translation>kaleidoskop, spiegeln, mandala, symmetrie, stern, schneeflocke</translation>
    </message>
    <message>
        <source>kaleidoscope, mirror, triangle, symmetry, fade, pattern</source>
        <translation>kaleidoskop, spiegeln, dreieck, symmetrie, muster</translation>
    </message>
    <message>
        <source>kernel, column, custom filter, weights</source>
        <translation>faltung, spalte, eigener filter, gewichte</translation>
    </message>
    <message>
        <source>kernel, matrix, custom filter, weights</source>
        <translation>faltung, matrix, eigener filter, gewichte</translation>
    </message>
    <message>
        <source>kernel, matrix, custom filter, weights, emboss</source>
        <translation>faltung, matrix, eigener filter, gewichte, prägen</translation>
    </message>
    <message>
        <source>kernel, matrix, emboss, sharpen, custom filter, weights, edge</source>
        <translation>faltung, matrix, prägen, schärfen, eigener filter, gewichte, kanten</translation>
    </message>
    <message>
        <source>kernel, row, custom filter, weights</source>
        <translation>faltung, zeile, eigener filter, gewichte</translation>
    </message>
    <message>
        <source>keystone, perspective, converging lines, buildings, architecture, straighten</source>
        <translation>stürzende linien, trapez, entzerren, perspektive, gebäude, architektur</translation>
    </message>
    <message>
        <source>keystone, perspective, converging lines, facade, straighten</source>
        <translation>trapez, entzerren, perspektive, fluchtlinien, fassade</translation>
    </message>
    <message>
        <source>keystone, perspective, falling lines, converging lines, buildings, architecture, tower, straighten</source>
        <translation>stürzende linien, trapez, entzerren, perspektive, gebäude, architektur, turm</translation>
    </message>
    <message>
        <source>lab, cielab, color space, convert</source>
        <translation>lab, cielab, farbraum, umwandeln</translation>
    </message>
    <message>
        <source>lab, cielab, color space, convert, analysis</source>
        <translation>lab, cielab, farbraum, umwandeln, analyse</translation>
    </message>
    <message>
        <source>lens blur, out of focus, blur, defocus, bokeh, disc</source>
        <translation>unscharf, unschärfe, weichzeichnen, bokeh, scheibe</translation>
    </message>
    <message>
        <source>lighter, blend mode, maximum, fireworks, star trails</source>
        <translation>heller, aufhellen, füllmethode, maximum, feuerwerk, sternspuren</translation>
    </message>
    <message>
        <source>lightest, bright gray, grayscale, black and white, value</source>
        <translation>hellste farbe, hellgrau, graustufen, schwarzweiß</translation>
    </message>
    <message>
        <source>linear light, contrast, blend mode</source>
        <translation>lineares licht, kontrast, füllmethode</translation>
    </message>
    <message>
        <source>lines, engraving, etching, banknote, halftone, scan lines, woodcut</source>
        <translation>linien, kupferstich, radierung, banknote, raster, holzschnitt</translation>
    </message>
    <message>
        <source>lines, rays, burst, beams, starburst, speed lines</source>
        <translation>linien, strahlen, bündel, strahlenkranz</translation>
    </message>
    <message>
        <source>luminosity, lightness, blend mode</source>
        <translation>luminanz, helligkeit, füllmethode</translation>
    </message>
    <message>
        <source>lut, color grading, color lookup, cube, 3d lut, look up table, grade</source>
        <translation>lut, farbkorrektur, farbtabelle, farbraum</translation>
    </message>
    <message>
        <source>lut, color grading, color lookup, cube, film look, 3d lut, look up table, grade, cinematic</source>
        <translation>lut, farbkorrektur, farbtabelle, filmlook, kino, farblook</translation>
    </message>
    <message>
        <source>magnifier, glass, lens, bar, rod, loupe</source>
        <translation>lupe, glas, linse, stab, vergrößerungsglas</translation>
    </message>
    <message>
        <source>mask, composite, blend, background, combine, blue</source>
        <translation>maske, überblenden, hintergrund, montage, verbinden, blau</translation>
    </message>
    <message>
        <source>mask, composite, blend, background, combine, red</source>
        <translation>maske, überblenden, hintergrund, montage, verbinden, rot</translation>
    </message>
    <message>
        <source>mask, composite, blend, background, cut out, combine, alpha, replace background</source>
        <translation>maske, überblenden, hintergrund, freistellen, montage, verbinden, hintergrund ersetzen</translation>
    </message>
    <message>
        <source>mask, composite, blend, background, cut out, combine, replace background, layer mask</source>
        <translation>maske, überblenden, hintergrund, freistellen, montage, verbinden, hintergrund ersetzen</translation>
    </message>
    <message>
        <source>mask, cut out, intersect, inside, composite</source>
        <translation>maske, ausschneiden, schnittmenge, innen, montage</translation>
    </message>
    <message>
        <source>mask, cut out, outside, punch out, composite</source>
        <translation>maske, ausschneiden, außen, ausstanzen, montage</translation>
    </message>
    <message>
        <source>mask, dissolve, crumble, disintegrate, transition</source>
        <translation>maske, auflösen, zerfallen, übergang</translation>
    </message>
    <message>
        <source>maximum, brightest, lightest, statistics</source>
        <translation>maximum, größter wert, hellste stelle, statistik</translation>
    </message>
    <message>
        <source>maximum, lighter, lighten, blend</source>
        <translation>maximum, heller, aufhellen, mischen</translation>
    </message>
    <message>
        <source>maximum, opaque, opacity, alpha, statistics</source>
        <translation>maximum, deckend, deckkraft, alpha, statistik</translation>
    </message>
    <message>
        <source>minimum, darker, darken, blend</source>
        <translation>minimum, dunkler, abdunkeln, mischen</translation>
    </message>
    <message>
        <source>minimum, darkest, statistics</source>
        <translation>minimum, kleinster wert, dunkelste stelle, statistik</translation>
    </message>
    <message>
        <source>minimum, maximum, range, contrast, statistics</source>
        <translation>minimum, maximum, bereich, kontrast, statistik</translation>
    </message>
    <message>
        <source>minimum, maximum, range, red, statistics</source>
        <translation>minimum, maximum, bereich, rot, statistik</translation>
    </message>
    <message>
        <source>minimum, transparent, opacity, alpha, statistics</source>
        <translation>minimum, durchsichtig, deckkraft, alpha, statistik</translation>
    </message>
    <message>
        <source>mirror, pattern, kaleidoscope, hexagon, tile, snowflake, symmetry</source>
        <translation>spiegeln, muster, kaleidoskop, sechseck, kacheln, schneeflocke, symmetrie</translation>
    </message>
    <message>
        <source>mirror, pattern, kaleidoscope, tile, symmetry, star, rosette</source>
        <translation>spiegeln, muster, kaleidoskop, kacheln, symmetrie, stern, rosette</translation>
    </message>
    <message>
        <source>mirror, pattern, kaleidoscope, tile, symmetry, wallpaper, ornament</source>
        <translation>spiegeln, muster, kaleidoskop, kacheln, symmetrie, tapete, ornament</translation>
    </message>
    <message>
        <source>mirror, pattern, tile, symmetry, wallpaper, reflect, ornament</source>
        <translation>spiegeln, muster, kacheln, symmetrie, tapete, ornament</translation>
    </message>
    <message>
        <source>monochrome, tint, colorize, one color, cyanotype, toned, blue tint, duotone</source>
        <translation>einfarbig, monochrom, tönen, einfärben, eine farbe, cyanotypie, blauton</translation>
    </message>
    <message>
        <source>motion, speed, movement, blur, panning, camera shake, directional blur</source>
        <translation>bewegung, geschwindigkeit, tempo, verwischen, mitziehen, verwackeln, bewegungsunschärfe</translation>
    </message>
    <message>
        <source>multiply, darken, blend, mask</source>
        <translation>multiplizieren, abdunkeln, mischen, maske</translation>
    </message>
    <message>
        <source>multiply, darken, shadow, slide, blend mode, texture</source>
        <translation>multiplizieren, abdunkeln, schatten, dia, füllmethode, struktur</translation>
    </message>
    <message>
        <source>nearest neighbor, hard pixels, pixel art, no smoothing, enlarge</source>
        <translation>nächster nachbar, harte pixel, pixelkunst, ohne glättung, vergrößern</translation>
    </message>
    <message>
        <source>negative, invert, inverse, reverse colors, film negative, opposite</source>
        <translation>negativ, invertieren, umkehren, farben umkehren, filmnegativ</translation>
    </message>
    <message>
        <source>newspaper, halftone, dots, newsprint, print, raster, black and white dots</source>
        <translation>zeitung, raster, punkte, zeitungsdruck, druck</translation>
    </message>
    <message>
        <source>noise, random, static, color noise, snow, tv snow, texture, grain</source>
        <translation>rauschen, zufall, farbrauschen, fernsehschnee, schnee, struktur</translation>
    </message>
    <message>
        <source>op art, tiles, optical art, mosaic, squares, pattern</source>
        <translation>op-art, kacheln, mosaik, quadrate, muster</translation>
    </message>
    <message>
        <source>outline, edges, neon, contour, morphology</source>
        <translation>umriss, kanten, neon, kontur, morphologie</translation>
    </message>
    <message>
        <source>overlay, contrast, texture, blend mode</source>
        <translation>überlagern, ineinanderkopieren, kontrast, struktur, füllmethode</translation>
    </message>
    <message>
        <source>overlay, on top, layer, normal, composite, watermark</source>
        <translation>überlagern, darüber, ebene, normal, montage, wasserzeichen</translation>
    </message>
    <message>
        <source>page, turn page, book, curl, shadow, transition</source>
        <translation>seite, umblättern, buch, einrollen, schatten, übergang</translation>
    </message>
    <message>
        <source>page, turn page, book, curl, transition</source>
        <translation>seite, umblättern, buch, einrollen, übergang</translation>
    </message>
    <message>
        <source>palette, center of color, color position, analysis, tracking</source>
        <translation>palette, schwerpunkt, farbort, analyse</translation>
    </message>
    <message>
        <source>palette, main colors, dominant colors, color scheme, clusters</source>
        <translation>palette, hauptfarben, farbschema, gruppen</translation>
    </message>
    <message>
        <source>palette, reduce colors, limited colors, 8 bit, retro game, indexed color, gif, pixel art</source>
        <translation>palette, farben verringern, wenige farben, indizierte farben, pixelkunst, gif</translation>
    </message>
    <message>
        <source>patchwork, patches, camouflage, blotches, quilt, texture</source>
        <translation>flickwerk, patchwork, flecken, tarnmuster, struktur</translation>
    </message>
    <message>
        <source>pattern, hexagon, rotate, tile, symmetry, ornament</source>
        <translation>muster, sechseck, drehen, kacheln, symmetrie, ornament</translation>
    </message>
    <message>
        <source>pattern, mirror, tile, slanted, zigzag, wallpaper</source>
        <translation>muster, spiegeln, kacheln, schräg, zickzack, tapete</translation>
    </message>
    <message>
        <source>pattern, mirror, tile, wallpaper, footprints, frieze, ornament</source>
        <translation>muster, spiegeln, kacheln, tapete, fries, ornament</translation>
    </message>
    <message>
        <source>pattern, repeat, tile, wallpaper, ornament</source>
        <translation>muster, wiederholen, kacheln, tapete, ornament</translation>
    </message>
    <message>
        <source>pattern, rotate, tile, symmetry, wallpaper, pinwheel, ornament</source>
        <translation>muster, drehen, kacheln, symmetrie, tapete, windrad, ornament</translation>
    </message>
    <message>
        <source>pencil, sketch, drawing, pencil drawing, hand drawn, graphite, draw</source>
        <translation>bleistift, skizze, zeichnung, bleistiftzeichnung, handgezeichnet, zeichnen</translation>
    </message>
    <message>
        <source>pencil, sketch, line drawing, drawing, outline, ink, coloring page, contour, charcoal</source>
        <translation>bleistift, skizze, strichzeichnung, zeichnung, umriss, tusche, ausmalbild, kontur, kohle</translation>
    </message>
    <message>
        <source>perspective, corners, distort, 3d, part</source>
        <translation>perspektive, ecken, verzerren, 3d, ausschnitt</translation>
    </message>
    <message>
        <source>perspective, corners, distort, 3d, skew, mockup, billboard</source>
        <translation>perspektive, ecken, verzerren, 3d, plakat, schräg</translation>
    </message>
    <message>
        <source>perspective, straighten, scan, whiteboard, document, deskew, unwarp, rectify</source>
        <translation>entzerren, perspektive, gerade rücken, scannen, tafel, dokument, schild</translation>
    </message>
    <message>
        <source>pin light, replace, blend mode</source>
        <translation>punktuelles licht, ersetzen, füllmethode</translation>
    </message>
    <message>
        <source>pinch, squeeze, shrink, slim, suck in</source>
        <translation>kneifen, zusammenziehen, stauchen, schrumpfen, schlanker</translation>
    </message>
    <message>
        <source>pixelate, mosaic, pixel art, censor, hide face, pixel, 8 bit, blocks, anonymize, retro game</source>
        <translation>verpixeln, mosaik, pixelkunst, zensieren, pixel, gesicht unkenntlich, unkenntlich, klötzchen, anonymisieren</translation>
    </message>
    <message>
        <source>plasma, clouds, psychedelic, colorful, waves, disco, hippie, tie dye</source>
        <translation>plasma, wolken, psychedelisch, bunt, wellen, disco, batik</translation>
    </message>
    <message>
        <source>pointillism, impressionism, painting, dots, paint, brush, art, oil painting, watercolor</source>
        <translation>pointillismus, impressionismus, gemälde, tupfen, malen, pinsel, kunst, ölgemälde, aquarell</translation>
    </message>
    <message>
        <source>polaroid, instant camera, retro, vintage, old photo, film, look, seventies, 70s</source>
        <translation>sofortbild, polaroid, retro, vintage, altes foto, film, look, siebziger</translation>
    </message>
    <message>
        <source>poster, posterize, pop art, flat colors, reduce colors, levels, screen print, banding</source>
        <translation>plakat, poster, tontrennung, pop-art, farben verringern, flächig, siebdruck, stufen</translation>
    </message>
    <message>
        <source>qr code, qr, barcode, link, web address, url, 2d code, scan code</source>
        <translation>qr-code, qr, barcode, link, internetadresse, url, 2d-code</translation>
    </message>
    <message>
        <source>remove specks, denoise, despeckle, dust, salt and pepper, noise, scratches, clean</source>
        <translation>flecken entfernen, entrauschen, staub, kratzer, rauschen, säubern, pünktchen</translation>
    </message>
    <message>
        <source>repeat, nine patch, 9-slice, frame, corners, tile</source>
        <translation>wiederholen, rahmen, ecken, kacheln</translation>
    </message>
    <message>
        <source>repeat, pattern, tile, wallpaper, seamless, step and repeat</source>
        <translation>wiederholen, muster, kacheln, tapete, nahtlos</translation>
    </message>
    <message>
        <source>replace color, change color, selective color, color swap, recolor, poster, posterize</source>
        <translation>farbe ersetzen, farbe ändern, selektive farbe, umfärben, farbtausch, plakat</translation>
    </message>
    <message>
        <source>resize, scale, enlarge, shrink, downscale, upscale, size, thumbnail</source>
        <translation>größe ändern, skalieren, vergrößern, verkleinern, größe, vorschaubild</translation>
    </message>
    <message>
        <source>resize, scale, enlarge, shrink, upscale, interpolation</source>
        <translation>größe ändern, skalieren, vergrößern, verkleinern, hochrechnen</translation>
    </message>
    <message>
        <source>resize, scale, shrink, stars, bright spots</source>
        <translation>größe ändern, skalieren, verkleinern, sterne, helle punkte</translation>
    </message>
    <message>
        <source>ring, glass, lens, donut, torus, magnifier, water drop</source>
        <translation>ring, glas, linse, reifen, lupe, wassertropfen</translation>
    </message>
    <message>
        <source>rings, halftone, circles, engraving, screen print</source>
        <translation>ringe, raster, kreise, stich</translation>
    </message>
    <message>
        <source>rosette, spirograph, ellipses, guilloche, flower, pattern, ornament</source>
        <translation>rosette, spirograf, ellipsen, guilloche, blume, muster, ornament</translation>
    </message>
    <message>
        <source>rotate, move, scale, skew, slant, flip, mirror, shift, turn</source>
        <translation>drehen, verschieben, skalieren, neigen, scheren, spiegeln, kippen, wenden</translation>
    </message>
    <message>
        <source>rotate, tilt, 3d, perspective, camera, pitch, yaw, roll</source>
        <translation>drehen, kippen, neigen, 3d, perspektive, kamera</translation>
    </message>
    <message>
        <source>rounded corners, box, rectangle, shape, button, card, panel</source>
        <translation>runde ecken, rechteck, kasten, form, karte, abgerundet</translation>
    </message>
    <message>
        <source>saturation, desaturate, blend mode</source>
        <translation>sättigung, entsättigen, füllmethode</translation>
    </message>
    <message>
        <source>scan, document, scanner, paper, whiten, receipt, whiteboard, text, readable, remove shadow</source>
        <translation>scan, dokument, scanner, papier, beleg, quittung, tafel, lesbar, schatten entfernen</translation>
    </message>
    <message>
        <source>screen, lighten, brighten, light leak, double exposure, blend mode</source>
        <translation>negativ multiplizieren, aufhellen, doppelbelichtung, füllmethode</translation>
    </message>
    <message>
        <source>selective blur, tilt shift, partial blur, blur background, mask blur, depth, gradient blur</source>
        <translation>teilweise unscharf, hintergrund unscharf, weichzeichnen, maske, tilt-shift, tiefe, unschärfe</translation>
    </message>
    <message>
        <source>sepia, old photo, vintage, brown, antique, nostalgic, retro, western, old</source>
        <translation>sepia, altes foto, vintage, braun, antik, nostalgisch, retro, alt</translation>
    </message>
    <message>
        <source>shadows, highlights, hdr, backlight, dynamic range, brighten shadows, fill light, recover, dark faces</source>
        <translation>schatten, lichter, hdr, gegenlicht, schatten aufhellen, tiefen, aufhellen, dunkle gesichter</translation>
    </message>
    <message>
        <source>shapes, confetti, circles, rectangles, flowers, balloons, random shapes, bubbles, decoration</source>
        <translation>formen, konfetti, kreise, rechtecke, blumen, luftballons, zufällige formen, seifenblasen</translation>
    </message>
    <message>
        <source>sharpen, sharpness, detail, clarity, local contrast, structure, crisp, unsharp</source>
        <translation>schärfen, schärfe, details, klarheit, lokaler kontrast, struktur, scharf</translation>
    </message>
    <message>
        <source>sharpen, sharpness, detail, crisp, focus, clear</source>
        <translation>schärfen, schärfe, details, scharf, deutlich</translation>
    </message>
    <message>
        <source>soft light, contrast, blend mode, gentle</source>
        <translation>weiches licht, kontrast, füllmethode, sanft</translation>
    </message>
    <message>
        <source>soft rectangle, shadow, drop shadow, box, glow, panel</source>
        <translation>weiches rechteck, schatten, schlagschatten, kasten, schein</translation>
    </message>
    <message>
        <source>soften, blur, average, smooth</source>
        <translation>unschärfe, weichzeichnen, unscharf, glätten, mittelwert</translation>
    </message>
    <message>
        <source>spotlight, lamp, lighting, stage light, flashlight, dark surroundings</source>
        <translation>scheinwerfer, lampe, beleuchtung, bühnenlicht, taschenlampe, spot</translation>
    </message>
    <message>
        <source>srgb, linear, gamma, convert, color space</source>
        <translation>srgb, linear, gamma, umwandeln, farbraum</translation>
    </message>
    <message>
        <source>srgb, linear, gamma, convert, color space, raw</source>
        <translation>srgb, linear, gamma, umwandeln, farbraum</translation>
    </message>
    <message>
        <source>stained glass, crystal, mosaic, low poly, polygons, cells, voronoi, shards</source>
        <translation>kirchenfenster, kristall, mosaik, glasmalerei, vielecke, zellen, scherben</translation>
    </message>
    <message>
        <source>star, sparkle, lens flare, shine, glitter, glint, twinkle, light, cross</source>
        <translation>stern, funkeln, glitzern, blendenfleck, glanz, licht, kreuz</translation>
    </message>
    <message>
        <source>straighten, horizon, level, rotate, tilt, crooked</source>
        <translation>begradigen, gerade richten, horizont, ausrichten, schief, wasserwaage</translation>
    </message>
    <message>
        <source>streaks, radial, splash, stretched pixels, rays</source>
        <translation>strahlen, streifen, kreis, spritzer</translation>
    </message>
    <message>
        <source>stretch, nine patch, 9-slice, widen, frame, corners</source>
        <translation>dehnen, strecken, rahmen, ecken, verbreitern</translation>
    </message>
    <message>
        <source>stripes, lines, bars, pattern, zebra</source>
        <translation>streifen, linien, balken, muster, zebra</translation>
    </message>
    <message>
        <source>subtract, minus, darken, blend mode</source>
        <translation>abziehen, subtrahieren, abdunkeln, füllmethode</translation>
    </message>
    <message>
        <source>sun, sun rays, sunbeams, rays of light, lens flare, sunshine, god rays, light</source>
        <translation>sonne, sonnenstrahlen, lichtstrahlen, blendenfleck, sonnenschein, licht</translation>
    </message>
    <message>
        <source>swirl, twirl, twist, whirl, spiral, rotate</source>
        <translation>strudel, verdrehen, wirbel, spirale, drehen</translation>
    </message>
    <message>
        <source>text, caption, meme, title, lettering, watermark, write, words, font, typography</source>
        <translation>text, beschriftung, meme, titel, schriftzug, wasserzeichen, schreiben, schrift</translation>
    </message>
    <message>
        <source>text, caption, title, lettering, colored text, font, write, words, quote</source>
        <translation>text, beschriftung, titel, farbiger text, schrift, schreiben, spruch</translation>
    </message>
    <message>
        <source>threshold, automatic threshold, black and white, stencil, binary, text, silhouette, photocopy, line art</source>
        <translation>schwellwert, automatische schwelle, schwarzweiß, schablone, text, scherenschnitt, fotokopie</translation>
    </message>
    <message>
        <source>threshold, stencil, two tone, hard black and white, photocopy, pop art, silhouette, binary, fax</source>
        <translation>schwellwert, schwelle, schablone, zwei töne, hartes schwarzweiß, fotokopie, scherenschnitt, pop-art</translation>
    </message>
    <message>
        <source>tilt shift, miniature, depth of field, toy town, shallow focus, diorama, model, background blur</source>
        <translation>tilt-shift, miniatur, schärfentiefe, tiefenschärfe, modelleisenbahn, spielzeug, hintergrund unscharf</translation>
    </message>
    <message>
        <source>tiny planet, polar, wrap, circle, ring, arc, bend, little planet</source>
        <translation>kleiner planet, kreis, ring, bogen, biegen, polar, wickeln</translation>
    </message>
    <message>
        <source>transparent, alpha, mask, see through, transparency, remove background, knock out</source>
        <translation>durchsichtig, transparent, maske, alpha, hintergrund entfernen</translation>
    </message>
    <message>
        <source>triangles, pattern, tile, symmetry, wallpaper</source>
        <translation>dreiecke, muster, kacheln, symmetrie, tapete</translation>
    </message>
    <message>
        <source>tunnel, spiral, whirl, time tunnel, vortex, wormhole</source>
        <translation>tunnel, spirale, wirbel, zeittunnel, wurmloch</translation>
    </message>
    <message>
        <source>two luts, lut, color grading, mask, local grading, look up table</source>
        <translation>zwei luts, lut, farbkorrektur, maske, örtlich, farbtabelle</translation>
    </message>
    <message>
        <source>upsample, upscale, enlarge, edges, depth map, super resolution</source>
        <translation>hochrechnen, vergrößern, kanten, tiefenkarte</translation>
    </message>
    <message>
        <source>vibrance, vivid, saturation, colorful, skin tones, boost colors, lively, dull colors</source>
        <translation>dynamik, lebhaft, sättigung, kräftige farben, hauttöne, farben verstärken, fade farben</translation>
    </message>
    <message>
        <source>vignette, dark corners, darken edges, lens, frame, border, lomo</source>
        <translation>vignette, dunkle ecken, rand abdunkeln, rahmen, rand, lomo</translation>
    </message>
    <message>
        <source>vignette, dark edges, darken edges, spotlight, circle, focus, frame, highlight subject</source>
        <translation>vignette, dunkler rand, rand abdunkeln, kreis, rahmen, motiv betonen</translation>
    </message>
    <message>
        <source>vivid light, contrast, strong, blend mode</source>
        <translation>strahlendes licht, kontrast, stark, füllmethode</translation>
    </message>
    <message>
        <source>vivid, slide film, strong colors, punchy, film, look, saturated, chrome, summer</source>
        <translation>lebhaft, diafilm, kräftige farben, film, look, knackig, chrom, sommer</translation>
    </message>
    <message>
        <source>vortex, whirlpool, swirl, twist, whirl, spiral, tornado</source>
        <translation>strudel, wirbel, verdrehen, spirale, wirbelsturm</translation>
    </message>
    <message>
        <source>warm, vintage, retro, old photo, golden, sunset, film, look, cozy</source>
        <translation>warm, vintage, retro, altes foto, golden, sonnenuntergang, film, look</translation>
    </message>
    <message>
        <source>water, wave, ripple, pond, drop, transition</source>
        <translation>wasser, welle, teich, tropfen, übergang</translation>
    </message>
    <message>
        <source>white balance, temperature, color temperature, tint, warm, cool, warmer, cooler, kelvin, color cast, orange, indoor light</source>
        <translation>weißabgleich, farbtemperatur, temperatur, tönung, warm, kühl, wärmer, kühler, kelvin, farbstich, kunstlicht</translation>
    </message>
    <message>
        <source>white balance, white point, tint, color cast, warm, cool, color filter</source>
        <translation>weißabgleich, weißpunkt, tönung, farbstich, warm, kühl, farbfilter</translation>
    </message>
    <message>
        <source>wipe, swipe, slide, transition</source>
        <translation>wischen, schieben, übergang</translation>
    </message>
    <message>
        <source>woodcut, linocut, engraving, line drawing, drawing, stencil, scraper board</source>
        <translation>holzschnitt, linolschnitt, stich, strichzeichnung, zeichnung, schablone</translation>
    </message>
    <message>
        <source>x-ray, xray, radiograph, negative, bones, medical, hospital</source>
        <translation>röntgen, röntgenbild, negativ, knochen, medizin</translation>
    </message>
    <message>
        <source>zoom, speed, radial blur, blur, explosion, rush, tunnel</source>
        <translation>zoom, geschwindigkeit, tempo, strahlen, verwischen, explosion, sog</translation>
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
    <name>InputDescription</name>
    <message>
        <source>A point of the curve: brightness before and after, from 0 to 1.</source>
        <translation>Ein Punkt der Kurve: Helligkeit vorher und nachher, von 0 bis 1.</translation>
    </message>
    <message>
        <source>A round picture that says how light falls on slopes of each direction.</source>
        <translation>Ein rundes Bild, das sagt, wie Licht auf Neigungen jeder Richtung fällt.</translation>
    </message>
    <message>
        <source>A row of colors to begin with.</source>
        <translation>Eine Reihe von Farben für den Anfang.</translation>
    </message>
    <message>
        <source>A row of the colors that may be used.</source>
        <translation>Eine Reihe der Farben, die benutzt werden dürfen.</translation>
    </message>
    <message>
        <source>Brings the values to 0 to 1, so that they can be shown.</source>
        <translation>Bringt die Werte auf 0 bis 1, damit sie sich zeigen lassen.</translation>
    </message>
    <message>
        <source>From which brightness on something counts.</source>
        <translation>Ab welcher Helligkeit etwas zählt.</translation>
    </message>
    <message>
        <source>Goes on beyond white and black as the table ends, instead of clipping.</source>
        <translation>Setzt die Tabelle jenseits von Weiß und Schwarz fort, statt abzuschneiden.</translation>
    </message>
    <message>
        <source>How abruptly the color is replaced.</source>
        <translation>Wie abrupt die Farbe ersetzt wird.</translation>
    </message>
    <message>
        <source>How bright it is.</source>
        <translation>Wie hell es ist.</translation>
    </message>
    <message>
        <source>How bright the colors are.</source>
        <translation>Wie hell die Farben sind.</translation>
    </message>
    <message>
        <source>How colorful the picture is: 0 is gray, 1 as it was.</source>
        <translation>Wie farbig das Bild ist: 0 ist grau, 1 wie zuvor.</translation>
    </message>
    <message>
        <source>How crisp the enlarged picture is.</source>
        <translation>Wie scharf das vergrößerte Bild ist.</translation>
    </message>
    <message>
        <source>How dark the folds are.</source>
        <translation>Wie dunkel die Falten sind.</translation>
    </message>
    <message>
        <source>How dark the lines are.</source>
        <translation>Wie dunkel die Linien sind.</translation>
    </message>
    <message>
        <source>How dark the shadow is.</source>
        <translation>Wie dunkel der Schatten ist.</translation>
    </message>
    <message>
        <source>How different in brightness neighbors may be and still count.</source>
        <translation>Wie verschieden hell Nachbarn sein dürfen, um noch zu zählen.</translation>
    </message>
    <message>
        <source>How far from the middle the picture stays bright, as a share of half its diagonal.</source>
        <translation>Wie weit von der Mitte das Bild hell bleibt, als Anteil seiner halben Diagonale.</translation>
    </message>
    <message>
        <source>How far light and dark are apart; 1 is as it was.</source>
        <translation>Wie weit Hell und Dunkel auseinanderliegen; 1 ist wie zuvor.</translation>
    </message>
    <message>
        <source>How far neighbors count.</source>
        <translation>Wie weit Nachbarn zählen.</translation>
    </message>
    <message>
        <source>How far the blur reaches, as a standard deviation in pixels.</source>
        <translation>Wie weit die Unschärfe reicht, als Standardabweichung in Pixeln.</translation>
    </message>
    <message>
        <source>How far the camera is turned about what it looks at.</source>
        <translation>Wie weit die Kamera um ihre Blickrichtung gedreht ist.</translation>
    </message>
    <message>
        <source>How far the camera looks to the side.</source>
        <translation>Wie weit die Kamera zur Seite blickt.</translation>
    </message>
    <message>
        <source>How far the camera looks up or down.</source>
        <translation>Wie weit die Kamera nach oben oder unten blickt.</translation>
    </message>
    <message>
        <source>How far the change from one picture to the other has come: 0 is the first, 1 the second.</source>
        <translation>Wie weit der Übergang von einem Bild zum anderen ist: 0 ist das erste, 1 das zweite.</translation>
    </message>
    <message>
        <source>How far the colors of the ring lie over each other; 1 makes white.</source>
        <translation>Wie weit die Farben des Rings übereinanderliegen; 1 gibt Weiß.</translation>
    </message>
    <message>
        <source>How far the cross is turned.</source>
        <translation>Wie weit das Kreuz gedreht ist.</translation>
    </message>
    <message>
        <source>How far the effect reaches, in pixels of the picture.</source>
        <translation>Wie weit die Wirkung reicht, in Pixeln des Bildes.</translation>
    </message>
    <message>
        <source>How far the pattern is turned.</source>
        <translation>Wie weit das Muster gedreht ist.</translation>
    </message>
    <message>
        <source>How far the rays cover each other instead of adding up.</source>
        <translation>Wie weit die Strahlen einander decken, statt sich zu addieren.</translation>
    </message>
    <message>
        <source>How far the rays differ from each other.</source>
        <translation>Wie stark sich die Strahlen unterscheiden.</translation>
    </message>
    <message>
        <source>How far the rays reach, in radii.</source>
        <translation>Wie weit die Strahlen reichen, in Radien.</translation>
    </message>
    <message>
        <source>How far the shadow lies to the side and upwards.</source>
        <translation>Wie weit der Schatten zur Seite und nach oben liegt.</translation>
    </message>
    <message>
        <source>How far weak edges are followed.</source>
        <translation>Wie weit schwache Kanten verfolgt werden.</translation>
    </message>
    <message>
        <source>How gradually it grows dark beyond the radius.</source>
        <translation>Wie allmählich es jenseits des Radius dunkel wird.</translation>
    </message>
    <message>
        <source>How hard edges are.</source>
        <translation>Wie hart Kanten sind.</translation>
    </message>
    <message>
        <source>How hard the rays end.</source>
        <translation>Wie hart die Strahlen enden.</translation>
    </message>
    <message>
        <source>How high it is, in pixels of the picture.</source>
        <translation>Wie hoch es ist, in Pixeln des Bildes.</translation>
    </message>
    <message>
        <source>How high the bars are, in modules.</source>
        <translation>Wie hoch die Striche sind, in Modulen.</translation>
    </message>
    <message>
        <source>How large differences are that count as noise.</source>
        <translation>Wie groß Unterschiede sind, die als Rauschen gelten.</translation>
    </message>
    <message>
        <source>How large it is, in pixels of the picture.</source>
        <translation>Wie groß es ist, in Pixeln des Bildes.</translation>
    </message>
    <message>
        <source>How large the ring of light is, in pixels of the picture.</source>
        <translation>Wie groß der Lichtring ist, in Pixeln des Bildes.</translation>
    </message>
    <message>
        <source>How large the sun is, in pixels of the picture.</source>
        <translation>Wie groß die Sonne ist, in Pixeln des Bildes.</translation>
    </message>
    <message>
        <source>How long the rays of the cross are.</source>
        <translation>Wie lang die Strahlen des Kreuzes sind.</translation>
    </message>
    <message>
        <source>How many arms the spiral has.</source>
        <translation>Wie viele Arme die Spirale hat.</translation>
    </message>
    <message>
        <source>How many columns of data the code has; 0 chooses.</source>
        <translation>Wie viele Datenspalten der Code hat; 0 wählt selbst.</translation>
    </message>
    <message>
        <source>How many folds there are.</source>
        <translation>Wie viele Falten es gibt.</translation>
    </message>
    <message>
        <source>How many parts there are: bins, colors or sectors.</source>
        <translation>Wie viele Teile es gibt: Klassen, Farben oder Sektoren.</translation>
    </message>
    <message>
        <source>How many pictures a turn holds.</source>
        <translation>Wie viele Bilder eine Drehung enthält.</translation>
    </message>
    <message>
        <source>How many pixels of the picture a point of the text takes.</source>
        <translation>Wie viele Pixel des Bildes ein Punkt der Schrift einnimmt.</translation>
    </message>
    <message>
        <source>How many rings the code has; 0 takes as few as will do.</source>
        <translation>Wie viele Ringe der Code hat; 0 nimmt so wenige wie möglich.</translation>
    </message>
    <message>
        <source>How many rows the code has; 0 chooses.</source>
        <translation>Wie viele Zeilen der Code hat; 0 wählt selbst.</translation>
    </message>
    <message>
        <source>How many steps each side of the color table has.</source>
        <translation>Wie viele Stufen jede Seite der Farbtabelle hat.</translation>
    </message>
    <message>
        <source>How many steps of brightness each color keeps.</source>
        <translation>Wie viele Helligkeitsstufen jede Farbe behält.</translation>
    </message>
    <message>
        <source>How many times brighter than white the picture becomes.</source>
        <translation>Wievielmal heller als Weiß das Bild wird.</translation>
    </message>
    <message>
        <source>How many times brighter than white the result may become.</source>
        <translation>Wievielmal heller als Weiß das Ergebnis werden darf.</translation>
    </message>
    <message>
        <source>How much brighter the rim of each disc of light is.</source>
        <translation>Wie viel heller der Rand jeder Lichtscheibe ist.</translation>
    </message>
    <message>
        <source>How much each neighbor of a pixel counts, row by row from the top left.</source>
        <translation>Wie viel jeder Nachbar eines Pixels zählt, Zeile für Zeile von oben links.</translation>
    </message>
    <message>
        <source>How much edges are sharpened before they are drawn.</source>
        <translation>Wie stark Kanten geschärft werden, bevor sie gezeichnet werden.</translation>
    </message>
    <message>
        <source>How much edges are sharpened.</source>
        <translation>Wie stark Kanten geschärft werden.</translation>
    </message>
    <message>
        <source>How much later each bar starts than the one before.</source>
        <translation>Wie viel später jeder Streifen beginnt als der vorige.</translation>
    </message>
    <message>
        <source>How much light is left from one tile to the next.</source>
        <translation>Wie viel Licht von einer Kachel zur nächsten bleibt.</translation>
    </message>
    <message>
        <source>How much noise hides the steps between colors.</source>
        <translation>Wie viel Rauschen die Stufen zwischen Farben verbirgt.</translation>
    </message>
    <message>
        <source>How much noise is taken away before edges are drawn.</source>
        <translation>Wie viel Rauschen entfernt wird, bevor Kanten gezeichnet werden.</translation>
    </message>
    <message>
        <source>How much of the bottom both pictures have in common.</source>
        <translation>Wie viel vom unteren Rand beide Bilder gemeinsam haben.</translation>
    </message>
    <message>
        <source>How much of the code may be damaged and still be read.</source>
        <translation>Wie viel vom Code beschädigt sein darf und doch gelesen wird.</translation>
    </message>
    <message>
        <source>How much of the effect is seen.</source>
        <translation>Wie viel von der Wirkung zu sehen ist.</translation>
    </message>
    <message>
        <source>How much of the fitting is done by cutting: 0 only stretches, 1 only cuts.</source>
        <translation>Wie viel der Anpassung durch Schneiden geschieht: 0 streckt nur, 1 schneidet nur.</translation>
    </message>
    <message>
        <source>How much of the highlights stays: less than 1 lowers them.</source>
        <translation>Wie viel von den Lichtern bleibt: weniger als 1 senkt sie.</translation>
    </message>
    <message>
        <source>How much of the upper picture is seen: 0 shows the background alone, 1 the picture alone.</source>
        <translation>Wie viel vom oberen Bild zu sehen ist: 0 zeigt nur den Hintergrund, 1 nur das Bild.</translation>
    </message>
    <message>
        <source>How much of what the three inks have in common is printed in black.</source>
        <translation>Wie viel des gemeinsamen Anteils der drei Farben schwarz gedruckt wird.</translation>
    </message>
    <message>
        <source>How much red, green, blue and opacity give to the new blue.</source>
        <translation>Wie viel Rot, Grün, Blau und Deckkraft zum neuen Blau geben.</translation>
    </message>
    <message>
        <source>How much red, green, blue and opacity give to the new green.</source>
        <translation>Wie viel Rot, Grün, Blau und Deckkraft zum neuen Grün geben.</translation>
    </message>
    <message>
        <source>How much red, green, blue and opacity give to the new opacity.</source>
        <translation>Wie viel Rot, Grün, Blau und Deckkraft zur neuen Deckkraft geben.</translation>
    </message>
    <message>
        <source>How much red, green, blue and opacity give to the new red.</source>
        <translation>Wie viel Rot, Grün, Blau und Deckkraft zum neuen Rot geben.</translation>
    </message>
    <message>
        <source>How much the middle is stretched along: 0 leaves it to the edges.</source>
        <translation>Wie sehr die Mitte mitgestreckt wird: 0 überlässt es den Rändern.</translation>
    </message>
    <message>
        <source>How much the picture is smoothed before edges are looked for.</source>
        <translation>Wie stark das Bild geglättet wird, bevor Kanten gesucht werden.</translation>
    </message>
    <message>
        <source>How much the shadows change.</source>
        <translation>Wie stark sich die Schatten ändern.</translation>
    </message>
    <message>
        <source>How much wider and higher the picture becomes.</source>
        <translation>Wie viel breiter und höher das Bild wird.</translation>
    </message>
    <message>
        <source>How much wider than high the result becomes; 1 keeps the proportions.</source>
        <translation>Wie viel breiter als hoch das Ergebnis wird; 1 behält die Proportionen.</translation>
    </message>
    <message>
        <source>How narrow the cone of light is: smaller is narrower.</source>
        <translation>Wie eng der Lichtkegel ist: kleiner ist enger.</translation>
    </message>
    <message>
        <source>How near a color must be to be replaced.</source>
        <translation>Wie ähnlich eine Farbe sein muss, um ersetzt zu werden.</translation>
    </message>
    <message>
        <source>How near the spiral is seen from.</source>
        <translation>Aus welcher Nähe die Spirale zu sehen ist.</translation>
    </message>
    <message>
        <source>How often the colors are improved.</source>
        <translation>Wie oft die Farben verbessert werden.</translation>
    </message>
    <message>
        <source>How opaque it is.</source>
        <translation>Wie deckend es ist.</translation>
    </message>
    <message>
        <source>How small a difference is still no edge, or still light.</source>
        <translation>Wie klein ein Unterschied sein darf, der noch keine Kante oder noch Licht ist.</translation>
    </message>
    <message>
        <source>How soft edges are.</source>
        <translation>Wie weich Kanten sind.</translation>
    </message>
    <message>
        <source>How soft the enlarged picture is.</source>
        <translation>Wie weich das vergrößerte Bild ist.</translation>
    </message>
    <message>
        <source>How soft the shadow is, in pixels of the picture.</source>
        <translation>Wie weich der Schatten ist, in Pixeln des Bildes.</translation>
    </message>
    <message>
        <source>How strong an edge must be to be found.</source>
        <translation>Wie stark eine Kante sein muss, um gefunden zu werden.</translation>
    </message>
    <message>
        <source>How strong or how large the effect is.</source>
        <translation>Wie stark oder wie groß die Wirkung ist.</translation>
    </message>
    <message>
        <source>How strongly the glass bends light; 1 is air, 1.5 window glass.</source>
        <translation>Wie stark das Glas Licht bricht; 1 ist Luft, 1,5 Fensterglas.</translation>
    </message>
    <message>
        <source>How the message is packed: 0 chooses, 1 digits, 2 text, 3 bytes.</source>
        <translation>Wie die Nachricht gepackt wird: 0 wählt, 1 Ziffern, 2 Text, 3 Bytes.</translation>
    </message>
    <message>
        <source>How the picture is moved, turned, scaled and slanted.</source>
        <translation>Wie das Bild verschoben, gedreht, skaliert und geneigt wird.</translation>
    </message>
    <message>
        <source>How tightly the holes are twisted.</source>
        <translation>Wie eng die Löcher verdreht sind.</translation>
    </message>
    <message>
        <source>How weak an edge may become that goes on from a strong one.</source>
        <translation>Wie schwach eine Kante werden darf, die eine starke fortsetzt.</translation>
    </message>
    <message>
        <source>How wide one element is, in pixels of the picture.</source>
        <translation>Wie breit ein Element ist, in Pixeln des Bildes.</translation>
    </message>
    <message>
        <source>How wide that rim is.</source>
        <translation>Wie breit dieser Rand ist.</translation>
    </message>
    <message>
        <source>How wide the edges are that are sharpened.</source>
        <translation>Wie breit die Kanten sind, die geschärft werden.</translation>
    </message>
    <message>
        <source>How wide the rays are, in pixels of the picture.</source>
        <translation>Wie breit die Strahlen sind, in Pixeln des Bildes.</translation>
    </message>
    <message>
        <source>How wide the ring of light is.</source>
        <translation>Wie breit der Lichtring ist.</translation>
    </message>
    <message>
        <source>How wide the shadow is.</source>
        <translation>Wie breit der Schatten ist.</translation>
    </message>
    <message>
        <source>How wide to high the code should be if it can.</source>
        <translation>Welches Verhältnis von Breite zu Höhe der Code haben soll, wenn es geht.</translation>
    </message>
    <message>
        <source>In which values the table or gradient is meant.</source>
        <translation>In welchen Werten die Tabelle oder der Verlauf gemeint ist.</translation>
    </message>
    <message>
        <source>Is added to every result; with 0.5 the middle becomes gray.</source>
        <translation>Wird zu jedem Ergebnis addiert; mit 0,5 wird die Mitte grau.</translation>
    </message>
    <message>
        <source>Is added to red, green, blue and opacity.</source>
        <translation>Wird zu Rot, Grün, Blau und Deckkraft addiert.</translation>
    </message>
    <message>
        <source>Judges differences as the eye does, not by light alone.</source>
        <translation>Bewertet Unterschiede wie das Auge, nicht nur nach Licht.</translation>
    </message>
    <message>
        <source>Leaves out what readers can do without, for a smaller code.</source>
        <translation>Lässt weg, was Lesegeräte entbehren können, für einen kleineren Code.</translation>
    </message>
    <message>
        <source>Makes the result as large as the straightened part alone.</source>
        <translation>Macht das Ergebnis so groß wie der gerade gerichtete Teil allein.</translation>
    </message>
    <message>
        <source>Mirrors every second tile from top to bottom.</source>
        <translation>Spiegelt jede zweite Kachel von oben nach unten.</translation>
    </message>
    <message>
        <source>Moves the picture by its brightness: red to the side, green upwards.</source>
        <translation>Verschiebt das Bild durch seine Helligkeit: Rot zur Seite, Grün nach oben.</translation>
    </message>
    <message>
        <source>Of the lens the picture was taken with, on 35 mm film; longer ones bend less.</source>
        <translation>Des Objektivs, mit dem aufgenommen wurde, auf Kleinbild; längere verzerren weniger.</translation>
    </message>
    <message>
        <source>One of the points that the filter goes by.</source>
        <translation>Einer der Punkte, nach denen sich der Filter richtet.</translation>
    </message>
    <message>
        <source>One of the two color tables between which the mask decides.</source>
        <translation>Eine der beiden Farbtabellen, zwischen denen die Maske entscheidet.</translation>
    </message>
    <message>
        <source>Says by its brightness how strong the effect is at each place.</source>
        <translation>Sagt durch ihre Helligkeit, wie stark die Wirkung an jeder Stelle ist.</translation>
    </message>
    <message>
        <source>Says by its brightness or transparency where which picture is seen.</source>
        <translation>Sagt durch Helligkeit oder Durchsichtigkeit, wo welches Bild zu sehen ist.</translation>
    </message>
    <message>
        <source>Says in the code how it is packed, also where readers know.</source>
        <translation>Sagt im Code, wie er gepackt ist, auch wo Lesegeräte es wissen.</translation>
    </message>
    <message>
        <source>Steps of exposure: each doubles the light.</source>
        <translation>Blendenstufen: jede verdoppelt das Licht.</translation>
    </message>
    <message>
        <source>The brightest step of exposure that is counted.</source>
        <translation>Die hellste Blendenstufe, die gezählt wird.</translation>
    </message>
    <message>
        <source>The color table: what each color becomes.</source>
        <translation>Die Farbtabelle: was aus jeder Farbe wird.</translation>
    </message>
    <message>
        <source>The color that is looked for.</source>
        <translation>Die Farbe, die gesucht wird.</translation>
    </message>
    <message>
        <source>The color that takes its place.</source>
        <translation>Die Farbe, die an ihre Stelle tritt.</translation>
    </message>
    <message>
        <source>The color that the filter works with.</source>
        <translation>Die Farbe, mit der der Filter arbeitet.</translation>
    </message>
    <message>
        <source>The colors that take the place of dark to light, from left to right.</source>
        <translation>Die Farben, die an die Stelle von Dunkel bis Hell treten, von links nach rechts.</translation>
    </message>
    <message>
        <source>The curves: what becomes of red, green and blue, from dark to light.</source>
        <translation>Die Kurven: was aus Rot, Grün und Blau wird, von dunkel nach hell.</translation>
    </message>
    <message>
        <source>The darkest and brightest value that the curves are about.</source>
        <translation>Der dunkelste und der hellste Wert, für den die Kurven gelten.</translation>
    </message>
    <message>
        <source>The darkest step of exposure that is counted.</source>
        <translation>Die dunkelste Blendenstufe, die gezählt wird.</translation>
    </message>
    <message>
        <source>The direction, counted counterclockwise from the right.</source>
        <translation>Die Richtung, von rechts aus gegen den Uhrzeigersinn gezählt.</translation>
    </message>
    <message>
        <source>The distance at which white is reached, in pixels of the picture.</source>
        <translation>Die Entfernung, bei der Weiß erreicht ist, in Pixeln des Bildes.</translation>
    </message>
    <message>
        <source>The exponent: above 1 the middle tones darken, below they brighten.</source>
        <translation>Der Exponent: über 1 werden die Mitteltöne dunkler, darunter heller.</translation>
    </message>
    <message>
        <source>The first of the two colors; for false colors, what black becomes.</source>
        <translation>Die erste der beiden Farben; bei Falschfarben das, was Schwarz wird.</translation>
    </message>
    <message>
        <source>The free space around the code, in modules.</source>
        <translation>Der freie Raum um den Code, in Modulen.</translation>
    </message>
    <message>
        <source>The free space around the text.</source>
        <translation>Der freie Raum um den Text.</translation>
    </message>
    <message>
        <source>The greatest height of the code, in modules.</source>
        <translation>Die größte Höhe des Codes, in Modulen.</translation>
    </message>
    <message>
        <source>The greatest width of the code, in modules.</source>
        <translation>Die größte Breite des Codes, in Modulen.</translation>
    </message>
    <message>
        <source>The height of the letters in points.</source>
        <translation>Die Höhe der Buchstaben in Punkt.</translation>
    </message>
    <message>
        <source>The large picture along whose edges the small one is enlarged.</source>
        <translation>Das große Bild, an dessen Kanten entlang das kleine vergrößert wird.</translation>
    </message>
    <message>
        <source>The least height of the code, in modules.</source>
        <translation>Die kleinste Höhe des Codes, in Modulen.</translation>
    </message>
    <message>
        <source>The least red, green, blue and opacity that is left.</source>
        <translation>Das Mindeste an Rot, Grün, Blau und Deckkraft, das bleibt.</translation>
    </message>
    <message>
        <source>The least width of the code, in modules.</source>
        <translation>Die kleinste Breite des Codes, in Modulen.</translation>
    </message>
    <message>
        <source>The light it is to look like: temperature in kelvin, and tint.</source>
        <translation>Das Licht, nach dem es aussehen soll: Temperatur in Kelvin und Tönung.</translation>
    </message>
    <message>
        <source>The light that the picture was taken in: temperature in kelvin, and tint.</source>
        <translation>Das Licht der Aufnahme: Temperatur in Kelvin und Tönung.</translation>
    </message>
    <message>
        <source>The lines that are drawn, by their ends.</source>
        <translation>Die gezeichneten Linien, durch ihre Enden.</translation>
    </message>
    <message>
        <source>The lower left corner of the frame in which the picture stands again.</source>
        <translation>Die untere linke Ecke des Rahmens, in dem das Bild wieder steht.</translation>
    </message>
    <message>
        <source>The lower left corner of the part that grows.</source>
        <translation>Die untere linke Ecke des Teils, der wächst.</translation>
    </message>
    <message>
        <source>The lower left corner.</source>
        <translation>Die untere linke Ecke.</translation>
    </message>
    <message>
        <source>The lower right corner.</source>
        <translation>Die untere rechte Ecke.</translation>
    </message>
    <message>
        <source>The most red, green, blue and opacity that is left.</source>
        <translation>Das Meiste an Rot, Grün, Blau und Deckkraft, das bleibt.</translation>
    </message>
    <message>
        <source>The numbers from which the new blue is computed.</source>
        <translation>Die Zahlen, aus denen das neue Blau berechnet wird.</translation>
    </message>
    <message>
        <source>The numbers from which the new green is computed.</source>
        <translation>Die Zahlen, aus denen das neue Grün berechnet wird.</translation>
    </message>
    <message>
        <source>The numbers from which the new opacity is computed.</source>
        <translation>Die Zahlen, aus denen die neue Deckkraft berechnet wird.</translation>
    </message>
    <message>
        <source>The numbers from which the new red is computed.</source>
        <translation>Die Zahlen, aus denen das neue Rot berechnet wird.</translation>
    </message>
    <message>
        <source>The part of the picture that counts.</source>
        <translation>Der Teil des Bildes, der zählt.</translation>
    </message>
    <message>
        <source>The part of the picture that stays.</source>
        <translation>Der Teil des Bildes, der bleibt.</translation>
    </message>
    <message>
        <source>The part of the picture where there is a shadow.</source>
        <translation>Der Teil des Bildes, in dem Schatten liegt.</translation>
    </message>
    <message>
        <source>The picture that lies under the other one.</source>
        <translation>Das Bild, das unter dem anderen liegt.</translation>
    </message>
    <message>
        <source>The picture that the change ends with.</source>
        <translation>Das Bild, mit dem der Übergang endet.</translation>
    </message>
    <message>
        <source>The picture that the filter changes.</source>
        <translation>Das Bild, das der Filter verändert.</translation>
    </message>
    <message>
        <source>The picture that the first one is compared with.</source>
        <translation>Das Bild, mit dem das erste verglichen wird.</translation>
    </message>
    <message>
        <source>The picture whose relief the glass has.</source>
        <translation>Das Bild, dessen Relief das Glas hat.</translation>
    </message>
    <message>
        <source>The place in the picture that the effect goes out from.</source>
        <translation>Die Stelle im Bild, von der die Wirkung ausgeht.</translation>
    </message>
    <message>
        <source>The place that the lamp shines at.</source>
        <translation>Die Stelle, auf die die Lampe scheint.</translation>
    </message>
    <message>
        <source>The point that the pattern grows from.</source>
        <translation>Der Punkt, von dem das Muster ausgeht.</translation>
    </message>
    <message>
        <source>The second of the two colors; for false colors, what white becomes.</source>
        <translation>Die zweite der beiden Farben; bei Falschfarben das, was Weiß wird.</translation>
    </message>
    <message>
        <source>The sharp angle of a tile&apos;s corner.</source>
        <translation>Der spitze Winkel einer Kachelecke.</translation>
    </message>
    <message>
        <source>The small picture that is enlarged.</source>
        <translation>Das kleine Bild, das vergrößert wird.</translation>
    </message>
    <message>
        <source>The text that the code holds.</source>
        <translation>Der Text, den der Code enthält.</translation>
    </message>
    <message>
        <source>The typeface.</source>
        <translation>Die Schriftart.</translation>
    </message>
    <message>
        <source>The upper left corner.</source>
        <translation>Die obere linke Ecke.</translation>
    </message>
    <message>
        <source>The upper right corner of the frame in which the picture stands again.</source>
        <translation>Die obere rechte Ecke des Rahmens, in dem das Bild wieder steht.</translation>
    </message>
    <message>
        <source>The upper right corner of the part that grows.</source>
        <translation>Die obere rechte Ecke des Teils, der wächst.</translation>
    </message>
    <message>
        <source>The upper right corner.</source>
        <translation>Die obere rechte Ecke.</translation>
    </message>
    <message>
        <source>What is on the back of the page.</source>
        <translation>Was auf der Rückseite des Blattes ist.</translation>
    </message>
    <message>
        <source>What is written.</source>
        <translation>Was geschrieben steht.</translation>
    </message>
    <message>
        <source>What lies above it is drawn lighter.</source>
        <translation>Was darüber liegt, wird heller gezeichnet.</translation>
    </message>
    <message>
        <source>What lies below it is drawn darker.</source>
        <translation>Was darunter liegt, wird dunkler gezeichnet.</translation>
    </message>
    <message>
        <source>When the second picture begins to come through the light.</source>
        <translation>Wann das zweite Bild durch das Licht zu kommen beginnt.</translation>
    </message>
    <message>
        <source>Where the first color ends, in pixels from the center.</source>
        <translation>Wo die erste Farbe endet, in Pixeln von der Mitte.</translation>
    </message>
    <message>
        <source>Where the lamp hangs: to the side, upwards and above the picture.</source>
        <translation>Wo die Lampe hängt: seitlich, nach oben und über dem Bild.</translation>
    </message>
    <message>
        <source>Where the second color begins, in pixels from the center.</source>
        <translation>Wo die zweite Farbe beginnt, in Pixeln von der Mitte.</translation>
    </message>
    <message>
        <source>Whether black replaces the inks in the shadows alone (0) or everywhere (1).</source>
        <translation>Ob Schwarz die Farben nur in den Schatten ersetzt (0) oder überall (1).</translation>
    </message>
</context>
<context>
    <name>KernelEditor</name>
    <message>
        <source>Normalize</source>
        <translation>Normieren</translation>
    </message>
    <message>
        <source>Known weights</source>
        <translation>Bekannte Gewichte</translation>
    </message>
    <message>
        <source>Sets all weights to ones that are known by a name</source>
        <translation>Setzt alle Gewichte auf bekannte mit einem Namen</translation>
    </message>
    <message>
        <source>Own weights</source>
        <translation>Eigene Gewichte</translation>
    </message>
    <message>
        <source>Makes the sum of all weights 1, so that the picture stays as light as it is</source>
        <translation>Macht die Summe aller Gewichte zu 1, damit das Bild so hell bleibt, wie es ist</translation>
    </message>
    <message>
        <source>Weight in row %1, column %2</source>
        <translation>Gewicht in Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>Sum %1</source>
        <translation>Summe %1</translation>
    </message>
</context>
<context>
    <name>KernelPreset</name>
    <message>
        <source>No change</source>
        <translation>Unverändert</translation>
    </message>
    <message>
        <source>Box blur</source>
        <translation>Kastenunschärfe</translation>
    </message>
    <message>
        <source>Gaussian blur</source>
        <translation>Gaußsche Unschärfe</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Schärfen</translation>
    </message>
    <message>
        <source>Emboss</source>
        <translation>Relief</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Kanten</translation>
    </message>
    <message>
        <source>Upright edges</source>
        <translation>Senkrechte Kanten</translation>
    </message>
    <message>
        <source>Level edges</source>
        <translation>Waagerechte Kanten</translation>
    </message>
</context>
<context>
    <name>LayerRows</name>
    <message>
        <source>%1
A double click brings the standard value back</source>
        <translation>%1
Ein Doppelklick stellt den Standardwert wieder her</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>%1 zurücksetzen</translation>
    </message>
    <message>
        <source>Font Size</source>
        <translation>Schriftgröße</translation>
    </message>
    <message>
        <source>How large the letters are, in points</source>
        <translation>Wie groß die Buchstaben sind, in Punkt</translation>
    </message>
    <message>
        <source>Type here</source>
        <translation>Hier eingeben</translation>
    </message>
    <message>
        <source>%1: what is written on the picture</source>
        <translation>%1: was auf das Bild geschrieben wird</translation>
    </message>
    <message>
        <source>Standard</source>
        <comment>font</comment>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>The family of letters</source>
        <translation>Die Schriftfamilie</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>The color of the letters, and how opaque they are</source>
        <translation>Die Farbe der Buchstaben, und wie deckend sie sind</translation>
    </message>
    <message>
        <source>Low (7 %)</source>
        <translation>Gering (7 %)</translation>
    </message>
    <message>
        <source>Medium (15 %)</source>
        <translation>Mittel (15 %)</translation>
    </message>
    <message>
        <source>Good (25 %)</source>
        <translation>Gut (25 %)</translation>
    </message>
    <message>
        <source>High (30 %)</source>
        <translation>Hoch (30 %)</translation>
    </message>
    <message>
        <source>Correction</source>
        <translation>Korrektur</translation>
    </message>
    <message>
        <source>How much of the code may be hidden or dirty</source>
        <translation>Wie viel vom Code verdeckt oder schmutzig sein darf</translation>
    </message>
    <message>
        <source>Placing</source>
        <translation>Anordnung</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>How much of the result is seen, in percent</source>
        <translation>Wie viel man vom Ergebnis sieht, in Prozent</translation>
    </message>
    <message>
        <source>Own Size</source>
        <translation>Eigene Größe</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Strecken</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>Kacheln</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Platzieren</translation>
    </message>
    <message>
        <source>How the second picture is brought onto the picture. Drag it where it is to be when it is placed or tiled</source>
        <translation>Wie das zweite Bild auf das Bild kommt. Platziert oder gekachelt lässt es sich dorthin ziehen, wo es sein soll</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Zentrieren</translation>
    </message>
    <message>
        <source>Moves it to the middle of the picture</source>
        <translation>Rückt es in die Mitte des Bildes</translation>
    </message>
    <message>
        <source>As large as it is seen whole, in the middle of the picture</source>
        <translation>So groß, dass man es ganz sieht, in der Mitte des Bildes</translation>
    </message>
</context>
<context>
    <name>Look</name>
    <message>
        <source>Film Grain</source>
        <translation>Filmkorn</translation>
    </message>
    <message>
        <source>The fine grain of analog film.</source>
        <translation>Das feine Korn von analogem Film.</translation>
    </message>
    <message>
        <source>grain, film grain, analog, noise</source>
        <translation>korn, filmkorn, körnung, analog, rauschen</translation>
    </message>
    <message>
        <source>Faded Film</source>
        <translation>Verblasster Film</translation>
    </message>
    <message>
        <source>Pale colors and open blacks, as after years.</source>
        <translation>Blasse Farben und offene Schwärzen, wie nach Jahren.</translation>
    </message>
    <message>
        <source>faded, vintage, old photo, retro, matte</source>
        <translation>verblasst, vintage, altes foto, retro, matt</translation>
    </message>
    <message>
        <source>Cross Process</source>
        <translation>Crossentwicklung</translation>
    </message>
    <message>
        <source>Blue shadows and greenish lights, as from film in the wrong bath.</source>
        <translation>Blaue Schatten und grünliche Lichter, wie von Film im falschen Bad.</translation>
    </message>
    <message>
        <source>cross process, lomo, cool, retro</source>
        <translation>crossentwicklung, lomo, kühl, retro</translation>
    </message>
    <message>
        <source>Soft Portrait</source>
        <translation>Weiches Porträt</translation>
    </message>
    <message>
        <source>A gentle glow over skin and lights.</source>
        <translation>Ein sanftes Leuchten auf Haut und Lichtern.</translation>
    </message>
    <message>
        <source>portrait, soft, glow, dreamy, skin, wedding</source>
        <translation>porträt, weich, leuchten, verträumt, haut, hochzeit</translation>
    </message>
    <message>
        <source>Dramatic Black and White</source>
        <translation>Dramatisches Schwarzweiß</translation>
    </message>
    <message>
        <source>Deep blacks and bright whites without any color.</source>
        <translation>Tiefes Schwarz und helles Weiß ohne jede Farbe.</translation>
    </message>
    <message>
        <source>black and white, dramatic, noir, high contrast</source>
        <translation>schwarzweiß, schwarz-weiß, dramatisch, hoher kontrast</translation>
    </message>
    <message>
        <source>Tilt-Shift</source>
        <translation>Tilt-Shift</translation>
    </message>
    <message>
        <source>A sharp, vivid strip in a blurred scene, which looks like a model.</source>
        <translation>Ein scharfer, kräftiger Streifen in unscharfer Umgebung, die wie ein Modell aussieht.</translation>
    </message>
    <message>
        <source>tilt shift, miniature, model, toy town</source>
        <translation>tilt-shift, miniatur, modell, spielzeugstadt</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>A white border inside the picture&apos;s edges.</source>
        <translation>Ein weißer Rand innerhalb der Bildkanten.</translation>
    </message>
    <message>
        <source>frame, border, white border, mat</source>
        <translation>rahmen, rand, weißer rand, passepartout</translation>
    </message>
    <message>
        <source>Instant Print</source>
        <translation>Sofortbild</translation>
    </message>
    <message>
        <source>The creamy border of an instant print, wide at the bottom.</source>
        <translation>Der cremefarbene Rand eines Sofortbilds, unten breit.</translation>
    </message>
    <message>
        <source>polaroid, instant camera, frame, border, retro</source>
        <translation>polaroid, sofortbild, rahmen, rand, retro</translation>
    </message>
    <message>
        <source>Duotone</source>
        <translation>Duplex</translation>
    </message>
    <message>
        <source>Night blue for dark, warm cream for light.</source>
        <translation>Nachtblau für Dunkel, warmes Creme für Hell.</translation>
    </message>
    <message>
        <source>duotone, two colors, split tone</source>
        <translation>duplex, duoton, zwei farben</translation>
    </message>
    <message>
        <source>Glitch</source>
        <translation>Bildstörung</translation>
    </message>
    <message>
        <source>Bands of the picture slip aside, as in bad reception.</source>
        <translation>Streifen des Bildes rutschen zur Seite, wie bei schlechtem Empfang.</translation>
    </message>
    <message>
        <source>glitch, broken, television, error, vhs</source>
        <translation>glitch, bildstörung, kaputt, fernseher, fehler, vhs</translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation>Buntstift</translation>
    </message>
    <message>
        <source>A drawing in colored pencils.</source>
        <translation>Eine Zeichnung mit Buntstiften.</translation>
    </message>
    <message>
        <source>pencil, drawing, sketch, colored pencil, crayon</source>
        <translation>bleistift, zeichnung, skizze, buntstift, malstift</translation>
    </message>
    <message>
        <source>Poster</source>
        <translation>Plakat</translation>
    </message>
    <message>
        <source>A few flat colors, as from a silk screen.</source>
        <translation>Wenige flächige Farben, wie im Siebdruck.</translation>
    </message>
    <message>
        <source>poster, pop art, flat colors, screen print</source>
        <translation>plakat, poster, pop-art, flächige farben, siebdruck</translation>
    </message>
</context>
<context>
    <name>LookButton</name>
    <message>
        <source>Sets the table of colors to the look “%1”</source>
        <translation>Setzt die Farbtabelle auf den Look „%1“</translation>
    </message>
</context>
<context>
    <name>LooksPopup</name>
    <message>
        <source>Looks</source>
        <translation>Looks</translation>
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
    <message>
        <source>Finds filters by their name and by what they do: “old photo”, “sharpen”, “frame”. Return takes the first one.</source>
        <translation>Findet Filter nach ihrem Namen und nach dem, was sie tun: „altes Foto“, „schärfen“, „Rahmen“. Die Eingabetaste nimmt den ersten.</translation>
    </message>
    <message>
        <source>Looks</source>
        <translation>Looks</translation>
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
    <message>
        <source>%1 is incomplete: the rest of the picture is missing.</source>
        <translation>%1 ist unvollständig: Der Rest des Bildes fehlt.</translation>
    </message>
    <message>
        <source>Open as Second Picture</source>
        <translation>Als zweites Bild öffnen</translation>
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
    <name>PreferencesPanel</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Takes the choices (Return)</source>
        <translation>Übernimmt die Auswahl (Eingabetaste)</translation>
    </message>
    <message>
        <source>&amp;Appearance:</source>
        <translation>&amp;Erscheinungsbild:</translation>
    </message>
    <message>
        <source>Whether the program is drawn light or dark</source>
        <translation>Ob das Programm hell oder dunkel gezeichnet wird</translation>
    </message>
    <message>
        <source>As the Desktop</source>
        <translation>Wie die Arbeitsumgebung</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>&amp;Missing folder in Save As:</source>
        <translation>&amp;Fehlender Ordner bei „Speichern unter“:</translation>
    </message>
    <message>
        <source>What Save As does where the folder in lower case is missing</source>
        <translation>Was „Speichern unter“ tut, wo der kleingeschriebene Ordner fehlt</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>Fragen</translation>
    </message>
    <message>
        <source>Make Folder</source>
        <translation>Ordner anlegen</translation>
    </message>
    <message>
        <source>Use Chosen Folder</source>
        <translation>Gewählten Ordner nehmen</translation>
    </message>
    <message>
        <source>Forget the recent pictures (%1)</source>
        <translation>Die zuletzt geöffneten Bilder vergessen (%1)</translation>
    </message>
    <message>
        <source>Empties the menu Open Recent</source>
        <translation>Leert das Menü „Zuletzt geöffnet“</translation>
    </message>
    <message>
        <source>Forget the settings of exports</source>
        <translation>Die Einstellungen des Exports vergessen</translation>
    </message>
    <message>
        <source>Each format starts with its standard settings again</source>
        <translation>Jedes Format beginnt wieder mit seinen Standardeinstellungen</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>Drawing the picture…</source>
        <translation>Das Bild wird gezeichnet…</translation>
    </message>
    <message>
        <source>There was not enough memory to print the picture</source>
        <translation>Der Speicher reichte nicht, um das Bild zu drucken</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>The picture can&apos;t be printed there</source>
        <translation>Das Bild kann dort nicht gedruckt werden</translation>
    </message>
    <message>
        <source>Printed “%1”</source>
        <translation>„%1“ gedruckt</translation>
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
    <message>
        <source>Open as Second Picture</source>
        <translation>Als zweites Bild öffnen</translation>
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
    <message>
        <source>%1 16-bit</source>
        <comment>name of a color space</comment>
        <translation>%1, 16 Bit</translation>
    </message>
    <message>
        <source>%1 8-bit</source>
        <comment>name of a color space</comment>
        <translation>%1, 8 Bit</translation>
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
    <message>
        <source>Applied in the picture&apos;s size: %1 × %2 pixels</source>
        <comment>width, height</comment>
        <translation>In der Größe des Bildes angewendet: %1 × %2 Pixel</translation>
    </message>
    <message>
        <source>Applied in the window&apos;s size: %1 × %2 pixels</source>
        <comment>width, height</comment>
        <translation>In der Größe des Fensters angewendet: %1 × %2 Pixel</translation>
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
    <message>
        <source>Placing</source>
        <translation>Anordnung</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Platzieren</translation>
    </message>
</context>
<context>
    <name>WhiteEditor</name>
    <message>
        <source>Pick a Grey</source>
        <translation>Grau aufnehmen</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>The light of the picture in kelvin: to the right, the picture becomes warmer</source>
        <translation>Das Licht des Bildes in Kelvin: nach rechts wird das Bild wärmer</translation>
    </message>
    <message>
        <source>To the right, the picture becomes more magenta, to the left greener</source>
        <translation>Nach rechts wird das Bild mehr purpur, nach links grüner</translation>
    </message>
    <message>
        <source>Click on something in the picture that is grey or white. Escape leaves it as it is.</source>
        <translation>Klicken Sie im Bild auf etwas Graues oder Weißes. Esc lässt es, wie es ist.</translation>
    </message>
    <message>
        <source>%1: type a number</source>
        <translation>%1: eine Zahl eingeben</translation>
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

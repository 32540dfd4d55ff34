<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>TestChartTools::Widget</name>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1: %2 bis %3</translation>
    </message>
    <message>
        <source>%1: at most %2 characters</source>
        <translation>%1: höchstens %2 Zeichen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>AddtoCustomColors</source>
        <translation>Zu eigenen Farben hinzufügen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Basiccolors</source>
        <translation>Grundfarben</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau:</translation>
    </message>
    <message>
        <source>BorderWidth</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Box RowColNum</source>
        <translation>Cabinets</translation>
    </message>
    <message>
        <source>BoxNumShow</source>
        <translation>Cabinets</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Brightness in percent</source>
        <translation>Helligkeit in Prozent</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbruch</translation>
    </message>
    <message>
        <source>Cannel</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Chart height in pixels</source>
        <translation>Höhe des Testbilds in Pixeln</translation>
    </message>
    <message>
        <source>Chart width in pixels</source>
        <translation>Breite des Testbilds in Pixeln</translation>
    </message>
    <message>
        <source>Chess</source>
        <translation>Schachbrett</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Color bar</source>
        <translation>Balken</translation>
    </message>
    <message>
        <source>Color of the border</source>
        <translation>Farbe des Rahmens</translation>
    </message>
    <message>
        <source>Color of the circles</source>
        <translation>Farbe der Kreise</translation>
    </message>
    <message>
        <source>Color of the custom text</source>
        <translation>Farbe des eigenen Texts</translation>
    </message>
    <message>
        <source>Color of the diagonals</source>
        <translation>Farbe der Diagonalen</translation>
    </message>
    <message>
        <source>Color of the even cabinets</source>
        <translation>Farbe von Feld B</translation>
    </message>
    <message>
        <source>Color of the information line</source>
        <translation>Farbe der Zeile mit Angaben</translation>
    </message>
    <message>
        <source>Color of the labels</source>
        <translation>Farbe der Kennungen</translation>
    </message>
    <message>
        <source>Color of the logo text</source>
        <translation>Farbe des Logotexts</translation>
    </message>
    <message>
        <source>Color of the odd cabinets</source>
        <translation>Farbe von Feld A</translation>
    </message>
    <message>
        <source>Colors of the color bar</source>
        <translation>Farben des Balkens</translation>
    </message>
    <message>
        <source>Columns of cabinets</source>
        <translation>Spalten von Cabinets</translation>
    </message>
    <message>
        <source>Combination Mode</source>
        <translation>Beides</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Ctrl and wheel, plus and minus zoom; 0 shows all, 1 pixel for pixel; drags and arrow keys move</source>
        <translation>Strg und Rad, Plus und Minus zoomen; 0 zeigt alles, 1 jedes Pixel; Ziehen und Pfeiltasten verschieben</translation>
    </message>
    <message>
        <source>Custom text</source>
        <translation>Eigener Text</translation>
    </message>
    <message>
        <source>Customcolors</source>
        <translation>Eigene Farben</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>DeleteColorBar</source>
        <translation>Diese Farbe löschen?</translation>
    </message>
    <message>
        <source>Display Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Display content personalization</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Display custom text</source>
        <translation>Eigener Text</translation>
    </message>
    <message>
        <source>Double click or Enter changes a color, Alt+Up and Alt+Down move it</source>
        <translation>Doppelklick oder Eingabe ändert eine Farbe, Alt+Auf und Alt+Ab verschieben sie</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>Feld B</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ganz</translation>
    </message>
    <message>
        <source>From up to down increase Frome left to right increase</source>
        <translation>Nach unten, nach rechts</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Gradient between the colors</source>
        <translation>Verlauf zwischen den Farben</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün:</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Farbton:</translation>
    </message>
    <message>
        <source>Layer settings</source>
        <translation>Ebenen</translation>
    </message>
    <message>
        <source>Left Down</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Left Down Right Up</source>
        <translation>Unten links, oben rechts</translation>
    </message>
    <message>
        <source>Left Up</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Left Up Right Down</source>
        <translation>Oben links, unten rechts</translation>
    </message>
    <message>
        <source>Letter Mode</source>
        <translation>Alphabet</translation>
    </message>
    <message>
        <source>Line width of the circles</source>
        <translation>Linienbreite der Kreise</translation>
    </message>
    <message>
        <source>Line width of the diagonals</source>
        <translation>Linienbreite der Diagonalen</translation>
    </message>
    <message>
        <source>Logo Style</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Mode selection</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>Next color</source>
        <translation>Nächste Farbe</translation>
    </message>
    <message>
        <source>Num Mode</source>
        <translation>Zahlen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>Feld A</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Opacity of the logo in percent</source>
        <translation>Deckkraft des Logos in Prozent</translation>
    </message>
    <message>
        <source>Order of the labels</source>
        <translation>Richtung der Kennungen</translation>
    </message>
    <message>
        <source>OutBorder</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>PickScreenColor</source>
        <translation>Vom Bildschirm aufnehmen</translation>
    </message>
    <message>
        <source>Picture Logo</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Position adjustment</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>Position of the labels</source>
        <translation>Position der Kennungen</translation>
    </message>
    <message>
        <source>Position of the logo</source>
        <translation>Position des Logos</translation>
    </message>
    <message>
        <source>Preview of the chart</source>
        <translation>Vorschau des Testbilds</translation>
    </message>
    <message>
        <source>Previous color</source>
        <translation>Vorige Farbe</translation>
    </message>
    <message>
        <source>Radius of the circles</source>
        <translation>Radius der Kreise</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Auf 100 zurücksetzen</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>ResolutionShow</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Right Down</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Right Up</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Rows of cabinets</source>
        <translation>Zeilen von Cabinets</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sättigung:</translation>
    </message>
    <message>
        <source>Scale Logo</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>SelectColor</source>
        <translation>Farbe wählen</translation>
    </message>
    <message>
        <source>SelectImage</source>
        <translation>Bild für das Logo wählen</translation>
    </message>
    <message>
        <source>Serial Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Show Circle</source>
        <translation>Kreise</translation>
    </message>
    <message>
        <source>Show Diagonal</source>
        <translation>Diagonalen</translation>
    </message>
    <message>
        <source>Show Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>Show Model</source>
        <translation>Zählen mit</translation>
    </message>
    <message>
        <source>Show Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Show Resolution</source>
        <translation>Angaben</translation>
    </message>
    <message>
        <source>Show Serial Number</source>
        <translation>Kennungen</translation>
    </message>
    <message>
        <source>Show Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Show pixel for pixel</source>
        <translation>Pixelgenau zeigen</translation>
    </message>
    <message>
        <source>Show the border</source>
        <translation>Rahmen zeigen</translation>
    </message>
    <message>
        <source>Show the circles</source>
        <translation>Kreise zeigen</translation>
    </message>
    <message>
        <source>Show the custom text</source>
        <translation>Eigenen Text zeigen</translation>
    </message>
    <message>
        <source>Show the diagonals</source>
        <translation>Diagonalen zeigen</translation>
    </message>
    <message>
        <source>Show the information line</source>
        <translation>Zeile mit Angaben zeigen</translation>
    </message>
    <message>
        <source>Show the labels</source>
        <translation>Kennungen zeigen</translation>
    </message>
    <message>
        <source>Show the logo</source>
        <translation>Logo zeigen</translation>
    </message>
    <message>
        <source>Show the whole chart</source>
        <translation>Ganzes Testbild zeigen</translation>
    </message>
    <message>
        <source>Sideways shift of the logo in pixels</source>
        <translation>Versatz des Logos zur Seite in Pixeln</translation>
    </message>
    <message>
        <source>Size of the custom text</source>
        <translation>Größe des eigenen Texts</translation>
    </message>
    <message>
        <source>Size of the information line</source>
        <translation>Größe der Zeile mit Angaben</translation>
    </message>
    <message>
        <source>Size of the labels</source>
        <translation>Größe der Kennungen</translation>
    </message>
    <message>
        <source>Size of the logo in percent</source>
        <translation>Größe des Logos in Prozent</translation>
    </message>
    <message>
        <source>Size of the logo text</source>
        <translation>Größe des Logotexts</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>SuggestTransparentbackgroundrecommended</source>
        <translation>Am besten mit Transparenz</translation>
    </message>
    <message>
        <source>TestImage</source>
        <translation>Testbild</translation>
    </message>
    <message>
        <source>Text Input</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Text Logo</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Text Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Text of the logo</source>
        <translation>Text des Logos</translation>
    </message>
    <message>
        <source>UpLogo</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Upload your logo</source>
        <translation>Bild wählen…</translation>
    </message>
    <message>
        <source>Val</source>
        <translation>Hellwert:</translation>
    </message>
    <message>
        <source>Vertical shift of the logo in pixels</source>
        <translation>Versatz des Logos in der Höhe in Pixeln</translation>
    </message>
    <message>
        <source>Widget</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Width of the border</source>
        <translation>Breite des Rahmens</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
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
        <source>close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>fixed</source>
        <translation>Offen halten</translation>
    </message>
    <message>
        <source>from down to up increase frome left to right decrease</source>
        <translation>Nach oben, nach links</translation>
    </message>
    <message>
        <source>from down to up increase frome left to right increase</source>
        <translation>Nach oben, nach rechts</translation>
    </message>
    <message>
        <source>from up to down increase frome left to right decrease</source>
        <translation>Nach unten, nach links</translation>
    </message>
    <message>
        <source>small</source>
        <translation>Minimieren</translation>
    </message>
</context>
<context>
    <name>ChartDesk::MainWindow</name>
    <message>
        <source>English</source>
        <extracomment>The name of this file's language, in the language itself</extracomment>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>Test charts</source>
        <translation>Testbilder</translation>
    </message>
    <message>
        <source>New chart</source>
        <translation>Neues Testbild</translation>
    </message>
    <message>
        <source>Edit chart</source>
        <translation>Testbild bearbeiten</translation>
    </message>
    <message>
        <source>Choose folder…</source>
        <translation>Ordner wählen…</translation>
    </message>
    <message>
        <source>Coded markers</source>
        <translation>Codierte Marken</translation>
    </message>
    <message>
        <source>The cabinets have no room for markers.</source>
        <translation>In den Cabinets ist kein Platz für Marken.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>Testbilder</translation>
    </message>
    <message>
        <source>Choose the folder of the charts</source>
        <translation>Ordner der Testbilder wählen</translation>
    </message>
    <message>
        <source>No charts here yet. Press “New chart” to make the first one.</source>
        <translation>Hier gibt es noch keine Testbilder. Mit „Neues Testbild“ entsteht das erste.</translation>
    </message>
    <message>
        <source>The record of this chart cannot be read:</source>
        <translation>Die Daten dieses Testbilds können nicht gelesen werden:</translation>
    </message>
    <message>
        <source>Saved:</source>
        <translation>Gespeichert:</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Änderungen verwerfen</translation>
    </message>
    <message>
        <source>Continue editing</source>
        <translation>Weiter bearbeiten</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>This chart has changes that are not saved.</source>
        <translation>Dieses Testbild hat Änderungen, die nicht gespeichert sind.</translation>
    </message>
    <message>
        <source>This chart could not be saved.</source>
        <translation>Dieses Testbild konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>This file is damaged, or no picture that can be read.</source>
        <translation>Diese Datei ist beschädigt oder kein lesbares Bild.</translation>
    </message>
    <message>
        <source>The picture has %1 x %2 pixels; a logo has at most %3 x %4.</source>
        <translation>Das Bild hat %1 x %2 Pixel; ein Logo hat höchstens %3 x %4.</translation>
    </message>
    <message>
        <source>Save elsewhere…</source>
        <translation>Anderswo speichern…</translation>
    </message>
    <message>
        <source>You have no permission to write into “%1”.</source>
        <translation>Sie dürfen nicht in „%1“ schreiben.</translation>
    </message>
    <message>
        <source>“%1” lies on a disk that can only be read.</source>
        <translation>„%1“ liegt auf einem Datenträger, der nur gelesen werden kann.</translation>
    </message>
    <message>
        <source>There is no space left on the disk of “%1”.</source>
        <translation>Auf dem Datenträger von „%1“ ist kein Platz mehr.</translation>
    </message>
    <message>
        <source>“%1” cannot be a folder: a file is in its way.</source>
        <translation>„%1“ kann kein Ordner sein: Eine Datei ist im Weg.</translation>
    </message>
    <message>
        <source>The folder “%1” is gone.</source>
        <translation>Den Ordner „%1“ gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>An edit was not finished. Continue with it?</source>
        <translation>Eine Bearbeitung wurde nicht beendet. Weitermachen?</translation>
    </message>
    <message>
        <source>%1, last changed %2</source>
        <translation>%1, zuletzt geändert %2</translation>
    </message>
    <message>
        <source>The logo of this chart is missing:</source>
        <translation>Das Logo dieses Testbilds fehlt:</translation>
    </message>
    <message>
        <source>Somebody changed this chart meanwhile; both are kept:</source>
        <translation>Jemand hat dieses Testbild inzwischen geändert; beide bleiben erhalten:</translation>
    </message>
    <message>
        <source>This chart goes beyond what can be edited here:</source>
        <translation>Dieses Testbild geht über das hinaus, was sich hier bearbeiten lässt:</translation>
    </message>
    <message>
        <source>There is not enough memory for this chart.</source>
        <translation>Für dieses Testbild reicht der Speicher nicht.</translation>
    </message>
    <message>
        <source>Next chart</source>
        <translation>Nächstes Testbild</translation>
    </message>
    <message>
        <source>Previous chart</source>
        <translation>Voriges Testbild</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Colors in turn</source>
        <translation>Farben der Reihe nach</translation>
    </message>
    <message>
        <source>Grey steps</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <source>Read a photo…</source>
        <translation>Foto lesen…</translation>
    </message>
    <message>
        <source>Walk the wrong ones</source>
        <translation>Die falschen abgehen</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>%1 wird gelesen…</translation>
    </message>
    <message>
        <source>Show this chart on a display first.</source>
        <translation>Dieses Testbild zuerst auf einer Anzeige zeigen.</translation>
    </message>
    <message>
        <source>This picture has no record, so its cabinets are not known.</source>
        <translation>Dieses Bild hat keine Aufzeichnung; seine Cabinets sind nicht bekannt.</translation>
    </message>
    <message>
        <source>This photo has too many pixels.</source>
        <translation>Dieses Foto hat zu viele Pixel.</translation>
    </message>
    <message>
        <source>%1: its texts are too long.</source>
        <translation>%1: Die Texte darin sind zu lang.</translation>
    </message>
    <message>
        <source>This program was built without OpenCV, which reads photos.</source>
        <translation>Dieses Programm wurde ohne OpenCV gebaut, das Fotos liest.</translation>
    </message>
    <message>
        <source>Walk through the cabinets</source>
        <translation>Cabinets abgehen</translation>
    </message>
    <message>
        <source>Single cabinet</source>
        <translation>Einzelnes Cabinet</translation>
    </message>
    <message>
        <source>Single row</source>
        <translation>Einzelne Zeile</translation>
    </message>
    <message>
        <source>Single column</source>
        <translation>Einzelne Spalte</translation>
    </message>
    <message>
        <source>By rows or by columns</source>
        <translation>Zeilen- oder spaltenweise</translation>
    </message>
    <message>
        <source>Back and forth</source>
        <translation>Hin und her</translation>
    </message>
    <message>
        <source>Moving line</source>
        <translation>Wandernde Linie</translation>
    </message>
    <message>
        <source>Frame counter</source>
        <translation>Bildzähler</translation>
    </message>
    <message>
        <source>Run or pause</source>
        <translation>Starten oder anhalten</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Schneller</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Langsamer</translation>
    </message>
    <message>
        <source>This chart cannot be shown.</source>
        <translation>Dieses Testbild kann nicht gezeigt werden.</translation>
    </message>
    <message>
        <source>Show on…</source>
        <translation>Zeigen auf…</translation>
    </message>
    <message>
        <source>Stop showing</source>
        <translation>Nicht mehr zeigen</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>Horizontal line at %1</source>
        <translation>Waagerechte Linie bei %1</translation>
    </message>
    <message>
        <source>Vertical line at %1</source>
        <translation>Senkrechte Linie bei %1</translation>
    </message>
    <message>
        <source>Diagonal line at %1</source>
        <translation>Diagonale Linie bei %1</translation>
    </message>
    <message>
        <source>Row %1 (%2 of %3)</source>
        <translation>Zeile %1 (%2 von %3)</translation>
    </message>
    <message>
        <source>Column %1 (%2 of %3)</source>
        <translation>Spalte %1 (%2 von %3)</translation>
    </message>
    <message>
        <source>Cabinet %1 (%2 of %3)</source>
        <translation>Cabinet %1 (%2 von %3)</translation>
    </message>
    <message>
        <source>A chart is shown.</source>
        <translation>Ein Testbild wird gezeigt.</translation>
    </message>
    <message>
        <source>unplugged</source>
        <translation>ausgesteckt</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1 links</translation>
    </message>
    <message>
        <source>%1 above</source>
        <translation>%1 oben</translation>
    </message>
    <message>
        <source>%1 right</source>
        <translation>%1 rechts</translation>
    </message>
    <message>
        <source>%1 below</source>
        <translation>%1 unten</translation>
    </message>
    <message>
        <source>The chart has %1 pixels, the display %2.</source>
        <translation>Das Testbild hat %1 Pixel, die Anzeige %2.</translation>
    </message>
    <message>
        <source>Nothing of the chart is on the display.</source>
        <translation>Vom Testbild liegt nichts auf der Anzeige.</translation>
    </message>
    <message>
        <source>Pixels cut off: %1.</source>
        <translation>Abgeschnittene Pixel: %1.</translation>
    </message>
    <message>
        <source>Pixels that stay black: %1.</source>
        <translation>Pixel, die schwarz bleiben: %1.</translation>
    </message>
    <message>
        <source>Color %1, %2, %3</source>
        <translation>Farbe %1, %2, %3</translation>
    </message>
    <message>
        <source>%1 x %2 pixels, scaled to %3 %</source>
        <translation>%1 x %2 Pixel, skaliert auf %3 %</translation>
    </message>
    <message>
        <source>Pixels from the left of the display</source>
        <translation>Pixel vom linken Rand der Anzeige</translation>
    </message>
    <message>
        <source>Pixels from the top of the display</source>
        <translation>Pixel vom oberen Rand der Anzeige</translation>
    </message>
    <message>
        <source>The displays of this desktop</source>
        <translation>Die Anzeigen dieses Arbeitsplatzes</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Number the displays</source>
        <translation>Anzeigen nummerieren</translation>
    </message>
    <message>
        <source>The chart fills the display exactly.</source>
        <translation>Das Testbild füllt die Anzeige genau.</translation>
    </message>
    <message>
        <source>%1 pixels a frame</source>
        <translation>%1 Pixel je Bild</translation>
    </message>
    <message>
        <source>%1 steps a minute</source>
        <translation>%1 Schritte in der Minute</translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation>Bild %1</translation>
    </message>
    <message>
        <source>New from…</source>
        <translation>Neu aus…</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Umbenennen…</translation>
    </message>
    <message>
        <source>Tags…</source>
        <translation>Schlagwörter…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren…</translation>
    </message>
    <message>
        <source>Copy image</source>
        <translation>Bild kopieren</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>There is no file or folder “%1”.</source>
        <translation>Es gibt keine Datei und keinen Ordner „%1“.</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Testbild</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>This chart could not be deleted.</source>
        <translation>Dieses Testbild konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Tags, with commas between:</source>
        <translation>Schlagwörter, mit Kommas getrennt:</translation>
    </message>
    <message>
        <source>That could not be done.</source>
        <translation>Das ist nicht gelungen.</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>The wall</source>
        <translation>Die Wand</translation>
    </message>
    <message>
        <source>What it shows</source>
        <translation>Was es zeigt</translation>
    </message>
    <message>
        <source>“%1” cannot be the name of a file.</source>
        <translation>„%1“ kann kein Dateiname sein.</translation>
    </message>
    <message>
        <source>There is a chart called “%1” already.</source>
        <translation>Es gibt schon ein Testbild namens „%1“.</translation>
    </message>
    <message>
        <source>Deleted: %1</source>
        <translation>Gelöscht: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Brings the chart back, within ten seconds</source>
        <translation>Holt das Testbild zurück, zehn Sekunden lang</translation>
    </message>
    <message>
        <source>Search name, date, size or tag</source>
        <translation>Name, Datum, Größe oder Schlagwort suchen</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Neueste zuerst</translation>
    </message>
    <message>
        <source>Oldest first</source>
        <translation>Älteste zuerst</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>Nach Namen</translation>
    </message>
    <message>
        <source>Order of the charts</source>
        <translation>Reihenfolge der Testbilder</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Size by one pixel</source>
        <translation>Größe um ein Pixel</translation>
    </message>
    <message>
        <source>Size by ten pixels</source>
        <translation>Größe um zehn Pixel</translation>
    </message>
    <message>
        <source>Next cabinet</source>
        <translation>Nächstes Cabinet</translation>
    </message>
    <message>
        <source>Extend the selection</source>
        <translation>Auswahl erweitern</translation>
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
        <source>Jump to a chart on the output</source>
        <translation>Auf der Ausgabe zu einem Testbild springen</translation>
    </message>
    <message>
        <source>Leave the output</source>
        <translation>Ausgabe verlassen</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Copy diagnostics</source>
        <translation>Diagnosedaten kopieren</translation>
    </message>
    <message>
        <source>The next start has this theme.</source>
        <translation>Dieses Farbschema gilt ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Farbschema</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Recent folders</source>
        <translation>Zuletzt benutzte Ordner</translation>
    </message>
    <message>
        <source>Taken in:</source>
        <translation>Übernommen:</translation>
    </message>
    <message>
        <source>Taken in, with its chart:</source>
        <translation>Mit seinem Testbild übernommen:</translation>
    </message>
    <message>
        <source>Taken in, with its walls:</source>
        <translation>Mit ihren Wänden übernommen:</translation>
    </message>
    <message>
        <source>Two clicks edit a chart</source>
        <translation>Ein Doppelklick bearbeitet ein Testbild</translation>
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
        <source>Grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>8 greys</source>
        <translation>8 Graustufen</translation>
    </message>
    <message>
        <source>16 greys</source>
        <translation>16 Graustufen</translation>
    </message>
    <message>
        <source>Grey ramp</source>
        <translation>Grauverlauf</translation>
    </message>
    <message>
        <source>Color bars</source>
        <translation>Farbbalken</translation>
    </message>
    <message>
        <source>Chessboard</source>
        <translation>Schachbrett</translation>
    </message>
    <message>
        <source>Numbers from top left</source>
        <translation>Nummern von oben links</translation>
    </message>
    <message>
        <source>Numbers from top right</source>
        <translation>Nummern von oben rechts</translation>
    </message>
    <message>
        <source>Numbers from bottom left</source>
        <translation>Nummern von unten links</translation>
    </message>
    <message>
        <source>Numbers from bottom right</source>
        <translation>Nummern von unten rechts</translation>
    </message>
    <message>
        <source>%1 x %2 pixels, %3 x %4 cabinets</source>
        <translation>%1 x %2 Pixel, %3 x %4 Cabinets</translation>
    </message>
    <message>
        <source>This wall cannot be read:</source>
        <translation>Diese Wand kann nicht gelesen werden:</translation>
    </message>
    <message>
        <source>The wall could not be saved:</source>
        <translation>Die Wand konnte nicht gespeichert werden:</translation>
    </message>
    <message>
        <source>New wall</source>
        <translation>Neue Wand</translation>
    </message>
    <message>
        <source>Remove or restore</source>
        <translation>Entfernen / einsetzen</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Draw data cable</source>
        <translation>Datenkabel ziehen</translation>
    </message>
    <message>
        <source>Draw power cable</source>
        <translation>Stromkabel ziehen</translation>
    </message>
    <message>
        <source>Wall</source>
        <translation>Wand</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Selected cabinets</source>
        <translation>Ausgewählte Cabinets</translation>
    </message>
    <message>
        <source>Width of the columns</source>
        <translation>Breite der Spalten</translation>
    </message>
    <message>
        <source>Height of the rows</source>
        <translation>Höhe der Zeilen</translation>
    </message>
    <message>
        <source>Name of the cabinet</source>
        <translation>Name des Cabinets</translation>
    </message>
    <message>
        <source>No cabinet here</source>
        <translation>Hier kein Cabinet</translation>
    </message>
    <message>
        <source>Begins at</source>
        <translation>Beginnt</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Goes along</source>
        <translation>Folgt den</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>One way</source>
        <translation>In eine Richtung</translation>
    </message>
    <message>
        <source>Each by itself</source>
        <translation>Jede für sich</translation>
    </message>
    <message>
        <source>Data cables</source>
        <translation>Datenkabel</translation>
    </message>
    <message>
        <source>Pixels of a port</source>
        <translation>Pixel je Port</translation>
    </message>
    <message>
        <source>Bits of a color</source>
        <translation>Bit je Farbe</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>Bilder je Sekunde</translation>
    </message>
    <message>
        <source>Backup ports</source>
        <translation>Backup-Ports</translation>
    </message>
    <message>
        <source>Power cables</source>
        <translation>Stromkabel</translation>
    </message>
    <message>
        <source>Watts of a cabinet</source>
        <translation>Watt je Cabinet</translation>
    </message>
    <message>
        <source>Watts of a circuit</source>
        <translation>Watt je Stromkreis</translation>
    </message>
    <message>
        <source>Drawn over the chart</source>
        <translation>Über dem Testbild</translation>
    </message>
    <message>
        <source>Black where no cabinet is</source>
        <translation>Schwarz, wo kein Cabinet ist</translation>
    </message>
    <message>
        <source>Outlines</source>
        <translation>Umrisse</translation>
    </message>
    <message>
        <source>Frames of one pixel</source>
        <translation>Rahmen von einem Pixel</translation>
    </message>
    <message>
        <source>Names of cabinets</source>
        <translation>Namen der Cabinets</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>Koordinaten</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Whole wall</source>
        <translation>Ganze Wand</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Cables by the pattern</source>
        <translation>Kabel nach Muster</translation>
    </message>
    <message>
        <source>Arrows change the size by one pixel, with Shift by ten</source>
        <translation>Pfeiltasten ändern die Größe um ein Pixel, mit Umschalt um zehn</translation>
    </message>
    <message>
        <source>Edit wall</source>
        <translation>Wand bearbeiten</translation>
    </message>
    <message>
        <source>Save the changes of this wall?</source>
        <translation>Die Änderungen dieser Wand speichern?</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>%1 shows what belongs to %2</source>
        <translation>%1 zeigt, was nach %2 gehört</translation>
    </message>
    <message>
        <source>%1 shows what belongs to %2, turned by %3 degrees</source>
        <translation>%1 zeigt, was nach %2 gehört, um %3 Grad gedreht</translation>
    </message>
    <message>
        <source>%1 is mirrored top to bottom</source>
        <translation>%1 ist von oben nach unten gespiegelt</translation>
    </message>
    <message>
        <source>%1 is mirrored left to right</source>
        <translation>%1 ist von links nach rechts gespiegelt</translation>
    </message>
    <message>
        <source>%1 is mirrored left to right, turned by %2 degrees</source>
        <translation>%1 ist von links nach rechts gespiegelt und um %2 Grad gedreht</translation>
    </message>
    <message>
        <source>%1 is dark</source>
        <translation>%1 ist dunkel</translation>
    </message>
    <message>
        <source>%1 shows nothing but one colour</source>
        <translation>%1 zeigt nur eine einzige Farbe</translation>
    </message>
    <message>
        <source>%1 shows something else</source>
        <translation>%1 zeigt etwas anderes</translation>
    </message>
    <message>
        <source>%1 is too dark</source>
        <translation>%1 ist zu dunkel</translation>
    </message>
    <message>
        <source>%1 is too bright</source>
        <translation>%1 ist zu hell</translation>
    </message>
    <message>
        <source>%1 shows wrong colours</source>
        <translation>%1 zeigt falsche Farben</translation>
    </message>
    <message>
        <source>%1 is hidden</source>
        <translation>%1 ist verdeckt</translation>
    </message>
    <message>
        <source>%1 could not be judged</source>
        <translation>%1 ließ sich nicht beurteilen</translation>
    </message>
    <message>
        <source>%1 row</source>
        <translation>%1 Zeile</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 Zeilen</translation>
    </message>
    <message>
        <source>%1 column</source>
        <translation>%1 Spalte</translation>
    </message>
    <message>
        <source>%1 columns</source>
        <translation>%1 Spalten</translation>
    </message>
    <message>
        <source>not sure which cabinet is which: this chart looks the same turned by 180 degrees; give it labels</source>
        <translation>Die Cabinets sind nicht sicher zu unterscheiden: Um 180 Grad gedreht sieht dieses Testbild gleich aus; es braucht Beschriftungen</translation>
    </message>
    <message>
        <source>not sure which cabinet is which: this chart looks the same shifted by %1; give it labels</source>
        <translation>Die Cabinets sind nicht sicher zu unterscheiden: Um %1 verschoben sieht dieses Testbild gleich aus; es braucht Beschriftungen</translation>
    </message>
    <message>
        <source>there is no picture to read</source>
        <translation>Es gibt kein Bild zu lesen</translation>
    </message>
    <message>
        <source>the chart was not found in the picture</source>
        <translation>Das Testbild wurde im Foto nicht gefunden</translation>
    </message>
    <message>
        <source>the chart was not found in time</source>
        <translation>Das Testbild wurde nicht rechtzeitig gefunden</translation>
    </message>
    <message>
        <source>%1 chart pixel is missing at the left edge</source>
        <translation>Am linken Rand fehlt %1 Pixel des Testbilds</translation>
    </message>
    <message>
        <source>%1 chart pixel is missing at the top edge</source>
        <translation>Am oberen Rand fehlt %1 Pixel des Testbilds</translation>
    </message>
    <message>
        <source>%1 chart pixel is missing at the right edge</source>
        <translation>Am rechten Rand fehlt %1 Pixel des Testbilds</translation>
    </message>
    <message>
        <source>%1 chart pixel is missing at the bottom edge</source>
        <translation>Am unteren Rand fehlt %1 Pixel des Testbilds</translation>
    </message>
    <message>
        <source>%1 chart pixels are missing at the left edge</source>
        <translation>Am linken Rand fehlen %1 Pixel des Testbilds</translation>
    </message>
    <message>
        <source>%1 chart pixels are missing at the top edge</source>
        <translation>Am oberen Rand fehlen %1 Pixel des Testbilds</translation>
    </message>
    <message>
        <source>%1 chart pixels are missing at the right edge</source>
        <translation>Am rechten Rand fehlen %1 Pixel des Testbilds</translation>
    </message>
    <message>
        <source>%1 chart pixels are missing at the bottom edge</source>
        <translation>Am unteren Rand fehlen %1 Pixel des Testbilds</translation>
    </message>
    <message>
        <source>%1 is turned by %2 degrees</source>
        <translation>%1 ist um %2 Grad gedreht</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 right chart pixels</source>
        <translation>%1 ist um %2 Testbildpixel nach rechts verschoben</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 left chart pixels</source>
        <translation>%1 ist um %2 Testbildpixel nach links verschoben</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 down chart pixels</source>
        <translation>%1 ist um %2 Testbildpixel nach unten verschoben</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 up chart pixels</source>
        <translation>%1 ist um %2 Testbildpixel nach oben verschoben</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 right and %3 down chart pixels</source>
        <translation>%1 ist um %2 Testbildpixel nach rechts und %3 nach unten verschoben</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 right and %3 up chart pixels</source>
        <translation>%1 ist um %2 Testbildpixel nach rechts und %3 nach oben verschoben</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 left and %3 down chart pixels</source>
        <translation>%1 ist um %2 Testbildpixel nach links und %3 nach unten verschoben</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 left and %3 up chart pixels</source>
        <translation>%1 ist um %2 Testbildpixel nach links und %3 nach oben verschoben</translation>
    </message>
    <message>
        <source>the whole chart is mirrored left to right</source>
        <translation>Das ganze Testbild ist von links nach rechts gespiegelt</translation>
    </message>
    <message>
        <source>the whole chart is turned by %1 degrees</source>
        <translation>Das ganze Testbild ist um %1 Grad gedreht</translation>
    </message>
    <message>
        <source>%1 and %2 are swapped</source>
        <translation>%1 und %2 sind vertauscht</translation>
    </message>
    <message>
        <source>hidden: %1</source>
        <translation>Verdeckt: %1</translation>
    </message>
    <message>
        <source>not sure about: %1</source>
        <translation>Nicht sicher: %1</translation>
    </message>
    <message>
        <source>nothing wrong was seen</source>
        <translation>Nichts Falsches zu sehen</translation>
    </message>
    <message>
        <source>Whole chart</source>
        <translation>Ganzes Testbild</translation>
    </message>
    <message>
        <source>Pixel for pixel</source>
        <translation>Pixel für Pixel</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Editor</translation>
    </message>
</context>
</TS>

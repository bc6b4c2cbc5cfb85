<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>APPLNWIDGET</name>
    <message>
        <source>The help is not installed, or there is no program that shows it.</source>
        <translation>Die Hilfe ist nicht installiert, oder es gibt kein Programm, das sie anzeigt.</translation>
    </message>
</context>
<context>
    <name>AdvancedSettings</name>
    <message>
        <source>Advanced BOM Settings</source>
        <translation>Erweiterte Stücklisteneinstellungen</translation>
    </message>
    <message>
        <source>Pretty Output</source>
        <translation>Formatierte Ausgabe</translation>
    </message>
    <message>
        <source>Manual table column widths</source>
        <translation>Spaltenbreiten der Tabelle selbst festlegen</translation>
    </message>
    <message>
        <source>Adjust the percentage width of each column in the BOM Report.  Columns right of the one being configured automatically adjust to fully use the table.</source>
        <translation>Stellen Sie die Breite jeder Spalte des Stücklistenberichts in Prozent ein.  Die Spalten rechts von der geänderten passen sich so an, dass die Tabelle ganz ausgefüllt ist.</translation>
    </message>
    <message>
        <source>Ascii Output</source>
        <translation>ASCII-Ausgabe</translation>
    </message>
    <message>
        <source>Ascii output column widths</source>
        <translation>Spaltenbreiten der ASCII-Ausgabe</translation>
    </message>
    <message>
        <source>The ascii output column widths are in characters</source>
        <translation>Die Spaltenbreiten der ASCII-Ausgabe werden in Zeichen angegeben</translation>
    </message>
    <message>
        <source>Data Outputs</source>
        <translation>Datenausgaben</translation>
    </message>
    <message>
        <source>These settings affect the data outputs of CSV, ASCII and spreadsheet.  They are intended to improve compatibility with external applications that were designed for Quorvel 7.</source>
        <translation>Diese Einstellungen betreffen die Datenausgaben als CSV, ASCII und Tabellenblatt.  Sie verbessern das Zusammenspiel mit Programmen, die für Quorvel 7 gemacht wurden.</translation>
    </message>
    <message>
        <source>Always quote references (CSV only)</source>
        <translation>Referenzen immer in Anführungszeichen (nur CSV)</translation>
    </message>
    <message>
        <source>Exclude Value field</source>
        <translation>Feld „Value“ weglassen</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Sonstiges</translation>
    </message>
    <message>
        <source>Case Sensitive Part Grouping </source>
        <translation>Groß- und Kleinschreibung beim Zusammenfassen beachten </translation>
    </message>
    <message>
        <source>Layout for reading</source>
        <translation>Zum Lesen gestalten</translation>
    </message>
    <message>
        <source>Numbers on the right, columns without any value left out or named, long texts wrapped instead of cut.  CSV and JSON outputs stay as they are.</source>
        <translation>Zahlen stehen rechts, Spalten ohne jeden Wert entfallen oder werden genannt, lange Texte werden umbrochen statt abgeschnitten.  CSV- und JSON-Ausgaben bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>References</source>
        <translation>Referenzen</translation>
    </message>
</context>
<context>
    <name>BOMAsciiView</name>
    <message>
        <source>ASCII file to save</source>
        <translation>ASCII-Datei speichern</translation>
    </message>
    <message>
        <source>ASCII fixed column width file (*.txt)</source>
        <translation>ASCII-Datei mit festen Spaltenbreiten (*.txt)</translation>
    </message>
</context>
<context>
    <name>BOMCategoriesTable</name>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source>Could not save category</source>
        <translation>Kategorie nicht gespeichert</translation>
    </message>
    <message>
        <source>The category needs a heading.</source>
        <translation>Die Kategorie braucht eine Überschrift.</translation>
    </message>
    <message>
        <source>There is a category &apos;%1&apos; already.</source>
        <translation>Eine Kategorie „%1“ gibt es schon.</translation>
    </message>
    <message>
        <source>Choose at least one reference prefix: without one no part belongs to the category.</source>
        <translation>Wählen Sie mindestens ein Referenzpräfix: Ohne Präfix gehört kein Bauteil zu der Kategorie.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot match any part: a reference prefix is what stands in front of the first digit, such as R for R12.</source>
        <translation>„%1“ passt auf kein Bauteil: Ein Referenzpräfix ist das, was vor der ersten Ziffer steht, zum Beispiel R bei R12.</translation>
    </message>
    <message>
        <source>The parts with the reference prefix &apos;%1&apos; belong to the category &apos;%2&apos; already.</source>
        <translation>Die Bauteile mit dem Referenzpräfix „%1“ gehören schon zur Kategorie „%2“.</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Prefixes</source>
        <translation>Präfixe</translation>
    </message>
    <message>
        <source>Cannot perform action</source>
        <translation>Das geht nicht</translation>
    </message>
    <message>
        <source>The miscellaneous category is required.</source>
        <translation>Die Kategorie für alles Übrige wird gebraucht.</translation>
    </message>
</context>
<context>
    <name>BOMCategoryEditor</name>
    <message>
        <source>Edit BOM Category</source>
        <translation>Stücklistenkategorie bearbeiten</translation>
    </message>
    <message>
        <source>Category Heading</source>
        <translation>Überschrift der Kategorie</translation>
    </message>
    <message>
        <source>The category heading is the text that appears at the top of the category and is typically the part type (Resistors, for example).</source>
        <translation>Die Überschrift steht am Anfang der Kategorie und nennt meist die Art der Bauteile (zum Beispiel Widerstände).</translation>
    </message>
    <message>
        <source>Reference(s) to match</source>
        <translation>Passende Referenzen</translation>
    </message>
    <message>
        <source>A category groups together components with the same reference prefix (you can specify up to four prefixes per category)</source>
        <translation>Eine Kategorie fasst Bauteile mit dem gleichen Referenzpräfix zusammen (bis zu vier Präfixe je Kategorie)</translation>
    </message>
    <message>
        <source>Reference prefix 1</source>
        <translation>Referenzpräfix 1</translation>
    </message>
    <message>
        <source>Reference prefix 2</source>
        <translation>Referenzpräfix 2</translation>
    </message>
    <message>
        <source>Reference prefix 3</source>
        <translation>Referenzpräfix 3</translation>
    </message>
    <message>
        <source>Reference prefix 4</source>
        <translation>Referenzpräfix 4</translation>
    </message>
    <message>
        <source>This is the miscellaneous category and will contain all parts that are not matched by another category.</source>
        <translation>Diese Kategorie nimmt alle Bauteile auf, die in keine andere passen.</translation>
    </message>
</context>
<context>
    <name>BOMCsvView</name>
    <message>
        <source>CSV file to save</source>
        <translation>CSV-Datei speichern</translation>
    </message>
    <message>
        <source>Comma Separated Variables (*.csv)</source>
        <translation>Durch Kommas getrennte Werte (*.csv)</translation>
    </message>
</context>
<context>
    <name>BOMDataView</name>
    <message>
        <source>Property Editor</source>
        <translation>Eigenschaften bearbeiten</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Resistors</source>
        <translation>Widerstände</translation>
    </message>
    <message>
        <source>Capacitors</source>
        <translation>Kondensatoren</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>One row for all parts of a line of the bill</source>
        <translation>Eine Zeile für alle Bauteile einer Stücklistenzeile</translation>
    </message>
    <message>
        <source>Group Components</source>
        <translation>Bauteile zusammenfassen</translation>
    </message>
    <message>
        <source>A column with the links of each part</source>
        <translation>Eine Spalte mit den Links jedes Bauteils</translation>
    </message>
    <message>
        <source>Show Links</source>
        <translation>Links zeigen</translation>
    </message>
    <message>
        <source>Generate Properties</source>
        <translation>Eigenschaften erzeugen</translation>
    </message>
    <message>
        <source>Write the pending changes into the design</source>
        <translation>Die vorgemerkten Änderungen in den Entwurf schreiben</translation>
    </message>
    <message>
        <source>Apply Changes</source>
        <translation>Änderungen anwenden</translation>
    </message>
    <message>
        <source>Forget the pending changes</source>
        <translation>Die vorgemerkten Änderungen verwerfen</translation>
    </message>
    <message>
        <source>Clear Pending Changes</source>
        <translation>Vorgemerktes verwerfen</translation>
    </message>
    <message>
        <source>BOM Parts</source>
        <translation>Stücklistenbauteile</translation>
    </message>
    <message>
        <source>Add parts that are in the bill only</source>
        <translation>Bauteile hinzufügen, die nur in der Stückliste stehen</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Remove a part that is in the bill only</source>
        <translation>Ein Bauteil entfernen, das nur in der Stückliste steht</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Fi&amp;lter:</source>
        <translation>Fi&amp;lter:</translation>
    </message>
    <message>
        <source>Shows the rows in which all words occur; heading:word looks into one column</source>
        <translation>Zeigt die Zeilen, in denen alle Wörter vorkommen; Überschrift:Wort sucht in einer Spalte</translation>
    </message>
    <message>
        <source>Words, or heading:word</source>
        <translation>Wörter, oder Überschrift:Wort</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>All rows</source>
        <translation>Alle Zeilen</translation>
    </message>
    <message>
        <source>Pending</source>
        <translation>Vorgemerkt</translation>
    </message>
    <message>
        <source>In conflict</source>
        <translation>Im Konflikt</translation>
    </message>
    <message>
        <source>Required and empty</source>
        <translation>Nötig und leer</translation>
    </message>
    <message>
        <source>Rows shown</source>
        <translation>Gezeigte Zeilen</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Bauteile</translation>
    </message>
    <message>
        <source>no design is open</source>
        <translation>kein Entwurf ist geöffnet</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1, %2: %3; the text stays as it was.</source>
        <translation>%1, %2: %3; der Text bleibt, wie er war.</translation>
    </message>
    <message>
        <source>ADI scripting results</source>
        <translation>Ergebnisse des ADI-Skripts</translation>
    </message>
    <message>
        <source>Still pending, because the design changed meanwhile (%1): %2</source>
        <translation>Noch vorgemerkt, weil sich der Entwurf inzwischen geändert hat (%1): %2</translation>
    </message>
    <message>
        <source>Clear pending property assignments, are you sure?</source>
        <translation>Sollen die vorgemerkten Änderungen wirklich verworfen werden?</translation>
    </message>
    <message>
        <source>References</source>
        <translation>Referenzen</translation>
    </message>
    <message>
        <source>%1 Links</source>
        <translation>%1 Links</translation>
    </message>
    <message>
        <source>Show all rows</source>
        <translation>Alle Zeilen zeigen</translation>
    </message>
    <message>
        <source>Nothing was written, all changes are still pending:</source>
        <translation>Nichts wurde geschrieben, alle Änderungen sind weiterhin vorgemerkt:</translation>
    </message>
</context>
<context>
    <name>BOMExcelView</name>
    <message>
        <source>Output Failed</source>
        <translation>Ausgabe fehlgeschlagen</translation>
    </message>
    <message>
        <source>Spreadsheet file to save</source>
        <translation>Tabellenblatt speichern</translation>
    </message>
    <message>
        <source>Spreadsheets (*.xlsx)</source>
        <translation>Tabellenblätter (*.xlsx)</translation>
    </message>
    <message>
        <source>Spreadsheet</source>
        <translation>Tabellenblatt</translation>
    </message>
</context>
<context>
    <name>BOMFieldEditor</name>
    <message>
        <source>Edit BOM Field</source>
        <translation>Stücklistenfeld bearbeiten</translation>
    </message>
    <message>
        <source>Field Property</source>
        <translation>Eigenschaft des Feldes</translation>
    </message>
    <message>
        <source>A field defines a column of values to be output in the BOM report based on the given property.</source>
        <translation>Ein Feld ist eine Spalte des Stücklistenberichts mit den Werten der angegebenen Eigenschaft.</translation>
    </message>
    <message>
        <source>Component property name</source>
        <translation>Name der Bauteileigenschaft</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Alt+N</source>
        <translation>Alt+N</translation>
    </message>
    <message>
        <source>Define a new physical property</source>
        <translation>Eine neue Bauteileigenschaft definieren</translation>
    </message>
    <message>
        <source>Title for column heading</source>
        <translation>Titel der Spaltenüberschrift</translation>
    </message>
    <message>
        <source>External Links Enabled </source>
        <translation>Externe Verknüpfungen anzeigen </translation>
    </message>
    <message>
        <source>Field Value</source>
        <translation>Wert des Feldes</translation>
    </message>
    <message>
        <source>The component property value is output with an optional prefix and suffix. Leave these blank if they are not required.</source>
        <translation>Vor und hinter dem Wert der Eigenschaft kann ein Text ausgegeben werden. Lassen Sie die Texte leer, wenn Sie keine brauchen.</translation>
    </message>
    <message>
        <source>Prefix (to go in front of value)</source>
        <translation>Präfix (steht vor dem Wert)</translation>
    </message>
    <message>
        <source>Suffix (to go after value)</source>
        <translation>Suffix (steht hinter dem Wert)</translation>
    </message>
    <message>
        <source>Apply prefix and suffix to blank (empty) values?</source>
        <translation>Präfix und Suffix auch bei leeren Werten ausgeben?</translation>
    </message>
    <message>
        <source>Field width limit</source>
        <translation>Begrenzung der Feldbreite</translation>
    </message>
    <message>
        <source>Field lines limit</source>
        <translation>Begrenzung der Feldzeilen</translation>
    </message>
    <message>
        <source>Numeric Values</source>
        <translation>Zahlenwerte</translation>
    </message>
    <message>
        <source>Output sub-totals/totals for this field?</source>
        <translation>Zwischensummen und Summen für dieses Feld ausgeben?</translation>
    </message>
    <message>
        <source>Number of decimal places</source>
        <translation>Anzahl der Nachkommastellen</translation>
    </message>
</context>
<context>
    <name>BOMFieldsTable</name>
    <message>
        <source>Fields</source>
        <translation>Felder</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Edit &amp;Values of the Parts</source>
        <translation>&amp;Werte der Bauteile bearbeiten</translation>
    </message>
    <message>
        <source>Could not save field</source>
        <translation>Feld nicht gespeichert</translation>
    </message>
    <message>
        <source>Field &apos;%1&apos; requires a valid name and its property &apos;%2&apos; to be defined.</source>
        <translation>Das Feld „%1“ braucht einen gültigen Namen, und seine Eigenschaft „%2“ muss angegeben sein.</translation>
    </message>
    <message>
        <source>Could not add field</source>
        <translation>Feld nicht hinzugefügt</translation>
    </message>
    <message>
        <source>Could not rename field</source>
        <translation>Feld nicht umbenannt</translation>
    </message>
    <message>
        <source>Field name &apos;%1&apos; already in use</source>
        <translation>Der Feldname „%1“ wird schon benutzt</translation>
    </message>
    <message>
        <source>The property &apos;%1&apos; has a field already.</source>
        <translation>Für die Eigenschaft „%1“ gibt es schon ein Feld.</translation>
    </message>
    <message>
        <source>Could not edit field</source>
        <translation>Feld nicht bearbeitet</translation>
    </message>
    <message>
        <source>The &apos;VALUE&apos; field is not editable</source>
        <translation>Das Feld „VALUE“ kann nicht bearbeitet werden</translation>
    </message>
    <message>
        <source>Could not remove field</source>
        <translation>Feld nicht entfernt</translation>
    </message>
    <message>
        <source>The &apos;VALUE&apos; field is required</source>
        <translation>Das Feld „VALUE“ wird gebraucht</translation>
    </message>
</context>
<context>
    <name>BOMHTMLView</name>
    <message>
        <source>BOM Template</source>
        <translation>Stücklistenvorlage</translation>
    </message>
    <message>
        <source>Open Link</source>
        <translation>Link öffnen</translation>
    </message>
    <message>
        <source>%1 is a program. Opening it may run it. Open it all the same?</source>
        <translation>%1 ist ein Programm. Das Öffnen kann es ausführen. Trotzdem öffnen?</translation>
    </message>
    <message>
        <source>HTML file to save</source>
        <translation>HTML-Datei speichern</translation>
    </message>
    <message>
        <source>Web pages (*.html *.htm)</source>
        <translation>Webseiten (*.html *.htm)</translation>
    </message>
</context>
<context>
    <name>BOMMainWindow</name>
    <message>
        <source>Bill of Materials Viewer</source>
        <translation>Stücklistenanzeige</translation>
    </message>
    <message>
        <source>Reload The &amp;BOM</source>
        <translation>Stückliste neu &amp;laden</translation>
    </message>
    <message>
        <source>Reload the parts in the Bill Of Materials</source>
        <translation>Bauteile der Stückliste neu einlesen</translation>
    </message>
    <message>
        <source>&amp;HTML</source>
        <translation>&amp;HTML</translation>
    </message>
    <message>
        <source>Output BOM in HTML</source>
        <translation>Stückliste als HTML ausgeben</translation>
    </message>
    <message>
        <source>&amp;PDF</source>
        <translation>&amp;PDF</translation>
    </message>
    <message>
        <source>Output BOM as a PDF</source>
        <translation>Stückliste als PDF ausgeben</translation>
    </message>
    <message>
        <source>&amp;CSV</source>
        <translation>&amp;CSV</translation>
    </message>
    <message>
        <source>Output BOM in CSV</source>
        <translation>Stückliste als CSV ausgeben</translation>
    </message>
    <message>
        <source>&amp;ASCII</source>
        <translation>&amp;ASCII</translation>
    </message>
    <message>
        <source>Output BOM in ASCII</source>
        <translation>Stückliste als ASCII-Text ausgeben</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>Print BOM</source>
        <translation>Stückliste drucken</translation>
    </message>
    <message>
        <source>&amp;Open In Excel</source>
        <translation>In &amp;Excel öffnen</translation>
    </message>
    <message>
        <source>Output BOM to Excel</source>
        <translation>Stückliste an Excel ausgeben</translation>
    </message>
    <message>
        <source>&amp;Set Paper</source>
        <translation>Papier ein&amp;richten</translation>
    </message>
    <message>
        <source>Set paper for printing and PDF output</source>
        <translation>Papier für Druck und PDF-Ausgabe einrichten</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Generate</source>
        <translation>&amp;Erzeugen</translation>
    </message>
    <message>
        <source>BOM</source>
        <translation>Stückliste</translation>
    </message>
    <message>
        <source>Duplicate References Detected</source>
        <translation>Doppelte Referenzen gefunden</translation>
    </message>
    <message>
        <source>The following references have duplicates:
%1
Generate output anyway?</source>
        <translation>Diese Referenzen kommen mehrfach vor:
%1
Trotzdem ausgeben?</translation>
    </message>
    <message>
        <source>&amp;Find Property Values</source>
        <translation>Eigenschaftswerte &amp;suchen</translation>
    </message>
    <message>
        <source>Find property values</source>
        <translation>Werte von Eigenschaften suchen</translation>
    </message>
    <message>
        <source>&amp;Replace Property Values</source>
        <translation>Eigenschaftswerte &amp;ersetzen</translation>
    </message>
    <message>
        <source>Replace property values</source>
        <translation>Werte von Eigenschaften ersetzen</translation>
    </message>
    <message>
        <source>Review &amp;Pending Changes…</source>
        <translation>&amp;Vorgemerkte Änderungen prüfen…</translation>
    </message>
    <message>
        <source>Show what would be written into the design</source>
        <translation>Zeigen, was in den Entwurf geschrieben würde</translation>
    </message>
    <message>
        <source>%1 changes of properties are pending. Save writes them into the design, Discard keeps them for the next time that it is opened.</source>
        <translation>%1 Änderungen von Eigenschaften sind vorgemerkt. „Speichern“ schreibt sie in den Entwurf, „Verwerfen“ hebt sie auf, bis er das nächste Mal geöffnet wird.</translation>
    </message>
    <message>
        <source>&amp;Bill of Materials</source>
        <translation>&amp;Stückliste</translation>
    </message>
    <message>
        <source>Display help for the Bill of Materials module</source>
        <translation>Hilfe zum Stücklistenmodul anzeigen</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Erweiterte Einstellungen</translation>
    </message>
    <message>
        <source>Additional BOM settings</source>
        <translation>Weitere Einstellungen der Stückliste</translation>
    </message>
    <message>
        <source>&amp;Save Template</source>
        <translation>Vorlage &amp;speichern</translation>
    </message>
    <message>
        <source>Save BOM template</source>
        <translation>Stücklistenvorlage speichern</translation>
    </message>
    <message>
        <source>&amp;New Template</source>
        <translation>&amp;Neue Vorlage</translation>
    </message>
    <message>
        <source>Create a BOM template from the current one</source>
        <translation>Eine Stücklistenvorlage aus der aktuellen anlegen</translation>
    </message>
    <message>
        <source>&amp;Delete Template</source>
        <translation>Vorlage &amp;löschen</translation>
    </message>
    <message>
        <source>Delete BOM template</source>
        <translation>Stücklistenvorlage löschen</translation>
    </message>
    <message>
        <source>&amp;Import Template</source>
        <translation>Vorlage &amp;importieren</translation>
    </message>
    <message>
        <source>Import a BOM template</source>
        <translation>Eine Stücklistenvorlage importieren</translation>
    </message>
    <message>
        <source>&amp;Export Template</source>
        <translation>Vorlage &amp;exportieren</translation>
    </message>
    <message>
        <source>Export the BOM template</source>
        <translation>Die Stücklistenvorlage exportieren</translation>
    </message>
    <message>
        <source>&amp;Reset Default Template</source>
        <translation>Standardvorlage &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>Reset the default template</source>
        <translation>Die Standardvorlage zurücksetzen</translation>
    </message>
    <message>
        <source>Import &amp;Legacy Templates</source>
        <translation>&amp;Alte Vorlagen importieren</translation>
    </message>
    <message>
        <source>Import legacy BOM templates</source>
        <translation>Alte Stücklistenvorlagen importieren</translation>
    </message>
    <message>
        <source>&amp;Templates</source>
        <translation>&amp;Vorlagen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Full CSV</source>
        <translation>CSV je Bauteil</translation>
    </message>
    <message>
        <source>Append Project Notes</source>
        <translation>Projektnotizen anhängen</translation>
    </message>
    <message>
        <source>The project notes follow the report on paper and in PDF</source>
        <translation>Die Projektnotizen folgen dem Bericht auf Papier und in PDF</translation>
    </message>
    <message>
        <source>One row for each part instead of one for each line of the report</source>
        <translation>Eine Zeile je Bauteil statt einer je Position des Berichts</translation>
    </message>
</context>
<context>
    <name>BOMOptionsTable</name>
    <message>
        <source>Move item up</source>
        <translation>Eintrag nach oben</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Auf</translation>
    </message>
    <message>
        <source>Add new item</source>
        <translation>Neuer Eintrag</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Edit item</source>
        <translation>Eintrag bearbeiten</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Delete item</source>
        <translation>Eintrag löschen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Move item down</source>
        <translation>Eintrag nach unten</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Ab</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Nach &amp;unten</translation>
    </message>
</context>
<context>
    <name>BOMPartCreator</name>
    <message>
        <source>BOM Part Creator</source>
        <translation>Bauteile nur für die Stückliste anlegen</translation>
    </message>
    <message>
        <source>Parent Part</source>
        <translation>Gehört zu</translation>
    </message>
    <message>
        <source>Category of the parent part</source>
        <translation>Kategorie des Bauteils, zu dem sie gehören</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Reference Prefix</source>
        <translation>Referenzpräfix</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Anlegen</translation>
    </message>
    <message>
        <source>Alt+C</source>
        <translation>Alt+A</translation>
    </message>
    <message>
        <source>Create the BOM parts and keep the dialog open</source>
        <translation>Die Bauteile anlegen und das Fenster offen lassen</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>The &lt;b&gt;Prefix&lt;/b&gt; must not be empty.  Also, it must not end with a number or &apos;\&apos;.</source>
        <translation>Das &lt;b&gt;Präfix&lt;/b&gt; darf nicht leer sein.  Es darf auch nicht mit einer Ziffer oder „\“ enden.</translation>
    </message>
    <message>
        <source>&lt;br&gt;The &lt;b&gt;Value&lt;/b&gt; must not be empty. Also, it must not end with a &apos;\&apos;.</source>
        <translation>&lt;br&gt;Der &lt;b&gt;Wert&lt;/b&gt; darf nicht leer sein. Er darf auch nicht mit „\“ enden.</translation>
    </message>
    <message>
        <source>&lt;br&gt;The &lt;b&gt;Parent Part&lt;/b&gt; must be one of the list.</source>
        <translation>&lt;br&gt;&lt;b&gt;Gehört zu&lt;/b&gt; muss ein Bauteil der Liste nennen.</translation>
    </message>
    <message>
        <source>Invalid Options</source>
        <translation>Ungültige Angaben</translation>
    </message>
    <message>
        <source>Could not create BOM parts</source>
        <translation>Bauteile nicht angelegt</translation>
    </message>
    <message>
        <source>Created: %1</source>
        <translation>Angelegt: %1</translation>
    </message>
</context>
<context>
    <name>BOMPartRemover</name>
    <message>
        <source>BOM Part Remover</source>
        <translation>Bauteil nur für die Stückliste entfernen</translation>
    </message>
    <message>
        <source>Parent Part</source>
        <translation>Gehört zu</translation>
    </message>
    <message>
        <source>BOM Part</source>
        <translation>Bauteil</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Alt+R</source>
        <translation>Alt+E</translation>
    </message>
    <message>
        <source>Could not remove the BOM part</source>
        <translation>Bauteil nicht entfernt</translation>
    </message>
</context>
<context>
    <name>BOMTemplateEditor</name>
    <message>
        <source>BOM HTML Editor</source>
        <translation>HTML-Editor der Stückliste</translation>
    </message>
    <message>
        <source>Header</source>
        <translation>Kopf</translation>
    </message>
    <message>
        <source>Footer</source>
        <translation>Fuß</translation>
    </message>
    <message>
        <source>%1: the text cannot be shown. It stays as it is unless another one is written.
%2</source>
        <translation>%1: Der Text kann nicht angezeigt werden. Er bleibt, wie er ist, solange kein anderer geschrieben wird.
%2</translation>
    </message>
</context>
<context>
    <name>BOMTemplateImporter</name>
    <message>
        <source>BOM Legacy Template Importer</source>
        <translation>Alte Stücklistenvorlagen importieren</translation>
    </message>
    <message>
        <source>Legacy BOM Scripts</source>
        <translation>Alte Stücklistenskripte</translation>
    </message>
    <message>
        <source>From Registry</source>
        <translation>Aus der Registrierung</translation>
    </message>
    <message>
        <source>From File</source>
        <translation>Aus einer Datei</translation>
    </message>
    <message>
        <source>Path of the BOM scripts</source>
        <translation>Pfad der Stücklistenskripte</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Alt+R</source>
        <translation>Alt+N</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Durchsuchen</translation>
    </message>
    <message>
        <source>Alt+B</source>
        <translation>Alt+D</translation>
    </message>
    <message>
        <source>BOM script</source>
        <translation>Stücklistenskript</translation>
    </message>
    <message>
        <source>No BOM scripts found</source>
        <translation>Keine Stücklistenskripte gefunden</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Alt+I</source>
        <translation>Alt+I</translation>
    </message>
    <message>
        <source>This system has no registry: export the scripts into a file.</source>
        <translation>Dieses System hat keine Registrierung: Exportieren Sie die Skripte in eine Datei.</translation>
    </message>
    <message>
        <source>Legacy BOM Script Export</source>
        <translation>Export alter Stücklistenskripte</translation>
    </message>
    <message>
        <source>BOM Script File (*.BSF);;Text File (*.txt)</source>
        <translation>Stücklistenskripte (*.BSF);;Textdatei (*.txt)</translation>
    </message>
    <message>
        <source>Import Failed</source>
        <translation>Import fehlgeschlagen</translation>
    </message>
    <message>
        <source>A template named &apos;%1&apos; already exists!</source>
        <translation>Eine Vorlage namens „%1“ gibt es schon!</translation>
    </message>
    <message>
        <source>Import Succeeded</source>
        <translation>Import gelungen</translation>
    </message>
    <message>
        <source>The legacy BOM script imported successfully as &apos;%1&apos;</source>
        <translation>Das alte Stücklistenskript wurde als „%1“ importiert</translation>
    </message>
    <message>
        <source>Undefined Physical Properties</source>
        <translation>Nicht definierte Bauteileigenschaften</translation>
    </message>
    <message>
        <source>Define the %1 undefined physical properties?</source>
        <translation>Sollen die %1 nicht definierten Bauteileigenschaften definiert werden?</translation>
    </message>
    <message>
        <source>Scripts for bills of materials of earlier versions can become templates. Close this window if you have none; it opens again from the menu Templates.</source>
        <translation>Aus Stücklistenskripten früherer Versionen können Vorlagen werden. Schließen Sie dieses Fenster, wenn Sie keine haben; es öffnet sich wieder aus dem Menü Vorlagen.</translation>
    </message>
</context>
<context>
    <name>BOMView</name>
    <message>
        <source>Output Failed</source>
        <translation>Ausgabe fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>CellBlocks</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Aus&amp;schneiden</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>Nothing was cleared: these cells cannot be edited, or their parts differ.</source>
        <translation>Nichts wurde geleert: Diese Zellen können nicht bearbeitet werden, oder ihre Bauteile unterscheiden sich.</translation>
    </message>
    <message>
        <source>Nothing was pasted: the block of %1 rows and %2 columns reaches beyond the table.</source>
        <translation>Nichts wurde eingefügt: Der Block aus %1 Zeilen und %2 Spalten reicht über die Tabelle hinaus.</translation>
    </message>
    <message>
        <source>it cannot be edited</source>
        <translation>sie kann nicht bearbeitet werden</translation>
    </message>
    <message>
        <source>Nothing was changed. %1: %2.</source>
        <translation>Nichts wurde geändert. %1: %2.</translation>
    </message>
    <message>
        <source>its parts differ, and it is not the only cell selected</source>
        <translation>ihre Bauteile unterscheiden sich, und sie ist nicht die einzige ausgewählte Zelle</translation>
    </message>
</context>
<context>
    <name>CellMenu</name>
    <message>
        <source>Set &amp;Back</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Navigate</source>
        <translation>&amp;Navigieren</translation>
    </message>
    <message>
        <source>Copy &amp;Reference</source>
        <translation>&amp;Referenz kopieren</translation>
    </message>
</context>
<context>
    <name>CellTips</name>
    <message numerus="yes">
        <source>... and %n more</source>
        <translation>
            <numerusform>... und %n weiteres</numerusform>
            <numerusform>... und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(leer)</translation>
    </message>
    <message>
        <source>%1: in conflict, the text changed in the design meanwhile</source>
        <translation>%1: im Konflikt, der Text im Entwurf hat sich inzwischen geändert</translation>
    </message>
    <message>
        <source>Now: </source>
        <translation>Jetzt: </translation>
    </message>
    <message>
        <source>Before: </source>
        <translation>Vorher: </translation>
    </message>
    <message>
        <source>Your edit: </source>
        <translation>Ihre Änderung: </translation>
    </message>
    <message>
        <source>: not written yet</source>
        <translation>: noch nicht geschrieben</translation>
    </message>
    <message>
        <source>In the design: </source>
        <translation>Im Entwurf: </translation>
    </message>
    <message>
        <source>Required, and empty</source>
        <translation>Nötig und leer</translation>
    </message>
    <message>
        <source>Cannot be edited here</source>
        <translation>Kann hier nicht bearbeitet werden</translation>
    </message>
    <message>
        <source>BOM Part of: %1</source>
        <translation>Stücklistenbauteil zu: %1</translation>
    </message>
    <message>
        <source>Navigate to: %1</source>
        <translation>Navigieren zu: %1</translation>
    </message>
</context>
<context>
    <name>ColorField</name>
    <message>
        <source>not set</source>
        <translation>offen</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Durchsichtig</translation>
    </message>
    <message>
        <source>Leave open</source>
        <translation>Offen lassen</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
</context>
<context>
    <name>ColorMenu</name>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Dark Grey</source>
        <translation>Dunkelgrau</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Light Green</source>
        <translation>Hellgrün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Light Blue</source>
        <translation>Hellblau</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Other Colour...</source>
        <translation>Andere Farbe...</translation>
    </message>
</context>
<context>
    <name>ColumnMenu</name>
    <message>
        <source>Required</source>
        <translation>Nötig</translation>
    </message>
    <message>
        <source>Show All Columns</source>
        <translation>Alle Spalten zeigen</translation>
    </message>
</context>
<context>
    <name>DesignStatus</name>
    <message>
        <source>%1 listed</source>
        <translation>%1 aufgeführt</translation>
    </message>
    <message>
        <source> (%1 BOM-only)</source>
        <translation> (%1 nur in der Stückliste)</translation>
    </message>
    <message>
        <source>%1 repeated</source>
        <translation>%1 mehrfach</translation>
    </message>
    <message>
        <source>%1 fitted</source>
        <translation>%1 bestückt</translation>
    </message>
    <message>
        <source>%1 not fitted</source>
        <translation>%1 nicht bestückt</translation>
    </message>
    <message>
        <source>%1 excluded</source>
        <translation>%1 ausgeschlossen</translation>
    </message>
    <message>
        <source>Of %1 components of the design and %2 BOM-only parts</source>
        <translation>Von %1 Bauteilen des Entwurfs und %2 Bauteilen nur in der Stückliste</translation>
    </message>
    <message>
        <source>Of %1 components of the design</source>
        <translation>Von %1 Bauteilen des Entwurfs</translation>
    </message>
    <message>
        <source>: a text variable ${...} is not resolved</source>
        <translation>: Eine Textvariable ${...} ist nicht aufgelöst</translation>
    </message>
</context>
<context>
    <name>DockWidget</name>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Hide the options</source>
        <translation>Optionen ausblenden</translation>
    </message>
    <message>
        <source>Show the options</source>
        <translation>Optionen einblenden</translation>
    </message>
</context>
<context>
    <name>EarlierEdits</name>
    <message>
        <source>%1, %2: %3</source>
        <translation>%1, %2: %3</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>When the program ended, 1 edit of this design had not been written yet.</source>
        <translation>Als das Programm endete, war 1 Änderung an diesem Entwurf noch nicht geschrieben.</translation>
    </message>
    <message>
        <source>When the program ended, %1 edits of this design had not been written yet.</source>
        <translation>Als das Programm endete, waren %1 Änderungen an diesem Entwurf noch nicht geschrieben.</translation>
    </message>
    <message>
        <source>The design is as it was where they apply.</source>
        <translation>Der Entwurf ist dort, wo sie wirken, wie er war.</translation>
    </message>
    <message>
        <source>%1 still fit; %2 would be in conflict:</source>
        <translation>%1 passen noch; %2 stünden im Konflikt:</translation>
    </message>
    <message>
        <source>Make them pending again? Nothing is written into the design before you apply them. With No they are kept, and offered again at the next start.</source>
        <translation>Sollen sie wieder vorgemerkt werden? In den Entwurf wird nichts geschrieben, bevor Sie sie anwenden. Mit Nein bleiben sie aufgehoben und werden beim nächsten Start wieder angeboten.</translation>
    </message>
    <message>
        <source>Unwritten Edits</source>
        <translation>Nicht geschriebene Änderungen</translation>
    </message>
</context>
<context>
    <name>EmbeddedImage</name>
    <message>
        <source>The file cannot be read: </source>
        <translation>Die Datei kann nicht gelesen werden: </translation>
    </message>
    <message>
        <source>The image is larger than 2 MiB. Make it smaller first.</source>
        <translation>Das Bild ist größer als 2 MiB. Verkleinern Sie es zuerst.</translation>
    </message>
    <message>
        <source>The file holds no image that can be shown.</source>
        <translation>Die Datei enthält kein Bild, das angezeigt werden kann.</translation>
    </message>
</context>
<context>
    <name>EmptyPage</name>
    <message>
        <source>No design is open</source>
        <translation>Kein Entwurf ist geöffnet</translation>
    </message>
    <message>
        <source>&amp;Open a Design…</source>
        <translation>Entwurf ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Drop a KiCad schematic (.kicad_sch), a KiCad project (.kicad_pro) or a part list (.csv) on this window, or choose one.</source>
        <translation>Ziehen Sie einen KiCad-Schaltplan (.kicad_sch), ein KiCad-Projekt (.kicad_pro) oder eine Bauteilliste (.csv) auf dieses Fenster, oder wählen Sie eine Datei.</translation>
    </message>
</context>
<context>
    <name>FieldWidthSpinBox</name>
    <message>
        <source>No Limit</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source> Characters</source>
        <translation> Zeichen</translation>
    </message>
</context>
<context>
    <name>FrameWindow</name>
    <message>
        <source>Bill of Materials Viewer</source>
        <translation>Stücklistenanzeige</translation>
    </message>
</context>
<context>
    <name>HtmlSize</name>
    <message>
        <source>An HTML element has too many attributes.</source>
        <translation>Ein HTML-Element hat zu viele Attribute.</translation>
    </message>
</context>
<context>
    <name>LengthSpin</name>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>offen</translation>
    </message>
    <message>
        <source>Written as %1</source>
        <translation>Geschrieben als %1</translation>
    </message>
</context>
<context>
    <name>LinkDialog</name>
    <message>
        <source>Insert Link</source>
        <translation>Link einfügen</translation>
    </message>
    <message>
        <source>Change Link</source>
        <translation>Link ändern</translation>
    </message>
    <message>
        <source>&amp;Remove Link</source>
        <translation>Link &amp;entfernen</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>&amp;Text:</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>&amp;Adresse:</translation>
    </message>
</context>
<context>
    <name>LinkHandler</name>
    <message>
        <source>This program cannot show where parts are drawn</source>
        <translation>Dieses Programm kann nicht zeigen, wo Bauteile gezeichnet sind</translation>
    </message>
</context>
<context>
    <name>ModuleTemplates</name>
    <message>
        <source>Incomplete BOM Template</source>
        <translation>Unvollständige Stücklistenvorlage</translation>
    </message>
</context>
<context>
    <name>NewTemplateDialog</name>
    <message>
        <source>New BOM Template</source>
        <translation>Neue Stücklistenvorlage</translation>
    </message>
    <message>
        <source>Template Name</source>
        <translation>Name der Vorlage</translation>
    </message>
</context>
<context>
    <name>NotesEditor</name>
    <message>
        <source>BOM Notes Editor</source>
        <translation>Notizen zur Stückliste bearbeiten</translation>
    </message>
    <message>
        <source>BOM notes</source>
        <translation>Notizen zur Stückliste</translation>
    </message>
    <message>
        <source>BOM Notes</source>
        <translation>Notizen zur Stückliste</translation>
    </message>
    <message>
        <source>The notes were changed by another program meanwhile. Save yours in their place? With Discard the other ones are kept and yours are lost.</source>
        <translation>Die Notizen wurden inzwischen von einem anderen Programm geändert. Ihre stattdessen speichern? Mit Verwerfen bleiben die anderen, und Ihre gehen verloren.</translation>
    </message>
</context>
<context>
    <name>OptionsPanel</name>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source>Suppress empty categories</source>
        <translation>Leere Kategorien weglassen</translation>
    </message>
    <message>
        <source>References:</source>
        <translation>Referenzen:</translation>
    </message>
    <message>
        <source>Shortened (R1-R7)</source>
        <translation>Zusammengefasst (R1-R7)</translation>
    </message>
    <message>
        <source>Individual (R1,R2...)</source>
        <translation>Einzeln (R1,R2...)</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Felder</translation>
    </message>
    <message>
        <source>BOM Notes</source>
        <translation>Notizen zur Stückliste</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Prefixes</source>
        <translation>Präfixe</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>BOM Template</source>
        <translation>Stücklistenvorlage</translation>
    </message>
    <message>
        <source>Edit Header/Footer</source>
        <translation>Kopf-/Fußzeile bearbeiten</translation>
    </message>
    <message>
        <source>Edit Style</source>
        <translation>Stil bearbeiten</translation>
    </message>
    <message>
        <source>The template has changes that are not saved</source>
        <translation>Die Vorlage hat Änderungen, die nicht gespeichert sind</translation>
    </message>
</context>
<context>
    <name>PartMenu</name>
    <message>
        <source>Select the part to navigate to</source>
        <translation>Wählen Sie das Bauteil, zu dem navigiert werden soll</translation>
    </message>
    <message>
        <source>Open Link</source>
        <translation>Link öffnen</translation>
    </message>
    <message>
        <source>%1 is a program. Opening it may run it. Open it all the same?</source>
        <translation>%1 ist ein Programm. Das Öffnen kann es ausführen. Trotzdem öffnen?</translation>
    </message>
    <message>
        <source>Could not open %1</source>
        <translation>%1 konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Further links: filter the rows</source>
        <translation>Weitere Links: Zeilen filtern</translation>
    </message>
</context>
<context>
    <name>PendingChanges</name>
    <message>
        <source>Taken away in the design meanwhile</source>
        <translation>Im Entwurf inzwischen entfernt</translation>
    </message>
    <message>
        <source>Changed in the design meanwhile, now &quot;%1&quot;</source>
        <translation>Im Entwurf inzwischen geändert, jetzt „%1“</translation>
    </message>
    <message>
        <source>The part is left out of the bill at present</source>
        <translation>Das Bauteil steht zurzeit nicht in der Stückliste</translation>
    </message>
    <message>
        <source>The design has no such part any more</source>
        <translation>Der Entwurf hat dieses Bauteil nicht mehr</translation>
    </message>
    <message>
        <source>Fits</source>
        <translation>Passt</translation>
    </message>
    <message>
        <source>The design has this value already</source>
        <translation>Der Entwurf hat diesen Wert schon</translation>
    </message>
    <message>
        <source>Refused: %1</source>
        <translation>Abgelehnt: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Nothing is pending.</source>
        <translation>Nichts ist vorgemerkt.</translation>
    </message>
    <message>
        <source>1 edit</source>
        <translation>1 Änderung</translation>
    </message>
    <message>
        <source>%1 edits</source>
        <translation>%1 Änderungen</translation>
    </message>
    <message>
        <source>of 1 part</source>
        <translation>an 1 Bauteil</translation>
    </message>
    <message>
        <source>of %1 parts</source>
        <translation>an %1 Bauteilen</translation>
    </message>
    <message>
        <source>in 1 file</source>
        <translation>in 1 Datei</translation>
    </message>
    <message>
        <source>in %1 files</source>
        <translation>in %1 Dateien</translation>
    </message>
    <message>
        <source>; %1 in conflict</source>
        <translation>; %1 im Konflikt</translation>
    </message>
    <message>
        <source>; %1 refused</source>
        <translation>; %1 abgelehnt</translation>
    </message>
</context>
<context>
    <name>PendingReview</name>
    <message>
        <source>Review Pending Changes</source>
        <translation>Vorgemerkte Änderungen prüfen</translation>
    </message>
    <message>
        <source>Pending changes</source>
        <translation>Vorgemerkte Änderungen</translation>
    </message>
    <message>
        <source>&amp;Apply Changes</source>
        <translation>Änderungen &amp;anwenden</translation>
    </message>
    <message>
        <source>&amp;Drop</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>End the selected edits without writing them</source>
        <translation>Die ausgewählten Änderungen verwerfen, ohne sie zu schreiben</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Nothing can be written while edits are refused: drop or correct those.</source>
        <translation>Solange Änderungen abgelehnt sind, kann nichts geschrieben werden: Verwerfen oder berichtigen Sie diese.</translation>
    </message>
</context>
<context>
    <name>PendingUndo</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 values</source>
        <translation>%1 Werte</translation>
    </message>
    <message>
        <source>Clear pending changes</source>
        <translation>Vorgemerkte Änderungen verwerfen</translation>
    </message>
    <message>
        <source>Drop %1</source>
        <translation>%1 verwerfen</translation>
    </message>
    <message>
        <source>Decide on %1</source>
        <translation>Über %1 entscheiden</translation>
    </message>
    <message>
        <source>Edit %1</source>
        <translation>%1 ändern</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>R&amp;edo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>R&amp;edo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
</context>
<context>
    <name>PhysicalPropertyCreator</name>
    <message>
        <source>New Physical Property</source>
        <translation>Neue Bauteileigenschaft</translation>
    </message>
    <message>
        <source>Property Name</source>
        <translation>Name der Eigenschaft</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>Ü&amp;berspringen</translation>
    </message>
    <message>
        <source>Go on to the next name without defining this one</source>
        <translation>Mit dem nächsten Namen weitermachen, ohne diesen zu definieren</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>Gleitkommazahl</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>Ganzzahl</translation>
    </message>
    <message>
        <source>Boolean (Yes/No)</source>
        <translation>Wahrheitswert (Yes/No)</translation>
    </message>
    <message>
        <source>Boolean (True/False)</source>
        <translation>Wahrheitswert (True/False)</translation>
    </message>
    <message>
        <source>Failed to create property</source>
        <translation>Eigenschaft konnte nicht angelegt werden</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Unbekannter Fehler</translation>
    </message>
    <message>
        <source>You must enter a valid property name</source>
        <translation>Geben Sie einen gültigen Namen für die Eigenschaft ein</translation>
    </message>
    <message>
        <source>Creation failed.  Please ensure &apos;PROPDEFS.INI&apos; is writeable.</source>
        <translation>Das Anlegen ist fehlgeschlagen.  Stellen Sie sicher, dass „PROPDEFS.INI“ geschrieben werden darf.</translation>
    </message>
    <message>
        <source>Physical Property already defined</source>
        <translation>Die Bauteileigenschaft ist schon definiert</translation>
    </message>
</context>
<context>
    <name>PrintPreview</name>
    <message>
        <source>Print Preview</source>
        <translation>Druckvorschau</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Erste</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Vorige</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nächste</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Letzte</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Whole Page</source>
        <translation>Ganze Seite</translation>
    </message>
    <message>
        <source>Page Width</source>
        <translation>Seitenbreite</translation>
    </message>
    <message>
        <source> Page %1 of %2 </source>
        <translation> Seite %1 von %2 </translation>
    </message>
</context>
<context>
    <name>ProgramMenus</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Open a schematic, a project or a part list</source>
        <translation>Einen Schaltplan, ein Projekt oder eine Bauteilliste öffnen</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Undo Last Write…</source>
        <translation>Letztes &amp;Schreiben zurücknehmen…</translation>
    </message>
    <message>
        <source>Give the files of the design the content that they had before they were written last</source>
        <translation>Den Dateien des Entwurfs den Inhalt geben, den sie vor dem letzten Schreiben hatten</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Das Programm beenden</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Parts That Are Not Fitted</source>
        <translation>&amp;Nicht bestückte Bauteile</translation>
    </message>
    <message>
        <source>&amp;Leave Out</source>
        <translation>&amp;Weglassen</translation>
    </message>
    <message>
        <source>Parts that are not fitted are not in the report</source>
        <translation>Nicht bestückte Bauteile stehen nicht im Bericht</translation>
    </message>
    <message>
        <source>&amp;Include</source>
        <translation>&amp;Aufführen</translation>
    </message>
    <message>
        <source>Parts that are not fitted are listed, marked and not counted</source>
        <translation>Nicht bestückte Bauteile werden aufgeführt, gekennzeichnet und nicht gezählt</translation>
    </message>
    <message>
        <source>&amp;Only These</source>
        <translation>&amp;Nur diese</translation>
    </message>
    <message>
        <source>Only parts that are not fitted are in the report</source>
        <translation>Nur nicht bestückte Bauteile stehen im Bericht</translation>
    </message>
    <message>
        <source>&amp;Variant</source>
        <translation>&amp;Variante</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Über</translation>
    </message>
    <message>
        <source>What this program is</source>
        <translation>Was dieses Programm ist</translation>
    </message>
    <message>
        <source>&amp;Clear This List</source>
        <translation>Diese Liste &amp;leeren</translation>
    </message>
    <message>
        <source>&amp;As Drawn</source>
        <translation>Wie &amp;gezeichnet</translation>
    </message>
</context>
<context>
    <name>PropertyCell</name>
    <message>
        <source>(different)</source>
        <translation>(verschieden)</translation>
    </message>
</context>
<context>
    <name>PropertyRecorder</name>
    <message>
        <source>it cannot be edited</source>
        <translation>sie kann nicht bearbeitet werden</translation>
    </message>
    <message>
        <source>the property does not take this text</source>
        <translation>die Eigenschaft nimmt diesen Text nicht an</translation>
    </message>
    <message>
        <source>the value of a part on the schematic cannot be empty</source>
        <translation>der Wert eines Bauteils im Schaltplan darf nicht leer sein</translation>
    </message>
</context>
<context>
    <name>PropsFindAndReplace</name>
    <message>
        <source>Find And Replace</source>
        <translation>Suchen und Ersetzen</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Current Column Only</source>
        <translation>Nur aktuelle Spalte</translation>
    </message>
    <message>
        <source>Case Sensitive</source>
        <translation>Groß- und Kleinschreibung</translation>
    </message>
    <message>
        <source>Rows and columns that the table hides are not searched.</source>
        <translation>Zeilen und Spalten, die die Tabelle verbirgt, werden nicht durchsucht.</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Weitersuchen</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>Alle ersetzen</translation>
    </message>
    <message>
        <source>Reached end of search.</source>
        <translation>Das Ende der Suche ist erreicht.</translation>
    </message>
    <message>
        <source>Some values were not replaced as the replacement string was not compatible.</source>
        <translation>Einige Werte wurden nicht ersetzt, weil der neue Text nicht zu ihnen passt.</translation>
    </message>
</context>
<context>
    <name>ReviewModel</name>
    <message>
        <source>Write it although the design changed</source>
        <translation>Trotz der Änderung im Entwurf schreiben</translation>
    </message>
    <message>
        <source>(taken away)</source>
        <translation>(entfernt)</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referenz</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Old</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Written In</source>
        <translation>Geschrieben in</translation>
    </message>
    <message>
        <source>Also Changes</source>
        <translation>Ändert auch</translation>
    </message>
    <message>
        <source>Write Anyway</source>
        <translation>Trotzdem schreiben</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
</context>
<context>
    <name>Rewriter</name>
    <message>
        <source>The HTML text has too many elements.</source>
        <translation>Der HTML-Text hat zu viele Elemente.</translation>
    </message>
    <message>
        <source>The HTML elements are nested too deeply.</source>
        <translation>Die HTML-Elemente sind zu tief geschachtelt.</translation>
    </message>
    <message>
        <source>The HTML text has a paragraph that is too long.</source>
        <translation>Der HTML-Text hat einen zu langen Absatz.</translation>
    </message>
    <message>
        <source>The HTML text is too long.</source>
        <translation>Der HTML-Text ist zu lang.</translation>
    </message>
    <message>
        <source>The HTML text has too many images.</source>
        <translation>Der HTML-Text hat zu viele Bilder.</translation>
    </message>
</context>
<context>
    <name>StatusFields</name>
    <message>
        <source>Not up to date</source>
        <translation>Nicht aktuell</translation>
    </message>
    <message>
        <source>The Design Has Changed and Cannot Be Read</source>
        <translation>Der Entwurf hat sich geändert und kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Warnings About the Design</source>
        <translation>Warnungen zum Entwurf</translation>
    </message>
    <message>
        <source>1 warning</source>
        <translation>1 Warnung</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 Warnungen</translation>
    </message>
</context>
<context>
    <name>StylePanel</name>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>&amp;Family:</source>
        <translation>&amp;Familie:</translation>
    </message>
    <message>
        <source>Font family</source>
        <translation>Schriftfamilie</translation>
    </message>
    <message>
        <source>Si&amp;ze:</source>
        <translation>&amp;Größe:</translation>
    </message>
    <message>
        <source>Font size</source>
        <translation>Schriftgröße</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Checked: yes, empty: no, filled: as inherited</source>
        <translation>Häkchen: ja, leer: nein, gefüllt: wie geerbt</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>Fe&amp;tt</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Kursiv</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Unterstrichen</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>&amp;Unterstrichen</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>Te&amp;xt:</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>Textfarbe</translation>
    </message>
    <message>
        <source>Bac&amp;kground:</source>
        <translation>&amp;Hintergrund:</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>&amp;Horizontal:</source>
        <translation>H&amp;orizontal:</translation>
    </message>
    <message>
        <source>Horizontal alignment</source>
        <translation>Horizontale Ausrichtung</translation>
    </message>
    <message>
        <source>Inherited</source>
        <translation>Geerbt</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Zentriert</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Justified</source>
        <translation>Blocksatz</translation>
    </message>
    <message>
        <source>&amp;Vertical:</source>
        <translation>&amp;Vertikal:</translation>
    </message>
    <message>
        <source>Vertical alignment</source>
        <translation>Vertikale Ausrichtung</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Offen</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Baseline</source>
        <translation>Grundlinie</translation>
    </message>
    <message>
        <source>Superscript</source>
        <translation>Hochgestellt</translation>
    </message>
    <message>
        <source>Subscript</source>
        <translation>Tiefgestellt</translation>
    </message>
    <message>
        <source>Margins</source>
        <translation>Außenabstände</translation>
    </message>
    <message>
        <source>To&amp;p:</source>
        <translation>O&amp;ben:</translation>
    </message>
    <message>
        <source>Top margin</source>
        <translation>Oberer Außenabstand</translation>
    </message>
    <message>
        <source>Ri&amp;ght:</source>
        <translation>&amp;Rechts:</translation>
    </message>
    <message>
        <source>Right margin</source>
        <translation>Rechter Außenabstand</translation>
    </message>
    <message>
        <source>Botto&amp;m:</source>
        <translation>U&amp;nten:</translation>
    </message>
    <message>
        <source>Bottom margin</source>
        <translation>Unterer Außenabstand</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>&amp;Links:</translation>
    </message>
    <message>
        <source>Left margin</source>
        <translation>Linker Außenabstand</translation>
    </message>
    <message>
        <source>Padding</source>
        <translation>Innenabstände</translation>
    </message>
    <message>
        <source>Top padding</source>
        <translation>Oberer Innenabstand</translation>
    </message>
    <message>
        <source>Right padding</source>
        <translation>Rechter Innenabstand</translation>
    </message>
    <message>
        <source>Bottom padding</source>
        <translation>Unterer Innenabstand</translation>
    </message>
    <message>
        <source>Left padding</source>
        <translation>Linker Innenabstand</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Sid&amp;e:</source>
        <translation>S&amp;eite:</translation>
    </message>
    <message>
        <source>Side of the border</source>
        <translation>Seite des Rahmens</translation>
    </message>
    <message>
        <source>All sides</source>
        <translation>Alle Seiten</translation>
    </message>
    <message>
        <source>Li&amp;ne:</source>
        <translation>L&amp;inie:</translation>
    </message>
    <message>
        <source>Border style</source>
        <translation>Art des Rahmens</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Durchgezogen</translation>
    </message>
    <message>
        <source>Dashed</source>
        <translation>Gestrichelt</translation>
    </message>
    <message>
        <source>Dotted</source>
        <translation>Gepunktet</translation>
    </message>
    <message>
        <source>Double</source>
        <translation>Doppelt</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Dicke:</translation>
    </message>
    <message>
        <source>Border width</source>
        <translation>Dicke des Rahmens</translation>
    </message>
    <message>
        <source>Colo&amp;r:</source>
        <translation>F&amp;arbe:</translation>
    </message>
    <message>
        <source>Border color</source>
        <translation>Farbe des Rahmens</translation>
    </message>
    <message>
        <source>inherited</source>
        <translation>geerbt</translation>
    </message>
    <message>
        <source>various</source>
        <translation>verschieden</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>offen</translation>
    </message>
    <message>
        <source>Various</source>
        <translation>Verschieden</translation>
    </message>
</context>
<context>
    <name>TemplateStore</name>
    <message>
        <source>Could not create template</source>
        <translation>Vorlage konnte nicht angelegt werden</translation>
    </message>
</context>
<context>
    <name>TextEdit</name>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>Print Failed</source>
        <translation>Drucken fehlgeschlagen</translation>
    </message>
    <message>
        <source>The printer cannot be used.</source>
        <translation>Der Drucker kann nicht benutzt werden.</translation>
    </message>
    <message>
        <source>PDF file to save</source>
        <translation>PDF-Datei speichern</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF-Dokumente (*.pdf)</translation>
    </message>
    <message>
        <source>Output Failed</source>
        <translation>Ausgabe fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>TextEditHRuler</name>
    <message>
        <source>Ruler</source>
        <translation>Lineal</translation>
    </message>
    <message>
        <source>Drag the marks to move the paragraph&apos;s margins and the paper&apos;s.</source>
        <translation>Ziehen Sie die Marken, um die Ränder des Absatzes und des Papiers zu verschieben.</translation>
    </message>
</context>
<context>
    <name>TextEditToolBars</name>
    <message>
        <source>Insert Image</source>
        <translation>Bild einfügen</translation>
    </message>
    <message>
        <source>Images (*.png *.jpg *.jpeg *.gif *.svg *.bmp)</source>
        <translation>Bilder (*.png *.jpg *.jpeg *.gif *.svg *.bmp)</translation>
    </message>
</context>
<context>
    <name>TextStyleEditor</name>
    <message>
        <source>Style Editor</source>
        <translation>Formateditor</translation>
    </message>
    <message>
        <source>St&amp;yles:</source>
        <translation>For&amp;matvorlagen:</translation>
    </message>
    <message>
        <source>Find a style</source>
        <translation>Eine Formatvorlage suchen</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Styles</source>
        <translation>Formatvorlagen</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>&amp;Style</source>
        <translation>&amp;Stil</translation>
    </message>
    <message>
        <source>&amp;CSS</source>
        <translation>&amp;CSS</translation>
    </message>
    <message>
        <source>Text of the style sheet</source>
        <translation>Text des Stylesheets</translation>
    </message>
    <message>
        <source>this is not a property with a value</source>
        <translation>dies ist keine Eigenschaft mit einem Wert</translation>
    </message>
    <message>
        <source>a style without its braces begins here</source>
        <translation>hier beginnt ein Format ohne seine Klammern</translation>
    </message>
    <message>
        <source>this brace closes nothing</source>
        <translation>diese Klammer schließt nichts</translation>
    </message>
    <message>
        <source>this string is not closed</source>
        <translation>diese Zeichenkette ist nicht geschlossen</translation>
    </message>
    <message>
        <source>this comment is not closed</source>
        <translation>dieser Kommentar ist nicht geschlossen</translation>
    </message>
    <message>
        <source>this brace is not closed</source>
        <translation>diese Klammer ist nicht geschlossen</translation>
    </message>
    <message>
        <source>Line %1 of the style sheet: %2.</source>
        <translation>Zeile %1 des Stylesheets: %2.</translation>
    </message>
    <message>
        <source>Back to the default styles</source>
        <translation>Zurück zu den Standardformaten</translation>
    </message>
    <message>
        <source>There are no styles to choose from. The CSS tab shows the whole style sheet.</source>
        <translation>Es gibt keine Formate zur Auswahl. Der Reiter CSS zeigt das ganze Stylesheet.</translation>
    </message>
</context>
<context>
    <name>TextTools</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Paragraph</source>
        <translation>Absatz</translation>
    </message>
    <message>
        <source>Insert or change link...</source>
        <translation>Link einfügen oder ändern...</translation>
    </message>
    <message>
        <source>Insert image...</source>
        <translation>Bild einfügen...</translation>
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
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Font size in points</source>
        <translation>Schriftgröße in Punkt</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Unterstrichen</translation>
    </message>
    <message>
        <source>Text colour</source>
        <translation>Textfarbe</translation>
    </message>
    <message>
        <source>No Background</source>
        <translation>Kein Hintergrund</translation>
    </message>
    <message>
        <source>Background colour</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <source>Align left</source>
        <translation>Linksbündig</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Zentriert</translation>
    </message>
    <message>
        <source>Align right</source>
        <translation>Rechtsbündig</translation>
    </message>
    <message>
        <source>Justify</source>
        <translation>Blocksatz</translation>
    </message>
    <message>
        <source>Bullet list</source>
        <translation>Aufzählung</translation>
    </message>
    <message>
        <source>Numbered list</source>
        <translation>Nummerierte Liste</translation>
    </message>
    <message>
        <source>Decrease indent</source>
        <translation>Einzug verkleinern</translation>
    </message>
    <message>
        <source>Increase indent</source>
        <translation>Einzug vergrößern</translation>
    </message>
</context>
<context>
    <name>TidyLibWrapper</name>
    <message>
        <source>The HTML text is too long.</source>
        <translation>Der HTML-Text ist zu lang.</translation>
    </message>
    <message>
        <source>The HTML elements are nested too deeply.</source>
        <translation>Die HTML-Elemente sind zu tief geschachtelt.</translation>
    </message>
    <message>
        <source>The HTML text has too many elements.</source>
        <translation>Der HTML-Text hat zu viele Elemente.</translation>
    </message>
    <message>
        <source>The HTML text cannot be read.</source>
        <translation>Der HTML-Text kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>WindowPages</name>
    <message>
        <source>BOM Report</source>
        <translation>Stücklistenbericht</translation>
    </message>
    <message>
        <source>Property Editor</source>
        <translation>Eigenschaften bearbeiten</translation>
    </message>
</context>
<context>
    <name>Workbench</name>
    <message>
        <source>The Program Is Not Complete</source>
        <translation>Das Programm ist nicht vollständig</translation>
    </message>
    <message>
        <source>Project Notes</source>
        <translation>Projektnotizen</translation>
    </message>
    <message>
        <source>the module &quot;%1&quot; cannot be started</source>
        <translation>das Modul „%1“ kann nicht gestartet werden</translation>
    </message>
    <message>
        <source>Open Design</source>
        <translation>Entwurf öffnen</translation>
    </message>
    <message>
        <source>Designs (*.kicad_sch *.kicad_pro *.csv);;All files (*)</source>
        <translation>Entwürfe (*.kicad_sch *.kicad_pro *.csv);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Open Failed</source>
        <translation>Öffnen fehlgeschlagen</translation>
    </message>
    <message>
        <source>The module &quot;%1&quot; has no window to show the design in.</source>
        <translation>Das Modul „%1“ hat kein Fenster, um den Entwurf zu zeigen.</translation>
    </message>
    <message>
        <source>Take back what was written last into the design &quot;%1&quot;?</source>
        <translation>Zurücknehmen, was zuletzt in den Entwurf „%1“ geschrieben wurde?</translation>
    </message>
    <message>
        <source>Undo Last Write</source>
        <translation>Letztes Schreiben zurücknehmen</translation>
    </message>
    <message>
        <source>Restored: </source>
        <translation>Wiederhergestellt: </translation>
    </message>
    <message>
        <source>About Bill of Materials Viewer</source>
        <translation>Über die Stücklistenanzeige</translation>
    </message>
    <message>
        <source>Bill of Materials Viewer %1
Bills of materials from KiCad schematics and part lists.</source>
        <translation>Stücklistenanzeige %1
Stücklisten aus KiCad-Schaltplänen und Bauteillisten.</translation>
    </message>
    <message>
        <source>The pending changes were written just now, and would be taken back first.</source>
        <translation>Die vorgemerkten Änderungen wurden gerade geschrieben und würden zuerst zurückgenommen.</translation>
    </message>
</context>
</TS>

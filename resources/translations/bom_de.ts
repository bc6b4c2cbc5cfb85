<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
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
        <source>BOM Report</source>
        <translation>Stücklistenbericht</translation>
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
</context>
<context>
    <name>BOMView</name>
    <message>
        <source>Output Failed</source>
        <translation>Ausgabe fehlgeschlagen</translation>
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
    <name>TemplateStore</name>
    <message>
        <source>Could not create template</source>
        <translation>Vorlage konnte nicht angelegt werden</translation>
    </message>
</context>
</TS>

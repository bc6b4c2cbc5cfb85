<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>APPLNDIALOG</name>
    <message>
        <source>Close without what you have typed?</source>
        <translation>Schließen und verwerfen, was Sie eingegeben haben?</translation>
    </message>
</context>
<context>
    <name>APPLNWIDGET</name>
    <message>
        <source>The help is not installed, or there is no program that shows it.</source>
        <translation>Die Hilfe ist nicht installiert, oder es gibt kein Programm, das sie anzeigt.</translation>
    </message>
</context>
<context>
    <name>AccountTexts</name>
    <message>
        <source>makes no parts; it needs a count, a prefix and a value</source>
        <translation>ergibt keine Bauteile; gebraucht werden Anzahl, Präfix und Wert</translation>
    </message>
    <message>
        <source>makes no parts; its count is no number</source>
        <translation>ergibt keine Bauteile; die Anzahl ist keine Zahl</translation>
    </message>
    <message>
        <source>makes no parts; its count is above %1</source>
        <translation>ergibt keine Bauteile; die Anzahl ist größer als %1</translation>
    </message>
    <message>
        <source>has a field that is not NAME=VALUE and is passed over</source>
        <translation>hat ein Feld, das nicht die Form NAME=WERT hat und übergangen wird</translation>
    </message>
    <message>
        <source>makes no parts; a design has at most %1 BOM-only parts</source>
        <translation>ergibt keine Bauteile; ein Entwurf hat höchstens %1 Stücklistenbauteile</translation>
    </message>
    <message>
        <source>makes no parts; no numbers are left for their references</source>
        <translation>ergibt keine Bauteile; für ihre Referenzen sind keine Nummern mehr frei</translation>
    </message>
    <message>
        <source>&quot;%1&quot; on %2</source>
        <translation>„%1“ bei %2</translation>
    </message>
    <message>
        <source>column %1: %2 part has a text that is no number and counts 0: %3</source>
        <translation>Spalte %1: %2 Bauteil hat einen Text, der keine Zahl ist und als 0 zählt: %3</translation>
    </message>
    <message>
        <source>column %1: %2 parts have a text that is no number and counts 0: %3</source>
        <translation>Spalte %1: %2 Bauteile haben einen Text, der keine Zahl ist und als 0 zählt: %3</translation>
    </message>
    <message>
        <source>column %1: %2 part has a text that is no number and is shown as it is: %3</source>
        <translation>Spalte %1: %2 Bauteil hat einen Text, der keine Zahl ist und unverändert gezeigt wird: %3</translation>
    </message>
    <message>
        <source>column %1: %2 parts have a text that is no number and is shown as it is: %3</source>
        <translation>Spalte %1: %2 Bauteile haben einen Text, der keine Zahl ist und unverändert gezeigt wird: %3</translation>
    </message>
    <message>
        <source>column %1: %2 part has a comma before three digits, which is read as the decimal mark: %3</source>
        <translation>Spalte %1: %2 Bauteil hat ein Komma vor drei Ziffern, das als Dezimalzeichen gelesen wird: %3</translation>
    </message>
    <message>
        <source>column %1: %2 parts have a comma before three digits, which is read as the decimal mark: %3</source>
        <translation>Spalte %1: %2 Bauteile haben ein Komma vor drei Ziffern, das als Dezimalzeichen gelesen wird: %3</translation>
    </message>
    <message>
        <source>column %1: %2 part has a text that is neither 1 nor 0 and is shown as %4: %3</source>
        <translation>Spalte %1: %2 Bauteil hat einen Text, der weder 1 noch 0 ist und als %4 gezeigt wird: %3</translation>
    </message>
    <message>
        <source>column %1: %2 parts have a text that is neither 1 nor 0 and is shown as %4: %3</source>
        <translation>Spalte %1: %2 Bauteile haben einen Text, der weder 1 noch 0 ist und als %4 gezeigt wird: %3</translation>
    </message>
    <message>
        <source>%1 is the reference of a BOM-only part and of another part</source>
        <translation>%1 ist die Referenz eines Stücklistenbauteils und eines anderen Bauteils</translation>
    </message>
    <message>
        <source>%1 BOM-only part is excluded by BOMSKIP: %2</source>
        <translation>%1 Stücklistenbauteil ist durch BOMSKIP ausgeschlossen: %2</translation>
    </message>
    <message>
        <source>%1 BOM-only parts are excluded by BOMSKIP: %2</source>
        <translation>%1 Stücklistenbauteile sind durch BOMSKIP ausgeschlossen: %2</translation>
    </message>
    <message>
        <source>%1 BOM-only part is not fitted and left out: %2</source>
        <translation>%1 Stücklistenbauteil ist nicht bestückt und weggelassen: %2</translation>
    </message>
    <message>
        <source>%1 BOM-only parts are not fitted and left out: %2</source>
        <translation>%1 Stücklistenbauteile sind nicht bestückt und weggelassen: %2</translation>
    </message>
    <message>
        <source>%1 BOM-only part is fitted and left out: %2</source>
        <translation>%1 Stücklistenbauteil ist bestückt und weggelassen: %2</translation>
    </message>
    <message>
        <source>%1 BOM-only parts are fitted and left out: %2</source>
        <translation>%1 Stücklistenbauteile sind bestückt und weggelassen: %2</translation>
    </message>
    <message>
        <source>BOM-only parts are left out with their parents, which are fitted: %1</source>
        <translation>Stücklistenbauteile sind weggelassen wie die bestückten Bauteile, zu denen sie gehören: %1</translation>
    </message>
    <message>
        <source>BOM-only parts are left out with their parents, which are not fitted: %1</source>
        <translation>Stücklistenbauteile sind weggelassen wie die nicht bestückten Bauteile, zu denen sie gehören: %1</translation>
    </message>
    <message>
        <source>%1 BOM-only part is listed with parents that are not fitted: %2</source>
        <translation>%1 Stücklistenbauteil ist aufgeführt, obwohl es zu einem nicht bestückten Bauteil gehört: %2</translation>
    </message>
    <message>
        <source>%1 BOM-only parts are listed with parents that are not fitted: %2</source>
        <translation>%1 Stücklistenbauteile sind aufgeführt, obwohl sie zu nicht bestückten Bauteilen gehören: %2</translation>
    </message>
    <message>
        <source>the line of %4 part %1 is left out of the report, because %2 and %3 count as the same reference; renumber one of them</source>
        <translation>die Position mit %4 Bauteil %1 fehlt im Bericht, weil %2 und %3 als dieselbe Referenz zählen; nummerieren Sie eine davon um</translation>
    </message>
    <message>
        <source>the line of %4 parts %1 is left out of the report, because %2 and %3 count as the same reference; renumber one of them</source>
        <translation>die Position mit %4 Bauteilen %1 fehlt im Bericht, weil %2 und %3 als dieselbe Referenz zählen; nummerieren Sie eine davon um</translation>
    </message>
    <message>
        <source>%1 is left out of the report of single parts, because %2 and %3 count as the same reference; renumber one of them</source>
        <translation>%1 fehlt im Bericht der einzelnen Bauteile, weil %2 und %3 als dieselbe Referenz zählen; nummerieren Sie eine davon um</translation>
    </message>
    <message>
        <source>category &quot;%1&quot; can hold no part: an earlier one has the same name</source>
        <translation>die Kategorie „%1“ kann kein Bauteil aufnehmen: Eine frühere hat denselben Namen</translation>
    </message>
    <message>
        <source>category &quot;%1&quot; can hold no part: its prefix %2 belongs to &quot;%3&quot;</source>
        <translation>die Kategorie „%1“ kann kein Bauteil aufnehmen: Ihr Präfix %2 gehört zu „%3“</translation>
    </message>
    <message>
        <source>%1: %2 is no number and counts 0</source>
        <translation>%1: %2 ist keine Zahl und zählt als 0</translation>
    </message>
    <message>
        <source>%1: %2 is no number and is shown as it is</source>
        <translation>%1: %2 ist keine Zahl und wird unverändert gezeigt</translation>
    </message>
    <message>
        <source>%1: %2 has a comma before three digits, which is read as the decimal mark</source>
        <translation>%1: %2 hat ein Komma vor drei Ziffern, das als Dezimalzeichen gelesen wird</translation>
    </message>
    <message>
        <source>%1: %2 is neither 1 nor 0 and is shown as %3</source>
        <translation>%1: %2 ist weder 1 noch 0 und wird als %3 gezeigt</translation>
    </message>
    <message>
        <source>%1 (sheet %2)</source>
        <translation>%1 (Blatt %2)</translation>
    </message>
    <message>
        <source>not fitted: marked on sheet %1</source>
        <translation>nicht bestückt: auf dem Blatt %1 so markiert</translation>
    </message>
    <message>
        <source>not fitted: rule area around it</source>
        <translation>nicht bestückt: durch den Regelbereich darum</translation>
    </message>
    <message>
        <source>not fitted: property</source>
        <translation>nicht bestückt: Eigenschaft</translation>
    </message>
    <message>
        <source>not fitted: property %1</source>
        <translation>nicht bestückt: Eigenschaft %1</translation>
    </message>
    <message>
        <source>not fitted: marked on the symbol</source>
        <translation>nicht bestückt: am Symbol so markiert</translation>
    </message>
    <message>
        <source>%1: %2 symbols have no reference, also at %3</source>
        <translation>%1: %2 Symbole haben keine Referenz, auch bei %3</translation>
    </message>
    <message>
        <source>%1: %4 occurs %2 times, also at %3</source>
        <translation>%1: %4 kommt %2-mal vor, auch bei %3</translation>
    </message>
    <message>
        <source>none of them is in the bill</source>
        <translation>keines davon steht in der Stückliste</translation>
    </message>
    <message>
        <source>1 of them is in the bill</source>
        <translation>1 davon steht in der Stückliste</translation>
    </message>
    <message>
        <source>%1 of them are in the bill</source>
        <translation>%1 davon stehen in der Stückliste</translation>
    </message>
    <message>
        <source>%1: a symbol has no reference</source>
        <translation>%1: Ein Symbol hat keine Referenz</translation>
    </message>
    <message>
        <source>%1: %2 is not annotated</source>
        <translation>%1: %2 ist nicht annotiert</translation>
    </message>
    <message>
        <source>the files hold %1 symbols, %2 were read</source>
        <translation>die Dateien enthalten %1 Symbole, gelesen wurden %2</translation>
    </message>
    <message>
        <source>the files hold %1 power symbols, %2 were read</source>
        <translation>die Dateien enthalten %1 Versorgungssymbole, gelesen wurden %2</translation>
    </message>
    <message>
        <source>%1 symbols are drawn, %2 are accounted for</source>
        <translation>%1 Symbole sind gezeichnet, der Verbleib von %2 ist geklärt</translation>
    </message>
    <message>
        <source>property BOMSKIP</source>
        <translation>Eigenschaft BOMSKIP</translation>
    </message>
    <message>
        <source>excluded on sheet %1</source>
        <translation>auf dem Blatt %1 ausgeschlossen</translation>
    </message>
    <message>
        <source>excluded by the rule area around it</source>
        <translation>durch den Regelbereich darum ausgeschlossen</translation>
    </message>
    <message>
        <source>excluded from the BOM on the symbol</source>
        <translation>am Symbol von der Stückliste ausgeschlossen</translation>
    </message>
    <message>
        <source>fitted</source>
        <translation>bestückt</translation>
    </message>
    <message>
        <source>symbols drawn</source>
        <translation>gezeichnete Symbole</translation>
    </message>
    <message>
        <source>power symbols</source>
        <translation>Versorgungssymbole</translation>
    </message>
    <message>
        <source>further units of a part</source>
        <translation>weitere Einheiten eines Bauteils</translation>
    </message>
    <message>
        <source>components</source>
        <translation>Bauteile</translation>
    </message>
    <message>
        <source>%1 and %2 BOM-only part</source>
        <translation>%1 und %2 Stücklistenbauteil</translation>
    </message>
    <message>
        <source>%1 and %2 BOM-only parts</source>
        <translation>%1 und %2 Stücklistenbauteile</translation>
    </message>
    <message>
        <source>%1 in %2 line</source>
        <translation>%1 in %2 Position</translation>
    </message>
    <message>
        <source>%1 in %2 lines</source>
        <translation>%1 in %2 Positionen</translation>
    </message>
    <message>
        <source>%1 (%2 of them excluded from the BOM as well)</source>
        <translation>%1 (%2 davon auch von der Stückliste ausgeschlossen)</translation>
    </message>
    <message>
        <source>in the bill</source>
        <translation>in der Stückliste</translation>
    </message>
    <message>
        <source>left out for an equal reference</source>
        <translation>wegen gleicher Referenz weggelassen</translation>
    </message>
    <message>
        <source>repeated references</source>
        <translation>wiederholte Referenzen</translation>
    </message>
    <message>
        <source>not in the bill</source>
        <translation>nicht in der Stückliste</translation>
    </message>
    <message>
        <source>of all components, not fitted</source>
        <translation>von allen Bauteilen nicht bestückt</translation>
    </message>
    <message>
        <source>the design has %1 components, the bill accounts for %2</source>
        <translation>der Entwurf hat %1 Bauteile, die Stückliste erklärt den Verbleib von %2</translation>
    </message>
    <message>
        <source>%1 is empty or missing on %2 part: %3</source>
        <translation>%1 ist leer oder fehlt bei %2 Bauteil: %3</translation>
    </message>
    <message>
        <source>%1 is empty or missing on %2 parts: %3</source>
        <translation>%1 ist leer oder fehlt bei %2 Bauteilen: %3</translation>
    </message>
    <message>
        <source>%1 on %2 part</source>
        <translation>%1 bei %2 Bauteil</translation>
    </message>
    <message>
        <source>%1 on %2 parts</source>
        <translation>%1 bei %2 Bauteilen</translation>
    </message>
    <message>
        <source>property names that are easily taken for one another: %1</source>
        <translation>Namen von Eigenschaften, die leicht verwechselt werden: %1</translation>
    </message>
    <message>
        <source>one of %1 hides another with a different text on %2</source>
        <translation>von %1 verdeckt einer einen anderen mit abweichendem Text bei %2</translation>
    </message>
    <message>
        <source>a text variable ${...} is not resolved on %1 part: %2</source>
        <translation>eine Textvariable ${...} ist bei %1 Bauteil nicht aufgelöst: %2</translation>
    </message>
    <message>
        <source>a text variable ${...} is not resolved on %1 parts: %2</source>
        <translation>eine Textvariable ${...} ist bei %1 Bauteilen nicht aufgelöst: %2</translation>
    </message>
    <message>
        <source>the sums</source>
        <translation>die Summen</translation>
    </message>
    <message>
        <source>agree</source>
        <translation>stimmen überein</translation>
    </message>
    <message>
        <source>disagree</source>
        <translation>stimmen nicht überein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; (%2 part)</source>
        <translation>„%1“ (%2 Bauteil)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; (%2 parts)</source>
        <translation>„%1“ (%2 Bauteile)</translation>
    </message>
    <message>
        <source>%1 more names</source>
        <translation>%1 weitere Namen</translation>
    </message>
    <message>
        <source> and </source>
        <translation> und </translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>%1 aus %2</translation>
    </message>
    <message>
        <source>%1 may be %2</source>
        <translation>%1 ist vielleicht %2</translation>
    </message>
    <message>
        <source>read under other names: %1</source>
        <translation>unter anderen Namen gelesen: %1</translation>
    </message>
    <message>
        <source>not read, as the names do not say it for certain: %1 (bom fields tells more)</source>
        <translation>nicht gelesen, weil die Namen nicht eindeutig sind: %1 (mehr mit bom fields)</translation>
    </message>
    <message>
        <source>%1: %2 part has different texts under names of this meaning: %3</source>
        <translation>%1: %2 Bauteil hat verschiedene Texte unter Namen dieser Bedeutung: %3</translation>
    </message>
    <message>
        <source>%1: %2 parts have different texts under names of this meaning: %3</source>
        <translation>%1: %2 Bauteile haben verschiedene Texte unter Namen dieser Bedeutung: %3</translation>
    </message>
    <message>
        <source>%1 part says &quot;do not fit&quot; under the name %2, which leaves no part out as DNP and BOMSKIP do: %3 (&quot;%4&quot;)</source>
        <translation>%1 Bauteil sagt „nicht bestücken“ unter dem Namen %2, der anders als DNP und BOMSKIP kein Bauteil weglässt: %3 („%4“)</translation>
    </message>
    <message>
        <source>%1 parts say &quot;do not fit&quot; under the name %2, which leaves no part out as DNP and BOMSKIP do: %3 (&quot;%4&quot;), ...</source>
        <translation>%1 Bauteile sagen „nicht bestücken“ unter dem Namen %2, der anders als DNP und BOMSKIP kein Bauteil weglässt: %3 („%4“), ...</translation>
    </message>
    <message>
        <source>%1 line joins parts that differ in what no column shows (bom check lists them): %2</source>
        <translation>%1 Position fasst Bauteile zusammen, die sich in etwas unterscheiden, das keine Spalte zeigt (bom check führt sie auf): %2</translation>
    </message>
    <message>
        <source>%1 lines join parts that differ in what no column shows (bom check lists them): %2</source>
        <translation>%1 Positionen fassen Bauteile zusammen, die sich in etwas unterscheiden, das keine Spalte zeigt (bom check führt sie auf): %2</translation>
    </message>
    <message>
        <source>the design has %1</source>
        <translation>der Entwurf hat %1</translation>
    </message>
    <message>
        <source>no part has anything in the column %1</source>
        <translation>kein Bauteil hat etwas in der Spalte %1</translation>
    </message>
    <message>
        <source>no part has anything in the columns %1</source>
        <translation>kein Bauteil hat etwas in den Spalten %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; under %2 is read</source>
        <translation>„%1“ unter %2 wird gelesen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; under %2 is not</source>
        <translation>„%1“ unter %2 nicht</translation>
    </message>
    <message>
        <source>%1 part is excluded from the bill of materials (bom check names them)</source>
        <translation>%1 Bauteil ist von der Stückliste ausgeschlossen (bom check nennt es)</translation>
    </message>
    <message>
        <source>%1 parts are excluded from the bill of materials (bom check names them)</source>
        <translation>%1 Bauteile sind von der Stückliste ausgeschlossen (bom check nennt sie)</translation>
    </message>
    <message>
        <source>%1 part is excluded from the bill of materials, %2 of them not fitted (bom check names them)</source>
        <translation>%1 Bauteil ist von der Stückliste ausgeschlossen, %2 davon nicht bestückt (bom check nennt es)</translation>
    </message>
    <message>
        <source>%1 parts are excluded from the bill of materials, %2 of them not fitted (bom check names them)</source>
        <translation>%1 Bauteile sind von der Stückliste ausgeschlossen, %2 davon nicht bestückt (bom check nennt sie)</translation>
    </message>
    <message>
        <source>%1 symbol is not annotated (bom check names them)</source>
        <translation>%1 Symbol ist nicht annotiert (bom check nennt es)</translation>
    </message>
    <message>
        <source>%1 symbols are not annotated (bom check names them)</source>
        <translation>%1 Symbole sind nicht annotiert (bom check nennt sie)</translation>
    </message>
    <message>
        <source>%1 fitted part is left out (--dnp only)</source>
        <translation>%1 bestücktes Bauteil ist weggelassen (--dnp only)</translation>
    </message>
    <message>
        <source>%1 fitted parts are left out (--dnp only)</source>
        <translation>%1 bestückte Bauteile sind weggelassen (--dnp only)</translation>
    </message>
    <message>
        <source>%1 part is not fitted and left out (--dnp include lists them)</source>
        <translation>%1 Bauteil ist nicht bestückt und weggelassen (--dnp include führt es auf)</translation>
    </message>
    <message>
        <source>%1 parts are not fitted and left out (--dnp include lists them)</source>
        <translation>%1 Bauteile sind nicht bestückt und weggelassen (--dnp include führt sie auf)</translation>
    </message>
    <message>
        <source>%1 part is not fitted: marked in lines of their own, and not counted</source>
        <translation>%1 Bauteil ist nicht bestückt: in einer eigenen Position markiert und nicht gezählt</translation>
    </message>
    <message>
        <source>%1 parts are not fitted: marked in lines of their own, and not counted</source>
        <translation>%1 Bauteile sind nicht bestückt: in eigenen Positionen markiert und nicht gezählt</translation>
    </message>
    <message>
        <source>%1 part is not fitted and left out</source>
        <translation>%1 Bauteil ist nicht bestückt und weggelassen</translation>
    </message>
    <message>
        <source>%1 parts are not fitted and left out</source>
        <translation>%1 Bauteile sind nicht bestückt und weggelassen</translation>
    </message>
    <message>
        <source>%1 definition of BOM-only parts cannot be followed (bom check says why)</source>
        <translation>%1 Definition von Stücklistenbauteilen ist nicht ausführbar (bom check sagt, warum)</translation>
    </message>
    <message>
        <source>%1 definitions of BOM-only parts cannot be followed (bom check says why)</source>
        <translation>%1 Definitionen von Stücklistenbauteilen sind nicht ausführbar (bom check sagt, warum)</translation>
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
        <translation>Diese Einstellungen betreffen die Datenausgaben als CSV, ASCII und Tabellendokument.  Sie verbessern das Zusammenspiel mit Programmen, die für Quorvel 7 gemacht wurden.</translation>
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
    <name>AssemblyService</name>
    <message>
        <source>is no UTF-8 text</source>
        <translation>ist kein Text in UTF-8</translation>
    </message>
    <message>
        <source>%1 is no heading; there is one only, [columns]</source>
        <translation>%1 ist keine Überschrift; es gibt nur eine, [columns]</translation>
    </message>
    <message>
        <source>is longer than %1 characters</source>
        <translation>ist länger als %1 Zeichen</translation>
    </message>
    <message>
        <source>%1 is no column such as Designator = designators</source>
        <translation>%1 ist keine Spalte wie Designator = designators</translation>
    </message>
    <message>
        <source>%1 is no setting such as title = Our assembly house</source>
        <translation>%1 ist keine Einstellung wie title = Unser Bestücker</translation>
    </message>
    <message>
        <source>%1 stands in line %2 as well</source>
        <translation>%1 steht auch in Zeile %2</translation>
    </message>
    <message>
        <source>%1 says nothing</source>
        <translation>%1 sagt nichts</translation>
    </message>
    <message>
        <source>%1 is no setting; known are title, needs, most designators, ignores letter case, separator and apart</source>
        <translation>%1 ist keine Einstellung; bekannt sind title, needs, most designators, ignores letter case, separator und apart</translation>
    </message>
    <message>
        <source>%1 is no number from 1 to %2</source>
        <translation>%1 ist keine Zahl von 1 bis %2</translation>
    </message>
    <message>
        <source>%1 is neither yes nor no</source>
        <translation>%1 ist weder yes noch no</translation>
    </message>
    <message>
        <source>the heading %1 stands in line %2 as well</source>
        <translation>die Überschrift %1 steht auch in Zeile %2</translation>
    </message>
    <message>
        <source>%1 is nothing that a column can hold; known are value, footprint, designators, quantity, item number, property NAME and text TEXT</source>
        <translation>%1 kann keine Spalte enthalten; bekannt sind value, footprint, designators, quantity, item number, property NAME und text TEXT</translation>
    </message>
    <message>
        <source>there are more than %1 columns</source>
        <translation>es gibt mehr als %1 Spalten</translation>
    </message>
    <message>
        <source>has no columns; they stand below a line [columns]</source>
        <translation>hat keine Spalten; sie stehen unter einer Zeile [columns]</translation>
    </message>
    <message>
        <source>has no column that holds the designators, such as Designator = designators</source>
        <translation>hat keine Spalte mit den Referenzen wie Designator = designators</translation>
    </message>
    <message>
        <source>the service needs the column %1, which holds no property</source>
        <translation>der Dienst braucht die Spalte %1, die keine Eigenschaft enthält</translation>
    </message>
    <message>
        <source>the service needs the column %1, and there is none of that name</source>
        <translation>der Dienst braucht die Spalte %1, und es gibt keine dieses Namens</translation>
    </message>
</context>
<context>
    <name>AssignmentBatch</name>
    <message>
        <source>A definition of BOM-only parts cannot hold this text</source>
        <translation>Eine Definition von Stücklistenbauteilen kann diesen Text nicht aufnehmen</translation>
    </message>
    <message>
        <source>A part that this defines is changed as well</source>
        <translation>Ein Bauteil, das hiermit definiert wird, wird ebenfalls geändert</translation>
    </message>
    <message>
        <source>A line break cannot be written</source>
        <translation>Ein Zeilenumbruch kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>This name cannot be written</source>
        <translation>Dieser Name kann nicht geschrieben werden</translation>
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
        <translation>Nicht möglich</translation>
    </message>
    <message>
        <source>The miscellaneous category is required.</source>
        <translation>Die Kategorie für alles Übrige wird gebraucht.</translation>
    </message>
</context>
<context>
    <name>BOMCategory</name>
    <message>
        <source>Modules</source>
        <extracomment>Stands in reports, which have one language on all machines: leave it as it is.</extracomment>
        <translation>Modules</translation>
    </message>
    <message>
        <source>Capacitors</source>
        <extracomment>Stands in reports, which have one language on all machines: leave it as it is.</extracomment>
        <translation>Capacitors</translation>
    </message>
    <message>
        <source>Resistors</source>
        <extracomment>Stands in reports, which have one language on all machines: leave it as it is.</extracomment>
        <translation>Resistors</translation>
    </message>
    <message>
        <source>Integrated Circuits</source>
        <extracomment>Stands in reports, which have one language on all machines: leave it as it is.</extracomment>
        <translation>Integrated Circuits</translation>
    </message>
    <message>
        <source>Transistors</source>
        <extracomment>Stands in reports, which have one language on all machines: leave it as it is.</extracomment>
        <translation>Transistors</translation>
    </message>
    <message>
        <source>Diodes</source>
        <extracomment>Stands in reports, which have one language on all machines: leave it as it is.</extracomment>
        <translation>Diodes</translation>
    </message>
    <message>
        <source>Miscellaneous</source>
        <extracomment>Stands in reports, which have one language on all machines: leave it as it is.</extracomment>
        <translation>Miscellaneous</translation>
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
        <translation>Eine Zeile für alle Bauteile einer Position</translation>
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
        <translation>Erforderlich und leer</translation>
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
    <message>
        <source>Of which category rows are shown</source>
        <translation>Von welcher Kategorie Zeilen gezeigt werden</translation>
    </message>
    <message>
        <source>Which rows are shown</source>
        <translation>Welche Zeilen gezeigt werden</translation>
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
        <translation>Tabellendokument speichern</translation>
    </message>
    <message>
        <source>Spreadsheets (*.xlsx)</source>
        <translation>Tabellendokumente (*.xlsx)</translation>
    </message>
    <message>
        <source>Spreadsheet</source>
        <translation>Tabellendokument</translation>
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
        <translation>Externe Links anzeigen </translation>
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
    <name>BOMFields</name>
    <message>
        <source>Value</source>
        <extracomment>Stands in reports, which have one language on all machines: leave it as it is.</extracomment>
        <translation>Value</translation>
    </message>
    <message>
        <source>Stock Code</source>
        <extracomment>Stands in reports, which have one language on all machines: leave it as it is.</extracomment>
        <translation>Stock Code</translation>
    </message>
    <message>
        <source>Unit Cost</source>
        <extracomment>Stands in reports, which have one language on all machines: leave it as it is.</extracomment>
        <translation>Unit Cost</translation>
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
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
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
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>The template &apos;%1&apos; is your own from now on, for every design. Delete Template brings back the one that comes with the program.</source>
        <translation>Die Vorlage „%1“ ist ab jetzt Ihre eigene, für jeden Entwurf. „Vorlage löschen“ holt die mitgelieferte zurück.</translation>
    </message>
    <message>
        <source>One change of a property is pending.</source>
        <translation>Eine Eigenschaftsänderung ist vorgemerkt.</translation>
    </message>
    <message>
        <source>%1 changes of properties are pending.</source>
        <translation>%1 Eigenschaftsänderungen sind vorgemerkt.</translation>
    </message>
    <message>
        <source>Save writes into the design, Discard keeps what is pending for the next time that the design is opened.</source>
        <translation>„Speichern“ schreibt in den Entwurf, „Verwerfen“ hebt das Vorgemerkte auf, bis er das nächste Mal geöffnet wird.</translation>
    </message>
    <message>
        <source>Save writes into the design. Discard loses what is pending: it could not be kept beside the program&apos;s settings.</source>
        <translation>„Speichern“ schreibt in den Entwurf. Mit „Verwerfen“ geht das Vorgemerkte verloren: Es konnte nicht neben den Einstellungen des Programms aufbewahrt werden.</translation>
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
        <translation>Stücklistenbauteile anlegen</translation>
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
        <translation>Stücklistenbauteile nicht angelegt</translation>
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
        <translation>Stücklistenbauteil entfernen</translation>
    </message>
    <message>
        <source>Parent Part</source>
        <translation>Gehört zu</translation>
    </message>
    <message>
        <source>BOM Part</source>
        <translation>Stücklistenbauteil</translation>
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
        <translation>Stücklistenbauteil nicht entfernt</translation>
    </message>
</context>
<context>
    <name>BOMPartsDatabase</name>
    <message>
        <source>Miscellaneous</source>
        <extracomment>Stands in reports, which have one language on all machines: leave it as it is.</extracomment>
        <translation>Miscellaneous</translation>
    </message>
    <message>
        <source>Placed</source>
        <translation>Platziert</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <extracomment>Stands in reports, which have one language on all machines: leave it as it is.</extracomment>
        <translation>Value</translation>
    </message>
    <message>
        <source>The template has no field for VALUE; one was added as the first column.</source>
        <translation>Die Vorlage hat kein Feld für VALUE; eines wurde als erste Spalte hinzugefügt.</translation>
    </message>
    <message>
        <source>The template has no miscellaneous category; one was added as the last.</source>
        <translation>Die Vorlage hat keine Kategorie für alles Übrige; eine wurde als letzte hinzugefügt.</translation>
    </message>
</context>
<context>
    <name>BOMTemplate</name>
    <message>
        <source>The BOM template &apos;%1&apos; could not be loaded.  Default settings loaded.</source>
        <translation>Die Stücklistenvorlage „%1“ konnte nicht geladen werden.  Die Standardeinstellungen wurden geladen.</translation>
    </message>
    <message>
        <source>BOM Template Load Failed</source>
        <translation>Stücklistenvorlage nicht geladen</translation>
    </message>
    <message>
        <source>The BOM template &apos;%1&apos; was not saved.  An unknown error occurred.</source>
        <translation>Die Stücklistenvorlage „%1“ wurde nicht gespeichert.  Ein unbekannter Fehler ist aufgetreten.</translation>
    </message>
    <message>
        <source>BOM Template Save Failed</source>
        <translation>Stücklistenvorlage nicht gespeichert</translation>
    </message>
    <message>
        <source>The BOM template &apos;%1&apos; was written by a later version of this program.  Settings that this version does not know are left out.</source>
        <translation>Die Stücklistenvorlage „%1“ wurde von einer neueren Version dieses Programms geschrieben.  Einstellungen, die diese Version nicht kennt, fehlen.</translation>
    </message>
    <message>
        <source>has the format version %1, which is later than %2: settings that this version does not know are left out</source>
        <translation>hat die Formatversion %1, die neuer als %2 ist: Einstellungen, die diese Version nicht kennt, fehlen</translation>
    </message>
    <message>
        <source>BOM Template of a Later Version</source>
        <translation>Stücklistenvorlage einer neueren Version</translation>
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
    <name>BOMTemplateFile</name>
    <message>
        <source>the document is no BOM template</source>
        <translation>das Dokument ist keine Stücklistenvorlage</translation>
    </message>
    <message>
        <source>the template has no version</source>
        <translation>die Vorlage hat keine Version</translation>
    </message>
    <message>
        <source>the file is too large for a template</source>
        <translation>die Datei ist für eine Vorlage zu groß</translation>
    </message>
    <message>
        <source>an element has too many attributes</source>
        <translation>ein Element hat zu viele Attribute</translation>
    </message>
    <message>
        <source>the template&apos;s name cannot be a file name</source>
        <translation>der Name der Vorlage kann kein Dateiname sein</translation>
    </message>
    <message>
        <source>a text holds a character that XML cannot carry</source>
        <translation>ein Text enthält ein Zeichen, das in XML nicht stehen kann</translation>
    </message>
    <message>
        <source>text expected, found %1</source>
        <translation>Text erwartet, aber %1 gefunden</translation>
    </message>
    <message>
        <source>elements are nested too deeply</source>
        <translation>die Elemente sind zu tief geschachtelt</translation>
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
    <message>
        <source>Imported Template</source>
        <extracomment>A name in settings, options and scripts: leave it as it is.</extracomment>
        <translation>Imported Template</translation>
    </message>
</context>
<context>
    <name>BOMVIEWER</name>
    <message>
        <source>Bill of Materials</source>
        <translation>Stückliste</translation>
    </message>
</context>
<context>
    <name>BOMView</name>
    <message>
        <source>Output Failed</source>
        <translation>Ausgabe fehlgeschlagen</translation>
    </message>
    <message>
        <source>Could not open file &apos;%1&apos; for writing</source>
        <translation>Die Datei „%1“ konnte nicht zum Schreiben geöffnet werden</translation>
    </message>
    <message>
        <source>Could not write file &apos;%1&apos;: %2</source>
        <translation>Die Datei „%1“ konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; belongs to the design and is not overwritten. Choose another name.</source>
        <translation>Die Datei „%1“ gehört zum Entwurf und wird nicht überschrieben. Bitte einen anderen Namen wählen.</translation>
    </message>
</context>
<context>
    <name>CDBCORE</name>
    <message>
        <source>This component database cannot be written</source>
        <translation>Diese Bauteildatenbank kann nicht geschrieben werden</translation>
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
        <translation>Erforderlich und leer</translation>
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
    <name>ChangeScript</name>
    <message>
        <source>script line %1: %2</source>
        <translation>Skriptzeile %1: %2</translation>
    </message>
    <message>
        <source>the script ends within a record</source>
        <translation>das Skript endet mitten in einem Datensatz</translation>
    </message>
    <message>
        <source>the script ends within a line</source>
        <translation>das Skript endet mitten in einer Zeile</translation>
    </message>
    <message>
        <source>the line is longer than %1 bytes</source>
        <translation>die Zeile ist länger als %1 Bytes</translation>
    </message>
    <message>
        <source>the line is no UTF-8 text</source>
        <translation>die Zeile ist kein Text in UTF-8</translation>
    </message>
    <message>
        <source>an empty line must follow END</source>
        <translation>auf END muss eine leere Zeile folgen</translation>
    </message>
    <message>
        <source>a record begins with DATA NAME, a colon, the reference and a hyphen</source>
        <translation>ein Datensatz beginnt mit DATA NAME, einem Doppelpunkt, der Referenz und einem Bindestrich</translation>
    </message>
    <message>
        <source>the reference is missing</source>
        <translation>die Referenz fehlt</translation>
    </message>
    <message>
        <source>this is neither a property with its value, both in quotes, nor END</source>
        <translation>dies ist weder eine Eigenschaft mit ihrem Wert, beide in Anführungszeichen, noch END</translation>
    </message>
    <message>
        <source>the property has no name</source>
        <translation>die Eigenschaft hat keinen Namen</translation>
    </message>
    <message>
        <source>the script holds more than %1 properties</source>
        <translation>das Skript enthält mehr als %1 Eigenschaften</translation>
    </message>
    <message>
        <source>the design was read again before all was written</source>
        <translation>der Entwurf wurde neu gelesen, bevor alles geschrieben war</translation>
    </message>
    <message>
        <source>scripts have no other mode than 0</source>
        <translation>Skripte haben keinen anderen Modus als 0</translation>
    </message>
    <message>
        <source>no design is open</source>
        <translation>kein Entwurf ist geöffnet</translation>
    </message>
    <message>
        <source>the design has no part of this reference</source>
        <translation>der Entwurf hat kein Bauteil mit dieser Referenz</translation>
    </message>
    <message>
        <source>several symbols have this reference: %1</source>
        <translation>mehrere Symbole haben diese Referenz: %1</translation>
    </message>
    <message>
        <source>the design spells this name %1, which defines no BOM-only parts: rename it there first</source>
        <translation>der Entwurf schreibt diesen Namen %1; so definiert er keine Stücklistenbauteile: Benennen Sie die Eigenschaft dort zuerst um</translation>
    </message>
    <message>
        <source>another text is asked for under the name %1</source>
        <translation>unter dem Namen %1 wird ein anderer Text verlangt</translation>
    </message>
    <message>
        <source>%1, and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>the design cannot be written</source>
        <translation>der Entwurf kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>a part of what was to be written was given up</source>
        <translation>ein Teil dessen, was geschrieben werden sollte, wurde verworfen</translation>
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
        <translation>Erforderlich</translation>
    </message>
    <message>
        <source>Show All Columns</source>
        <translation>Alle Spalten zeigen</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>%1 and %2 more place</source>
        <translation>%1 und %2 weitere Stelle</translation>
    </message>
    <message>
        <source>%1 and %2 more places</source>
        <translation>%1 und %2 weitere Stellen</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>entfernt</translation>
    </message>
    <message>
        <source>, variant %1</source>
        <translation>, Variante %1</translation>
    </message>
    <message>
        <source>%1 also changes %2</source>
        <translation>%1 ändert auch %2</translation>
    </message>
    <message>
        <source>would change %1 of %2 in %3; nothing was written</source>
        <translation>zu ändern: %1 von %2 in %3; nichts wurde geschrieben</translation>
    </message>
    <message>
        <source>changed %1 of %2 in %3</source>
        <translation>%1 von %2 in %3 geändert</translation>
    </message>
    <message>
        <source>property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>part</source>
        <comment>property of</comment>
        <translation>Bauteil</translation>
    </message>
    <message>
        <source>parts</source>
        <comment>properties of</comment>
        <translation>Bauteilen</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>To decide</source>
        <translation>Zu entscheiden</translation>
    </message>
    <message>
        <source>To know</source>
        <translation>Zu beachten</translation>
    </message>
    <message>
        <source>no part has a property &quot;%1&quot;%2</source>
        <translation>kein Bauteil hat eine Eigenschaft „%1“%2</translation>
    </message>
    <message>
        <source>%1 (bom --help tells more)</source>
        <translation>%1 (mehr mit bom --help)</translation>
    </message>
    <message>
        <source>there is no option &quot;%1&quot;%2 (bom --help tells more)</source>
        <translation>es gibt keine Option „%1“%2 (mehr mit bom --help)</translation>
    </message>
    <message>
        <source>a subcommand is required, such as list or show (bom %1 --help tells more)</source>
        <translation>ein Unterbefehl ist nötig, zum Beispiel list oder show (mehr mit bom %1 --help)</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;%2 (bom %3--help tells more)</source>
        <translation>es gibt keinen Befehl „%1“%2 (mehr mit bom %3--help)</translation>
    </message>
    <message>
        <source>standard output: %1</source>
        <translation>Standardausgabe: %1</translation>
    </message>
    <message>
        <source>%1 No.</source>
        <comment>the question, and the answer that the program gives</comment>
        <translation>%1 Nein.</translation>
    </message>
    <message>
        <source>%1 as &quot;%2&quot; on %3 part</source>
        <translation>%1 als „%2“ bei %3 Bauteil</translation>
    </message>
    <message>
        <source>%1 as &quot;%2&quot; on %3 parts</source>
        <translation>%1 als „%2“ bei %3 Bauteilen</translation>
    </message>
    <message>
        <source>written under the names that the design has: %1</source>
        <translation>unter den Namen geschrieben, die der Entwurf hat: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a mark before three digits that may stand for thousands or for decimals: write %2</source>
        <translation>„%1“ hat vor drei Ziffern ein Zeichen, das Tausender oder Dezimalstellen abtrennen kann: Schreiben Sie %2</translation>
    </message>
    <message>
        <source> or </source>
        <translation> oder </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no text that this property can have: %2 (--locale tells how numbers are written, such as de_DE)</source>
        <translation>„%1“ ist kein Text, den diese Eigenschaft haben kann: %2 (--locale sagt, wie Zahlen geschrieben sind, zum Beispiel de_DE)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no text that this property can have: %2</source>
        <translation>„%1“ ist kein Text, den diese Eigenschaft haben kann: %2</translation>
    </message>
    <message>
        <source>two values are asked for</source>
        <translation>zwei Werte sind verlangt</translation>
    </message>
    <message>
        <source>the design has no part of this reference</source>
        <translation>der Entwurf hat kein Bauteil mit dieser Referenz</translation>
    </message>
    <message>
        <source>this tells what cannot be changed here</source>
        <translation>diese Angabe kann hier nicht geändert werden</translation>
    </message>
    <message>
        <source>a symbol that is left out and a BOM-only part have this reference</source>
        <translation>ein weggelassenes Symbol und ein Stücklistenbauteil haben diese Referenz</translation>
    </message>
    <message>
        <source>another text is asked for under the name %1</source>
        <translation>unter dem Namen %1 ist ein anderer Text verlangt</translation>
    </message>
    <message>
        <source>%1: %2 -&gt; %3 (a BOM-only part of %4)</source>
        <translation>%1: %2 -&gt; %3 (ein Stücklistenbauteil zu %4)</translation>
    </message>
    <message>
        <source>%1 more reference that the design does not have</source>
        <translation>%1 weitere Referenz, die der Entwurf nicht hat</translation>
    </message>
    <message>
        <source>%1 more references that the design does not have</source>
        <translation>%1 weitere Referenzen, die der Entwurf nicht hat</translation>
    </message>
    <message>
        <source>the files named above may be written in part: %1</source>
        <translation>die oben genannten Dateien sind vielleicht teilweise geschrieben: %1</translation>
    </message>
    <message>
        <source>nothing was written: %1</source>
        <translation>nichts wurde geschrieben: %1</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>%1, %2 from &quot;%3&quot; (%4)</source>
        <translation>%1, %2 aus „%3“ (%4)</translation>
    </message>
    <message>
        <source>after this other names are read: %1</source>
        <translation>danach werden andere Namen gelesen: %1</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>nothing to change</source>
        <translation>nichts zu ändern</translation>
    </message>
    <message>
        <source>BOM-only parts are numbered in the order of their definitions: those of %1 and others may change places (bom parts tells)</source>
        <translation>Stücklistenbauteile sind in der Reihenfolge ihrer Definitionen nummeriert: Die zu %1 und anderen tauschen vielleicht ihre Plätze (bom parts zeigt es)</translation>
    </message>
    <message>
        <source>BOM-only parts are numbered in the order of their definitions: those of %1 may change places (bom parts tells)</source>
        <translation>Stücklistenbauteile sind in der Reihenfolge ihrer Definitionen nummeriert: Die zu %1 tauschen vielleicht ihre Plätze (bom parts zeigt es)</translation>
    </message>
    <message>
        <source>the design was written all the same</source>
        <translation>der Entwurf wurde trotzdem geschrieben</translation>
    </message>
    <message>
        <source>%1: this folder has several designs, name one of them: %2</source>
        <translation>%1: Dieser Ordner enthält mehrere Entwürfe, nennen Sie einen davon: %2</translation>
    </message>
    <message>
        <source>is neither a field of the template nor a property</source>
        <translation>ist weder ein Feld der Vorlage noch eine Eigenschaft</translation>
    </message>
    <message>
        <source>%1; the design has %2</source>
        <translation>%1; der Entwurf hat %2</translation>
    </message>
    <message>
        <source>%1 (--new-property &quot;%2&quot; makes it one)</source>
        <translation>%1 (--new-property &quot;%2&quot; macht eine daraus)</translation>
    </message>
    <message>
        <source>there is no column &quot;%1&quot;, which --new-property names</source>
        <translation>es gibt keine Spalte „%1“, die --new-property nennt</translation>
    </message>
    <message>
        <source>column %1 &quot;%2&quot; may be the report&apos;s own or the property: delete it, or put it in front of the references if it is the report&apos;s</source>
        <translation>Spalte %1 „%2“ ist entweder die des Berichts oder die Eigenschaft: Löschen Sie sie, oder stellen Sie sie vor die Referenzen, wenn sie vom Bericht stammt</translation>
    </message>
    <message>
        <source>column %1 &quot;%2&quot; %3</source>
        <comment>and what is wrong with it</comment>
        <translation>Spalte %1 „%2“ %3</translation>
    </message>
    <message>
        <source>the heading &quot;%1&quot; stands over two columns</source>
        <translation>die Überschrift „%1“ steht über zwei Spalten</translation>
    </message>
    <message>
        <source>%1 has changes that &quot;Parts&quot; does not have, such as %2, %3 (--sheet says which of the sheets counts)</source>
        <translation>%1 hat Änderungen, die „Parts“ nicht hat, zum Beispiel %2, %3 (--sheet sagt, welches Blatt gilt)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no NAME=VALUE (bom set --help tells more)</source>
        <translation>„%1“ hat nicht die Form NAME=WERT (mehr mit bom set --help)</translation>
    </message>
    <message>
        <source>the property %1 is named twice</source>
        <translation>die Eigenschaft %1 ist zweimal genannt</translation>
    </message>
    <message>
        <source>the design has no property &quot;%1&quot;; did you mean &quot;%2&quot;? (--new makes it)</source>
        <translation>der Entwurf hat keine Eigenschaft „%1“; meinten Sie „%2“? (--new legt sie an)</translation>
    </message>
    <message>
        <source>&quot; or &quot;</source>
        <comment>between names</comment>
        <translation>“ oder „</translation>
    </message>
    <message>
        <source>--sheet needs a spreadsheet (.xlsx or .ods)</source>
        <translation>--sheet braucht ein Tabellendokument (.xlsx oder .ods)</translation>
    </message>
    <message>
        <source>%1: the sheet &quot;%2&quot;</source>
        <translation>%1: Das Blatt „%2“</translation>
    </message>
    <message>
        <source>there is nothing to take back</source>
        <translation>es gibt nichts zurückzunehmen</translation>
    </message>
    <message>
        <source>%1 has its previous content again</source>
        <translation>%1 hat wieder den vorherigen Inhalt</translation>
    </message>
    <message>
        <source>the files of the design have their previous content again all the same</source>
        <translation>die Dateien des Entwurfs haben trotzdem wieder ihren vorherigen Inhalt</translation>
    </message>
    <message>
        <source>the cell holds a percentage and no text</source>
        <translation>die Zelle enthält einen Prozentwert und keinen Text</translation>
    </message>
    <message>
        <source>the cell holds a date or time and no text</source>
        <translation>die Zelle enthält ein Datum oder eine Uhrzeit und keinen Text</translation>
    </message>
    <message>
        <source>the cell holds true or false and no text</source>
        <translation>die Zelle enthält einen Wahrheitswert und keinen Text</translation>
    </message>
    <message>
        <source>the cell holds a formula and no text</source>
        <translation>die Zelle enthält eine Formel und keinen Text</translation>
    </message>
    <message>
        <source>the cell holds an error and no text</source>
        <translation>die Zelle enthält einen Fehler und keinen Text</translation>
    </message>
    <message>
        <source>the cell is hidden under a merged one</source>
        <translation>die Zelle ist unter einer verbundenen verborgen</translation>
    </message>
    <message>
        <source>%1: sheet %2, row %3</source>
        <translation>%1: Blatt %2, Zeile %3</translation>
    </message>
    <message>
        <source>%1: sheet %2, cell %3</source>
        <translation>%1: Blatt %2, Zelle %3</translation>
    </message>
    <message>
        <source>%1: columns that hold no properties are left out: %2</source>
        <translation>%1: Spalten ohne Eigenschaften werden übergangen: %2</translation>
    </message>
    <message>
        <source>%1 more such changes</source>
        <translation>%1 weitere solche Änderungen</translation>
    </message>
    <message>
        <source>the table names more than %1 references</source>
        <translation>die Tabelle nennt mehr als %1 Referenzen</translation>
    </message>
    <message>
        <source>there is a text behind the last column</source>
        <translation>hinter der letzten Spalte steht ein Text</translation>
    </message>
    <message>
        <source>%1 has other texts in row %2</source>
        <translation>%1 hat andere Texte in Zeile %2</translation>
    </message>
    <message>
        <source>%1 has other texts on line %2</source>
        <translation>%1 hat andere Texte in Zeile %2</translation>
    </message>
    <message>
        <source>this column tells what cannot be changed here</source>
        <translation>diese Spalte enthält Angaben, die hier nicht geändert werden können</translation>
    </message>
    <message>
        <source>the row has no cell for it</source>
        <translation>die Zeile hat keine Zelle dafür</translation>
    </message>
    <message>
        <source>%1 (--accept-spreadsheet-changes writes it)</source>
        <translation>%1 (--accept-spreadsheet-changes schreibt es)</translation>
    </message>
    <message>
        <source>%1, %2: the cell is empty and the part has %3 under the name %4</source>
        <translation>%1, %2: Die Zelle ist leer, und das Bauteil hat %3 unter dem Namen %4</translation>
    </message>
    <message>
        <source>the part has this under the name %1; delete one of the two, or take names as they are (--exact-names)</source>
        <translation>das Bauteil hat das unter dem Namen %1; löschen Sie eines von beiden, oder nehmen Sie die Namen wörtlich (--exact-names)</translation>
    </message>
    <message>
        <source>%1, as spreadsheets do by themselves (--accept-spreadsheet-changes writes it)</source>
        <translation>%1, wie es Tabellenprogramme von selbst tun (--accept-spreadsheet-changes schreibt es)</translation>
    </message>
    <message>
        <source>%1 is no number, and the column has totals</source>
        <translation>%1 ist keine Zahl, und die Spalte hat Summen</translation>
    </message>
    <message>
        <source>%1, shown as %2</source>
        <translation>%1, gezeigt als %2</translation>
    </message>
    <message>
        <source>%1, as %2 more part</source>
        <translation>%1, ebenso bei %2 weiteren Bauteil</translation>
    </message>
    <message>
        <source>%1, as %2 more parts</source>
        <translation>%1, ebenso bei %2 weiteren Bauteilen</translation>
    </message>
    <message>
        <source>%1; empty cells take away texts only in a column of their own name. A table made with --exact-names is applied with --exact-names</source>
        <translation>%1; leere Zellen entfernen Texte nur in einer Spalte mit deren eigenem Namen. Eine mit --exact-names erstellte Tabelle wird mit --exact-names angewendet</translation>
    </message>
    <message>
        <source>%1, which is a column as well</source>
        <translation>%1, das auch eine Spalte ist</translation>
    </message>
    <message>
        <source>%1, which the column %2 stands for as well</source>
        <translation>%1, für das auch die Spalte %2 steht</translation>
    </message>
    <message>
        <source>&quot;%1&quot; became the number %2</source>
        <translation>„%1“ wurde die Zahl %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; became &quot;%2&quot;: %3</source>
        <translation>„%1“ wurde „%2“: %3</translation>
    </message>
    <message>
        <source>part</source>
        <translation>Bauteil</translation>
    </message>
    <message>
        <source>parts</source>
        <translation>Bauteile</translation>
    </message>
    <message>
        <source>&quot;%1&quot; on %2</source>
        <translation>„%1“ bei %2</translation>
    </message>
    <message>
        <source>%1; each name is read by itself only</source>
        <translation>%1; jeder Name wird nur für sich gelesen</translation>
    </message>
    <message>
        <source>different texts on %1 part: %2</source>
        <translation>verschiedene Texte bei %1 Bauteil: %2</translation>
    </message>
    <message>
        <source>different texts on %1 parts: %2</source>
        <translation>verschiedene Texte bei %1 Bauteilen: %2</translation>
    </message>
    <message>
        <source>: may be %1</source>
        <translation>: vielleicht %1</translation>
    </message>
    <message>
        <source>Not read, as the name does not say it for certain</source>
        <translation>Nicht gelesen, weil der Name nicht eindeutig ist</translation>
    </message>
    <message>
        <source>To have one read, write it below its meaning into %1:</source>
        <translation>Damit einer gelesen wird, schreiben Sie ihn unter seine Bedeutung in %1:</translation>
    </message>
    <message>
        <source>Without a known meaning</source>
        <translation>Ohne bekannte Bedeutung</translation>
    </message>
    <message>
        <source>no part has a property besides value and footprint</source>
        <translation>kein Bauteil hat eine Eigenschaft außer Wert und Footprint</translation>
    </message>
    <message>
        <source>unknown locale &quot;%1&quot;</source>
        <translation>unbekanntes Gebietsschema „%1“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no text in UTF-8</source>
        <translation>„%1“ ist kein Text in UTF-8</translation>
    </message>
    <message>
        <source>; did you mean &quot;%1&quot;?</source>
        <translation>; meinten Sie „%1“?</translation>
    </message>
    <message>
        <source>new property %1 on %2 part</source>
        <translation>neue Eigenschaft %1 bei %2 Bauteil</translation>
    </message>
    <message>
        <source>new property %1 on %2 parts</source>
        <translation>neue Eigenschaft %1 bei %2 Bauteilen</translation>
    </message>
    <message>
        <source>%1 is a new property of the design, which has one of nearly the same name: %2</source>
        <translation>%1 ist eine neue Eigenschaft des Entwurfs, der eine fast gleichen Namens hat: %2</translation>
    </message>
    <message>
        <source>Yes or No</source>
        <translation>Yes oder No</translation>
    </message>
    <message>
        <source>High or Low</source>
        <translation>High oder Low</translation>
    </message>
    <message>
        <source>True or False</source>
        <translation>True oder False</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>eine ganze Zahl</translation>
    </message>
    <message>
        <source>a decimal number</source>
        <translation>eine Dezimalzahl</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>--fields: a name is missing between two commas</source>
        <translation>--fields: Zwischen zwei Kommas fehlt ein Name</translation>
    </message>
    <message>
        <source>--labels: there are more labels than fields</source>
        <translation>--labels: Es gibt mehr Überschriften als Felder</translation>
    </message>
    <message>
        <source>%1: this folder has no design in it (a .kicad_sch, .kicad_pro or .csv file)</source>
        <translation>%1: Dieser Ordner enthält keinen Entwurf (eine Datei .kicad_sch, .kicad_pro oder .csv)</translation>
    </message>
    <message>
        <source>reading %1</source>
        <translation>%1 wird gelesen</translation>
    </message>
    <message>
        <source>the project has no BOM preset &quot;%1&quot; (it has none)</source>
        <translation>das Projekt hat keine Stücklisten-Voreinstellung „%1“ (es hat gar keine)</translation>
    </message>
    <message>
        <source>the project has no BOM preset &quot;%1&quot;%2 (it has %3)</source>
        <translation>das Projekt hat keine Stücklisten-Voreinstellung „%1“%2 (es hat %3)</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2</source>
        <translation>%1: kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>--excel-csv needs an output of CSV (bom report --help tells more)</source>
        <translation>--excel-csv braucht eine Ausgabe als CSV (mehr mit bom report --help)</translation>
    </message>
    <message>
        <source>an output needs a file name</source>
        <translation>eine Ausgabe braucht einen Dateinamen</translation>
    </message>
    <message>
        <source>the ending says no form of a report; -o takes .csv, .html, .json, .pdf, .txt and .xlsx, other names need --csv or its like</source>
        <translation>die Endung steht für keine Form des Berichts; -o nimmt .csv, .html, .json, .pdf, .txt und .xlsx, andere Namen brauchen --csv oder eine ähnliche Option</translation>
    </message>
    <message>
        <source>two outputs cannot go to the same file</source>
        <translation>zwei Ausgaben können nicht in dieselbe Datei gehen</translation>
    </message>
    <message>
        <source>belongs to the design and is not overwritten</source>
        <translation>gehört zum Entwurf und wird nicht überschrieben</translation>
    </message>
    <message>
        <source>references of BOM-only parts and of other parts: %1</source>
        <translation>Referenzen von Stücklistenbauteilen und von anderen Bauteilen: %1</translation>
    </message>
    <message>
        <source>nothing was written: %1 reference occurs more than once (--allow-duplicates lists the first of each)</source>
        <translation>nichts wurde geschrieben: %1 Referenz kommt mehrfach vor (--allow-duplicates führt das jeweils erste Bauteil auf)</translation>
    </message>
    <message>
        <source>nothing was written: %1 references occur more than once (--allow-duplicates lists the first of each)</source>
        <translation>nichts wurde geschrieben: %1 Referenzen kommen mehrfach vor (--allow-duplicates führt das jeweils erste Bauteil auf)</translation>
    </message>
    <message>
        <source>%1; the report is without these notes</source>
        <translation>%1; diese Notizen fehlen im Bericht</translation>
    </message>
    <message>
        <source>no fonts are installed</source>
        <translation>es sind keine Schriften installiert</translation>
    </message>
    <message>
        <source>%1: is not written: %2</source>
        <translation>%1: wird nicht geschrieben: %2</translation>
    </message>
    <message>
        <source>there is no assembly service &quot;%1&quot;%2 (known: %3)</source>
        <translation>es gibt keinen Bestückungsdienst „%1“%2 (bekannt: %3)</translation>
    </message>
    <message>
        <source>--for leaves out parts that are not fitted, and --dnp only leaves out all others</source>
        <translation>--for lässt nicht bestückte Bauteile weg und --dnp only alle anderen</translation>
    </message>
    <message>
        <source>--for writes .csv and .xlsx, and CSV to standard output (-)</source>
        <translation>--for schreibt .csv und .xlsx sowie CSV auf die Standardausgabe (-)</translation>
    </message>
    <message>
        <source>%1: %2 part has no &quot;%3&quot; (%4): %5</source>
        <translation>%1: %2 Bauteil hat kein „%3“ (%4): %5</translation>
    </message>
    <message>
        <source>%1: %2 parts have no &quot;%3&quot; (%4): %5</source>
        <translation>%1: %2 Bauteile haben kein „%3“ (%4): %5</translation>
    </message>
    <message>
        <source>%1 are one designator there, where letter case does not count</source>
        <translation>%1 sind dort dieselbe Referenz, weil Groß- und Kleinschreibung nicht zählt</translation>
    </message>
    <message>
        <source> and </source>
        <translation> und </translation>
    </message>
    <message>
        <source>the rows of %1 and %2 look alike; their parts differ in %3</source>
        <translation>die Zeilen von %1 und %2 sehen gleich aus; ihre Bauteile unterscheiden sich in %3</translation>
    </message>
    <message>
        <source>%1: %2 more rows or designators like these</source>
        <translation>%1: %2 weitere solche Zeilen oder Referenzen</translation>
    </message>
    <message>
        <source>zeros in front are gone</source>
        <translation>führende Nullen fehlen</translation>
    </message>
    <message>
        <source>it is taken for a number with an exponent</source>
        <translation>es gilt als Zahl mit Exponent</translation>
    </message>
    <message>
        <source>digits behind the 15th are gone</source>
        <translation>die Ziffern nach der 15. fehlen</translation>
    </message>
    <message>
        <source>it is taken for a time</source>
        <translation>es gilt als Uhrzeit</translation>
    </message>
    <message>
        <source>it is taken for true or false</source>
        <translation>es gilt als Wahrheitswert</translation>
    </message>
    <message>
        <source>it is taken for a date</source>
        <translation>es gilt als Datum</translation>
    </message>
    <message>
        <source>it is taken for a formula</source>
        <translation>es gilt als Formel</translation>
    </message>
    <message>
        <source>characters are gone that its encoding lacks</source>
        <translation>Zeichen fehlen, die es in der Kodierung nicht gibt</translation>
    </message>
    <message>
        <source>tabs are gone</source>
        <translation>Tabulatoren fehlen</translation>
    </message>
    <message>
        <source>the file cannot be read: %1</source>
        <translation>die Datei kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>the file is larger than %1 MiB, the most that a spreadsheet may have</source>
        <translation>die Datei ist größer als %1 MiB; mehr darf ein Tabellendokument nicht haben</translation>
    </message>
    <message>
        <source>%1 row is hidden and is read like the others</source>
        <translation>%1 Zeile ist ausgeblendet und wird wie die anderen gelesen</translation>
    </message>
    <message>
        <source>%1 rows are hidden and are read like the others</source>
        <translation>%1 Zeilen sind ausgeblendet und werden wie die anderen gelesen</translation>
    </message>
    <message>
        <source>sheet %1: %2</source>
        <translation>Blatt %1: %2</translation>
    </message>
    <message>
        <source>of %1 sheets &quot;%2&quot; is read (--sheet takes another)</source>
        <translation>von %1 Blättern wird „%2“ gelesen (--sheet nimmt ein anderes)</translation>
    </message>
    <message>
        <source>there is no sheet &quot;%1&quot;; the file has %2</source>
        <translation>es gibt kein Blatt „%1“; die Datei hat %2</translation>
    </message>
    <message>
        <source>no sheet has a heading for references, such as Reference or Designator</source>
        <translation>kein Blatt hat eine Überschrift für Referenzen wie Reference oder Designator</translation>
    </message>
    <message>
        <source>there is no template &quot;%1&quot;%2 (bom template list names them)</source>
        <translation>es gibt keine Vorlage „%1“%2 (bom template list nennt alle)</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>prefix %1</source>
        <translation>Präfix %1</translation>
    </message>
    <message>
        <source>suffix %1</source>
        <translation>Suffix %1</translation>
    </message>
    <message>
        <source>on empty values too</source>
        <translation>auch bei leeren Werten</translation>
    </message>
    <message>
        <source>totals with %1 decimal</source>
        <translation>Summen mit %1 Dezimalstelle</translation>
    </message>
    <message>
        <source>totals with %1 decimals</source>
        <translation>Summen mit %1 Dezimalstellen</translation>
    </message>
    <message>
        <source>links</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>at most %1 character</source>
        <translation>höchstens %1 Zeichen</translation>
    </message>
    <message>
        <source>at most %1 characters</source>
        <translation>höchstens %1 Zeichen</translation>
    </message>
    <message>
        <source>all other parts</source>
        <translation>alle anderen Bauteile</translation>
    </message>
    <message>
        <source>Style sheet</source>
        <translation>Stylesheet</translation>
    </message>
    <message>
        <source>default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>its own</source>
        <translation>eigenes</translation>
    </message>
    <message>
        <source>Document header</source>
        <translation>Dokumentkopf</translation>
    </message>
    <message>
        <source>Document footer</source>
        <translation>Dokumentfuß</translation>
    </message>
    <message>
        <source>Page header</source>
        <translation>Seitenkopf</translation>
    </message>
    <message>
        <source>Page footer</source>
        <translation>Seitenfuß</translation>
    </message>
    <message>
        <source>References</source>
        <translation>Referenzen</translation>
    </message>
    <message>
        <source>shortened (R1-R7)</source>
        <translation>zusammengefasst (R1-R7)</translation>
    </message>
    <message>
        <source>individual (R1,R2...)</source>
        <translation>einzeln (R1,R2...)</translation>
    </message>
    <message>
        <source>Suppress empty categories</source>
        <translation>Leere Kategorien weglassen</translation>
    </message>
    <message>
        <source>Case sensitive part grouping</source>
        <translation>Groß- und Kleinschreibung beim Zusammenfassen beachten</translation>
    </message>
    <message>
        <source>Append notes</source>
        <translation>Notizen anhängen</translation>
    </message>
    <message>
        <source>Manual table column widths</source>
        <translation>Spaltenbreiten der Tabelle selbst festlegen</translation>
    </message>
    <message>
        <source>Always quote references (CSV only)</source>
        <translation>Referenzen immer in Anführungszeichen (nur CSV)</translation>
    </message>
    <message>
        <source>Exclude value field (data outputs)</source>
        <translation>Feld „Value“ weglassen (Datenausgaben)</translation>
    </message>
    <message>
        <source>Layout for reading</source>
        <translation>Zum Lesen gestalten</translation>
    </message>
    <message>
        <source>comes with the program</source>
        <translation>gehört zum Programm</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>noch keine</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Vorlage</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Columns:</source>
        <translation>Spalten:</translation>
    </message>
    <message>
        <source>Categories:</source>
        <translation>Kategorien:</translation>
    </message>
    <message>
        <source>properties without a definition: %1</source>
        <translation>Eigenschaften ohne Definition: %1</translation>
    </message>
    <message>
        <source>the design has no variants</source>
        <translation>der Entwurf hat keine Varianten</translation>
    </message>
</context>
<context>
    <name>DesignFile</name>
    <message>
        <source>reading was stopped</source>
        <translation>das Lesen wurde abgebrochen</translation>
    </message>
    <message>
        <source>this design cannot be changed</source>
        <translation>dieser Entwurf kann nicht geändert werden</translation>
    </message>
    <message>
        <source>this is a folder, not a file</source>
        <translation>dies ist ein Ordner, keine Datei</translation>
    </message>
    <message>
        <source>this is a device or pipe, not a file</source>
        <translation>dies ist ein Gerät oder eine Pipe, keine Datei</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>the file is larger than 2 GiB</source>
        <translation>die Datei ist größer als 2 GiB</translation>
    </message>
    <message>
        <source>this is no file of this kind: it does not begin with &quot;%1&quot;</source>
        <translation>dies ist keine Datei dieser Art: Sie beginnt nicht mit „%1“</translation>
    </message>
    <message>
        <source>cannot be read to its end: %1</source>
        <translation>kann nicht bis zum Ende gelesen werden: %1</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>this is a folder; give the .kicad_sch, .kicad_pro or .csv file in it</source>
        <translation>dies ist ein Ordner; geben Sie die .kicad_sch-, .kicad_pro- oder .csv-Datei darin an</translation>
    </message>
    <message>
        <source>this is a schematic of KiCad 5 or earlier; open it in KiCad 6 or later and save it</source>
        <translation>dies ist ein Schaltplan von KiCad 5 oder früher; öffnen und speichern Sie ihn in KiCad 6 oder neuer</translation>
    </message>
    <message>
        <source>this is a board; give the schematic or the project</source>
        <translation>dies ist eine Leiterplatte; geben Sie den Schaltplan oder das Projekt an</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>„%1“</translation>
    </message>
</context>
<context>
    <name>DesignNotes</name>
    <message>
        <source>The notes were changed by another program after they were loaded</source>
        <translation>Die Notizen wurden nach dem Laden von einem anderen Programm geändert</translation>
    </message>
    <message>
        <source>No design is open</source>
        <translation>Kein Entwurf ist geöffnet</translation>
    </message>
</context>
<context>
    <name>DesignReading</name>
    <message>
        <source>Another design is being read at the moment.</source>
        <translation>Zurzeit wird ein anderer Entwurf gelesen.</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>%1 wird gelesen…</translation>
    </message>
    <message>
        <source>Preparing the report of %1…</source>
        <translation>Der Bericht von %1 wird vorbereitet…</translation>
    </message>
</context>
<context>
    <name>DesignSession</name>
    <message>
        <source>The design was written</source>
        <translation>Der Entwurf wurde geschrieben</translation>
    </message>
    <message>
        <source>It cannot be read again, and is shown as it was before: %1</source>
        <translation>Er kann nicht neu gelesen werden und wird gezeigt, wie er vorher war: %1</translation>
    </message>
    <message>
        <source>notes are at most 16 MB</source>
        <translation>Notizen haben höchstens 16 MB</translation>
    </message>
    <message>
        <source>the previous notes cannot be kept in %1</source>
        <translation>die vorherigen Notizen können nicht in %1 aufbewahrt werden</translation>
    </message>
    <message>
        <source>the previous notes cannot be kept in %1: %2</source>
        <translation>die vorherigen Notizen können nicht in %1 aufbewahrt werden: %2</translation>
    </message>
    <message>
        <source>is no file</source>
        <translation>ist keine Datei</translation>
    </message>
    <message>
        <source>is larger than 16 MB</source>
        <translation>ist größer als 16 MB</translation>
    </message>
    <message>
        <source>is no UTF-8 text</source>
        <translation>ist kein Text in UTF-8</translation>
    </message>
    <message>
        <source>no reference is named</source>
        <translation>keine Referenz ist genannt</translation>
    </message>
    <message>
        <source>is written again and again while it is read: try again when that has ended</source>
        <translation>wird während des Lesens immer wieder geschrieben: Versuchen Sie es noch einmal, wenn das beendet ist</translation>
    </message>
    <message>
        <source>the design has no place for such a text</source>
        <translation>der Entwurf hat keinen Platz für einen solchen Text</translation>
    </message>
    <message>
        <source>a board has no place for such a text</source>
        <translation>eine Leiterplatte hat keinen Platz für einen solchen Text</translation>
    </message>
</context>
<context>
    <name>DesignStatus</name>
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
        <source>: a text variable ${...} is not resolved</source>
        <translation>: Eine Textvariable ${...} ist nicht aufgelöst</translation>
    </message>
    <message>
        <source>1 part</source>
        <translation>1 Bauteil</translation>
    </message>
    <message>
        <source>%1 parts</source>
        <translation>%1 Bauteile</translation>
    </message>
    <message>
        <source>Parts that the report lists, of %1 components of the design</source>
        <translation>Bauteile, die der Bericht aufführt, von %1 Bauteilen des Entwurfs</translation>
    </message>
    <message>
        <source>Parts that the report lists, of %1 components of the design and %2 BOM-only parts</source>
        <translation>Bauteile, die der Bericht aufführt, von %1 Bauteilen des Entwurfs und %2 Stücklistenbauteilen</translation>
    </message>
    <message>
        <source>Components that are fitted and therefore not listed, see View &gt; Parts That Are Not Fitted</source>
        <translation>Bauteile, die bestückt und deshalb nicht aufgeführt sind, siehe Ansicht &gt; Nicht bestückte Bauteile</translation>
    </message>
    <message>
        <source>Components that are not fitted and therefore not listed, see View &gt; Parts That Are Not Fitted</source>
        <translation>Bauteile, die nicht bestückt und deshalb nicht aufgeführt sind, siehe Ansicht &gt; Nicht bestückte Bauteile</translation>
    </message>
    <message>
        <source>1 line</source>
        <translation>1 Position</translation>
    </message>
    <message>
        <source>%1 lines</source>
        <translation>%1 Positionen</translation>
    </message>
    <message>
        <source>Lines of the report</source>
        <translation>Positionen des Berichts</translation>
    </message>
    <message>
        <source>%1 skipped</source>
        <translation>%1 ausgeschlossen</translation>
    </message>
    <message>
        <source>Components that a mark of the design leaves out of the bill of materials</source>
        <translation>Bauteile, die eine Kennzeichnung des Entwurfs von der Stückliste ausschließt</translation>
    </message>
    <message>
        <source>Components that are not listed because others have the same reference</source>
        <translation>Bauteile, die nicht aufgeführt sind, weil andere dieselbe Referenz haben</translation>
    </message>
    <message>
        <source>%1 joined</source>
        <translation>%1 vermischt</translation>
    </message>
    <message>
        <source>Lines of the report that join parts which differ in the footprint, the part number or a rating</source>
        <translation>Positionen des Berichts mit Bauteilen, die sich in Footprint, Teilenummer oder einem Nennwert unterscheiden</translation>
    </message>
    <message>
        <source>%1 pending</source>
        <translation>%1 vorgemerkt</translation>
    </message>
    <message>
        <source>Edits that are not written into the design yet, see Edit &gt; Review Pending Changes</source>
        <translation>Änderungen, die noch nicht in den Entwurf geschrieben sind, siehe Bearbeiten &gt; Vorgemerkte Änderungen prüfen</translation>
    </message>
</context>
<context>
    <name>DesignWriting</name>
    <message>
        <source>the write could be neither completed nor taken back; the next command that reads the design tries again</source>
        <translation>der Schreibvorgang konnte weder abgeschlossen noch zurückgenommen werden; der nächste Befehl, der den Entwurf liest, versucht es wieder</translation>
    </message>
    <message>
        <source>was changed since it was written: nothing is taken back</source>
        <translation>wurde seit dem Schreiben geändert: Nichts wird zurückgenommen</translation>
    </message>
    <message>
        <source>is missing or damaged: nothing is taken back</source>
        <translation>fehlt oder ist beschädigt: Nichts wird zurückgenommen</translation>
    </message>
    <message>
        <source>was not written for that reason: try again</source>
        <translation>wurde aus diesem Grund nicht geschrieben: Versuchen Sie es noch einmal</translation>
    </message>
    <message>
        <source>there is nothing to take back</source>
        <translation>es gibt nichts zurückzunehmen</translation>
    </message>
    <message>
        <source>cannot be used: %1</source>
        <translation>kann nicht verwendet werden: %1</translation>
    </message>
    <message>
        <source>another program is just writing this design: try again when it has finished</source>
        <translation>ein anderes Programm schreibt diesen Entwurf gerade: Versuchen Sie es noch einmal, wenn es fertig ist</translation>
    </message>
    <message>
        <source>cannot be written: %1 cannot be created: %2</source>
        <translation>kann nicht geschrieben werden: %1 kann nicht angelegt werden: %2</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>cannot be removed: %1</source>
        <translation>kann nicht gelöscht werden: %1</translation>
    </message>
    <message>
        <source>cannot be written: %1 %2</source>
        <translation>kann nicht geschrieben werden: %1 %2</translation>
    </message>
    <message>
        <source>cannot be created: %1</source>
        <translation>kann nicht angelegt werden: %1</translation>
    </message>
    <message>
        <source>cannot get its permissions: %1</source>
        <translation>kann ihre Zugriffsrechte nicht erhalten: %1</translation>
    </message>
    <message>
        <source>cannot be opened again: %1</source>
        <translation>kann nicht erneut geöffnet werden: %1</translation>
    </message>
    <message>
        <source>cannot be replaced: %1</source>
        <translation>kann nicht ersetzt werden: %1</translation>
    </message>
    <message>
        <source>the folder cannot be made: %1</source>
        <translation>der Ordner kann nicht angelegt werden: %1</translation>
    </message>
    <message>
        <source>the folder cannot be written: %1</source>
        <translation>in den Ordner kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>cannot be looked at: %1</source>
        <translation>kann nicht geprüft werden: %1</translation>
    </message>
    <message>
        <source>was changed since it was read</source>
        <translation>wurde seit dem Lesen geändert</translation>
    </message>
    <message>
        <source>its new content is not the one that was checked</source>
        <translation>ihr neuer Inhalt ist nicht der geprüfte</translation>
    </message>
    <message>
        <source>cannot be written: %1 or %2 does not hold what was written to it</source>
        <translation>kann nicht geschrieben werden: %1 oder %2 enthält nicht, was hineingeschrieben wurde</translation>
    </message>
    <message>
        <source>cannot get its previous content again: it does not stand any more in %1</source>
        <translation>kann ihren vorherigen Inhalt nicht zurückerhalten: Er steht nicht mehr in %1</translation>
    </message>
    <message>
        <source>holds the new content</source>
        <translation>hat den neuen Inhalt</translation>
    </message>
    <message>
        <source>holds the previous content</source>
        <translation>hat den vorherigen Inhalt</translation>
    </message>
    <message>
        <source>was changed meanwhile</source>
        <translation>wurde inzwischen geändert</translation>
    </message>
    <message>
        <source>cannot be read any more</source>
        <translation>kann nicht mehr gelesen werden</translation>
    </message>
    <message>
        <source>%1; the new content stands in %2</source>
        <translation>%1; der neue Inhalt steht in %2</translation>
    </message>
    <message>
        <source>%1; the previous content stands in %2</source>
        <translation>%1; der vorherige Inhalt steht in %2</translation>
    </message>
    <message>
        <source>%1 is a symbolic link</source>
        <translation>%1 ist ein symbolischer Link</translation>
    </message>
    <message>
        <source>it is no ordinary file</source>
        <translation>sie ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>it cannot be read: %1</source>
        <translation>sie kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>sie ist zu groß</translation>
    </message>
    <message>
        <source>it is damaged or of another version</source>
        <translation>sie ist beschädigt oder von einer anderen Version</translation>
    </message>
    <message>
        <source>it is damaged or names files that are none of this design</source>
        <translation>sie ist beschädigt oder nennt Dateien, die nicht zu diesem Entwurf gehören</translation>
    </message>
    <message>
        <source>somebody</source>
        <translation>jemand</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 auf %2</translation>
    </message>
    <message>
        <source>is open in KiCad (%1): close it there; if it is open nowhere, delete %2</source>
        <translation>ist in KiCad geöffnet (%1): Schließen Sie die Datei dort; ist sie nirgends geöffnet, löschen Sie %2</translation>
    </message>
    <message>
        <source>belongs to %1, which %2</source>
        <translation>gehört zu %1; diese Datei %2</translation>
    </message>
    <message>
        <source>was being written when that was interrupted, which can now be neither completed nor taken back</source>
        <translation>wurde gerade geschrieben, als das unterbrochen wurde; jetzt kann es weder abgeschlossen noch zurückgenommen werden</translation>
    </message>
    <message>
        <source>tells of an interrupted write, but cannot be used: %1. Nothing was touched. Check the files of the design, then delete this one</source>
        <translation>berichtet von einem unterbrochenen Schreibvorgang, kann aber nicht verwendet werden: %1. Nichts wurde angerührt. Prüfen Sie die Dateien des Entwurfs und löschen Sie dann diese</translation>
    </message>
    <message>
        <source>a write was interrupted before it changed any file: what it had prepared was removed</source>
        <translation>ein Schreibvorgang wurde unterbrochen, bevor er eine Datei änderte: Was vorbereitet war, wurde gelöscht</translation>
    </message>
    <message>
        <source>was changed after an interrupted write had replaced it: it was left as it is now</source>
        <translation>wurde geändert, nachdem ein unterbrochener Schreibvorgang sie ersetzt hatte: Sie bleibt, wie sie jetzt ist</translation>
    </message>
    <message>
        <source>an interrupted write was completed</source>
        <translation>ein unterbrochener Schreibvorgang wurde abgeschlossen</translation>
    </message>
    <message>
        <source>was changed while a write was interrupted: it was left as it is now</source>
        <translation>wurde geändert, während ein Schreibvorgang unterbrochen war: Sie bleibt, wie sie jetzt ist</translation>
    </message>
    <message>
        <source>an interrupted write was taken back: none of its changes is in the files, make them again</source>
        <translation>ein unterbrochener Schreibvorgang wurde zurückgenommen: Keine seiner Änderungen steht in den Dateien, nehmen Sie sie noch einmal vor</translation>
    </message>
    <message>
        <source>a write was interrupted and files were changed since, so that it can neither be completed nor taken back. Nothing was touched. Bring the files named here into order, then delete %1</source>
        <translation>ein Schreibvorgang wurde unterbrochen, und seither wurden Dateien geändert, sodass er weder abgeschlossen noch zurückgenommen werden kann. Nichts wurde angerührt. Bringen Sie die hier genannten Dateien in Ordnung und löschen Sie dann %1</translation>
    </message>
    <message>
        <source>a write was interrupted, but this file %1</source>
        <translation>ein Schreibvorgang wurde unterbrochen, aber diese Datei %1</translation>
    </message>
    <message>
        <source>does not exist any more</source>
        <translation>gibt es nicht mehr</translation>
    </message>
    <message>
        <source>is named twice among the files to write</source>
        <translation>ist unter den Dateien, die zu schreiben sind, zweimal genannt</translation>
    </message>
    <message>
        <source>is no ordinary file</source>
        <translation>ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>has %1 names (hard links), and writing would separate them: put a copy in its place, or work on the copy</source>
        <translation>hat %1 Namen (Hardlinks), und das Schreiben würde sie trennen: Setzen Sie eine Kopie an ihre Stelle oder arbeiten Sie an der Kopie</translation>
    </message>
    <message>
        <source>is no file of this design</source>
        <translation>ist keine Datei dieses Entwurfs</translation>
    </message>
    <message>
        <source>lies outside the design&apos;s folder and is of another kind</source>
        <translation>liegt außerhalb des Ordners des Entwurfs und ist von anderer Art</translation>
    </message>
    <message>
        <source>may not be written: %1</source>
        <translation>darf nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>may not be written: it is read-only</source>
        <translation>darf nicht geschrieben werden: Sie ist schreibgeschützt</translation>
    </message>
    <message>
        <source>cannot be replaced, because its folder may not be written: %1</source>
        <translation>kann nicht ersetzt werden, weil in ihren Ordner nicht geschrieben werden darf: %1</translation>
    </message>
    <message>
        <source>is in the way of a backup</source>
        <translation>ist einer Sicherungskopie im Weg</translation>
    </message>
    <message>
        <source>the folder may not be written: %1</source>
        <translation>in den Ordner darf nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>is in the way of the folder for backups</source>
        <translation>ist dem Ordner für Sicherungskopien im Weg</translation>
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
    <name>DroppedFiles</name>
    <message>
        <source>There is no design in the folder %1.</source>
        <translation>Im Ordner %1 ist kein Entwurf.</translation>
    </message>
    <message>
        <source>%1 is no design: drop a .kicad_sch, .kicad_pro or .csv file.</source>
        <translation>%1 ist kein Entwurf: Ziehen Sie eine Datei .kicad_sch, .kicad_pro oder .csv auf das Fenster.</translation>
    </message>
    <message>
        <source>The folder %1 holds %2 designs: choose one of them.</source>
        <translation>Der Ordner %1 enthält %2 Entwürfe: Wählen Sie einen davon.</translation>
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
        <translation>Ziehen Sie einen KiCad-Schaltplan (.kicad_sch), ein KiCad-Projekt (.kicad_pro) oder eine Teileliste (.csv) auf dieses Fenster, oder wählen Sie eine Datei.</translation>
    </message>
    <message>
        <source>Edits That Are Not Written</source>
        <translation>Nicht geschriebene Änderungen</translation>
    </message>
    <message>
        <source>Recent Designs</source>
        <translation>Zuletzt geöffnete Entwürfe</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Beispiele</translation>
    </message>
    <message>
        <source>Not there any more:</source>
        <translation>Nicht mehr vorhanden:</translation>
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
        <source>the design is not there any more:</source>
        <translation>der Entwurf ist nicht mehr vorhanden:</translation>
    </message>
    <message>
        <source>Opens the design and offers to go on with the edits</source>
        <translation>Öffnet den Entwurf und bietet an, die Änderungen fortzusetzen</translation>
    </message>
    <message>
        <source>Opens a copy in your documents, which you may change</source>
        <translation>Öffnet eine Kopie in Ihren Dokumenten, die Sie ändern können</translation>
    </message>
</context>
<context>
    <name>ExampleDesigns</name>
    <message>
        <source>The example cannot be copied into your documents: %1</source>
        <translation>Das Beispiel kann nicht in Ihre Dokumente kopiert werden: %1</translation>
    </message>
</context>
<context>
    <name>FieldMeaning</name>
    <message>
        <source>maker&apos;s part number</source>
        <translation>Teilenummer des Herstellers</translation>
    </message>
    <message>
        <source>the house&apos;s own number</source>
        <translation>eigene Nummer des Hauses</translation>
    </message>
    <message>
        <source>maker</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>supplier</source>
        <translation>Lieferant</translation>
    </message>
    <message>
        <source>supplier&apos;s part number</source>
        <translation>Teilenummer des Lieferanten</translation>
    </message>
    <message>
        <source>LCSC&apos;s number</source>
        <translation>Nummer bei LCSC</translation>
    </message>
    <message>
        <source>DigiKey&apos;s number</source>
        <translation>Nummer bei DigiKey</translation>
    </message>
    <message>
        <source>Mouser&apos;s number</source>
        <translation>Nummer bei Mouser</translation>
    </message>
    <message>
        <source>Farnell&apos;s number</source>
        <translation>Nummer bei Farnell</translation>
    </message>
    <message>
        <source>Newark&apos;s number</source>
        <translation>Nummer bei Newark</translation>
    </message>
    <message>
        <source>RS&apos;s number</source>
        <translation>Nummer bei RS</translation>
    </message>
    <message>
        <source>TME&apos;s number</source>
        <translation>Nummer bei TME</translation>
    </message>
    <message>
        <source>Arrow&apos;s number</source>
        <translation>Nummer bei Arrow</translation>
    </message>
    <message>
        <source>Avnet&apos;s number</source>
        <translation>Nummer bei Avnet</translation>
    </message>
    <message>
        <source>Future&apos;s number</source>
        <translation>Nummer bei Future</translation>
    </message>
    <message>
        <source>Conrad&apos;s number</source>
        <translation>Nummer bei Conrad</translation>
    </message>
    <message>
        <source>Reichelt&apos;s number</source>
        <translation>Nummer bei Reichelt</translation>
    </message>
    <message>
        <source>Distrelec&apos;s number</source>
        <translation>Nummer bei Distrelec</translation>
    </message>
    <message>
        <source>Bürklin&apos;s number</source>
        <translation>Nummer bei Bürklin</translation>
    </message>
    <message>
        <source>Rutronik&apos;s number</source>
        <translation>Nummer bei Rutronik</translation>
    </message>
    <message>
        <source>Verical&apos;s number</source>
        <translation>Nummer bei Verical</translation>
    </message>
    <message>
        <source>TTI&apos;s number</source>
        <translation>Nummer bei TTI</translation>
    </message>
    <message>
        <source>price of one piece</source>
        <translation>Preis pro Stück</translation>
    </message>
    <message>
        <source>description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>datasheet</source>
        <translation>Datenblatt</translation>
    </message>
    <message>
        <source>tolerance</source>
        <translation>Toleranz</translation>
    </message>
    <message>
        <source>voltage rating</source>
        <translation>Nennspannung</translation>
    </message>
    <message>
        <source>current rating</source>
        <translation>Nennstrom</translation>
    </message>
    <message>
        <source>power rating</source>
        <translation>Nennleistung</translation>
    </message>
    <message>
        <source>dielectric</source>
        <translation>Dielektrikum</translation>
    </message>
    <message>
        <source>temperature coefficient</source>
        <translation>Temperaturkoeffizient</translation>
    </message>
    <message>
        <source>do not fit</source>
        <translation>nicht bestücken</translation>
    </message>
    <message>
        <source>substitute</source>
        <translation>Ersatz</translation>
    </message>
    <message>
        <source>no field for people</source>
        <translation>nicht für Menschen bestimmt</translation>
    </message>
</context>
<context>
    <name>FieldTable</name>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>is no UTF-8 text; nothing of it is read</source>
        <translation>ist kein Text in UTF-8; nichts davon wird gelesen</translation>
    </message>
    <message>
        <source>has no names of properties</source>
        <translation>enthält keine Namen von Eigenschaften</translation>
    </message>
    <message>
        <source>%1 more lines are passed over</source>
        <translation>%1 weitere Zeilen werden übergangen</translation>
    </message>
    <message>
        <source>%1 is no heading such as [mpn] or [mpn] maker&apos;s part number; it is passed over with its names</source>
        <translation>%1 ist keine Überschrift wie [mpn] oder [mpn] Teilenummer des Herstellers; sie wird mit ihren Namen übergangen</translation>
    </message>
    <message>
        <source>there are more than %1 meanings</source>
        <translation>es gibt mehr als %1 Bedeutungen</translation>
    </message>
    <message>
        <source>%1 stands below no heading such as [mpn]; it is passed over</source>
        <translation>%1 steht unter keiner Überschrift wie [mpn] und wird übergangen</translation>
    </message>
    <message>
        <source>%1 is no name of a property; it is passed over</source>
        <translation>%1 ist kein Name einer Eigenschaft und wird übergangen</translation>
    </message>
    <message>
        <source>a table has at most %1 names; this one is passed over</source>
        <translation>eine Tabelle hat höchstens %1 Namen; dieser wird übergangen</translation>
    </message>
    <message>
        <source>%1 is always read by its own name; it is passed over</source>
        <translation>%1 wird immer unter dem eigenen Namen gelesen und hier übergangen</translation>
    </message>
    <message>
        <source>%1 stands under %2 already (line %3); it is passed over</source>
        <translation>%1 steht schon unter %2 (Zeile %3) und wird übergangen</translation>
    </message>
    <message>
        <source>a table has at most %1 names with &quot;@&quot; or &quot;*&quot;</source>
        <translation>eine Tabelle hat höchstens %1 Namen mit „@“ oder „*“</translation>
    </message>
    <message>
        <source>is larger than 1 MB; its names of properties are not known</source>
        <translation>ist größer als 1 MB; ihre Namen von Eigenschaften sind nicht bekannt</translation>
    </message>
    <message>
        <source>%1; its names of properties are not known</source>
        <translation>%1; ihre Namen von Eigenschaften sind nicht bekannt</translation>
    </message>
    <message>
        <source>is larger than 1 MB, which no description of a service is</source>
        <translation>ist größer als 1 MB, mehr hat keine Beschreibung eines Dienstes</translation>
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
    <name>FindBar</name>
    <message>
        <source>Match case</source>
        <translation>Groß-/Kleinschreibung</translation>
    </message>
    <message>
        <source>Find in the report</source>
        <translation>Im Bericht suchen</translation>
    </message>
    <message>
        <source>Clear the text</source>
        <translation>Text löschen</translation>
    </message>
    <message>
        <source>Previous hit</source>
        <translation>Vorherige Fundstelle</translation>
    </message>
    <message>
        <source>Previous hit (Shift+F3)</source>
        <translation>Vorherige Fundstelle (Umschalt+F3)</translation>
    </message>
    <message>
        <source>Next hit</source>
        <translation>Nächste Fundstelle</translation>
    </message>
    <message>
        <source>Next hit (F3)</source>
        <translation>Nächste Fundstelle (F3)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close the find bar (Esc)</source>
        <translation>Suchleiste schließen (Esc)</translation>
    </message>
    <message>
        <source>continued from the top</source>
        <translation>oben fortgesetzt</translation>
    </message>
    <message>
        <source>continued from the bottom</source>
        <translation>unten fortgesetzt</translation>
    </message>
    <message>
        <source>%1 hits</source>
        <translation>%1 Fundstellen</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Suche läuft…</translation>
    </message>
    <message>
        <source>1 hit</source>
        <translation>1 Fundstelle</translation>
    </message>
</context>
<context>
    <name>FittedTemplate</name>
    <message>
        <source>too many columns; without one are: %1</source>
        <translation>zu viele Spalten; ohne eigene Spalte sind: %1</translation>
    </message>
    <message>
        <source>columns of the project&apos;s preset &quot;%1&quot;: %2</source>
        <translation>Spalten der Voreinstellung „%1“ des Projekts: %2</translation>
    </message>
    <message>
        <source>columns of the project&apos;s BOM settings: %1</source>
        <translation>Spalten der Stücklisteneinstellungen des Projekts: %1</translation>
    </message>
    <message>
        <source>%1; and %2, which tell parts apart</source>
        <translation>%1; dazu %2, um Bauteile zu unterscheiden</translation>
    </message>
    <message>
        <source>the filter &quot;%1&quot; of the project&apos;s BOM settings is not followed</source>
        <translation>der Filter „%1“ der Stücklisteneinstellungen des Projekts wird nicht angewendet</translation>
    </message>
    <message>
        <source>template %1 beside the design</source>
        <translation>Vorlage %1 neben dem Entwurf</translation>
    </message>
    <message>
        <source>template %1, as names are taken as they are</source>
        <translation>Vorlage %1, weil Namen genommen werden, wie sie sind</translation>
    </message>
    <message>
        <source>columns made for what the parts have: %1</source>
        <translation>Spalten nach dem, was die Bauteile haben: %1</translation>
    </message>
    <message>
        <source>columns %1</source>
        <translation>Spalten %1</translation>
    </message>
</context>
<context>
    <name>FrameWindow</name>
    <message>
        <source>Bill of Materials Viewer</source>
        <translation>Stücklistenanzeige</translation>
    </message>
    <message>
        <source>More of &apos;%1&apos;</source>
        <translation>Mehr von „%1“</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Account for every symbol of the design; list what needs a decision</source>
        <translation>Den Verbleib jedes Symbols des Entwurfs klären; aufführen, was zu entscheiden ist</translation>
    </message>
    <message>
        <source>Find the parts on which this property is empty or missing</source>
        <translation>Die Bauteile finden, bei denen diese Eigenschaft leer ist oder fehlt</translation>
    </message>
    <message>
        <source>Write JSON for programs instead of text for people</source>
        <translation>JSON für Programme statt Text für Menschen schreiben</translation>
    </message>
    <message>
        <source>Print the completion for a shell, or the manual page of the program</source>
        <translation>Die Vervollständigung für eine Shell oder die Handbuchseite des Programms ausgeben</translation>
    </message>
    <message>
        <source>bash, zsh, fish or man; services: the names that --for takes, one a line</source>
        <translation>bash, zsh, fish oder man; services: die Namen, die --for nimmt, einer je Zeile</translation>
    </message>
    <message>
        <source>Read a design whose files may not belong together, because a write was interrupted</source>
        <translation>Auch einen Entwurf lesen, dessen Dateien vielleicht nicht zusammengehören, weil ein Schreiben unterbrochen wurde</translation>
    </message>
    <message>
        <source>Find properties by their own names only, not by names of the same meaning (bom fields)</source>
        <translation>Eigenschaften nur unter ihrem eigenen Namen suchen, nicht unter Namen gleicher Bedeutung (bom fields)</translation>
    </message>
    <message>
        <source>KiCad schematic or project, or CSV part list, or a folder with one design in it</source>
        <translation>KiCad-Schaltplan oder -Projekt, Teileliste als CSV oder ein Ordner mit einem Entwurf darin</translation>
    </message>
    <message>
        <source>Apply the design&apos;s variant of this name</source>
        <translation>Die Variante des Entwurfs mit diesem Namen anwenden</translation>
    </message>
    <message>
        <source>Property definitions instead of the user&apos;s PROPDEFS.INI</source>
        <translation>Definitionen der Eigenschaften statt der PROPDEFS.INI des Benutzers</translation>
    </message>
    <message>
        <source>Leave out, list marked and not counted, or list only the parts that are not fitted</source>
        <translation>Nicht bestückte Bauteile weglassen, markiert und ungezählt aufführen oder als einzige aufführen</translation>
    </message>
    <message>
        <source>Template, or a .bomt file; without it &quot;Default&quot;</source>
        <translation>Vorlage oder eine .bomt-Datei; sonst „Default“</translation>
    </message>
    <message>
        <source>Template, or a .bomt file; without it one that fits the design</source>
        <translation>Vorlage oder eine .bomt-Datei; sonst eine, die zum Entwurf passt</translation>
    </message>
    <message>
        <source>Columns of these properties, such as Value,Footprint,MPN</source>
        <translation>Spalten mit diesen Eigenschaften, zum Beispiel Value,Footprint,MPN</translation>
    </message>
    <message>
        <source>Headings for --fields, in the same order</source>
        <translation>Überschriften für --fields in derselben Reihenfolge</translation>
    </message>
    <message>
        <source>Columns of a BOM preset of the KiCad project</source>
        <translation>Spalten einer Stücklisten-Voreinstellung des KiCad-Projekts</translation>
    </message>
    <message>
        <source>Check everything and tell what would change; write nothing</source>
        <translation>Alles prüfen und sagen, was sich ändern würde; nichts schreiben</translation>
    </message>
    <message>
        <source>Keep no copy of the files as they are before; bom undo needs one</source>
        <translation>Keine Kopie der bisherigen Dateien aufheben; bom undo braucht sie</translation>
    </message>
    <message>
        <source>Read numbers as in this locale, such as de_DE; C without it</source>
        <translation>Zahlen wie in diesem Gebietsschema lesen, zum Beispiel de_DE; sonst C</translation>
    </message>
    <message>
        <source>Give properties of parts new values in the design</source>
        <translation>Eigenschaften von Bauteilen im Entwurf neue Werte geben</translation>
    </message>
    <message>
        <source>References, such as R1 or R1,R4-R7</source>
        <translation>Referenzen, zum Beispiel R1 oder R1,R4-R7</translation>
    </message>
    <message>
        <source>Property with its new value; NAME= takes the property away</source>
        <translation>Eigenschaft mit ihrem neuen Wert; NAME= entfernt die Eigenschaft</translation>
    </message>
    <message>
        <source>Make a property that the design does not have, although it has one of nearly the same name</source>
        <translation>Eine Eigenschaft anlegen, die der Entwurf nicht hat, obwohl er eine fast gleichen Namens hat</translation>
    </message>
    <message>
        <source>Write the values that were changed in a report (.csv, .xlsx, .ods), or in any table with references, into the design</source>
        <translation>Die Werte, die in einem Bericht (.csv, .xlsx, .ods) oder einer anderen Tabelle mit Referenzen geändert wurden, in den Entwurf schreiben</translation>
    </message>
    <message>
        <source>Table (.csv, .xlsx or .ods); its headings are fields of the template or names of properties</source>
        <translation>Tabelle (.csv, .xlsx oder .ods); ihre Überschriften sind Felder der Vorlage oder Namen von Eigenschaften</translation>
    </message>
    <message>
        <source>Read this sheet of a spreadsheet; without it &quot;Parts&quot;, or the first that has references</source>
        <translation>Dieses Blatt eines Tabellendokuments lesen; sonst „Parts“ oder das erste mit Referenzen</translation>
    </message>
    <message>
        <source>Take all columns for properties, also those of headings that no part has yet</source>
        <translation>Alle Spalten als Eigenschaften nehmen, auch wenn noch kein Bauteil sie hat</translation>
    </message>
    <message>
        <source>Take the column of this heading for a property although no part has it yet</source>
        <translation>Die Spalte mit dieser Überschrift als Eigenschaft nehmen, obwohl noch kein Bauteil sie hat</translation>
    </message>
    <message>
        <source>Write also what spreadsheets make of texts by themselves: 0402 to 402, 1-2 to a date, the results of formulas</source>
        <translation>Auch schreiben, was Tabellenprogramme von selbst aus Texten machen: 402 aus 0402, ein Datum aus 1-2, die Ergebnisse von Formeln</translation>
    </message>
    <message>
        <source>Take back what was written into a design last</source>
        <translation>Zurücknehmen, was zuletzt in einen Entwurf geschrieben wurde</translation>
    </message>
    <message>
        <source>List the names of properties by what they mean: how many parts have them, where they disagree, which names are not read</source>
        <translation>Die Namen von Eigenschaften nach ihrer Bedeutung aufführen: wie viele Bauteile sie haben, wo sie sich widersprechen, welche Namen nicht gelesen werden</translation>
    </message>
    <message>
        <source>Explain the program or one of its commands</source>
        <translation>Das Programm oder einen seiner Befehle erklären</translation>
    </message>
    <message>
        <source>The command, such as report or template show</source>
        <translation>Der Befehl, zum Beispiel report oder template show</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Aufruf</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation>OPTIONEN</translation>
    </message>
    <message>
        <source>SUBCOMMAND</source>
        <translation>BEFEHL</translation>
    </message>
    <message>
        <source>SUBCOMMANDS</source>
        <translation>BEFEHLE</translation>
    </message>
    <message>
        <source>Positionals</source>
        <translation>Argumente</translation>
    </message>
    <message>
        <source>REQUIRED</source>
        <translation>(erforderlich)</translation>
    </message>
    <message>
        <source>Needs</source>
        <translation>nur mit</translation>
    </message>
    <message>
        <source>Excludes</source>
        <translation>nicht mit</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Subcommands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Print this help message and exit</source>
        <translation>Diese Hilfe ausgeben und beenden</translation>
    </message>
    <message>
        <source>Display program version information and exit</source>
        <translation>Die Version des Programms ausgeben und beenden</translation>
    </message>
    <message>
        <source>A subcommand is required</source>
        <translation>ein Befehl ist nötig</translation>
    </message>
    <message>
        <source>The following argument was not expected: %1</source>
        <translation>unerwartetes Argument: %1</translation>
    </message>
    <message>
        <source>The following arguments were not expected: %1</source>
        <translation>unerwartete Argumente: %1</translation>
    </message>
    <message>
        <source>Could not convert: %1 = %2</source>
        <translation>nicht lesbar: %1 = %2</translation>
    </message>
    <message>
        <source>The value %1 is not an allowed value for %2</source>
        <translation>%1 ist kein Wert, den %2 haben kann</translation>
    </message>
    <message>
        <source>Expected exactly %1 arguments to %2, got %3</source>
        <translation>genau %1 Argumente für %2 erwartet, nicht %3</translation>
    </message>
    <message>
        <source>Expected at least %1 arguments to %2, got %3</source>
        <translation>mindestens %1 Argumente für %2 erwartet, nicht %3</translation>
    </message>
    <message>
        <source>%1: the text must not be empty</source>
        <translation>%1: Der Text darf nicht leer sein</translation>
    </message>
    <message>
        <source>%1: %2 not in {%3}</source>
        <translation>%1: %2 ist keines von {%3}</translation>
    </message>
    <message>
        <source>%1: %2 required %3 missing</source>
        <translation>%1: Es fehlt der Wert (%2 × %3)</translation>
    </message>
    <message>
        <source>%1: At least %2 required but received %3</source>
        <translation>%1: mindestens %2 nötig, aber nur %3 angegeben</translation>
    </message>
    <message>
        <source>%1: At Most %2 required but received %3</source>
        <translation>%1: höchstens %2 möglich, aber %3 angegeben</translation>
    </message>
    <message>
        <source>%1: Should be true/false or a number</source>
        <translation>%1: true, false oder eine Zahl erwartet</translation>
    </message>
    <message>
        <source>%1 was given a disallowed flag override</source>
        <translation>%1 nimmt keinen Wert</translation>
    </message>
    <message>
        <source>%1 is required</source>
        <translation>%1 muss angegeben werden</translation>
    </message>
    <message>
        <source>%1 requires %2</source>
        <translation>%1 geht nur mit %2</translation>
    </message>
    <message>
        <source>%1 excludes %2</source>
        <translation>%1 geht nicht zusammen mit %2</translation>
    </message>
    <message>
        <source>Leave out notices on standard error; errors stay</source>
        <translation>Hinweise auf der Standardfehlerausgabe weglassen; Fehler bleiben</translation>
    </message>
    <message>
        <source>Bills of materials from KiCad designs and CSV part lists.</source>
        <translation>Stücklisten aus KiCad-Entwürfen und Teilelisten als CSV.</translation>
    </message>
    <message>
        <source>Exit status: 0 done; 1 the design has a problem that the user must decide on; 2 wrong usage; 3 an input cannot be read; 4 an output cannot be written.</source>
        <translation>Rückgabewert: 0 erledigt; 1 der Entwurf hat ein Problem, über das zu entscheiden ist; 2 falscher Aufruf; 3 eine Eingabe kann nicht gelesen werden; 4 eine Ausgabe kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>List every part with all its properties</source>
        <translation>Jedes Bauteil mit allen Eigenschaften aufführen</translation>
    </message>
    <message>
        <source>Write CSV with one row per line of the bill; - is standard output</source>
        <translation>CSV mit einer Zeile je Position schreiben; - ist die Standardausgabe</translation>
    </message>
    <message>
        <source>Write CSV with one row per part; - is standard output</source>
        <translation>CSV mit einer Zeile je Bauteil schreiben; - ist die Standardausgabe</translation>
    </message>
    <message>
        <source>Write text in columns of fixed widths; - is standard output</source>
        <translation>Text in Spalten fester Breite schreiben; - ist die Standardausgabe</translation>
    </message>
    <message>
        <source>Write a web page (XHTML); - is standard output</source>
        <translation>Eine Webseite (XHTML) schreiben; - ist die Standardausgabe</translation>
    </message>
    <message>
        <source>Write a PDF document; - is standard output</source>
        <translation>Ein PDF-Dokument schreiben; - ist die Standardausgabe</translation>
    </message>
    <message>
        <source>Write a spreadsheet (.xlsx); - is standard output</source>
        <translation>Ein Tabellendokument (.xlsx) schreiben; - ist die Standardausgabe</translation>
    </message>
    <message>
        <source>Write JSON for programs; - is standard output</source>
        <translation>JSON für Programme schreiben; - ist die Standardausgabe</translation>
    </message>
    <message>
        <source>Write the bill of materials; text in columns goes to standard output when no output is named</source>
        <translation>Die Stückliste schreiben; ohne genannte Ausgabe geht Text in Spalten auf die Standardausgabe</translation>
    </message>
    <message>
        <source>Write the form that the file&apos;s ending says: .csv, .html, .json, .pdf, .txt, .xlsx</source>
        <translation>Die Form schreiben, die die Endung der Datei sagt: .csv, .html, .json, .pdf, .txt, .xlsx</translation>
    </message>
    <message>
        <source>Write CSV as spreadsheet programs open it by a double click: with a byte order mark, and semicolons where --locale has a decimal comma</source>
        <translation>CSV so schreiben, wie Tabellenprogramme es bei Doppelklick öffnen: mit Byte-Order-Mark und mit Semikolons, wo --locale ein Dezimalkomma hat</translation>
    </message>
    <message>
        <source>Write the report although references occur more than once</source>
        <translation>Den Bericht schreiben, obwohl Referenzen mehrfach vorkommen</translation>
    </message>
    <message>
        <source>Format numbers as in this locale, such as de_DE; C without it</source>
        <translation>Zahlen wie in diesem Gebietsschema schreiben, zum Beispiel de_DE; sonst C</translation>
    </message>
    <message>
        <source>Write the file that an assembly service takes, .csv or .xlsx by its ending; - is CSV on standard output</source>
        <translation>Die Datei schreiben, die ein Bestückungsdienst annimmt, je nach Endung .csv oder .xlsx; - ist CSV auf der Standardausgabe</translation>
    </message>
    <message>
        <source>List, show, make and delete report templates</source>
        <translation>Berichtsvorlagen aufführen, zeigen, anlegen und löschen</translation>
    </message>
    <message>
        <source>List all templates</source>
        <translation>Alle Vorlagen aufführen</translation>
    </message>
    <message>
        <source>Print the settings of a template</source>
        <translation>Die Einstellungen einer Vorlage ausgeben</translation>
    </message>
    <message>
        <source>Template, or a .bomt file</source>
        <translation>Vorlage oder eine .bomt-Datei</translation>
    </message>
    <message>
        <source>Make a template</source>
        <translation>Eine Vorlage anlegen</translation>
    </message>
    <message>
        <source>Name of the new template</source>
        <translation>Name der neuen Vorlage</translation>
    </message>
    <message>
        <source>Take the settings of this template or .bomt file, not the defaults</source>
        <translation>Die Einstellungen dieser Vorlage oder .bomt-Datei nehmen statt der Standardwerte</translation>
    </message>
    <message>
        <source>Take the settings that a report of this design has without a template</source>
        <translation>Die Einstellungen nehmen, die ein Bericht dieses Entwurfs ohne Vorlage hat</translation>
    </message>
    <message>
        <source>Delete a template of your own</source>
        <translation>Eine eigene Vorlage löschen</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Vorlage</translation>
    </message>
    <message>
        <source>Put the template &quot;Default&quot; back to the default settings</source>
        <translation>Die Vorlage „Default“ auf die Standardwerte zurücksetzen</translation>
    </message>
    <message>
        <source>Take a .bomt file into your templates</source>
        <translation>Eine .bomt-Datei in die eigenen Vorlagen aufnehmen</translation>
    </message>
    <message>
        <source>The file; its name becomes the template&apos;s</source>
        <translation>Die Datei; ihr Name wird der der Vorlage</translation>
    </message>
    <message>
        <source>Make a template of a legacy BOM script</source>
        <translation>Eine Vorlage aus einem alten Stücklistenskript machen</translation>
    </message>
    <message>
        <source>The file with the script, usually .BSF</source>
        <translation>Die Datei mit dem Skript, meist .BSF</translation>
    </message>
    <message>
        <source>Which script, where the file has several</source>
        <translation>Welches Skript, wenn die Datei mehrere hat</translation>
    </message>
    <message>
        <source>Name of the new template, not the script&apos;s</source>
        <translation>Name der neuen Vorlage statt dem des Skripts</translation>
    </message>
    <message>
        <source>Copy a template to a file</source>
        <translation>Eine Vorlage in eine Datei kopieren</translation>
    </message>
    <message>
        <source>Where to; - is standard output</source>
        <translation>Wohin; - ist die Standardausgabe</translation>
    </message>
    <message>
        <source>List the variants of the design, for --variant</source>
        <translation>Die Varianten des Entwurfs aufführen, für --variant</translation>
    </message>
    <message>
        <source>Write JSON for programs instead of one name a line</source>
        <translation>JSON für Programme statt einen Namen je Zeile schreiben</translation>
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
    <name>JoinedLine</name>
    <message>
        <source>none on %1</source>
        <translation>kein Text bei %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; on %2</source>
        <translation>„%1“ bei %2</translation>
    </message>
    <message>
        <source>%1 and %2 more texts</source>
        <translation>%1 und %2 weitere Texte</translation>
    </message>
    <message>
        <source>%1 are one line and differ in %2: %3</source>
        <translation>%1 sind eine Position und unterscheiden sich in %2: %3</translation>
    </message>
</context>
<context>
    <name>KicadDesign</name>
    <message>
        <source>%1 is no object</source>
        <translation>%1 ist kein Objekt</translation>
    </message>
    <message>
        <source>%1 has no list &quot;fields_ordered&quot;</source>
        <translation>%1 hat keine Liste „fields_ordered“</translation>
    </message>
    <message>
        <source>some of the BOM settings cannot be read: %1</source>
        <translation>ein Teil der Stücklisteneinstellungen kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>%1 has more than %2 fields</source>
        <translation>%1 hat mehr als %2 Felder</translation>
    </message>
    <message>
        <source>%1 has a field without a name</source>
        <translation>%1 hat ein Feld ohne Namen</translation>
    </message>
    <message>
        <source>%1 is no list</source>
        <translation>%1 ist keine Liste</translation>
    </message>
    <message>
        <source>preset %1</source>
        <translation>Voreinstellung %1</translation>
    </message>
    <message>
        <source>the flags for BOM and population</source>
        <translation>den Kennzeichen für Stückliste und Bestückung</translation>
    </message>
    <message>
        <source>%1: its units differ in %2; the lowest unit that says something counts</source>
        <translation>%1: die Einheiten unterscheiden sich in %2; es gilt die unterste Einheit, die etwas angibt</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>%1: the symbol %2 is missing in the sheet&apos;s library cache; KiCad leaves such parts out of its own lists, here they count</source>
        <translation>%1: das Symbol %2 fehlt im Bibliothekscache des Blatts; KiCad lässt solche Bauteile in seinen eigenen Listen weg, hier zählen sie</translation>
    </message>
    <message>
        <source>sheet %1: %2 of its symbols have no record for this use of the sheet; the references stored in the symbols themselves count</source>
        <translation>Blatt %1: %2 seiner Symbole haben keinen Eintrag für diese Verwendung des Blatts; es gelten die Referenzen, die in den Symbolen selbst stehen</translation>
    </message>
    <message>
        <source>the text is not UTF-8; what cannot be read shows as �</source>
        <translation>der Text ist nicht in UTF-8; was nicht gelesen werden kann, erscheint als �</translation>
    </message>
    <message>
        <source>the hierarchy uses sheets more than %1 times</source>
        <translation>die Hierarchie verwendet Blätter mehr als %1-mal</translation>
    </message>
    <message>
        <source>the hierarchy holds more than %1 symbols</source>
        <translation>die Hierarchie enthält mehr als %1 Symbole</translation>
    </message>
    <message>
        <source>sheet &quot;%1&quot; names no file</source>
        <translation>das Blatt „%1“ nennt keine Datei</translation>
    </message>
    <message>
        <source>sheet &quot;%1&quot; is more than %2 sheets deep</source>
        <translation>das Blatt „%1“ liegt mehr als %2 Blätter tief</translation>
    </message>
    <message>
        <source>sheet &quot;%1&quot; uses the file %2, which does not exist</source>
        <translation>das Blatt „%1“ verwendet die Datei %2, die es nicht gibt</translation>
    </message>
    <message>
        <source>sheet &quot;%1&quot; makes the sheets contain themselves: %2</source>
        <translation>durch das Blatt „%1“ enthalten Blätter sich selbst: %2</translation>
    </message>
    <message>
        <source>text variables name each other in a circle or too often; some stay as they stand</source>
        <translation>Textvariablen verweisen im Kreis oder zu oft aufeinander; manche bleiben, wie sie dastehen</translation>
    </message>
    <message>
        <source>the design has no variant &quot;%1&quot;; it has none</source>
        <translation>der Entwurf hat keine Variante „%1“; er hat gar keine</translation>
    </message>
    <message>
        <source>the design has no variant &quot;%1&quot;; it has %2</source>
        <translation>der Entwurf hat keine Variante „%1“; er hat %2</translation>
    </message>
    <message>
        <source>a symbol has more than %1 properties</source>
        <translation>ein Symbol hat mehr als %1 Eigenschaften</translation>
    </message>
    <message>
        <source>the file ends inside a list: it is cut off or a &quot;)&quot; is missing</source>
        <translation>die Datei endet mitten in einer Liste: Sie ist abgeschnitten, oder eine „)“ fehlt</translation>
    </message>
    <message>
        <source>the project file is broken: %1</source>
        <translation>die Projektdatei ist fehlerhaft: %1</translation>
    </message>
    <message>
        <source>the board file is cut off</source>
        <translation>die Datei der Leiterplatte ist abgeschnitten</translation>
    </message>
    <message>
        <source>the text that begins here is not closed on its line</source>
        <translation>der Text, der hier beginnt, endet nicht in seiner Zeile</translation>
    </message>
    <message>
        <source>lists are nested deeper than %1</source>
        <translation>Listen sind tiefer als %1 geschachtelt</translation>
    </message>
    <message>
        <source>this is no KiCad schematic: it does not begin with &quot;(kicad_sch&quot;</source>
        <translation>dies ist kein Schaltplan von KiCad: Er beginnt nicht mit „(kicad_sch“</translation>
    </message>
    <message>
        <source>the schematic has no version, or none that can be read</source>
        <translation>der Schaltplan hat keine Version oder keine lesbare</translation>
    </message>
    <message>
        <source>the schematic is of version %1, before KiCad 6; open it in KiCad 6 or later and save it</source>
        <translation>der Schaltplan ist von Version %1, vor KiCad 6; öffnen und speichern Sie ihn in KiCad 6 oder neuer</translation>
    </message>
    <message>
        <source>there is text behind the end of the schematic</source>
        <translation>hinter dem Ende des Schaltplans steht Text</translation>
    </message>
    <message>
        <source>the rule areas have more than %1 corners</source>
        <translation>die Regelbereiche haben mehr als %1 Ecken</translation>
    </message>
    <message>
        <source>cannot be read again for the count: %1</source>
        <translation>kann für die Zählung nicht noch einmal gelesen werden: %1</translation>
    </message>
    <message>
        <source>it is more than %1 sheets deep</source>
        <translation>sie liegt mehr als %1 Blätter tief</translation>
    </message>
    <message>
        <source>the schematic is of version %1, later than that of KiCad 10; look at the report with care, and keep a copy before values are written</source>
        <translation>der Schaltplan hat die Version %1, die später als die von KiCad 10 ist; sehen Sie den Bericht genau an und bewahren Sie eine Kopie auf, bevor Werte geschrieben werden</translation>
    </message>
</context>
<context>
    <name>KicadEdit</name>
    <message>
        <source>more than what was asked for would change</source>
        <translation>es würde sich mehr ändern als verlangt</translation>
    </message>
    <message>
        <source>it could not be read any more: %1</source>
        <translation>er wäre nicht mehr lesbar: %1</translation>
    </message>
    <message>
        <source>it would not read as what was asked for</source>
        <translation>er würde nicht als das gelesen, was verlangt wurde</translation>
    </message>
    <message>
        <source>the text holds a variable for a property that is changed with it; change one after the other</source>
        <translation>der Text enthält eine Variable für eine Eigenschaft, die zugleich geändert wird; ändern Sie eines nach dem anderen</translation>
    </message>
    <message>
        <source>drawn by one symbol of a sheet that is used several times, and asked to differ: %1</source>
        <translation>von einem Symbol eines mehrfach verwendeten Blatts gezeichnet und soll sich doch unterscheiden: %1</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>was changed since it was read; read the design again</source>
        <translation>wurde seit dem Lesen geändert; lesen Sie den Entwurf neu</translation>
    </message>
    <message>
        <source>the sheet %1 as a whole is marked &quot;do not populate&quot;; that can only be changed at the sheet, in KiCad</source>
        <translation>das Blatt %1 ist als Ganzes als „nicht bestücken“ gekennzeichnet; das kann nur in KiCad am Blatt geändert werden</translation>
    </message>
    <message>
        <source>the sheet %1 as a whole is marked &quot;not in the BOM&quot;; that can only be changed at the sheet, in KiCad</source>
        <translation>das Blatt %1 ist als Ganzes als „nicht in der Stückliste“ gekennzeichnet; das kann nur in KiCad am Blatt geändert werden</translation>
    </message>
    <message>
        <source>the symbol lies in a rule area on the sheet %1 that is marked &quot;do not populate&quot;; that can only be changed in KiCad</source>
        <translation>das Symbol liegt auf dem Blatt %1 in einem Regelbereich, der als „nicht bestücken“ gekennzeichnet ist; das kann nur in KiCad geändert werden</translation>
    </message>
    <message>
        <source>the symbol lies in a rule area on the sheet %1 that is marked &quot;not in the BOM&quot;; that can only be changed in KiCad</source>
        <translation>das Symbol liegt auf dem Blatt %1 in einem Regelbereich, der als „nicht in der Stückliste“ gekennzeichnet ist; das kann nur in KiCad geändert werden</translation>
    </message>
    <message>
        <source>the design has no such component</source>
        <translation>der Entwurf hat kein solches Bauteil</translation>
    </message>
    <message>
        <source>references are given by KiCad and cannot be changed here</source>
        <translation>Referenzen vergibt KiCad; sie können hier nicht geändert werden</translation>
    </message>
    <message>
        <source>a part cannot be without a value</source>
        <translation>ein Bauteil kann nicht ohne Wert sein</translation>
    </message>
    <message>
        <source>a variant can change a property, but not take it away; open the design without the variant to remove it</source>
        <translation>eine Variante kann eine Eigenschaft ändern, aber nicht entfernen; öffnen Sie den Entwurf dafür ohne die Variante</translation>
    </message>
    <message>
        <source>the variant &quot;%1&quot; has a text of its own for it; it must go from there first</source>
        <translation>die Variante „%1“ hat einen eigenen Text dafür; er muss dort zuerst weg</translation>
    </message>
    <message>
        <source>%1 is yes or no; &quot;%2&quot; is neither</source>
        <translation>%1 ist „yes“ oder „no“; „%2“ ist keines von beiden</translation>
    </message>
    <message>
        <source>the symbol has a property BOMSKIP, which a variant cannot take away; open the design without the variant to remove it</source>
        <translation>das Symbol hat eine Eigenschaft BOMSKIP, die eine Variante nicht entfernen kann; öffnen Sie den Entwurf dafür ohne die Variante</translation>
    </message>
    <message>
        <source>the file holds no record for this use of its sheet that could take what a variant changes; save the design in KiCad 10 first</source>
        <translation>die Datei hat für diese Verwendung ihres Blatts keinen Eintrag, der die Änderung einer Variante aufnehmen könnte; speichern Sie den Entwurf zuerst in KiCad 10</translation>
    </message>
    <message>
        <source>a variant can only change properties that the symbol has; open the design without the variant to add one</source>
        <translation>eine Variante kann nur Eigenschaften ändern, die das Symbol hat; öffnen Sie den Entwurf ohne die Variante, um eine hinzuzufügen</translation>
    </message>
    <message>
        <source>the row of the table of instances is not found again</source>
        <translation>die Zeile der Instanzentabelle wird nicht wiedergefunden</translation>
    </message>
    <message>
        <source>the symbol is not found again</source>
        <translation>das Symbol wird nicht wiedergefunden</translation>
    </message>
    <message>
        <source>the changes to the file get in each other&apos;s way</source>
        <translation>die Änderungen an der Datei kommen einander in die Quere</translation>
    </message>
    <message>
        <source>the file&apos;s new text did not stand the check: %1</source>
        <translation>der neue Text der Datei hat die Prüfung nicht bestanden: %1</translation>
    </message>
    <message>
        <source>the symbol has no property that shows how one is laid out</source>
        <translation>das Symbol hat keine Eigenschaft, die zeigt, wie eine angeordnet ist</translation>
    </message>
    <message>
        <source>the symbol&apos;s record of this use of the sheet cannot be found again</source>
        <translation>der Eintrag des Symbols für diese Verwendung des Blatts wird nicht wiedergefunden</translation>
    </message>
    <message>
        <source>the text holds a NUL character</source>
        <translation>der Text enthält ein NUL-Zeichen</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>der Text ist nicht in UTF-8</translation>
    </message>
    <message>
        <source>the text holds &quot;@{&quot;, which KiCad would calculate</source>
        <translation>der Text enthält „@{“, was KiCad berechnen würde</translation>
    </message>
    <message>
        <source>the text holds a name in braces, like {slash}, that KiCad reads as one character</source>
        <translation>der Text enthält einen Namen in geschweiften Klammern wie {slash}, den KiCad als ein Zeichen liest</translation>
    </message>
    <message>
        <source>KiCad would replace a variable, &quot;${...}&quot;, in the text by what it stands for</source>
        <translation>KiCad würde eine Variable, „${...}“, im Text durch ihren Inhalt ersetzen</translation>
    </message>
    <message>
        <source>a single &quot;~&quot; reads as an empty text in this version of the format</source>
        <translation>ein einzelnes „~“ gilt in dieser Version des Formats als leerer Text</translation>
    </message>
    <message>
        <source>a property needs a name</source>
        <translation>eine Eigenschaft braucht einen Namen</translation>
    </message>
    <message>
        <source>a property&apos;s name cannot hold line breaks, tabs or other control characters</source>
        <translation>der Name einer Eigenschaft kann keine Zeilenumbrüche, Tabulatoren oder anderen Steuerzeichen enthalten</translation>
    </message>
    <message>
        <source>a property&apos;s name cannot begin or end with a blank</source>
        <translation>der Name einer Eigenschaft kann nicht mit einem Leerzeichen beginnen oder enden</translation>
    </message>
    <message>
        <source>a property&apos;s name cannot hold a variable</source>
        <translation>der Name einer Eigenschaft kann keine Variable enthalten</translation>
    </message>
</context>
<context>
    <name>LastOutput</name>
    <message>
        <source>Open Failed</source>
        <translation>Öffnen fehlgeschlagen</translation>
    </message>
    <message>
        <source>%1 is not there any more.</source>
        <translation>%1 ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>The desktop knows no program that opens %1.</source>
        <translation>Auf diesem Rechner ist kein Programm eingerichtet, das %1 öffnet.</translation>
    </message>
</context>
<context>
    <name>LegacyScripts</name>
    <message>
        <source>the script &quot;%1&quot; has no line &quot;%2&quot;</source>
        <translation>das Skript „%1“ hat keine Zeile „%2“</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>the file is larger than 4 MiB, the most that BOM scripts may have</source>
        <translation>die Datei ist größer als 4 MiB; mehr dürfen Stücklistenskripte nicht haben</translation>
    </message>
    <message>
        <source>the file is no text</source>
        <translation>die Datei ist kein Text</translation>
    </message>
    <message>
        <source>there is no line &quot;%1&quot;</source>
        <translation>es gibt keine Zeile „%1“</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>name one of the scripts %1</source>
        <translation>nennen Sie eines der Skripte %1</translation>
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
    <name>ModuleLibrary</name>
    <message>
        <source>there is no such file</source>
        <translation>diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>the module cannot be started</source>
        <translation>das Modul kann nicht gestartet werden</translation>
    </message>
    <message>
        <source>this is no module</source>
        <translation>dies ist kein Modul</translation>
    </message>
    <message>
        <source>the module is in none of these places: %1</source>
        <translation>das Modul ist an keiner dieser Stellen: %1</translation>
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
    <name>OldHtmlTemplate</name>
    <message>
        <source>The file is too large.</source>
        <translation>Die Datei ist zu groß.</translation>
    </message>
    <message>
        <source>BOM Template Upgraded</source>
        <translation>Stücklistenvorlage umgestellt</translation>
    </message>
    <message>
        <source>The BOM template &apos;%1&apos; has been upgraded.  Some styling may have changed.</source>
        <translation>Die Stücklistenvorlage „%1“ wurde auf den neuen Stand gebracht.  Manches kann jetzt anders aussehen.</translation>
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
    <name>PartList</name>
    <message>
        <source>this is a spreadsheet or another packed file, no text: save it as CSV in UTF-8</source>
        <translation>dies ist ein Tabellendokument oder eine andere gepackte Datei, kein Text: Speichern Sie die Tabelle als CSV in UTF-8</translation>
    </message>
    <message>
        <source>this is an old spreadsheet or document, no text: save it as CSV in UTF-8</source>
        <translation>dies ist ein altes Tabellen- oder anderes Dokument, kein Text: Speichern Sie die Tabelle als CSV in UTF-8</translation>
    </message>
    <message>
        <source>this is a PDF document, no part list: export the list as CSV in UTF-8</source>
        <translation>dies ist ein PDF-Dokument, keine Teileliste: Exportieren Sie die Liste als CSV in UTF-8</translation>
    </message>
    <message>
        <source>the file is in UTF-16, which is not read: save it as CSV in UTF-8</source>
        <translation>die Datei ist in UTF-16, das nicht gelesen wird: Speichern Sie sie als CSV in UTF-8</translation>
    </message>
    <message>
        <source>there is a zero byte, so this is no text file: export the part list as CSV in UTF-8</source>
        <translation>hier steht ein Nullbyte, also ist dies keine Textdatei: Exportieren Sie die Teileliste als CSV in UTF-8</translation>
    </message>
    <message>
        <source>the file says that it is UTF-8, but this line is not: save it anew as CSV in UTF-8</source>
        <translation>die Datei gibt sich als UTF-8 aus, aber diese Zeile ist es nicht: Speichern Sie sie neu als CSV in UTF-8</translation>
    </message>
    <message>
        <source>the row has more than %1 cells: is this a part list?</source>
        <translation>die Zeile hat mehr als %1 Zellen: Ist dies eine Teileliste?</translation>
    </message>
    <message>
        <source>the list is too long: at most %1 rows and %2 cells are read</source>
        <translation>die Liste ist zu lang: Höchstens %1 Zeilen und %2 Zellen werden gelesen</translation>
    </message>
    <message>
        <source>a quote begins here that is never closed: close it, or double a quote that belongs to the text</source>
        <translation>hier beginnt ein Anführungszeichen, das nie geschlossen wird: Schließen Sie es, oder verdoppeln Sie ein Anführungszeichen, das zum Text gehört</translation>
    </message>
    <message>
        <source>there is text behind a closing quote: double a quote that belongs to the text, or put the delimiter behind it</source>
        <translation>hinter einem schließenden Anführungszeichen steht Text: Verdoppeln Sie ein Anführungszeichen, das zum Text gehört, oder setzen Sie das Trennzeichen dahinter</translation>
    </message>
    <message>
        <source>the file is larger than %1 MiB, the most that a part list may have</source>
        <translation>die Datei ist größer als %1 MiB; mehr darf eine Teileliste nicht haben</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>this is no ordinary file</source>
        <translation>dies ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>the file cannot be opened: %1</source>
        <translation>die Datei kann nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>the file cannot be read: %1</source>
        <translation>die Datei kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>the text %1 is no valid text</source>
        <translation>der Text %1 ist kein gültiger Text</translation>
    </message>
    <message>
        <source>the text %1 has characters that the file, which is in Windows-1252, cannot hold: save the file in UTF-8 first</source>
        <translation>der Text %1 hat Zeichen, die die Datei in Windows-1252 nicht aufnehmen kann: Speichern Sie die Datei zuerst in UTF-8</translation>
    </message>
    <message>
        <source>the name %1 is empty or has blanks around it</source>
        <translation>der Name %1 ist leer oder von Leerzeichen umgeben</translation>
    </message>
    <message>
        <source>the name %1 has a line break in it</source>
        <translation>der Name %1 enthält einen Zeilenumbruch</translation>
    </message>
    <message>
        <source>the list has no column %1, and one cannot be added under this name, which has a meaning of its own</source>
        <translation>die Liste hat keine Spalte %1, und unter diesem Namen kann keine hinzugefügt werden, weil er eine eigene Bedeutung hat</translation>
    </message>
    <message>
        <source>the reference of a part cannot be changed</source>
        <translation>die Referenz eines Bauteils kann nicht geändert werden</translation>
    </message>
    <message>
        <source>the quantity cannot be changed: it follows from the references</source>
        <translation>die Menge kann nicht geändert werden: Sie ergibt sich aus den Referenzen</translation>
    </message>
    <message>
        <source>%1 can be Yes or No, but not %2</source>
        <translation>%1 kann Yes oder No sein, aber nicht %2</translation>
    </message>
    <message>
        <source>%1 cannot hold blanks alone: they would be read as nothing</source>
        <translation>%1 kann nicht nur Leerzeichen enthalten: Sie würden als nichts gelesen</translation>
    </message>
    <message>
        <source>there is no such part</source>
        <translation>dieses Bauteil gibt es nicht</translation>
    </message>
    <message>
        <source>was changed since it was read</source>
        <translation>wurde seit dem Lesen geändert</translation>
    </message>
    <message>
        <source>the changed list could not be read again (line %1: %2)</source>
        <translation>die geänderte Liste wäre nicht wieder lesbar (Zeile %1: %2)</translation>
    </message>
    <message>
        <source>the changed list would not be read as it is meant, at %1</source>
        <translation>die geänderte Liste würde bei %1 nicht so gelesen, wie sie gemeint ist</translation>
    </message>
    <message>
        <source>the changed list would not have the same parts</source>
        <translation>die geänderte Liste hätte nicht dieselben Bauteile</translation>
    </message>
    <message>
        <source>the references %1 cannot be parted into rows of their own: write each with its letters</source>
        <translation>die Referenzen %1 können nicht auf eigene Zeilen verteilt werden: Schreiben Sie jede mit ihren Buchstaben</translation>
    </message>
    <message>
        <source>the file is empty: a part list has a row of headings and a row per part</source>
        <translation>die Datei ist leer: Eine Teileliste hat eine Zeile mit Überschriften und eine Zeile je Bauteil</translation>
    </message>
    <message>
        <source>there is no reference column: call one Reference, Designator or RefDes (the headings here are %1)</source>
        <translation>es gibt keine Spalte mit Referenzen: Nennen Sie eine Reference, Designator oder RefDes (die Überschriften hier sind %1)</translation>
    </message>
    <message>
        <source>the columns %1 can both hold the references: the first named is taken</source>
        <translation>die Spalten %1 können beide die Referenzen enthalten: Die zuerst genannte wird genommen</translation>
    </message>
    <message>
        <source>the columns %1 have the same meaning: rename or delete one of them</source>
        <translation>die Spalten %1 bedeuten dasselbe: Benennen Sie eine von ihnen um oder löschen Sie sie</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>column %1 has no heading: it is read as %2</source>
        <translation>Spalte %1 hat keine Überschrift: Sie wird als %2 gelesen</translation>
    </message>
    <message>
        <source>column %1 repeats the heading %2: it is read as %3</source>
        <translation>Spalte %1 wiederholt die Überschrift %2: Sie wird als %3 gelesen</translation>
    </message>
    <message>
        <source>%1 is the name of one part and no range, because the list has %2 by itself</source>
        <translation>%1 ist der Name eines Bauteils und kein Bereich, weil die Liste %2 allein enthält</translation>
    </message>
    <message>
        <source>the quantity is %1, but the row names 1 reference: the references count</source>
        <translation>die Menge ist %1, aber die Zeile nennt 1 Referenz: Es gelten die Referenzen</translation>
    </message>
    <message>
        <source>the quantity is %1, but the row names %2 references: the references count</source>
        <translation>die Menge ist %1, aber die Zeile nennt %2 Referenzen: Es gelten die Referenzen</translation>
    </message>
    <message>
        <source>there is no value column</source>
        <translation>es gibt keine Spalte mit Werten</translation>
    </message>
    <message>
        <source>the list has more than %1 parts</source>
        <translation>die Liste hat mehr als %1 Bauteile</translation>
    </message>
    <message>
        <source>the row has %1 cells, but there are %2 headings: put a cell with a delimiter in it into quotes, or give column %3 a heading</source>
        <translation>die Zeile hat %1 Zellen, aber es gibt %2 Überschriften: Setzen Sie eine Zelle, die ein Trennzeichen enthält, in Anführungszeichen, oder geben Sie Spalte %3 eine Überschrift</translation>
    </message>
    <message>
        <source>the row has only %1 of %2 cells: the others are read as empty</source>
        <translation>die Zeile hat nur %1 von %2 Zellen: Die übrigen gelten als leer</translation>
    </message>
    <message>
        <source>the row (%1 …) has no reference: give it one, or delete the row if it is no part</source>
        <translation>die Zeile (%1 …) hat keine Referenz: Geben Sie ihr eine, oder löschen Sie die Zeile, wenn sie kein Bauteil ist</translation>
    </message>
    <message>
        <source>references that begin with &quot;#&quot; are no parts: %1 left out, the first one here</source>
        <translation>Referenzen, die mit „#“ beginnen, sind keine Bauteile: %1 weggelassen, die erste hier</translation>
    </message>
    <message>
        <source>no part follows the headings</source>
        <translation>auf die Überschriften folgt kein Bauteil</translation>
    </message>
    <message>
        <source>the file is not in UTF-8 and was read as Windows-1252: save it in UTF-8 if letters are wrong</source>
        <translation>die Datei ist nicht in UTF-8 und wurde als Windows-1252 gelesen: Speichern Sie sie in UTF-8, wenn Buchstaben falsch sind</translation>
    </message>
    <message>
        <source>%1 more rows, the last one here, repeat the headings or sum up and are left out</source>
        <translation>%1 weitere Zeilen, die letzte hier, wiederholen die Überschriften oder sind Summen und werden weggelassen</translation>
    </message>
    <message>
        <source>%1 more rows, the last one here, have fewer cells than there are headings</source>
        <translation>%1 weitere Zeilen, die letzte hier, haben weniger Zellen, als es Überschriften gibt</translation>
    </message>
    <message>
        <source>%1 more names, the last one here, could be ranges but are none</source>
        <translation>%1 weitere Namen, der letzte hier, könnten Bereiche sein, sind aber keine</translation>
    </message>
    <message>
        <source>%1 more rows, the last one here, have a quantity that differs from the number of their references</source>
        <translation>%1 weitere Zeilen, die letzte hier, haben eine Menge, die von der Anzahl ihrer Referenzen abweicht</translation>
    </message>
    <message>
        <source>a part list has no variants: leave out the variant %1</source>
        <translation>eine Teileliste hat keine Varianten: Lassen Sie die Variante %1 weg</translation>
    </message>
    <message>
        <source>the row repeats the headings and names no parts: it is left out</source>
        <translation>die Zeile wiederholt die Überschriften und nennt keine Bauteile: Sie wird weggelassen</translation>
    </message>
    <message>
        <source>the row sums up (%1) and names no parts: it is left out</source>
        <translation>die Zeile ist eine Summe (%1) und nennt keine Bauteile: Sie wird weggelassen</translation>
    </message>
    <message>
        <source>%1 does not name what its first sign joins</source>
        <translation>%1 nennt nicht, was das erste Zeichen verbindet</translation>
    </message>
    <message>
        <source>%1 is a range without an end</source>
        <translation>%1 ist ein Bereich ohne Ende</translation>
    </message>
    <message>
        <source>%1 is followed by another dash: write its references one by one</source>
        <translation>auf %1 folgt noch ein Strich: Schreiben Sie die Referenzen einzeln</translation>
    </message>
    <message>
        <source>%1 may be a count: delete it, or put a comma in front of it if it is the name of a part</source>
        <translation>%1 kann eine Anzahl sein: Löschen Sie sie, oder setzen Sie ein Komma davor, wenn es der Name eines Bauteils ist</translation>
    </message>
    <message>
        <source>%1 is no reference: write its references one by one, with commas</source>
        <translation>%1 ist keine Referenz: Schreiben Sie die Referenzen einzeln, mit Kommas</translation>
    </message>
    <message>
        <source>%1 ends with a sign that joins nothing</source>
        <translation>%1 endet mit einem Zeichen, das nichts verbindet</translation>
    </message>
    <message>
        <source>%1 is no range: write its references one by one, a part of several units once, without their letters</source>
        <translation>%1 ist kein Bereich: Schreiben Sie die Referenzen einzeln, ein Bauteil aus mehreren Einheiten einmal, ohne deren Buchstaben</translation>
    </message>
    <message>
        <source>%1 is no range: write its references one by one</source>
        <translation>%1 ist kein Bereich: Schreiben Sie die Referenzen einzeln</translation>
    </message>
    <message>
        <source>%1 is no reference: write it with its letters</source>
        <translation>%1 ist keine Referenz: Schreiben Sie sie mit ihren Buchstaben</translation>
    </message>
    <message>
        <source>%1 can be read in several ways: write its references one by one</source>
        <translation>%1 ist mehrdeutig: Schreiben Sie die Referenzen einzeln</translation>
    </message>
    <message>
        <source>%1 is no range that can be read: put blanks around its word</source>
        <translation>%1 ist kein lesbarer Bereich: Setzen Sie Leerzeichen um das Wort</translation>
    </message>
    <message>
        <source>%1 is a range that runs backwards: put its lower end first</source>
        <translation>%1 ist ein Bereich, der rückwärts läuft: Setzen Sie das untere Ende an den Anfang</translation>
    </message>
    <message>
        <source>%1 is a range whose ends differ in their zeros: write both with as many digits</source>
        <translation>%1 ist ein Bereich, dessen Enden sich in den Nullen unterscheiden: Schreiben Sie beide mit gleich vielen Ziffern</translation>
    </message>
    <message>
        <source>%1 joins different kinds of parts: write its references one by one</source>
        <translation>%1 verbindet verschiedene Arten von Bauteilen: Schreiben Sie die Referenzen einzeln</translation>
    </message>
    <message>
        <source>%1 is no reference: name the part, or delete the row if it is none</source>
        <translation>%1 ist keine Referenz: Nennen Sie das Bauteil, oder löschen Sie die Zeile, wenn sie keines ist</translation>
    </message>
    <message>
        <source>%1 has digits other than 0 to 9: write it with these</source>
        <translation>%1 hat andere Ziffern als 0 bis 9: Schreiben Sie die Referenz mit diesen</translation>
    </message>
    <message>
        <source>%1 is a range without a beginning</source>
        <translation>%1 ist ein Bereich ohne Anfang</translation>
    </message>
    <message>
        <source>%2 makes more than %1 references in one cell: correct its end</source>
        <translation>%2 ergibt mehr als %1 Referenzen in einer Zelle: Berichtigen Sie das Ende</translation>
    </message>
    <message>
        <source>%1 is no range that can be read: write its references one by one</source>
        <translation>%1 ist kein lesbarer Bereich: Schreiben Sie die Referenzen einzeln</translation>
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
    <name>PartNavigator</name>
    <message>
        <source>%1 is not in the design that is open</source>
        <translation>%1 ist nicht im geöffneten Entwurf</translation>
    </message>
    <message>
        <source>KiCad&apos;s schematic and board editors were asked to show it</source>
        <translation>Schaltplan- und Leiterplatteneditor von KiCad wurden gebeten, das Bauteil zu zeigen</translation>
    </message>
    <message>
        <source>KiCad&apos;s schematic editor was asked to show it</source>
        <translation>der Schaltplaneditor von KiCad wurde gebeten, das Bauteil zu zeigen</translation>
    </message>
    <message>
        <source>KiCad&apos;s board editor was asked to show it</source>
        <translation>der Leiterplatteneditor von KiCad wurde gebeten, das Bauteil zu zeigen</translation>
    </message>
    <message>
        <source>no editor of KiCad listens, the reference was copied</source>
        <translation>kein Editor von KiCad antwortet, die Referenz wurde kopiert</translation>
    </message>
    <message>
        <source>the reference was copied</source>
        <translation>die Referenz wurde kopiert</translation>
    </message>
    <message>
        <source>sheet %1, %2, X %3 Y %4 mm</source>
        <translation>Blatt %1, %2, X %3 Y %4 mm</translation>
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
        <translation>Einen Schaltplan, ein Projekt oder eine Teileliste öffnen</translation>
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
    <message>
        <source>Open in &amp;New Window…</source>
        <translation>In &amp;neuem Fenster öffnen…</translation>
    </message>
    <message>
        <source>Open a design beside this one</source>
        <translation>Einen Entwurf neben diesem öffnen</translation>
    </message>
    <message>
        <source>Open &amp;Last Output</source>
        <translation>&amp;Letzte Ausgabe öffnen</translation>
    </message>
    <message>
        <source>Open the file that was written last</source>
        <translation>Die zuletzt geschriebene Datei öffnen</translation>
    </message>
    <message>
        <source>Open &amp;Folder of the Last Output</source>
        <translation>&amp;Ordner der letzten Ausgabe öffnen</translation>
    </message>
    <message>
        <source>Show the folder of the file that was written last</source>
        <translation>Den Ordner der zuletzt geschriebenen Datei zeigen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Close the design</source>
        <translation>Den Entwurf schließen</translation>
    </message>
    <message>
        <source>&amp;Tool Bars and Panels</source>
        <translation>&amp;Werkzeugleisten und Bereiche</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>Voll&amp;bild</translation>
    </message>
    <message>
        <source>Give the window the whole screen, or its place again</source>
        <translation>Dem Fenster den ganzen Bildschirm geben, oder seinen Platz zurück</translation>
    </message>
    <message>
        <source>Read the Design Again</source>
        <translation>Den Entwurf neu lesen</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>Entwurf</translation>
    </message>
    <message>
        <source>Read the files of the design again</source>
        <translation>Die Dateien des Entwurfs neu lesen</translation>
    </message>
</context>
<context>
    <name>PropertyAssignments</name>
    <message>
        <source>Property Definitions</source>
        <translation>Eigenschaftsdefinitionen</translation>
    </message>
    <message>
        <source>The property BOMLINKS could not be defined.  Please ensure &apos;PROPDEFS.INI&apos; is writeable.</source>
        <translation>Die Eigenschaft BOMLINKS konnte nicht definiert werden.  Bitte sorgen Sie dafür, dass „PROPDEFS.INI“ beschreibbar ist.</translation>
    </message>
    <message>
        <source>The design is being written already</source>
        <translation>Der Entwurf wird schon geschrieben</translation>
    </message>
    <message>
        <source>Pending Changes</source>
        <translation>Vorgemerkte Änderungen</translation>
    </message>
    <message>
        <source>Pending changes cannot be kept beside the program&apos;s settings. They will be lost if the program ends before they are applied: %1</source>
        <translation>Vorgemerkte Änderungen können nicht neben den Einstellungen des Programms aufbewahrt werden. Sie gehen verloren, wenn das Programm endet, bevor sie angewendet sind: %1</translation>
    </message>
    <message>
        <source>There is no component database</source>
        <translation>Es gibt keine Bauteildatenbank</translation>
    </message>
    <message>
        <source>Nothing was applied, see the pending changes</source>
        <translation>Nichts wurde angewendet, siehe die vorgemerkten Änderungen</translation>
    </message>
    <message>
        <source>Applied successfully</source>
        <translation>Erfolgreich angewendet</translation>
    </message>
    <message>
        <source>The component database did not say why nothing was written</source>
        <translation>Die Bauteildatenbank hat nicht gemeldet, warum nichts geschrieben wurde</translation>
    </message>
    <message>
        <source>These BOM-only parts cannot be made: the part %1 cannot hold them</source>
        <translation>Diese Stücklistenbauteile können nicht angelegt werden: Das Bauteil %1 kann sie nicht aufnehmen</translation>
    </message>
    <message>
        <source>The BOM-only part %1 of %2 cannot be removed</source>
        <translation>Das Stücklistenbauteil %1 zu %2 kann nicht entfernt werden</translation>
    </message>
    <message>
        <source>Pending changes of an earlier run cannot be read: another version of the program may have made them. They are left as they are in
%1
Open the design with that version to go on with them, or remove the file to do without them.</source>
        <translation>Vorgemerkte Änderungen eines früheren Laufs können nicht gelesen werden: Vielleicht stammen sie von einer anderen Version des Programms. Sie bleiben, wie sie sind, in
%1
Öffnen Sie den Entwurf mit jener Version, um damit weiterzuarbeiten, oder löschen Sie die Datei, um darauf zu verzichten.</translation>
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
    <name>PropertyDefinitions</name>
    <message>
        <source>a list of values goes with STRING only; the list does not count</source>
        <translation>eine Liste von Werten gehört nur zu STRING; die Liste gilt nicht</translation>
    </message>
    <message>
        <source>the list of values has an empty one; the list does not count</source>
        <translation>die Liste der Werte hat einen leeren; die Liste gilt nicht</translation>
    </message>
    <message>
        <source>the list of values has &quot;%1&quot; twice; the list does not count</source>
        <translation>die Liste der Werte hat „%1“ zweimal; die Liste gilt nicht</translation>
    </message>
    <message>
        <source>expected &quot;NAME&quot;,TYPE or &quot;NAME&quot;,TYPE,&quot;description&quot;</source>
        <translation>erwartet wird &quot;NAME&quot;,TYP oder &quot;NAME&quot;,TYP,&quot;Beschreibung&quot;</translation>
    </message>
    <message>
        <source>unknown property type &quot;%1&quot; (YESNO, HIGHLOW, TRUEFALSE, STRING, INT, FLOAT)</source>
        <translation>unbekannter Typ „%1“ einer Eigenschaft (YESNO, HIGHLOW, TRUEFALSE, STRING, INT, FLOAT)</translation>
    </message>
    <message>
        <source>the file is larger than 1 MiB, the most that definitions may have</source>
        <translation>die Datei ist größer als 1 MiB; mehr dürfen Definitionen nicht haben</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is defined twice; the first definition counts</source>
        <translation>„%1“ ist zweimal definiert; die erste Definition gilt</translation>
    </message>
    <message>
        <source>there is no section [PROPDEFS]</source>
        <translation>es gibt keinen Abschnitt [PROPDEFS]</translation>
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
    <name>QtHostUi</name>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 ist schon da.
Soll die Datei ersetzt werden?</translation>
    </message>
</context>
<context>
    <name>ReadingPanel</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
</context>
<context>
    <name>RegularFile</name>
    <message>
        <source>this is no ordinary file</source>
        <translation>dies ist keine gewöhnliche Datei</translation>
    </message>
</context>
<context>
    <name>ReplacedValues</name>
    <message>
        <source>1 value was replaced</source>
        <translation>1 Wert wurde ersetzt</translation>
    </message>
    <message>
        <source>%1 values were replaced</source>
        <translation>%1 Werte wurden ersetzt</translation>
    </message>
    <message>
        <source>, in 1 part.</source>
        <translation>, in 1 Bauteil.</translation>
    </message>
    <message>
        <source>, in %1 parts.</source>
        <translation>, in %1 Bauteilen.</translation>
    </message>
</context>
<context>
    <name>ReportActions</name>
    <message>
        <source>Find a text in the report</source>
        <translation>Einen Text im Bericht suchen</translation>
    </message>
    <message>
        <source>Find &amp;Next in Report</source>
        <translation>&amp;Nächste Fundstelle im Bericht</translation>
    </message>
    <message>
        <source>Go to the next place of the text that is looked for</source>
        <translation>Zur nächsten Stelle des gesuchten Textes gehen</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious in Report</source>
        <translation>Vorherige Fundstelle im Berich&amp;t</translation>
    </message>
    <message>
        <source>Go to the previous place of the text that is looked for</source>
        <translation>Zur vorherigen Stelle des gesuchten Textes gehen</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Show the report larger</source>
        <translation>Den Bericht größer zeigen</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Show the report smaller</source>
        <translation>Den Bericht kleiner zeigen</translation>
    </message>
    <message>
        <source>Reset &amp;Zoom</source>
        <translation>&amp;Originalgröße</translation>
    </message>
    <message>
        <source>Show the report in its own size</source>
        <translation>Den Bericht in seiner eigenen Größe zeigen</translation>
    </message>
    <message>
        <source>Find in Repor&amp;t…</source>
        <translation>Im &amp;Bericht suchen…</translation>
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
    <name>ScriptConversion</name>
    <message>
        <source>Miscellaneous</source>
        <extracomment>Stands in reports, which have one language on all machines: leave it as it is.</extracomment>
        <translation>Miscellaneous</translation>
    </message>
</context>
<context>
    <name>Spreadsheet</name>
    <message>
        <source>No temporary file can be made: %1</source>
        <translation>Es kann keine temporäre Datei angelegt werden: %1</translation>
    </message>
    <message>
        <source>The report has more rows than a spreadsheet, which holds %1.</source>
        <translation>Der Bericht hat mehr Zeilen als ein Tabellenblatt, das %1 fasst.</translation>
    </message>
    <message>
        <source>A cell of a spreadsheet holds %1 characters; this text has %2: %3...</source>
        <translation>Eine Zelle eines Tabellenblatts fasst %1 Zeichen; dieser Text hat %2: %3...</translation>
    </message>
    <message>
        <source>A spreadsheet has at most %1 links; %2 more are text.</source>
        <translation>Ein Tabellenblatt hat höchstens %1 Links; %2 weitere sind Text.</translation>
    </message>
    <message>
        <source>A link of a spreadsheet has at most %1 characters; %2 longer ones are text.</source>
        <translation>Ein Link in einem Tabellenblatt hat höchstens %1 Zeichen; %2 längere sind Text.</translation>
    </message>
    <message>
        <source>Malformed links are text: %1 and %2 more.</source>
        <translation>Fehlerhafte Links sind Text: %1 und %2 weitere.</translation>
    </message>
    <message>
        <source>Malformed links are text: %1.</source>
        <translation>Fehlerhafte Links sind Text: %1.</translation>
    </message>
    <message>
        <source>The report has more columns than a spreadsheet, which holds %1.</source>
        <translation>Der Bericht hat mehr Spalten als ein Tabellenblatt, das %1 fasst.</translation>
    </message>
    <message>
        <source>The spreadsheet cannot be made: %1</source>
        <translation>Das Tabellendokument kann nicht erstellt werden: %1</translation>
    </message>
    <message>
        <source>There is no sheet of parts: a sheet holds %1 rows.</source>
        <translation>Es gibt kein Blatt der Bauteile: Ein Blatt fasst %1 Zeilen.</translation>
    </message>
</context>
<context>
    <name>SpreadsheetFile</name>
    <message>
        <source>the file is encrypted: save it without a password</source>
        <translation>die Datei ist verschlüsselt: Speichern Sie sie ohne Kennwort</translation>
    </message>
    <message>
        <source>the file holds no spreadsheet</source>
        <translation>die Datei enthält keine Tabelle</translation>
    </message>
    <message>
        <source>the file is damaged</source>
        <translation>die Datei ist beschädigt</translation>
    </message>
    <message>
        <source>the sheet is too large: at most %1 cells are read</source>
        <translation>das Tabellenblatt ist zu groß: Höchstens %1 Zellen werden gelesen</translation>
    </message>
    <message>
        <source>%1 lies outside of a sheet</source>
        <translation>%1 liegt außerhalb eines Tabellenblatts</translation>
    </message>
    <message>
        <source>row %1 stands twice or in front of another</source>
        <translation>Zeile %1 steht zweimal da oder vor einer früheren</translation>
    </message>
    <message>
        <source>%1 stands twice or behind another cell</source>
        <translation>%1 steht zweimal da oder hinter einer späteren Zelle</translation>
    </message>
    <message>
        <source>the sheet is too large</source>
        <translation>das Tabellenblatt ist zu groß</translation>
    </message>
    <message>
        <source>the file is encrypted or of an older form (.xls): save it as .xlsx or .ods without a password</source>
        <translation>die Datei ist verschlüsselt oder von einer älteren Form (.xls): Speichern Sie sie als .xlsx oder .ods ohne Kennwort</translation>
    </message>
    <message>
        <source>this is no spreadsheet (.xlsx or .ods), whatever its name says; a table of texts ends in .csv</source>
        <translation>dies ist kein Tabellendokument (.xlsx oder .ods), was auch der Name sagt; eine Texttabelle endet auf .csv</translation>
    </message>
    <message>
        <source>the file holds no workbook</source>
        <translation>die Datei enthält keine Arbeitsmappe</translation>
    </message>
    <message>
        <source>the file has too many texts</source>
        <translation>die Datei hat zu viele Texte</translation>
    </message>
    <message>
        <source>the file is damaged: a row has the number &quot;%1&quot;</source>
        <translation>die Datei ist beschädigt: Eine Zeile hat die Nummer „%1“</translation>
    </message>
    <message>
        <source>the file is damaged: a cell of row %1 has the address &quot;%2&quot;</source>
        <translation>die Datei ist beschädigt: Eine Zelle der Zeile %1 hat die Adresse „%2“</translation>
    </message>
    <message>
        <source>a text has more than %1 characters</source>
        <translation>ein Text hat mehr als %1 Zeichen</translation>
    </message>
    <message>
        <source>the file is built in a way that no spreadsheet is</source>
        <translation>die Datei ist anders aufgebaut als jedes Tabellendokument</translation>
    </message>
    <message>
        <source>the file declares entities, which no spreadsheet does</source>
        <translation>die Datei deklariert Entitäten, was kein Tabellendokument tut</translation>
    </message>
    <message>
        <source>a text or an element has more than %1 bytes</source>
        <translation>ein Text oder ein Element hat mehr als %1 Bytes</translation>
    </message>
    <message>
        <source>the file is damaged: %1</source>
        <translation>die Datei ist beschädigt: %1</translation>
    </message>
    <message>
        <source>the file is damaged or cut off</source>
        <translation>die Datei ist beschädigt oder abgeschnitten</translation>
    </message>
    <message>
        <source>the file is damaged or cut off: it has no directory of its parts</source>
        <translation>die Datei ist beschädigt oder abgeschnitten: Sie hat kein Verzeichnis ihrer Teile</translation>
    </message>
    <message>
        <source>the file has more than %1 parts</source>
        <translation>die Datei hat mehr als %1 Teile</translation>
    </message>
    <message>
        <source>the file is damaged: the directory of its parts cannot be read</source>
        <translation>die Datei ist beschädigt: Das Verzeichnis ihrer Teile kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>the file has two parts of the name %1</source>
        <translation>die Datei hat zwei Teile namens %1</translation>
    </message>
    <message>
        <source>the file is no spreadsheet that can be read: it has no part %1</source>
        <translation>die Datei ist kein lesbares Tabellendokument: Sie hat keinen Teil %1</translation>
    </message>
    <message>
        <source>its part %1 has more than %2 MiB, the most that is unpacked</source>
        <translation>ihr Teil %1 hat mehr als %2 MiB; mehr wird nicht ausgepackt</translation>
    </message>
    <message>
        <source>its part %1 is packed in an unknown way</source>
        <translation>ihr Teil %1 ist auf unbekannte Art gepackt</translation>
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
    <message>
        <source>Written: %1</source>
        <translation>Geschrieben: %1</translation>
    </message>
    <message>
        <source>Open %1 or its folder</source>
        <translation>%1 oder den Ordner der Datei öffnen</translation>
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
    <message>
        <source>Top:</source>
        <translation>Oben:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Rechts:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>Unten:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Links:</translation>
    </message>
</context>
<context>
    <name>TemplateList</name>
    <message>
        <source>Default</source>
        <extracomment>A name in settings, options and scripts: leave it as it is.</extracomment>
        <translation>Default</translation>
    </message>
    <message>
        <source>The template file &apos;%1&apos; could not be deleted.</source>
        <translation>Die Vorlagendatei „%1“ konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Template Deletion</source>
        <translation>Vorlage löschen</translation>
    </message>
    <message>
        <source>The old settings file &apos;%1&apos; still holds the template.</source>
        <translation>Die alte Einstellungsdatei „%1“ enthält die Vorlage noch.</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>kann nicht geschrieben werden</translation>
    </message>
</context>
<context>
    <name>TemplateMarkup</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>the report is without the %1 of the template: %2</source>
        <translation>im Bericht fehlt „%1“ aus der Vorlage: %2</translation>
    </message>
    <message>
        <source>the %1 of the template is shown without what would run or fetch something: %2</source>
        <translation>„%1“ aus der Vorlage wird ohne das gezeigt, was etwas ausführen oder laden würde: %2</translation>
    </message>
    <message>
        <source>header</source>
        <translation>Dokumentkopf</translation>
    </message>
    <message>
        <source>footer</source>
        <translation>Dokumentfuß</translation>
    </message>
    <message>
        <source>page header</source>
        <translation>Seitenkopf</translation>
    </message>
    <message>
        <source>page footer</source>
        <translation>Seitenfuß</translation>
    </message>
    <message>
        <source>the style sheet of the template is used without what would fetch something</source>
        <translation>das Stylesheet der Vorlage wird ohne das benutzt, was etwas laden würde</translation>
    </message>
    <message>
        <source>the style sheet of the template is too long: windows and PDF files show its first rules only</source>
        <translation>das Stylesheet der Vorlage ist zu lang: Fenster und PDF-Dateien zeigen nur seine ersten Regeln</translation>
    </message>
</context>
<context>
    <name>TemplateStore</name>
    <message>
        <source>Could not create template</source>
        <translation>Vorlage konnte nicht angelegt werden</translation>
    </message>
    <message>
        <source>Do you want to save the changes you made to the BOM template?</source>
        <translation>Möchten Sie Ihre Änderungen an der Stücklistenvorlage speichern?</translation>
    </message>
    <message>
        <source>Unsaved BOM Template Changes</source>
        <translation>Ungespeicherte Änderungen an der Stücklistenvorlage</translation>
    </message>
    <message>
        <source>Saving the BOM template &apos;%1&apos; replaces a file of a later version of this program and loses what this version does not know.  Save it nevertheless?</source>
        <translation>Das Speichern der Stücklistenvorlage „%1“ ersetzt eine Datei einer neueren Version dieses Programms; was diese Version nicht kennt, geht verloren.  Trotzdem speichern?</translation>
    </message>
    <message>
        <source>The name must not be blank or used already</source>
        <translation>Der Name darf nicht leer sein und nicht schon benutzt werden</translation>
    </message>
    <message>
        <source>Cannot delete a template that comes with the program</source>
        <translation>Eine mitgelieferte Vorlage kann nicht gelöscht werden</translation>
    </message>
    <message>
        <source>Cannot delete default template</source>
        <translation>Die Standardvorlage kann nicht gelöscht werden</translation>
    </message>
    <message>
        <source>Template Deletion</source>
        <translation>Vorlage löschen</translation>
    </message>
    <message>
        <source>Delete the template &apos;%1&apos;?</source>
        <translation>Die Vorlage „%1“ löschen?</translation>
    </message>
    <message>
        <source>Template Reset</source>
        <translation>Vorlage zurücksetzen</translation>
    </message>
    <message>
        <source>Reset the default template?</source>
        <translation>Die Standardvorlage zurücksetzen?</translation>
    </message>
    <message>
        <source>Import BOM Template</source>
        <translation>Stücklistenvorlage importieren</translation>
    </message>
    <message>
        <source>BOM Templates (*.bomt)</source>
        <translation>Stücklistenvorlagen (*.bomt)</translation>
    </message>
    <message>
        <source>BOM Template Import Failed</source>
        <translation>Stücklistenvorlage nicht importiert</translation>
    </message>
    <message>
        <source>A BOM template with the name &apos;%1&apos; already exists.</source>
        <translation>Eine Stücklistenvorlage namens „%1“ gibt es schon.</translation>
    </message>
    <message>
        <source>The BOM template &apos;%1&apos; could not be loaded.</source>
        <translation>Die Stücklistenvorlage „%1“ konnte nicht geladen werden.</translation>
    </message>
    <message>
        <source>Could not import the template to &apos;%1&apos;.</source>
        <translation>Die Vorlage konnte nicht nach „%1“ importiert werden.</translation>
    </message>
    <message>
        <source>Export BOM Template</source>
        <translation>Stücklistenvorlage exportieren</translation>
    </message>
    <message>
        <source>BOM Template Changed</source>
        <translation>Stücklistenvorlage geändert</translation>
    </message>
    <message>
        <source>The BOM template &apos;%1&apos; was changed in another window or by another program since it was read.  Replace it with what this window has?</source>
        <translation>Die Stücklistenvorlage „%1“ wurde in einem anderen Fenster oder von einem anderen Programm geändert, seit sie gelesen wurde.  Durch die Fassung dieses Fensters ersetzen?</translation>
    </message>
    <message>
        <source>The name must be one that a file can have, without / and \</source>
        <translation>Der Name muss als Dateiname möglich sein, ohne / und \</translation>
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
    <message>
        <source>Clear the text</source>
        <translation>Text löschen</translation>
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
    <name>Usage</name>
    <message>
        <source>Shows the bill of materials of a KiCad schematic or a part list.</source>
        <translation>Zeigt die Stückliste eines KiCad-Schaltplans oder einer Teileliste.</translation>
    </message>
    <message>
        <source>The library of the module.</source>
        <translation>Die Bibliothek des Moduls.</translation>
    </message>
    <message>
        <source>A .kicad_sch, .kicad_pro or .csv file, or the folder of one; each further one gets a window of its own.</source>
        <translation>Eine Datei .kicad_sch, .kicad_pro oder .csv oder deren Ordner; jede weitere bekommt ein eigenes Fenster.</translation>
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
        <source>The pending changes were written just now, and would be taken back first.</source>
        <translation>Die vorgemerkten Änderungen wurden gerade geschrieben und würden zuerst zurückgenommen.</translation>
    </message>
    <message>
        <source>Open in Another Window</source>
        <translation>In einem anderen Fenster offen</translation>
    </message>
    <message>
        <source>The design &quot;%1&quot; is open in another window. Open it here as well?

Each window has pending edits of its own, and follows what the other one writes.</source>
        <translation>Der Entwurf „%1“ ist in einem anderen Fenster offen. Auch hier öffnen?

Jedes Fenster hat eigene vorgemerkte Änderungen und zeigt, was das andere schreibt.</translation>
    </message>
    <message>
        <source>Reading %1 was cancelled.</source>
        <translation>Das Lesen von %1 wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The design &quot;%1&quot; cannot be opened.</source>
        <translation>Der Entwurf „%1“ kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The program cannot be started once more: %1</source>
        <translation>Das Programm kann kein weiteres Mal gestartet werden: %1</translation>
    </message>
    <message>
        <source>This is your copy of the example from before, in %1</source>
        <translation>Dies ist Ihre frühere Kopie des Beispiels, in %1</translation>
    </message>
    <message>
        <source>This is a copy of the example, in %1</source>
        <translation>Dies ist eine Kopie des Beispiels, in %1</translation>
    </message>
    <message>
        <source>%1 further designs were not opened.</source>
        <translation>%1 weitere Entwürfe wurden nicht geöffnet.</translation>
    </message>
    <message>
        <source>The design is read again as soon as the open editor is closed.</source>
        <translation>Der Entwurf wird neu gelesen, sobald das offene Eingabefeld geschlossen ist.</translation>
    </message>
    <message>
        <source>%1 was read again.</source>
        <translation>%1 wurde neu gelesen.</translation>
    </message>
    <message>
        <source>1 pending edit is kept.</source>
        <translation>1 vorgemerkte Änderung bleibt erhalten.</translation>
    </message>
    <message>
        <source>%1 pending edits are kept.</source>
        <translation>%1 vorgemerkte Änderungen bleiben erhalten.</translation>
    </message>
    <message>
        <source>Bill of Materials Viewer %1</source>
        <translation>Stücklistenanzeige %1</translation>
    </message>
    <message>
        <source>Shows, edits and writes bills of materials of KiCad schematics and projects (versions 6 to 10) and of part lists (CSV).</source>
        <translation>Zeigt, ändert und schreibt Stücklisten von KiCad-Schaltplänen und -Projekten (Versionen 6 bis 10) und von Teilelisten (CSV).</translation>
    </message>
    <message>
        <source>License: MIT. Copyright 2026 The BOM developers.</source>
        <translation>Lizenz: MIT. Copyright 2026 The BOM developers.</translation>
    </message>
    <message>
        <source>Uses Qt %1.</source>
        <translation>Verwendet Qt %1.</translation>
    </message>
    <message>
        <source>Written %1: %2</source>
        <translation>Geschrieben %1: %2</translation>
    </message>
</context>
</TS>

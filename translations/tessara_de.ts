<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Tessara</name>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>No Data</source>
        <translation>Keine Daten</translation>
    </message>
    <message>
        <source>No system bus: the names of devices on the network go unnoticed.</source>
        <translation>Kein Systembus: Die Namen von Geräten im Netzwerk bleiben unbekannt.</translation>
    </message>
    <message>
        <source>Avahi is not running: the names of devices on the network go unnoticed.</source>
        <translation>Avahi läuft nicht: Die Namen von Geräten im Netzwerk bleiben unbekannt.</translation>
    </message>
    <message>
        <source>Avahi does not search: %1</source>
        <translation>Avahi sucht nicht: %1</translation>
    </message>
    <message>
        <source>, channel %1</source>
        <translation>, Kanal %1</translation>
    </message>
    <message>
        <source>, channel 1 %1</source>
        <translation>, Kanal 1 %1</translation>
    </message>
    <message>
        <source>%1 %2,</source>
        <translation>%1 %2,</translation>
    </message>
    <message>
        <source>%1 neg %2</source>
        <translation>%1 minus %2</translation>
    </message>
    <message>
        <source>%1 %2%</source>
        <translation>%1 %2%</translation>
    </message>
    <message>
        <source>%1 no signal</source>
        <translation>%1 kein Signal</translation>
    </message>
    <message>
        <source>no change, %1</source>
        <translation>unverändert, %1</translation>
    </message>
    <message>
        <source>Networks Found: %1, Displayed: %2 (%3%)</source>
        <translation>Netzwerke gefunden: %1, angezeigt: %2 (%3%)</translation>
    </message>
    <message>
        <source>All Networks</source>
        <translation>Alle Netzwerke</translation>
    </message>
    <message>
        <source>Open Networks</source>
        <translation>Offene Netzwerke</translation>
    </message>
    <message>
        <source>Secure Networks</source>
        <translation>Gesicherte Netzwerke</translation>
    </message>
    <message>
        <source>Ad Hoc Networks</source>
        <translation>Ad-hoc-Netzwerke</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Offen</translation>
    </message>
    <message>
        <source>Showing only networks with signal strength</source>
        <translation>Nur Netzwerke mit Signalstärke</translation>
    </message>
    <message>
        <source>&lt;Multiple values&gt;</source>
        <translation>&lt;Mehrere Werte&gt;</translation>
    </message>
    <message>
        <source>%1 GHz</source>
        <translation>%1 GHz</translation>
    </message>
    <message>
        <source>%1 MHz</source>
        <translation>%1 MHz</translation>
    </message>
    <message>
        <source>Frequency Band</source>
        <translation>Frequenzband</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Network Name</source>
        <translation>Netzwerkname</translation>
    </message>
    <message>
        <source>PHY Mode</source>
        <translation>PHY-Modus</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <source>Access Point</source>
        <translation>Access Point</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>2.4 GHz</source>
        <translation>2.4 GHz</translation>
    </message>
    <message>
        <source>5 GHz</source>
        <translation>5 GHz</translation>
    </message>
    <message>
        <source>Mbps</source>
        <translation>Mbit/s</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Gerade eben</translation>
    </message>
    <message>
        <source>%1 sec ago</source>
        <translation>vor %1 s</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>vor %1 min</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>vor %1 h</translation>
    </message>
    <message>
        <source>The colour of the network in the charts.</source>
        <translation>Die Farbe des Netzwerks in den Diagrammen.</translation>
    </message>
    <message>
        <source>BSSID</source>
        <translation>BSSID</translation>
    </message>
    <message>
        <source>The address of the access point&apos;s radio, the identifier of the basic service set.</source>
        <translation>Die Adresse des Funkmoduls des Access Points, die Kennung des Basic Service Set.</translation>
    </message>
    <message>
        <source>The name that the network announces (SSID).</source>
        <translation>Der Name, den das Netzwerk bekannt gibt (SSID).</translation>
    </message>
    <message>
        <source>Beacon Interval</source>
        <translation>Beacon-Intervall</translation>
    </message>
    <message>
        <source>Time between two beacons of the access point.</source>
        <translation>Zeit zwischen zwei Beacons des Access Points.</translation>
    </message>
    <message>
        <source>Device Name</source>
        <translation>Gerätename</translation>
    </message>
    <message>
        <source>The name that the access point gives itself, in its beacons or on the local network.</source>
        <translation>Der Name, den der Access Point sich selbst gibt, in seinen Beacons oder im lokalen Netzwerk.</translation>
    </message>
    <message>
        <source>The maker of the access point, told by its BSSID.</source>
        <translation>Der Hersteller des Access Points, bestimmt anhand der BSSID.</translation>
    </message>
    <message>
        <source>Annotations</source>
        <translation>Anmerkungen</translation>
    </message>
    <message>
        <source>Your own note on this network.</source>
        <translation>Eigene Anmerkung zu diesem Netzwerk.</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>The last signal strength received.</source>
        <translation>Die zuletzt empfangene Signalstärke.</translation>
    </message>
    <message>
        <source>Avg Signal</source>
        <translation>Ø Signal</translation>
    </message>
    <message>
        <source>The average of all signal readings.</source>
        <translation>Der Mittelwert aller Signalmessungen.</translation>
    </message>
    <message>
        <source>Min Signal</source>
        <translation>Min. Signal</translation>
    </message>
    <message>
        <source>The weakest signal read.</source>
        <translation>Das schwächste gemessene Signal.</translation>
    </message>
    <message>
        <source>Max Signal</source>
        <translation>Max. Signal</translation>
    </message>
    <message>
        <source>The strongest signal read.</source>
        <translation>Das stärkste gemessene Signal.</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Rauschen</translation>
    </message>
    <message>
        <source>The last noise level measured on the channel.</source>
        <translation>Der zuletzt gemessene Rauschpegel des Kanals.</translation>
    </message>
    <message>
        <source>Avg Noise</source>
        <translation>Ø Rauschen</translation>
    </message>
    <message>
        <source>The average of all noise readings.</source>
        <translation>Der Mittelwert aller Rauschmessungen.</translation>
    </message>
    <message>
        <source>Min Noise</source>
        <translation>Min. Rauschen</translation>
    </message>
    <message>
        <source>The lowest noise read.</source>
        <translation>Der niedrigste gemessene Rauschpegel.</translation>
    </message>
    <message>
        <source>Max Noise</source>
        <translation>Max. Rauschen</translation>
    </message>
    <message>
        <source>The highest noise read.</source>
        <translation>Der höchste gemessene Rauschpegel.</translation>
    </message>
    <message>
        <source>SNR</source>
        <translation>SNR</translation>
    </message>
    <message>
        <source>The last ratio of signal to noise.</source>
        <translation>Der letzte Signal-Rausch-Abstand.</translation>
    </message>
    <message>
        <source>Avg SNR</source>
        <translation>Ø SNR</translation>
    </message>
    <message>
        <source>The average ratio of signal to noise.</source>
        <translation>Der mittlere Signal-Rausch-Abstand.</translation>
    </message>
    <message>
        <source>Min SNR</source>
        <translation>Min. SNR</translation>
    </message>
    <message>
        <source>The lowest ratio of signal to noise.</source>
        <translation>Der kleinste Signal-Rausch-Abstand.</translation>
    </message>
    <message>
        <source>Max SNR</source>
        <translation>Max. SNR</translation>
    </message>
    <message>
        <source>The highest ratio of signal to noise.</source>
        <translation>Der größte Signal-Rausch-Abstand.</translation>
    </message>
    <message>
        <source>The primary channel.</source>
        <translation>Der Primärkanal.</translation>
    </message>
    <message>
        <source>Center Frequency</source>
        <translation>Mittenfrequenz</translation>
    </message>
    <message>
        <source>The centre frequency of the primary channel.</source>
        <translation>Die Mittenfrequenz des Primärkanals.</translation>
    </message>
    <message>
        <source>Center Channel</source>
        <translation>Mittenkanal</translation>
    </message>
    <message>
        <source>The channel number at the centre of all that the network occupies.</source>
        <translation>Die Kanalnummer in der Mitte aller Kanäle, die das Netzwerk belegt.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>The width of the channel that the network uses.</source>
        <translation>Die Breite des Kanals, den das Netzwerk nutzt.</translation>
    </message>
    <message>
        <source>Band</source>
        <translation>Band</translation>
    </message>
    <message>
        <source>The frequency band of the channel.</source>
        <translation>Das Frequenzband des Kanals.</translation>
    </message>
    <message>
        <source>Streams</source>
        <translation>Streams</translation>
    </message>
    <message>
        <source>The most spatial streams that the access point can send at once.</source>
        <translation>Die größte Zahl räumlicher Datenströme (Spatial Streams), die der Access Point gleichzeitig senden kann.</translation>
    </message>
    <message>
        <source>Stations</source>
        <translation>Stationen</translation>
    </message>
    <message>
        <source>Stations associated with the access point, as it announces them.</source>
        <translation>Mit dem Access Point assoziierte Stationen nach seiner eigenen Angabe.</translation>
    </message>
    <message>
        <source>Ch. Utilization</source>
        <translation>Kanalauslastung</translation>
    </message>
    <message>
        <source>The share of time in which the channel is busy, as the access point announces it.</source>
        <translation>Der Zeitanteil, in dem der Kanal belegt ist, nach Angabe des Access Points.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>The physical layers in use, by the letters of 802.11.</source>
        <translation>Die genutzten physikalischen Schichten, nach den Buchstaben von 802.11.</translation>
    </message>
    <message>
        <source>HT Protection</source>
        <translation>HT-Schutz</translation>
    </message>
    <message>
        <source>How 802.11n transmissions are protected from older or narrower stations.</source>
        <translation>Wie Übertragungen nach 802.11n vor älteren oder schmalbandigeren Stationen geschützt werden.</translation>
    </message>
    <message>
        <source>Fast Transition</source>
        <translation>Fast Transition</translation>
    </message>
    <message>
        <source>How stations may change over to another access point (802.11r): over the air (OTA) or over the distribution system (OTD).</source>
        <translation>Wie Stationen zu einem anderen Access Point wechseln dürfen (802.11r): über die Luft (OTA) oder über das Verteilungssystem (OTD).</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>The country whose rules the access point announces.</source>
        <translation>Das Land, dessen Regeln der Access Point bekannt gibt.</translation>
    </message>
    <message>
        <source>Basic Rates</source>
        <translation>Basisraten</translation>
    </message>
    <message>
        <source>The rates that every station of the network must support.</source>
        <translation>Die Datenraten, die jede Station des Netzwerks unterstützen muss.</translation>
    </message>
    <message>
        <source>Min Rate</source>
        <translation>Min. Rate</translation>
    </message>
    <message>
        <source>The lowest rate announced.</source>
        <translation>Die niedrigste bekannt gegebene Datenrate.</translation>
    </message>
    <message>
        <source>Max Rate</source>
        <translation>Max. Rate</translation>
    </message>
    <message>
        <source>The highest rate that follows from what the access point announces.</source>
        <translation>Die höchste Datenrate, die sich aus den Angaben des Access Points ergibt.</translation>
    </message>
    <message>
        <source>How the network is protected; empty if it is open.</source>
        <translation>Wie das Netzwerk geschützt ist; leer, wenn es offen ist.</translation>
    </message>
    <message>
        <source>WPS</source>
        <translation>WPS</translation>
    </message>
    <message>
        <source>The state of Wi-Fi Protected Setup.</source>
        <translation>Der Zustand von Wi-Fi Protected Setup.</translation>
    </message>
    <message>
        <source>Network Type</source>
        <translation>Netzwerktyp</translation>
    </message>
    <message>
        <source>Infrastructure for an access point, Ad-Hoc for stations among themselves.</source>
        <translation>Infrastruktur bei einem Access Point, Ad-hoc bei Stationen untereinander.</translation>
    </message>
    <message>
        <source>First Seen</source>
        <translation>Zuerst gesehen</translation>
    </message>
    <message>
        <source>Time of the first sample of the history.</source>
        <translation>Zeitpunkt der ersten Messung im Verlauf.</translation>
    </message>
    <message>
        <source>Last Seen</source>
        <translation>Zuletzt gesehen</translation>
    </message>
    <message>
        <source>Time of the last scan that saw the network.</source>
        <translation>Zeitpunkt des letzten Scans, der das Netzwerk gefunden hat.</translation>
    </message>
    <message>
        <source>Seen</source>
        <translation>Gesehen</translation>
    </message>
    <message>
        <source>How long ago the network was last seen.</source>
        <translation>Wie lange es her ist, dass das Netzwerk zuletzt gesehen wurde.</translation>
    </message>
    <message>
        <source>5 GHz UNII-3</source>
        <translation>5 GHz UNII-3</translation>
    </message>
    <message>
        <source>5 GHz UNII-2 Extended</source>
        <translation>5 GHz UNII-2 Extended</translation>
    </message>
    <message>
        <source>5 GHz UNII-2</source>
        <translation>5 GHz UNII-2</translation>
    </message>
    <message>
        <source>5 GHz UNII-1</source>
        <translation>5 GHz UNII-1</translation>
    </message>
    <message>
        <source>2.4 GHz ISM</source>
        <translation>2.4 GHz ISM</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>WEP</source>
        <translation>WEP</translation>
    </message>
    <message>
        <source>WPA Personal</source>
        <translation>WPA Personal</translation>
    </message>
    <message>
        <source>WPA/WPA2 Personal</source>
        <translation>WPA/WPA2 Personal</translation>
    </message>
    <message>
        <source>WPA2 Personal</source>
        <translation>WPA2 Personal</translation>
    </message>
    <message>
        <source>Dynamic WEP</source>
        <translation>Dynamisches WEP</translation>
    </message>
    <message>
        <source>WPA Enterprise</source>
        <translation>WPA Enterprise</translation>
    </message>
    <message>
        <source>WPA/WPA2 Enterprise</source>
        <translation>WPA/WPA2 Enterprise</translation>
    </message>
    <message>
        <source>WPA2 Enterprise</source>
        <translation>WPA2 Enterprise</translation>
    </message>
    <message>
        <source>&lt;Hidden Network&gt;</source>
        <translation>&lt;Verborgen&gt;</translation>
    </message>
    <message>
        <source>Ad-Hoc</source>
        <translation>Ad-hoc</translation>
    </message>
    <message>
        <source>Infrastructure</source>
        <translation>Infrastruktur</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>Configured</source>
        <translation>Konfiguriert</translation>
    </message>
    <message>
        <source>Not Configured</source>
        <translation>Nicht konfiguriert</translation>
    </message>
    <message>
        <source>The file is not text in UTF-8.</source>
        <translation>Die Datei ist kein Text in UTF-8.</translation>
    </message>
    <message>
        <source>Exporting</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>The export failed.</source>
        <translation>Der Export ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Importing</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>The import failed.</source>
        <translation>Der Import ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Suche nach Aktualisierungen...</translation>
    </message>
    <message>
        <source>Unable to check for updates.</source>
        <translation>Die Suche nach Aktualisierungen ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>The server&apos;s answer is not the number of a version.</source>
        <translation>Die Antwort des Servers ist keine Versionsnummer.</translation>
    </message>
    <message>
        <source>A new version of Tessara is available!</source>
        <translation>Eine neue Version von Tessara ist verfügbar!</translation>
    </message>
    <message>
        <source>Version %1 is available; you have version %2. It comes the way this one came, with the system&apos;s packages for instance.</source>
        <translation>Version %1 ist verfügbar; installiert ist Version %2. Die neue Version kommt auf demselben Weg wie diese, zum Beispiel mit den Paketen des Systems.</translation>
    </message>
    <message>
        <source>Tessara is up-to-date!</source>
        <translation>Tessara ist auf dem neuesten Stand!</translation>
    </message>
    <message>
        <source>Version %1 is the newest version available.</source>
        <translation>Version %1 ist die neueste verfügbare Version.</translation>
    </message>
    <message>
        <source>There is not enough memory for this.</source>
        <translation>Dafür reicht der Arbeitsspeicher nicht aus.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Die Datei ist zu groß.</translation>
    </message>
    <message>
        <source>The request timed out.</source>
        <translation>Zeitüberschreitung bei der Anfrage.</translation>
    </message>
    <message>
        <source>this is no binary property list</source>
        <translation>dies ist keine binäre Property-Liste</translation>
    </message>
    <message>
        <source>the property list is no keyed archive</source>
        <translation>die Property-Liste ist kein Archiv mit Schlüsseln</translation>
    </message>
    <message>
        <source>the archive repeats itself without end</source>
        <translation>das Archiv wiederholt sich endlos</translation>
    </message>
    <message>
        <source>an object of the archive is damaged</source>
        <translation>ein Objekt des Archivs ist beschädigt</translation>
    </message>
    <message>
        <source>is no object</source>
        <translation>ist kein Objekt</translation>
    </message>
    <message>
        <source>is no number</source>
        <translation>ist keine Zahl</translation>
    </message>
    <message>
        <source>is no text</source>
        <translation>ist kein Text</translation>
    </message>
    <message>
        <source>is no data</source>
        <translation>sind keine Daten</translation>
    </message>
    <message>
        <source>is no date</source>
        <translation>ist kein Datum</translation>
    </message>
    <message>
        <source>is no colour</source>
        <translation>ist keine Farbe</translation>
    </message>
    <message>
        <source>is no collection</source>
        <translation>ist keine Sammlung</translation>
    </message>
    <message>
        <source>is no dictionary</source>
        <translation>ist kein Wörterbuch</translation>
    </message>
    <message>
        <source>the property list has declarations of its own</source>
        <translation>die Property-Liste enthält eigene Deklarationen</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>this is no property list of the kind expected</source>
        <translation>dies ist keine Property-Liste der erwarteten Art</translation>
    </message>
    <message>
        <source>the property list is nested too deeply</source>
        <translation>die Property-Liste ist zu tief verschachtelt</translation>
    </message>
    <message>
        <source>the property list is too long</source>
        <translation>die Property-Liste ist zu lang</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds something that is no network</source>
        <translation>„%1“ enthält etwas, das kein Netzwerk ist</translation>
    </message>
    <message>
        <source>&quot;channelNumber&quot; is no number of a channel</source>
        <translation>„channelNumber“ ist keine Kanalnummer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds something that is no sample</source>
        <translation>„%1“ enthält etwas, das keine Messung ist</translation>
    </message>
    <message>
        <source>Do you want to save the current results?</source>
        <translation>Aktuelle Ergebnisse speichern?</translation>
    </message>
    <message>
        <source>Any data will be lost if you don&apos;t save it.</source>
        <translation>Nicht gespeicherte Daten gehen verloren.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>Nicht speichern</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be saved.</source>
        <translation>Die Datei „%1“ konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be read.</source>
        <translation>Die Datei „%1“ konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>This file&apos;s format is not supported in this version of Tessara.</source>
        <translation>Das Format dieser Datei wird von dieser Version von Tessara nicht unterstützt.</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>The file does not have a valid format.</source>
        <translation>Die Datei hat kein gültiges Format.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Der Arbeitsspeicher reicht nicht aus.</translation>
    </message>
    <message>
        <source>This is no file.</source>
        <translation>Dies ist keine Datei.</translation>
    </message>
    <message>
        <source>Checking for database updates...</source>
        <translation>Suche nach Aktualisierungen der Datenbank...</translation>
    </message>
    <message>
        <source>The database is up-to-date!</source>
        <translation>Die Datenbank ist auf dem neuesten Stand!</translation>
    </message>
    <message>
        <source>The existing database is the newest version available.</source>
        <translation>Die vorhandene Datenbank ist die neueste verfügbare Version.</translation>
    </message>
    <message>
        <source>A new vendors database is available!</source>
        <translation>Eine neue Herstellerdatenbank ist verfügbar!</translation>
    </message>
    <message>
        <source>Do you want to update it now?</source>
        <translation>Jetzt aktualisieren?</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Turn On Auto Update</source>
        <translation>Automatisch aktualisieren</translation>
    </message>
    <message>
        <source>Unable to download database update.</source>
        <translation>Die Aktualisierung der Datenbank konnte nicht geladen werden.</translation>
    </message>
    <message>
        <source>Update finished.</source>
        <translation>Aktualisierung abgeschlossen.</translation>
    </message>
    <message>
        <source>The vendors database was updated successfully.</source>
        <translation>Die Herstellerdatenbank wurde aktualisiert.</translation>
    </message>
    <message>
        <source>the property list names no vendor</source>
        <translation>die Property-Liste nennt keinen Hersteller</translation>
    </message>
    <message>
        <source>the vendor database is too large</source>
        <translation>die Herstellerdatenbank ist zu groß</translation>
    </message>
    <message>
        <source>%1: could not be read: %2</source>
        <translation>%1: konnte nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>this is no regular file</source>
        <translation>dies ist keine reguläre Datei</translation>
    </message>
    <message>
        <source>it is longer than %1 MB</source>
        <translation>sie ist länger als %1 MB</translation>
    </message>
    <message>
        <source>%1: could not be written: %2</source>
        <translation>%1: konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Wi-Fi is off. Do you want to turn it on?</source>
        <translation>WLAN ist ausgeschaltet. Jetzt einschalten?</translation>
    </message>
    <message>
        <source>Wi-Fi must be on to perform a scan for wireless networks.</source>
        <translation>WLAN muss eingeschaltet sein, um nach Netzwerken zu suchen.</translation>
    </message>
    <message>
        <source>Turn Wi-Fi On</source>
        <translation>WLAN einschalten</translation>
    </message>
    <message>
        <source>Not associated</source>
        <translation>Nicht assoziiert</translation>
    </message>
    <message>
        <source>Associated</source>
        <translation>Assoziiert</translation>
    </message>
    <message>
        <source>Data from Clipboard</source>
        <translation>Daten aus der Zwischenablage</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>Datei: %1</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Scan läuft</translation>
    </message>
    <message>
        <source>Not scanning</source>
        <translation>Kein Scan</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>not a capture (%1)</source>
        <translation>keine Aufzeichnung von Frames (%1)</translation>
    </message>
    <message>
        <source>the rest of the capture cannot be read (%1)</source>
        <translation>der Rest der Aufzeichnung ist nicht lesbar (%1)</translation>
    </message>
    <message>
        <source>the file cannot be read twice</source>
        <translation>die Datei lässt sich nicht zweimal lesen</translation>
    </message>
    <message>
        <source>not a capture of Wi-Fi frames, its link type is %1</source>
        <translation>keine Aufzeichnung von WLAN-Frames, der Link-Typ ist %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>NetworkManager is not running</source>
        <translation>NetworkManager läuft nicht</translation>
    </message>
    <message>
        <source>there is no system bus to reach NetworkManager by</source>
        <translation>ohne Systembus ist NetworkManager nicht erreichbar</translation>
    </message>
    <message>
        <source>NetworkManager does not answer</source>
        <translation>NetworkManager antwortet nicht</translation>
    </message>
    <message>
        <source>NetworkManager refuses: %1</source>
        <translation>NetworkManager verweigert die Anfrage: %1</translation>
    </message>
    <message>
        <source>NetworkManager does not manage %1</source>
        <translation>NetworkManager verwaltet %1 nicht</translation>
    </message>
    <message>
        <source>NetworkManager cannot use %1 now</source>
        <translation>NetworkManager kann %1 derzeit nicht nutzen</translation>
    </message>
    <message>
        <source>NetworkManager went away during the scan</source>
        <translation>NetworkManager wurde während des Scans beendet</translation>
    </message>
    <message>
        <source>The interface %1 is gone</source>
        <translation>Die Schnittstelle %1 ist nicht mehr da</translation>
    </message>
    <message>
        <source>The interface %1 is down or its radio is off</source>
        <translation>Die Schnittstelle %1 ist inaktiv oder ihr Funkmodul ist aus</translation>
    </message>
    <message>
        <source>The radio of %1 is busy</source>
        <translation>Das Funkmodul von %1 ist belegt</translation>
    </message>
    <message>
        <source>The driver of %1 does not support this</source>
        <translation>Der Treiber von %1 unterstützt dies nicht</translation>
    </message>
    <message>
        <source>The kernel has no nl80211</source>
        <translation>Dem Kernel fehlt nl80211</translation>
    </message>
    <message>
        <source>The scan did not end in time</source>
        <translation>Der Scan wurde nicht rechtzeitig fertig</translation>
    </message>
    <message>
        <source>A switch or key of this machine keeps the radio of %1 off</source>
        <translation>Ein Schalter oder eine Taste dieses Geräts hält das Funkmodul von %1 ausgeschaltet</translation>
    </message>
    <message>
        <source>No permission to switch the radio of %1, and %2</source>
        <translation>Keine Berechtigung, das Funkmodul von %1 zu schalten, und %2</translation>
    </message>
    <message>
        <source>The interface %1 is down: bring %1 up</source>
        <translation>Die Schnittstelle %1 ist inaktiv: %1 zuerst aktivieren</translation>
    </message>
    <message>
        <source>The scan was cut short</source>
        <translation>Der Scan wurde vorzeitig beendet</translation>
    </message>
    <message>
        <source>The program ends</source>
        <translation>Das Programm wird beendet</translation>
    </message>
    <message>
        <source>nl80211 (own scans)</source>
        <translation>nl80211 (eigene Scans)</translation>
    </message>
    <message>
        <source>cached results only: no privilege to scan, and %1</source>
        <translation>nur zwischengespeicherte Ergebnisse: keine Berechtigung zum Scannen, und %1</translation>
    </message>
    <message>
        <source>NetworkManager (RequestScan)</source>
        <translation>NetworkManager (RequestScan)</translation>
    </message>
    <message>
        <source>the compressed data ends too early</source>
        <translation>die komprimierten Daten enden zu früh</translation>
    </message>
    <message>
        <source>the compressed data is damaged</source>
        <translation>die komprimierten Daten sind beschädigt</translation>
    </message>
    <message>
        <source>%1 holds no scans</source>
        <translation>%1 enthält keine Scans</translation>
    </message>
    <message>
        <source>Wi-Fi is off</source>
        <translation>WLAN ist ausgeschaltet</translation>
    </message>
    <message>
        <source>recording %1</source>
        <translation>Aufnahme %1</translation>
    </message>
    <message>
        <source>not JSON (%1)</source>
        <translation>kein JSON (%1)</translation>
    </message>
    <message>
        <source>not an object</source>
        <translation>kein Objekt</translation>
    </message>
    <message>
        <source>the line is empty</source>
        <translation>die Zeile ist leer</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>die Zeile ist zu lang</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, Zeile %2: %3</translation>
    </message>
    <message>
        <source>%1: not a kind of file that is read here (%2, each also with %3, or - for a recording on standard input)</source>
        <translation>%1: Dateien dieser Art werden hier nicht gelesen (%2, jeweils auch mit %3, oder - für eine Aufnahme von der Standardeingabe)</translation>
    </message>
    <message>
        <source>a sweep takes more than 0 seconds</source>
        <translation>ein Durchlauf dauert mehr als 0 Sekunden</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>&quot;time&quot; is not a number of seconds since 1970</source>
        <translation>„time“ ist keine Anzahl von Sekunden seit 1970</translation>
    </message>
    <message>
        <source>&quot;networks&quot; is not an array</source>
        <translation>„networks“ ist kein Array</translation>
    </message>
    <message>
        <source>network %1 is not an object</source>
        <translation>Netzwerk %1 ist kein Objekt</translation>
    </message>
    <message>
        <source>network %1: &quot;%2&quot; has a value of the wrong kind</source>
        <translation>Netzwerk %1: „%2“ hat einen Wert der falschen Art</translation>
    </message>
    <message>
        <source>About Tessara</source>
        <translation>Über Tessara</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Acknowledgments</source>
        <translation>Danksagungen</translation>
    </message>
    <message>
        <source>Filter Language</source>
        <translation>Filtersprache</translation>
    </message>
    <message>
        <source>Scan in progress</source>
        <translation>Scan läuft</translation>
    </message>
    <message>
        <source>Hide the &amp;graph of a band without networks</source>
        <translation>&amp;Diagramm eines Bandes ohne Netzwerke ausblenden</translation>
    </message>
    <message>
        <source>Hide &amp;DFS channels without networks</source>
        <translation>DFS-&amp;Kanäle ohne Netzwerke ausblenden</translation>
    </message>
    <message>
        <source>&amp;Check for updates</source>
        <translation>Nach &amp;Aktualisierungen suchen</translation>
    </message>
    <message>
        <source>&amp;Install updates without asking</source>
        <translation>Aktualisierungen ohne Rückfrage &amp;installieren</translation>
    </message>
    <message>
        <source>Channels 52 to 144, which networks must leave to radars</source>
        <translation>Kanäle 52 bis 144, die Netzwerke für Radargeräte räumen müssen</translation>
    </message>
    <message>
        <source>Check &amp;Now</source>
        <translation>&amp;Jetzt suchen</translation>
    </message>
    <message>
        <source>Spectrum:</source>
        <translation>Spektrum:</translation>
    </message>
    <message>
        <source>Vendors database:</source>
        <translation>Herstellerdatenbank:</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>Unable to open the web page.</source>
        <translation>Die Webseite lässt sich nicht öffnen.</translation>
    </message>
    <message>
        <source>What you set and note will not be kept.</source>
        <translation>Einstellungen und Anmerkungen bleiben nicht erhalten.</translation>
    </message>
    <message>
        <source>Unable to write: %1</source>
        <translation>Schreiben nicht möglich: %1</translation>
    </message>
    <message>
        <source>Unable to scan for wireless networks.</source>
        <translation>Die Suche nach Funknetzwerken ist nicht möglich.</translation>
    </message>
    <message>
        <source>No supported Wi-Fi interfaces were found.</source>
        <translation>Es wurde keine unterstützte WLAN-Schnittstelle gefunden.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>For more information visit %1.</source>
        <translation>Weitere Informationen: %1</translation>
    </message>
    <message>
        <source>Tessara Support</source>
        <translation>Tessara-Support</translation>
    </message>
    <message>
        <source>No network passes the filters</source>
        <translation>Kein Netzwerk entspricht den Filtern</translation>
    </message>
    <message>
        <source>No networks yet</source>
        <translation>Noch keine Netzwerke</translation>
    </message>
    <message>
        <source>Press Scan to look for networks</source>
        <translation>„Scannen“ sucht nach Netzwerken</translation>
    </message>
    <message>
        <source>Colour of the network</source>
        <translation>Farbe des Netzwerks</translation>
    </message>
    <message>
        <source>Colour of the network in the table and in the charts</source>
        <translation>Farbe des Netzwerks in der Tabelle und in den Diagrammen</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Show &amp;annotations in the spectrum</source>
        <translation>&amp;Anmerkungen im Spektrum anzeigen</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Select a column name for details.</source>
        <translation>Für Einzelheiten einen Spaltennamen auswählen.</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv *.CSV)</source>
        <translation>Kommagetrennte Werte (*.csv *.CSV)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Export As</source>
        <translation>Exportieren als</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>home: networks with &quot;home&quot; in their name, in a note or in their maker&apos;s name
&quot;Home&quot;: networks of exactly this name
5GHz, 80MHz, 36, ac, wpa2, DE: band, width, channel, mode, security, country
&gt;-70, &gt;=50%: the last signal; !home: all but these
a, b &amp; c: networks that are a or b, and c</source>
        <translation>heim: Netzwerke mit „heim“ im Namen, in einer Anmerkung oder im Namen des Herstellers
&quot;Heim&quot;: Netzwerke mit genau diesem Namen
5GHz, 80MHz, 36, ac, wpa2, DE: Band, Breite, Kanal, Modus, Sicherheit, Land
&gt;-70, &gt;=50%: das letzte Signal; !heim: alle außer diesen
a, b &amp; c: Netzwerke, die a oder b sind, und c</translation>
    </message>
    <message>
        <source>Recent filters</source>
        <translation>Zuletzt verwendete Filter</translation>
    </message>
    <message>
        <source>No Recent Filters</source>
        <translation>Keine zuletzt verwendeten Filter</translation>
    </message>
    <message>
        <source>Recent Filters</source>
        <translation>Zuletzt verwendete Filter</translation>
    </message>
    <message>
        <source>Clear Recent Filters</source>
        <translation>Zuletzt verwendete Filter löschen</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>dBm</source>
        <translation>dBm</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 Minute</translation>
    </message>
    <message>
        <source>2 minutes</source>
        <translation>2 Minuten</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5 Minuten</translation>
    </message>
    <message>
        <source>30 minutes</source>
        <translation>30 Minuten</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 Stunde</translation>
    </message>
    <message>
        <source>2 hours</source>
        <translation>2 Stunden</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Täglich</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Wöchentlich</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Monatlich</translation>
    </message>
    <message>
        <source>&amp;Remove networks not seen for</source>
        <translation>&amp;Netzwerke entfernen, nicht gesehen seit</translation>
    </message>
    <message>
        <source>Check for &amp;updates of Tessara</source>
        <translation>Nach &amp;Aktualisierungen von Tessara suchen</translation>
    </message>
    <message>
        <source>Networks with a weaker signal are not listed</source>
        <translation>Netzwerke mit schwächerem Signal werden nicht aufgeführt</translation>
    </message>
    <message>
        <source>Highest</source>
        <translation>Höchste</translation>
    </message>
    <message>
        <source>Time until a network is removed</source>
        <translation>Zeit, bis ein Netzwerk entfernt wird</translation>
    </message>
    <message>
        <source>Time between checks for updates</source>
        <translation>Zeit zwischen den Suchen nach Aktualisierungen</translation>
    </message>
    <message>
        <source>&amp;Sensitivity:</source>
        <translation>&amp;Empfindlichkeit:</translation>
    </message>
    <message>
        <source>Show s&amp;ignals in:</source>
        <translation>&amp;Signale anzeigen in:</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>Niedrigste</translation>
    </message>
    <message>
        <source>Network Details</source>
        <translation>Netzwerkdetails</translation>
    </message>
    <message>
        <source>Signal Strength</source>
        <translation>Signalstärke</translation>
    </message>
    <message>
        <source>Spectrum</source>
        <translation>Spektrum</translation>
    </message>
    <message>
        <source>Advanced Details</source>
        <translation>Erweiterte Details</translation>
    </message>
    <message>
        <source>Show &amp;More Time</source>
        <translation>&amp;Mehr Zeit anzeigen</translation>
    </message>
    <message>
        <source>Show L&amp;ess Time</source>
        <translation>&amp;Weniger Zeit anzeigen</translation>
    </message>
    <message>
        <source>The network announces no information elements</source>
        <translation>Das Netzwerk sendet keine Informationselemente</translation>
    </message>
    <message>
        <source>Select a network to see its information elements</source>
        <translation>Für Informationselemente ein Netzwerk auswählen</translation>
    </message>
    <message>
        <source>&amp;Next Tab</source>
        <translation>&amp;Nächster Tab</translation>
    </message>
    <message>
        <source>&amp;Previous Tab</source>
        <translation>&amp;Vorheriger Tab</translation>
    </message>
    <message>
        <source>Details C&amp;hart</source>
        <translation>Detail&amp;diagramm</translation>
    </message>
    <message>
        <source>Auto Size Column</source>
        <translation>Spaltenbreite anpassen</translation>
    </message>
    <message>
        <source>Auto Size All Columns</source>
        <translation>Alle Spaltenbreiten anpassen</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Number of the element</source>
        <translation>Nummer des Elements</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Length of the element without its first two octets</source>
        <translation>Länge des Elements ohne seine ersten zwei Oktette</translation>
    </message>
    <message>
        <source>Information Element</source>
        <translation>Informationselement</translation>
    </message>
    <message>
        <source>Name of the element, and of its fields</source>
        <translation>Name des Elements und seiner Felder</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Felder</translation>
    </message>
    <message>
        <source>What the element says</source>
        <translation>Was das Element aussagt</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Byte</translation>
    </message>
    <message>
        <source>1 %1</source>
        <translation>1 %1</translation>
    </message>
    <message>
        <source>second</source>
        <translation>Sekunde</translation>
    </message>
    <message>
        <source>2 %1</source>
        <translation>2 %1</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>5 %1</source>
        <translation>5 %1</translation>
    </message>
    <message>
        <source>10 %1</source>
        <translation>10 %1</translation>
    </message>
    <message>
        <source>15 %1</source>
        <translation>15 %1</translation>
    </message>
    <message>
        <source>30 %1</source>
        <translation>30 %1</translation>
    </message>
    <message>
        <source>minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>&amp;Interval</source>
        <translation>&amp;Intervall</translation>
    </message>
    <message>
        <source>Scanning goes on at its own pace, whatever is chosen here</source>
        <translation>Der Scan behält sein eigenes Tempo, was auch immer hier gewählt ist</translation>
    </message>
    <message>
        <source>Tessara &amp;Support</source>
        <translation>Tessara-&amp;Support</translation>
    </message>
    <message>
        <source>Tessara on &amp;Twitter</source>
        <translation>Tessara auf &amp;Twitter</translation>
    </message>
    <message>
        <source>Tessara on Face&amp;book</source>
        <translation>Tessara auf Face&amp;book</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Export Networks</source>
        <translation>Netzwerke &amp;exportieren</translation>
    </message>
    <message>
        <source>&amp;All Networks...</source>
        <translation>&amp;Alle Netzwerke...</translation>
    </message>
    <message>
        <source>&amp;Displayed Networks...</source>
        <translation>An&amp;gezeigte Netzwerke...</translation>
    </message>
    <message>
        <source>&amp;Selected Networks...</source>
        <translation>Ausge&amp;wählte Netzwerke...</translation>
    </message>
    <message>
        <source>E&amp;xport Annotations...</source>
        <translation>&amp;Anmerkungen exportieren...</translation>
    </message>
    <message>
        <source>&amp;Import Annotations...</source>
        <translation>Anmerkungen &amp;importieren...</translation>
    </message>
    <message>
        <source>E&amp;dit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Edit &amp;Annotation</source>
        <translation>Anmerkung &amp;bearbeiten</translation>
    </message>
    <message>
        <source>Pr&amp;eferences...</source>
        <translation>Ein&amp;stellungen...</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Select A&amp;ll</source>
        <translation>A&amp;lles auswählen</translation>
    </message>
    <message>
        <source>&amp;Scan</source>
        <translation>&amp;Scan</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Scannen</translation>
    </message>
    <message>
        <source>Start a scan</source>
        <translation>Einen Scan starten</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Stop a scan</source>
        <translation>Einen Scan stoppen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>&amp;Filter</translation>
    </message>
    <message>
        <source>&amp;Side View</source>
        <translation>&amp;Seitenleiste</translation>
    </message>
    <message>
        <source>Show or hide the side view</source>
        <translation>Seitenleiste ein- oder ausblenden</translation>
    </message>
    <message>
        <source>&amp;Lower Half</source>
        <translation>&amp;Untere Hälfte</translation>
    </message>
    <message>
        <source>Show or hide details and charts</source>
        <translation>Details und Diagramme ein- oder ausblenden</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>S&amp;palten</translation>
    </message>
    <message>
        <source>Organize Networks by Name</source>
        <translation>Netzwerke nach Namen gruppieren</translation>
    </message>
    <message>
        <source>Organize Networks by Radio</source>
        <translation>Netzwerke nach Funkmodul gruppieren</translation>
    </message>
    <message>
        <source>Organize Networks by Access Point</source>
        <translation>Netzwerke nach Access Point gruppieren</translation>
    </message>
    <message>
        <source>Make Text &amp;Bigger</source>
        <translation>Schrift &amp;größer</translation>
    </message>
    <message>
        <source>Make Text Smalle&amp;r</source>
        <translation>Schrift &amp;kleiner</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Filter Language</source>
        <translation>&amp;Filtersprache</translation>
    </message>
    <message>
        <source>Check for &amp;Updates...</source>
        <translation>Nach Akt&amp;ualisierungen suchen...</translation>
    </message>
    <message>
        <source>Ac&amp;knowledgments</source>
        <translation>&amp;Danksagungen</translation>
    </message>
    <message>
        <source>&amp;About Tessara</source>
        <translation>&amp;Über Tessara</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>Quick Filter</source>
        <translation>Schnellfilter</translation>
    </message>
    <message>
        <source>Show only networks of one kind</source>
        <translation>Nur Netzwerke einer Art anzeigen</translation>
    </message>
    <message>
        <source>Select a network</source>
        <translation>Ein Netzwerk auswählen</translation>
    </message>
    <message>
        <source>Channel Width</source>
        <translation>Kanalbreite</translation>
    </message>
    <message>
        <source>Secured</source>
        <translation>Gesichert</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Verschlüsselung</translation>
    </message>
    <message>
        <source>Average, minimum and maximum</source>
        <translation>Mittelwert, Minimum und Maximum</translation>
    </message>
    <message>
        <source>Avg/Min/Max</source>
        <translation>Ø/Min./Max.</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>The signal is weak beside the noise</source>
        <translation>Das Signal ist schwach gegenüber dem Rauschen</translation>
    </message>
    <message>
        <source>Signal and Noise</source>
        <translation>Signal und Rauschen</translation>
    </message>
    <message>
        <source>Signal-to-Noise Ratio</source>
        <translation>Signal-Rausch-Abstand</translation>
    </message>
    <message>
        <source>Show:</source>
        <translation>Zeigen:</translation>
    </message>
    <message>
        <source>What the chart shows of the selected network</source>
        <translation>Was das Diagramm vom ausgewählten Netzwerk zeigt</translation>
    </message>
    <message>
        <source>Excellent</source>
        <translation>Ausgezeichnet</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Gut</translation>
    </message>
    <message>
        <source>Poor</source>
        <translation>Schwach</translation>
    </message>
    <message>
        <source>Very Poor</source>
        <translation>Sehr schwach</translation>
    </message>
    <message>
        <source>Extremely Poor</source>
        <translation>Äußerst schwach</translation>
    </message>
    <message>
        <source>No Signal</source>
        <translation>Kein Signal</translation>
    </message>
    <message>
        <source>Not Detected</source>
        <translation>Nicht erkannt</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Clear Menu</source>
        <translation>&amp;Liste leeren</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Diese Meldung nicht mehr anzeigen</translation>
    </message>
    <message>
        <source>&amp;Never</source>
        <translation>&amp;Nie</translation>
    </message>
    <message>
        <source>After 5 Seconds</source>
        <translation>Nach 5 Sekunden</translation>
    </message>
    <message>
        <source>After 10 Seconds</source>
        <translation>Nach 10 Sekunden</translation>
    </message>
    <message>
        <source>After 15 Seconds</source>
        <translation>Nach 15 Sekunden</translation>
    </message>
    <message>
        <source>After 30 Seconds</source>
        <translation>Nach 30 Sekunden</translation>
    </message>
    <message>
        <source>After 1 Minute</source>
        <translation>Nach 1 Minute</translation>
    </message>
    <message>
        <source>S&amp;peech</source>
        <translation>S&amp;prachausgabe</translation>
    </message>
    <message>
        <source>Speak the &amp;Signal of the Selected Network</source>
        <translation>&amp;Signal des ausgewählten Netzwerks ansagen</translation>
    </message>
    <message>
        <source>Speak in the &amp;Background</source>
        <translation>Auch im &amp;Hintergrund ansagen</translation>
    </message>
    <message>
        <source>&amp;Repeat an Unchanged Signal</source>
        <translation>&amp;Unverändertes Signal wiederholen</translation>
    </message>
    <message>
        <source>S&amp;top Speaking</source>
        <translation>Ansage &amp;beenden</translation>
    </message>
    <message>
        <source>Speak &amp;Now</source>
        <translation>&amp;Jetzt ansagen</translation>
    </message>
    <message>
        <source>Information Elements</source>
        <translation>Informationselemente</translation>
    </message>
    <message>
        <source>Expand Item</source>
        <translation>Eintrag aufklappen</translation>
    </message>
    <message>
        <source>Expand All Items</source>
        <translation>Alle Einträge aufklappen</translation>
    </message>
    <message>
        <source>Collapse Item</source>
        <translation>Eintrag zuklappen</translation>
    </message>
    <message>
        <source>Collapse All Items</source>
        <translation>Alle Einträge zuklappen</translation>
    </message>
    <message>
        <source>Copy Element</source>
        <translation>Element kopieren</translation>
    </message>
    <message>
        <source>Copy All Elements</source>
        <translation>Alle Elemente kopieren</translation>
    </message>
    <message>
        <source>Networks</source>
        <translation>Netzwerke</translation>
    </message>
    <message>
        <source>Results by kind</source>
        <translation>Ergebnisse nach Art</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>Alle aufklappen</translation>
    </message>
    <message>
        <source>Collapse All</source>
        <translation>Alle zuklappen</translation>
    </message>
    <message>
        <source>en</source>
        <translation>de</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Waymark</name>
    <message>
        <source> NOT SAVED</source>
        <extracomment>src/cli/GeotagReport.cpp</extracomment>
        <translation> NICHT GESPEICHERT</translation>
    </message>
    <message>
        <source> [dry run]</source>
        <extracomment>src/cli/GeotagReport.cpp</extracomment>
        <translation> [Probelauf]</translation>
    </message>
    <message>
        <source> and </source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation> und </translation>
    </message>
    <message>
        <source>"%@" is not a date: "YYYY-MM-DD HH:MM:SS" is expected</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>„%@“ ist kein Datum: erwartet wird "YYYY-MM-DD HH:MM:SS"</translation>
    </message>
    <message>
        <source>"%@" is not a number of degrees from -%@ to %@</source>
        <extracomment>src/cli/PlaceCommand.cpp</extracomment>
        <translation>„%@“ ist keine Gradzahl von -%@ bis %@</translation>
    </message>
    <message>
        <source>"%@" is not a setting: write KEY=VALUE.</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>„%@“ ist keine Einstellung: Schreiben Sie KEY=VALUE.</translation>
    </message>
    <message>
        <source>"%@" is not a size: WIDTHxHEIGHT in pixels is expected</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>„%@“ ist keine Größe: erwartet wird WIDTHxHEIGHT in Pixeln</translation>
    </message>
    <message>
        <source>"%@" is not a time zone: +02:00, Z or Area/City is expected</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>„%@“ ist keine Zeitzone: erwartet wird +02:00, Z oder Area/City</translation>
    </message>
    <message>
        <source>"%@" is not a type of pictures</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>„%@“ ist kein Bildformat</translation>
    </message>
    <message>
        <source>"%@" is not a value of "%@", which takes %@.</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>„%@“ ist kein Wert für „%@“; möglich ist: %@.</translation>
    </message>
    <message>
        <source>"%@" is not a value of %@: %@</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>„%@“ ist kein Wert von %@: %@</translation>
    </message>
    <message>
        <source>"%@" says too little for the precision %@</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>„%@“ ist zu ungenau für die Genauigkeit %@</translation>
    </message>
    <message>
        <source>"YYYY-MM-DD HH:MM:SS", or its beginning</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>"YYYY-MM-DD HH:MM:SS" oder der Anfang davon</translation>
    </message>
    <message>
        <source>%1 (shown)</source>
        <extracomment>src/ui/inspector/CatalogueModel.cpp</extracomment>
        <translation>%1 (angezeigt)</translation>
    </message>
    <message>
        <source>%1 to the map's centre</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Auf Kartenmitte: %1</translation>
    </message>
    <message>
        <source>%1 to the waypoint</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Auf Wegpunkt: %1</translation>
    </message>
    <message>
        <source>%1, %2 of %3</source>
        <extracomment>src/ui/datetools/CoverFlowView.cpp</extracomment>
        <translation>%1, %2 von %3</translation>
    </message>
    <message>
        <source>%1, not yet written</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>%1, noch nicht geschrieben</translation>
    </message>
    <message>
        <source>%@ GB</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>%@ GB</translation>
    </message>
    <message>
        <source>%@ KB</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>%@ kB</translation>
    </message>
    <message>
        <source>%@ MB</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>%@ MB</translation>
    </message>
    <message>
        <source>%@ NM</source>
        <extracomment>src/platform/common/KTUnitConverter.cpp</extracomment>
        <translation>%@ NM</translation>
    </message>
    <message>
        <source>%@ PB</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>%@ PB</translation>
    </message>
    <message>
        <source>%@ TB</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>%@ TB</translation>
    </message>
    <message>
        <source>%@ after %@.</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>%@ nach %@.</translation>
    </message>
    <message>
        <source>%@ after photo.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>%@ nach dem Foto.</translation>
    </message>
    <message>
        <source>%@ and %@</source>
        <extracomment>src/app/WaymarkAppControllerFiles.cpp</extracomment>
        <translation>%@ und %@</translation>
    </message>
    <message>
        <source>%@ answered “%@”.</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>%@ antwortete „%@“.</translation>
    </message>
    <message>
        <source>%@ before %@.</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>%@ vor %@.</translation>
    </message>
    <message>
        <source>%@ before photo.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>%@ vor dem Foto.</translation>
    </message>
    <message>
        <source>%@ broke off before its answer was complete.</source>
        <extracomment>src/platform/network/HTTPFailureText.cpp</extracomment>
        <translation>%@ brach ab, bevor die Antwort vollständig war.</translation>
    </message>
    <message>
        <source>%@ cannot answer at the moment (HTTP status %@).</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>%@ kann momentan nicht antworten (HTTP-Status %@).</translation>
    </message>
    <message>
        <source>%@ cannot be found. Is there a connection to the network?</source>
        <extracomment>src/platform/network/HTTPFailureText.cpp</extracomment>
        <translation>%@ wurde nicht gefunden. Besteht eine Netzwerkverbindung?</translation>
    </message>
    <message>
        <source>%@ cannot be reached: %@.</source>
        <extracomment>src/platform/network/HTTPFailureText.cpp</extracomment>
        <translation>%@ ist nicht erreichbar: %@.</translation>
    </message>
    <message>
        <source>%@ cannot be read</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>%@ kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>%@ cannot give map tiles at the moment (HTTP status %@).</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileStore.cpp</extracomment>
        <translation>%@ kann momentan keine Kartenkacheln liefern (HTTP-Status %@).</translation>
    </message>
    <message>
        <source>%@ cannot write a picture: %@</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>%@ kann kein Bild schreiben: %@</translation>
    </message>
    <message>
        <source>%@ could not be written.</source>
        <extracomment>src/collection/DemoTrip.cpp</extracomment>
        <translation>%@ konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>%@ did not answer in time.</source>
        <extracomment>src/photo/KTLinkablePointPlace.cpp</extracomment>
        <translation>%@ hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>%@ did not answer within %@ seconds.</source>
        <extracomment>src/platform/network/HTTPFailureText.cpp</extracomment>
        <translation>%@ hat nicht innerhalb von %@ Sekunden geantwortet.</translation>
    </message>
    <message>
        <source>%@ does not accept connections.</source>
        <extracomment>src/platform/network/HTTPFailureText.cpp</extracomment>
        <translation>%@ nimmt keine Verbindungen an.</translation>
    </message>
    <message>
        <source>%@ exists already (--overwrite replaces it)</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>%@ existiert bereits (--overwrite ersetzt die Datei)</translation>
    </message>
    <message>
        <source>%@ from %@ writes and reads a picture</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>%@ aus %@ schreibt und liest ein Bild</translation>
    </message>
    <message>
        <source>%@ from preceding track point and %@ to next track point</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>%@ vom vorherigen und %@ zum nächsten Trackpunkt</translation>
    </message>
    <message>
        <source>%@ from preceding track point and %@ to next track point for %@</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>%@ vom vorherigen und %@ zum nächsten Trackpunkt für %@</translation>
    </message>
    <message>
        <source>%@ ft</source>
        <extracomment>src/platform/common/KTUnitConverter.cpp</extracomment>
        <translation>%@ ft</translation>
    </message>
    <message>
        <source>%@ gave an unexpected answer (HTTP status %@).</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>%@ gab eine unerwartete Antwort (HTTP-Status %@).</translation>
    </message>
    <message>
        <source>%@ gave an unexpected answer instead of a map tile (HTTP status %@).</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileStore.cpp</extracomment>
        <translation>%@ gab statt einer Kartenkachel eine unerwartete Antwort (HTTP-Status %@).</translation>
    </message>
    <message>
        <source>%@ gives its tiles only to those who say how they can be reached. Set an e-mail or web address (mapTilesContact).</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>%@ gibt seine Kacheln nur heraus, wenn Sie angeben, wie Sie zu erreichen sind. Tragen Sie eine E-Mail- oder Webadresse ein (mapTilesContact).</translation>
    </message>
    <message>
        <source>%@ gives no place names at this address (HTTP status %@).</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>%@ liefert unter dieser Adresse keine Ortsnamen (HTTP-Status %@).</translation>
    </message>
    <message>
        <source>%@ has no tiles for some of the places shown (HTTP status %@). The offline map is shown there.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileStore.cpp</extracomment>
        <translation>%@ hat für manche der gezeigten Orte keine Kacheln (HTTP-Status %@). Dort ist die Offline-Karte zu sehen.</translation>
    </message>
    <message>
        <source>%@ is missing</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>%@ fehlt</translation>
    </message>
    <message>
        <source>%@ is not empty</source>
        <extracomment>src/collection/DemoTrip.cpp</extracomment>
        <translation>%@ ist nicht leer</translation>
    </message>
    <message>
        <source>%@ is required</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>%@ wird benötigt</translation>
    </message>
    <message>
        <source>%@ is taken as the fixed offset %@, in summer and winter.</source>
        <extracomment>src/cli/ZoneCommand.cpp</extracomment>
        <translation>%@ wird als fester Versatz %@ verstanden, im Sommer wie im Winter.</translation>
    </message>
    <message>
        <source>%@ km</source>
        <extracomment>src/platform/common/KTUnitConverter.cpp</extracomment>
        <translation>%@ km</translation>
    </message>
    <message>
        <source>%@ m</source>
        <extracomment>src/platform/common/KTUnitConverter.cpp</extracomment>
        <translation>%@ m</translation>
    </message>
    <message>
        <source>%@ mi</source>
        <extracomment>src/platform/common/KTUnitConverter.cpp</extracomment>
        <translation>%@ mi</translation>
    </message>
    <message numerus="yes">
        <source>%@ of %d photos selected</source>
        <extracomment>src/ui/photos/PhotoPane.cpp</extracomment>
        <translation>
            <numerusform>%@ von %d Foto ausgewählt</numerusform>
            <numerusform>%@ von %d Fotos ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>%@ redirects to %@, which was not asked.</source>
        <extracomment>src/platform/network/HTTPFailureText.cpp</extracomment>
        <translation>%@ leitet zu %@ weiter; dort wurde nicht angefragt.</translation>
    </message>
    <message>
        <source>%@ refuses to give map tiles (HTTP status %@). The offline map is shown instead.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileStore.cpp</extracomment>
        <translation>%@ verweigert Kartenkacheln (HTTP-Status %@). Stattdessen ist die Offline-Karte zu sehen.</translation>
    </message>
    <message>
        <source>%@ refuses to give place names (HTTP status %@).</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>%@ verweigert Ortsnamen (HTTP-Status %@).</translation>
    </message>
    <message>
        <source>%@ seconds</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>%@ Sekunden</translation>
    </message>
    <message>
        <source>%@ sent far more than place names.</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>%@ hat viel mehr als Ortsnamen gesendet.</translation>
    </message>
    <message>
        <source>%@ to %@</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>%@ bis %@</translation>
    </message>
    <message>
        <source>%@ was asked for map tiles too often and wants a pause (HTTP status %@).</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileStore.cpp</extracomment>
        <translation>%@ wurde zu oft nach Kartenkacheln gefragt und verlangt eine Pause (HTTP-Status %@).</translation>
    </message>
    <message>
        <source>%@ was asked too often and wants a pause (HTTP status %@).</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>%@ wurde zu oft gefragt und verlangt eine Pause (HTTP-Status %@).</translation>
    </message>
    <message>
        <source>%@ was not asked again after it had failed.</source>
        <extracomment>src/platform/gazetteer/KTGazetteer.cpp</extracomment>
        <translation>%@ wurde nach dem Fehlschlag nicht noch einmal gefragt.</translation>
    </message>
    <message>
        <source>%@ was not asked, because the program is about to end.</source>
        <extracomment>src/platform/gazetteer/KTGazetteer.cpp</extracomment>
        <translation>%@ wurde nicht gefragt, weil das Programm gerade beendet wird.</translation>
    </message>
    <message numerus="yes">
        <source>%@ was taken as the fixed offset %@, but its clocks stood at %@ when %d photos were taken; give the offset itself to match those</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>
            <numerusform>%@ wurde als fester Versatz %@ genommen, doch die Uhren dort standen auf %@, als %d Foto aufgenommen wurde; geben Sie den Versatz selbst an, damit es passt</numerusform>
            <numerusform>%@ wurde als fester Versatz %@ genommen, doch die Uhren dort standen auf %@, als %d Fotos aufgenommen wurden; geben Sie den Versatz selbst an, damit sie passen</numerusform>
        </translation>
    </message>
    <message>
        <source>%@, %@ MB free</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>%@, %@ MB frei</translation>
    </message>
    <message>
        <source>%@, line %@: %@</source>
        <extracomment>src/platform/tracklibrary/KTTrackStore.cpp</extracomment>
        <translation>%@, Zeile %@: %@</translation>
    </message>
    <message>
        <source>%@: %@ (%@ with a date), %@</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>%@: %@ (%@ mit Datum), %@</translation>
    </message>
    <message>
        <source>%@: %@ not in {%@}</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>%@: %@ ist nicht in {%@}</translation>
    </message>
    <message>
        <source>%@: %@ required %@ missing</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>%@: %@ erwartet, %@ fehlt</translation>
    </message>
    <message>
        <source>%@: At Most %@ required but received %@</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>%@: höchstens %@ erwartet, %@ erhalten</translation>
    </message>
    <message>
        <source>%@: At least %@ required but received %@</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>%@: mindestens %@ erwartet, %@ erhalten</translation>
    </message>
    <message>
        <source>%@: Directory does not exist: %@</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>%@: diesen Ordner gibt es nicht: %@</translation>
    </message>
    <message>
        <source>%@: Directory is actually a file: %@</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>%@: das ist kein Ordner, sondern eine Datei: %@</translation>
    </message>
    <message>
        <source>%@: Value %@ not in range %@ to %@</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>%@: der Wert %@ liegt nicht zwischen %@ und %@</translation>
    </message>
    <message>
        <source>%@: already imported, %@ (%@ with a date), %@</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>%@: schon importiert, %@ (%@ mit Datum), %@</translation>
    </message>
    <message numerus="yes">
        <source>%d could not be read.</source>
        <extracomment>src/cli/GeotagReport.cpp</extracomment>
        <translation>
            <numerusform>%d konnte nicht gelesen werden.</numerusform>
            <numerusform>%d konnten nicht gelesen werden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d could not be saved.</source>
        <extracomment>src/cli/GeotagReport.cpp</extracomment>
        <translation>
            <numerusform>%d konnte nicht gespeichert werden.</numerusform>
            <numerusform>%d konnten nicht gespeichert werden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d days</source>
        <extracomment>src/platform/common/KTUnitConverter.cpp</extracomment>
        <translation>
            <numerusform>%d Tag</numerusform>
            <numerusform>%d Tage</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d files exist already. Do you want to replace them?</source>
        <extracomment>src/export/KTPhotoExportPluginManager.cpp</extracomment>
        <translation>
            <numerusform>%d Datei existiert bereits. Möchten Sie sie ersetzen?</numerusform>
            <numerusform>%d Dateien existieren bereits. Möchten Sie sie ersetzen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d folders</source>
        <extracomment>src/app/WaymarkAppControllerFiles.cpp</extracomment>
        <translation>
            <numerusform>%d Ordner</numerusform>
            <numerusform>%d Ordner</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d hours</source>
        <extracomment>src/platform/common/KTUnitConverter.cpp</extracomment>
        <translation>
            <numerusform>%d Stunde</numerusform>
            <numerusform>%d Stunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d loaded photos</source>
        <extracomment>src/collection/KTPhotoManagerToolbarController.cpp</extracomment>
        <translation>
            <numerusform>%d geladenes Foto</numerusform>
            <numerusform>%d geladene Fotos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d minutes</source>
        <extracomment>src/platform/common/KTUnitConverter.cpp</extracomment>
        <translation>
            <numerusform>%d Minute</numerusform>
            <numerusform>%d Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos</source>
        <extracomment>src/app/WaymarkAppControllerFiles.cpp</extracomment>
        <translation>
            <numerusform>%d Foto</numerusform>
            <numerusform>%d Fotos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos already geotagged.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d Foto ist bereits verortet.</numerusform>
            <numerusform>%d Fotos sind bereits verortet.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos are concerned.</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>
            <numerusform>Betrifft %d Foto.</numerusform>
            <numerusform>Betrifft %d Fotos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos are more than %@ from the nearest track point.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d Foto liegt mehr als %@ vom nächsten Trackpunkt entfernt.</numerusform>
            <numerusform>%d Fotos liegen mehr als %@ vom nächsten Trackpunkt entfernt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos are not between points less than %@ apart.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d Foto liegt nicht zwischen Punkten, die weniger als %@ auseinanderliegen.</numerusform>
            <numerusform>%d Fotos liegen nicht zwischen Punkten, die weniger als %@ auseinanderliegen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos at one place</source>
        <extracomment>src/ui/map/MapPointing.cpp</extracomment>
        <translation>
            <numerusform>%d Foto an einem Ort</numerusform>
            <numerusform>%d Fotos an einem Ort</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos can be geotagged</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d Foto kann verortet werden.</numerusform>
            <numerusform>%d Fotos können verortet werden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos do not have a time stamp.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d Foto hat keinen Zeitstempel.</numerusform>
            <numerusform>%d Fotos haben keinen Zeitstempel.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos do not have stamps</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d Foto hat keinen Zeitstempel</numerusform>
            <numerusform>%d Fotos haben keinen Zeitstempel</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos fail both the time and distance critieria.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d Foto erfüllt weder das Zeit- noch das Entfernungskriterium.</numerusform>
            <numerusform>%d Fotos erfüllen weder das Zeit- noch das Entfernungskriterium.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos failed both the time &amp; distance criteria</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d Foto erfüllt weder das Zeit- noch das Entfernungskriterium</numerusform>
            <numerusform>%d Fotos erfüllen weder das Zeit- noch das Entfernungskriterium</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos failed the distance criteria</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d Foto erfüllt das Entfernungskriterium nicht</numerusform>
            <numerusform>%d Fotos erfüllen das Entfernungskriterium nicht</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos failed the time criteria</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d Foto erfüllt das Zeitkriterium nicht</numerusform>
            <numerusform>%d Fotos erfüllen das Zeitkriterium nicht</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos near here</source>
        <extracomment>src/ui/map/MapPointing.cpp</extracomment>
        <translation>
            <numerusform>%d Foto in der Nähe</numerusform>
            <numerusform>%d Fotos in der Nähe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos shown</source>
        <extracomment>src/ui/map/MapView.cpp</extracomment>
        <translation>
            <numerusform>%d Foto gezeigt</numerusform>
            <numerusform>%d Fotos gezeigt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos with unsaved changes, </source>
        <extracomment>src/collection/KTPhotoManagerToolbarController.cpp</extracomment>
        <translation>
            <numerusform>%d Foto mit ungespeicherten Änderungen, </numerusform>
            <numerusform>%d Fotos mit ungespeicherten Änderungen, </numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d points</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>
            <numerusform>%d Punkt</numerusform>
            <numerusform>%d Punkte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d removed</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>
            <numerusform>%d entfernt</numerusform>
            <numerusform>%d entfernt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d seconds</source>
        <extracomment>src/platform/common/KTUnitConverter.cpp</extracomment>
        <translation>
            <numerusform>%d Sekunde</numerusform>
            <numerusform>%d Sekunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d track files could not be imported.</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerControllerCommands.cpp</extracomment>
        <translation>
            <numerusform>%d Trackdatei konnte nicht importiert werden.</numerusform>
            <numerusform>%d Trackdateien konnten nicht importiert werden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d tracks</source>
        <extracomment>src/app/WaymarkAppControllerFiles.cpp</extracomment>
        <translation>
            <numerusform>%d Track</numerusform>
            <numerusform>%d Tracks</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d tracks in it</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>
            <numerusform>%d Track darin</numerusform>
            <numerusform>%d Tracks darin</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d waypoints</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>
            <numerusform>%d Wegpunkt</numerusform>
            <numerusform>%d Wegpunkte</numerusform>
        </translation>
    </message>
    <message>
        <source>%llu bytes</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>%llu Byte</translation>
    </message>
    <message numerus="yes">
        <source>%lu photos</source>
        <extracomment>src/app/editor/KTMetadataEditorViewController.cpp</extracomment>
        <translation>
            <numerusform>%lu Foto</numerusform>
            <numerusform>%lu Fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>+02:00, Z or Area/City (-- before negative ones)</source>
        <extracomment>src/cli/ZoneCommand.cpp</extracomment>
        <translation>+02:00, Z oder Area/City (vor negativen -- schreiben)</translation>
    </message>
    <message numerus="yes">
        <source>, %d shown</source>
        <extracomment>src/ui/photos/PhotoPane.cpp</extracomment>
        <translation>
            <numerusform>, %d gezeigt</numerusform>
            <numerusform>, %d gezeigt</numerusform>
        </translation>
    </message>
    <message>
        <source>--exiftool FOLDER</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>--exiftool ORDNER</translation>
    </message>
    <message>
        <source>0 image, 1 image or sidecar by type, 2 sidecar, 3 both, 4 sidecar where one exists</source>
        <extracomment>src/cli/SaveOptions.cpp</extracomment>
        <translation>0 Bild, 1 je nach Typ Bild oder Sidecar, 2 Sidecar, 3 beide, 4 Sidecar, wo eines vorhanden ist</translation>
    </message>
    <message>
        <source>1/%ld of a second</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>1/%ld Sekunde</translation>
    </message>
    <message>
        <source>2 dimensional</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>Zweidimensional</translation>
    </message>
    <message>
        <source>3 dimensional</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>Dreidimensional</translation>
    </message>
    <message>
        <source>35mm Focal Length</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>KB-Brennweite</translation>
    </message>
    <message>
        <source>A date and a time with seconds are needed here.</source>
        <extracomment>src/app/editor/KTFieldText.cpp</extracomment>
        <translation>Hier sind ein Datum und eine Uhrzeit mit Sekunden nötig.</translation>
    </message>
    <message>
        <source>A date is typed as 2014-05-03 17:41:09, or as its beginning.</source>
        <extracomment>src/app/editor/KTFieldText.cpp</extracomment>
        <translation>Geben Sie ein Datum als 2014-05-03 17:41:09 ein oder nur den Anfang davon.</translation>
    </message>
    <message>
        <source>A date to set; repeatable</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>Ein zu setzendes Datum; mehrfach möglich</translation>
    </message>
    <message>
        <source>A file of this name exists already.</source>
        <extracomment>src/export/KTPhotoExportManagerOperation.cpp</extracomment>
        <translation>Eine Datei dieses Namens existiert bereits.</translation>
    </message>
    <message>
        <source>A group of fields; double click to rename it</source>
        <extracomment>src/ui/inspector/GroupTreeModel.cpp</extracomment>
        <translation>Eine Gruppe von Feldern; per Doppelklick umbenennen</translation>
    </message>
    <message>
        <source>A neighbouring point must be nearer than this (300)</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Ein Nachbarpunkt muss zeitlich näher liegen als dies (300)</translation>
    </message>
    <message>
        <source>A new folder for the trip</source>
        <extracomment>src/cli/DemoCommand.cpp</extracomment>
        <translation>Ein neuer Ordner für den Ausflug</translation>
    </message>
    <message>
        <source>A path may be a photo, an XMP sidecar or a folder, which is searched at any depth. Photos are written in one step: whatever happens, a file holds what it held before or its new version as a whole.</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>Ein Pfad kann ein Foto, ein XMP-Sidecar oder ein Ordner sein; Ordner werden samt allen Unterordnern durchsucht. Fotos werden in einem Schritt geschrieben: Was auch geschieht, eine Datei enthält entweder den früheren oder vollständig den neuen Stand.</translation>
    </message>
    <message>
        <source>A position in any notation, or a link to a map</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Eine Position in beliebiger Schreibweise oder ein Kartenlink</translation>
    </message>
    <message>
        <source>A secure connection to %@ is not possible: %@.</source>
        <extracomment>src/platform/network/HTTPFailureText.cpp</extracomment>
        <translation>Eine sichere Verbindung zu %@ ist nicht möglich: %@.</translation>
    </message>
    <message>
        <source>A server of your choice</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Ein Server Ihrer Wahl</translation>
    </message>
    <message>
        <source>A setting for this run only; repeatable</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>Eine Einstellung nur für diesen Aufruf; mehrfach möglich</translation>
    </message>
    <message>
        <source>A source of map tiles instead of the offline map</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>Eine Quelle für Kartenkacheln statt der Offline-Karte</translation>
    </message>
    <message>
        <source>A subcommand is required</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>Ein Befehl wird benötigt</translation>
    </message>
    <message>
        <source>A track file could not be imported.</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerControllerCommands.cpp</extracomment>
        <translation>Eine Trackdatei konnte nicht importiert werden.</translation>
    </message>
    <message>
        <source>A track file for this run, beside the library; repeatable</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Eine Trackdatei für diesen Aufruf, zusätzlich zur Bibliothek; mehrfach möglich</translation>
    </message>
    <message>
        <source>A track file to draw; repeatable</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>Eine zu zeichnende Trackdatei; mehrfach möglich</translation>
    </message>
    <message>
        <source>About Waymark</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Über Waymark</translation>
    </message>
    <message>
        <source>Actual focal length of the lens when the image was shot, in millimeters. For a zoom lens it is the setting in use.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Tatsächliche Brennweite des Objektivs bei der Aufnahme, in Millimetern. Bei einem Zoomobjektiv ist es die verwendete Einstellung.</translation>
    </message>
    <message>
        <source>Add</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Add %@</source>
        <extracomment>src/app/WaymarkAppControllerFiles.cpp</extracomment>
        <translation>%@ hinzufügen</translation>
    </message>
    <message>
        <source>Add Field</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Feld hinzufügen</translation>
    </message>
    <message>
        <source>Add GPS tracks</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>GPS-Tracks hinzufügen</translation>
    </message>
    <message>
        <source>Add Group</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Gruppe hinzufügen</translation>
    </message>
    <message>
        <source>Add Photos</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Fotos hinzufügen</translation>
    </message>
    <message>
        <source>Add Photos…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Fotos hinzufügen …</translation>
    </message>
    <message>
        <source>Add Tracks</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Tracks hinzufügen</translation>
    </message>
    <message>
        <source>Add Tracks…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Tracks hinzufügen …</translation>
    </message>
    <message>
        <source>Add Whole Group</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Ganze Gruppe hinzufügen</translation>
    </message>
    <message>
        <source>Add a %@…</source>
        <extracomment>src/app/editor/KTMetadataFieldMultipleValueArrayViewItem.cpp</extracomment>
        <translation>%@ hinzufügen …</translation>
    </message>
    <message>
        <source>Add keywords from iPhoto</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>Stichwörter aus iPhoto hinzufügen</translation>
    </message>
    <message>
        <source>Add photos</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Fotos hinzufügen</translation>
    </message>
    <message>
        <source>Add to Photos</source>
        <extracomment>src/ui/windows/MediaBrowserWindow.cpp</extracomment>
        <translation>Zu den Fotos hinzufügen</translation>
    </message>
    <message>
        <source>Address</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Address of a Nominatim server; nothing is sent while it is empty</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Adresse eines Nominatim-Servers; solange sie leer ist, wird nichts gesendet</translation>
    </message>
    <message>
        <source>Address pattern of a server, for example https://tile.example.org/{z}/{x}/{y}.png</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Adressmuster eines Servers, zum Beispiel https://tile.example.org/{z}/{x}/{y}.png</translation>
    </message>
    <message>
        <source>Adds a group at the end</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Fügt am Ende eine Gruppe hinzu</translation>
    </message>
    <message>
        <source>Adds the chosen photos and folders, or all of this folder when none is chosen</source>
        <extracomment>src/ui/windows/MediaBrowserWindow.cpp</extracomment>
        <translation>Fügt die gewählten Fotos und Ordner hinzu, ohne Auswahl den gesamten Ordner</translation>
    </message>
    <message>
        <source>Adds the field to the group that is chosen above</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Fügt das Feld der oben gewählten Gruppe hinzu</translation>
    </message>
    <message>
        <source>Adds the group with all its fields</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Fügt die Gruppe mit allen Feldern hinzu</translation>
    </message>
    <message>
        <source>Adds track files to the library</source>
        <extracomment>src/ui/windows/TrackLibraryWindow.cpp</extracomment>
        <translation>Fügt der Bibliothek Trackdateien hinzu</translation>
    </message>
    <message>
        <source>Adjust Date &amp; Time…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Datum und Uhrzeit anpassen …</translation>
    </message>
    <message>
        <source>Adjust Date &amp;&amp; Time…</source>
        <extracomment>src/ui/console/CameraClockView.cpp</extracomment>
        <translation>Datum und Uhrzeit anpassen …</translation>
    </message>
    <message>
        <source>After</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>Nachher</translation>
    </message>
    <message>
        <source>After importing tracks:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Nach dem Import von Tracks:</translation>
    </message>
    <message>
        <source>After selecting photos:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Nach der Auswahl von Fotos:</translation>
    </message>
    <message>
        <source>Aim the image direction at the place shown</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Blickrichtung auf den gezeigten Ort ausrichten</translation>
    </message>
    <message>
        <source>All Fields</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Alle Felder</translation>
    </message>
    <message>
        <source>All Photos</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Alle Fotos</translation>
    </message>
    <message>
        <source>All Waypoints</source>
        <extracomment>src/geotagging/KTAppTrackPickerController.cpp</extracomment>
        <translation>Alle Wegpunkte</translation>
    </message>
    <message>
        <source>All files</source>
        <extracomment>src/ui/window/WindowPresenter.cpp</extracomment>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>All loaded photos, not only the selected ones</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Alle geladenen Fotos, nicht nur die ausgewählten</translation>
    </message>
    <message>
        <source>All messages</source>
        <extracomment>src/collection/KTPhotoOperationWindowController.cpp</extracomment>
        <translation>Alle Meldungen</translation>
    </message>
    <message>
        <source>Also photos that already carry a location</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Auch Fotos, die bereits eine Position haben</translation>
    </message>
    <message>
        <source>Also the date of digitization</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>Auch das Digitalisierungsdatum</translation>
    </message>
    <message>
        <source>Altitude</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>An export is in progress. Are you sure you want to quit?</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Ein Export läuft noch. Möchten Sie das Programm wirklich beenden?</translation>
    </message>
    <message>
        <source>An unknown error occurred when writing to the file.</source>
        <extracomment>src/metadata/KTExifTool.cpp</extracomment>
        <translation>Beim Schreiben in die Datei trat ein unbekannter Fehler auf.</translation>
    </message>
    <message>
        <source>Another photo of this export has the same name.</source>
        <extracomment>src/export/KTPhotoExportManagerOperation.cpp</extracomment>
        <translation>Ein anderes Foto dieses Exports heißt genauso.</translation>
    </message>
    <message>
        <source>Aperture</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Blende</translation>
    </message>
    <message>
        <source>Aperture at which the image was shot, as f-number. A smaller number means a wider opening, more light and less depth of field.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Blende, mit der das Bild aufgenommen wurde, als Blendenzahl. Eine kleinere Zahl bedeutet eine größere Öffnung, mehr Licht und weniger Schärfentiefe.</translation>
    </message>
    <message>
        <source>Apply</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Anwenden</translation>
    </message>
    <message numerus="yes">
        <source>Are you sure you want to remove the GPS metadata (latitude, longitude, altitude &amp; GPS date-time) from %d photos?</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>
            <numerusform>Möchten Sie die GPS-Metadaten (Breitengrad, Längengrad, Höhe sowie GPS-Datum und -Uhrzeit) wirklich aus %d Foto entfernen?</numerusform>
            <numerusform>Möchten Sie die GPS-Metadaten (Breitengrad, Längengrad, Höhe sowie GPS-Datum und -Uhrzeit) wirklich aus %d Fotos entfernen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Are you sure you want to remove the image direction metadata from %d photos?</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>
            <numerusform>Möchten Sie die Blickrichtung wirklich aus %d Foto entfernen?</numerusform>
            <numerusform>Möchten Sie die Blickrichtung wirklich aus %d Fotos entfernen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Are you sure you want to remove the location shown metadata (latitude shown &amp; longitude shown) from %d photos?</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>
            <numerusform>Möchten Sie den gezeigten Ort (seinen Breiten- und Längengrad) wirklich aus %d Foto entfernen?</numerusform>
            <numerusform>Möchten Sie den gezeigten Ort (seinen Breiten- und Längengrad) wirklich aus %d Fotos entfernen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Arguments</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>Argumente</translation>
    </message>
    <message>
        <source>As the Tile Map Service does</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Wie beim Tile Map Service</translation>
    </message>
    <message>
        <source>Attribution:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Quellenangabe:</translation>
    </message>
    <message>
        <source>Backup folder</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Sicherungsordner</translation>
    </message>
    <message>
        <source>Batch</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Stapel</translation>
    </message>
    <message>
        <source>Before</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>Begin</source>
        <extracomment>src/ui/windows/TrackListModel.cpp</extracomment>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>Begin Where the Map Is Now</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Mit jetzigem Kartenausschnitt beginnen</translation>
    </message>
    <message>
        <source>Begin where the map was last</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Mit dem letzten Kartenausschnitt beginnen</translation>
    </message>
    <message>
        <source>Both criteria must hold, not either</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Beide Kriterien müssen erfüllt sein, nicht nur eines</translation>
    </message>
    <message>
        <source>Brief summary of what the image shows, like the headline of a newspaper article. It goes with the description and does not replace it.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Kurze Zusammenfassung dessen, was das Bild zeigt, wie die Überschrift eines Zeitungsartikels. Sie ergänzt die Beschreibung und ersetzt sie nicht.</translation>
    </message>
    <message>
        <source>Brings another of the selected photos to the front</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Holt ein anderes der ausgewählten Fotos nach vorn</translation>
    </message>
    <message>
        <source>By the lake</source>
        <extracomment>src/cli/DemoCommand.cpp</extracomment>
        <translation>Am See</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>BEFEHL</translation>
    </message>
    <message>
        <source>Cache folder</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Cache-Ordner</translation>
    </message>
    <message>
        <source>Cache:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Cache:</translation>
    </message>
    <message>
        <source>Camera</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Camera Make</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Camera Model</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Camera clock</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Kamerauhr</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Cancel Import</source>
        <extracomment>src/ui/support/ImportProgressLine.cpp</extracomment>
        <translation>Import abbrechen</translation>
    </message>
    <message>
        <source>Category</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Centre</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Centre:</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Mitte:</translation>
    </message>
    <message>
        <source>Certificate</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Zertifikat</translation>
    </message>
    <message>
        <source>Change Transitions</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Übergänge wechseln</translation>
    </message>
    <message>
        <source>Change the permissions of the folder (chmod u+rwx), or its owner.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Ändern Sie die Zugriffsrechte des Ordners (chmod u+rwx) oder seinen Eigentümer.</translation>
    </message>
    <message>
        <source>Changes</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Check All</source>
        <extracomment>src/ui/inspector/PasteTagsSheet.cpp</extracomment>
        <translation>Alle ankreuzen</translation>
    </message>
    <message>
        <source>Check None</source>
        <extracomment>src/ui/inspector/PasteTagsSheet.cpp</extracomment>
        <translation>Keine ankreuzen</translation>
    </message>
    <message>
        <source>Check the installation and say what to do</source>
        <extracomment>src/cli/DoctorCommand.cpp</extracomment>
        <translation>Die Installation prüfen und sagen, was zu tun ist</translation>
    </message>
    <message>
        <source>Check what was written</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>Prüfen, was geschrieben wurde</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Ordner wählen …</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <extracomment>src/ui/window/WindowPresenter.cpp</extracomment>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Choose a template and remove it from the list</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Eine Vorlage wählen und aus der Liste entfernen</translation>
    </message>
    <message>
        <source>Choose another one in the preferences, or turn backups off.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Wählen Sie in den Einstellungen einen anderen oder schalten Sie Sicherungen aus.</translation>
    </message>
    <message>
        <source>Choose another time zone</source>
        <extracomment>src/ui/console/CameraClockView.cpp</extracomment>
        <translation>Eine andere Zeitzone wählen</translation>
    </message>
    <message>
        <source>Choose files</source>
        <extracomment>src/ui/window/WindowPresenter.cpp</extracomment>
        <translation>Dateien wählen</translation>
    </message>
    <message>
        <source>Choose the photos to be geotagged</source>
        <extracomment>src/ui/photos/EmptyPhotosView.cpp</extracomment>
        <translation>Die zu verortenden Fotos wählen</translation>
    </message>
    <message>
        <source>Choose track files of a GPS receiver</source>
        <extracomment>src/ui/photos/EmptyPhotosView.cpp</extracomment>
        <translation>Trackdateien eines GPS-Empfängers wählen</translation>
    </message>
    <message>
        <source>Choose where the backups go</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Wählen, wo die Sicherungen abgelegt werden</translation>
    </message>
    <message>
        <source>Choose which fields are shown, in which groups</source>
        <extracomment>src/ui/inspector/InspectorPane.cpp</extracomment>
        <translation>Auswählen, welche Felder in welchen Gruppen angezeigt werden</translation>
    </message>
    <message>
        <source>Choose, save and remove arrangements of fields</source>
        <extracomment>src/ui/inspector/InspectorPane.cpp</extracomment>
        <translation>Anordnungen von Feldern wählen, speichern und entfernen</translation>
    </message>
    <message>
        <source>City</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Stadt</translation>
    </message>
    <message>
        <source>City of the photographer's business address, not the city where the image was shot.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Stadt der Geschäftsadresse des Fotografen, nicht die Stadt der Aufnahme.</translation>
    </message>
    <message>
        <source>City shown</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Stadt des gezeigten Orts</translation>
    </message>
    <message>
        <source>City where the photo was taken</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Stadt des Aufnahmeorts</translation>
    </message>
    <message>
        <source>City, town or village in which the image was shot. Leave it empty out in the country and name the place in the sublocation.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Stadt oder Dorf, in dem das Bild aufgenommen wurde. Lassen Sie das Feld in freier Landschaft leer und nennen Sie die Stelle unter „Genauer Ort“.</translation>
    </message>
    <message>
        <source>City, town or village that the image shows. Picture agencies search this field first when they look for a place. Separate several with a vertical bar.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Stadt oder Dorf, das auf dem Bild zu sehen ist. Bildagenturen durchsuchen bei der Suche nach einem Ort zuerst dieses Feld. Trennen Sie mehrere durch senkrechte Striche.</translation>
    </message>
    <message>
        <source>Clear Value</source>
        <extracomment>src/ui/inspector/FieldRow.cpp</extracomment>
        <translation>Wert löschen</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>src/ui/window/DemoTripCommand.cpp</extracomment>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Collections of tracks</source>
        <extracomment>src/ui/windows/TrackLibraryWindow.cpp</extracomment>
        <translation>Sammlungen von Tracks</translation>
    </message>
    <message>
        <source>Columns of the photo table</source>
        <extracomment>src/ui/photos/PhotoTableView.cpp</extracomment>
        <translation>Spalten der Fototabelle</translation>
    </message>
    <message>
        <source>Commands</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Common Tags</source>
        <extracomment>src/metadata/KTMetadataFieldManager.cpp</extracomment>
        <translation>Häufige Tags</translation>
    </message>
    <message>
        <source>Compact Rows</source>
        <extracomment>src/ui/photos/PhotoTableView.cpp</extracomment>
        <translation>Kompakte Zeilen</translation>
    </message>
    <message>
        <source>Compact rows</source>
        <extracomment>src/ui/photos/PhotoViewOptions.cpp</extracomment>
        <translation>Kompakte Zeilen</translation>
    </message>
    <message>
        <source>Connect the receiver, wait until it appears as a disk, and try again.</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerControllerCommands.cpp</extracomment>
        <translation>Schließen Sie den Empfänger an, warten Sie, bis er als Laufwerk erscheint, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Contact:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Kontakt:</translation>
    </message>
    <message>
        <source>Copied tags</source>
        <extracomment>src/ui/inspector/PasteTagsSheet.cpp</extracomment>
        <translation>Kopierte Tags</translation>
    </message>
    <message>
        <source>Copies the date within each selected photo; nothing is written yet</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Kopiert das Datum in jedem ausgewählten Foto; noch wird nichts geschrieben</translation>
    </message>
    <message>
        <source>Copright URL</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Copyright-URL</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy Address</source>
        <extracomment>src/export/KTPhotoExportOperationController.cpp</extracomment>
        <translation>Adresse kopieren</translation>
    </message>
    <message>
        <source>Copy Coordinates</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Koordinaten kopieren</translation>
    </message>
    <message>
        <source>Copy Date &amp; Time…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Datum und Uhrzeit kopieren …</translation>
    </message>
    <message>
        <source>Copy Date Time Created</source>
        <extracomment>src/datetools/KTDateCopyViewController.cpp</extracomment>
        <translation>Erstellungsdatum kopieren</translation>
    </message>
    <message>
        <source>Copy Date Time Digitized</source>
        <extracomment>src/datetools/KTDateCopyViewController.cpp</extracomment>
        <translation>Digitalisierungsdatum kopieren</translation>
    </message>
    <message>
        <source>Copy Date Time Original</source>
        <extracomment>src/datetools/KTDateCopyViewController.cpp</extracomment>
        <translation>Aufnahmedatum kopieren</translation>
    </message>
    <message>
        <source>Copy Machine</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Kopierer</translation>
    </message>
    <message>
        <source>Copy Tags</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Tags kopieren</translation>
    </message>
    <message>
        <source>Copy a position first, such as “46.05108, 14.50513” or “46° 3′ 3.9″ N, 14° 30′ 18.5″ E”.</source>
        <extracomment>src/app/WaymarkAppControllerCommands.cpp</extracomment>
        <translation>Kopieren Sie zuerst eine Position, zum Beispiel „46.05108, 14.50513“ oder „46° 3′ 3.9″ N, 14° 30′ 18.5″ E“.</translation>
    </message>
    <message>
        <source>Copy event tag from iPhoto</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>Ereignis aus iPhoto kopieren</translation>
    </message>
    <message>
        <source>Copy from:</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Kopieren von:</translation>
    </message>
    <message>
        <source>Copy image files into a backup folder before writing to them</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Bilddateien vor dem Schreiben in einen Sicherungsordner kopieren</translation>
    </message>
    <message>
        <source>Copy one of a photo's dates to others of it</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Eine Zeitangabe jedes Fotos auf andere kopieren</translation>
    </message>
    <message>
        <source>Copy one of the dates of each photo to others of it, and save</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>Bei jedem Foto eines der Daten auf andere kopieren und speichern</translation>
    </message>
    <message>
        <source>Copy original image to backup folder</source>
        <extracomment>src/photo/KTPhotoSaving.cpp</extracomment>
        <translation>Originalbild in Sicherungsordner kopieren</translation>
    </message>
    <message>
        <source>Copy people tag from iPhoto</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>Personen aus iPhoto kopieren</translation>
    </message>
    <message>
        <source>Copy this date. %1.</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Dieses Datum kopieren. %1.</translation>
    </message>
    <message>
        <source>Copyright Notice</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Copyright-Vermerk</translation>
    </message>
    <message>
        <source>Copyright Status</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Copyright-Status</translation>
    </message>
    <message>
        <source>Copyrighted</source>
        <extracomment>src/app/editor/KTCopyrightStatus.cpp</extracomment>
        <translation>Urheberrechtlich geschützt</translation>
    </message>
    <message>
        <source>Correct the dates of a camera whose clock was wrong</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Die Zeiten einer Kamera berichtigen, deren Uhr falsch ging</translation>
    </message>
    <message>
        <source>Corrected date</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Richtiges Datum</translation>
    </message>
    <message>
        <source>Corrected date:</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Richtiges Datum:</translation>
    </message>
    <message>
        <source>Could not convert: %@ = %@</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>Nicht zu verstehen: %@ = %@</translation>
    </message>
    <message>
        <source>Country</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Land</translation>
    </message>
    <message>
        <source>Country Code</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Ländercode</translation>
    </message>
    <message>
        <source>Country of the photographer's business address, by its full name.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Land der Geschäftsadresse des Fotografen, ausgeschrieben.</translation>
    </message>
    <message>
        <source>Country shown</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Land des gezeigten Orts</translation>
    </message>
    <message>
        <source>Country where the photo was taken</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Land des Aufnahmeorts</translation>
    </message>
    <message>
        <source>Create temporary directory</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>Temporären Ordner anlegen</translation>
    </message>
    <message>
        <source>Create temporary item url</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>Temporäre Datei anlegen</translation>
    </message>
    <message>
        <source>Creation Date</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Erstellungsdatum</translation>
    </message>
    <message>
        <source>Creation Time</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Erstellungszeit</translation>
    </message>
    <message>
        <source>Creation date</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Erstellungsdatum</translation>
    </message>
    <message>
        <source>Creator</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Ersteller</translation>
    </message>
    <message>
        <source>Creator's Jobtitle</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Funktion des Erstellers</translation>
    </message>
    <message>
        <source>Credit Line</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Bildnachweis</translation>
    </message>
    <message>
        <source>Credit to be printed with the image when it is published, in the wording that the supplier asks for.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Nachweis, der bei einer Veröffentlichung beim Bild stehen soll, in dem vom Anbieter gewünschten Wortlaut.</translation>
    </message>
    <message>
        <source>Criteria</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Kriterien</translation>
    </message>
    <message>
        <source>Customize</source>
        <extracomment>src/ui/inspector/InspectorPane.cpp</extracomment>
        <translation>Anpassen</translation>
    </message>
    <message>
        <source>Customize Metadata</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Metadaten anpassen</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <extracomment>src/platform/presentation/KTManualPage.cpp</extracomment>
        <translation>BESCHREIBUNG</translation>
    </message>
    <message>
        <source>Data folder</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Datenordner</translation>
    </message>
    <message>
        <source>Data of the program</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Daten des Programms</translation>
    </message>
    <message>
        <source>Date</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Date &amp; Time Tools</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>Date Digitized</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Digitalisierungsdatum</translation>
    </message>
    <message>
        <source>Date and time at which any of the image's metadata was last changed. Catalogue programs compare it to find out which copy of the metadata is the latest.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Datum und Uhrzeit, zu denen zuletzt irgendwelche Metadaten des Bildes geändert wurden. Katalogprogramme vergleichen sie, um die neueste Fassung der Metadaten zu finden.</translation>
    </message>
    <message>
        <source>Date and time at which the file was created on the disk. It is kept by the file system and may change when the file is copied.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Datum und Uhrzeit, zu denen die Datei auf dem Datenträger angelegt wurde. Das Dateisystem verwaltet sie; beim Kopieren der Datei können sie sich ändern.</translation>
    </message>
    <message>
        <source>Date and time at which the image became digital. The same as the original date for a digital camera; for a scanned print, slide or negative, the time of the scan.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Datum und Uhrzeit der Digitalisierung des Bildes. Bei einer Digitalkamera dasselbe wie das Aufnahmedatum; bei einem gescannten Abzug, Dia oder Negativ der Zeitpunkt des Scans.</translation>
    </message>
    <message>
        <source>Date and time at which the image itself was last changed, as recorded within the file by the camera or by the program that edited it.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Datum und Uhrzeit der letzten Änderung am Bild selbst, wie die Kamera oder das bearbeitende Programm sie in der Datei vermerkt hat.</translation>
    </message>
    <message>
        <source>Date and time at which the image was shot, as the camera's clock showed it. Images are placed along a track by this time, so the clock must be right or corrected.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Datum und Uhrzeit der Aufnahme, wie die Kamerauhr sie zeigte. Nach dieser Zeit werden Bilder einem Track zugeordnet; die Uhr muss also richtig gehen oder korrigiert werden.</translation>
    </message>
    <message>
        <source>Date and time of the position, taken from the satellites' clocks and stored in UTC. As it does not depend on the camera's clock, it shows by how much that clock is off.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Datum und Uhrzeit der Position, von den Uhren der Satelliten übernommen und in UTC gespeichert. Da sie nicht von der Kamerauhr abhängen, zeigen sie, wie falsch diese geht.</translation>
    </message>
    <message>
        <source>Date tool</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Datumswerkzeug</translation>
    </message>
    <message>
        <source>Day</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Default</source>
        <extracomment>src/app/editor/KTMetadataCustomizationViewController.cpp</extracomment>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Degrees, east positive</source>
        <extracomment>src/cli/PlaceCommand.cpp</extracomment>
        <translation>Grad, Osten positiv</translation>
    </message>
    <message>
        <source>Degrees, north positive</source>
        <extracomment>src/cli/PlaceCommand.cpp</extracomment>
        <translation>Grad, Norden positiv</translation>
    </message>
    <message>
        <source>Degrees, or both coordinates in any usual notation</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Grad oder beide Koordinaten in einer üblichen Schreibweise</translation>
    </message>
    <message>
        <source>Delete from the library by the ids that list shows</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>Anhand der Kennungen, die list anzeigt, aus der Bibliothek löschen</translation>
    </message>
    <message>
        <source>Description</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Description Writer</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Verfasser der Beschreibung</translation>
    </message>
    <message>
        <source>Deselect All Photos</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Fotoauswahl aufheben</translation>
    </message>
    <message>
        <source>Differential</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>DGPS-Korrektur</translation>
    </message>
    <message>
        <source>Differential correction</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>Differenzialkorrektur</translation>
    </message>
    <message>
        <source>Digitization Attributes</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Aufnahmedaten</translation>
    </message>
    <message>
        <source>Digitized Date Change</source>
        <extracomment>src/photo/KTPhotoDateFamily.cpp</extracomment>
        <translation>Digitalisierungsdatum ändern</translation>
    </message>
    <message>
        <source>Digitized date</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Digitalisierungsdatum</translation>
    </message>
    <message>
        <source>Dilution of precision: how much the placement of the satellites in the sky enlarges the position's error. 1 is ideal, below 5 is good, above 10 is poor.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Dilution of Precision: wie stark die Stellung der Satelliten am Himmel den Positionsfehler vergrößert. 1 ist ideal, unter 5 ist gut, über 10 ist schlecht.</translation>
    </message>
    <message>
        <source>Direction</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Blickrichtung</translation>
    </message>
    <message>
        <source>Direction in which the camera pointed, in degrees clockwise from true north: 0 is north, 90 east, 180 south and 270 west.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Richtung, in die die Kamera zeigte, in Grad im Uhrzeigersinn ab geografisch Nord: 0 ist Norden, 90 Osten, 180 Süden und 270 Westen.</translation>
    </message>
    <message>
        <source>Direction in which the receiver moved, in degrees clockwise from north: 90 is east, 180 south and 270 west. The camera may have pointed elsewhere.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Richtung, in die sich der Empfänger bewegte, in Grad im Uhrzeigersinn ab Norden: 90 ist Osten, 180 Süden und 270 Westen. Die Kamera kann anderswohin gezeigt haben.</translation>
    </message>
    <message>
        <source>Discard Changes &amp; Quit</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Änderungen verwerfen und beenden</translation>
    </message>
    <message>
        <source>Discard Changes &amp; Remove Photos</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>Änderungen verwerfen und Fotos entfernen</translation>
    </message>
    <message>
        <source>Disintegrate</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Zerfallen</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Auflösen</translation>
    </message>
    <message>
        <source>Distance between the track points</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Abstand der Trackpunkte</translation>
    </message>
    <message>
        <source>Document</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Download Tracks from GPS</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Tracks vom GPS-Gerät laden</translation>
    </message>
    <message>
        <source>Drag a field into a group above, or double click to add it</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Ein Feld nach oben in eine Gruppe ziehen oder per Doppelklick hinzufügen</translation>
    </message>
    <message>
        <source>Drag fields and groups, double click to rename, Alt with arrows to move</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Felder und Gruppen ziehen, per Doppelklick umbenennen, mit Alt und Pfeiltasten verschieben</translation>
    </message>
    <message>
        <source>Draw photos and tracks on a map, as a picture</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>Fotos und Tracks auf einer Karte als Bild zeichnen</translation>
    </message>
    <message>
        <source>Drop photos here</source>
        <extracomment>src/ui/photos/EmptyPhotosView.cpp</extracomment>
        <translation>Fotos hierher ziehen</translation>
    </message>
    <message>
        <source>Dropping geotags to this place.</source>
        <extracomment>src/ui/map/MapViewDrops.cpp</extracomment>
        <translation>Loslassen verortet an dieser Stelle.</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>UMGEBUNG</translation>
    </message>
    <message>
        <source>EXIF Version</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>EXIF-Version</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>RÜCKGABEWERT</translation>
    </message>
    <message>
        <source>Each batch makes a folder of its own, named by date and time</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Jeder Stapel legt einen eigenen, nach Datum und Uhrzeit benannten Ordner an</translation>
    </message>
    <message>
        <source>Each file holds what it held before, or its new version as a whole. Look whether it has what you changed last.</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Jede Datei enthält entweder den früheren oder vollständig den neuen Stand. Prüfen Sie, ob Ihre letzten Änderungen darin stehen.</translation>
    </message>
    <message>
        <source>Edit</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Edit %@</source>
        <extracomment>src/app/editor/KTMetadataFieldArrayViewItem.cpp</extracomment>
        <translation>%@ bearbeiten</translation>
    </message>
    <message>
        <source>Editorial urgency of the image for a news desk, from 1 (most urgent) through 5 (normal) to 8 (least urgent).</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Redaktionelle Dringlichkeit des Bildes, von 1 (am dringendsten) über 5 (normal) bis 8 (am wenigsten dringend).</translation>
    </message>
    <message>
        <source>Edits, then photos or folders; an empty value clears</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>Änderungen, dann Fotos oder Ordner; ein leerer Wert löscht</translation>
    </message>
    <message>
        <source>Else at the place below</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Sonst am unten angegebenen Ort</translation>
    </message>
    <message>
        <source>Else in the computer's</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Sonst in der des Computers</translation>
    </message>
    <message>
        <source>Else it becomes the time of writing</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Sonst gilt der Zeitpunkt des Schreibens</translation>
    </message>
    <message>
        <source>Else they come from tracks only</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Sonst stammen sie nur aus Tracks</translation>
    </message>
    <message>
        <source>Email</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Email address at which clients reach the photographer. Whoever receives the file can read it. Separate several addresses with a comma.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>E-Mail-Adresse, unter der Kunden den Fotografen erreichen. Jeder Empfänger der Datei kann sie lesen. Trennen Sie mehrere Adressen durch Kommas.</translation>
    </message>
    <message>
        <source>Enclosing folder</source>
        <extracomment>src/ui/windows/MediaBrowserWindow.cpp</extracomment>
        <translation>Übergeordneter Ordner</translation>
    </message>
    <message>
        <source>End</source>
        <extracomment>src/ui/windows/TrackListModel.cpp</extracomment>
        <translation>Ende</translation>
    </message>
    <message>
        <source>End customizing</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Anpassen beenden</translation>
    </message>
    <message>
        <source>End the Slide Show</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Diashow beenden</translation>
    </message>
    <message>
        <source>Ends the chosen exports; the photos that are finished stay</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Beendet die gewählten Exporte; die fertigen Fotos bleiben erhalten</translation>
    </message>
    <message>
        <source>Errors &amp; warnings</source>
        <extracomment>src/collection/KTPhotoOperationWindowController.cpp</extracomment>
        <translation>Fehler und Warnungen</translation>
    </message>
    <message>
        <source>Errors only</source>
        <extracomment>src/collection/KTPhotoOperationWindowController.cpp</extracomment>
        <translation>Nur Fehler</translation>
    </message>
    <message>
        <source>Escape</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Event</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>Everything was done.</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>Alles wurde erledigt.</translation>
    </message>
    <message>
        <source>Exact place that the image shows, such as a building, a landmark or a mountain. Separate several with a vertical bar.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Genauer Ort, den das Bild zeigt, etwa ein Gebäude, ein Wahrzeichen oder ein Berg. Trennen Sie mehrere durch senkrechte Striche.</translation>
    </message>
    <message>
        <source>Exact place where the camera stood, within the city or outside of one: a quarter, a square, a building or a natural feature.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Genauer Ort, an dem die Kamera stand, in der Stadt oder außerhalb: ein Viertel, ein Platz, ein Gebäude oder eine Stelle in der Natur.</translation>
    </message>
    <message>
        <source>Example Press Ltd.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Beispiel-Presse GmbH</translation>
    </message>
    <message>
        <source>Expat</source>
        <extracomment>src/platform/desktop/KTEngineVersions.cpp</extracomment>
        <translation>Expat</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>src/export/KTPhotoExportPluginManager.cpp</extracomment>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Export GPX…</source>
        <extracomment>src/ui/windows/TrackLibraryWindow.cpp</extracomment>
        <translation>GPX exportieren …</translation>
    </message>
    <message>
        <source>Export List</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Exportliste</translation>
    </message>
    <message>
        <source>Export canceled.</source>
        <extracomment>src/export/KTPhotoExportOperationController.cpp</extracomment>
        <translation>Export abgebrochen.</translation>
    </message>
    <message>
        <source>Export photos with a plug-in</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>Fotos mit einem Plug-in exportieren</translation>
    </message>
    <message numerus="yes">
        <source>Exported %lu photos</source>
        <extracomment>src/export/slideshow/KTSlideShowExporter.cpp</extracomment>
        <translation>
            <numerusform>%lu Foto exportiert</numerusform>
            <numerusform>%lu Fotos exportiert</numerusform>
        </translation>
    </message>
    <message>
        <source>Exports</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Exporte</translation>
    </message>
    <message>
        <source>Exposure Bias</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Belichtungskorrektur</translation>
    </message>
    <message>
        <source>Exposure Program</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Belichtungsprogramm</translation>
    </message>
    <message>
        <source>Exposure compensation that was dialed in, in steps of exposure value (EV). Negative values make the image darker, positive ones brighter.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Eingestellte Belichtungskorrektur in Lichtwertstufen (EV). Negative Werte machen das Bild dunkler, positive heller.</translation>
    </message>
    <message>
        <source>FILES</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>DATEIEN</translation>
    </message>
    <message>
        <source>Fade</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Überblenden</translation>
    </message>
    <message>
        <source>Failed</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Failed to create a legitimate source URL.</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>Es konnte keine gültige Quell-URL gebildet werden.</translation>
    </message>
    <message>
        <source>Far From Any Track</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Fern von jedem Track</translation>
    </message>
    <message>
        <source>Fetching the city from %@…</source>
        <extracomment>src/photo/KTLinkablePointPlace.cpp</extracomment>
        <translation>Stadt wird von %@ abgerufen …</translation>
    </message>
    <message>
        <source>Fetching the country from %@…</source>
        <extracomment>src/photo/KTLinkablePointPlace.cpp</extracomment>
        <translation>Land wird von %@ abgerufen …</translation>
    </message>
    <message>
        <source>Fetching the location description from %@…</source>
        <extracomment>src/app/AppPreferencesWindowController.cpp</extracomment>
        <translation>Ortsbeschreibung wird von %@ abgerufen …</translation>
    </message>
    <message>
        <source>Fetching the state from %@…</source>
        <extracomment>src/photo/KTLinkablePointPlace.cpp</extracomment>
        <translation>Bundesland wird von %@ abgerufen …</translation>
    </message>
    <message>
        <source>Field</source>
        <extracomment>src/ui/inspector/PasteTagsSheet.cpp</extracomment>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Field of View</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Bildwinkel</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Datei</translation>
    </message>
    <message>
        <source>File Name</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>File Size</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Dateigröße</translation>
    </message>
    <message>
        <source>File Type</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Dateityp</translation>
    </message>
    <message>
        <source>File names below thumbnails</source>
        <extracomment>src/ui/photos/PhotoViewOptions.cpp</extracomment>
        <translation>Dateinamen unter Miniaturen</translation>
    </message>
    <message>
        <source>File:</source>
        <extracomment>src/export/KTLocationTraces.cpp</extracomment>
        <translation>Datei:</translation>
    </message>
    <message>
        <source>Files of this kind</source>
        <extracomment>src/ui/window/WindowPresenter.cpp</extracomment>
        <translation>Dateien dieser Art</translation>
    </message>
    <message>
        <source>Files that can be opened</source>
        <extracomment>src/ui/window/WindowPresenter.cpp</extracomment>
        <translation>Dateien, die geöffnet werden können</translation>
    </message>
    <message>
        <source>Filter by name or tag</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Nach Name oder Tag filtern</translation>
    </message>
    <message>
        <source>Filter photos</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Fotos filtern</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Filter: %1</translation>
    </message>
    <message>
        <source>Finishes the file that is being read and leaves out the rest</source>
        <extracomment>src/ui/support/ImportProgressLine.cpp</extracomment>
        <translation>Liest die aktuelle Datei fertig und lässt die übrigen aus</translation>
    </message>
    <message>
        <source>Finishes the photo at work and leaves the others as they are</source>
        <extracomment>src/ui/window/BatchProgressSheet.cpp</extracomment>
        <translation>Schließt das aktuelle Foto ab und lässt die übrigen unverändert</translation>
    </message>
    <message>
        <source>Fit the Selection</source>
        <extracomment>src/ui/map/MapPane.cpp</extracomment>
        <translation>Auswahl einpassen</translation>
    </message>
    <message>
        <source>Fit the pictures into this size</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>Die Bilder in diese Größe einpassen</translation>
    </message>
    <message>
        <source>Flags</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Fähnchen</translation>
    </message>
    <message>
        <source>Flash</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Blitz</translation>
    </message>
    <message>
        <source>Focal Length</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Brennweite</translation>
    </message>
    <message>
        <source>Focal length that gives the same field of view on 35mm film, in millimeters. Use it to compare images from cameras with sensors of different size.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Brennweite in Millimetern, die auf Kleinbildfilm denselben Bildwinkel ergibt. Damit lassen sich Bilder von Kameras mit verschieden großen Sensoren vergleichen.</translation>
    </message>
    <message>
        <source>Folder</source>
        <extracomment>src/ui/windows/MediaBrowserModel.cpp</extracomment>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Folder of a newer one, from the next start on; empty for the one that Waymark came with</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Ordner einer neueren Version, ab dem nächsten Start; leer für die mitgelieferte</translation>
    </message>
    <message>
        <source>Folders of photos: whether photos can be saved there</source>
        <extracomment>src/cli/DoctorCommand.cpp</extracomment>
        <translation>Ordner mit Fotos: ob dort Fotos gespeichert werden können</translation>
    </message>
    <message>
        <source>For a clock that was wrong, not only set to another zone</source>
        <extracomment>src/ui/console/CameraClockView.cpp</extracomment>
        <translation>Für eine Uhr, die falsch ging und nicht nur auf eine andere Zeitzone gestellt war</translation>
    </message>
    <message>
        <source>For a clock that was wrong. If it was right but set to another time zone, choose that zone under the camera clock of the main window instead.</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Für eine Uhr, die falsch ging. Ging sie richtig, war aber auf eine andere Zeitzone gestellt, wählen Sie stattdessen im Hauptfenster unter „Kamerauhr“ diese Zeitzone.</translation>
    </message>
    <message>
        <source>For distances and heights</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Für Entfernungen und Höhen</translation>
    </message>
    <message>
        <source>For example 25 m or 80 ft</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Zum Beispiel 25 m oder 80 ft</translation>
    </message>
    <message>
        <source>For example 5 min or 90 s</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Zum Beispiel 5 min oder 90 s</translation>
    </message>
    <message>
        <source>For {key}</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Für {key}</translation>
    </message>
    <message>
        <source>For {s}, parted by commas</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Für {s}, durch Kommas getrennt</translation>
    </message>
    <message>
        <source>Forgets the chosen exports; what was exported stays</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Vergisst die gewählten Exporte; was exportiert wurde, bleibt erhalten</translation>
    </message>
    <message>
        <source>Format of the file, recognized by its content and not by its extension.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Format der Datei, am Inhalt erkannt und nicht an der Dateiendung.</translation>
    </message>
    <message>
        <source>Forward, or back where negative (-- before negative ones)</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>Vorwärts, bei negativem Wert zurück (vor negativen -- schreiben)</translation>
    </message>
    <message>
        <source>From: %1</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Von: %1</translation>
    </message>
    <message>
        <source>Full name of the country in which the image was shot, in the language of your other texts.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Voller Name des Landes, in dem das Bild aufgenommen wurde, in der Sprache Ihrer übrigen Texte.</translation>
    </message>
    <message>
        <source>Full name of the country that the image shows; it differs from the one where the camera stood for a view across a border. Separate several with a vertical bar.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Voller Name des Landes, das das Bild zeigt; bei einem Blick über eine Grenze ist es ein anderes als das, in dem die Kamera stand. Trennen Sie mehrere durch senkrechte Striche.</translation>
    </message>
    <message>
        <source>Further categories that refine the main one, in words or codes of at most 32 characters each. Keywords have taken their place in most workflows.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Weitere Kategorien, die die Hauptkategorie verfeinern, als Wörter oder Codes von jeweils höchstens 32 Zeichen. In den meisten Arbeitsabläufen haben Stichwörter sie abgelöst.</translation>
    </message>
    <message>
        <source>GLOBAL OPTIONS</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>GLOBALE OPTIONEN</translation>
    </message>
    <message>
        <source>GMT.</source>
        <extracomment>src/geotagging/KTTimeZoneHUDController.cpp</extracomment>
        <translation>GMT</translation>
    </message>
    <message>
        <source>GPS Date &amp; Time</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>GPS-Datum und -Uhrzeit</translation>
    </message>
    <message>
        <source>GPS Version ID</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>GPS-Version</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>src/app/AppPreferencesWindowController.cpp</extracomment>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>GeoNames (offline)</source>
        <extracomment>src/platform/gazetteer/KTOfflineReverseGeocoder.cpp</extracomment>
        <translation>GeoNames (offline)</translation>
    </message>
    <message>
        <source>Geodetic datum, the model of the earth's shape that latitude and longitude refer to. GPS receivers and web maps use WGS-84.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Geodätisches Datum: das Modell der Erdform, auf das sich Breiten- und Längengrad beziehen. GPS-Empfänger und Webkarten verwenden WGS-84.</translation>
    </message>
    <message>
        <source>Geotag</source>
        <extracomment>src/ui/console/StandardPanel.cpp</extracomment>
        <translation>Verorten</translation>
    </message>
    <message numerus="yes">
        <source>Geotag %d Photos</source>
        <extracomment>src/geotagging/KTGeotaggingControllerGestures.cpp</extracomment>
        <translation>
            <numerusform>%d Foto verorten</numerusform>
            <numerusform>%d Fotos verorten</numerusform>
        </translation>
    </message>
    <message>
        <source>Geotag Photos</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>Fotos verorten</translation>
    </message>
    <message>
        <source>Geotag only photos between two track points so close to each other</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Nur Fotos zwischen zwei Trackpunkten verorten, die so nah beieinanderliegen</translation>
    </message>
    <message>
        <source>Geotag only photos that were taken so close in time to a track point</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Nur Fotos verorten, deren Aufnahme zeitlich so nah an einem Trackpunkt liegt</translation>
    </message>
    <message>
        <source>Geotag to Map Center</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Auf Kartenmitte verorten</translation>
    </message>
    <message>
        <source>Geotag to Map Center and Go On</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Auf Kartenmitte verorten und weiter</translation>
    </message>
    <message>
        <source>Geotag to next track point</source>
        <extracomment>src/ui/console/StandardPanel.cpp</extracomment>
        <translation>Auf den nächsten Trackpunkt verorten</translation>
    </message>
    <message>
        <source>Geotag to point</source>
        <extracomment>src/geotagging/KTGeotaggingControllerGestures.cpp</extracomment>
        <translation>Auf Punkt verorten</translation>
    </message>
    <message>
        <source>Geotag to preceding track point</source>
        <extracomment>src/ui/console/StandardPanel.cpp</extracomment>
        <translation>Auf den vorigen Trackpunkt verorten</translation>
    </message>
    <message>
        <source>Geotag to time weighted average point</source>
        <extracomment>src/ui/console/StandardPanel.cpp</extracomment>
        <translation>Auf den zeitlich gemittelten Punkt verorten</translation>
    </message>
    <message>
        <source>Geotagging</source>
        <extracomment>src/app/AppPreferencesWindowController.cpp</extracomment>
        <translation>Geotagging</translation>
    </message>
    <message>
        <source>Geotagging Console</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Geotagging-Konsole</translation>
    </message>
    <message>
        <source>Geotagging photo %u of %u</source>
        <extracomment>src/geotagging/KTGeotaggerSaving.cpp</extracomment>
        <translation>Foto %u von %u wird verortet</translation>
    </message>
    <message>
        <source>Geotags</source>
        <extracomment>src/metadata/KTMetadataFieldManager.cpp</extracomment>
        <translation>Geotags</translation>
    </message>
    <message>
        <source>Geotags all selected photos at once</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Verortet alle ausgewählten Fotos auf einmal</translation>
    </message>
    <message>
        <source>Geotags the selected photos to a place on the map</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Verortet die ausgewählten Fotos an einer Stelle der Karte</translation>
    </message>
    <message>
        <source>Give every photo one capture date, and save</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>Allen Fotos dasselbe Aufnahmedatum geben und speichern</translation>
    </message>
    <message>
        <source>Give the photos one date, as far as it is known</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Den Fotos ein Datum geben, so genau es bekannt ist</translation>
    </message>
    <message>
        <source>Gives all selected photos this date; nothing is written yet</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Gibt allen ausgewählten Fotos dieses Datum; noch wird nichts geschrieben</translation>
    </message>
    <message>
        <source>Gives the photos the shifted dates, counted from the saved ones; nothing is written yet</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Gibt den Fotos die verschobenen Zeiten, gerechnet ab den gespeicherten; noch wird nichts geschrieben</translation>
    </message>
    <message>
        <source>Gives the photos their proposed locations; nothing is written yet</source>
        <extracomment>src/ui/console/BatchPanel.cpp</extracomment>
        <translation>Gibt den Fotos die vorgeschlagenen Positionen; noch wird nichts geschrieben</translation>
    </message>
    <message>
        <source>Gives the selected photos the place of the selected waypoint</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Gibt den ausgewählten Fotos die Position des ausgewählten Wegpunkts</translation>
    </message>
    <message>
        <source>Gives the selected photos the place under the crosshairs</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Gibt den ausgewählten Fotos die Position unter dem Fadenkreuz</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Gehe zu</translation>
    </message>
    <message>
        <source>Go On</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Go to the coordinates</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Zu den Koordinaten gehen</translation>
    </message>
    <message>
        <source>Group %1</source>
        <extracomment>src/ui/inspector/InspectorGroup.cpp</extracomment>
        <translation>Gruppe %1</translation>
    </message>
    <message>
        <source>Groups and Fields</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Gruppen und Felder</translation>
    </message>
    <message>
        <source>Headline</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Überschrift</translation>
    </message>
    <message>
        <source>Height of the camera above sea level, in the unit chosen for heights; negative below sea level. The file holds it in meters.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Höhe der Kamera über dem Meeresspiegel in der für Höhen gewählten Einheit; negativ unter dem Meeresspiegel. In der Datei steht sie in Metern.</translation>
    </message>
    <message>
        <source>Height of the camera's sensor in millimeters. Together with the width it shows the sensor's format, such as full frame (36 by 24 mm) or APS-C (about 23 by 15 mm).</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Höhe des Kamerasensors in Millimetern. Zusammen mit der Breite zeigt sie das Sensorformat, zum Beispiel Vollformat (36 × 24 mm) oder APS-C (etwa 23 × 15 mm).</translation>
    </message>
    <message>
        <source>Help</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Hide Export List</source>
        <extracomment>src/export/KTPhotoExportProgressWindowController.cpp</extracomment>
        <translation>Exportliste ausblenden</translation>
    </message>
    <message>
        <source>Horizontal angle of the scene that the image covers, in degrees, calculated from the focal length and the size of the sensor.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Horizontaler Winkel des Motivs, den das Bild erfasst, in Grad, berechnet aus der Brennweite und der Sensorgröße.</translation>
    </message>
    <message>
        <source>Hour</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Stunde</translation>
    </message>
    <message>
        <source>How a photo gives way to the next one</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Wie ein Foto dem nächsten weicht</translation>
    </message>
    <message>
        <source>How far the dates are moved: %1</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Wie weit die Zeiten verschoben werden: %1</translation>
    </message>
    <message>
        <source>How many of the loaded photos would take their place from this track</source>
        <extracomment>src/ui/windows/TrackListModel.cpp</extracomment>
        <translation>Wie viele der geladenen Fotos ihre Position aus diesem Track erhielten</translation>
    </message>
    <message>
        <source>How much of the date is known: second, minute, hour, day, month, year</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>Wie genau das Datum bekannt ist: second, minute, hour, day, month, year</translation>
    </message>
    <message>
        <source>How much of the date is known; finer parts stay open</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Wie genau das Datum bekannt ist; feinere Angaben bleiben offen</translation>
    </message>
    <message>
        <source>IPTC Scene Codes</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>IPTC-Szenencodes</translation>
    </message>
    <message>
        <source>IPTC Subject Codes</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>IPTC-Themencodes</translation>
    </message>
    <message>
        <source>ISO 3166-1 code of the country that the image shows. Prefer the code of three letters: IPTC takes no other. Separate several with a vertical bar.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>ISO-3166-1-Code des Landes, das das Bild zeigt. Bevorzugen Sie den Code mit drei Buchstaben: IPTC kennt keinen anderen. Trennen Sie mehrere durch senkrechte Striche.</translation>
    </message>
    <message>
        <source>ISO 3166-1 code, of two or three capital letters, of the country in which the image was shot.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>ISO-3166-1-Code aus zwei oder drei Großbuchstaben für das Land, in dem das Bild aufgenommen wurde.</translation>
    </message>
    <message>
        <source>Icon</source>
        <extracomment>src/ui/export/ExportListModel.cpp</extracomment>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Ids</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>Kennungen</translation>
    </message>
    <message>
        <source>If you don't save, all changes will be lost.</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Wenn Sie nicht speichern, gehen alle Änderungen verloren.</translation>
    </message>
    <message>
        <source>Image File</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Bilddatei</translation>
    </message>
    <message>
        <source>Image Size</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Bildgröße</translation>
    </message>
    <message>
        <source>Image files and sidecars</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Bilddateien und Sidecars</translation>
    </message>
    <message>
        <source>Image files of open formats, sidecars for raw files</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Bilddateien bei offenen Formaten, Sidecars bei Raw-Dateien</translation>
    </message>
    <message>
        <source>Image files only</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Nur Bilddateien</translation>
    </message>
    <message>
        <source>Import</source>
        <extracomment>src/ui/support/ImportProgressLine.cpp</extracomment>
        <translation>Import</translation>
    </message>
    <message>
        <source>Import progress</source>
        <extracomment>src/ui/support/ImportProgressLine.cpp</extracomment>
        <translation>Importfortschritt</translation>
    </message>
    <message>
        <source>Import track files (GPX, NMEA, KML, KMZ, TCX, FIT, IGC, CSV)</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>Trackdateien importieren (GPX, NMEA, KML, KMZ, TCX, FIT, IGC, CSV)</translation>
    </message>
    <message>
        <source>Importing track file %lu of %lu</source>
        <extracomment>src/platform/tracklibrary/KTTrackManagerWork.cpp</extracomment>
        <translation>Trackdatei %lu von %lu wird importiert</translation>
    </message>
    <message>
        <source>Import…</source>
        <extracomment>src/ui/windows/TrackLibraryWindow.cpp</extracomment>
        <translation>Importieren …</translation>
    </message>
    <message>
        <source>In batches</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Im Stapelmodus</translation>
    </message>
    <message>
        <source>In pixels</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>In Pixeln</translation>
    </message>
    <message>
        <source>In the standard mode</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Im Standardmodus</translation>
    </message>
    <message>
        <source>In the thumbnail browser</source>
        <extracomment>src/ui/photos/PhotoViewOptions.cpp</extracomment>
        <translation>In der Miniaturansicht</translation>
    </message>
    <message>
        <source>Indicates the status of flash when the image was shot.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Gibt den Zustand des Blitzes bei der Aufnahme an.</translation>
    </message>
    <message>
        <source>Indicates whether the image is protected by copyright or free for everyone. Leave it blank when you do not know; that makes no claim either way.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Gibt an, ob das Bild urheberrechtlich geschützt oder für alle frei ist. Lassen Sie das Feld leer, wenn Sie es nicht wissen; damit wird nichts behauptet.</translation>
    </message>
    <message>
        <source>Indicates whether the receiver had a valid measurement when the image was shot. When the measurement is void, the position may be the last known one or missing.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Gibt an, ob der Empfänger bei der Aufnahme eine gültige Messung hatte. Bei ungültiger Messung kann die Position die zuletzt bekannte sein oder fehlen.</translation>
    </message>
    <message>
        <source>Indicates whether the receiver measured the altitude too. Three dimensions need at least four satellites; with two dimensions do not rely on the altitude.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Gibt an, ob der Empfänger auch die Höhe gemessen hat. Drei Dimensionen brauchen mindestens vier Satelliten; verlassen Sie sich bei zwei Dimensionen nicht auf die Höhe.</translation>
    </message>
    <message>
        <source>Indicates whether the receiver refined the position with correction signals from reference stations, which brings it to within a few meters or better.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Gibt an, ob der Empfänger die Position mit Korrektursignalen von Referenzstationen verfeinert hat, was sie auf wenige Meter oder noch genauer macht.</translation>
    </message>
    <message>
        <source>Install Waymark again.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Installieren Sie Waymark erneut.</translation>
    </message>
    <message>
        <source>Install the package gpsbabel for NMEA, KML, TCX, FIT, IGC and CSV files.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Installieren Sie für NMEA-, KML-, TCX-, FIT-, IGC- und CSV-Dateien das Paket gpsbabel.</translation>
    </message>
    <message>
        <source>Install the package libimage-exiftool-perl, or name a folder that holds Image/ExifTool.pm with --exiftool.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Installieren Sie das Paket libimage-exiftool-perl oder nennen Sie mit --exiftool einen Ordner, der Image/ExifTool.pm enthält.</translation>
    </message>
    <message>
        <source>Instructions</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Anweisungen</translation>
    </message>
    <message>
        <source>Instructions of the supplier to whoever publishes the image, such as an embargo or other restrictions.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Anweisungen des Anbieters an alle, die das Bild veröffentlichen, etwa eine Sperrfrist oder andere Einschränkungen.</translation>
    </message>
    <message>
        <source>Intellectual Genre</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Journalistisches Genre</translation>
    </message>
    <message>
        <source>Interpolate between the neighbours</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Zwischen den Nachbarpunkten interpolieren</translation>
    </message>
    <message>
        <source>It failed in %@: %@.</source>
        <extracomment>src/export/KTPluginError.cpp</extracomment>
        <translation>Fehler in %@: %@.</translation>
    </message>
    <message>
        <source>It is not exported, because its place could not be removed from it: %@.</source>
        <extracomment>src/export/KTPhotoFileExport.cpp</extracomment>
        <translation>Es wurde nicht exportiert, weil sein Ort nicht daraus entfernt werden konnte: %@.</translation>
    </message>
    <message>
        <source>It was interrupted: the photo being written was finished.</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>Der Aufruf wurde unterbrochen; das Foto, in das gerade geschrieben wurde, ist fertig.</translation>
    </message>
    <message>
        <source>It was made for another version of Waymark.</source>
        <extracomment>src/export/KTPluginManifest.cpp</extracomment>
        <translation>Es wurde für eine andere Version von Waymark erstellt.</translation>
    </message>
    <message>
        <source>Its library cannot be loaded.</source>
        <extracomment>src/export/KTPluginBundle.cpp</extracomment>
        <translation>Seine Programmbibliothek kann nicht geladen werden.</translation>
    </message>
    <message>
        <source>Its library is missing.</source>
        <extracomment>src/export/KTPluginManifest.cpp</extracomment>
        <translation>Seine Programmbibliothek fehlt.</translation>
    </message>
    <message>
        <source>Its library was made for another version of Waymark.</source>
        <extracomment>src/export/KTPluginBundle.cpp</extracomment>
        <translation>Seine Programmbibliothek wurde für eine andere Version von Waymark erstellt.</translation>
    </message>
    <message>
        <source>Its manifest cannot be read: %@.</source>
        <extracomment>src/export/KTPluginManifest.cpp</extracomment>
        <translation>Seine Manifestdatei kann nicht gelesen werden: %@.</translation>
    </message>
    <message>
        <source>Its manifest is damaged.</source>
        <extracomment>src/export/KTPluginManifest.cpp</extracomment>
        <translation>Seine Manifestdatei ist beschädigt.</translation>
    </message>
    <message>
        <source>Its manifest is not a file.</source>
        <extracomment>src/export/KTPluginManifest.cpp</extracomment>
        <translation>Sein Manifest ist keine Datei.</translation>
    </message>
    <message>
        <source>Its size before scaling</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>Größe des Bildes vor der Skalierung</translation>
    </message>
    <message>
        <source>Job Identifier</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Auftrags-ID</translation>
    </message>
    <message>
        <source>Judge and print, write nothing</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Nur prüfen und ausgeben, nichts schreiben</translation>
    </message>
    <message>
        <source>Keep Both</source>
        <extracomment>src/export/KTPhotoExportPluginManager.cpp</extracomment>
        <translation>Beide behalten</translation>
    </message>
    <message>
        <source>Keep backups there, in a folder named by date and time</source>
        <extracomment>src/cli/SaveOptions.cpp</extracomment>
        <translation>Dort Sicherungen ablegen, in einem nach Datum und Uhrzeit benannten Ordner</translation>
    </message>
    <message>
        <source>Keep the files' modification dates</source>
        <extracomment>src/cli/SaveOptions.cpp</extracomment>
        <translation>Das Änderungsdatum der Dateien beibehalten</translation>
    </message>
    <message>
        <source>Keep the modification date of files</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Änderungsdatum der Dateien beibehalten</translation>
    </message>
    <message>
        <source>Keeps the map's present place, scale and source for later starts</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Merkt sich Ort, Maßstab und Quelle der Karte für spätere Starts</translation>
    </message>
    <message>
        <source>Key:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Schlüssel:</translation>
    </message>
    <message>
        <source>Keyword</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Stichwort</translation>
    </message>
    <message>
        <source>Keywords</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Stichwörter</translation>
    </message>
    <message>
        <source>Kilometres and metres</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Kilometer und Meter</translation>
    </message>
    <message>
        <source>Kind of view, as codes of six digits from the IPTC Scene NewsCodes: 010100 is a headshot, 011200 an aerial view, 011400 a night scene.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Art der Ansicht, als sechsstellige Codes der IPTC Scene NewsCodes: 010100 ist ein Kopfporträt, 011200 eine Luftaufnahme, 011400 eine Nachtaufnahme.</translation>
    </message>
    <message>
        <source>Known to the:</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Genauigkeit:</translation>
    </message>
    <message>
        <source>LANGUAGE, LC_ALL, LC_MESSAGES, LANG</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>LANGUAGE, LC_ALL, LC_MESSAGES, LANG</translation>
    </message>
    <message>
        <source>Label</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Markierung</translation>
    </message>
    <message>
        <source>Largest zoom:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Größte Zoomstufe:</translation>
    </message>
    <message>
        <source>Latitude</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Breitengrad</translation>
    </message>
    <message>
        <source>Latitude of the camera when the image was shot, in decimal degrees. North of the equator is positive, south of it negative.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Breitengrad der Kamera bei der Aufnahme, in Dezimalgrad. Nördlich des Äquators positiv, südlich davon negativ.</translation>
    </message>
    <message>
        <source>Latitude of what the image shows, in decimal degrees, for a subject at a distance from the camera. North is positive, south negative.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Breitengrad dessen, was das Bild zeigt, in Dezimalgrad, für ein von der Kamera entferntes Motiv. Norden ist positiv, Süden negativ.</translation>
    </message>
    <message>
        <source>Lays the flags down or sets them upright</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Legt die Fähnchen um oder richtet sie auf</translation>
    </message>
    <message>
        <source>Leave alone photos that have a location</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Fotos mit Position nicht ändern</translation>
    </message>
    <message>
        <source>Leave out where the pictures were taken</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>Den Aufnahmeort der Bilder weglassen</translation>
    </message>
    <message>
        <source>Leave the altitude alone</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Die Höhe nicht ändern</translation>
    </message>
    <message>
        <source>Length</source>
        <extracomment>src/ui/windows/TrackListModel.cpp</extracomment>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Lens</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Objektiv</translation>
    </message>
    <message>
        <source>Lens that was on the camera, worked out from the lens data that the camera recorded. Lenses that share an identification number may be mistaken for each other.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Objektiv an der Kamera, ermittelt aus den aufgezeichneten Objektivdaten. Objektive mit derselben Kennnummer können verwechselt werden.</translation>
    </message>
    <message>
        <source>Let altitudes be typed</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Eingabe von Höhen zulassen</translation>
    </message>
    <message>
        <source>Library</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerController.cpp</extracomment>
        <translation>Bibliothek</translation>
    </message>
    <message>
        <source>Licences and sources of data</source>
        <extracomment>src/ui/windows/AboutBox.cpp</extracomment>
        <translation>Lizenzen und Datenquellen</translation>
    </message>
    <message>
        <source>Light on dark</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>Hell auf dunkel</translation>
    </message>
    <message>
        <source>Linkable Point</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>Zuordenbarer Punkt</translation>
    </message>
    <message>
        <source>Linkable Points</source>
        <extracomment>src/geotagging/KTGeotaggingController.cpp</extracomment>
        <translation>Zuordenbare Punkte</translation>
    </message>
    <message>
        <source>List the metadata fields by key</source>
        <extracomment>src/cli/FieldsCommand.cpp</extracomment>
        <translation>Die Metadatenfelder mit ihren Schlüsseln auflisten</translation>
    </message>
    <message>
        <source>List what the library holds</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>Den Inhalt der Bibliothek auflisten</translation>
    </message>
    <message>
        <source>Loading image %lu of %lu</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>Bild %lu von %lu wird geladen</translation>
    </message>
    <message>
        <source>Location Created</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Aufnahmeort</translation>
    </message>
    <message>
        <source>Location Shown</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Gezeigter Ort</translation>
    </message>
    <message>
        <source>Log and notes</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Protokoll und Notizen</translation>
    </message>
    <message>
        <source>Longitude</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Längengrad</translation>
    </message>
    <message>
        <source>Longitude of the camera when the image was shot, in decimal degrees. East of Greenwich is positive, west of it negative.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Längengrad der Kamera bei der Aufnahme, in Dezimalgrad. Östlich von Greenwich positiv, westlich davon negativ.</translation>
    </message>
    <message>
        <source>Longitude of what the image shows, in decimal degrees, for a subject at a distance from the camera. East is positive, west negative.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Längengrad dessen, was das Bild zeigt, in Dezimalgrad, für ein von der Kamera entferntes Motiv. Osten ist positiv, Westen negativ.</translation>
    </message>
    <message>
        <source>Look up the place shown</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Ortsnamen zum gezeigten Ort ermitteln</translation>
    </message>
    <message>
        <source>Look up the sample position</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Ortsnamen der Beispielposition ermitteln</translation>
    </message>
    <message>
        <source>Look up where the photo was taken</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Ortsnamen zum Aufnahmeort ermitteln</translation>
    </message>
    <message>
        <source>Looking for track points…</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Trackpunkte werden gesucht …</translation>
    </message>
    <message>
        <source>Made a small trip in %@: 12 photos (camera clock at UTC%@) and the track of the walk.</source>
        <extracomment>src/cli/DemoCommand.cpp</extracomment>
        <translation>In %@ liegt nun ein kleiner Ausflug: 12 Fotos (Kamerauhr auf UTC%@) und der Track der Wanderung.</translation>
    </message>
    <message>
        <source>Made with Natural Earth</source>
        <extracomment>src/platform/cartography/drawing/KTBaseMapLayer.cpp</extracomment>
        <translation>Erstellt mit Natural Earth</translation>
    </message>
    <message>
        <source>Main Toolbar</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Hauptwerkzeugleiste</translation>
    </message>
    <message>
        <source>Main subject of the image as a code of at most three letters, agreed with the receiving agency. Subject codes have taken its place, but some agencies still ask for it.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Hauptthema des Bildes als Code von höchstens drei Buchstaben, abgesprochen mit der empfangenden Agentur. Themencodes haben ihn abgelöst, doch manche Agenturen verlangen ihn noch.</translation>
    </message>
    <message>
        <source>Make a small trip, geotag it and say what to try next</source>
        <extracomment>src/cli/DemoCommand.cpp</extracomment>
        <translation>Einen kleinen Ausflug anlegen, ihn verorten und nächste Schritte nennen</translation>
    </message>
    <message>
        <source>Make room: a save needs as much as the photo takes, once more.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Schaffen Sie Platz: Speichern braucht noch einmal so viel, wie das Foto belegt.</translation>
    </message>
    <message>
        <source>Makes a small trip with a track to try the program on</source>
        <extracomment>src/ui/photos/EmptyPhotosView.cpp</extracomment>
        <translation>Legt einen kleinen Ausflug mit Track zum Ausprobieren des Programms an</translation>
    </message>
    <message>
        <source>Manual</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>Manufacturer of the equipment that generated the image.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Hersteller des Geräts, mit dem das Bild entstand.</translation>
    </message>
    <message>
        <source>Map</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Map Datum</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Bezugssystem</translation>
    </message>
    <message>
        <source>Map of the slide show</source>
        <extracomment>src/ui/slideshow/SlideShowMap.cpp</extracomment>
        <translation>Karte der Diashow</translation>
    </message>
    <message>
        <source>Map:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Karte:</translation>
    </message>
    <message>
        <source>Maps</source>
        <extracomment>src/app/AppPreferencesWindowController.cpp</extracomment>
        <translation>Karten</translation>
    </message>
    <message>
        <source>Mark for your own workflow, most often the name of a color. Other programs show the color only if they use exactly the same name.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Markierung für Ihren eigenen Arbeitsablauf, meist der Name einer Farbe. Andere Programme zeigen die Farbe nur, wenn sie genau denselben Namen verwenden.</translation>
    </message>
    <message>
        <source>Match photos against tracks and write their positions</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Fotos mit Tracks abgleichen und ihre Positionen schreiben</translation>
    </message>
    <message>
        <source>Measurement Mode</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Messmodus</translation>
    </message>
    <message>
        <source>Measurement active</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>Messung gültig</translation>
    </message>
    <message>
        <source>Measurement void</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>Messung ungültig</translation>
    </message>
    <message>
        <source>Media Browser</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Medienbrowser</translation>
    </message>
    <message>
        <source>Megabytes on the disk at most</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Höchstens so viele Megabyte auf dem Datenträger</translation>
    </message>
    <message>
        <source>Metadata</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Metadaten</translation>
    </message>
    <message>
        <source>Metadata Date</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Metadatendatum</translation>
    </message>
    <message>
        <source>Metadata Time</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Metadatenzeit</translation>
    </message>
    <message>
        <source>Metadata fields</source>
        <extracomment>src/ui/inspector/InspectorPane.cpp</extracomment>
        <translation>Metadatenfelder</translation>
    </message>
    <message>
        <source>Metering Mode</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Messmethode</translation>
    </message>
    <message>
        <source>Miles and feet</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Meilen und Fuß</translation>
    </message>
    <message>
        <source>Minute</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Minute</translation>
    </message>
    <message>
        <source>Mod</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Mod</translation>
    </message>
    <message>
        <source>Model name of the camera, scanner or phone that generated the image, as its maker writes it.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Modellname der Kamera, des Scanners oder Telefons, mit dem das Bild entstand, in der Schreibweise des Herstellers.</translation>
    </message>
    <message>
        <source>Modify Date</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Änderungsdatum</translation>
    </message>
    <message>
        <source>Modify Time</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Änderungszeit</translation>
    </message>
    <message>
        <source>Month</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Move %@ away and import your tracks again.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Verschieben Sie %@ an einen anderen Ort und importieren Sie Ihre Tracks erneut.</translation>
    </message>
    <message>
        <source>Move In</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Hereinschieben</translation>
    </message>
    <message>
        <source>Move and zoom to the photo</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Zum Foto bewegen und zoomen</translation>
    </message>
    <message>
        <source>Move and zoom to them</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Dorthin bewegen und zoomen</translation>
    </message>
    <message>
        <source>Move the capture date from what the files hold, and save</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>Das Aufnahmedatum gegenüber dem Stand der Dateien verschieben und speichern</translation>
    </message>
    <message>
        <source>Move the date at which the picture was digitized by the same difference</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Das Digitalisierungsdatum um denselben Unterschied verschieben</translation>
    </message>
    <message>
        <source>Move the file away; then the defaults hold.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Verschieben Sie die Datei an einen anderen Ort; dann gelten die Standardwerte.</translation>
    </message>
    <message>
        <source>Move to the photo</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Zum Foto bewegen</translation>
    </message>
    <message>
        <source>Move to them</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Dorthin bewegen</translation>
    </message>
    <message>
        <source>Moves the map to these coordinates</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Bewegt die Karte zu diesen Koordinaten</translation>
    </message>
    <message>
        <source>Multiple Values</source>
        <extracomment>src/collection/KTTagDetailsWindowController.cpp</extracomment>
        <translation>Mehrere Werte</translation>
    </message>
    <message>
        <source>Multiple values</source>
        <extracomment>src/app/editor/KTMetadataFieldArrayViewItem.cpp</extracomment>
        <translation>Mehrere Werte</translation>
    </message>
    <message>
        <source>NAME</source>
        <extracomment>src/platform/presentation/KTManualPage.cpp</extracomment>
        <translation>NAME</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Name</translation>
    </message>
    <message>
        <source>Name &amp; Date</source>
        <extracomment>src/metadata/KTMetadataFieldManager.cpp</extracomment>
        <translation>Name und Datum</translation>
    </message>
    <message>
        <source>Name of the event at which the image was shot. Use the same words for all images of the event, so that they can be found together.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Name des Ereignisses, bei dem das Bild entstand. Verwenden Sie für alle Bilder des Ereignisses dieselben Worte, damit sie sich gemeinsam finden lassen.</translation>
    </message>
    <message>
        <source>Name of the image file, with its extension, as it stands in the folder.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Name der Bilddatei mit Endung, wie er im Ordner steht.</translation>
    </message>
    <message>
        <source>Name of the person who wrote, edited or corrected the description of the image.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Name der Person, die die Beschreibung des Bildes verfasst, bearbeitet oder korrigiert hat.</translation>
    </message>
    <message>
        <source>Name of the photographer, or of the company where the photographer is not to be named. Separate several names with a semicolon.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Name des Fotografen oder, wenn dieser nicht genannt werden soll, der Firma. Trennen Sie mehrere Namen durch Semikolons.</translation>
    </message>
    <message>
        <source>Name the place at a position (-- before negative numbers)</source>
        <extracomment>src/cli/PlaceCommand.cpp</extracomment>
        <translation>Den Ort an einer Position nennen (vor negativen Zahlen -- schreiben)</translation>
    </message>
    <message>
        <source>Name:</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Names of the people whom the image shows and who can be recognized, one entry for each person.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Namen der Personen, die auf dem Bild zu sehen und zu erkennen sind, ein Eintrag je Person.</translation>
    </message>
    <message>
        <source>Nature of the image as a piece of journalism, and not what it shows. Use a term of the IPTC Genre NewsCodes.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Art des Bildes als journalistischer Beitrag, nicht sein Inhalt. Verwenden Sie einen Begriff der IPTC Genre NewsCodes.</translation>
    </message>
    <message>
        <source>Nautical miles and metres</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Seemeilen und Meter</translation>
    </message>
    <message>
        <source>Near &amp; Recent</source>
        <extracomment>src/geotagging/KTAppTrackPickerController.cpp</extracomment>
        <translation>Nah und neu</translation>
    </message>
    <message>
        <source>Near Photos</source>
        <extracomment>src/geotagging/KTAppTrackPickerController.cpp</extracomment>
        <translation>Nahe den Fotos</translation>
    </message>
    <message>
        <source>Nearest track point: %@</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Nächster Trackpunkt: %@</translation>
    </message>
    <message>
        <source>Newscodes</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>NewsCodes</translation>
    </message>
    <message>
        <source>Next Photo</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Nächstes Foto</translation>
    </message>
    <message>
        <source>Next point</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>Nächster Punkt</translation>
    </message>
    <message>
        <source>Next track point</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>Nächster Trackpunkt</translation>
    </message>
    <message>
        <source>No Description.</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>Keine Beschreibung.</translation>
    </message>
    <message>
        <source>No Loaded Tracks</source>
        <extracomment>src/geotagging/KTGeotaggingConsoleViewController.cpp</extracomment>
        <translation>Keine geladenen Tracks</translation>
    </message>
    <message>
        <source>No Photos Selected</source>
        <extracomment>src/app/editor/KTMetadataEditorViewController.cpp</extracomment>
        <translation>Keine Auswahl</translation>
    </message>
    <message>
        <source>No address of map tiles is set.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>Es ist keine Adresse für Kartenkacheln eingetragen.</translation>
    </message>
    <message>
        <source>No capture date</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Kein Aufnahmedatum</translation>
    </message>
    <message>
        <source>No city, state, country</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Ohne Stadt, Bundesland, Land</translation>
    </message>
    <message>
        <source>No correction</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>Keine Korrektur</translation>
    </message>
    <message>
        <source>No country has this code or name.</source>
        <extracomment>src/app/editor/KTFieldText.cpp</extracomment>
        <translation>Kein Land hat diesen Code oder Namen.</translation>
    </message>
    <message>
        <source>No destination</source>
        <extracomment>src/ui/export/ExportListModel.cpp</extracomment>
        <translation>Kein Ziel</translation>
    </message>
    <message>
        <source>No distance restriction</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Ohne Entfernungsgrenze</translation>
    </message>
    <message>
        <source>No exports yet. Choose photos and a way to share them from the menu “Share”.</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Noch keine Exporte. Wählen Sie Fotos aus und im Menü „Teilen“ eine Art, sie weiterzugeben.</translation>
    </message>
    <message>
        <source>No file can have a creation date in that year.</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>Keine Datei kann ein Erstellungsdatum in diesem Jahr haben.</translation>
    </message>
    <message>
        <source>No folder is chosen.</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Kein Ordner gewählt.</translation>
    </message>
    <message>
        <source>No loaded photos</source>
        <extracomment>src/collection/KTPhotoManagerToolbarController.cpp</extracomment>
        <translation>Keine geladenen Fotos</translation>
    </message>
    <message>
        <source>No match: nearest track point %@ away</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Kein Treffer: nächster Trackpunkt %@ entfernt</translation>
    </message>
    <message>
        <source>No match: track points too far apart</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Kein Treffer: Trackpunkte zu weit auseinander</translation>
    </message>
    <message>
        <source>No photo matches the filter.</source>
        <extracomment>src/ui/photos/PhotoPane.cpp</extracomment>
        <translation>Kein Foto passt zum Filter.</translation>
    </message>
    <message>
        <source>No photos</source>
        <extracomment>src/ui/photos/EmptyPhotosView.cpp</extracomment>
        <translation>Keine Fotos</translation>
    </message>
    <message>
        <source>No server is set that place names could be fetched from.</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>Es ist kein Server eingetragen, von dem Ortsnamen abgerufen werden könnten.</translation>
    </message>
    <message>
        <source>No time restriction</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Ohne Zeitgrenze</translation>
    </message>
    <message>
        <source>No track points</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Keine Trackpunkte</translation>
    </message>
    <message>
        <source>No tracks of a GPS receiver were found.</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerControllerCommands.cpp</extracomment>
        <translation>Es wurden keine Tracks eines GPS-Empfängers gefunden.</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>Not geotagged</source>
        <extracomment>src/photo/KTPhotoPresentation.cpp</extracomment>
        <translation>Nicht verortet</translation>
    </message>
    <message>
        <source>Note: Only those values given in True North will be visible in this application.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Hinweis: Dieses Programm zeigt nur Werte an, die sich auf geografisch Nord beziehen.</translation>
    </message>
    <message>
        <source>Nothing can be written in the folder “%@”: %@</source>
        <extracomment>src/platform/desktop/KTItemReplacement.cpp</extracomment>
        <translation>Im Ordner „%@“ kann nichts geschrieben werden: %@</translation>
    </message>
    <message>
        <source>Nothing was recorded here.</source>
        <extracomment>src/ui/map/MapPointing.cpp</extracomment>
        <translation>Hier wurde nichts aufgezeichnet.</translation>
    </message>
    <message>
        <source>Notice that claims the copyright, with the year of first publication and the name of the copyright's owner.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Vermerk, der das Urheberrecht beansprucht, mit dem Jahr der ersten Veröffentlichung und dem Namen des Rechteinhabers.</translation>
    </message>
    <message>
        <source>Number or name of the job or assignment that the image belongs to, for your own workflow or that of the client who receives it.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Nummer oder Name des Auftrags, zu dem das Bild gehört, für Ihren eigenen Arbeitsablauf oder den des Kunden.</translation>
    </message>
    <message>
        <source>OK</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>OPTIONEN</translation>
    </message>
    <message>
        <source>Of JPEG pictures, from 0 to 1</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>Qualität von JPEG-Bildern, von 0 bis 1</translation>
    </message>
    <message>
        <source>Of photos of a photo library</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Bei Fotos aus einer Fotobibliothek</translation>
    </message>
    <message>
        <source>Offline Map</source>
        <extracomment>src/ui/map/MapPane.cpp</extracomment>
        <translation>Offline-Karte</translation>
    </message>
    <message>
        <source>Offset</source>
        <extracomment>src/ui/console/TimeZoneList.cpp</extracomment>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>On the map</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Auf der Karte</translation>
    </message>
    <message>
        <source>One JSON document on standard output instead of text</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>Ein JSON-Dokument statt Text auf der Standardausgabe</translation>
    </message>
    <message>
        <source>Only the tags or only the properties</source>
        <extracomment>src/cli/ReadCommand.cpp</extracomment>
        <translation>Nur die Tags oder nur die Eigenschaften</translation>
    </message>
    <message>
        <source>Opens what was exported</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Öffnet, was exportiert wurde</translation>
    </message>
    <message>
        <source>Operation Log</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Vorgangsprotokoll</translation>
    </message>
    <message>
        <source>Operations</source>
        <extracomment>src/ui/windows/OperationLogWindow.cpp</extracomment>
        <translation>Vorgänge</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Organization</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Einordnung</translation>
    </message>
    <message>
        <source>Orientation</source>
        <extracomment>src/export/KTExportedTags.cpp</extracomment>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Original Date</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Aufnahmedatum</translation>
    </message>
    <message>
        <source>Original Date Change</source>
        <extracomment>src/photo/KTPhotoDateFamily.cpp</extracomment>
        <translation>Aufnahmedatum ändern</translation>
    </message>
    <message>
        <source>Original Time</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Aufnahmezeit</translation>
    </message>
    <message>
        <source>Original date</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Aufnahmedatum</translation>
    </message>
    <message>
        <source>Original date:</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Aufnahmedatum:</translation>
    </message>
    <message>
        <source>Original owner or first supplier of the image: an agency, an archive or a person. It stays the same when others pass the image on.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Ursprünglicher Eigentümer oder erster Anbieter des Bildes: eine Agentur, ein Archiv oder eine Person. Die Angabe bleibt gleich, wenn andere das Bild weitergeben.</translation>
    </message>
    <message>
        <source>Other Categories</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Weitere Kategorien</translation>
    </message>
    <message>
        <source>Overwrite original file</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>Originaldatei überschreiben</translation>
    </message>
    <message>
        <source>Overwrite original xmp file</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>Original-XMP-Datei überschreiben</translation>
    </message>
    <message>
        <source>Own Tile Server</source>
        <extracomment>src/ui/map/MapPane.cpp</extracomment>
        <translation>Eigener Kachelserver</translation>
    </message>
    <message>
        <source>Owner</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Rechteinhaber</translation>
    </message>
    <message>
        <source>Page Curl</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Umblättern</translation>
    </message>
    <message>
        <source>Panes</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Bereiche</translation>
    </message>
    <message>
        <source>Paste Coordinates</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Koordinaten einfügen</translation>
    </message>
    <message>
        <source>Paste Tags</source>
        <extracomment>src/app/editor/KTCopiedTags.cpp</extracomment>
        <translation>Tags einfügen</translation>
    </message>
    <message>
        <source>Paste Tags…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Tags einfügen …</translation>
    </message>
    <message numerus="yes">
        <source>Paste the checked values onto %d photos:</source>
        <extracomment>src/ui/inspector/PasteTagsSheet.cpp</extracomment>
        <translation>
            <numerusform>Die angekreuzten Werte in %d Foto einfügen:</numerusform>
            <numerusform>Die angekreuzten Werte in %d Fotos einfügen:</numerusform>
        </translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Pause</translation>
    </message>
    <message>
        <source>People Shown</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Abgebildete Personen</translation>
    </message>
    <message>
        <source>Person</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Person</translation>
    </message>
    <message>
        <source>Person or organization that owns the rights in the image, if that is not the photographer.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Person oder Organisation, der die Rechte am Bild gehören, falls dies nicht der Fotograf ist.</translation>
    </message>
    <message>
        <source>Photo</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Photo Description</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Bildbeschreibung</translation>
    </message>
    <message>
        <source>Photo Library</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Fotobibliothek</translation>
    </message>
    <message>
        <source>Photo in front</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Vorderes Foto</translation>
    </message>
    <message>
        <source>Photo library</source>
        <extracomment>src/ui/inspector/FieldRow.cpp</extracomment>
        <translation>Fotobibliothek</translation>
    </message>
    <message>
        <source>Photo of the slide show</source>
        <extracomment>src/ui/slideshow/SlideShowView.cpp</extracomment>
        <translation>Foto der Diashow</translation>
    </message>
    <message>
        <source>Photo shown</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Angezeigtes Foto</translation>
    </message>
    <message>
        <source>Photo: %@</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Foto: %@</translation>
    </message>
    <message>
        <source>Photographer</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Fotograf</translation>
    </message>
    <message>
        <source>Photographer Contact Info</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Kontakt des Fotografen</translation>
    </message>
    <message>
        <source>Photos</source>
        <extracomment>src/app/AppPreferencesWindowController.cpp</extracomment>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Photos or whole folders, and the GPS tracks of the same days. Nothing is changed in them before you press "Write Changed Tags".</source>
        <extracomment>src/ui/photos/EmptyPhotosView.cpp</extracomment>
        <translation>Fotos oder ganze Ordner und die GPS-Tracks derselben Tage. Darin wird nichts geändert, bevor Sie „Geänderte Tags schreiben“ wählen.</translation>
    </message>
    <message>
        <source>Photos taken or shown inside these circles are exported without their location, and tracks without their points there.</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Fotos, die in diesen Kreisen aufgenommen wurden oder einen Ort darin zeigen, werden ohne ihre Position exportiert, Tracks ohne ihre Punkte dort.</translation>
    </message>
    <message>
        <source>Photos there can be read, but not saved: change the permissions of the folder.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Fotos dort können gelesen, aber nicht gespeichert werden: Ändern Sie die Zugriffsrechte des Ordners.</translation>
    </message>
    <message>
        <source>Photos, sidecars or folders</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>Fotos, Sidecars oder Ordner</translation>
    </message>
    <message>
        <source>Photos…</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Fotos …</translation>
    </message>
    <message>
        <source>Pick %1</source>
        <extracomment>src/ui/inspector/PairFieldEditor.cpp</extracomment>
        <translation>%1 wählen</translation>
    </message>
    <message>
        <source>Picture</source>
        <extracomment>src/ui/photos/PhotoListModel.cpp</extracomment>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Pictures</source>
        <extracomment>src/ui/windows/MediaBrowserWindow.cpp</extracomment>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Pictures of the type “%@” cannot be made.</source>
        <extracomment>src/export/KTPhotoFileExport.cpp</extracomment>
        <translation>Bilder des Typs „%@“ können nicht erstellt werden.</translation>
    </message>
    <message>
        <source>Pixels for each of these</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>Pixel je Pixel dieser Größe</translation>
    </message>
    <message>
        <source>Place names from:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Ortsnamen von:</translation>
    </message>
    <message>
        <source>Place names of the sample position</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Ortsnamen der Beispielposition</translation>
    </message>
    <message>
        <source>Places that no export tells</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Orte, die kein Export verrät</translation>
    </message>
    <message>
        <source>Points</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Position or job title of the photographer. It has meaning only together with the creator's name.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Funktion oder Berufsbezeichnung des Fotografen. Sie ist nur zusammen mit dem Namen des Erstellers sinnvoll.</translation>
    </message>
    <message>
        <source>Positions below thumbnails</source>
        <extracomment>src/ui/photos/PhotoViewOptions.cpp</extracomment>
        <translation>Positionen unter Miniaturen</translation>
    </message>
    <message>
        <source>Postal Code</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Postleitzahl</translation>
    </message>
    <message>
        <source>Postal code, such as the ZIP code, of the photographer's business address.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Postleitzahl der Geschäftsadresse des Fotografen.</translation>
    </message>
    <message>
        <source>Preceding point</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>Vorheriger Punkt</translation>
    </message>
    <message>
        <source>Preceding track point</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>Vorheriger Trackpunkt</translation>
    </message>
    <message>
        <source>Precision</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Genauigkeit</translation>
    </message>
    <message>
        <source>Preferences</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Preserve modification date</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>Änderungsdatum beibehalten</translation>
    </message>
    <message>
        <source>Previous Photo</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Vorheriges Foto</translation>
    </message>
    <message>
        <source>Privacy Zones</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Privatzonen</translation>
    </message>
    <message>
        <source>Privacy Zones…</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Privatzonen …</translation>
    </message>
    <message>
        <source>Program that the camera used to set the exposure; it tells which of aperture and shutter speed the photographer chose.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Programm, mit dem die Kamera die Belichtung einstellte; es zeigt, ob der Fotograf die Blende oder die Verschlusszeit gewählt hat.</translation>
    </message>
    <message>
        <source>Progress</source>
        <extracomment>src/ui/window/BatchProgressSheet.cpp</extracomment>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Proposed Locations</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>Vorgeschlagene Positionen</translation>
    </message>
    <message>
        <source>Proposed locations</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Vorgeschlagene Positionen</translation>
    </message>
    <message>
        <source>Public Domain</source>
        <extracomment>src/app/editor/KTCopyrightStatus.cpp</extracomment>
        <translation>Gemeinfrei</translation>
    </message>
    <message>
        <source>Push</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Schieben</translation>
    </message>
    <message>
        <source>Qt</source>
        <extracomment>src/platform/desktop/KTEngineVersions.cpp</extracomment>
        <translation>Qt</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>src/app/WaymarkAppDelegate.cpp</extracomment>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>REQUIRED</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>NÖTIG</translation>
    </message>
    <message>
        <source>Radius</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Radius:</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Radius:</translation>
    </message>
    <message>
        <source>Rating</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Bewertung</translation>
    </message>
    <message>
        <source>Read from primary file URL.</source>
        <extracomment>src/photo/KTPhotoReading.cpp</extracomment>
        <translation>Aus der Hauptdatei lesen.</translation>
    </message>
    <message>
        <source>Read from sidecar file URL.</source>
        <extracomment>src/photo/KTPhotoReading.cpp</extracomment>
        <translation>Aus der Sidecar-Datei lesen.</translation>
    </message>
    <message>
        <source>Read metadata from file</source>
        <extracomment>src/metadata/KTExifTool.cpp</extracomment>
        <translation>Metadaten aus Datei lesen</translation>
    </message>
    <message>
        <source>Read metadata from image file</source>
        <extracomment>src/photo/KTPhotoReading.cpp</extracomment>
        <translation>Metadaten aus Bilddatei lesen</translation>
    </message>
    <message>
        <source>Read metadata from xmp sidecar</source>
        <extracomment>src/photo/KTPhotoReading.cpp</extracomment>
        <translation>Metadaten aus XMP-Sidecar lesen</translation>
    </message>
    <message>
        <source>Recent Imports</source>
        <extracomment>src/platform/tracklibrary/KTSmartRecentImportsFile.cpp</extracomment>
        <translation>Letzte Importe</translation>
    </message>
    <message>
        <source>Recent Tracks</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Zuletzt verwendete Tracks</translation>
    </message>
    <message>
        <source>Redo</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Redo %@</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Wiederherstellen: %@</translation>
    </message>
    <message>
        <source>Region of the world in which the image was shot, usually the continent.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Region der Welt, in der das Bild aufgenommen wurde, meist der Kontinent.</translation>
    </message>
    <message>
        <source>Region of the world that the image shows, usually a continent. Separate several with a vertical bar.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Region der Welt, die das Bild zeigt, meist ein Kontinent. Trennen Sie mehrere durch senkrechte Striche.</translation>
    </message>
    <message>
        <source>Region, city or offset</source>
        <extracomment>src/ui/console/TimeZonePicker.cpp</extracomment>
        <translation>Region, Stadt oder Versatz</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove From List</source>
        <extracomment>src/export/KTPhotoExportOperationController.cpp</extracomment>
        <translation>Aus der Liste entfernen</translation>
    </message>
    <message>
        <source>Remove GPS Tags…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>GPS-Tags entfernen …</translation>
    </message>
    <message>
        <source>Remove GPS tags?</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>GPS-Tags entfernen?</translation>
    </message>
    <message>
        <source>Remove Image Direction Tags</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>Blickrichtung entfernen</translation>
    </message>
    <message>
        <source>Remove Image Direction…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Blickrichtung entfernen …</translation>
    </message>
    <message>
        <source>Remove Location Created Tags</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>Aufnahmeort entfernen</translation>
    </message>
    <message>
        <source>Remove Location Shown Tags</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Gezeigten Ort entfernen</translation>
    </message>
    <message>
        <source>Remove Location Shown…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Gezeigten Ort entfernen …</translation>
    </message>
    <message>
        <source>Remove Photos</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Fotos entfernen</translation>
    </message>
    <message>
        <source>Remove Tags</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Tags entfernen</translation>
    </message>
    <message>
        <source>Remove Template</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Vorlage entfernen</translation>
    </message>
    <message>
        <source>Remove Templates</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Vorlagen entfernen</translation>
    </message>
    <message>
        <source>Remove Tracks</source>
        <extracomment>src/platform/tracklibrary/KTTrackManagerWork.cpp</extracomment>
        <translation>Tracks entfernen</translation>
    </message>
    <message>
        <source>Remove image direction tag?</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>Blickrichtung entfernen?</translation>
    </message>
    <message>
        <source>Remove latitude &amp; longitude shown</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>Position des gezeigten Orts entfernen</translation>
    </message>
    <message>
        <source>Remove location shown tags?</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>Gezeigten Ort entfernen?</translation>
    </message>
    <message>
        <source>Removes the chosen group or field from the inspector</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Entfernt die gewählte Gruppe oder das gewählte Feld aus dem Inspektor</translation>
    </message>
    <message>
        <source>Removes the chosen template from the list; its file is deleted by “Done”</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Entfernt die gewählte Vorlage aus der Liste; ihre Datei wird mit „Fertig“ gelöscht</translation>
    </message>
    <message>
        <source>Removes the chosen tracks from the library; the files stay</source>
        <extracomment>src/ui/windows/TrackLibraryWindow.cpp</extracomment>
        <translation>Entfernt die gewählten Tracks aus der Bibliothek; die Dateien bleiben erhalten</translation>
    </message>
    <message>
        <source>Remove…</source>
        <extracomment>src/app/editor/KTMetadataCustomizationViewController.cpp</extracomment>
        <translation>Entfernen …</translation>
    </message>
    <message>
        <source>Replace</source>
        <extracomment>src/export/KTPhotoExportPluginManager.cpp</extracomment>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Replace an altitude that a photo has</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Vorhandene Höhe eines Fotos ersetzen</translation>
    </message>
    <message>
        <source>Replace an image direction that a photo has</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Vorhandene Blickrichtung eines Fotos ersetzen</translation>
    </message>
    <message>
        <source>Replace files that exist already</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>Bereits vorhandene Dateien ersetzen</translation>
    </message>
    <message>
        <source>Replace the names of the place shown that a photo has</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Vorhandene Namen zum gezeigten Ort ersetzen</translation>
    </message>
    <message>
        <source>Replace the names that a photo has</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Vorhandene Namen zum Aufnahmeort ersetzen</translation>
    </message>
    <message>
        <source>Replace this date. %1.</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Dieses Datum ersetzen. %1.</translation>
    </message>
    <message>
        <source>Require</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Nötig:</translation>
    </message>
    <message>
        <source>Restore Usual Columns</source>
        <extracomment>src/ui/photos/PhotoTableView.cpp</extracomment>
        <translation>Übliche Spalten wiederherstellen</translation>
    </message>
    <message>
        <source>Result</source>
        <extracomment>src/ui/windows/OperationLogModel.cpp</extracomment>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Reveal</source>
        <extracomment>src/ui/export/ExportListModel.cpp</extracomment>
        <translation>Aufdecken</translation>
    </message>
    <message>
        <source>Reveal in map</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Auf der Karte zeigen</translation>
    </message>
    <message>
        <source>Reverse Geocode</source>
        <extracomment>src/photo/KTPhotoLocation.cpp</extracomment>
        <translation>Ortsnamen ermitteln</translation>
    </message>
    <message>
        <source>Reverse Geocode Location Created</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Ortsnamen zum Aufnahmeort ermitteln</translation>
    </message>
    <message>
        <source>Reverse Geocode Location Shown</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Ortsnamen zum gezeigten Ort ermitteln</translation>
    </message>
    <message>
        <source>Reverse Geocoding</source>
        <extracomment>src/app/AppPreferencesWindowController.cpp</extracomment>
        <translation>Ortsnamen</translation>
    </message>
    <message>
        <source>Reverse geocode</source>
        <extracomment>src/photo/KTPhotoLocation.cpp</extracomment>
        <translation>Ortsnamen ermitteln</translation>
    </message>
    <message>
        <source>Reverse geocode location created</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Ortsnamen zum Aufnahmeort ermitteln</translation>
    </message>
    <message>
        <source>Reverse geocode location shown</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Ortsnamen zum gezeigten Ort ermitteln</translation>
    </message>
    <message>
        <source>Reverse geocoding photo %u of %u</source>
        <extracomment>src/collection/KTPhotoControllerGeocoding.cpp</extracomment>
        <translation>Ortsnamen für Foto %u von %u werden ermittelt</translation>
    </message>
    <message>
        <source>Revert</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Revert to Saved</source>
        <extracomment>src/app/editor/KTMetadataFieldArrayViewItem.cpp</extracomment>
        <translation>Auf gespeicherten Stand zurücksetzen</translation>
    </message>
    <message>
        <source>Rights</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Rechte</translation>
    </message>
    <message>
        <source>Ripple</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Wellen</translation>
    </message>
    <message>
        <source>Rotate</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Rows count from the south</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Zeilen zählen von Süden</translation>
    </message>
    <message>
        <source>Run with --help for more information.</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>Mehr darüber mit --help.</translation>
    </message>
    <message>
        <source>SEE ALSO</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>SIEHE AUCH</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <extracomment>src/platform/presentation/KTManualPage.cpp</extracomment>
        <translation>ÜBERSICHT</translation>
    </message>
    <message>
        <source>Sample latitude:</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Beispiel-Breitengrad:</translation>
    </message>
    <message>
        <source>Sample longitude:</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Beispiel-Längengrad:</translation>
    </message>
    <message>
        <source>Satellites</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Satelliten</translation>
    </message>
    <message>
        <source>Satellites that the position was measured with. Some receivers give their number, others list them with their identification.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Satelliten, mit denen die Position gemessen wurde. Manche Empfänger geben ihre Anzahl an, andere zählen sie mit ihrer Kennung auf.</translation>
    </message>
    <message>
        <source>Save Template</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Vorlage speichern</translation>
    </message>
    <message>
        <source>Save as</source>
        <extracomment>src/ui/window/WindowPresenter.cpp</extracomment>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Save as Text…</source>
        <extracomment>src/ui/windows/OperationLogWindow.cpp</extracomment>
        <translation>Als Text speichern …</translation>
    </message>
    <message>
        <source>Save changes</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Änderungen speichern</translation>
    </message>
    <message>
        <source>Save current…</source>
        <extracomment>src/app/editor/KTMetadataCustomizationViewController.cpp</extracomment>
        <translation>Aktuelle Anordnung speichern …</translation>
    </message>
    <message>
        <source>Save the groups and fields of the inspector as a template named:</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Gruppen und Felder des Inspektors als Vorlage speichern unter dem Namen:</translation>
    </message>
    <message>
        <source>Saved</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Saved date</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Gespeichertes Datum</translation>
    </message>
    <message>
        <source>Saved date:</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Gespeichertes Datum:</translation>
    </message>
    <message>
        <source>Saving changes this field in the photo library, too</source>
        <extracomment>src/ui/inspector/FieldRow.cpp</extracomment>
        <translation>Beim Speichern ändert sich dieses Feld auch in der Fotobibliothek</translation>
    </message>
    <message>
        <source>Saving to photo %u of %u</source>
        <extracomment>src/collection/KTBatchOperationController.cpp</extracomment>
        <translation>Foto %u von %u wird gespeichert</translation>
    </message>
    <message>
        <source>Saving writes this list into files only, not into the photo library</source>
        <extracomment>src/ui/inspector/FieldRow.cpp</extracomment>
        <translation>Beim Speichern kommt diese Liste nur in die Dateien, nicht in die Fotobibliothek</translation>
    </message>
    <message>
        <source>Scene Code</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Szenencode</translation>
    </message>
    <message>
        <source>Scroll</source>
        <extracomment>src/app/AppPreferencesWindowController.cpp</extracomment>
        <translation>Kartenbewegung</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search fields</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Felder suchen</translation>
    </message>
    <message>
        <source>Search tags</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Tags suchen</translation>
    </message>
    <message>
        <source>Search time zones</source>
        <extracomment>src/ui/console/TimeZonePicker.cpp</extracomment>
        <translation>Zeitzonen suchen</translation>
    </message>
    <message>
        <source>Second</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Sekunde</translation>
    </message>
    <message>
        <source>Seconds for a photo:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Sekunden je Foto:</translation>
    </message>
    <message>
        <source>Select All Photos</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Alle Fotos auswählen</translation>
    </message>
    <message>
        <source>Select Next Photo</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Nächstes Foto auswählen</translation>
    </message>
    <message>
        <source>Select Previous Photo</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Vorheriges Foto auswählen</translation>
    </message>
    <message>
        <source>Select a backup folder</source>
        <extracomment>src/app/AppPreferencesWindowController.cpp</extracomment>
        <translation>Sicherungsordner auswählen</translation>
    </message>
    <message>
        <source>Select photos in the main window; they show here.</source>
        <extracomment>src/ui/datetools/CoverFlowView.cpp</extracomment>
        <translation>Wählen Sie im Hauptfenster Fotos aus; sie erscheinen hier.</translation>
    </message>
    <message>
        <source>Select photos to see and edit their metadata.</source>
        <extracomment>src/ui/inspector/InspectorPane.cpp</extracomment>
        <translation>Wählen Sie Fotos aus, um ihre Metadaten zu sehen und zu bearbeiten.</translation>
    </message>
    <message>
        <source>Select the next photo after geotagging one</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Nach dem Verorten das nächste Foto auswählen</translation>
    </message>
    <message>
        <source>Selected photos</source>
        <extracomment>src/ui/datetools/CoverFlowView.cpp</extracomment>
        <translation>Ausgewählte Fotos</translation>
    </message>
    <message>
        <source>Selects the next photo as soon as this one is geotagged</source>
        <extracomment>src/ui/console/StandardPanel.cpp</extracomment>
        <translation>Wählt das nächste Foto aus, sobald dieses verortet ist</translation>
    </message>
    <message>
        <source>Sensitivity to which the camera was set, on the ISO scale. Doubling the number halves the light that is needed and adds noise.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>An der Kamera eingestellte Empfindlichkeit nach ISO. Die doppelte Zahl halbiert die nötige Lichtmenge und erhöht das Rauschen.</translation>
    </message>
    <message>
        <source>Sensor Height</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Sensorhöhe</translation>
    </message>
    <message>
        <source>Sensor Width</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Sensorbreite</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Serial number of the camera body. It tells two bodies of the same model apart, for example when their clocks differ.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Seriennummer des Kameragehäuses. An ihr lassen sich zwei Gehäuse desselben Modells unterscheiden, etwa wenn ihre Uhren voneinander abweichen.</translation>
    </message>
    <message>
        <source>Server:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Server:</translation>
    </message>
    <message>
        <source>Set</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Setzen</translation>
    </message>
    <message>
        <source>Set Date &amp; Time…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Datum und Uhrzeit setzen …</translation>
    </message>
    <message>
        <source>Set Location Shown</source>
        <extracomment>src/photo/KTPhotoLocation.cpp</extracomment>
        <translation>Gezeigten Ort setzen</translation>
    </message>
    <message>
        <source>Set fields by key and save</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>Felder anhand ihrer Schlüssel setzen und speichern</translation>
    </message>
    <message>
        <source>Set image direction</source>
        <extracomment>src/geotagging/KTGeotaggingControllerGestures.cpp</extracomment>
        <translation>Blickrichtung setzen</translation>
    </message>
    <message>
        <source>Set image location shown</source>
        <extracomment>src/geotagging/KTGeotaggingControllerGestures.cpp</extracomment>
        <translation>Gezeigten Ort setzen</translation>
    </message>
    <message>
        <source>Set the creation date</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>Erstellungsdatum setzen</translation>
    </message>
    <message>
        <source>Set the zone of the cameras' clocks, for later runs too, and show the photos' instants</source>
        <extracomment>src/cli/ZoneCommand.cpp</extracomment>
        <translation>Die Zeitzone der Kamerauhren setzen, auch für spätere Aufrufe, und die Zeitpunkte der Fotos anzeigen</translation>
    </message>
    <message>
        <source>Settings</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Settings folder</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Einstellungsordner</translation>
    </message>
    <message>
        <source>Settings of the slide show</source>
        <extracomment>src/ui/slideshow/SlideShowSettingsView.cpp</extracomment>
        <translation>Einstellungen der Diashow</translation>
    </message>
    <message>
        <source>Share</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>Shift</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Shift dates:</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Verschieben:</translation>
    </message>
    <message>
        <source>Shift every photo that is loaded, whatever is selected</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Alle geladenen Fotos verschieben, unabhängig von der Auswahl</translation>
    </message>
    <message>
        <source>Shift the digitized date, too</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Auch das Digitalisierungsdatum verschieben</translation>
    </message>
    <message>
        <source>Short name by which the image can be referred to, such as a file number or the name of a work. It identifies the image; use the description to tell what it shows.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Kurzer Name, mit dem man auf das Bild verweisen kann, etwa eine Archivnummer oder der Name eines Werks. Er kennzeichnet das Bild; was es zeigt, gehört in die Beschreibung.</translation>
    </message>
    <message>
        <source>Show Destination</source>
        <extracomment>src/export/KTPhotoExportOperationController.cpp</extracomment>
        <translation>Ziel anzeigen</translation>
    </message>
    <message>
        <source>Show Destination: %1</source>
        <extracomment>src/ui/export/ExportListModel.cpp</extracomment>
        <translation>Ziel anzeigen: %1</translation>
    </message>
    <message>
        <source>Show Export List</source>
        <extracomment>src/export/KTPhotoExportProgressWindowController.cpp</extracomment>
        <translation>Exportliste einblenden</translation>
    </message>
    <message>
        <source>Show all dates in the time zone of the camera clock</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Alle Zeiten in der Zeitzone der Kamerauhr anzeigen</translation>
    </message>
    <message>
        <source>Show file names below thumbnails</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Dateinamen unter Miniaturen anzeigen</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Im Dateimanager anzeigen</translation>
    </message>
    <message>
        <source>Show or hide the fields of this group</source>
        <extracomment>src/ui/inspector/InspectorGroup.cpp</extracomment>
        <translation>Felder dieser Gruppe ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Show or hide the geotagging console</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Geotagging-Konsole ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Show or hide the map</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Karte ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Show or hide the metadata of the selected photos</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Metadaten der ausgewählten Fotos ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Show photos as:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Fotos anzeigen als:</translation>
    </message>
    <message>
        <source>Show positions below thumbnails</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Positionen unter Miniaturen anzeigen</translation>
    </message>
    <message>
        <source>Show progress on standard error</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>Fortschritt auf der Standardfehlerausgabe anzeigen</translation>
    </message>
    <message>
        <source>Show the photos as a table</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Fotos als Tabelle anzeigen</translation>
    </message>
    <message>
        <source>Show the photos as thumbnails</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Fotos als Miniaturen anzeigen</translation>
    </message>
    <message>
        <source>Show the tracks near the photos</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Tracks nahe den Fotos anzeigen</translation>
    </message>
    <message>
        <source>Show the version</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>Version anzeigen</translation>
    </message>
    <message>
        <source>Show this help</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>Diese Hilfe anzeigen</translation>
    </message>
    <message>
        <source>Show what photos hold</source>
        <extracomment>src/cli/ReadCommand.cpp</extracomment>
        <translation>Anzeigen, was Fotos enthalten</translation>
    </message>
    <message>
        <source>Show:</source>
        <extracomment>src/ui/windows/OperationLogWindow.cpp</extracomment>
        <translation>Anzeigen:</translation>
    </message>
    <message>
        <source>Shows all flags on the map</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Zeigt alle Fähnchen auf der Karte</translation>
    </message>
    <message>
        <source>Shows all waypoints of the track library</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Zeigt alle Wegpunkte der Trackbibliothek</translation>
    </message>
    <message>
        <source>Shows more photos in the table, with smaller pictures</source>
        <extracomment>src/ui/photos/PhotoViewOptions.cpp</extracomment>
        <translation>Zeigt mehr Fotos in der Tabelle, mit kleineren Bildern</translation>
    </message>
    <message>
        <source>Shows only fields and groups with this in their name</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Zeigt nur Felder und Gruppen, deren Name dies enthält</translation>
    </message>
    <message>
        <source>Shows only photos with these words in file name, keywords, people or places</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Zeigt nur Fotos mit diesen Wörtern in Dateiname, Stichwörtern, Personen oder Orten</translation>
    </message>
    <message>
        <source>Shows or hides the proposed points</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Blendet die vorgeschlagenen Punkte ein oder aus</translation>
    </message>
    <message>
        <source>Shows the folder that holds this one</source>
        <extracomment>src/ui/windows/MediaBrowserWindow.cpp</extracomment>
        <translation>Zeigt den übergeordneten Ordner</translation>
    </message>
    <message>
        <source>Shows the inspector as arranged</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Zeigt den Inspektor in dieser Anordnung</translation>
    </message>
    <message>
        <source>Shows the track points around one photo</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Zeigt die Trackpunkte rund um ein einzelnes Foto</translation>
    </message>
    <message>
        <source>Shutter Speed</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Verschlusszeit</translation>
    </message>
    <message>
        <source>Sidecar</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Sidecar</translation>
    </message>
    <message>
        <source>Sidecars are XMP files beside the photos</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Sidecars sind XMP-Dateien neben den Fotos</translation>
    </message>
    <message>
        <source>Sidecars only</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Nur Sidecars</translation>
    </message>
    <message>
        <source>Sidecars where there are some, else image files</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Sidecars, wo vorhanden, sonst Bilddateien</translation>
    </message>
    <message>
        <source>Size of the thumbnails</source>
        <extracomment>src/ui/photos/PhotoPane.cpp</extracomment>
        <translation>Größe der Miniaturen</translation>
    </message>
    <message>
        <source>Size of the thumbnails:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Größe der Miniaturen:</translation>
    </message>
    <message>
        <source>Slide Show</source>
        <extracomment>src/export/slideshow/KTSlideShowExporterClass.cpp</extracomment>
        <translation>Diashow</translation>
    </message>
    <message>
        <source>Slide show controls</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Steuerung der Diashow</translation>
    </message>
    <message>
        <source>Slide show in progress</source>
        <extracomment>src/export/slideshow/KTSlideShowExporter.cpp</extracomment>
        <translation>Diashow läuft</translation>
    </message>
    <message>
        <source>Smallest zoom:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Kleinste Zoomstufe:</translation>
    </message>
    <message>
        <source>Some of the selected photos have a date already, which is replaced.</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Einige der ausgewählten Fotos haben bereits ein Datum, das ersetzt wird.</translation>
    </message>
    <message>
        <source>Something failed; the rest was done. What failed and why is in the output.</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>Etwas ist fehlgeschlagen, der Rest wurde erledigt. Was fehlschlug und warum, steht in der Ausgabe.</translation>
    </message>
    <message>
        <source>Source</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Source of the map</source>
        <extracomment>src/ui/map/MapPane.cpp</extracomment>
        <translation>Quelle der Karte</translation>
    </message>
    <message>
        <source>Source of the map: %1</source>
        <extracomment>src/ui/map/MapPane.cpp</extracomment>
        <translation>Quelle der Karte: %1</translation>
    </message>
    <message>
        <source>Source:</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Quelle:</translation>
    </message>
    <message>
        <source>Space</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Space that the image file takes, in decimal units: a megabyte (MB) is a million bytes.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Speicherplatz, den die Bilddatei belegt, in dezimalen Einheiten: Ein Megabyte (MB) ist eine Million Byte.</translation>
    </message>
    <message>
        <source>Speed</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Speed at which the receiver moved when the image was shot, in meters per second, converted from kilometers per hour, miles per hour or knots.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Geschwindigkeit, mit der sich der Empfänger bei der Aufnahme bewegte, in Metern pro Sekunde, umgerechnet aus Kilometern pro Stunde, Meilen pro Stunde oder Knoten.</translation>
    </message>
    <message>
        <source>Standard</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Starts from the date that the photo in front has now</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Geht vom jetzigen Datum des vorderen Fotos aus</translation>
    </message>
    <message>
        <source>State</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Bundesland</translation>
    </message>
    <message>
        <source>State or province of the photographer's business address. Leave it empty where addresses go without one.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Bundesland oder Provinz der Geschäftsadresse des Fotografen. Lassen Sie das Feld leer, wo Adressen ohne diese Angabe auskommen.</translation>
    </message>
    <message>
        <source>State shown</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Bundesland des gezeigten Orts</translation>
    </message>
    <message>
        <source>State where the photo was taken</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Bundesland des Aufnahmeorts</translation>
    </message>
    <message>
        <source>State, province or other part of a country that the image shows. Separate several with a vertical bar.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Bundesland, Provinz oder anderer Landesteil, den das Bild zeigt. Trennen Sie mehrere durch senkrechte Striche.</translation>
    </message>
    <message>
        <source>State, province, canton or other part of the country in which the image was shot.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Bundesland, Provinz, Kanton oder anderer Landesteil, in dem das Bild aufgenommen wurde.</translation>
    </message>
    <message>
        <source>State/Province</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Bundesland</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Status</translation>
    </message>
    <message>
        <source>Stay</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Unverändert lassen</translation>
    </message>
    <message>
        <source>Step</source>
        <extracomment>src/ui/windows/OperationLogModel.cpp</extracomment>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Stop Export &amp; Quit</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Export stoppen und beenden</translation>
    </message>
    <message>
        <source>Street and number, or post office box, at which the photographer can be reached for business; the company's name may come first.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Straße und Hausnummer oder Postfach, unter denen der Fotograf geschäftlich zu erreichen ist; der Firmenname kann davorstehen.</translation>
    </message>
    <message>
        <source>Sub-domains:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Subdomains:</translation>
    </message>
    <message>
        <source>Subject Code</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Themencode</translation>
    </message>
    <message>
        <source>Sublocation</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Genauer Ort</translation>
    </message>
    <message>
        <source>Swipe</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Wischen</translation>
    </message>
    <message>
        <source>Synchronize Metadata</source>
        <extracomment>src/photo/KTPhotoChanges.cpp</extracomment>
        <translation>Metadaten abgleichen</translation>
    </message>
    <message>
        <source>Synchronize metadata</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Metadaten abgleichen</translation>
    </message>
    <message>
        <source>Table</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>Tag</source>
        <extracomment>src/ui/windows/TagDetailsModel.cpp</extracomment>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Tag Details</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Tag-Details</translation>
    </message>
    <message>
        <source>Tags</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Tags</translation>
    </message>
    <message>
        <source>Tags:</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Tags:</translation>
    </message>
    <message>
        <source>Take from Photo in Front</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Vom vorderen Foto übernehmen</translation>
    </message>
    <message>
        <source>Take the last keyword as the event</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Letztes Stichwort als Ereignis verwenden</translation>
    </message>
    <message>
        <source>Take the same names for the place shown</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Dieselben Namen für den gezeigten Ort verwenden</translation>
    </message>
    <message>
        <source>Takes the shifts back: the photos get the dates that their files hold</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Nimmt die Verschiebungen zurück: Die Fotos erhalten die Zeiten, die in ihren Dateien stehen</translation>
    </message>
    <message>
        <source>Telephone</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Telephone number for business, in international form with plus sign and country code. Separate several numbers with a comma.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Geschäftliche Telefonnummer in internationaler Schreibweise mit Pluszeichen und Landesvorwahl. Trennen Sie mehrere Nummern durch Kommas.</translation>
    </message>
    <message>
        <source>Template name</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Name der Vorlage</translation>
    </message>
    <message>
        <source>Templates</source>
        <extracomment>src/app/editor/KTMetadataCustomizationViewController.cpp</extracomment>
        <translation>Vorlagen</translation>
    </message>
    <message>
        <source>Templates that you have saved</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Vorlagen, die Sie gespeichert haben</translation>
    </message>
    <message>
        <source>Templates:</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Vorlagen:</translation>
    </message>
    <message>
        <source>Terms under which the image may be used, in plain words or by the name of a license.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Bedingungen, unter denen das Bild verwendet werden darf, in einfachen Worten oder als Name einer Lizenz.</translation>
    </message>
    <message>
        <source>Text</source>
        <extracomment>src/ui/windows/OperationLogModel.cpp</extracomment>
        <translation>Text</translation>
    </message>
    <message>
        <source>The address of the map tiles contains {key}, but no key is set.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>Die Adresse der Kartenkacheln enthält {key}, aber es ist kein Schlüssel eingetragen.</translation>
    </message>
    <message>
        <source>The address of the map tiles contains {s}, but no sub-domains are set.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>Die Adresse der Kartenkacheln enthält {s}, aber es sind keine Subdomains eingetragen.</translation>
    </message>
    <message>
        <source>The address of the map tiles contains “{%@}”, which means nothing.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>Die Adresse der Kartenkacheln enthält „{%@}“, was keine Bedeutung hat.</translation>
    </message>
    <message>
        <source>The address of the map tiles must contain {z}, {x} and {y}.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>Die Adresse der Kartenkacheln muss {z}, {x} und {y} enthalten.</translation>
    </message>
    <message>
        <source>The arguments are wrong; nothing was read or written.</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>Die Argumente sind falsch; nichts wurde gelesen oder geschrieben.</translation>
    </message>
    <message>
        <source>The checked values replace those of the selected photos</source>
        <extracomment>src/ui/inspector/PasteTagsSheet.cpp</extracomment>
        <translation>Die angekreuzten Werte ersetzen die der ausgewählten Fotos</translation>
    </message>
    <message>
        <source>The chosen Image::ExifTool cannot be used.</source>
        <extracomment>src/ui/main.cpp</extracomment>
        <translation>Das gewählte Image::ExifTool kann nicht verwendet werden.</translation>
    </message>
    <message>
        <source>The clipboard holds no coordinates.</source>
        <extracomment>src/app/WaymarkAppControllerCommands.cpp</extracomment>
        <translation>Die Zwischenablage enthält keine Koordinaten.</translation>
    </message>
    <message>
        <source>The clock was fast: the right dates are earlier</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Die Uhr ging vor: Die richtigen Zeiten liegen früher</translation>
    </message>
    <message>
        <source>The clock was slow: the right dates are later</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Die Uhr ging nach: Die richtigen Zeiten liegen später</translation>
    </message>
    <message>
        <source>The creation date of “%@” cannot be kept: %@</source>
        <extracomment>src/platform/desktop/KTFileDates.cpp</extracomment>
        <translation>Das Erstellungsdatum von „%@“ kann nicht beibehalten werden: %@</translation>
    </message>
    <message>
        <source>The date of the photo in front, as its file holds it</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Das Datum des vorderen Fotos, wie es in seiner Datei steht</translation>
    </message>
    <message>
        <source>The date that the photos get</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Das Datum, das die Fotos erhalten</translation>
    </message>
    <message>
        <source>The date to copy: original, digitized, creation</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>Das zu kopierende Datum: original, digitized, creation</translation>
    </message>
    <message>
        <source>The demo trip could not be made.</source>
        <extracomment>src/ui/window/DemoTripCommand.cpp</extracomment>
        <translation>Der Demo-Ausflug konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The desktop application of Waymark. It opens the given photos, folders and tracks. Where it runs already, the running one opens them.</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>Das Desktopprogramm Waymark. Es öffnet die angegebenen Fotos, Ordner und Tracks. Läuft es bereits, werden sie dort geöffnet.</translation>
    </message>
    <message>
        <source>The export was not finished.</source>
        <extracomment>src/export/KTPhotoExportOperationController.cpp</extracomment>
        <translation>Der Export wurde nicht abgeschlossen.</translation>
    </message>
    <message>
        <source>The file cannot be made.</source>
        <extracomment>src/export/KTPhotoFileExport.cpp</extracomment>
        <translation>Die Datei kann nicht erstellt werden.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <extracomment>src/app/thumbnails/ThumbnailDecoder.cpp</extracomment>
        <translation>Die Datei kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The file could not be read to its end: %@</source>
        <extracomment>src/metadata/KTExifTool.cpp</extracomment>
        <translation>Die Datei konnte nicht bis zum Ende gelesen werden: %@</translation>
    </message>
    <message>
        <source>The file does not hold these values as they were given: %@</source>
        <extracomment>src/photo/KTWrittenValues.cpp</extracomment>
        <translation>Die Datei enthält diese Werte nicht so, wie sie angegeben wurden: %@</translation>
    </message>
    <message>
        <source>The file had changed since it was read.</source>
        <extracomment>src/photo/KTPhotoRefreshing.cpp</extracomment>
        <translation>Die Datei hatte sich seit dem Lesen geändert.</translation>
    </message>
    <message>
        <source>The file holds no picture that can be shown.</source>
        <extracomment>src/app/thumbnails/KTThumbnailService.cpp</extracomment>
        <translation>Die Datei enthält kein Bild, das angezeigt werden kann.</translation>
    </message>
    <message>
        <source>The file system has no extended attributes. All metadata is safe there.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Das Dateisystem kennt keine erweiterten Attribute. Alle Metadaten sind dort trotzdem sicher.</translation>
    </message>
    <message>
        <source>The file there is a photo of your collection.</source>
        <extracomment>src/export/KTPhotoExportManagerOperation.cpp</extracomment>
        <translation>Die dortige Datei ist ein Foto Ihrer Sammlung.</translation>
    </message>
    <message>
        <source>The folder %@ cannot be made.</source>
        <extracomment>src/app/editor/KTUserTemplates.cpp</extracomment>
        <translation>Der Ordner %@ kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The folder or file to export to</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>Der Ordner oder die Datei, wohin exportiert wird</translation>
    </message>
    <message>
        <source>The following argument was not expected: %@</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>Dieses Argument wurde nicht erwartet: %@</translation>
    </message>
    <message>
        <source>The following arguments were not expected: %@</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>Diese Argumente wurden nicht erwartet: %@</translation>
    </message>
    <message>
        <source>The image file still holds what was cleared: %@</source>
        <extracomment>src/photo/KTPhotoRefreshing.cpp</extracomment>
        <translation>Die Bilddatei enthält noch, was gelöscht wurde: %@</translation>
    </message>
    <message>
        <source>The language: English, French, German or Spanish</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>Die Sprache: Deutsch, Englisch, Französisch oder Spanisch</translation>
    </message>
    <message>
        <source>The list of exports cannot be kept: %@ cannot be opened (%@).</source>
        <extracomment>src/export/KTExportHistoryStore.cpp</extracomment>
        <translation>Die Exportliste kann nicht aufbewahrt werden: %@ kann nicht geöffnet werden (%@).</translation>
    </message>
    <message>
        <source>The list of places cannot be read.</source>
        <extracomment>src/platform/gazetteer/KTOfflineReverseGeocoder.cpp</extracomment>
        <translation>Die Liste der Orte kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <extracomment>src/ui/windows/OperationLogWindow.cpp</extracomment>
        <translation>Das Protokoll konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>The modification date could not be read.</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>Das Änderungsdatum konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The modification date of “%@” cannot be set: %@</source>
        <extracomment>src/platform/desktop/KTFileDates.cpp</extracomment>
        <translation>Das Änderungsdatum von „%@“ kann nicht gesetzt werden: %@</translation>
    </message>
    <message>
        <source>The name under which the menu Templates lists it</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Der Name, unter dem sie im Menü „Vorlagen“ steht</translation>
    </message>
    <message>
        <source>The neighbours must lie no farther apart</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Die Nachbarpunkte dürfen nicht weiter als dies auseinanderliegen</translation>
    </message>
    <message>
        <source>The new file could not be read back: %@</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>Die neue Datei konnte nicht wieder gelesen werden: %@</translation>
    </message>
    <message>
        <source>The offline map cannot be read from %@: %@</source>
        <extracomment>src/platform/cartography/drawing/KTBaseMapStore.cpp</extracomment>
        <translation>Die Offline-Karte kann nicht aus %@ gelesen werden: %@</translation>
    </message>
    <message>
        <source>The photo can be geotagged.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Das Foto kann verortet werden.</translation>
    </message>
    <message>
        <source>The photo has a location already.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Das Foto hat bereits eine Position.</translation>
    </message>
    <message>
        <source>The photo has no capture date.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Das Foto hat kein Aufnahmedatum.</translation>
    </message>
    <message>
        <source>The photo is more than %@ from the nearest track point, and not between points less than %@ apart.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Das Foto liegt mehr als %@ vom nächsten Trackpunkt entfernt und nicht zwischen Punkten, die weniger als %@ auseinanderliegen.</translation>
    </message>
    <message>
        <source>The photo is more than %@ from the nearest track point.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Das Foto liegt mehr als %@ vom nächsten Trackpunkt entfernt.</translation>
    </message>
    <message>
        <source>The photo is not between points less than %@ apart.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Das Foto liegt nicht zwischen Punkten, die weniger als %@ auseinanderliegen.</translation>
    </message>
    <message>
        <source>The photo was edited before the names of the place were known, so this was not done.</source>
        <extracomment>src/photo/KTPhotoLocation.cpp</extracomment>
        <translation>Das Foto wurde bearbeitet, bevor die Ortsnamen bekannt waren; deshalb wurde dies nicht ausgeführt.</translation>
    </message>
    <message>
        <source>The photo's files do not hold the value of “%@”.</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>Die Dateien des Fotos enthalten nicht den Wert von „%@“.</translation>
    </message>
    <message>
        <source>The photos that are finished stay.</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Die bereits fertigen Fotos bleiben erhalten.</translation>
    </message>
    <message>
        <source>The photos' times are in</source>
        <extracomment>src/ui/console/CameraClockView.cpp</extracomment>
        <translation>Zeitzone der Fotozeiten:</translation>
    </message>
    <message>
        <source>The photos' times are read as times of this zone:</source>
        <extracomment>src/ui/console/TimeZonePicker.cpp</extracomment>
        <translation>Die Zeiten der Fotos gelten als Zeiten dieser Zone:</translation>
    </message>
    <message>
        <source>The picture to write</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>Das zu schreibende Bild</translation>
    </message>
    <message>
        <source>The picture's colours cannot be converted: its colour profile is not one for red, green and blue.</source>
        <extracomment>src/export/KTPhotoFileExport.cpp</extracomment>
        <translation>Die Farben des Bildes können nicht umgewandelt werden: Sein Farbprofil ist kein RGB-Profil.</translation>
    </message>
    <message>
        <source>The plug-in cannot be used.</source>
        <extracomment>src/export/KTPluginError.cpp</extracomment>
        <translation>Das Plug-in kann nicht verwendet werden.</translation>
    </message>
    <message>
        <source>The plug-in, as the menu "Share" names it</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>Das Plug-in, wie es im Menü „Teilen“ heißt</translation>
    </message>
    <message>
        <source>The positions are in the photos now. Try next:</source>
        <extracomment>src/cli/DemoCommand.cpp</extracomment>
        <translation>Die Positionen stehen jetzt in den Fotos. Probieren Sie als Nächstes:</translation>
    </message>
    <message>
        <source>The privacy zone “%@” of the settings cannot be read.</source>
        <extracomment>src/export/KTPhotoExportManagerOperation.cpp</extracomment>
        <translation>Die Privatzone „%@“ der Einstellungen kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The program is about to end.</source>
        <extracomment>src/photo/KTPhotoRefreshing.cpp</extracomment>
        <translation>Das Programm wird gerade beendet.</translation>
    </message>
    <message>
        <source>The search for places was cancelled.</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>Die Suche nach Orten wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The selected photos: arrow keys, the wheel or a click bring another one to the front</source>
        <extracomment>src/ui/datetools/CoverFlowView.cpp</extracomment>
        <translation>Die ausgewählten Fotos: Pfeiltasten, Mausrad oder ein Klick holen ein anderes nach vorn</translation>
    </message>
    <message>
        <source>The server is asked only for photos that you geotag</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Der Server wird nur zu Fotos gefragt, die Sie verorten</translation>
    </message>
    <message>
        <source>The size of the map tiles must lie between 64 and 1024.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>Die Größe der Kartenkacheln muss zwischen 64 und 1024 liegen.</translation>
    </message>
    <message>
        <source>The standard mode shows the track points around one photo.</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Der Standardmodus zeigt die Trackpunkte rund um ein einzelnes Foto.</translation>
    </message>
    <message>
        <source>The tag key "%@" contains a quote or a backslash.</source>
        <extracomment>src/metadata/KTExifTool.cpp</extracomment>
        <translation>Der Tag-Schlüssel „%@“ enthält ein Anführungszeichen oder einen Backslash.</translation>
    </message>
    <message>
        <source>The template could not be saved.</source>
        <extracomment>src/app/editor/KTMetadataCustomizationViewController.cpp</extracomment>
        <translation>Die Vorlage konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>The texts typed before cannot be offered: %@ cannot be opened (%@).</source>
        <extracomment>src/platform/defaults/KTComboBoxStoreController.cpp</extracomment>
        <translation>Früher eingegebene Texte können nicht angeboten werden: %@ kann nicht geöffnet werden (%@).</translation>
    </message>
    <message>
        <source>The time zone in which the date is given</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Die Zeitzone, in der das Datum angegeben ist</translation>
    </message>
    <message>
        <source>The time zone of both dates</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Die Zeitzone beider Zeitangaben</translation>
    </message>
    <message>
        <source>The time zone to which the camera's clock was set</source>
        <extracomment>src/ui/console/CameraClockView.cpp</extracomment>
        <translation>Die Zeitzone, auf die die Kamerauhr gestellt war</translation>
    </message>
    <message>
        <source>The track crosses the 180° meridian here; the point lies on the long way round the earth. Better take a track point beside it.</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>Der Track kreuzt hier den 180. Längengrad; der Punkt liegt auf dem langen Weg um die Erde. Nehmen Sie besser einen Trackpunkt daneben.</translation>
    </message>
    <message>
        <source>The track library</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>Die Trackbibliothek</translation>
    </message>
    <message>
        <source>The track library %@ cannot be opened: %@</source>
        <extracomment>src/platform/tracklibrary/KTTrackStore.cpp</extracomment>
        <translation>Die Trackbibliothek %@ kann nicht geöffnet werden: %@</translation>
    </message>
    <message>
        <source>The track library cannot be used.</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Die Trackbibliothek kann nicht verwendet werden.</translation>
    </message>
    <message>
        <source>The track library cannot be used: %@</source>
        <extracomment>src/platform/tracklibrary/KTTrackStore.cpp</extracomment>
        <translation>Die Trackbibliothek kann nicht verwendet werden: %@</translation>
    </message>
    <message>
        <source>The track library could not be changed.</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerControllerCommands.cpp</extracomment>
        <translation>Die Trackbibliothek konnte nicht geändert werden.</translation>
    </message>
    <message>
        <source>The track library file (":memory:" for none kept)</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>Die Datei der Trackbibliothek (":memory:": nichts aufbewahren)</translation>
    </message>
    <message>
        <source>The track points before and after it are %@ apart.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Die Trackpunkte davor und danach liegen %@ auseinander.</translation>
    </message>
    <message>
        <source>The tracks could not be exported.</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerControllerCommands.cpp</extracomment>
        <translation>Die Tracks konnten nicht exportiert werden.</translation>
    </message>
    <message>
        <source>The tracks could not be written.</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerControllerCommands.cpp</extracomment>
        <translation>Die Tracks konnten nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The zooms of the map tiles must lie between 0 and %@, the minimum first.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>Die Zoomstufen der Kartenkacheln müssen zwischen 0 und %@ liegen, die kleinste zuerst.</translation>
    </message>
    <message>
        <source>There are no photos in this folder.</source>
        <extracomment>src/ui/windows/MediaBrowserWindow.cpp</extracomment>
        <translation>In diesem Ordner gibt es keine Fotos.</translation>
    </message>
    <message>
        <source>There are no track points.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Es gibt keine Trackpunkte.</translation>
    </message>
    <message>
        <source>There is no display. Start it in a desktop session, or set DISPLAY; without one,
the command line does the same work: waymark-cli --help
</source>
        <extracomment>src/ui/main.cpp</extracomment>
        <translation>Es gibt keine Anzeige. Starten Sie das Programm in einer Desktopsitzung oder setzen
Sie DISPLAY; ohne Anzeige leistet die Befehlszeile dasselbe: waymark-cli --help
</translation>
    </message>
    <message>
        <source>There is no option %@.</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>Es gibt keine Option %@.</translation>
    </message>
    <message>
        <source>There is no photo at “%@”.</source>
        <extracomment>src/collection/KTPhotoFileSearch.cpp</extracomment>
        <translation>Unter „%@“ gibt es kein Foto.</translation>
    </message>
    <message>
        <source>There is no place to keep the creation date of “%@”: %@</source>
        <extracomment>src/platform/desktop/KTFileDates.cpp</extracomment>
        <translation>Es gibt keine Stelle, an der das Erstellungsdatum von „%@“ aufbewahrt werden kann: %@</translation>
    </message>
    <message>
        <source>There is no setting named "%@".</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>Es gibt keine Einstellung namens „%@“.</translation>
    </message>
    <message>
        <source>There is no track %@.</source>
        <extracomment>src/platform/tracklibrary/KTTrackStore.cpp</extracomment>
        <translation>Es gibt keinen Track %@.</translation>
    </message>
    <message>
        <source>There is none.</source>
        <extracomment>src/ui/console/StandardPanel.cpp</extracomment>
        <translation>Nicht vorhanden.</translation>
    </message>
    <message>
        <source>There is not enough memory for the picture.</source>
        <extracomment>src/export/KTPhotoFileExport.cpp</extracomment>
        <translation>Der Arbeitsspeicher reicht für das Bild nicht aus.</translation>
    </message>
    <message>
        <source>This cannot be typed.</source>
        <extracomment>src/app/editor/KTFieldText.cpp</extracomment>
        <translation>Dies kann nicht eingegeben werden.</translation>
    </message>
    <message>
        <source>This field has changes that are not saved. Its menu reverts them.</source>
        <extracomment>src/ui/inspector/FieldLabel.cpp</extracomment>
        <translation>Dieses Feld hat ungespeicherte Änderungen. Über sein Menü lassen sie sich zurücksetzen.</translation>
    </message>
    <message>
        <source>This file could not be shown before and has not changed since.</source>
        <extracomment>src/app/thumbnails/KTThumbnailService.cpp</extracomment>
        <translation>Diese Datei konnte schon früher nicht angezeigt werden und hat sich seitdem nicht geändert.</translation>
    </message>
    <message>
        <source>This is no latitude, such as 46.05108 or 46° 3′ N.</source>
        <extracomment>src/app/editor/KTMetadataFieldLonLatArrayViewItem.cpp</extracomment>
        <translation>Dies ist kein Breitengrad wie 46.05108 oder 46° 3′ N.</translation>
    </message>
    <message>
        <source>This is no longitude, such as 14.50513 or 14° 30′ E.</source>
        <extracomment>src/app/editor/KTMetadataFieldLonLatArrayViewItem.cpp</extracomment>
        <translation>Dies ist kein Längengrad wie 14.50513 oder 14° 30′ E.</translation>
    </message>
    <message>
        <source>This is not a number.</source>
        <extracomment>src/app/editor/KTFieldText.cpp</extracomment>
        <translation>Dies ist keine Zahl.</translation>
    </message>
    <message>
        <source>This is not a position.</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Dies ist keine Position.</translation>
    </message>
    <message>
        <source>This photo is not one of the export.</source>
        <extracomment>src/export/KTPhotoExportManagerOperation.cpp</extracomment>
        <translation>Dieses Foto gehört nicht zum Export.</translation>
    </message>
    <message>
        <source>This position does not exist.</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>Diese Position gibt es nicht.</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Miniaturen</translation>
    </message>
    <message>
        <source>Tile size:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Kachelgröße:</translation>
    </message>
    <message>
        <source>Tiles of a server, shown once it is chosen on the map</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Kacheln eines Servers, zu sehen, sobald er auf der Karte gewählt ist</translation>
    </message>
    <message>
        <source>Tiles:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Kacheln:</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>src/ui/windows/OperationLogModel.cpp</extracomment>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Time Digitized</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Digitalisierungszeit</translation>
    </message>
    <message>
        <source>Time There</source>
        <extracomment>src/ui/console/TimeZoneList.cpp</extracomment>
        <translation>Zeit dort</translation>
    </message>
    <message>
        <source>Time Zone</source>
        <extracomment>src/ui/console/TimeZoneList.cpp</extracomment>
        <translation>Zeitzone</translation>
    </message>
    <message>
        <source>Time Zone of the Camera Clock</source>
        <extracomment>src/ui/console/TimeZonePicker.cpp</extracomment>
        <translation>Zeitzone der Kamerauhr</translation>
    </message>
    <message>
        <source>Time for which the sensor or film was exposed to light.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Zeit, für die der Sensor oder Film dem Licht ausgesetzt war.</translation>
    </message>
    <message>
        <source>Time to the nearest track point</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Zeit bis zum nächsten Trackpunkt</translation>
    </message>
    <message>
        <source>Time weighted average point</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>Zeitgewichtetes Mittel</translation>
    </message>
    <message>
        <source>Time zone: %1</source>
        <extracomment>src/ui/console/CameraClockView.cpp</extracomment>
        <translation>Zeitzone: %1</translation>
    </message>
    <message>
        <source>Time zones</source>
        <extracomment>src/ui/console/TimeZonePicker.cpp</extracomment>
        <translation>Zeitzonen</translation>
    </message>
    <message>
        <source>Tip: Edit the distance criteria or even manually geotag the photos.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>Tipp: Ändern Sie das Entfernungskriterium oder verorten Sie die Fotos von Hand.</translation>
    </message>
    <message>
        <source>Tip: Edit the distance or time criteria; or manually geotag the photos.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>Tipp: Ändern Sie das Entfernungs- oder das Zeitkriterium oder verorten Sie die Fotos von Hand.</translation>
    </message>
    <message>
        <source>Tip: Try adjusting the camera's time zone.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>Tipp: Versuchen Sie, die Zeitzone der Kamera anzupassen.</translation>
    </message>
    <message>
        <source>Tip: Use the date &amp; time setter to add a time to the photo.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>Tipp: Geben Sie dem Foto mit „Datum und Uhrzeit setzen“ eine Zeit.</translation>
    </message>
    <message>
        <source>Title</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Titel</translation>
    </message>
    <message>
        <source>To the map's centre:</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Kartenmitte:</translation>
    </message>
    <message>
        <source>To the waypoint:</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Wegpunkt:</translation>
    </message>
    <message>
        <source>To: %1</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Nach: %1</translation>
    </message>
    <message>
        <source>Track</source>
        <extracomment>src/ui/map/MapItems.cpp</extracomment>
        <translation>Track</translation>
    </message>
    <message>
        <source>Track Direction</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Kurs</translation>
    </message>
    <message>
        <source>Track Library</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Trackbibliothek</translation>
    </message>
    <message>
        <source>Track files</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>Trackdateien</translation>
    </message>
    <message>
        <source>Track formats</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Trackformate</translation>
    </message>
    <message>
        <source>Track library</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Trackbibliothek</translation>
    </message>
    <message>
        <source>Track point %@ away</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Trackpunkt %@ entfernt</translation>
    </message>
    <message>
        <source>Tracks</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerControllerCommands.cpp</extracomment>
        <translation>Tracks</translation>
    </message>
    <message>
        <source>Tracks and waypoints</source>
        <extracomment>src/ui/windows/TrackLibraryWindow.cpp</extracomment>
        <translation>Tracks und Wegpunkte</translation>
    </message>
    <message>
        <source>Tracks in use</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Verwendete Tracks</translation>
    </message>
    <message>
        <source>Tracks that you add now are kept until you quit. Your library stays as it is.</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Tracks, die Sie jetzt hinzufügen, bleiben bis zum Beenden verfügbar. Ihre Bibliothek bleibt unverändert.</translation>
    </message>
    <message>
        <source>Tracks…</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Tracks …</translation>
    </message>
    <message>
        <source>Transition:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Übergang:</translation>
    </message>
    <message>
        <source>Try</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Testen</translation>
    </message>
    <message>
        <source>Try the Demo Trip</source>
        <extracomment>src/ui/photos/EmptyPhotosView.cpp</extracomment>
        <translation>Demo-Ausflug ausprobieren</translation>
    </message>
    <message numerus="yes">
        <source>Unable To Geotag %d Photos</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d Foto nicht zu verorten</numerusform>
            <numerusform>%d Fotos nicht zu verorten</numerusform>
        </translation>
    </message>
    <message>
        <source>Unable to set the photos metadata using ScriptingBridge</source>
        <extracomment>src/photo/KTiPhotoTool.cpp</extracomment>
        <translation>Die Metadaten des Fotos konnten nicht über ScriptingBridge gesetzt werden</translation>
    </message>
    <message>
        <source>Undefined</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>Nicht definiert</translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Undo %@</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Rückgängig: %@</translation>
    </message>
    <message>
        <source>Undo Typing</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Eingabe rückgängig machen</translation>
    </message>
    <message>
        <source>Units:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Einheiten:</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>src/app/editor/KTCopyrightStatus.cpp</extracomment>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Untitled</source>
        <extracomment>src/app/editor/KTUserTemplates.cpp</extracomment>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>Untitled template</source>
        <extracomment>src/app/editor/KTMetadataCustomizationViewController.cpp</extracomment>
        <translation>Unbenannte Vorlage</translation>
    </message>
    <message>
        <source>Urgency</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Dringlichkeit</translation>
    </message>
    <message>
        <source>Usage</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>Aufruf</translation>
    </message>
    <message>
        <source>Usage Terms</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Nutzungsbedingungen</translation>
    </message>
    <message>
        <source>Usage: %@</source>
        <extracomment>src/platform/presentation/KTManualPage.cpp</extracomment>
        <translation>Aufruf: %@</translation>
    </message>
    <message>
        <source>Use Batch Mode</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Stapelmodus verwenden</translation>
    </message>
    <message>
        <source>Use Time Zone</source>
        <extracomment>src/ui/console/TimeZonePicker.cpp</extracomment>
        <translation>Zeitzone verwenden</translation>
    </message>
    <message>
        <source>Use the distance criterion</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Entfernungskriterium verwenden</translation>
    </message>
    <message>
        <source>Use the place between the two track points that the time tells</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Die Stelle zwischen den beiden Trackpunkten verwenden, die sich aus der Zeit ergibt</translation>
    </message>
    <message>
        <source>Use the time criterion</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Zeitkriterium verwenden</translation>
    </message>
    <message>
        <source>Use the track point that is nearest in time</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Den zeitlich nächsten Trackpunkt verwenden</translation>
    </message>
    <message>
        <source>Use this Image::ExifTool library folder</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>Diesen Bibliotheksordner von Image::ExifTool verwenden</translation>
    </message>
    <message>
        <source>Use this settings file instead of the user's</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>Diese Einstellungsdatei statt der des Benutzers verwenden</translation>
    </message>
    <message>
        <source>Value</source>
        <extracomment>src/ui/inspector/PasteTagsSheet.cpp</extracomment>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Values of %1</source>
        <extracomment>src/ui/inspector/LineFieldEditor.cpp</extracomment>
        <translation>Werte von %1</translation>
    </message>
    <message>
        <source>Version of the EXIF standard that the camera followed, in four digits: 0232 stands for EXIF 2.32.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Version des EXIF-Standards, an die sich die Kamera hielt, in vier Ziffern: 0232 steht für EXIF 2.32.</translation>
    </message>
    <message>
        <source>Version of the EXIF standard's GPS part that the position data follows. It is written whenever an image is geotagged.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Version des GPS-Teils des EXIF-Standards, an die sich die Positionsdaten halten. Sie wird geschrieben, sobald ein Bild verortet wird.</translation>
    </message>
    <message>
        <source>View</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>View Options</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Darstellungsoptionen</translation>
    </message>
    <message>
        <source>Warning</source>
        <extracomment>src/ui/windows/OperationLogModel.cpp</extracomment>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Waves break over the lighthouse of La Jument during the winter storm.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Im Wintersturm brechen Wellen über den Leuchtturm La Jument.</translation>
    </message>
    <message>
        <source>Way in which the camera measured the light: over the whole frame, around its center or at a single spot.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Art, wie die Kamera das Licht maß: über das ganze Bild, um die Bildmitte herum oder an einem einzelnen Punkt.</translation>
    </message>
    <message>
        <source>Waymark</source>
        <extracomment>src/ui/window/MainWindow.cpp</extracomment>
        <translation>Waymark</translation>
    </message>
    <message>
        <source>Waymark %1</source>
        <extracomment>src/ui/windows/AboutBox.cpp</extracomment>
        <translation>Waymark %1</translation>
    </message>
    <message>
        <source>Waymark geotags photos from GPS tracks and edits their metadata.</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>Waymark verortet Fotos anhand von GPS-Tracks und bearbeitet ihre Metadaten.</translation>
    </message>
    <message>
        <source>Waymark requires Qt 6.4 or later</source>
        <extracomment>src/app/WaymarkAppDelegate.cpp</extracomment>
        <translation>Waymark benötigt Qt 6.4 oder neuer</translation>
    </message>
    <message>
        <source>Waymark requires a newer version of Qt</source>
        <extracomment>src/app/WaymarkAppDelegate.cpp</extracomment>
        <translation>Waymark benötigt eine neuere Version von Qt</translation>
    </message>
    <message>
        <source>Waymark was ended while it wrote to photos.</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Waymark wurde beendet, während es in Fotos schrieb.</translation>
    </message>
    <message>
        <source>Waymark's own data, offline</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Waymarks eigene Daten, offline</translation>
    </message>
    <message>
        <source>Waypoint</source>
        <extracomment>src/ui/windows/TrackListModel.cpp</extracomment>
        <translation>Wegpunkt</translation>
    </message>
    <message>
        <source>Waypoints…</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Liste …</translation>
    </message>
    <message>
        <source>Web URL</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Webadresse</translation>
    </message>
    <message>
        <source>Web address of a certificate that proves the rights in the image, such as its entry at a rights registry.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Webadresse eines Zertifikats, das die Rechte am Bild belegt, etwa sein Eintrag in einem Rechteregister.</translation>
    </message>
    <message>
        <source>Web address of a page that states who owns the image and how it may be used. Search engines link to it from their image results.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Webadresse einer Seite, die angibt, wem das Bild gehört und wie es verwendet werden darf. Suchmaschinen verlinken sie in ihren Bildergebnissen.</translation>
    </message>
    <message>
        <source>Web address of the photographer's own site or portfolio, in full. Separate several addresses with a comma.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Vollständige Webadresse der Website oder des Portfolios des Fotografen. Trennen Sie mehrere Adressen durch Kommas.</translation>
    </message>
    <message>
        <source>What %@ answered is not a place. Is it a Nominatim server?</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>Die Antwort von %@ ist kein Ort. Ist es ein Nominatim-Server?</translation>
    </message>
    <message>
        <source>What %@ sent is far larger than a map tile.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileStore.cpp</extracomment>
        <translation>Was %@ gesendet hat, ist viel größer als eine Kartenkachel.</translation>
    </message>
    <message>
        <source>What %@ sent is not a map tile.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileStore.cpp</extracomment>
        <translation>Was %@ gesendet hat, ist keine Kartenkachel.</translation>
    </message>
    <message>
        <source>What it does when another photo is shown</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Was sie tut, wenn ein anderes Foto angezeigt wird</translation>
    </message>
    <message>
        <source>What the button makes of the photo in front, and of the first and the last one</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>Was die Schaltfläche aus dem vorderen, dem ersten und dem letzten Foto macht</translation>
    </message>
    <message>
        <source>What the clock should have shown: the difference follows from it</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Was die Uhr hätte zeigen sollen: daraus ergibt sich der Unterschied</translation>
    </message>
    <message>
        <source>What the image is about, as codes of eight digits from the IPTC Subject NewsCodes: 15000000 is sport, 15054000 soccer. News agencies sort incoming images by them.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Wovon das Bild handelt, als achtstellige Codes der IPTC Subject NewsCodes: 15000000 ist Sport, 15054000 Fußball. Nachrichtenagenturen sortieren eingehende Bilder danach.</translation>
    </message>
    <message>
        <source>What the image shows, in one or more full sentences: who, what, where, when and why. Most programs and web galleries show this text below the image.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Was das Bild zeigt, in einem oder mehreren ganzen Sätzen: wer, was, wo, wann und warum. Die meisten Programme und Webgalerien zeigen diesen Text unter dem Bild.</translation>
    </message>
    <message>
        <source>What the map does</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Was die Karte tut</translation>
    </message>
    <message>
        <source>What the server wants to be shown on the map</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Was laut Server auf der Karte stehen soll</translation>
    </message>
    <message>
        <source>What would change</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>Was sich ändern würde</translation>
    </message>
    <message>
        <source>When it was digitized; of a digital camera the same</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Wann das Bild digitalisiert wurde; bei einer Digitalkamera dasselbe</translation>
    </message>
    <message>
        <source>When its position is set</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Wenn seine Position gesetzt wird</translation>
    </message>
    <message>
        <source>When the file was made, as its folder tells</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Wann die Datei angelegt wurde, laut Ordner</translation>
    </message>
    <message>
        <source>When the picture was taken</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Wann das Bild aufgenommen wurde</translation>
    </message>
    <message>
        <source>Where the track has one</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Wo der Track eine hat</translation>
    </message>
    <message>
        <source>Whether one of the two criteria suffices or both must hold</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Ob eines der beiden Kriterien genügt oder beide erfüllt sein müssen</translation>
    </message>
    <message>
        <source>Which photos are shown</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Welche Fotos angezeigt werden</translation>
    </message>
    <message>
        <source>Width and height of the image in pixels, as it is stored, before any rotation for display.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Breite und Höhe des gespeicherten Bildes in Pixeln, vor dem Drehen für die Anzeige.</translation>
    </message>
    <message>
        <source>Width of the camera's sensor in millimeters, as recorded by the camera or calculated from the pixel density on the sensor.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Breite des Kamerasensors in Millimetern, von der Kamera vermerkt oder aus der Pixeldichte auf dem Sensor berechnet.</translation>
    </message>
    <message>
        <source>Window</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>With 0, photos change only when you say so</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Bei 0 wechseln die Fotos nur auf Ihren Befehl</translation>
    </message>
    <message>
        <source>With Unsaved Changes</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Mit ungespeicherten Änderungen</translation>
    </message>
    <message>
        <source>With your own photos:</source>
        <extracomment>src/cli/DemoCommand.cpp</extracomment>
        <translation>Mit Ihren eigenen Fotos:</translation>
    </message>
    <message>
        <source>Without Date</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Ohne Datum</translation>
    </message>
    <message>
        <source>Without Location</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Ohne Position</translation>
    </message>
    <message>
        <source>Words and short phrases by which the image can be found: subjects, concepts, moods and techniques. Enter each one as a keyword of its own.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Wörter und kurze Wendungen, unter denen sich das Bild finden lässt: Motive, Begriffe, Stimmungen und Techniken. Geben Sie jedes als eigenes Stichwort ein.</translation>
    </message>
    <message>
        <source>World Region</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Weltregion</translation>
    </message>
    <message>
        <source>Write Changed Tags</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Geänderte Tags schreiben</translation>
    </message>
    <message>
        <source>Write all unsaved changes to the photos</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Alle ungespeicherten Änderungen in die Fotos schreiben</translation>
    </message>
    <message>
        <source>Write changes to:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Änderungen schreiben in:</translation>
    </message>
    <message>
        <source>Write metadata to file</source>
        <extracomment>src/metadata/KTExifTool.cpp</extracomment>
        <translation>Metadaten in Datei schreiben</translation>
    </message>
    <message>
        <source>Write metadata to iPhoto using ScriptingBridge</source>
        <extracomment>src/photo/KTiPhotoTool.cpp</extracomment>
        <translation>Metadaten über ScriptingBridge in iPhoto schreiben</translation>
    </message>
    <message>
        <source>Write the altitude of track points</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Höhe der Trackpunkte schreiben</translation>
    </message>
    <message>
        <source>Write tracks to standard output</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>Tracks auf die Standardausgabe schreiben</translation>
    </message>
    <message>
        <source>Writes the chosen tracks into a file</source>
        <extracomment>src/ui/windows/TrackLibraryWindow.cpp</extracomment>
        <translation>Schreibt die gewählten Tracks in eine Datei</translation>
    </message>
    <message>
        <source>Writes the names of city, state and country with the position</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Schreibt mit der Position die Namen von Stadt, Bundesland und Land</translation>
    </message>
    <message>
        <source>Writes the operations shown into a file</source>
        <extracomment>src/ui/windows/OperationLogWindow.cpp</extracomment>
        <translation>Schreibt die angezeigten Vorgänge in eine Datei</translation>
    </message>
    <message>
        <source>Written with the position</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Wird mit der Position geschrieben</translation>
    </message>
    <message>
        <source>YYYY-MM-DD HH:MM:SS is expected</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>erwartet wird YYYY-MM-DD HH:MM:SS</translation>
    </message>
    <message>
        <source>Year</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Jahr</translation>
    </message>
    <message numerus="yes">
        <source>You have %d photos with unsaved changes. Are you sure you want to quit?</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>
            <numerusform>%d Foto hat ungespeicherte Änderungen. Möchten Sie das Programm wirklich beenden?</numerusform>
            <numerusform>%d Fotos haben ungespeicherte Änderungen. Möchten Sie das Programm wirklich beenden?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>You have %d photos with unsaved changes. Are you sure you want to remove them?</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>
            <numerusform>%d Foto hat ungespeicherte Änderungen. Möchten Sie es wirklich entfernen?</numerusform>
            <numerusform>%d Fotos haben ungespeicherte Änderungen. Möchten Sie sie wirklich entfernen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Your e-mail address or page, which the server's operator gets with each request</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Ihre E-Mail-Adresse oder Webseite, die der Betreiber des Servers bei jeder Anfrage erhält</translation>
    </message>
    <message>
        <source>Your rating of the image, from 1 to 5 stars. 0 stands for not rated and -1 for rejected.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Ihre Bewertung des Bildes, von 1 bis 5 Sternen. 0 steht für nicht bewertet und -1 für abgelehnt.</translation>
    </message>
    <message>
        <source>Zone of the cameras' clocks: +02:00, Z or Area/City</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Zeitzone der Kamerauhren: +02:00, Z oder Area/City</translation>
    </message>
    <message>
        <source>Zoom %1, centre %2, %3, %4, %5</source>
        <extracomment>src/ui/map/MapView.cpp</extracomment>
        <translation>Zoom %1, Mitte %2, %3, %4, %5</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <extracomment>src/ui/map/MapPane.cpp</extracomment>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <extracomment>src/ui/map/MapPane.cpp</extracomment>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Zoom to Photos</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Auf Fotos zoomen</translation>
    </message>
    <message>
        <source>[GLOBAL OPTIONS] COMMAND [OPTIONS] PATH...</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>[GLOBALE OPTIONEN] BEFEHL [OPTIONEN] PFAD...</translation>
    </message>
    <message>
        <source>[OPTIONS] [FILE...]</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>[OPTIONEN] [DATEI...]</translation>
    </message>
    <message>
        <source>a character is not valid in the file's encoding</source>
        <extracomment>src/platform/tracklibrary/XMLStream.cpp</extracomment>
        <translation>ein Zeichen ist in der Kodierung der Datei nicht gültig</translation>
    </message>
    <message>
        <source>a complete date and time is expected</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>erwartet werden vollständiges Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>a decimal number is expected</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>erwartet wird eine Dezimalzahl</translation>
    </message>
    <message>
        <source>a file that cannot be read</source>
        <extracomment>src/export/KTLocationTraces.cpp</extracomment>
        <translation>eine Datei, die nicht gelesen werden kann</translation>
    </message>
    <message>
        <source>a former run ended while it wrote %@; the file holds what it held before, or its new version as a whole</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>ein früherer Aufruf endete, während %@ geschrieben wurde; die Datei enthält entweder den früheren oder vollständig den neuen Stand</translation>
    </message>
    <message>
        <source>a list in JSON</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>eine Liste in JSON</translation>
    </message>
    <message>
        <source>a name, height or time is too long</source>
        <extracomment>src/platform/tracklibrary/GPXReader.cpp</extracomment>
        <translation>ein Name, eine Höhe oder eine Zeit ist zu lang</translation>
    </message>
    <message>
        <source>a number</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>a preview with a position</source>
        <extracomment>src/export/KTLocationTraces.cpp</extracomment>
        <translation>eine Vorschau mit einer Position</translation>
    </message>
    <message>
        <source>a single tag or comment is too long</source>
        <extracomment>src/platform/tracklibrary/XMLStream.cpp</extracomment>
        <translation>ein einzelnes Tag oder ein Kommentar ist zu lang</translation>
    </message>
    <message>
        <source>a text</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>a whole number</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>eine ganze Zahl</translation>
    </message>
    <message>
        <source>a whole number that is not negative</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>eine ganze, nicht negative Zahl</translation>
    </message>
    <message>
        <source>already so</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>schon so</translation>
    </message>
    <message>
        <source>an exception without text</source>
        <extracomment>src/export/KTPluginError.cpp</extracomment>
        <translation>eine Ausnahme ohne Text</translation>
    </message>
    <message>
        <source>another time zone…</source>
        <extracomment>src/geotagging/KTTimeZoneHUDController.cpp</extracomment>
        <translation>eine andere …</translation>
    </message>
    <message>
        <source>apart</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>im Track</translation>
    </message>
    <message>
        <source>both</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>beide</translation>
    </message>
    <message>
        <source>by</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>um</translation>
    </message>
    <message>
        <source>cannot be loaded from %@</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>kann nicht aus %@ geladen werden</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>nicht lesbar</translation>
    </message>
    <message>
        <source>copy-date: --to %@ names the date to copy from</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>copy-date: --to %@ nennt dasselbe Datum, von dem kopiert wird</translation>
    </message>
    <message>
        <source>days</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Tage</translation>
    </message>
    <message>
        <source>earlier</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>früher</translation>
    </message>
    <message>
        <source>either</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>eines von beiden</translation>
    </message>
    <message>
        <source>entity declarations are not accepted</source>
        <extracomment>src/platform/tracklibrary/XMLStream.cpp</extracomment>
        <translation>Entity-Deklarationen sind nicht zulässig</translation>
    </message>
    <message>
        <source>failed</source>
        <extracomment>src/ui/photos/PhotoStatus.cpp</extracomment>
        <translation>fehlgeschlagen</translation>
    </message>
    <message>
        <source>first</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>erstes</translation>
    </message>
    <message>
        <source>folded</source>
        <extracomment>src/ui/inspector/InspectorGroup.cpp</extracomment>
        <translation>zugeklappt</translation>
    </message>
    <message numerus="yes">
        <source>from %d tracks</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>
            <numerusform>aus %d Track</numerusform>
            <numerusform>aus %d Tracks</numerusform>
        </translation>
    </message>
    <message>
        <source>geotag photos from GPS tracks and edit their metadata</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>Fotos anhand von GPS-Tracks verorten und ihre Metadaten bearbeiten</translation>
    </message>
    <message>
        <source>geotagged</source>
        <extracomment>src/ui/photos/PhotoStatus.cpp</extracomment>
        <translation>verortet</translation>
    </message>
    <message>
        <source>give photos the places where they were taken</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>Fotos mit ihren Aufnahmeorten versehen</translation>
    </message>
    <message>
        <source>gpsbabel cannot read it</source>
        <extracomment>src/platform/tracklibrary/GPSBabelReader.cpp</extracomment>
        <translation>gpsbabel kann sie nicht lesen</translation>
    </message>
    <message>
        <source>gpsbabel found no points in it</source>
        <extracomment>src/platform/tracklibrary/GPSBabelReader.cpp</extracomment>
        <translation>gpsbabel hat darin keine Punkte gefunden</translation>
    </message>
    <message>
        <source>gpsbabel is there</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>gpsbabel ist vorhanden</translation>
    </message>
    <message>
        <source>gpsbabel took too long to read it</source>
        <extracomment>src/platform/tracklibrary/GPSBabelReader.cpp</extracomment>
        <translation>gpsbabel brauchte zu lange, um sie zu lesen</translation>
    </message>
    <message>
        <source>hours</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Stunden</translation>
    </message>
    <message>
        <source>in front</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>vorderes</translation>
    </message>
    <message>
        <source>it cannot be set</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>das Feld kann nicht gesetzt werden</translation>
    </message>
    <message>
        <source>it cannot be unpacked</source>
        <extracomment>src/platform/tracklibrary/KMZArchive.cpp</extracomment>
        <translation>sie kann nicht entpackt werden</translation>
    </message>
    <message>
        <source>it is a database of another program</source>
        <extracomment>src/platform/tracklibrary/TrackSchema.cpp</extracomment>
        <translation>sie ist eine Datenbank eines anderen Programms</translation>
    </message>
    <message>
        <source>it was made by a newer version of Waymark</source>
        <extracomment>src/platform/tracklibrary/TrackSchema.cpp</extracomment>
        <translation>sie wurde mit einer neueren Version von Waymark erstellt</translation>
    </message>
    <message>
        <source>jpeg, png or tiff</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>jpeg, png oder tiff</translation>
    </message>
    <message>
        <source>lake|walk</source>
        <extracomment>src/cli/DemoCommand.cpp</extracomment>
        <translation>See|Wanderung</translation>
    </message>
    <message>
        <source>last</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>letztes</translation>
    </message>
    <message>
        <source>later</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>später</translation>
    </message>
    <message>
        <source>map, place names and magnetic field are there</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Karte, Ortsnamen und Magnetfeld sind vorhanden</translation>
    </message>
    <message>
        <source>minutes</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>my computer's time zone (%@).</source>
        <extracomment>src/geotagging/KTTimeZoneHUDController.cpp</extracomment>
        <translation>die des Computers (%@)</translation>
    </message>
    <message>
        <source>nearest point</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>nächster Punkt</translation>
    </message>
    <message>
        <source>no capture date</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>kein Aufnahmedatum</translation>
    </message>
    <message>
        <source>no dates</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>ohne Datum</translation>
    </message>
    <message>
        <source>no place is known there</source>
        <extracomment>src/cli/PlaceCommand.cpp</extracomment>
        <translation>dort ist kein Ort bekannt</translation>
    </message>
    <message>
        <source>no place names are found</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>es werden keine Ortsnamen gefunden</translation>
    </message>
    <message>
        <source>none</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>keines</translation>
    </message>
    <message>
        <source>not geotagged</source>
        <extracomment>src/ui/photos/PhotoStatus.cpp</extracomment>
        <translation>nicht verortet</translation>
    </message>
    <message>
        <source>not saved</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>nicht gespeichert</translation>
    </message>
    <message>
        <source>nothing can be written in %@</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>in %@ kann nichts geschrieben werden</translation>
    </message>
    <message>
        <source>nothing to change</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>nichts zu ändern</translation>
    </message>
    <message>
        <source>of a track point</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>vom Track</translation>
    </message>
    <message>
        <source>only %@ MB are free for %@</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>nur %@ MB sind frei für %@</translation>
    </message>
    <message>
        <source>only GPX files can be read</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>nur GPX-Dateien können gelesen werden</translation>
    </message>
    <message>
        <source>open</source>
        <extracomment>src/ui/inspector/InspectorGroup.cpp</extracomment>
        <translation>aufgeklappt</translation>
    </message>
    <message>
        <source>photos can be saved, but keep no creation date</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Fotos können gespeichert werden, behalten aber kein Erstellungsdatum</translation>
    </message>
    <message>
        <source>points at most</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Lücke bis</translation>
    </message>
    <message>
        <source>reading this kind of file takes the program %@, which cannot be started; install the package gpsbabel (apt install gpsbabel)</source>
        <extracomment>src/platform/tracklibrary/GPSBabelReader.cpp</extracomment>
        <translation>zum Lesen dieser Art von Datei ist das Programm %@ nötig, das nicht gestartet werden kann; installieren Sie das Paket gpsbabel (apt install gpsbabel)</translation>
    </message>
    <message>
        <source>saved</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>gespeichert</translation>
    </message>
    <message>
        <source>seconds</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>set takes KEY=VALUE... PATH...</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>set erwartet KEY=VALUE... PATH...</translation>
    </message>
    <message>
        <source>settings</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>skip photos already geotagged</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>verortete Fotos auslassen</translation>
    </message>
    <message>
        <source>standard output could not be written</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>auf die Standardausgabe konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>stays as it is</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>bleibt unverändert</translation>
    </message>
    <message>
        <source>the Image::ExifTool in %@ is version %@, which is too old</source>
        <extracomment>src/metadata/KTExifToolFolder.cpp</extracomment>
        <translation>Image::ExifTool in %@ hat die Version %@ und ist zu alt</translation>
    </message>
    <message>
        <source>the KML file in the KMZ archive is too large</source>
        <extracomment>src/platform/tracklibrary/KMZArchive.cpp</extracomment>
        <translation>die KML-Datei im KMZ-Archiv ist zu groß</translation>
    </message>
    <message>
        <source>the KMZ archive has too many members</source>
        <extracomment>src/platform/tracklibrary/KMZArchive.cpp</extracomment>
        <translation>das KMZ-Archiv hat zu viele Einträge</translation>
    </message>
    <message>
        <source>the KMZ archive holds no KML file</source>
        <extracomment>src/platform/tracklibrary/KMZArchive.cpp</extracomment>
        <translation>das KMZ-Archiv enthält keine KML-Datei</translation>
    </message>
    <message>
        <source>the KMZ archive is damaged</source>
        <extracomment>src/platform/tracklibrary/KMZArchive.cpp</extracomment>
        <translation>das KMZ-Archiv ist beschädigt</translation>
    </message>
    <message>
        <source>the XML is broken: %@</source>
        <extracomment>src/platform/tracklibrary/XMLStream.cpp</extracomment>
        <translation>das XML ist fehlerhaft: %@</translation>
    </message>
    <message>
        <source>the date %@ is not between the years 1900 and 2199</source>
        <extracomment>src/platform/tracklibrary/GPXReader.cpp</extracomment>
        <translation>das Datum %@ liegt nicht in den Jahren 1900 bis 2199</translation>
    </message>
    <message>
        <source>the defaults hold</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>es gelten die Standardwerte</translation>
    </message>
    <message>
        <source>the elements are nested too deeply</source>
        <extracomment>src/platform/tracklibrary/XMLStream.cpp</extracomment>
        <translation>die Elemente sind zu tief verschachtelt</translation>
    </message>
    <message>
        <source>the field "%@" cannot be edited</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>das Feld „%@“ kann nicht bearbeitet werden</translation>
    </message>
    <message>
        <source>the file cannot be read: %@</source>
        <extracomment>src/platform/tracklibrary/TrackFileReading.cpp</extracomment>
        <translation>die Datei kann nicht gelesen werden: %@</translation>
    </message>
    <message>
        <source>the file ends too early</source>
        <extracomment>src/platform/tracklibrary/XMLStream.cpp</extracomment>
        <translation>die Datei endet zu früh</translation>
    </message>
    <message>
        <source>the folder %@ cannot be made</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>der Ordner %@ kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>the import was stopped</source>
        <extracomment>src/platform/tracklibrary/KTTrackStore.cpp</extracomment>
        <translation>der Import wurde gestoppt</translation>
    </message>
    <message>
        <source>the log</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>das Protokoll</translation>
    </message>
    <message>
        <source>the picture cannot be written to %@</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>das Bild kann nicht nach %@ geschrieben werden</translation>
    </message>
    <message>
        <source>the picture is too large, or its scale is not one from 0.5 to 8</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>das Bild ist zu groß, oder sein Maßstab liegt nicht zwischen 0.5 und 8</translation>
    </message>
    <message>
        <source>the settings file %@ cannot be read</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>die Einstellungsdatei %@ kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>the track library</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>die Trackbibliothek</translation>
    </message>
    <message>
        <source>then select the next photo</source>
        <extracomment>src/ui/console/StandardPanel.cpp</extracomment>
        <translation>danach das nächste Foto auswählen</translation>
    </message>
    <message>
        <source>there is no Image/ExifTool.pm in %@</source>
        <extracomment>src/metadata/KTExifToolFolder.cpp</extracomment>
        <translation>in %@ gibt es kein Image/ExifTool.pm</translation>
    </message>
    <message>
        <source>there is no export plug-in "%@"; there are: %@</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>es gibt kein Export-Plug-in „%@“; vorhanden sind: %@</translation>
    </message>
    <message>
        <source>there is no field "%@" (waymark-cli fields lists them)</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>es gibt kein Feld „%@“ (waymark-cli fields listet sie auf)</translation>
    </message>
    <message>
        <source>there is no folder “%@”</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>es gibt keinen Ordner „%@“</translation>
    </message>
    <message>
        <source>there is no source of map tiles named "%@"</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>es gibt keine Quelle für Kartenkacheln namens „%@“</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <extracomment>src/platform/tracklibrary/KTTrackManager.cpp</extracomment>
        <translation>diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>diesen Ordner gibt es nicht</translation>
    </message>
    <message>
        <source>there is no track %@</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>es gibt keinen Track %@</translation>
    </message>
    <message>
        <source>there is none yet</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>es gibt noch keine</translation>
    </message>
    <message>
        <source>this is a folder</source>
        <extracomment>src/platform/tracklibrary/KTTrackManager.cpp</extracomment>
        <translation>dies ist ein Ordner</translation>
    </message>
    <message>
        <source>this is not a GPX file: it begins with &lt;%@&gt;</source>
        <extracomment>src/platform/tracklibrary/GPXReader.cpp</extracomment>
        <translation>dies ist keine GPX-Datei: sie beginnt mit &lt;%@&gt;</translation>
    </message>
    <message>
        <source>this is not a file</source>
        <extracomment>src/platform/tracklibrary/KTTrackManager.cpp</extracomment>
        <translation>dies ist keine Datei</translation>
    </message>
    <message>
        <source>this is not a track file that Waymark knows (%@)</source>
        <extracomment>src/platform/tracklibrary/TrackFileReading.cpp</extracomment>
        <translation>dies ist keine Trackdatei, die Waymark kennt (%@)</translation>
    </message>
    <message>
        <source>this is not an XML file (%@)</source>
        <extracomment>src/platform/tracklibrary/XMLStream.cpp</extracomment>
        <translation>dies ist keine XML-Datei (%@)</translation>
    </message>
    <message>
        <source>time weighted average</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>zeitgewichtetes Mittel</translation>
    </message>
    <message>
        <source>to:</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>nach:</translation>
    </message>
    <message>
        <source>true or false</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>true oder false</translation>
    </message>
    <message>
        <source>unknown text encoding “%@”</source>
        <extracomment>src/platform/tracklibrary/XMLStream.cpp</extracomment>
        <translation>unbekannte Textkodierung „%@“</translation>
    </message>
    <message>
        <source>unsaved changes</source>
        <extracomment>src/ui/inspector/FieldLabel.cpp</extracomment>
        <translation>ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>waymark(1), exiftool(1p), gpsbabel(1)</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>waymark(1), exiftool(1p), gpsbabel(1)</translation>
    </message>
    <message>
        <source>waymark-cli(1), exiftool(1p), gpsbabel(1)</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>waymark-cli(1), exiftool(1p), gpsbabel(1)</translation>
    </message>
    <message>
        <source>what gpsbabel read of it is not usable: %@</source>
        <extracomment>src/platform/tracklibrary/GPSBabelReader.cpp</extracomment>
        <translation>was gpsbabel daraus gelesen hat, ist nicht verwendbar: %@</translation>
    </message>
    <message>
        <source>what was written did not come back</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>was geschrieben wurde, war nicht wieder zu lesen</translation>
    </message>
    <message>
        <source>with a warning</source>
        <extracomment>src/ui/photos/PhotoStatus.cpp</extracomment>
        <translation>mit Warnung</translation>
    </message>
    <message>
        <source>within</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>bis</translation>
    </message>
    <message>
        <source>without a capture date</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>ohne Aufnahmedatum</translation>
    </message>
    <message>
        <source>© 2012 Anna Keller. All rights reserved.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>© 2012 Anna Keller. Alle Rechte vorbehalten.</translation>
    </message>
    <message>
        <source>“%@” cannot be copied: %@</source>
        <extracomment>src/platform/desktop/KTFileOperations.cpp</extracomment>
        <translation>„%@“ kann nicht kopiert werden: %@</translation>
    </message>
    <message>
        <source>“%@” cannot be created: %@</source>
        <extracomment>src/platform/desktop/KTFileOperations.cpp</extracomment>
        <translation>„%@“ kann nicht angelegt werden: %@</translation>
    </message>
    <message>
        <source>“%@” cannot be opened: %@</source>
        <extracomment>src/platform/desktop/KTFileCoordinator.cpp</extracomment>
        <translation>„%@“ kann nicht geöffnet werden: %@</translation>
    </message>
    <message>
        <source>“%@” cannot be read: %@</source>
        <extracomment>src/collection/KTPhotoFileSearch.cpp</extracomment>
        <translation>„%@“ kann nicht gelesen werden: %@</translation>
    </message>
    <message>
        <source>“%@” cannot be replaced: %@</source>
        <extracomment>src/platform/desktop/KTFileOperations.cpp</extracomment>
        <translation>„%@“ kann nicht ersetzt werden: %@</translation>
    </message>
    <message>
        <source>“%@” exists already. Do you want to replace it?</source>
        <extracomment>src/export/KTPhotoExportPluginManager.cpp</extracomment>
        <translation>„%@“ existiert bereits. Möchten Sie die Datei ersetzen?</translation>
    </message>
    <message>
        <source>“%@” is not a date and time</source>
        <extracomment>src/platform/tracklibrary/GPXReader.cpp</extracomment>
        <translation>„%@“ ist kein Datum mit Uhrzeit</translation>
    </message>
    <message>
        <source>“%@” is not a height in metres</source>
        <extracomment>src/platform/tracklibrary/GPXReader.cpp</extracomment>
        <translation>„%@“ ist keine Höhe in Metern</translation>
    </message>
    <message>
        <source>“%@” is not a latitude from -90 to 90</source>
        <extracomment>src/platform/tracklibrary/GPXReader.cpp</extracomment>
        <translation>„%@“ ist kein Breitengrad von -90 bis 90</translation>
    </message>
    <message>
        <source>“%@” is not a longitude from -180 to 180</source>
        <extracomment>src/platform/tracklibrary/GPXReader.cpp</extracomment>
        <translation>„%@“ ist kein Längengrad von -180 bis 180</translation>
    </message>
    <message>
        <source>“%@” is not the address of a server that place names could be fetched from.</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>„%@“ ist nicht die Adresse eines Servers, von dem Ortsnamen abgerufen werden könnten.</translation>
    </message>
    <message>
        <source>“%@” is not the address of a web server.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>„%@“ ist nicht die Adresse eines Webservers.</translation>
    </message>
    <message>
        <source>“%@” is the first of them.</source>
        <extracomment>src/export/KTPhotoExportPluginManager.cpp</extracomment>
        <translation>„%@“ ist die erste davon.</translation>
    </message>
    <message>
        <source>“%@” keeps being changed by another program.</source>
        <extracomment>src/photo/KTPhotoSaving.cpp</extracomment>
        <translation>„%@“ wird fortwährend von einem anderen Programm geändert.</translation>
    </message>
    <message>
        <source>“%@” was changed by another program.</source>
        <extracomment>src/platform/desktop/KTFileOperations.cpp</extracomment>
        <translation>„%@“ wurde von einem anderen Programm geändert.</translation>
    </message>
    <message>
        <source>“%@” was replaced, but may not be on disk yet: %@</source>
        <extracomment>src/platform/desktop/KTFileOperations.cpp</extracomment>
        <translation>„%@“ wurde ersetzt, ist aber vielleicht noch nicht auf dem Datenträger: %@</translation>
    </message>
    <message>
        <source>“full” keeps names and positions in the log file</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>„full“ behält Namen und Positionen in der Protokolldatei</translation>
    </message>
    <message numerus="yes">
        <source>… and %d more</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>
            <numerusform>… und %d weiteres</numerusform>
            <numerusform>… und %d weitere</numerusform>
        </translation>
    </message>
</context>
</TS>

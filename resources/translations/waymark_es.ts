<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Waymark</name>
    <message>
        <source> NOT SAVED</source>
        <extracomment>src/cli/GeotagReport.cpp</extracomment>
        <translation> NO GUARDADA</translation>
    </message>
    <message>
        <source> [dry run]</source>
        <extracomment>src/cli/GeotagReport.cpp</extracomment>
        <translation> [simulación]</translation>
    </message>
    <message>
        <source> and </source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation> y </translation>
    </message>
    <message>
        <source>"%@" is not a date: "YYYY-MM-DD HH:MM:SS" is expected</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>«%@» no es una fecha: se espera "YYYY-MM-DD HH:MM:SS"</translation>
    </message>
    <message>
        <source>"%@" is not a number of degrees from -%@ to %@</source>
        <extracomment>src/cli/PlaceCommand.cpp</extracomment>
        <translation>«%@» no es un número de grados de -%@ a %@</translation>
    </message>
    <message>
        <source>"%@" is not a setting: write KEY=VALUE.</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>«%@» no es un ajuste: escriba KEY=VALUE.</translation>
    </message>
    <message>
        <source>"%@" is not a size: WIDTHxHEIGHT in pixels is expected</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>«%@» no es un tamaño: se espera WIDTHxHEIGHT en píxeles</translation>
    </message>
    <message>
        <source>"%@" is not a time zone: +02:00, Z or Area/City is expected</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>«%@» no es una zona horaria: se espera +02:00, Z o Area/City</translation>
    </message>
    <message>
        <source>"%@" is not a type of pictures</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>«%@» no es un tipo de imagen</translation>
    </message>
    <message>
        <source>"%@" is not a value of "%@", which takes %@.</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>«%@» no es un valor de «%@», que admite %@.</translation>
    </message>
    <message>
        <source>"%@" is not a value of %@: %@</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>«%@» no es un valor de %@: %@</translation>
    </message>
    <message>
        <source>"%@" says too little for the precision %@</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>«%@» dice demasiado poco para la precisión %@</translation>
    </message>
    <message>
        <source>"YYYY-MM-DD HH:MM:SS", or its beginning</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>"YYYY-MM-DD HH:MM:SS", o su comienzo</translation>
    </message>
    <message>
        <source>%1 (shown)</source>
        <extracomment>src/ui/inspector/CatalogueModel.cpp</extracomment>
        <translation>%1 (visible)</translation>
    </message>
    <message>
        <source>%1 to the map's centre</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>%1 en el centro del mapa</translation>
    </message>
    <message>
        <source>%1 to the waypoint</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>%1 en el waypoint</translation>
    </message>
    <message>
        <source>%1, %2 of %3</source>
        <extracomment>src/ui/datetools/CoverFlowView.cpp</extracomment>
        <translation>%1, %2 de %3</translation>
    </message>
    <message>
        <source>%1, not yet written</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>%1, aún sin escribir</translation>
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
        <translation>%@ después de %@.</translation>
    </message>
    <message>
        <source>%@ after photo.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>%@ después de la foto.</translation>
    </message>
    <message>
        <source>%@ and %@</source>
        <extracomment>src/app/WaymarkAppControllerFiles.cpp</extracomment>
        <translation>%@ y %@</translation>
    </message>
    <message>
        <source>%@ answered “%@”.</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>%@ respondió «%@».</translation>
    </message>
    <message>
        <source>%@ before %@.</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>%@ antes de %@.</translation>
    </message>
    <message>
        <source>%@ before photo.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>%@ antes de la foto.</translation>
    </message>
    <message>
        <source>%@ broke off before its answer was complete.</source>
        <extracomment>src/platform/network/HTTPFailureText.cpp</extracomment>
        <translation>%@ interrumpió la conexión antes de completar su respuesta.</translation>
    </message>
    <message>
        <source>%@ cannot answer at the moment (HTTP status %@).</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>%@ no puede responder en este momento (estado HTTP %@).</translation>
    </message>
    <message>
        <source>%@ cannot be found. Is there a connection to the network?</source>
        <extracomment>src/platform/network/HTTPFailureText.cpp</extracomment>
        <translation>No se encuentra %@. ¿Hay conexión a la red?</translation>
    </message>
    <message>
        <source>%@ cannot be reached: %@.</source>
        <extracomment>src/platform/network/HTTPFailureText.cpp</extracomment>
        <translation>No se puede contactar con %@: %@.</translation>
    </message>
    <message>
        <source>%@ cannot be read</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>no se puede leer %@</translation>
    </message>
    <message>
        <source>%@ cannot give map tiles at the moment (HTTP status %@).</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileStore.cpp</extracomment>
        <translation>%@ no puede dar teselas de mapa en este momento (estado HTTP %@).</translation>
    </message>
    <message>
        <source>%@ cannot write a picture: %@</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>%@ no puede escribir una imagen: %@</translation>
    </message>
    <message>
        <source>%@ could not be written.</source>
        <extracomment>src/collection/DemoTrip.cpp</extracomment>
        <translation>No se pudo escribir %@.</translation>
    </message>
    <message>
        <source>%@ did not answer in time.</source>
        <extracomment>src/photo/KTLinkablePointPlace.cpp</extracomment>
        <translation>%@ no respondió a tiempo.</translation>
    </message>
    <message>
        <source>%@ did not answer within %@ seconds.</source>
        <extracomment>src/platform/network/HTTPFailureText.cpp</extracomment>
        <translation>%@ no respondió en %@ segundos.</translation>
    </message>
    <message>
        <source>%@ does not accept connections.</source>
        <extracomment>src/platform/network/HTTPFailureText.cpp</extracomment>
        <translation>%@ no acepta conexiones.</translation>
    </message>
    <message>
        <source>%@ exists already (--overwrite replaces it)</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>%@ ya existe (--overwrite lo reemplaza)</translation>
    </message>
    <message>
        <source>%@ from %@ writes and reads a picture</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>%@ de %@ escribe y lee una imagen</translation>
    </message>
    <message>
        <source>%@ from preceding track point and %@ to next track point</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>%@ desde el punto de track anterior y %@ hasta el siguiente</translation>
    </message>
    <message>
        <source>%@ from preceding track point and %@ to next track point for %@</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>%@ desde el punto de track anterior y %@ hasta el siguiente para %@</translation>
    </message>
    <message>
        <source>%@ ft</source>
        <extracomment>src/platform/common/KTUnitConverter.cpp</extracomment>
        <translation>%@ ft</translation>
    </message>
    <message>
        <source>%@ gave an unexpected answer (HTTP status %@).</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>%@ dio una respuesta inesperada (estado HTTP %@).</translation>
    </message>
    <message>
        <source>%@ gave an unexpected answer instead of a map tile (HTTP status %@).</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileStore.cpp</extracomment>
        <translation>%@ dio una respuesta inesperada en lugar de una tesela de mapa (estado HTTP %@).</translation>
    </message>
    <message>
        <source>%@ gives its tiles only to those who say how they can be reached. Set an e-mail or web address (mapTilesContact).</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>%@ solo da sus teselas a quienes dicen cómo se les puede localizar. Indique una dirección de correo o web (mapTilesContact).</translation>
    </message>
    <message>
        <source>%@ gives no place names at this address (HTTP status %@).</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>%@ no da nombres de lugares en esta dirección (estado HTTP %@).</translation>
    </message>
    <message>
        <source>%@ has no tiles for some of the places shown (HTTP status %@). The offline map is shown there.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileStore.cpp</extracomment>
        <translation>%@ no tiene teselas de algunos de los lugares mostrados (estado HTTP %@). Allí se muestra el mapa sin conexión.</translation>
    </message>
    <message>
        <source>%@ is missing</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>falta %@</translation>
    </message>
    <message>
        <source>%@ is not empty</source>
        <extracomment>src/collection/DemoTrip.cpp</extracomment>
        <translation>%@ no está vacía</translation>
    </message>
    <message>
        <source>%@ is required</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>Falta %@, que es obligatorio</translation>
    </message>
    <message>
        <source>%@ is taken as the fixed offset %@, in summer and winter.</source>
        <extracomment>src/cli/ZoneCommand.cpp</extracomment>
        <translation>%@ se toma como el desfase fijo %@, en verano y en invierno.</translation>
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
            <numerusform>%@ de %d foto seleccionada</numerusform>
            <numerusform>%@ de %d fotos seleccionadas</numerusform>
        </translation>
    </message>
    <message>
        <source>%@ redirects to %@, which was not asked.</source>
        <extracomment>src/platform/network/HTTPFailureText.cpp</extracomment>
        <translation>%@ redirige a %@, al que no se preguntó.</translation>
    </message>
    <message>
        <source>%@ refuses to give map tiles (HTTP status %@). The offline map is shown instead.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileStore.cpp</extracomment>
        <translation>%@ se niega a dar teselas de mapa (estado HTTP %@). En su lugar se muestra el mapa sin conexión.</translation>
    </message>
    <message>
        <source>%@ refuses to give place names (HTTP status %@).</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>%@ se niega a dar nombres de lugares (estado HTTP %@).</translation>
    </message>
    <message>
        <source>%@ seconds</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>%@ segundos</translation>
    </message>
    <message>
        <source>%@ sent far more than place names.</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>%@ envió mucho más que nombres de lugares.</translation>
    </message>
    <message>
        <source>%@ to %@</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>de %@ a %@</translation>
    </message>
    <message>
        <source>%@ was asked for map tiles too often and wants a pause (HTTP status %@).</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileStore.cpp</extracomment>
        <translation>A %@ se le pidieron teselas de mapa con demasiada frecuencia y quiere una pausa (estado HTTP %@).</translation>
    </message>
    <message>
        <source>%@ was asked too often and wants a pause (HTTP status %@).</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>A %@ se le preguntó con demasiada frecuencia y quiere una pausa (estado HTTP %@).</translation>
    </message>
    <message>
        <source>%@ was not asked again after it had failed.</source>
        <extracomment>src/platform/gazetteer/KTGazetteer.cpp</extracomment>
        <translation>No se volvió a preguntar a %@ después de que fallara.</translation>
    </message>
    <message>
        <source>%@ was not asked, because the program is about to end.</source>
        <extracomment>src/platform/gazetteer/KTGazetteer.cpp</extracomment>
        <translation>No se preguntó a %@, porque el programa está a punto de cerrarse.</translation>
    </message>
    <message numerus="yes">
        <source>%@ was taken as the fixed offset %@, but its clocks stood at %@ when %d photos were taken; give the offset itself to match those</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>
            <numerusform>%@ se tomó como el desfase fijo %@, pero allí los relojes marcaban %@ cuando se hizo %d foto; indique el propio desfase para que coincida</numerusform>
            <numerusform>%@ se tomó como el desfase fijo %@, pero allí los relojes marcaban %@ cuando se hicieron %d fotos; indique el propio desfase para que coincidan</numerusform>
        </translation>
    </message>
    <message>
        <source>%@, %@ MB free</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>%@, %@ MB libres</translation>
    </message>
    <message>
        <source>%@, line %@: %@</source>
        <extracomment>src/platform/tracklibrary/KTTrackStore.cpp</extracomment>
        <translation>%@, línea %@: %@</translation>
    </message>
    <message>
        <source>%@: %@ (%@ with a date), %@</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>%@: %@ (%@ con fecha), %@</translation>
    </message>
    <message>
        <source>%@: %@ not in {%@}</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>%@: %@ no está en {%@}</translation>
    </message>
    <message>
        <source>%@: %@ required %@ missing</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>%@: se necesita %@, falta %@</translation>
    </message>
    <message>
        <source>%@: At Most %@ required but received %@</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>%@: se espera %@ como máximo y se recibió %@</translation>
    </message>
    <message>
        <source>%@: At least %@ required but received %@</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>%@: se espera %@ como mínimo y se recibió %@</translation>
    </message>
    <message>
        <source>%@: Directory does not exist: %@</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>%@: esta carpeta no existe: %@</translation>
    </message>
    <message>
        <source>%@: Directory is actually a file: %@</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>%@: no es una carpeta, sino un archivo: %@</translation>
    </message>
    <message>
        <source>%@: Value %@ not in range %@ to %@</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>%@: el valor %@ no está entre %@ y %@</translation>
    </message>
    <message>
        <source>%@: already imported, %@ (%@ with a date), %@</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>%@: ya importado, %@ (%@ con fecha), %@</translation>
    </message>
    <message numerus="yes">
        <source>%d could not be read.</source>
        <extracomment>src/cli/GeotagReport.cpp</extracomment>
        <translation>
            <numerusform>%d no se pudo leer.</numerusform>
            <numerusform>%d no se pudieron leer.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d could not be saved.</source>
        <extracomment>src/cli/GeotagReport.cpp</extracomment>
        <translation>
            <numerusform>%d no se pudo guardar.</numerusform>
            <numerusform>%d no se pudieron guardar.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d days</source>
        <extracomment>src/platform/common/KTUnitConverter.cpp</extracomment>
        <translation>
            <numerusform>%d día</numerusform>
            <numerusform>%d días</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d files exist already. Do you want to replace them?</source>
        <extracomment>src/export/KTPhotoExportPluginManager.cpp</extracomment>
        <translation>
            <numerusform>Ya existe %d archivo. ¿Desea reemplazarlo?</numerusform>
            <numerusform>Ya existen %d archivos. ¿Desea reemplazarlos?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d folders</source>
        <extracomment>src/app/WaymarkAppControllerFiles.cpp</extracomment>
        <translation>
            <numerusform>%d carpeta</numerusform>
            <numerusform>%d carpetas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d hours</source>
        <extracomment>src/platform/common/KTUnitConverter.cpp</extracomment>
        <translation>
            <numerusform>%d hora</numerusform>
            <numerusform>%d horas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d loaded photos</source>
        <extracomment>src/collection/KTPhotoManagerToolbarController.cpp</extracomment>
        <translation>
            <numerusform>%d foto cargada</numerusform>
            <numerusform>%d fotos cargadas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d minutes</source>
        <extracomment>src/platform/common/KTUnitConverter.cpp</extracomment>
        <translation>
            <numerusform>%d minuto</numerusform>
            <numerusform>%d minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos</source>
        <extracomment>src/app/WaymarkAppControllerFiles.cpp</extracomment>
        <translation>
            <numerusform>%d foto</numerusform>
            <numerusform>%d fotos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos already geotagged.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d foto ya geoetiquetada.</numerusform>
            <numerusform>%d fotos ya geoetiquetadas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos are concerned.</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>
            <numerusform>Afecta a %d foto.</numerusform>
            <numerusform>Afecta a %d fotos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos are more than %@ from the nearest track point.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d foto está a más de %@ del punto de track más cercano.</numerusform>
            <numerusform>%d fotos están a más de %@ del punto de track más cercano.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos are not between points less than %@ apart.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d foto no está entre puntos separados menos de %@.</numerusform>
            <numerusform>%d fotos no están entre puntos separados menos de %@.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos at one place</source>
        <extracomment>src/ui/map/MapPointing.cpp</extracomment>
        <translation>
            <numerusform>%d foto en un mismo lugar</numerusform>
            <numerusform>%d fotos en un mismo lugar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos can be geotagged</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d foto se puede geoetiquetar.</numerusform>
            <numerusform>%d fotos se pueden geoetiquetar.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos do not have a time stamp.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d foto no tiene marca de tiempo.</numerusform>
            <numerusform>%d fotos no tienen marca de tiempo.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos do not have stamps</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d foto no tiene marca de tiempo</numerusform>
            <numerusform>%d fotos no tienen marca de tiempo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos fail both the time and distance critieria.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d foto no cumple ni el criterio de tiempo ni el de distancia.</numerusform>
            <numerusform>%d fotos no cumplen ni el criterio de tiempo ni el de distancia.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos failed both the time &amp; distance criteria</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d foto no cumplió ni el criterio de tiempo ni el de distancia</numerusform>
            <numerusform>%d fotos no cumplieron ni el criterio de tiempo ni el de distancia</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos failed the distance criteria</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d foto no cumplió el criterio de distancia</numerusform>
            <numerusform>%d fotos no cumplieron el criterio de distancia</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos failed the time criteria</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d foto no cumplió el criterio de tiempo</numerusform>
            <numerusform>%d fotos no cumplieron el criterio de tiempo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos near here</source>
        <extracomment>src/ui/map/MapPointing.cpp</extracomment>
        <translation>
            <numerusform>%d foto cerca de aquí</numerusform>
            <numerusform>%d fotos cerca de aquí</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos shown</source>
        <extracomment>src/ui/map/MapView.cpp</extracomment>
        <translation>
            <numerusform>%d foto mostrada</numerusform>
            <numerusform>%d fotos mostradas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos with unsaved changes, </source>
        <extracomment>src/collection/KTPhotoManagerToolbarController.cpp</extracomment>
        <translation>
            <numerusform>%d foto con cambios sin guardar, </numerusform>
            <numerusform>%d fotos con cambios sin guardar, </numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d points</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>
            <numerusform>%d punto</numerusform>
            <numerusform>%d puntos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d removed</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>
            <numerusform>%d quitado</numerusform>
            <numerusform>%d quitados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d seconds</source>
        <extracomment>src/platform/common/KTUnitConverter.cpp</extracomment>
        <translation>
            <numerusform>%d segundo</numerusform>
            <numerusform>%d segundos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d track files could not be imported.</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerControllerCommands.cpp</extracomment>
        <translation>
            <numerusform>No se pudo importar %d archivo de track.</numerusform>
            <numerusform>No se pudieron importar %d archivos de track.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d tracks</source>
        <extracomment>src/app/WaymarkAppControllerFiles.cpp</extracomment>
        <translation>
            <numerusform>%d track</numerusform>
            <numerusform>%d tracks</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d tracks in it</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>
            <numerusform>contiene %d track</numerusform>
            <numerusform>contiene %d tracks</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d waypoints</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>
            <numerusform>%d waypoint</numerusform>
            <numerusform>%d waypoints</numerusform>
        </translation>
    </message>
    <message>
        <source>%llu bytes</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>%llu bytes</translation>
    </message>
    <message numerus="yes">
        <source>%lu photos</source>
        <extracomment>src/app/editor/KTMetadataEditorViewController.cpp</extracomment>
        <translation>
            <numerusform>%lu foto</numerusform>
            <numerusform>%lu fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>+02:00, Z or Area/City (-- before negative ones)</source>
        <extracomment>src/cli/ZoneCommand.cpp</extracomment>
        <translation>+02:00, Z o Area/City (-- antes de los negativos)</translation>
    </message>
    <message numerus="yes">
        <source>, %d shown</source>
        <extracomment>src/ui/photos/PhotoPane.cpp</extracomment>
        <translation>
            <numerusform>, %d mostrada</numerusform>
            <numerusform>, %d mostradas</numerusform>
        </translation>
    </message>
    <message>
        <source>--exiftool FOLDER</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>--exiftool CARPETA</translation>
    </message>
    <message>
        <source>0 image, 1 image or sidecar by type, 2 sidecar, 3 both, 4 sidecar where one exists</source>
        <extracomment>src/cli/SaveOptions.cpp</extracomment>
        <translation>0 imagen, 1 imagen o sidecar según el tipo, 2 sidecar, 3 ambos, 4 sidecar donde exista</translation>
    </message>
    <message>
        <source>1/%ld of a second</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>1/%ld de segundo</translation>
    </message>
    <message>
        <source>2 dimensional</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>2 dimensiones</translation>
    </message>
    <message>
        <source>3 dimensional</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>3 dimensiones</translation>
    </message>
    <message>
        <source>35mm Focal Length</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Distancia focal 35 mm</translation>
    </message>
    <message>
        <source>A date and a time with seconds are needed here.</source>
        <extracomment>src/app/editor/KTFieldText.cpp</extracomment>
        <translation>Aquí hacen falta una fecha y una hora con segundos.</translation>
    </message>
    <message>
        <source>A date is typed as 2014-05-03 17:41:09, or as its beginning.</source>
        <extracomment>src/app/editor/KTFieldText.cpp</extracomment>
        <translation>Una fecha se escribe como 2014-05-03 17:41:09, o solo su comienzo.</translation>
    </message>
    <message>
        <source>A date to set; repeatable</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>Una fecha que establecer; repetible</translation>
    </message>
    <message>
        <source>A file of this name exists already.</source>
        <extracomment>src/export/KTPhotoExportManagerOperation.cpp</extracomment>
        <translation>Ya existe un archivo con este nombre.</translation>
    </message>
    <message>
        <source>A group of fields; double click to rename it</source>
        <extracomment>src/ui/inspector/GroupTreeModel.cpp</extracomment>
        <translation>Un grupo de campos; haga doble clic para cambiar su nombre</translation>
    </message>
    <message>
        <source>A neighbouring point must be nearer than this (300)</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Un punto vecino debe estar más cerca que esto (300)</translation>
    </message>
    <message>
        <source>A new folder for the trip</source>
        <extracomment>src/cli/DemoCommand.cpp</extracomment>
        <translation>Una carpeta nueva para el viaje</translation>
    </message>
    <message>
        <source>A path may be a photo, an XMP sidecar or a folder, which is searched at any depth. Photos are written in one step: whatever happens, a file holds what it held before or its new version as a whole.</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>Una ruta puede ser una foto, un sidecar XMP o una carpeta, que se recorre a cualquier profundidad. Las fotos se escriben en un solo paso: pase lo que pase, un archivo contiene lo que tenía antes o su nueva versión completa.</translation>
    </message>
    <message>
        <source>A position in any notation, or a link to a map</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Una posición en cualquier notación o un enlace a un mapa</translation>
    </message>
    <message>
        <source>A secure connection to %@ is not possible: %@.</source>
        <extracomment>src/platform/network/HTTPFailureText.cpp</extracomment>
        <translation>No es posible una conexión segura con %@: %@.</translation>
    </message>
    <message>
        <source>A server of your choice</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Un servidor de su elección</translation>
    </message>
    <message>
        <source>A setting for this run only; repeatable</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>Un ajuste solo para esta ejecución; repetible</translation>
    </message>
    <message>
        <source>A source of map tiles instead of the offline map</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>Una fuente de teselas de mapa en lugar del mapa sin conexión</translation>
    </message>
    <message>
        <source>A subcommand is required</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>Hace falta una orden</translation>
    </message>
    <message>
        <source>A track file could not be imported.</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerControllerCommands.cpp</extracomment>
        <translation>No se pudo importar un archivo de track.</translation>
    </message>
    <message>
        <source>A track file for this run, beside the library; repeatable</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Un archivo de track para esta ejecución, además de la biblioteca; repetible</translation>
    </message>
    <message>
        <source>A track file to draw; repeatable</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>Un archivo de track que dibujar; repetible</translation>
    </message>
    <message>
        <source>About Waymark</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Acerca de Waymark</translation>
    </message>
    <message>
        <source>Actual focal length of the lens when the image was shot, in millimeters. For a zoom lens it is the setting in use.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Distancia focal real del objetivo al tomar la imagen, en milímetros. En un zoom, es la posición utilizada.</translation>
    </message>
    <message>
        <source>Add</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Add %@</source>
        <extracomment>src/app/WaymarkAppControllerFiles.cpp</extracomment>
        <translation>Añadir %@</translation>
    </message>
    <message>
        <source>Add Field</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Añadir campo</translation>
    </message>
    <message>
        <source>Add GPS tracks</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Añadir tracks GPS</translation>
    </message>
    <message>
        <source>Add Group</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Añadir grupo</translation>
    </message>
    <message>
        <source>Add Photos</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Añadir fotos</translation>
    </message>
    <message>
        <source>Add Photos…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Añadir fotos…</translation>
    </message>
    <message>
        <source>Add Tracks</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Añadir tracks</translation>
    </message>
    <message>
        <source>Add Tracks…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Añadir tracks…</translation>
    </message>
    <message>
        <source>Add Whole Group</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Añadir el grupo entero</translation>
    </message>
    <message>
        <source>Add a %@…</source>
        <extracomment>src/app/editor/KTMetadataFieldMultipleValueArrayViewItem.cpp</extracomment>
        <translation>Añadir: %@…</translation>
    </message>
    <message>
        <source>Add keywords from iPhoto</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>Añadir palabras clave de iPhoto</translation>
    </message>
    <message>
        <source>Add photos</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Añadir fotos</translation>
    </message>
    <message>
        <source>Add to Photos</source>
        <extracomment>src/ui/windows/MediaBrowserWindow.cpp</extracomment>
        <translation>Añadir a las fotos</translation>
    </message>
    <message>
        <source>Address</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Dirección postal</translation>
    </message>
    <message>
        <source>Address of a Nominatim server; nothing is sent while it is empty</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Dirección de un servidor Nominatim; mientras esté vacía, no se envía nada</translation>
    </message>
    <message>
        <source>Address pattern of a server, for example https://tile.example.org/{z}/{x}/{y}.png</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Patrón de dirección de un servidor, por ejemplo https://tile.example.org/{z}/{x}/{y}.png</translation>
    </message>
    <message>
        <source>Adds a group at the end</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Añade un grupo al final</translation>
    </message>
    <message>
        <source>Adds the chosen photos and folders, or all of this folder when none is chosen</source>
        <extracomment>src/ui/windows/MediaBrowserWindow.cpp</extracomment>
        <translation>Añade las fotos y carpetas elegidas, o todo lo de esta carpeta si no se elige nada</translation>
    </message>
    <message>
        <source>Adds the field to the group that is chosen above</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Añade el campo al grupo elegido arriba</translation>
    </message>
    <message>
        <source>Adds the group with all its fields</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Añade el grupo con todos sus campos</translation>
    </message>
    <message>
        <source>Adds track files to the library</source>
        <extracomment>src/ui/windows/TrackLibraryWindow.cpp</extracomment>
        <translation>Añade archivos de track a la biblioteca</translation>
    </message>
    <message>
        <source>Adjust Date &amp; Time…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Ajustar fecha y hora…</translation>
    </message>
    <message>
        <source>Adjust Date &amp;&amp; Time…</source>
        <extracomment>src/ui/console/CameraClockView.cpp</extracomment>
        <translation>Ajustar fecha y hora…</translation>
    </message>
    <message>
        <source>After</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>Después</translation>
    </message>
    <message>
        <source>After importing tracks:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Tras importar tracks:</translation>
    </message>
    <message>
        <source>After selecting photos:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Tras seleccionar fotos:</translation>
    </message>
    <message>
        <source>Aim the image direction at the place shown</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Apuntar la dirección de la imagen al lugar mostrado</translation>
    </message>
    <message>
        <source>All Fields</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Todos los campos</translation>
    </message>
    <message>
        <source>All Photos</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Todas las fotos</translation>
    </message>
    <message>
        <source>All Waypoints</source>
        <extracomment>src/geotagging/KTAppTrackPickerController.cpp</extracomment>
        <translation>Todos los waypoints</translation>
    </message>
    <message>
        <source>All files</source>
        <extracomment>src/ui/window/WindowPresenter.cpp</extracomment>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>All loaded photos, not only the selected ones</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Todas las fotos cargadas, no solo las seleccionadas</translation>
    </message>
    <message>
        <source>All messages</source>
        <extracomment>src/collection/KTPhotoOperationWindowController.cpp</extracomment>
        <translation>Todos los mensajes</translation>
    </message>
    <message>
        <source>Also photos that already carry a location</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>También las fotos que ya tienen ubicación</translation>
    </message>
    <message>
        <source>Also the date of digitization</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>También la fecha de digitalización</translation>
    </message>
    <message>
        <source>Altitude</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Altitud</translation>
    </message>
    <message>
        <source>An export is in progress. Are you sure you want to quit?</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Hay una exportación en curso. ¿Seguro que desea salir?</translation>
    </message>
    <message>
        <source>An unknown error occurred when writing to the file.</source>
        <extracomment>src/metadata/KTExifTool.cpp</extracomment>
        <translation>Se produjo un error desconocido al escribir en el archivo.</translation>
    </message>
    <message>
        <source>Another photo of this export has the same name.</source>
        <extracomment>src/export/KTPhotoExportManagerOperation.cpp</extracomment>
        <translation>Otra foto de esta exportación tiene el mismo nombre.</translation>
    </message>
    <message>
        <source>Aperture</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Abertura</translation>
    </message>
    <message>
        <source>Aperture at which the image was shot, as f-number. A smaller number means a wider opening, more light and less depth of field.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Abertura con la que se tomó la imagen, como número f. Un número menor significa una abertura mayor, más luz y menos profundidad de campo.</translation>
    </message>
    <message>
        <source>Apply</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Aplicar</translation>
    </message>
    <message numerus="yes">
        <source>Are you sure you want to remove the GPS metadata (latitude, longitude, altitude &amp; GPS date-time) from %d photos?</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>
            <numerusform>¿Seguro que desea quitar los metadatos GPS (latitud, longitud, altitud y fecha y hora GPS) de %d foto?</numerusform>
            <numerusform>¿Seguro que desea quitar los metadatos GPS (latitud, longitud, altitud y fecha y hora GPS) de %d fotos?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Are you sure you want to remove the image direction metadata from %d photos?</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>
            <numerusform>¿Seguro que desea quitar los metadatos de dirección de la imagen de %d foto?</numerusform>
            <numerusform>¿Seguro que desea quitar los metadatos de dirección de la imagen de %d fotos?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Are you sure you want to remove the location shown metadata (latitude shown &amp; longitude shown) from %d photos?</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>
            <numerusform>¿Seguro que desea quitar los metadatos de la ubicación mostrada (latitud y longitud mostradas) de %d foto?</numerusform>
            <numerusform>¿Seguro que desea quitar los metadatos de la ubicación mostrada (latitud y longitud mostradas) de %d fotos?</numerusform>
        </translation>
    </message>
    <message>
        <source>Arguments</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>Argumentos</translation>
    </message>
    <message>
        <source>As the Tile Map Service does</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Como hace Tile Map Service</translation>
    </message>
    <message>
        <source>Attribution:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Atribución:</translation>
    </message>
    <message>
        <source>Backup folder</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Carpeta de copias de seguridad</translation>
    </message>
    <message>
        <source>Batch</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Por lotes</translation>
    </message>
    <message>
        <source>Before</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>Antes</translation>
    </message>
    <message>
        <source>Begin</source>
        <extracomment>src/ui/windows/TrackListModel.cpp</extracomment>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Begin Where the Map Is Now</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Empezar donde está ahora el mapa</translation>
    </message>
    <message>
        <source>Begin where the map was last</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Empezar donde estaba el mapa la última vez</translation>
    </message>
    <message>
        <source>Both criteria must hold, not either</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Deben cumplirse ambos criterios, no uno de los dos</translation>
    </message>
    <message>
        <source>Brief summary of what the image shows, like the headline of a newspaper article. It goes with the description and does not replace it.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Resumen breve de lo que muestra la imagen, como el titular de un artículo de prensa. Acompaña a la descripción y no la sustituye.</translation>
    </message>
    <message>
        <source>Brings another of the selected photos to the front</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Trae al frente otra de las fotos seleccionadas</translation>
    </message>
    <message>
        <source>By the lake</source>
        <extracomment>src/cli/DemoCommand.cpp</extracomment>
        <translation>Junto al lago</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>ORDEN</translation>
    </message>
    <message>
        <source>Cache folder</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Carpeta de caché</translation>
    </message>
    <message>
        <source>Cache:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Caché:</translation>
    </message>
    <message>
        <source>Camera</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>Camera Make</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Fabricante de la cámara</translation>
    </message>
    <message>
        <source>Camera Model</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Modelo de cámara</translation>
    </message>
    <message>
        <source>Camera clock</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Reloj de la cámara</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Cancel Import</source>
        <extracomment>src/ui/support/ImportProgressLine.cpp</extracomment>
        <translation>Cancelar importación</translation>
    </message>
    <message>
        <source>Category</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Centre</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Centre:</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Centro:</translation>
    </message>
    <message>
        <source>Certificate</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Certificado</translation>
    </message>
    <message>
        <source>Change Transitions</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Cambiar transiciones</translation>
    </message>
    <message>
        <source>Change the permissions of the folder (chmod u+rwx), or its owner.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Cambie los permisos de la carpeta (chmod u+rwx) o su propietario.</translation>
    </message>
    <message>
        <source>Changes</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Cambios</translation>
    </message>
    <message>
        <source>Check All</source>
        <extracomment>src/ui/inspector/PasteTagsSheet.cpp</extracomment>
        <translation>Marcar todo</translation>
    </message>
    <message>
        <source>Check None</source>
        <extracomment>src/ui/inspector/PasteTagsSheet.cpp</extracomment>
        <translation>No marcar nada</translation>
    </message>
    <message>
        <source>Check the installation and say what to do</source>
        <extracomment>src/cli/DoctorCommand.cpp</extracomment>
        <translation>Comprobar la instalación y decir qué hacer</translation>
    </message>
    <message>
        <source>Check what was written</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>Comprobar lo que se escribió</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Elegir carpeta…</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <extracomment>src/ui/window/WindowPresenter.cpp</extracomment>
        <translation>Elegir una carpeta</translation>
    </message>
    <message>
        <source>Choose a template and remove it from the list</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Elija una plantilla y quítela de la lista</translation>
    </message>
    <message>
        <source>Choose another one in the preferences, or turn backups off.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Elija otra en las preferencias o desactive las copias de seguridad.</translation>
    </message>
    <message>
        <source>Choose another time zone</source>
        <extracomment>src/ui/console/CameraClockView.cpp</extracomment>
        <translation>Elegir otra zona horaria</translation>
    </message>
    <message>
        <source>Choose files</source>
        <extracomment>src/ui/window/WindowPresenter.cpp</extracomment>
        <translation>Elegir archivos</translation>
    </message>
    <message>
        <source>Choose the photos to be geotagged</source>
        <extracomment>src/ui/photos/EmptyPhotosView.cpp</extracomment>
        <translation>Elegir las fotos que se van a geoetiquetar</translation>
    </message>
    <message>
        <source>Choose track files of a GPS receiver</source>
        <extracomment>src/ui/photos/EmptyPhotosView.cpp</extracomment>
        <translation>Elegir archivos de track de un receptor GPS</translation>
    </message>
    <message>
        <source>Choose where the backups go</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Elegir adónde van las copias de seguridad</translation>
    </message>
    <message>
        <source>Choose which fields are shown, in which groups</source>
        <extracomment>src/ui/inspector/InspectorPane.cpp</extracomment>
        <translation>Elegir qué campos se muestran y en qué grupos</translation>
    </message>
    <message>
        <source>Choose, save and remove arrangements of fields</source>
        <extracomment>src/ui/inspector/InspectorPane.cpp</extracomment>
        <translation>Elegir, guardar y quitar disposiciones de campos</translation>
    </message>
    <message>
        <source>City</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Ciudad</translation>
    </message>
    <message>
        <source>City of the photographer's business address, not the city where the image was shot.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Ciudad de la dirección profesional del fotógrafo, no la ciudad donde se tomó la imagen.</translation>
    </message>
    <message>
        <source>City shown</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Ciudad mostrada</translation>
    </message>
    <message>
        <source>City where the photo was taken</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Ciudad donde se tomó la foto</translation>
    </message>
    <message>
        <source>City, town or village in which the image was shot. Leave it empty out in the country and name the place in the sublocation.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Ciudad, localidad o pueblo donde se tomó la imagen. En campo abierto, déjelo vacío e indique el lugar en la sublocalización.</translation>
    </message>
    <message>
        <source>City, town or village that the image shows. Picture agencies search this field first when they look for a place. Separate several with a vertical bar.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Ciudad, localidad o pueblo que muestra la imagen. Las agencias fotográficas buscan primero en este campo cuando buscan un lugar. Separe varios con una barra vertical.</translation>
    </message>
    <message>
        <source>Clear Value</source>
        <extracomment>src/ui/inspector/FieldRow.cpp</extracomment>
        <translation>Borrar valor</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>src/ui/window/DemoTripCommand.cpp</extracomment>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Collections of tracks</source>
        <extracomment>src/ui/windows/TrackLibraryWindow.cpp</extracomment>
        <translation>Colecciones de tracks</translation>
    </message>
    <message>
        <source>Columns of the photo table</source>
        <extracomment>src/ui/photos/PhotoTableView.cpp</extracomment>
        <translation>Columnas de la tabla de fotos</translation>
    </message>
    <message>
        <source>Commands</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>Órdenes</translation>
    </message>
    <message>
        <source>Common Tags</source>
        <extracomment>src/metadata/KTMetadataFieldManager.cpp</extracomment>
        <translation>Etiquetas comunes</translation>
    </message>
    <message>
        <source>Compact Rows</source>
        <extracomment>src/ui/photos/PhotoTableView.cpp</extracomment>
        <translation>Filas compactas</translation>
    </message>
    <message>
        <source>Compact rows</source>
        <extracomment>src/ui/photos/PhotoViewOptions.cpp</extracomment>
        <translation>Filas compactas</translation>
    </message>
    <message>
        <source>Connect the receiver, wait until it appears as a disk, and try again.</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerControllerCommands.cpp</extracomment>
        <translation>Conecte el receptor, espere a que aparezca como disco e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Contact:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Contacto:</translation>
    </message>
    <message>
        <source>Copied tags</source>
        <extracomment>src/ui/inspector/PasteTagsSheet.cpp</extracomment>
        <translation>Etiquetas copiadas</translation>
    </message>
    <message>
        <source>Copies the date within each selected photo; nothing is written yet</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Copia la fecha dentro de cada foto seleccionada; aún no se escribe nada</translation>
    </message>
    <message>
        <source>Copright URL</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>URL de copyright</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy Address</source>
        <extracomment>src/export/KTPhotoExportOperationController.cpp</extracomment>
        <translation>Copiar dirección</translation>
    </message>
    <message>
        <source>Copy Coordinates</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Copiar coordenadas</translation>
    </message>
    <message>
        <source>Copy Date &amp; Time…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Copiar fecha y hora…</translation>
    </message>
    <message>
        <source>Copy Date Time Created</source>
        <extracomment>src/datetools/KTDateCopyViewController.cpp</extracomment>
        <translation>Copiar fecha y hora de creación</translation>
    </message>
    <message>
        <source>Copy Date Time Digitized</source>
        <extracomment>src/datetools/KTDateCopyViewController.cpp</extracomment>
        <translation>Copiar fecha y hora de digitalización</translation>
    </message>
    <message>
        <source>Copy Date Time Original</source>
        <extracomment>src/datetools/KTDateCopyViewController.cpp</extracomment>
        <translation>Copiar fecha y hora originales</translation>
    </message>
    <message>
        <source>Copy Machine</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Fotocopiadora</translation>
    </message>
    <message>
        <source>Copy Tags</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Copiar etiquetas</translation>
    </message>
    <message>
        <source>Copy a position first, such as “46.05108, 14.50513” or “46° 3′ 3.9″ N, 14° 30′ 18.5″ E”.</source>
        <extracomment>src/app/WaymarkAppControllerCommands.cpp</extracomment>
        <translation>Copie antes una posición, como «46.05108, 14.50513» o «46° 3′ 3.9″ N, 14° 30′ 18.5″ E».</translation>
    </message>
    <message>
        <source>Copy event tag from iPhoto</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>Copiar etiqueta de evento de iPhoto</translation>
    </message>
    <message>
        <source>Copy from:</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Copiar de:</translation>
    </message>
    <message>
        <source>Copy image files into a backup folder before writing to them</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Copiar antes los archivos de imagen a una carpeta de seguridad</translation>
    </message>
    <message>
        <source>Copy one of a photo's dates to others of it</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Copiar una de las fechas de una foto a otras suyas</translation>
    </message>
    <message>
        <source>Copy one of the dates of each photo to others of it, and save</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>Copiar una de las fechas de cada foto a otras de la misma foto y guardar</translation>
    </message>
    <message>
        <source>Copy original image to backup folder</source>
        <extracomment>src/photo/KTPhotoSaving.cpp</extracomment>
        <translation>Copiar imagen original a la carpeta de copias de seguridad</translation>
    </message>
    <message>
        <source>Copy people tag from iPhoto</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>Copiar etiqueta de personas de iPhoto</translation>
    </message>
    <message>
        <source>Copy this date. %1.</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Copiar esta fecha. %1.</translation>
    </message>
    <message>
        <source>Copyright Notice</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Aviso de copyright</translation>
    </message>
    <message>
        <source>Copyright Status</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Estado de copyright</translation>
    </message>
    <message>
        <source>Copyrighted</source>
        <extracomment>src/app/editor/KTCopyrightStatus.cpp</extracomment>
        <translation>Con copyright</translation>
    </message>
    <message>
        <source>Correct the dates of a camera whose clock was wrong</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Corregir las fechas de una cámara cuyo reloj iba mal</translation>
    </message>
    <message>
        <source>Corrected date</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Fecha corregida</translation>
    </message>
    <message>
        <source>Corrected date:</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Fecha corregida:</translation>
    </message>
    <message>
        <source>Could not convert: %@ = %@</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>No se entiende: %@ = %@</translation>
    </message>
    <message>
        <source>Country</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>País</translation>
    </message>
    <message>
        <source>Country Code</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Código de país</translation>
    </message>
    <message>
        <source>Country of the photographer's business address, by its full name.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>País de la dirección profesional del fotógrafo, con su nombre completo.</translation>
    </message>
    <message>
        <source>Country shown</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>País mostrado</translation>
    </message>
    <message>
        <source>Country where the photo was taken</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>País donde se tomó la foto</translation>
    </message>
    <message>
        <source>Create temporary directory</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>Crear carpeta temporal</translation>
    </message>
    <message>
        <source>Create temporary item url</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>Crear URL del elemento temporal</translation>
    </message>
    <message>
        <source>Creation Date</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Fecha de creación</translation>
    </message>
    <message>
        <source>Creation Time</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Hora de creación</translation>
    </message>
    <message>
        <source>Creation date</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Fecha de creación</translation>
    </message>
    <message>
        <source>Creator</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Creador</translation>
    </message>
    <message>
        <source>Creator's Jobtitle</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Cargo del creador</translation>
    </message>
    <message>
        <source>Credit Line</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Línea de crédito</translation>
    </message>
    <message>
        <source>Credit to be printed with the image when it is published, in the wording that the supplier asks for.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Crédito que debe imprimirse junto a la imagen al publicarla, con la redacción que pide el proveedor.</translation>
    </message>
    <message>
        <source>Criteria</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Criterios</translation>
    </message>
    <message>
        <source>Customize</source>
        <extracomment>src/ui/inspector/InspectorPane.cpp</extracomment>
        <translation>Personalizar</translation>
    </message>
    <message>
        <source>Customize Metadata</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Personalizar metadatos</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <extracomment>src/platform/presentation/KTManualPage.cpp</extracomment>
        <translation>DESCRIPCIÓN</translation>
    </message>
    <message>
        <source>Data folder</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Carpeta de datos</translation>
    </message>
    <message>
        <source>Data of the program</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Datos del programa</translation>
    </message>
    <message>
        <source>Date</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Date &amp; Time Tools</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Herramientas de fecha y hora</translation>
    </message>
    <message>
        <source>Date Digitized</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Fecha de digitalización</translation>
    </message>
    <message>
        <source>Date and time at which any of the image's metadata was last changed. Catalogue programs compare it to find out which copy of the metadata is the latest.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Fecha y hora en que se cambió por última vez alguno de los metadatos de la imagen. Los programas de catalogación la comparan para saber qué copia de los metadatos es la más reciente.</translation>
    </message>
    <message>
        <source>Date and time at which the file was created on the disk. It is kept by the file system and may change when the file is copied.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Fecha y hora en que se creó el archivo en el disco. La guarda el sistema de archivos y puede cambiar al copiar el archivo.</translation>
    </message>
    <message>
        <source>Date and time at which the image became digital. The same as the original date for a digital camera; for a scanned print, slide or negative, the time of the scan.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Fecha y hora en que la imagen pasó a ser digital. En una cámara digital coincide con la fecha original; en una copia en papel, diapositiva o negativo escaneados, es la hora del escaneo.</translation>
    </message>
    <message>
        <source>Date and time at which the image itself was last changed, as recorded within the file by the camera or by the program that edited it.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Fecha y hora en que se cambió por última vez la propia imagen, según las registró en el archivo la cámara o el programa con el que se editó.</translation>
    </message>
    <message>
        <source>Date and time at which the image was shot, as the camera's clock showed it. Images are placed along a track by this time, so the clock must be right or corrected.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Fecha y hora en que se tomó la imagen, según el reloj de la cámara. Con esta hora se sitúan las imágenes en un track, así que el reloj debe ir bien o estar corregido.</translation>
    </message>
    <message>
        <source>Date and time of the position, taken from the satellites' clocks and stored in UTC. As it does not depend on the camera's clock, it shows by how much that clock is off.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Fecha y hora de la posición, tomadas de los relojes de los satélites y guardadas en UTC. Como no dependen del reloj de la cámara, muestran cuánto se desvía este.</translation>
    </message>
    <message>
        <source>Date tool</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Herramienta de fecha</translation>
    </message>
    <message>
        <source>Day</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Día</translation>
    </message>
    <message>
        <source>Default</source>
        <extracomment>src/app/editor/KTMetadataCustomizationViewController.cpp</extracomment>
        <translation>Predeterminada</translation>
    </message>
    <message>
        <source>Degrees, east positive</source>
        <extracomment>src/cli/PlaceCommand.cpp</extracomment>
        <translation>Grados, positivos hacia el este</translation>
    </message>
    <message>
        <source>Degrees, north positive</source>
        <extracomment>src/cli/PlaceCommand.cpp</extracomment>
        <translation>Grados, positivos hacia el norte</translation>
    </message>
    <message>
        <source>Degrees, or both coordinates in any usual notation</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Grados, o ambas coordenadas en cualquier notación usual</translation>
    </message>
    <message>
        <source>Delete from the library by the ids that list shows</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>Eliminar de la biblioteca por los identificadores que muestra list</translation>
    </message>
    <message>
        <source>Description</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Description Writer</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Autor de la descripción</translation>
    </message>
    <message>
        <source>Deselect All Photos</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Deseleccionar todas las fotos</translation>
    </message>
    <message>
        <source>Differential</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Diferencial</translation>
    </message>
    <message>
        <source>Differential correction</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>Corrección diferencial</translation>
    </message>
    <message>
        <source>Digitization Attributes</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Atributos de digitalización</translation>
    </message>
    <message>
        <source>Digitized Date Change</source>
        <extracomment>src/photo/KTPhotoDateFamily.cpp</extracomment>
        <translation>Cambio de la fecha de digitalización</translation>
    </message>
    <message>
        <source>Digitized date</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Fecha de digitalización</translation>
    </message>
    <message>
        <source>Dilution of precision: how much the placement of the satellites in the sky enlarges the position's error. 1 is ideal, below 5 is good, above 10 is poor.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Dilución de la precisión: cuánto aumenta el error de la posición por la colocación de los satélites en el cielo. 1 es ideal, menos de 5 es bueno y más de 10 es malo.</translation>
    </message>
    <message>
        <source>Direction</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Direction in which the camera pointed, in degrees clockwise from true north: 0 is north, 90 east, 180 south and 270 west.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Dirección hacia la que apuntaba la cámara, en grados en sentido horario desde el norte verdadero: 0 es el norte, 90 el este, 180 el sur y 270 el oeste.</translation>
    </message>
    <message>
        <source>Direction in which the receiver moved, in degrees clockwise from north: 90 is east, 180 south and 270 west. The camera may have pointed elsewhere.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Dirección en la que se movía el receptor, en grados en sentido horario desde el norte: 90 es el este, 180 el sur y 270 el oeste. La cámara pudo apuntar hacia otro lado.</translation>
    </message>
    <message>
        <source>Discard Changes &amp; Quit</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Descartar cambios y salir</translation>
    </message>
    <message>
        <source>Discard Changes &amp; Remove Photos</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>Descartar cambios y quitar fotos</translation>
    </message>
    <message>
        <source>Disintegrate</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Desintegrar</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Disolver</translation>
    </message>
    <message>
        <source>Distance between the track points</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Distancia entre los puntos de track</translation>
    </message>
    <message>
        <source>Document</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Documento</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Download Tracks from GPS</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Descargar tracks del GPS</translation>
    </message>
    <message>
        <source>Drag a field into a group above, or double click to add it</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Arrastre un campo a un grupo de arriba o haga doble clic para añadirlo</translation>
    </message>
    <message>
        <source>Drag fields and groups, double click to rename, Alt with arrows to move</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Arrastre campos y grupos, haga doble clic para cambiar el nombre, mueva con Alt y las flechas</translation>
    </message>
    <message>
        <source>Draw photos and tracks on a map, as a picture</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>Dibujar fotos y tracks en un mapa, como imagen</translation>
    </message>
    <message>
        <source>Drop photos here</source>
        <extracomment>src/ui/photos/EmptyPhotosView.cpp</extracomment>
        <translation>Suelte fotos aquí</translation>
    </message>
    <message>
        <source>Dropping geotags to this place.</source>
        <extracomment>src/ui/map/MapViewDrops.cpp</extracomment>
        <translation>Se colocan las geoetiquetas en este lugar.</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>ENTORNO</translation>
    </message>
    <message>
        <source>EXIF Version</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Versión EXIF</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>ESTADO DE SALIDA</translation>
    </message>
    <message>
        <source>Each batch makes a folder of its own, named by date and time</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Cada lote crea una carpeta propia, con la fecha y la hora por nombre</translation>
    </message>
    <message>
        <source>Each file holds what it held before, or its new version as a whole. Look whether it has what you changed last.</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Cada archivo contiene lo que tenía antes o su nueva versión completa. Compruebe si tiene lo último que cambió.</translation>
    </message>
    <message>
        <source>Edit</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Edit %@</source>
        <extracomment>src/app/editor/KTMetadataFieldArrayViewItem.cpp</extracomment>
        <translation>Editar %@</translation>
    </message>
    <message>
        <source>Editorial urgency of the image for a news desk, from 1 (most urgent) through 5 (normal) to 8 (least urgent).</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Urgencia editorial de la imagen para una redacción, de 1 (la más urgente) a 8 (la menos urgente); 5 es la normal.</translation>
    </message>
    <message>
        <source>Edits, then photos or folders; an empty value clears</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>Cambios, luego fotos o carpetas; un valor vacío borra</translation>
    </message>
    <message>
        <source>Else at the place below</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Si no, en el lugar indicado abajo</translation>
    </message>
    <message>
        <source>Else in the computer's</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Si no, en la del equipo</translation>
    </message>
    <message>
        <source>Else it becomes the time of writing</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Si no, pasa a ser el momento de la escritura</translation>
    </message>
    <message>
        <source>Else they come from tracks only</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Si no, solo provienen de los tracks</translation>
    </message>
    <message>
        <source>Email</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Correo electrónico</translation>
    </message>
    <message>
        <source>Email address at which clients reach the photographer. Whoever receives the file can read it. Separate several addresses with a comma.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Dirección de correo electrónico en la que los clientes localizan al fotógrafo. Cualquiera que reciba el archivo puede leerla. Separe varias direcciones con una coma.</translation>
    </message>
    <message>
        <source>Enclosing folder</source>
        <extracomment>src/ui/windows/MediaBrowserWindow.cpp</extracomment>
        <translation>Carpeta superior</translation>
    </message>
    <message>
        <source>End</source>
        <extracomment>src/ui/windows/TrackListModel.cpp</extracomment>
        <translation>Fin</translation>
    </message>
    <message>
        <source>End customizing</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Terminar la personalización</translation>
    </message>
    <message>
        <source>End the Slide Show</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Terminar la presentación</translation>
    </message>
    <message>
        <source>Ends the chosen exports; the photos that are finished stay</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Termina las exportaciones elegidas; las fotos ya terminadas se conservan</translation>
    </message>
    <message>
        <source>Errors &amp; warnings</source>
        <extracomment>src/collection/KTPhotoOperationWindowController.cpp</extracomment>
        <translation>Errores y advertencias</translation>
    </message>
    <message>
        <source>Errors only</source>
        <extracomment>src/collection/KTPhotoOperationWindowController.cpp</extracomment>
        <translation>Solo errores</translation>
    </message>
    <message>
        <source>Escape</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Event</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Evento</translation>
    </message>
    <message>
        <source>Everything was done.</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>Se hizo todo.</translation>
    </message>
    <message>
        <source>Exact place that the image shows, such as a building, a landmark or a mountain. Separate several with a vertical bar.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Lugar exacto que muestra la imagen, como un edificio, un monumento o una montaña. Separe varios con una barra vertical.</translation>
    </message>
    <message>
        <source>Exact place where the camera stood, within the city or outside of one: a quarter, a square, a building or a natural feature.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Lugar exacto donde estaba la cámara, dentro o fuera de la ciudad: un barrio, una plaza, un edificio o un elemento natural.</translation>
    </message>
    <message>
        <source>Example Press Ltd.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Example Press Ltd.</translation>
    </message>
    <message>
        <source>Expat</source>
        <extracomment>src/platform/desktop/KTEngineVersions.cpp</extracomment>
        <translation>Expat</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>src/export/KTPhotoExportPluginManager.cpp</extracomment>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Export GPX…</source>
        <extracomment>src/ui/windows/TrackLibraryWindow.cpp</extracomment>
        <translation>Exportar GPX…</translation>
    </message>
    <message>
        <source>Export List</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Lista de exportaciones</translation>
    </message>
    <message>
        <source>Export canceled.</source>
        <extracomment>src/export/KTPhotoExportOperationController.cpp</extracomment>
        <translation>Exportación cancelada.</translation>
    </message>
    <message>
        <source>Export photos with a plug-in</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>Exportar fotos con un complemento</translation>
    </message>
    <message numerus="yes">
        <source>Exported %lu photos</source>
        <extracomment>src/export/slideshow/KTSlideShowExporter.cpp</extracomment>
        <translation>
            <numerusform>%lu foto exportada</numerusform>
            <numerusform>%lu fotos exportadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Exports</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Exportaciones</translation>
    </message>
    <message>
        <source>Exposure Bias</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Compensación de exposición</translation>
    </message>
    <message>
        <source>Exposure Program</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Programa de exposición</translation>
    </message>
    <message>
        <source>Exposure compensation that was dialed in, in steps of exposure value (EV). Negative values make the image darker, positive ones brighter.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Compensación de exposición ajustada, en pasos de valor de exposición (EV). Los valores negativos oscurecen la imagen y los positivos la aclaran.</translation>
    </message>
    <message>
        <source>FILES</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>ARCHIVOS</translation>
    </message>
    <message>
        <source>Fade</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Fundido</translation>
    </message>
    <message>
        <source>Failed</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Fallidas</translation>
    </message>
    <message>
        <source>Failed to create a legitimate source URL.</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>No se pudo crear una URL de origen válida.</translation>
    </message>
    <message>
        <source>Far From Any Track</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Lejos de los tracks</translation>
    </message>
    <message>
        <source>Fetching the city from %@…</source>
        <extracomment>src/photo/KTLinkablePointPlace.cpp</extracomment>
        <translation>Obteniendo la ciudad de %@…</translation>
    </message>
    <message>
        <source>Fetching the country from %@…</source>
        <extracomment>src/photo/KTLinkablePointPlace.cpp</extracomment>
        <translation>Obteniendo el país de %@…</translation>
    </message>
    <message>
        <source>Fetching the location description from %@…</source>
        <extracomment>src/app/AppPreferencesWindowController.cpp</extracomment>
        <translation>Obteniendo la descripción de la ubicación de %@…</translation>
    </message>
    <message>
        <source>Fetching the state from %@…</source>
        <extracomment>src/photo/KTLinkablePointPlace.cpp</extracomment>
        <translation>Obteniendo el estado o provincia de %@…</translation>
    </message>
    <message>
        <source>Field</source>
        <extracomment>src/ui/inspector/PasteTagsSheet.cpp</extracomment>
        <translation>Campo</translation>
    </message>
    <message>
        <source>Field of View</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Ángulo de visión</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>File Name</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>File Size</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Tamaño de archivo</translation>
    </message>
    <message>
        <source>File Type</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Tipo de archivo</translation>
    </message>
    <message>
        <source>File names below thumbnails</source>
        <extracomment>src/ui/photos/PhotoViewOptions.cpp</extracomment>
        <translation>Nombres de archivo bajo las miniaturas</translation>
    </message>
    <message>
        <source>File:</source>
        <extracomment>src/export/KTLocationTraces.cpp</extracomment>
        <translation>File:</translation>
    </message>
    <message>
        <source>Files of this kind</source>
        <extracomment>src/ui/window/WindowPresenter.cpp</extracomment>
        <translation>Archivos de este tipo</translation>
    </message>
    <message>
        <source>Files that can be opened</source>
        <extracomment>src/ui/window/WindowPresenter.cpp</extracomment>
        <translation>Archivos que se pueden abrir</translation>
    </message>
    <message>
        <source>Filter by name or tag</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Filtrar por nombre o etiqueta</translation>
    </message>
    <message>
        <source>Filter photos</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Filtrar fotos</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Filtro: %1</translation>
    </message>
    <message>
        <source>Finishes the file that is being read and leaves out the rest</source>
        <extracomment>src/ui/support/ImportProgressLine.cpp</extracomment>
        <translation>Termina el archivo que se está leyendo y omite el resto</translation>
    </message>
    <message>
        <source>Finishes the photo at work and leaves the others as they are</source>
        <extracomment>src/ui/window/BatchProgressSheet.cpp</extracomment>
        <translation>Termina la foto en curso y deja las demás como están</translation>
    </message>
    <message>
        <source>Fit the Selection</source>
        <extracomment>src/ui/map/MapPane.cpp</extracomment>
        <translation>Ajustar a la selección</translation>
    </message>
    <message>
        <source>Fit the pictures into this size</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>Ajustar las imágenes a este tamaño</translation>
    </message>
    <message>
        <source>Flags</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Banderas</translation>
    </message>
    <message>
        <source>Flash</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Flash</translation>
    </message>
    <message>
        <source>Focal Length</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Distancia focal</translation>
    </message>
    <message>
        <source>Focal length that gives the same field of view on 35mm film, in millimeters. Use it to compare images from cameras with sensors of different size.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Distancia focal que da el mismo ángulo de visión en película de 35 mm, en milímetros. Sirve para comparar imágenes de cámaras con sensores de distinto tamaño.</translation>
    </message>
    <message>
        <source>Folder</source>
        <extracomment>src/ui/windows/MediaBrowserModel.cpp</extracomment>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Folder of a newer one, from the next start on; empty for the one that Waymark came with</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Carpeta de uno más reciente, desde el próximo inicio; vacía para el que trae Waymark</translation>
    </message>
    <message>
        <source>Folders of photos: whether photos can be saved there</source>
        <extracomment>src/cli/DoctorCommand.cpp</extracomment>
        <translation>Carpetas de fotos: si se pueden guardar fotos en ellas</translation>
    </message>
    <message>
        <source>For a clock that was wrong, not only set to another zone</source>
        <extracomment>src/ui/console/CameraClockView.cpp</extracomment>
        <translation>Para un reloj que iba mal, no solo puesto a otra zona</translation>
    </message>
    <message>
        <source>For a clock that was wrong. If it was right but set to another time zone, choose that zone under the camera clock of the main window instead.</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Para un reloj que iba mal. Si iba bien pero estaba puesto a otra zona horaria, elija esa zona en el reloj de la cámara de la ventana principal.</translation>
    </message>
    <message>
        <source>For distances and heights</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Para distancias y alturas</translation>
    </message>
    <message>
        <source>For example 25 m or 80 ft</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Por ejemplo, 25 m u 80 ft</translation>
    </message>
    <message>
        <source>For example 5 min or 90 s</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Por ejemplo, 5 min o 90 s</translation>
    </message>
    <message>
        <source>For {key}</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Para {key}</translation>
    </message>
    <message>
        <source>For {s}, parted by commas</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Para {s}, separados por comas</translation>
    </message>
    <message>
        <source>Forgets the chosen exports; what was exported stays</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Olvida las exportaciones elegidas; lo exportado se conserva</translation>
    </message>
    <message>
        <source>Format of the file, recognized by its content and not by its extension.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Formato del archivo, reconocido por su contenido y no por su extensión.</translation>
    </message>
    <message>
        <source>Forward, or back where negative (-- before negative ones)</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>Hacia delante, o hacia atrás si es negativo (-- antes de los negativos)</translation>
    </message>
    <message>
        <source>From: %1</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>De: %1</translation>
    </message>
    <message>
        <source>Full name of the country in which the image was shot, in the language of your other texts.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Nombre completo del país donde se tomó la imagen, en el idioma de sus demás textos.</translation>
    </message>
    <message>
        <source>Full name of the country that the image shows; it differs from the one where the camera stood for a view across a border. Separate several with a vertical bar.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Nombre completo del país que muestra la imagen; difiere de aquel donde estaba la cámara si la vista cruza una frontera. Separe varios con una barra vertical.</translation>
    </message>
    <message>
        <source>Further categories that refine the main one, in words or codes of at most 32 characters each. Keywords have taken their place in most workflows.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Otras categorías que precisan la principal, en palabras o códigos de 32 caracteres como máximo. En la mayoría de los flujos de trabajo las han sustituido las palabras clave.</translation>
    </message>
    <message>
        <source>GLOBAL OPTIONS</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>OPCIONES GLOBALES</translation>
    </message>
    <message>
        <source>GMT.</source>
        <extracomment>src/geotagging/KTTimeZoneHUDController.cpp</extracomment>
        <translation>GMT</translation>
    </message>
    <message>
        <source>GPS Date &amp; Time</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Fecha y hora GPS</translation>
    </message>
    <message>
        <source>GPS Version ID</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>ID de versión GPS</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>src/app/AppPreferencesWindowController.cpp</extracomment>
        <translation>General</translation>
    </message>
    <message>
        <source>GeoNames (offline)</source>
        <extracomment>src/platform/gazetteer/KTOfflineReverseGeocoder.cpp</extracomment>
        <translation>GeoNames (sin conexión)</translation>
    </message>
    <message>
        <source>Geodetic datum, the model of the earth's shape that latitude and longitude refer to. GPS receivers and web maps use WGS-84.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Datum geodésico, el modelo de la forma de la Tierra al que se refieren la latitud y la longitud. Los receptores GPS y los mapas web usan WGS-84.</translation>
    </message>
    <message>
        <source>Geotag</source>
        <extracomment>src/ui/console/StandardPanel.cpp</extracomment>
        <translation>Geoetiquetar</translation>
    </message>
    <message numerus="yes">
        <source>Geotag %d Photos</source>
        <extracomment>src/geotagging/KTGeotaggingControllerGestures.cpp</extracomment>
        <translation>
            <numerusform>Geoetiquetar %d foto</numerusform>
            <numerusform>Geoetiquetar %d fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>Geotag Photos</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>Geoetiquetar fotos</translation>
    </message>
    <message>
        <source>Geotag only photos between two track points so close to each other</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Geoetiquetar solo las fotos que estén entre dos puntos de track así de próximos entre sí</translation>
    </message>
    <message>
        <source>Geotag only photos that were taken so close in time to a track point</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Geoetiquetar solo las fotos tomadas así de cerca en el tiempo de un punto de track</translation>
    </message>
    <message>
        <source>Geotag to Map Center</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Geoetiquetar en el centro del mapa</translation>
    </message>
    <message>
        <source>Geotag to Map Center and Go On</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Geoetiquetar en el centro del mapa y seguir</translation>
    </message>
    <message>
        <source>Geotag to next track point</source>
        <extracomment>src/ui/console/StandardPanel.cpp</extracomment>
        <translation>Geoetiquetar en el punto de track siguiente</translation>
    </message>
    <message>
        <source>Geotag to point</source>
        <extracomment>src/geotagging/KTGeotaggingControllerGestures.cpp</extracomment>
        <translation>Geoetiquetar en un punto</translation>
    </message>
    <message>
        <source>Geotag to preceding track point</source>
        <extracomment>src/ui/console/StandardPanel.cpp</extracomment>
        <translation>Geoetiquetar en el punto de track anterior</translation>
    </message>
    <message>
        <source>Geotag to time weighted average point</source>
        <extracomment>src/ui/console/StandardPanel.cpp</extracomment>
        <translation>Geoetiquetar en el punto medio ponderado por el tiempo</translation>
    </message>
    <message>
        <source>Geotagging</source>
        <extracomment>src/app/AppPreferencesWindowController.cpp</extracomment>
        <translation>Geoetiquetado</translation>
    </message>
    <message>
        <source>Geotagging Console</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Consola de geoetiquetado</translation>
    </message>
    <message>
        <source>Geotagging photo %u of %u</source>
        <extracomment>src/geotagging/KTGeotaggerSaving.cpp</extracomment>
        <translation>Geoetiquetando la foto %u de %u</translation>
    </message>
    <message>
        <source>Geotags</source>
        <extracomment>src/metadata/KTMetadataFieldManager.cpp</extracomment>
        <translation>Geoetiquetas</translation>
    </message>
    <message>
        <source>Geotags all selected photos at once</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Geoetiqueta de una vez todas las fotos seleccionadas</translation>
    </message>
    <message>
        <source>Geotags the selected photos to a place on the map</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Geoetiqueta las fotos seleccionadas en un lugar del mapa</translation>
    </message>
    <message>
        <source>Give every photo one capture date, and save</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>Dar a todas las fotos una misma fecha de captura y guardar</translation>
    </message>
    <message>
        <source>Give the photos one date, as far as it is known</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Dar a las fotos una misma fecha, hasta donde se conoce</translation>
    </message>
    <message>
        <source>Gives all selected photos this date; nothing is written yet</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Da esta fecha a todas las fotos seleccionadas; aún no se escribe nada</translation>
    </message>
    <message>
        <source>Gives the photos the shifted dates, counted from the saved ones; nothing is written yet</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Da a las fotos las fechas desplazadas, contadas a partir de las guardadas; aún no se escribe nada</translation>
    </message>
    <message>
        <source>Gives the photos their proposed locations; nothing is written yet</source>
        <extracomment>src/ui/console/BatchPanel.cpp</extracomment>
        <translation>Da a las fotos sus ubicaciones propuestas; aún no se escribe nada</translation>
    </message>
    <message>
        <source>Gives the selected photos the place of the selected waypoint</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Da a las fotos seleccionadas el lugar del waypoint seleccionado</translation>
    </message>
    <message>
        <source>Gives the selected photos the place under the crosshairs</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Da a las fotos seleccionadas el lugar que está bajo la cruz</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Ir</translation>
    </message>
    <message>
        <source>Go On</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Go to the coordinates</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Ir a las coordenadas</translation>
    </message>
    <message>
        <source>Group %1</source>
        <extracomment>src/ui/inspector/InspectorGroup.cpp</extracomment>
        <translation>Grupo %1</translation>
    </message>
    <message>
        <source>Groups and Fields</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Grupos y campos</translation>
    </message>
    <message>
        <source>Headline</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Titular</translation>
    </message>
    <message>
        <source>Height of the camera above sea level, in the unit chosen for heights; negative below sea level. The file holds it in meters.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Altura de la cámara sobre el nivel del mar, en la unidad elegida para las alturas; negativa bajo el nivel del mar. El archivo la guarda en metros.</translation>
    </message>
    <message>
        <source>Height of the camera's sensor in millimeters. Together with the width it shows the sensor's format, such as full frame (36 by 24 mm) or APS-C (about 23 by 15 mm).</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Altura del sensor de la cámara en milímetros. Junto con la anchura muestra el formato del sensor, como formato completo (36 × 24 mm) o APS-C (unos 23 × 15 mm).</translation>
    </message>
    <message>
        <source>Help</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Hide Export List</source>
        <extracomment>src/export/KTPhotoExportProgressWindowController.cpp</extracomment>
        <translation>Ocultar lista de exportaciones</translation>
    </message>
    <message>
        <source>Horizontal angle of the scene that the image covers, in degrees, calculated from the focal length and the size of the sensor.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Ángulo horizontal de la escena que abarca la imagen, en grados, calculado a partir de la distancia focal y del tamaño del sensor.</translation>
    </message>
    <message>
        <source>Hour</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Hora</translation>
    </message>
    <message>
        <source>How a photo gives way to the next one</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Cómo una foto da paso a la siguiente</translation>
    </message>
    <message>
        <source>How far the dates are moved: %1</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Cuánto se mueven las fechas: %1</translation>
    </message>
    <message>
        <source>How many of the loaded photos would take their place from this track</source>
        <extracomment>src/ui/windows/TrackListModel.cpp</extracomment>
        <translation>Cuántas de las fotos cargadas tomarían su lugar de este track</translation>
    </message>
    <message>
        <source>How much of the date is known: second, minute, hour, day, month, year</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>Cuánto se conoce de la fecha: second, minute, hour, day, month, year</translation>
    </message>
    <message>
        <source>How much of the date is known; finer parts stay open</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Cuánto se conoce de la fecha; las partes más finas quedan abiertas</translation>
    </message>
    <message>
        <source>IPTC Scene Codes</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Códigos de escena IPTC</translation>
    </message>
    <message>
        <source>IPTC Subject Codes</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Códigos de tema IPTC</translation>
    </message>
    <message>
        <source>ISO 3166-1 code of the country that the image shows. Prefer the code of three letters: IPTC takes no other. Separate several with a vertical bar.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Código ISO 3166-1 del país que muestra la imagen. Prefiera el código de tres letras: IPTC no admite otro. Separe varios con una barra vertical.</translation>
    </message>
    <message>
        <source>ISO 3166-1 code, of two or three capital letters, of the country in which the image was shot.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Código ISO 3166-1, de dos o tres letras mayúsculas, del país donde se tomó la imagen.</translation>
    </message>
    <message>
        <source>Icon</source>
        <extracomment>src/ui/export/ExportListModel.cpp</extracomment>
        <translation>Icono</translation>
    </message>
    <message>
        <source>Ids</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>Identificadores</translation>
    </message>
    <message>
        <source>If you don't save, all changes will be lost.</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Si no los guarda, se perderán todos los cambios.</translation>
    </message>
    <message>
        <source>Image File</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Archivo de imagen</translation>
    </message>
    <message>
        <source>Image Size</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Tamaño de imagen</translation>
    </message>
    <message>
        <source>Image files and sidecars</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Archivos de imagen y sidecars</translation>
    </message>
    <message>
        <source>Image files of open formats, sidecars for raw files</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Imágenes de formatos abiertos, sidecars para raw</translation>
    </message>
    <message>
        <source>Image files only</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Solo archivos de imagen</translation>
    </message>
    <message>
        <source>Import</source>
        <extracomment>src/ui/support/ImportProgressLine.cpp</extracomment>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Import progress</source>
        <extracomment>src/ui/support/ImportProgressLine.cpp</extracomment>
        <translation>Progreso de la importación</translation>
    </message>
    <message>
        <source>Import track files (GPX, NMEA, KML, KMZ, TCX, FIT, IGC, CSV)</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>Importar archivos de track (GPX, NMEA, KML, KMZ, TCX, FIT, IGC, CSV)</translation>
    </message>
    <message>
        <source>Importing track file %lu of %lu</source>
        <extracomment>src/platform/tracklibrary/KTTrackManagerWork.cpp</extracomment>
        <translation>Importando archivo de track %lu de %lu</translation>
    </message>
    <message>
        <source>Import…</source>
        <extracomment>src/ui/windows/TrackLibraryWindow.cpp</extracomment>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>In batches</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Por lotes</translation>
    </message>
    <message>
        <source>In pixels</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>En píxeles</translation>
    </message>
    <message>
        <source>In the standard mode</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>En el modo estándar</translation>
    </message>
    <message>
        <source>In the thumbnail browser</source>
        <extracomment>src/ui/photos/PhotoViewOptions.cpp</extracomment>
        <translation>En el explorador de miniaturas</translation>
    </message>
    <message>
        <source>Indicates the status of flash when the image was shot.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Indica el estado del flash al tomar la imagen.</translation>
    </message>
    <message>
        <source>Indicates whether the image is protected by copyright or free for everyone. Leave it blank when you do not know; that makes no claim either way.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Indica si la imagen está protegida por copyright o es libre para todos. Si no lo sabe, déjelo en blanco; así no se afirma ni lo uno ni lo otro.</translation>
    </message>
    <message>
        <source>Indicates whether the receiver had a valid measurement when the image was shot. When the measurement is void, the position may be the last known one or missing.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Indica si el receptor tenía una medición válida al tomar la imagen. Si la medición no es válida, la posición puede ser la última conocida o faltar.</translation>
    </message>
    <message>
        <source>Indicates whether the receiver measured the altitude too. Three dimensions need at least four satellites; with two dimensions do not rely on the altitude.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Indica si el receptor midió también la altitud. Tres dimensiones requieren al menos cuatro satélites; con dos dimensiones, no se fíe de la altitud.</translation>
    </message>
    <message>
        <source>Indicates whether the receiver refined the position with correction signals from reference stations, which brings it to within a few meters or better.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Indica si el receptor afinó la posición con señales de corrección de estaciones de referencia, lo que la deja a unos pocos metros o aún mejor.</translation>
    </message>
    <message>
        <source>Install Waymark again.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Instale Waymark de nuevo.</translation>
    </message>
    <message>
        <source>Install the package gpsbabel for NMEA, KML, TCX, FIT, IGC and CSV files.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Instale el paquete gpsbabel para los archivos NMEA, KML, TCX, FIT, IGC y CSV.</translation>
    </message>
    <message>
        <source>Install the package libimage-exiftool-perl, or name a folder that holds Image/ExifTool.pm with --exiftool.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Instale el paquete libimage-exiftool-perl o indique con --exiftool una carpeta que contenga Image/ExifTool.pm.</translation>
    </message>
    <message>
        <source>Instructions</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Instrucciones</translation>
    </message>
    <message>
        <source>Instructions of the supplier to whoever publishes the image, such as an embargo or other restrictions.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Instrucciones del proveedor para quien publique la imagen, como un embargo u otras restricciones.</translation>
    </message>
    <message>
        <source>Intellectual Genre</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Género intelectual</translation>
    </message>
    <message>
        <source>Interpolate between the neighbours</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Interpolar entre los puntos vecinos</translation>
    </message>
    <message>
        <source>It failed in %@: %@.</source>
        <extracomment>src/export/KTPluginError.cpp</extracomment>
        <translation>Falló en %@: %@.</translation>
    </message>
    <message>
        <source>It is not exported, because its place could not be removed from it: %@.</source>
        <extracomment>src/export/KTPhotoFileExport.cpp</extracomment>
        <translation>No se exporta, porque no se pudo quitar de ella su lugar: %@.</translation>
    </message>
    <message>
        <source>It was interrupted: the photo being written was finished.</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>Se interrumpió: se terminó la foto que se estaba escribiendo.</translation>
    </message>
    <message>
        <source>It was made for another version of Waymark.</source>
        <extracomment>src/export/KTPluginManifest.cpp</extracomment>
        <translation>Se creó para otra versión de Waymark.</translation>
    </message>
    <message>
        <source>Its library cannot be loaded.</source>
        <extracomment>src/export/KTPluginBundle.cpp</extracomment>
        <translation>No se puede cargar su biblioteca.</translation>
    </message>
    <message>
        <source>Its library is missing.</source>
        <extracomment>src/export/KTPluginManifest.cpp</extracomment>
        <translation>Falta su biblioteca.</translation>
    </message>
    <message>
        <source>Its library was made for another version of Waymark.</source>
        <extracomment>src/export/KTPluginBundle.cpp</extracomment>
        <translation>Su biblioteca se creó para otra versión de Waymark.</translation>
    </message>
    <message>
        <source>Its manifest cannot be read: %@.</source>
        <extracomment>src/export/KTPluginManifest.cpp</extracomment>
        <translation>No se puede leer su manifiesto: %@.</translation>
    </message>
    <message>
        <source>Its manifest is damaged.</source>
        <extracomment>src/export/KTPluginManifest.cpp</extracomment>
        <translation>Su manifiesto está dañado.</translation>
    </message>
    <message>
        <source>Its manifest is not a file.</source>
        <extracomment>src/export/KTPluginManifest.cpp</extracomment>
        <translation>Su manifiesto no es un archivo.</translation>
    </message>
    <message>
        <source>Its size before scaling</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>Su tamaño antes del escalado</translation>
    </message>
    <message>
        <source>Job Identifier</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Identificador de trabajo</translation>
    </message>
    <message>
        <source>Judge and print, write nothing</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Evaluar y mostrar, sin escribir nada</translation>
    </message>
    <message>
        <source>Keep Both</source>
        <extracomment>src/export/KTPhotoExportPluginManager.cpp</extracomment>
        <translation>Conservar ambos</translation>
    </message>
    <message>
        <source>Keep backups there, in a folder named by date and time</source>
        <extracomment>src/cli/SaveOptions.cpp</extracomment>
        <translation>Guardar ahí copias de seguridad, en una carpeta con la fecha y la hora por nombre</translation>
    </message>
    <message>
        <source>Keep the files' modification dates</source>
        <extracomment>src/cli/SaveOptions.cpp</extracomment>
        <translation>Conservar las fechas de modificación de los archivos</translation>
    </message>
    <message>
        <source>Keep the modification date of files</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Conservar la fecha de modificación de los archivos</translation>
    </message>
    <message>
        <source>Keeps the map's present place, scale and source for later starts</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Conserva el lugar, la escala y la fuente actuales del mapa para los próximos inicios</translation>
    </message>
    <message>
        <source>Key:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Clave:</translation>
    </message>
    <message>
        <source>Keyword</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Palabra clave</translation>
    </message>
    <message>
        <source>Keywords</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Palabras clave</translation>
    </message>
    <message>
        <source>Kilometres and metres</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Kilómetros y metros</translation>
    </message>
    <message>
        <source>Kind of view, as codes of six digits from the IPTC Scene NewsCodes: 010100 is a headshot, 011200 an aerial view, 011400 a night scene.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Tipo de vista, como códigos de seis cifras de los NewsCodes de escena de IPTC: 010100 es un retrato de cabeza, 011200 una vista aérea, 011400 una escena nocturna.</translation>
    </message>
    <message>
        <source>Known to the:</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Precisión hasta:</translation>
    </message>
    <message>
        <source>LANGUAGE, LC_ALL, LC_MESSAGES, LANG</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>LANGUAGE, LC_ALL, LC_MESSAGES, LANG</translation>
    </message>
    <message>
        <source>Label</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Etiqueta de color</translation>
    </message>
    <message>
        <source>Largest zoom:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Zoom máximo:</translation>
    </message>
    <message>
        <source>Latitude</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Latitud</translation>
    </message>
    <message>
        <source>Latitude of the camera when the image was shot, in decimal degrees. North of the equator is positive, south of it negative.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Latitud de la cámara al tomar la imagen, en grados decimales. Al norte del ecuador es positiva, al sur negativa.</translation>
    </message>
    <message>
        <source>Latitude of what the image shows, in decimal degrees, for a subject at a distance from the camera. North is positive, south negative.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Latitud de lo que muestra la imagen, en grados decimales, para un motivo alejado de la cámara. El norte es positivo, el sur negativo.</translation>
    </message>
    <message>
        <source>Lays the flags down or sets them upright</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Tumba las banderas o las pone de pie</translation>
    </message>
    <message>
        <source>Leave alone photos that have a location</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>No tocar las fotos que ya tienen ubicación</translation>
    </message>
    <message>
        <source>Leave out where the pictures were taken</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>Omitir dónde se tomaron las imágenes</translation>
    </message>
    <message>
        <source>Leave the altitude alone</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>No tocar la altitud</translation>
    </message>
    <message>
        <source>Length</source>
        <extracomment>src/ui/windows/TrackListModel.cpp</extracomment>
        <translation>Distancia</translation>
    </message>
    <message>
        <source>Lens</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Objetivo</translation>
    </message>
    <message>
        <source>Lens that was on the camera, worked out from the lens data that the camera recorded. Lenses that share an identification number may be mistaken for each other.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Objetivo montado en la cámara, deducido de los datos del objetivo que registró la cámara. Los objetivos que comparten número de identificación pueden confundirse entre sí.</translation>
    </message>
    <message>
        <source>Let altitudes be typed</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Permitir escribir altitudes</translation>
    </message>
    <message>
        <source>Library</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerController.cpp</extracomment>
        <translation>Biblioteca</translation>
    </message>
    <message>
        <source>Licences and sources of data</source>
        <extracomment>src/ui/windows/AboutBox.cpp</extracomment>
        <translation>Licencias y fuentes de datos</translation>
    </message>
    <message>
        <source>Light on dark</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>Claro sobre oscuro</translation>
    </message>
    <message>
        <source>Linkable Point</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>Punto enlazable</translation>
    </message>
    <message>
        <source>Linkable Points</source>
        <extracomment>src/geotagging/KTGeotaggingController.cpp</extracomment>
        <translation>Puntos enlazables</translation>
    </message>
    <message>
        <source>List the metadata fields by key</source>
        <extracomment>src/cli/FieldsCommand.cpp</extracomment>
        <translation>Listar los campos de metadatos por su clave</translation>
    </message>
    <message>
        <source>List what the library holds</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>Listar lo que contiene la biblioteca</translation>
    </message>
    <message>
        <source>Loading image %lu of %lu</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>Cargando imagen %lu de %lu</translation>
    </message>
    <message>
        <source>Location Created</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Ubicación de la toma</translation>
    </message>
    <message>
        <source>Location Shown</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Ubicación mostrada</translation>
    </message>
    <message>
        <source>Log and notes</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Registro y notas</translation>
    </message>
    <message>
        <source>Longitude</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>Longitude of the camera when the image was shot, in decimal degrees. East of Greenwich is positive, west of it negative.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Longitud de la cámara al tomar la imagen, en grados decimales. Al este de Greenwich es positiva, al oeste negativa.</translation>
    </message>
    <message>
        <source>Longitude of what the image shows, in decimal degrees, for a subject at a distance from the camera. East is positive, west negative.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Longitud de lo que muestra la imagen, en grados decimales, para un motivo alejado de la cámara. El este es positivo, el oeste negativo.</translation>
    </message>
    <message>
        <source>Look up the place shown</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Buscar el lugar mostrado</translation>
    </message>
    <message>
        <source>Look up the sample position</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Buscar la posición de muestra</translation>
    </message>
    <message>
        <source>Look up where the photo was taken</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Buscar dónde se tomó la foto</translation>
    </message>
    <message>
        <source>Looking for track points…</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Buscando puntos de track…</translation>
    </message>
    <message>
        <source>Made a small trip in %@: 12 photos (camera clock at UTC%@) and the track of the walk.</source>
        <extracomment>src/cli/DemoCommand.cpp</extracomment>
        <translation>Se creó un pequeño viaje en %@: 12 fotos (reloj de la cámara a UTC%@) y el track del paseo.</translation>
    </message>
    <message>
        <source>Made with Natural Earth</source>
        <extracomment>src/platform/cartography/drawing/KTBaseMapLayer.cpp</extracomment>
        <translation>Hecho con Natural Earth</translation>
    </message>
    <message>
        <source>Main Toolbar</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Barra de herramientas principal</translation>
    </message>
    <message>
        <source>Main subject of the image as a code of at most three letters, agreed with the receiving agency. Subject codes have taken its place, but some agencies still ask for it.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Tema principal de la imagen como código de tres letras como máximo, acordado con la agencia receptora. Lo han sustituido los códigos de tema, pero algunas agencias aún lo piden.</translation>
    </message>
    <message>
        <source>Make a small trip, geotag it and say what to try next</source>
        <extracomment>src/cli/DemoCommand.cpp</extracomment>
        <translation>Crear un pequeño viaje, geoetiquetarlo y decir qué probar después</translation>
    </message>
    <message>
        <source>Make room: a save needs as much as the photo takes, once more.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Libere espacio: guardar una foto ocupa otra vez lo mismo que la foto.</translation>
    </message>
    <message>
        <source>Makes a small trip with a track to try the program on</source>
        <extracomment>src/ui/photos/EmptyPhotosView.cpp</extracomment>
        <translation>Crea un pequeño viaje con un track para probar el programa</translation>
    </message>
    <message>
        <source>Manual</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Manufacturer of the equipment that generated the image.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Fabricante del equipo que generó la imagen.</translation>
    </message>
    <message>
        <source>Map</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Mapa</translation>
    </message>
    <message>
        <source>Map Datum</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Datum del mapa</translation>
    </message>
    <message>
        <source>Map of the slide show</source>
        <extracomment>src/ui/slideshow/SlideShowMap.cpp</extracomment>
        <translation>Mapa de la presentación</translation>
    </message>
    <message>
        <source>Map:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Mapa:</translation>
    </message>
    <message>
        <source>Maps</source>
        <extracomment>src/app/AppPreferencesWindowController.cpp</extracomment>
        <translation>Mapas</translation>
    </message>
    <message>
        <source>Mark for your own workflow, most often the name of a color. Other programs show the color only if they use exactly the same name.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Marca para su propio flujo de trabajo, normalmente el nombre de un color. Otros programas solo muestran el color si usan exactamente el mismo nombre.</translation>
    </message>
    <message>
        <source>Match photos against tracks and write their positions</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Emparejar las fotos con los tracks y escribir sus posiciones</translation>
    </message>
    <message>
        <source>Measurement Mode</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Modo de medición GPS</translation>
    </message>
    <message>
        <source>Measurement active</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>Medición válida</translation>
    </message>
    <message>
        <source>Measurement void</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>Medición no válida</translation>
    </message>
    <message>
        <source>Media Browser</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Explorador de medios</translation>
    </message>
    <message>
        <source>Megabytes on the disk at most</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Megabytes en el disco como máximo</translation>
    </message>
    <message>
        <source>Metadata</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Metadatos</translation>
    </message>
    <message>
        <source>Metadata Date</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Fecha de metadatos</translation>
    </message>
    <message>
        <source>Metadata Time</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Hora de metadatos</translation>
    </message>
    <message>
        <source>Metadata fields</source>
        <extracomment>src/ui/inspector/InspectorPane.cpp</extracomment>
        <translation>Campos de metadatos</translation>
    </message>
    <message>
        <source>Metering Mode</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Modo de medición</translation>
    </message>
    <message>
        <source>Miles and feet</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Millas y pies</translation>
    </message>
    <message>
        <source>Minute</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Minuto</translation>
    </message>
    <message>
        <source>Mod</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Mod</translation>
    </message>
    <message>
        <source>Model name of the camera, scanner or phone that generated the image, as its maker writes it.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Nombre del modelo de la cámara, escáner o teléfono que generó la imagen, tal como lo escribe su fabricante.</translation>
    </message>
    <message>
        <source>Modify Date</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Fecha de modificación</translation>
    </message>
    <message>
        <source>Modify Time</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Hora de modificación</translation>
    </message>
    <message>
        <source>Month</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Mes</translation>
    </message>
    <message>
        <source>Move %@ away and import your tracks again.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Aparte %@ e importe de nuevo sus tracks.</translation>
    </message>
    <message>
        <source>Move In</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Deslizar encima</translation>
    </message>
    <message>
        <source>Move and zoom to the photo</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Mover hasta la foto y encuadrarla</translation>
    </message>
    <message>
        <source>Move and zoom to them</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Mover hasta ahí y encuadrar</translation>
    </message>
    <message>
        <source>Move the capture date from what the files hold, and save</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>Desplazar la fecha de captura a partir de la que contienen los archivos y guardar</translation>
    </message>
    <message>
        <source>Move the date at which the picture was digitized by the same difference</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Mover con la misma diferencia la fecha en que se digitalizó la imagen</translation>
    </message>
    <message>
        <source>Move the file away; then the defaults hold.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Aparte el archivo; entonces valen los ajustes predeterminados.</translation>
    </message>
    <message>
        <source>Move to the photo</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Mover hasta la foto</translation>
    </message>
    <message>
        <source>Move to them</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Mover hasta ahí</translation>
    </message>
    <message>
        <source>Moves the map to these coordinates</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Mueve el mapa a estas coordenadas</translation>
    </message>
    <message>
        <source>Multiple Values</source>
        <extracomment>src/collection/KTTagDetailsWindowController.cpp</extracomment>
        <translation>Varios valores</translation>
    </message>
    <message>
        <source>Multiple values</source>
        <extracomment>src/app/editor/KTMetadataFieldArrayViewItem.cpp</extracomment>
        <translation>Varios valores</translation>
    </message>
    <message>
        <source>NAME</source>
        <extracomment>src/platform/presentation/KTManualPage.cpp</extracomment>
        <translation>NOMBRE</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Name &amp; Date</source>
        <extracomment>src/metadata/KTMetadataFieldManager.cpp</extracomment>
        <translation>Nombre y fecha</translation>
    </message>
    <message>
        <source>Name of the event at which the image was shot. Use the same words for all images of the event, so that they can be found together.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Nombre del evento en el que se tomó la imagen. Use las mismas palabras en todas las imágenes del evento para poder encontrarlas juntas.</translation>
    </message>
    <message>
        <source>Name of the image file, with its extension, as it stands in the folder.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Nombre del archivo de imagen, con su extensión, tal como figura en la carpeta.</translation>
    </message>
    <message>
        <source>Name of the person who wrote, edited or corrected the description of the image.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Nombre de la persona que escribió, editó o corrigió la descripción de la imagen.</translation>
    </message>
    <message>
        <source>Name of the photographer, or of the company where the photographer is not to be named. Separate several names with a semicolon.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Nombre del fotógrafo, o de la empresa si no se debe nombrar al fotógrafo. Separe varios nombres con punto y coma.</translation>
    </message>
    <message>
        <source>Name the place at a position (-- before negative numbers)</source>
        <extracomment>src/cli/PlaceCommand.cpp</extracomment>
        <translation>Nombrar el lugar de una posición (-- antes de números negativos)</translation>
    </message>
    <message>
        <source>Name:</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Names of the people whom the image shows and who can be recognized, one entry for each person.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Nombres de las personas que muestra la imagen y a las que se puede reconocer, una entrada por persona.</translation>
    </message>
    <message>
        <source>Nature of the image as a piece of journalism, and not what it shows. Use a term of the IPTC Genre NewsCodes.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Naturaleza de la imagen como pieza periodística, y no lo que muestra. Use un término de los NewsCodes de género de IPTC.</translation>
    </message>
    <message>
        <source>Nautical miles and metres</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Millas náuticas y metros</translation>
    </message>
    <message>
        <source>Near &amp; Recent</source>
        <extracomment>src/geotagging/KTAppTrackPickerController.cpp</extracomment>
        <translation>Cercanos y recientes</translation>
    </message>
    <message>
        <source>Near Photos</source>
        <extracomment>src/geotagging/KTAppTrackPickerController.cpp</extracomment>
        <translation>Cerca de las fotos</translation>
    </message>
    <message>
        <source>Nearest track point: %@</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Punto de track más cercano: %@</translation>
    </message>
    <message>
        <source>Newscodes</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>NewsCodes</translation>
    </message>
    <message>
        <source>Next Photo</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Foto siguiente</translation>
    </message>
    <message>
        <source>Next point</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>Punto siguiente</translation>
    </message>
    <message>
        <source>Next track point</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>Punto siguiente</translation>
    </message>
    <message>
        <source>No Description.</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>Sin descripción.</translation>
    </message>
    <message>
        <source>No Loaded Tracks</source>
        <extracomment>src/geotagging/KTGeotaggingConsoleViewController.cpp</extracomment>
        <translation>No hay tracks cargados</translation>
    </message>
    <message>
        <source>No Photos Selected</source>
        <extracomment>src/app/editor/KTMetadataEditorViewController.cpp</extracomment>
        <translation>Ninguna foto seleccionada</translation>
    </message>
    <message>
        <source>No address of map tiles is set.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>No se ha indicado ninguna dirección de teselas de mapa.</translation>
    </message>
    <message>
        <source>No capture date</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Sin fecha de captura</translation>
    </message>
    <message>
        <source>No city, state, country</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Sin ciudad, estado o provincia ni país</translation>
    </message>
    <message>
        <source>No correction</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>Sin corrección</translation>
    </message>
    <message>
        <source>No country has this code or name.</source>
        <extracomment>src/app/editor/KTFieldText.cpp</extracomment>
        <translation>Ningún país tiene este código o nombre.</translation>
    </message>
    <message>
        <source>No destination</source>
        <extracomment>src/ui/export/ExportListModel.cpp</extracomment>
        <translation>Sin destino</translation>
    </message>
    <message>
        <source>No distance restriction</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Sin restricción de distancia</translation>
    </message>
    <message>
        <source>No exports yet. Choose photos and a way to share them from the menu “Share”.</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Aún no hay exportaciones. Elija fotos y una forma de compartirlas en el menú «Compartir».</translation>
    </message>
    <message>
        <source>No file can have a creation date in that year.</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>Ningún archivo puede tener una fecha de creación en ese año.</translation>
    </message>
    <message>
        <source>No folder is chosen.</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Ninguna carpeta.</translation>
    </message>
    <message>
        <source>No loaded photos</source>
        <extracomment>src/collection/KTPhotoManagerToolbarController.cpp</extracomment>
        <translation>No hay fotos cargadas</translation>
    </message>
    <message>
        <source>No match: nearest track point %@ away</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Sin coincidencia: punto de track más cercano a %@</translation>
    </message>
    <message>
        <source>No match: track points too far apart</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Sin coincidencia: puntos de track demasiado separados</translation>
    </message>
    <message>
        <source>No photo matches the filter.</source>
        <extracomment>src/ui/photos/PhotoPane.cpp</extracomment>
        <translation>Ninguna foto coincide con el filtro.</translation>
    </message>
    <message>
        <source>No photos</source>
        <extracomment>src/ui/photos/EmptyPhotosView.cpp</extracomment>
        <translation>Sin fotos</translation>
    </message>
    <message>
        <source>No server is set that place names could be fetched from.</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>No se ha indicado ningún servidor del que obtener nombres de lugares.</translation>
    </message>
    <message>
        <source>No time restriction</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Sin restricción de tiempo</translation>
    </message>
    <message>
        <source>No track points</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Sin puntos de track</translation>
    </message>
    <message>
        <source>No tracks of a GPS receiver were found.</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerControllerCommands.cpp</extracomment>
        <translation>No se encontraron tracks de ningún receptor GPS.</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Not geotagged</source>
        <extracomment>src/photo/KTPhotoPresentation.cpp</extracomment>
        <translation>Sin geoetiquetar</translation>
    </message>
    <message>
        <source>Note: Only those values given in True North will be visible in this application.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Nota: En esta aplicación solo se verán los valores referidos al norte verdadero.</translation>
    </message>
    <message>
        <source>Nothing can be written in the folder “%@”: %@</source>
        <extracomment>src/platform/desktop/KTItemReplacement.cpp</extracomment>
        <translation>No se puede escribir nada en la carpeta «%@»: %@</translation>
    </message>
    <message>
        <source>Nothing was recorded here.</source>
        <extracomment>src/ui/map/MapPointing.cpp</extracomment>
        <translation>Aquí no se registró nada.</translation>
    </message>
    <message>
        <source>Notice that claims the copyright, with the year of first publication and the name of the copyright's owner.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Aviso que reivindica el copyright, con el año de la primera publicación y el nombre del titular.</translation>
    </message>
    <message>
        <source>Number or name of the job or assignment that the image belongs to, for your own workflow or that of the client who receives it.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Número o nombre del trabajo o encargo al que pertenece la imagen, para su propio flujo de trabajo o el del cliente que la recibe.</translation>
    </message>
    <message>
        <source>OK</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>OPCIONES</translation>
    </message>
    <message>
        <source>Of JPEG pictures, from 0 to 1</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>De las imágenes JPEG, de 0 a 1</translation>
    </message>
    <message>
        <source>Of photos of a photo library</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>De las fotos de una fototeca</translation>
    </message>
    <message>
        <source>Offline Map</source>
        <extracomment>src/ui/map/MapPane.cpp</extracomment>
        <translation>Mapa sin conexión</translation>
    </message>
    <message>
        <source>Offset</source>
        <extracomment>src/ui/console/TimeZoneList.cpp</extracomment>
        <translation>Desfase</translation>
    </message>
    <message>
        <source>On the map</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>En el mapa</translation>
    </message>
    <message>
        <source>One JSON document on standard output instead of text</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>Un documento JSON en la salida estándar en lugar de texto</translation>
    </message>
    <message>
        <source>Only the tags or only the properties</source>
        <extracomment>src/cli/ReadCommand.cpp</extracomment>
        <translation>Solo las etiquetas o solo las propiedades</translation>
    </message>
    <message>
        <source>Opens what was exported</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Abre lo que se exportó</translation>
    </message>
    <message>
        <source>Operation Log</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Registro de operaciones</translation>
    </message>
    <message>
        <source>Operations</source>
        <extracomment>src/ui/windows/OperationLogWindow.cpp</extracomment>
        <translation>Operaciones</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Organization</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Organización</translation>
    </message>
    <message>
        <source>Orientation</source>
        <extracomment>src/export/KTExportedTags.cpp</extracomment>
        <translation>Orientación</translation>
    </message>
    <message>
        <source>Original Date</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Fecha original</translation>
    </message>
    <message>
        <source>Original Date Change</source>
        <extracomment>src/photo/KTPhotoDateFamily.cpp</extracomment>
        <translation>Cambio de la fecha original</translation>
    </message>
    <message>
        <source>Original Time</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Hora original</translation>
    </message>
    <message>
        <source>Original date</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Fecha original</translation>
    </message>
    <message>
        <source>Original date:</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Fecha original:</translation>
    </message>
    <message>
        <source>Original owner or first supplier of the image: an agency, an archive or a person. It stays the same when others pass the image on.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Propietario original o primer proveedor de la imagen: una agencia, un archivo o una persona. No cambia cuando otros transmiten la imagen.</translation>
    </message>
    <message>
        <source>Other Categories</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Otras categorías</translation>
    </message>
    <message>
        <source>Overwrite original file</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>Sobrescribir archivo original</translation>
    </message>
    <message>
        <source>Overwrite original xmp file</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>Sobrescribir archivo XMP original</translation>
    </message>
    <message>
        <source>Own Tile Server</source>
        <extracomment>src/ui/map/MapPane.cpp</extracomment>
        <translation>Servidor de teselas propio</translation>
    </message>
    <message>
        <source>Owner</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Propietario</translation>
    </message>
    <message>
        <source>Page Curl</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Pasar página</translation>
    </message>
    <message>
        <source>Panes</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Paneles</translation>
    </message>
    <message>
        <source>Paste Coordinates</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Pegar coordenadas</translation>
    </message>
    <message>
        <source>Paste Tags</source>
        <extracomment>src/app/editor/KTCopiedTags.cpp</extracomment>
        <translation>Pegar etiquetas</translation>
    </message>
    <message>
        <source>Paste Tags…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Pegar etiquetas…</translation>
    </message>
    <message numerus="yes">
        <source>Paste the checked values onto %d photos:</source>
        <extracomment>src/ui/inspector/PasteTagsSheet.cpp</extracomment>
        <translation>
            <numerusform>Pegar los valores marcados en %d foto:</numerusform>
            <numerusform>Pegar los valores marcados en %d fotos:</numerusform>
        </translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>People Shown</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Personas mostradas</translation>
    </message>
    <message>
        <source>Person</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Persona</translation>
    </message>
    <message>
        <source>Person or organization that owns the rights in the image, if that is not the photographer.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Persona u organización titular de los derechos de la imagen, si no es el fotógrafo.</translation>
    </message>
    <message>
        <source>Photo</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Photo Description</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Descripción de la foto</translation>
    </message>
    <message>
        <source>Photo Library</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Fototeca</translation>
    </message>
    <message>
        <source>Photo in front</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Foto al frente</translation>
    </message>
    <message>
        <source>Photo library</source>
        <extracomment>src/ui/inspector/FieldRow.cpp</extracomment>
        <translation>Fototeca</translation>
    </message>
    <message>
        <source>Photo of the slide show</source>
        <extracomment>src/ui/slideshow/SlideShowView.cpp</extracomment>
        <translation>Foto de la presentación</translation>
    </message>
    <message>
        <source>Photo shown</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Foto mostrada</translation>
    </message>
    <message>
        <source>Photo: %@</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Foto: %@</translation>
    </message>
    <message>
        <source>Photographer</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Fotógrafo</translation>
    </message>
    <message>
        <source>Photographer Contact Info</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Datos de contacto del fotógrafo</translation>
    </message>
    <message>
        <source>Photos</source>
        <extracomment>src/app/AppPreferencesWindowController.cpp</extracomment>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Photos or whole folders, and the GPS tracks of the same days. Nothing is changed in them before you press "Write Changed Tags".</source>
        <extracomment>src/ui/photos/EmptyPhotosView.cpp</extracomment>
        <translation>Fotos o carpetas enteras, y los tracks GPS de los mismos días. No se cambia nada en ellas hasta que pulse «Escribir etiquetas modificadas».</translation>
    </message>
    <message>
        <source>Photos taken or shown inside these circles are exported without their location, and tracks without their points there.</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Las fotos tomadas o situadas dentro de estos círculos se exportan sin su ubicación, y los tracks sin sus puntos de ahí.</translation>
    </message>
    <message>
        <source>Photos there can be read, but not saved: change the permissions of the folder.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Las fotos de ahí se pueden leer, pero no guardar: cambie los permisos de la carpeta.</translation>
    </message>
    <message>
        <source>Photos, sidecars or folders</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>Fotos, sidecars o carpetas</translation>
    </message>
    <message>
        <source>Photos…</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Fotos…</translation>
    </message>
    <message>
        <source>Pick %1</source>
        <extracomment>src/ui/inspector/PairFieldEditor.cpp</extracomment>
        <translation>Elegir %1</translation>
    </message>
    <message>
        <source>Picture</source>
        <extracomment>src/ui/photos/PhotoListModel.cpp</extracomment>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Pictures</source>
        <extracomment>src/ui/windows/MediaBrowserWindow.cpp</extracomment>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Pictures of the type “%@” cannot be made.</source>
        <extracomment>src/export/KTPhotoFileExport.cpp</extracomment>
        <translation>No se pueden crear imágenes del tipo «%@».</translation>
    </message>
    <message>
        <source>Pixels for each of these</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>Píxeles por cada uno de estos</translation>
    </message>
    <message>
        <source>Place names from:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Nombres de lugares de:</translation>
    </message>
    <message>
        <source>Place names of the sample position</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Nombres del lugar de la posición de muestra</translation>
    </message>
    <message>
        <source>Places that no export tells</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Lugares que ninguna exportación revela</translation>
    </message>
    <message>
        <source>Points</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Puntos</translation>
    </message>
    <message>
        <source>Position or job title of the photographer. It has meaning only together with the creator's name.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Puesto o cargo del fotógrafo. Solo tiene sentido junto con el nombre del creador.</translation>
    </message>
    <message>
        <source>Positions below thumbnails</source>
        <extracomment>src/ui/photos/PhotoViewOptions.cpp</extracomment>
        <translation>Posiciones bajo las miniaturas</translation>
    </message>
    <message>
        <source>Postal Code</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Código postal</translation>
    </message>
    <message>
        <source>Postal code, such as the ZIP code, of the photographer's business address.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Código postal de la dirección profesional del fotógrafo.</translation>
    </message>
    <message>
        <source>Preceding point</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>Punto anterior</translation>
    </message>
    <message>
        <source>Preceding track point</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>Punto anterior</translation>
    </message>
    <message>
        <source>Precision</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Precisión</translation>
    </message>
    <message>
        <source>Preferences</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Preferencias…</translation>
    </message>
    <message>
        <source>Preserve modification date</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>Conservar fecha de modificación</translation>
    </message>
    <message>
        <source>Previous Photo</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Foto anterior</translation>
    </message>
    <message>
        <source>Privacy Zones</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Zonas de privacidad</translation>
    </message>
    <message>
        <source>Privacy Zones…</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Zonas de privacidad…</translation>
    </message>
    <message>
        <source>Program that the camera used to set the exposure; it tells which of aperture and shutter speed the photographer chose.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Programa que usó la cámara para fijar la exposición; indica si el fotógrafo eligió la abertura, la velocidad de obturación o ambas.</translation>
    </message>
    <message>
        <source>Progress</source>
        <extracomment>src/ui/window/BatchProgressSheet.cpp</extracomment>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Proposed Locations</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>Ubicaciones propuestas</translation>
    </message>
    <message>
        <source>Proposed locations</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Ubicaciones propuestas</translation>
    </message>
    <message>
        <source>Public Domain</source>
        <extracomment>src/app/editor/KTCopyrightStatus.cpp</extracomment>
        <translation>Dominio público</translation>
    </message>
    <message>
        <source>Push</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Empujar</translation>
    </message>
    <message>
        <source>Qt</source>
        <extracomment>src/platform/desktop/KTEngineVersions.cpp</extracomment>
        <translation>Qt</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>src/app/WaymarkAppDelegate.cpp</extracomment>
        <translation>Salir</translation>
    </message>
    <message>
        <source>REQUIRED</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>OBLIGATORIO</translation>
    </message>
    <message>
        <source>Radius</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Radio</translation>
    </message>
    <message>
        <source>Radius:</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Radio:</translation>
    </message>
    <message>
        <source>Rating</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Valoración</translation>
    </message>
    <message>
        <source>Read from primary file URL.</source>
        <extracomment>src/photo/KTPhotoReading.cpp</extracomment>
        <translation>Leer de la URL del archivo principal.</translation>
    </message>
    <message>
        <source>Read from sidecar file URL.</source>
        <extracomment>src/photo/KTPhotoReading.cpp</extracomment>
        <translation>Leer de la URL del archivo sidecar.</translation>
    </message>
    <message>
        <source>Read metadata from file</source>
        <extracomment>src/metadata/KTExifTool.cpp</extracomment>
        <translation>Leer metadatos del archivo</translation>
    </message>
    <message>
        <source>Read metadata from image file</source>
        <extracomment>src/photo/KTPhotoReading.cpp</extracomment>
        <translation>Leer metadatos del archivo de imagen</translation>
    </message>
    <message>
        <source>Read metadata from xmp sidecar</source>
        <extracomment>src/photo/KTPhotoReading.cpp</extracomment>
        <translation>Leer metadatos del sidecar XMP</translation>
    </message>
    <message>
        <source>Recent Imports</source>
        <extracomment>src/platform/tracklibrary/KTSmartRecentImportsFile.cpp</extracomment>
        <translation>Recién importados</translation>
    </message>
    <message>
        <source>Recent Tracks</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Tracks recientes</translation>
    </message>
    <message>
        <source>Redo</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Redo %@</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Rehacer: %@</translation>
    </message>
    <message>
        <source>Region of the world in which the image was shot, usually the continent.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Región del mundo donde se tomó la imagen, normalmente el continente.</translation>
    </message>
    <message>
        <source>Region of the world that the image shows, usually a continent. Separate several with a vertical bar.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Región del mundo que muestra la imagen, normalmente un continente. Separe varias con una barra vertical.</translation>
    </message>
    <message>
        <source>Region, city or offset</source>
        <extracomment>src/ui/console/TimeZonePicker.cpp</extracomment>
        <translation>Región, ciudad o desfase</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Remove From List</source>
        <extracomment>src/export/KTPhotoExportOperationController.cpp</extracomment>
        <translation>Quitar de la lista</translation>
    </message>
    <message>
        <source>Remove GPS Tags…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Quitar etiquetas GPS…</translation>
    </message>
    <message>
        <source>Remove GPS tags?</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>¿Quitar las etiquetas GPS?</translation>
    </message>
    <message>
        <source>Remove Image Direction Tags</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>Quitar etiquetas de dirección de la imagen</translation>
    </message>
    <message>
        <source>Remove Image Direction…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Quitar dirección de la imagen…</translation>
    </message>
    <message>
        <source>Remove Location Created Tags</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>Quitar etiquetas de la ubicación de la toma</translation>
    </message>
    <message>
        <source>Remove Location Shown Tags</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Quitar etiquetas de la ubicación mostrada</translation>
    </message>
    <message>
        <source>Remove Location Shown…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Quitar ubicación mostrada…</translation>
    </message>
    <message>
        <source>Remove Photos</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Quitar fotos</translation>
    </message>
    <message>
        <source>Remove Tags</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Quitar etiquetas</translation>
    </message>
    <message>
        <source>Remove Template</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Quitar plantilla</translation>
    </message>
    <message>
        <source>Remove Templates</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Quitar plantillas</translation>
    </message>
    <message>
        <source>Remove Tracks</source>
        <extracomment>src/platform/tracklibrary/KTTrackManagerWork.cpp</extracomment>
        <translation>Quitar tracks</translation>
    </message>
    <message>
        <source>Remove image direction tag?</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>¿Quitar la etiqueta de dirección de la imagen?</translation>
    </message>
    <message>
        <source>Remove latitude &amp; longitude shown</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>Quitar latitud y longitud mostradas</translation>
    </message>
    <message>
        <source>Remove location shown tags?</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>¿Quitar las etiquetas de la ubicación mostrada?</translation>
    </message>
    <message>
        <source>Removes the chosen group or field from the inspector</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Quita del inspector el grupo o campo elegido</translation>
    </message>
    <message>
        <source>Removes the chosen template from the list; its file is deleted by “Done”</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Quita de la lista la plantilla elegida; «Hecho» elimina su archivo</translation>
    </message>
    <message>
        <source>Removes the chosen tracks from the library; the files stay</source>
        <extracomment>src/ui/windows/TrackLibraryWindow.cpp</extracomment>
        <translation>Quita de la biblioteca los tracks elegidos; los archivos se conservan</translation>
    </message>
    <message>
        <source>Remove…</source>
        <extracomment>src/app/editor/KTMetadataCustomizationViewController.cpp</extracomment>
        <translation>Quitar…</translation>
    </message>
    <message>
        <source>Replace</source>
        <extracomment>src/export/KTPhotoExportPluginManager.cpp</extracomment>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Replace an altitude that a photo has</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Reemplazar la altitud que tenga una foto</translation>
    </message>
    <message>
        <source>Replace an image direction that a photo has</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Reemplazar la dirección de la imagen que tenga una foto</translation>
    </message>
    <message>
        <source>Replace files that exist already</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>Reemplazar los archivos que ya existan</translation>
    </message>
    <message>
        <source>Replace the names of the place shown that a photo has</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Reemplazar los nombres del lugar mostrado que tenga una foto</translation>
    </message>
    <message>
        <source>Replace the names that a photo has</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Reemplazar los nombres que tenga una foto</translation>
    </message>
    <message>
        <source>Replace this date. %1.</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Reemplazar esta fecha. %1.</translation>
    </message>
    <message>
        <source>Require</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Exigir</translation>
    </message>
    <message>
        <source>Restore Usual Columns</source>
        <extracomment>src/ui/photos/PhotoTableView.cpp</extracomment>
        <translation>Restablecer columnas habituales</translation>
    </message>
    <message>
        <source>Result</source>
        <extracomment>src/ui/windows/OperationLogModel.cpp</extracomment>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Reveal</source>
        <extracomment>src/ui/export/ExportListModel.cpp</extracomment>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Reveal in map</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Mostrar en el mapa</translation>
    </message>
    <message>
        <source>Reverse Geocode</source>
        <extracomment>src/photo/KTPhotoLocation.cpp</extracomment>
        <translation>Geocodificación inversa</translation>
    </message>
    <message>
        <source>Reverse Geocode Location Created</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Geocodificación inversa de la ubicación de la toma</translation>
    </message>
    <message>
        <source>Reverse Geocode Location Shown</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Geocodificación inversa de la ubicación mostrada</translation>
    </message>
    <message>
        <source>Reverse Geocoding</source>
        <extracomment>src/app/AppPreferencesWindowController.cpp</extracomment>
        <translation>Geocodificación inversa</translation>
    </message>
    <message>
        <source>Reverse geocode</source>
        <extracomment>src/photo/KTPhotoLocation.cpp</extracomment>
        <translation>Geocodificación inversa</translation>
    </message>
    <message>
        <source>Reverse geocode location created</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Geocodificación inversa de la ubicación de la toma</translation>
    </message>
    <message>
        <source>Reverse geocode location shown</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Geocodificación inversa de la ubicación mostrada</translation>
    </message>
    <message>
        <source>Reverse geocoding photo %u of %u</source>
        <extracomment>src/collection/KTPhotoControllerGeocoding.cpp</extracomment>
        <translation>Geocodificación inversa de la foto %u de %u</translation>
    </message>
    <message>
        <source>Revert</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Revertir</translation>
    </message>
    <message>
        <source>Revert to Saved</source>
        <extracomment>src/app/editor/KTMetadataFieldArrayViewItem.cpp</extracomment>
        <translation>Volver a lo guardado</translation>
    </message>
    <message>
        <source>Rights</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Derechos</translation>
    </message>
    <message>
        <source>Ripple</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Onda</translation>
    </message>
    <message>
        <source>Rotate</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Girar</translation>
    </message>
    <message>
        <source>Rows count from the south</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Las filas se cuentan desde el sur</translation>
    </message>
    <message>
        <source>Run with --help for more information.</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>Use --help para saber más.</translation>
    </message>
    <message>
        <source>SEE ALSO</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>VÉASE TAMBIÉN</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <extracomment>src/platform/presentation/KTManualPage.cpp</extracomment>
        <translation>SINOPSIS</translation>
    </message>
    <message>
        <source>Sample latitude:</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Latitud de muestra:</translation>
    </message>
    <message>
        <source>Sample longitude:</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Longitud de muestra:</translation>
    </message>
    <message>
        <source>Satellites</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Satélites</translation>
    </message>
    <message>
        <source>Satellites that the position was measured with. Some receivers give their number, others list them with their identification.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Satélites con los que se midió la posición. Algunos receptores dan su número; otros los enumeran con su identificación.</translation>
    </message>
    <message>
        <source>Save Template</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Guardar plantilla</translation>
    </message>
    <message>
        <source>Save as</source>
        <extracomment>src/ui/window/WindowPresenter.cpp</extracomment>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Save as Text…</source>
        <extracomment>src/ui/windows/OperationLogWindow.cpp</extracomment>
        <translation>Guardar como texto…</translation>
    </message>
    <message>
        <source>Save changes</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Guardar cambios</translation>
    </message>
    <message>
        <source>Save current…</source>
        <extracomment>src/app/editor/KTMetadataCustomizationViewController.cpp</extracomment>
        <translation>Guardar actual…</translation>
    </message>
    <message>
        <source>Save the groups and fields of the inspector as a template named:</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Guardar los grupos y campos del inspector como plantilla con el nombre:</translation>
    </message>
    <message>
        <source>Saved</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Guardadas</translation>
    </message>
    <message>
        <source>Saved date</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Fecha guardada</translation>
    </message>
    <message>
        <source>Saved date:</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Fecha guardada:</translation>
    </message>
    <message>
        <source>Saving changes this field in the photo library, too</source>
        <extracomment>src/ui/inspector/FieldRow.cpp</extracomment>
        <translation>Al guardar, este campo cambia también en la fototeca</translation>
    </message>
    <message>
        <source>Saving to photo %u of %u</source>
        <extracomment>src/collection/KTBatchOperationController.cpp</extracomment>
        <translation>Guardando en la foto %u de %u</translation>
    </message>
    <message>
        <source>Saving writes this list into files only, not into the photo library</source>
        <extracomment>src/ui/inspector/FieldRow.cpp</extracomment>
        <translation>Al guardar, esta lista se escribe solo en los archivos, no en la fototeca</translation>
    </message>
    <message>
        <source>Scene Code</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Código de escena</translation>
    </message>
    <message>
        <source>Scroll</source>
        <extracomment>src/app/AppPreferencesWindowController.cpp</extracomment>
        <translation>Desplazamiento</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search fields</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Buscar campos</translation>
    </message>
    <message>
        <source>Search tags</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Buscar etiquetas</translation>
    </message>
    <message>
        <source>Search time zones</source>
        <extracomment>src/ui/console/TimeZonePicker.cpp</extracomment>
        <translation>Buscar zonas horarias</translation>
    </message>
    <message>
        <source>Second</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Segundo</translation>
    </message>
    <message>
        <source>Seconds for a photo:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Segundos por foto:</translation>
    </message>
    <message>
        <source>Select All Photos</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Seleccionar todas las fotos</translation>
    </message>
    <message>
        <source>Select Next Photo</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Seleccionar foto siguiente</translation>
    </message>
    <message>
        <source>Select Previous Photo</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Seleccionar foto anterior</translation>
    </message>
    <message>
        <source>Select a backup folder</source>
        <extracomment>src/app/AppPreferencesWindowController.cpp</extracomment>
        <translation>Elegir una carpeta de seguridad</translation>
    </message>
    <message>
        <source>Select photos in the main window; they show here.</source>
        <extracomment>src/ui/datetools/CoverFlowView.cpp</extracomment>
        <translation>Seleccione fotos en la ventana principal; se muestran aquí.</translation>
    </message>
    <message>
        <source>Select photos to see and edit their metadata.</source>
        <extracomment>src/ui/inspector/InspectorPane.cpp</extracomment>
        <translation>Seleccione fotos para ver y editar sus metadatos.</translation>
    </message>
    <message>
        <source>Select the next photo after geotagging one</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Seleccionar la foto siguiente tras geoetiquetar una</translation>
    </message>
    <message>
        <source>Selected photos</source>
        <extracomment>src/ui/datetools/CoverFlowView.cpp</extracomment>
        <translation>Fotos seleccionadas</translation>
    </message>
    <message>
        <source>Selects the next photo as soon as this one is geotagged</source>
        <extracomment>src/ui/console/StandardPanel.cpp</extracomment>
        <translation>Selecciona la foto siguiente en cuanto se geoetiqueta esta</translation>
    </message>
    <message>
        <source>Sensitivity to which the camera was set, on the ISO scale. Doubling the number halves the light that is needed and adds noise.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Sensibilidad ajustada en la cámara, en la escala ISO. Al doblar el número, basta la mitad de luz y aumenta el ruido.</translation>
    </message>
    <message>
        <source>Sensor Height</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Altura del sensor</translation>
    </message>
    <message>
        <source>Sensor Width</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Anchura del sensor</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Número de serie</translation>
    </message>
    <message>
        <source>Serial number of the camera body. It tells two bodies of the same model apart, for example when their clocks differ.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Número de serie del cuerpo de la cámara. Distingue dos cuerpos del mismo modelo, por ejemplo si sus relojes difieren.</translation>
    </message>
    <message>
        <source>Server:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Servidor:</translation>
    </message>
    <message>
        <source>Set</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Establecer</translation>
    </message>
    <message>
        <source>Set Date &amp; Time…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Establecer fecha y hora…</translation>
    </message>
    <message>
        <source>Set Location Shown</source>
        <extracomment>src/photo/KTPhotoLocation.cpp</extracomment>
        <translation>Establecer ubicación mostrada</translation>
    </message>
    <message>
        <source>Set fields by key and save</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>Establecer campos por su clave y guardar</translation>
    </message>
    <message>
        <source>Set image direction</source>
        <extracomment>src/geotagging/KTGeotaggingControllerGestures.cpp</extracomment>
        <translation>Establecer dirección de la imagen</translation>
    </message>
    <message>
        <source>Set image location shown</source>
        <extracomment>src/geotagging/KTGeotaggingControllerGestures.cpp</extracomment>
        <translation>Establecer ubicación mostrada</translation>
    </message>
    <message>
        <source>Set the creation date</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>Establecer la fecha de creación</translation>
    </message>
    <message>
        <source>Set the zone of the cameras' clocks, for later runs too, and show the photos' instants</source>
        <extracomment>src/cli/ZoneCommand.cpp</extracomment>
        <translation>Establecer la zona de los relojes de las cámaras, también para ejecuciones posteriores, y mostrar los instantes de las fotos</translation>
    </message>
    <message>
        <source>Settings</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Settings folder</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Carpeta de ajustes</translation>
    </message>
    <message>
        <source>Settings of the slide show</source>
        <extracomment>src/ui/slideshow/SlideShowSettingsView.cpp</extracomment>
        <translation>Ajustes de la presentación</translation>
    </message>
    <message>
        <source>Share</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Compartir</translation>
    </message>
    <message>
        <source>Shift</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Desplazar</translation>
    </message>
    <message>
        <source>Shift dates:</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Desplazar fechas:</translation>
    </message>
    <message>
        <source>Shift every photo that is loaded, whatever is selected</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Desplazar todas las fotos cargadas, sea cual sea la selección</translation>
    </message>
    <message>
        <source>Shift the digitized date, too</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Desplazar también la fecha de digitalización</translation>
    </message>
    <message>
        <source>Short name by which the image can be referred to, such as a file number or the name of a work. It identifies the image; use the description to tell what it shows.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Nombre breve con el que referirse a la imagen, como un número de archivo o el título de una obra. Identifica la imagen; para decir lo que muestra, use la descripción.</translation>
    </message>
    <message>
        <source>Show Destination</source>
        <extracomment>src/export/KTPhotoExportOperationController.cpp</extracomment>
        <translation>Mostrar destino</translation>
    </message>
    <message>
        <source>Show Destination: %1</source>
        <extracomment>src/ui/export/ExportListModel.cpp</extracomment>
        <translation>Mostrar el destino: %1</translation>
    </message>
    <message>
        <source>Show Export List</source>
        <extracomment>src/export/KTPhotoExportProgressWindowController.cpp</extracomment>
        <translation>Mostrar lista de exportaciones</translation>
    </message>
    <message>
        <source>Show all dates in the time zone of the camera clock</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Mostrar todas las fechas en la zona horaria del reloj de la cámara</translation>
    </message>
    <message>
        <source>Show file names below thumbnails</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Mostrar nombres de archivo bajo las miniaturas</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Mostrar en el gestor de archivos</translation>
    </message>
    <message>
        <source>Show or hide the fields of this group</source>
        <extracomment>src/ui/inspector/InspectorGroup.cpp</extracomment>
        <translation>Mostrar u ocultar los campos de este grupo</translation>
    </message>
    <message>
        <source>Show or hide the geotagging console</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Mostrar u ocultar la consola de geoetiquetado</translation>
    </message>
    <message>
        <source>Show or hide the map</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Mostrar u ocultar el mapa</translation>
    </message>
    <message>
        <source>Show or hide the metadata of the selected photos</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Mostrar u ocultar los metadatos de las fotos seleccionadas</translation>
    </message>
    <message>
        <source>Show photos as:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Mostrar fotos como:</translation>
    </message>
    <message>
        <source>Show positions below thumbnails</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Mostrar posiciones bajo las miniaturas</translation>
    </message>
    <message>
        <source>Show progress on standard error</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>Mostrar el progreso en la salida de error estándar</translation>
    </message>
    <message>
        <source>Show the photos as a table</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Mostrar las fotos como tabla</translation>
    </message>
    <message>
        <source>Show the photos as thumbnails</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Mostrar las fotos como miniaturas</translation>
    </message>
    <message>
        <source>Show the tracks near the photos</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Mostrar los tracks cercanos a las fotos</translation>
    </message>
    <message>
        <source>Show the version</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>Mostrar la versión</translation>
    </message>
    <message>
        <source>Show this help</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>Mostrar esta ayuda</translation>
    </message>
    <message>
        <source>Show what photos hold</source>
        <extracomment>src/cli/ReadCommand.cpp</extracomment>
        <translation>Mostrar lo que contienen las fotos</translation>
    </message>
    <message>
        <source>Show:</source>
        <extracomment>src/ui/windows/OperationLogWindow.cpp</extracomment>
        <translation>Mostrar:</translation>
    </message>
    <message>
        <source>Shows all flags on the map</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Muestra todas las banderas en el mapa</translation>
    </message>
    <message>
        <source>Shows all waypoints of the track library</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Muestra todos los waypoints de la biblioteca de tracks</translation>
    </message>
    <message>
        <source>Shows more photos in the table, with smaller pictures</source>
        <extracomment>src/ui/photos/PhotoViewOptions.cpp</extracomment>
        <translation>Muestra más fotos en la tabla, con imágenes más pequeñas</translation>
    </message>
    <message>
        <source>Shows only fields and groups with this in their name</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Muestra solo los campos y grupos que llevan esto en su nombre</translation>
    </message>
    <message>
        <source>Shows only photos with these words in file name, keywords, people or places</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Muestra solo las fotos con estas palabras en nombre de archivo, palabras clave, personas o lugares</translation>
    </message>
    <message>
        <source>Shows or hides the proposed points</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Muestra u oculta los puntos propuestos</translation>
    </message>
    <message>
        <source>Shows the folder that holds this one</source>
        <extracomment>src/ui/windows/MediaBrowserWindow.cpp</extracomment>
        <translation>Muestra la carpeta que contiene esta</translation>
    </message>
    <message>
        <source>Shows the inspector as arranged</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Muestra el inspector tal como se ha dispuesto</translation>
    </message>
    <message>
        <source>Shows the track points around one photo</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Muestra los puntos de track en torno a una foto</translation>
    </message>
    <message>
        <source>Shutter Speed</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Velocidad de obturación</translation>
    </message>
    <message>
        <source>Sidecar</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Sidecar</translation>
    </message>
    <message>
        <source>Sidecars are XMP files beside the photos</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Los sidecars son archivos XMP junto a las fotos</translation>
    </message>
    <message>
        <source>Sidecars only</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Solo sidecars</translation>
    </message>
    <message>
        <source>Sidecars where there are some, else image files</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Sidecars si los hay; si no, archivos de imagen</translation>
    </message>
    <message>
        <source>Size of the thumbnails</source>
        <extracomment>src/ui/photos/PhotoPane.cpp</extracomment>
        <translation>Tamaño de las miniaturas</translation>
    </message>
    <message>
        <source>Size of the thumbnails:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Tamaño de las miniaturas:</translation>
    </message>
    <message>
        <source>Slide Show</source>
        <extracomment>src/export/slideshow/KTSlideShowExporterClass.cpp</extracomment>
        <translation>Presentación</translation>
    </message>
    <message>
        <source>Slide show controls</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Controles de la presentación</translation>
    </message>
    <message>
        <source>Slide show in progress</source>
        <extracomment>src/export/slideshow/KTSlideShowExporter.cpp</extracomment>
        <translation>Presentación en curso</translation>
    </message>
    <message>
        <source>Smallest zoom:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Zoom mínimo:</translation>
    </message>
    <message>
        <source>Some of the selected photos have a date already, which is replaced.</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Algunas de las fotos seleccionadas ya tienen fecha, que se reemplaza.</translation>
    </message>
    <message>
        <source>Something failed; the rest was done. What failed and why is in the output.</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>Algo falló; el resto se hizo. En la salida consta qué falló y por qué.</translation>
    </message>
    <message>
        <source>Source</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Source of the map</source>
        <extracomment>src/ui/map/MapPane.cpp</extracomment>
        <translation>Fuente del mapa</translation>
    </message>
    <message>
        <source>Source of the map: %1</source>
        <extracomment>src/ui/map/MapPane.cpp</extracomment>
        <translation>Fuente del mapa: %1</translation>
    </message>
    <message>
        <source>Source:</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Origen:</translation>
    </message>
    <message>
        <source>Space</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Espacio</translation>
    </message>
    <message>
        <source>Space that the image file takes, in decimal units: a megabyte (MB) is a million bytes.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Espacio que ocupa el archivo de imagen, en unidades decimales: un megabyte (MB) es un millón de bytes.</translation>
    </message>
    <message>
        <source>Speed</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Speed at which the receiver moved when the image was shot, in meters per second, converted from kilometers per hour, miles per hour or knots.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Velocidad a la que se movía el receptor al tomar la imagen, en metros por segundo, convertida de kilómetros por hora, millas por hora o nudos.</translation>
    </message>
    <message>
        <source>Standard</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Estándar</translation>
    </message>
    <message>
        <source>Starts from the date that the photo in front has now</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Parte de la fecha que tiene ahora la foto del frente</translation>
    </message>
    <message>
        <source>State</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Estado/provincia</translation>
    </message>
    <message>
        <source>State or province of the photographer's business address. Leave it empty where addresses go without one.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Estado o provincia de la dirección profesional del fotógrafo. Déjelo vacío donde las direcciones no lo lleven.</translation>
    </message>
    <message>
        <source>State shown</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Estado/provincia mostrado</translation>
    </message>
    <message>
        <source>State where the photo was taken</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Estado/provincia donde se tomó la foto</translation>
    </message>
    <message>
        <source>State, province or other part of a country that the image shows. Separate several with a vertical bar.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Estado, provincia u otra parte de un país que muestra la imagen. Separe varios con una barra vertical.</translation>
    </message>
    <message>
        <source>State, province, canton or other part of the country in which the image was shot.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Estado, provincia, cantón u otra parte del país donde se tomó la imagen.</translation>
    </message>
    <message>
        <source>State/Province</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Estado/provincia</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Stay</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>No mover</translation>
    </message>
    <message>
        <source>Step</source>
        <extracomment>src/ui/windows/OperationLogModel.cpp</extracomment>
        <translation>Paso</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Stop Export &amp; Quit</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Detener exportación y salir</translation>
    </message>
    <message>
        <source>Street and number, or post office box, at which the photographer can be reached for business; the company's name may come first.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Calle y número, o apartado de correos, donde se puede localizar al fotógrafo por motivos profesionales; puede preceder el nombre de la empresa.</translation>
    </message>
    <message>
        <source>Sub-domains:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Subdominios:</translation>
    </message>
    <message>
        <source>Subject Code</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Código de tema</translation>
    </message>
    <message>
        <source>Sublocation</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Sublocalización</translation>
    </message>
    <message>
        <source>Swipe</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Barrido</translation>
    </message>
    <message>
        <source>Synchronize Metadata</source>
        <extracomment>src/photo/KTPhotoChanges.cpp</extracomment>
        <translation>Sincronizar metadatos</translation>
    </message>
    <message>
        <source>Synchronize metadata</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Sincronizar metadatos</translation>
    </message>
    <message>
        <source>Table</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Tabla</translation>
    </message>
    <message>
        <source>Tag</source>
        <extracomment>src/ui/windows/TagDetailsModel.cpp</extracomment>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Tag Details</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Detalles de las etiquetas</translation>
    </message>
    <message>
        <source>Tags</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Tags:</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Etiquetas:</translation>
    </message>
    <message>
        <source>Take from Photo in Front</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Tomar de la foto del frente</translation>
    </message>
    <message>
        <source>Take the last keyword as the event</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Tomar la última palabra clave como evento</translation>
    </message>
    <message>
        <source>Take the same names for the place shown</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Tomar los mismos nombres para el lugar mostrado</translation>
    </message>
    <message>
        <source>Takes the shifts back: the photos get the dates that their files hold</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Deshace los desplazamientos: las fotos reciben las fechas que contienen sus archivos</translation>
    </message>
    <message>
        <source>Telephone</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Telephone number for business, in international form with plus sign and country code. Separate several numbers with a comma.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Número de teléfono profesional, en formato internacional con signo más y prefijo de país. Separe varios números con una coma.</translation>
    </message>
    <message>
        <source>Template name</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Nombre de la plantilla</translation>
    </message>
    <message>
        <source>Templates</source>
        <extracomment>src/app/editor/KTMetadataCustomizationViewController.cpp</extracomment>
        <translation>Plantillas</translation>
    </message>
    <message>
        <source>Templates that you have saved</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Plantillas que ha guardado</translation>
    </message>
    <message>
        <source>Templates:</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Plantillas:</translation>
    </message>
    <message>
        <source>Terms under which the image may be used, in plain words or by the name of a license.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Condiciones en las que se puede usar la imagen, en palabras sencillas o con el nombre de una licencia.</translation>
    </message>
    <message>
        <source>Text</source>
        <extracomment>src/ui/windows/OperationLogModel.cpp</extracomment>
        <translation>Texto</translation>
    </message>
    <message>
        <source>The address of the map tiles contains {key}, but no key is set.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>La dirección de las teselas de mapa contiene {key}, pero no se ha indicado ninguna clave.</translation>
    </message>
    <message>
        <source>The address of the map tiles contains {s}, but no sub-domains are set.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>La dirección de las teselas de mapa contiene {s}, pero no se han indicado subdominios.</translation>
    </message>
    <message>
        <source>The address of the map tiles contains “{%@}”, which means nothing.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>La dirección de las teselas de mapa contiene «{%@}», que no significa nada.</translation>
    </message>
    <message>
        <source>The address of the map tiles must contain {z}, {x} and {y}.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>La dirección de las teselas de mapa debe contener {z}, {x} e {y}.</translation>
    </message>
    <message>
        <source>The arguments are wrong; nothing was read or written.</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>Los argumentos no son válidos; no se leyó ni se escribió nada.</translation>
    </message>
    <message>
        <source>The checked values replace those of the selected photos</source>
        <extracomment>src/ui/inspector/PasteTagsSheet.cpp</extracomment>
        <translation>Los valores marcados reemplazan los de las fotos seleccionadas</translation>
    </message>
    <message>
        <source>The chosen Image::ExifTool cannot be used.</source>
        <extracomment>src/ui/main.cpp</extracomment>
        <translation>No se puede usar el Image::ExifTool elegido.</translation>
    </message>
    <message>
        <source>The clipboard holds no coordinates.</source>
        <extracomment>src/app/WaymarkAppControllerCommands.cpp</extracomment>
        <translation>El portapapeles no contiene coordenadas.</translation>
    </message>
    <message>
        <source>The clock was fast: the right dates are earlier</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>El reloj adelantaba: las fechas correctas son anteriores</translation>
    </message>
    <message>
        <source>The clock was slow: the right dates are later</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>El reloj atrasaba: las fechas correctas son posteriores</translation>
    </message>
    <message>
        <source>The creation date of “%@” cannot be kept: %@</source>
        <extracomment>src/platform/desktop/KTFileDates.cpp</extracomment>
        <translation>No se puede conservar la fecha de creación de «%@»: %@</translation>
    </message>
    <message>
        <source>The date of the photo in front, as its file holds it</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>La fecha de la foto del frente, según la contiene su archivo</translation>
    </message>
    <message>
        <source>The date that the photos get</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>La fecha que reciben las fotos</translation>
    </message>
    <message>
        <source>The date to copy: original, digitized, creation</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>La fecha que se copia: original, digitized, creation</translation>
    </message>
    <message>
        <source>The demo trip could not be made.</source>
        <extracomment>src/ui/window/DemoTripCommand.cpp</extracomment>
        <translation>No se pudo crear el viaje de ejemplo.</translation>
    </message>
    <message>
        <source>The desktop application of Waymark. It opens the given photos, folders and tracks. Where it runs already, the running one opens them.</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>La aplicación de escritorio de Waymark. Abre las fotos, carpetas y tracks indicados. Si ya está en marcha, los abre la que está en marcha.</translation>
    </message>
    <message>
        <source>The export was not finished.</source>
        <extracomment>src/export/KTPhotoExportOperationController.cpp</extracomment>
        <translation>La exportación no se completó.</translation>
    </message>
    <message>
        <source>The file cannot be made.</source>
        <extracomment>src/export/KTPhotoFileExport.cpp</extracomment>
        <translation>No se puede crear el archivo.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <extracomment>src/app/thumbnails/ThumbnailDecoder.cpp</extracomment>
        <translation>No se puede leer el archivo.</translation>
    </message>
    <message>
        <source>The file could not be read to its end: %@</source>
        <extracomment>src/metadata/KTExifTool.cpp</extracomment>
        <translation>No se pudo leer el archivo hasta el final: %@</translation>
    </message>
    <message>
        <source>The file does not hold these values as they were given: %@</source>
        <extracomment>src/photo/KTWrittenValues.cpp</extracomment>
        <translation>El archivo no contiene estos valores tal como se indicaron: %@</translation>
    </message>
    <message>
        <source>The file had changed since it was read.</source>
        <extracomment>src/photo/KTPhotoRefreshing.cpp</extracomment>
        <translation>El archivo había cambiado desde que se leyó.</translation>
    </message>
    <message>
        <source>The file holds no picture that can be shown.</source>
        <extracomment>src/app/thumbnails/KTThumbnailService.cpp</extracomment>
        <translation>El archivo no contiene ninguna imagen que se pueda mostrar.</translation>
    </message>
    <message>
        <source>The file system has no extended attributes. All metadata is safe there.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>El sistema de archivos no tiene atributos extendidos. Todos los metadatos están a salvo ahí.</translation>
    </message>
    <message>
        <source>The file there is a photo of your collection.</source>
        <extracomment>src/export/KTPhotoExportManagerOperation.cpp</extracomment>
        <translation>El archivo que hay ahí es una foto de su colección.</translation>
    </message>
    <message>
        <source>The folder %@ cannot be made.</source>
        <extracomment>src/app/editor/KTUserTemplates.cpp</extracomment>
        <translation>No se puede crear la carpeta %@.</translation>
    </message>
    <message>
        <source>The folder or file to export to</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>La carpeta o el archivo al que se exporta</translation>
    </message>
    <message>
        <source>The following argument was not expected: %@</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>No se esperaba este argumento: %@</translation>
    </message>
    <message>
        <source>The following arguments were not expected: %@</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>No se esperaban estos argumentos: %@</translation>
    </message>
    <message>
        <source>The image file still holds what was cleared: %@</source>
        <extracomment>src/photo/KTPhotoRefreshing.cpp</extracomment>
        <translation>El archivo de imagen aún contiene lo que se borró: %@</translation>
    </message>
    <message>
        <source>The language: English, French, German or Spanish</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>El idioma: inglés, francés, alemán o español</translation>
    </message>
    <message>
        <source>The list of exports cannot be kept: %@ cannot be opened (%@).</source>
        <extracomment>src/export/KTExportHistoryStore.cpp</extracomment>
        <translation>No se puede conservar la lista de exportaciones: no se puede abrir %@ (%@).</translation>
    </message>
    <message>
        <source>The list of places cannot be read.</source>
        <extracomment>src/platform/gazetteer/KTOfflineReverseGeocoder.cpp</extracomment>
        <translation>No se puede leer la lista de lugares.</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <extracomment>src/ui/windows/OperationLogWindow.cpp</extracomment>
        <translation>No se pudo guardar el registro.</translation>
    </message>
    <message>
        <source>The modification date could not be read.</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>No se pudo leer la fecha de modificación.</translation>
    </message>
    <message>
        <source>The modification date of “%@” cannot be set: %@</source>
        <extracomment>src/platform/desktop/KTFileDates.cpp</extracomment>
        <translation>No se puede establecer la fecha de modificación de «%@»: %@</translation>
    </message>
    <message>
        <source>The name under which the menu Templates lists it</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>El nombre con el que aparece en el menú Plantillas</translation>
    </message>
    <message>
        <source>The neighbours must lie no farther apart</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Los puntos vecinos no deben estar más separados que esto</translation>
    </message>
    <message>
        <source>The new file could not be read back: %@</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>No se pudo volver a leer el archivo nuevo: %@</translation>
    </message>
    <message>
        <source>The offline map cannot be read from %@: %@</source>
        <extracomment>src/platform/cartography/drawing/KTBaseMapStore.cpp</extracomment>
        <translation>No se puede leer el mapa sin conexión de %@: %@</translation>
    </message>
    <message>
        <source>The photo can be geotagged.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>La foto se puede geoetiquetar.</translation>
    </message>
    <message>
        <source>The photo has a location already.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>La foto ya tiene ubicación.</translation>
    </message>
    <message>
        <source>The photo has no capture date.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>La foto no tiene fecha de captura.</translation>
    </message>
    <message>
        <source>The photo is more than %@ from the nearest track point, and not between points less than %@ apart.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>La foto está a más de %@ del punto de track más cercano y no está entre puntos separados menos de %@.</translation>
    </message>
    <message>
        <source>The photo is more than %@ from the nearest track point.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>La foto está a más de %@ del punto de track más cercano.</translation>
    </message>
    <message>
        <source>The photo is not between points less than %@ apart.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>La foto no está entre puntos separados menos de %@.</translation>
    </message>
    <message>
        <source>The photo was edited before the names of the place were known, so this was not done.</source>
        <extracomment>src/photo/KTPhotoLocation.cpp</extracomment>
        <translation>La foto se editó antes de que se conocieran los nombres del lugar, así que no se hizo.</translation>
    </message>
    <message>
        <source>The photo's files do not hold the value of “%@”.</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>Los archivos de la foto no contienen el valor de «%@».</translation>
    </message>
    <message>
        <source>The photos that are finished stay.</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Las fotos ya terminadas se conservan.</translation>
    </message>
    <message>
        <source>The photos' times are in</source>
        <extracomment>src/ui/console/CameraClockView.cpp</extracomment>
        <translation>Zona horaria de las fotos:</translation>
    </message>
    <message>
        <source>The photos' times are read as times of this zone:</source>
        <extracomment>src/ui/console/TimeZonePicker.cpp</extracomment>
        <translation>Las horas de las fotos se leen como horas de esta zona:</translation>
    </message>
    <message>
        <source>The picture to write</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>La imagen que se escribe</translation>
    </message>
    <message>
        <source>The picture's colours cannot be converted: its colour profile is not one for red, green and blue.</source>
        <extracomment>src/export/KTPhotoFileExport.cpp</extracomment>
        <translation>Los colores de la imagen no se pueden convertir: su perfil de color no es de rojo, verde y azul.</translation>
    </message>
    <message>
        <source>The plug-in cannot be used.</source>
        <extracomment>src/export/KTPluginError.cpp</extracomment>
        <translation>No se puede usar el complemento.</translation>
    </message>
    <message>
        <source>The plug-in, as the menu "Share" names it</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>El complemento, tal como lo nombra el menú «Compartir»</translation>
    </message>
    <message>
        <source>The positions are in the photos now. Try next:</source>
        <extracomment>src/cli/DemoCommand.cpp</extracomment>
        <translation>Las posiciones ya están en las fotos. Pruebe ahora:</translation>
    </message>
    <message>
        <source>The privacy zone “%@” of the settings cannot be read.</source>
        <extracomment>src/export/KTPhotoExportManagerOperation.cpp</extracomment>
        <translation>No se puede leer la zona de privacidad «%@» de los ajustes.</translation>
    </message>
    <message>
        <source>The program is about to end.</source>
        <extracomment>src/photo/KTPhotoRefreshing.cpp</extracomment>
        <translation>El programa está a punto de cerrarse.</translation>
    </message>
    <message>
        <source>The search for places was cancelled.</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>Se canceló la búsqueda de lugares.</translation>
    </message>
    <message>
        <source>The selected photos: arrow keys, the wheel or a click bring another one to the front</source>
        <extracomment>src/ui/datetools/CoverFlowView.cpp</extracomment>
        <translation>Las fotos seleccionadas: las teclas de flecha, la rueda o un clic traen otra al frente</translation>
    </message>
    <message>
        <source>The server is asked only for photos that you geotag</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Al servidor solo se le pregunta por las fotos que geoetiquete</translation>
    </message>
    <message>
        <source>The size of the map tiles must lie between 64 and 1024.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>El tamaño de las teselas de mapa debe estar entre 64 y 1024.</translation>
    </message>
    <message>
        <source>The standard mode shows the track points around one photo.</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>El modo estándar muestra los puntos de track en torno a una foto.</translation>
    </message>
    <message>
        <source>The tag key "%@" contains a quote or a backslash.</source>
        <extracomment>src/metadata/KTExifTool.cpp</extracomment>
        <translation>La clave de etiqueta «%@» contiene una comilla o una barra invertida.</translation>
    </message>
    <message>
        <source>The template could not be saved.</source>
        <extracomment>src/app/editor/KTMetadataCustomizationViewController.cpp</extracomment>
        <translation>No se pudo guardar la plantilla.</translation>
    </message>
    <message>
        <source>The texts typed before cannot be offered: %@ cannot be opened (%@).</source>
        <extracomment>src/platform/defaults/KTComboBoxStoreController.cpp</extracomment>
        <translation>Los textos escritos antes no se pueden ofrecer: no se puede abrir %@ (%@).</translation>
    </message>
    <message>
        <source>The time zone in which the date is given</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>La zona horaria en la que se indica la fecha</translation>
    </message>
    <message>
        <source>The time zone of both dates</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>La zona horaria de ambas fechas</translation>
    </message>
    <message>
        <source>The time zone to which the camera's clock was set</source>
        <extracomment>src/ui/console/CameraClockView.cpp</extracomment>
        <translation>La zona horaria a la que estaba puesto el reloj de la cámara</translation>
    </message>
    <message>
        <source>The track crosses the 180° meridian here; the point lies on the long way round the earth. Better take a track point beside it.</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>El track cruza aquí el meridiano de 180°; el punto queda en el camino largo alrededor de la Tierra. Es mejor tomar un punto de track contiguo.</translation>
    </message>
    <message>
        <source>The track library</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>La biblioteca de tracks</translation>
    </message>
    <message>
        <source>The track library %@ cannot be opened: %@</source>
        <extracomment>src/platform/tracklibrary/KTTrackStore.cpp</extracomment>
        <translation>No se puede abrir la biblioteca de tracks %@: %@</translation>
    </message>
    <message>
        <source>The track library cannot be used.</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>No se puede usar la biblioteca de tracks.</translation>
    </message>
    <message>
        <source>The track library cannot be used: %@</source>
        <extracomment>src/platform/tracklibrary/KTTrackStore.cpp</extracomment>
        <translation>No se puede usar la biblioteca de tracks: %@</translation>
    </message>
    <message>
        <source>The track library could not be changed.</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerControllerCommands.cpp</extracomment>
        <translation>No se pudo modificar la biblioteca de tracks.</translation>
    </message>
    <message>
        <source>The track library file (":memory:" for none kept)</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>El archivo de la biblioteca de tracks (":memory:" para no conservar ninguna)</translation>
    </message>
    <message>
        <source>The track points before and after it are %@ apart.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Los puntos de track anterior y posterior distan %@ entre sí.</translation>
    </message>
    <message>
        <source>The tracks could not be exported.</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerControllerCommands.cpp</extracomment>
        <translation>No se pudieron exportar los tracks.</translation>
    </message>
    <message>
        <source>The tracks could not be written.</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerControllerCommands.cpp</extracomment>
        <translation>No se pudieron escribir los tracks.</translation>
    </message>
    <message>
        <source>The zooms of the map tiles must lie between 0 and %@, the minimum first.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>Los niveles de zoom de las teselas de mapa deben estar entre 0 y %@, primero el mínimo.</translation>
    </message>
    <message>
        <source>There are no photos in this folder.</source>
        <extracomment>src/ui/windows/MediaBrowserWindow.cpp</extracomment>
        <translation>No hay fotos en esta carpeta.</translation>
    </message>
    <message>
        <source>There are no track points.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>No hay puntos de track.</translation>
    </message>
    <message>
        <source>There is no display. Start it in a desktop session, or set DISPLAY; without one,
the command line does the same work: waymark-cli --help
</source>
        <extracomment>src/ui/main.cpp</extracomment>
        <translation>No hay ninguna pantalla. Inícielo en una sesión de escritorio o defina DISPLAY; sin ella,
la línea de órdenes hace el mismo trabajo: waymark-cli --help
</translation>
    </message>
    <message>
        <source>There is no option %@.</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>No existe la opción %@.</translation>
    </message>
    <message>
        <source>There is no photo at “%@”.</source>
        <extracomment>src/collection/KTPhotoFileSearch.cpp</extracomment>
        <translation>No hay ninguna foto en «%@».</translation>
    </message>
    <message>
        <source>There is no place to keep the creation date of “%@”: %@</source>
        <extracomment>src/platform/desktop/KTFileDates.cpp</extracomment>
        <translation>No hay dónde conservar la fecha de creación de «%@»: %@</translation>
    </message>
    <message>
        <source>There is no setting named "%@".</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>No hay ningún ajuste llamado «%@».</translation>
    </message>
    <message>
        <source>There is no track %@.</source>
        <extracomment>src/platform/tracklibrary/KTTrackStore.cpp</extracomment>
        <translation>No hay ningún track %@.</translation>
    </message>
    <message>
        <source>There is none.</source>
        <extracomment>src/ui/console/StandardPanel.cpp</extracomment>
        <translation>No hay ninguno.</translation>
    </message>
    <message>
        <source>There is not enough memory for the picture.</source>
        <extracomment>src/export/KTPhotoFileExport.cpp</extracomment>
        <translation>No hay memoria suficiente para la imagen.</translation>
    </message>
    <message>
        <source>This cannot be typed.</source>
        <extracomment>src/app/editor/KTFieldText.cpp</extracomment>
        <translation>Esto no se puede escribir aquí.</translation>
    </message>
    <message>
        <source>This field has changes that are not saved. Its menu reverts them.</source>
        <extracomment>src/ui/inspector/FieldLabel.cpp</extracomment>
        <translation>Este campo tiene cambios sin guardar. Su menú los revierte.</translation>
    </message>
    <message>
        <source>This file could not be shown before and has not changed since.</source>
        <extracomment>src/app/thumbnails/KTThumbnailService.cpp</extracomment>
        <translation>Este archivo no se pudo mostrar antes y no ha cambiado desde entonces.</translation>
    </message>
    <message>
        <source>This is no latitude, such as 46.05108 or 46° 3′ N.</source>
        <extracomment>src/app/editor/KTMetadataFieldLonLatArrayViewItem.cpp</extracomment>
        <translation>Esto no es una latitud, como 46.05108 o 46° 3′ N.</translation>
    </message>
    <message>
        <source>This is no longitude, such as 14.50513 or 14° 30′ E.</source>
        <extracomment>src/app/editor/KTMetadataFieldLonLatArrayViewItem.cpp</extracomment>
        <translation>Esto no es una longitud, como 14.50513 o 14° 30′ E.</translation>
    </message>
    <message>
        <source>This is not a number.</source>
        <extracomment>src/app/editor/KTFieldText.cpp</extracomment>
        <translation>Esto no es un número.</translation>
    </message>
    <message>
        <source>This is not a position.</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Esto no es una posición.</translation>
    </message>
    <message>
        <source>This photo is not one of the export.</source>
        <extracomment>src/export/KTPhotoExportManagerOperation.cpp</extracomment>
        <translation>Esta foto no forma parte de la exportación.</translation>
    </message>
    <message>
        <source>This position does not exist.</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>Esta posición no existe.</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Miniaturas</translation>
    </message>
    <message>
        <source>Tile size:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Tamaño de tesela:</translation>
    </message>
    <message>
        <source>Tiles of a server, shown once it is chosen on the map</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Teselas de un servidor, que se muestran al elegirlo en el mapa</translation>
    </message>
    <message>
        <source>Tiles:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Teselas:</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>src/ui/windows/OperationLogModel.cpp</extracomment>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Time Digitized</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Hora de digitalización</translation>
    </message>
    <message>
        <source>Time There</source>
        <extracomment>src/ui/console/TimeZoneList.cpp</extracomment>
        <translation>Hora local</translation>
    </message>
    <message>
        <source>Time Zone</source>
        <extracomment>src/ui/console/TimeZoneList.cpp</extracomment>
        <translation>Zona horaria</translation>
    </message>
    <message>
        <source>Time Zone of the Camera Clock</source>
        <extracomment>src/ui/console/TimeZonePicker.cpp</extracomment>
        <translation>Zona horaria del reloj de la cámara</translation>
    </message>
    <message>
        <source>Time for which the sensor or film was exposed to light.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Tiempo durante el que el sensor o la película estuvieron expuestos a la luz.</translation>
    </message>
    <message>
        <source>Time to the nearest track point</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Tiempo hasta el punto de track más cercano</translation>
    </message>
    <message>
        <source>Time weighted average point</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>Punto medio</translation>
    </message>
    <message>
        <source>Time zone: %1</source>
        <extracomment>src/ui/console/CameraClockView.cpp</extracomment>
        <translation>Zona horaria: %1</translation>
    </message>
    <message>
        <source>Time zones</source>
        <extracomment>src/ui/console/TimeZonePicker.cpp</extracomment>
        <translation>Zonas horarias</translation>
    </message>
    <message>
        <source>Tip: Edit the distance criteria or even manually geotag the photos.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>Sugerencia: Edite el criterio de distancia o geoetiquete las fotos manualmente.</translation>
    </message>
    <message>
        <source>Tip: Edit the distance or time criteria; or manually geotag the photos.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>Sugerencia: Edite los criterios de distancia o de tiempo, o geoetiquete las fotos manualmente.</translation>
    </message>
    <message>
        <source>Tip: Try adjusting the camera's time zone.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>Sugerencia: Pruebe a ajustar la zona horaria de la cámara.</translation>
    </message>
    <message>
        <source>Tip: Use the date &amp; time setter to add a time to the photo.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>Sugerencia: Añada una hora a la foto con la herramienta de fecha y hora.</translation>
    </message>
    <message>
        <source>Title</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Título</translation>
    </message>
    <message>
        <source>To the map's centre:</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>En el centro:</translation>
    </message>
    <message>
        <source>To the waypoint:</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>En el waypoint:</translation>
    </message>
    <message>
        <source>To: %1</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>A: %1</translation>
    </message>
    <message>
        <source>Track</source>
        <extracomment>src/ui/map/MapItems.cpp</extracomment>
        <translation>Track</translation>
    </message>
    <message>
        <source>Track Direction</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Dirección de movimiento</translation>
    </message>
    <message>
        <source>Track Library</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Biblioteca de tracks</translation>
    </message>
    <message>
        <source>Track files</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>Archivos de track</translation>
    </message>
    <message>
        <source>Track formats</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Formatos de track</translation>
    </message>
    <message>
        <source>Track library</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Biblioteca de tracks</translation>
    </message>
    <message>
        <source>Track point %@ away</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Punto de track a %@</translation>
    </message>
    <message>
        <source>Tracks</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerControllerCommands.cpp</extracomment>
        <translation>Tracks</translation>
    </message>
    <message>
        <source>Tracks and waypoints</source>
        <extracomment>src/ui/windows/TrackLibraryWindow.cpp</extracomment>
        <translation>Tracks y waypoints</translation>
    </message>
    <message>
        <source>Tracks in use</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Tracks en uso</translation>
    </message>
    <message>
        <source>Tracks that you add now are kept until you quit. Your library stays as it is.</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Los tracks que añada ahora se conservan hasta que salga. Su biblioteca queda como está.</translation>
    </message>
    <message>
        <source>Tracks…</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Tracks…</translation>
    </message>
    <message>
        <source>Transition:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Transición:</translation>
    </message>
    <message>
        <source>Try</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Probar</translation>
    </message>
    <message>
        <source>Try the Demo Trip</source>
        <extracomment>src/ui/photos/EmptyPhotosView.cpp</extracomment>
        <translation>Probar el viaje de ejemplo</translation>
    </message>
    <message numerus="yes">
        <source>Unable To Geotag %d Photos</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>No se puede geoetiquetar %d foto</numerusform>
            <numerusform>No se pueden geoetiquetar %d fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>Unable to set the photos metadata using ScriptingBridge</source>
        <extracomment>src/photo/KTiPhotoTool.cpp</extracomment>
        <translation>No se pueden establecer los metadatos de las fotos mediante ScriptingBridge</translation>
    </message>
    <message>
        <source>Undefined</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>Sin definir</translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Undo %@</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Deshacer: %@</translation>
    </message>
    <message>
        <source>Undo Typing</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Deshacer escritura</translation>
    </message>
    <message>
        <source>Units:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Unidades:</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>src/app/editor/KTCopyrightStatus.cpp</extracomment>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Untitled</source>
        <extracomment>src/app/editor/KTUserTemplates.cpp</extracomment>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>Untitled template</source>
        <extracomment>src/app/editor/KTMetadataCustomizationViewController.cpp</extracomment>
        <translation>Plantilla sin título</translation>
    </message>
    <message>
        <source>Urgency</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Urgencia</translation>
    </message>
    <message>
        <source>Usage</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>Uso</translation>
    </message>
    <message>
        <source>Usage Terms</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Condiciones de uso</translation>
    </message>
    <message>
        <source>Usage: %@</source>
        <extracomment>src/platform/presentation/KTManualPage.cpp</extracomment>
        <translation>Uso: %@</translation>
    </message>
    <message>
        <source>Use Batch Mode</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Usar modo por lotes</translation>
    </message>
    <message>
        <source>Use Time Zone</source>
        <extracomment>src/ui/console/TimeZonePicker.cpp</extracomment>
        <translation>Usar zona horaria</translation>
    </message>
    <message>
        <source>Use the distance criterion</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Usar el criterio de distancia</translation>
    </message>
    <message>
        <source>Use the place between the two track points that the time tells</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Usar el lugar entre los dos puntos de track que corresponde a la hora</translation>
    </message>
    <message>
        <source>Use the time criterion</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Usar el criterio de tiempo</translation>
    </message>
    <message>
        <source>Use the track point that is nearest in time</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Usar el punto de track más cercano en el tiempo</translation>
    </message>
    <message>
        <source>Use this Image::ExifTool library folder</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>Usar esta carpeta de la biblioteca Image::ExifTool</translation>
    </message>
    <message>
        <source>Use this settings file instead of the user's</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>Usar este archivo de ajustes en lugar del propio del usuario</translation>
    </message>
    <message>
        <source>Value</source>
        <extracomment>src/ui/inspector/PasteTagsSheet.cpp</extracomment>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Values of %1</source>
        <extracomment>src/ui/inspector/LineFieldEditor.cpp</extracomment>
        <translation>Valores de %1</translation>
    </message>
    <message>
        <source>Version of the EXIF standard that the camera followed, in four digits: 0232 stands for EXIF 2.32.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Versión de la norma EXIF que seguía la cámara, en cuatro cifras: 0232 significa EXIF 2.32.</translation>
    </message>
    <message>
        <source>Version of the EXIF standard's GPS part that the position data follows. It is written whenever an image is geotagged.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Versión de la parte GPS de la norma EXIF que siguen los datos de posición. Se escribe siempre que se geoetiqueta una imagen.</translation>
    </message>
    <message>
        <source>View</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Ver</translation>
    </message>
    <message>
        <source>View Options</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Opciones de visualización</translation>
    </message>
    <message>
        <source>Warning</source>
        <extracomment>src/ui/windows/OperationLogModel.cpp</extracomment>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Waves break over the lighthouse of La Jument during the winter storm.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Las olas rompen contra el faro de La Jument durante el temporal de invierno.</translation>
    </message>
    <message>
        <source>Way in which the camera measured the light: over the whole frame, around its center or at a single spot.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Forma en que la cámara midió la luz: en todo el encuadre, en torno a su centro o en un solo punto.</translation>
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
        <translation>Waymark geoetiqueta fotos a partir de tracks GPS y edita sus metadatos.</translation>
    </message>
    <message>
        <source>Waymark requires Qt 6.4 or later</source>
        <extracomment>src/app/WaymarkAppDelegate.cpp</extracomment>
        <translation>Waymark requiere Qt 6.4 o posterior</translation>
    </message>
    <message>
        <source>Waymark requires a newer version of Qt</source>
        <extracomment>src/app/WaymarkAppDelegate.cpp</extracomment>
        <translation>Waymark requiere una versión más reciente de Qt</translation>
    </message>
    <message>
        <source>Waymark was ended while it wrote to photos.</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Waymark se cerró mientras escribía en fotos.</translation>
    </message>
    <message>
        <source>Waymark's own data, offline</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Datos propios de Waymark, sin conexión</translation>
    </message>
    <message>
        <source>Waypoint</source>
        <extracomment>src/ui/windows/TrackListModel.cpp</extracomment>
        <translation>Waypoint</translation>
    </message>
    <message>
        <source>Waypoints…</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Waypoints…</translation>
    </message>
    <message>
        <source>Web URL</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>URL web</translation>
    </message>
    <message>
        <source>Web address of a certificate that proves the rights in the image, such as its entry at a rights registry.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Dirección web de un certificado que acredita los derechos de la imagen, como su inscripción en un registro de derechos.</translation>
    </message>
    <message>
        <source>Web address of a page that states who owns the image and how it may be used. Search engines link to it from their image results.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Dirección web de una página que indica de quién es la imagen y cómo se puede usar. Los buscadores la enlazan desde sus resultados de imágenes.</translation>
    </message>
    <message>
        <source>Web address of the photographer's own site or portfolio, in full. Separate several addresses with a comma.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Dirección web del sitio o portafolio del fotógrafo, completa. Separe varias direcciones con una coma.</translation>
    </message>
    <message>
        <source>What %@ answered is not a place. Is it a Nominatim server?</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>Lo que respondió %@ no es un lugar. ¿Es un servidor Nominatim?</translation>
    </message>
    <message>
        <source>What %@ sent is far larger than a map tile.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileStore.cpp</extracomment>
        <translation>Lo que envió %@ es mucho mayor que una tesela de mapa.</translation>
    </message>
    <message>
        <source>What %@ sent is not a map tile.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileStore.cpp</extracomment>
        <translation>Lo que envió %@ no es una tesela de mapa.</translation>
    </message>
    <message>
        <source>What it does when another photo is shown</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Qué hace al mostrarse otra foto</translation>
    </message>
    <message>
        <source>What the button makes of the photo in front, and of the first and the last one</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>Qué hace el botón con la foto del frente y con la primera y la última</translation>
    </message>
    <message>
        <source>What the clock should have shown: the difference follows from it</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Lo que debería haber mostrado el reloj: de ahí resulta la diferencia</translation>
    </message>
    <message>
        <source>What the image is about, as codes of eight digits from the IPTC Subject NewsCodes: 15000000 is sport, 15054000 soccer. News agencies sort incoming images by them.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>De qué trata la imagen, como códigos de ocho cifras de los NewsCodes de tema de IPTC: 15000000 es deporte, 15054000 fútbol. Las agencias de noticias clasifican con ellos las imágenes que reciben.</translation>
    </message>
    <message>
        <source>What the image shows, in one or more full sentences: who, what, where, when and why. Most programs and web galleries show this text below the image.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Lo que muestra la imagen, en una o varias frases completas: quién, qué, dónde, cuándo y por qué. La mayoría de los programas y galerías web muestran este texto bajo la imagen.</translation>
    </message>
    <message>
        <source>What the map does</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Qué hace el mapa</translation>
    </message>
    <message>
        <source>What the server wants to be shown on the map</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Lo que el servidor quiere que se muestre en el mapa</translation>
    </message>
    <message>
        <source>What would change</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>Qué cambiaría</translation>
    </message>
    <message>
        <source>When it was digitized; of a digital camera the same</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Cuándo se digitalizó; en una cámara digital es la misma</translation>
    </message>
    <message>
        <source>When its position is set</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Cuando se establece su posición</translation>
    </message>
    <message>
        <source>When the file was made, as its folder tells</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Cuándo se creó el archivo, según su carpeta</translation>
    </message>
    <message>
        <source>When the picture was taken</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Cuándo se tomó la imagen</translation>
    </message>
    <message>
        <source>Where the track has one</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Cuando el track la tiene</translation>
    </message>
    <message>
        <source>Whether one of the two criteria suffices or both must hold</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Si basta con uno de los dos criterios o deben cumplirse ambos</translation>
    </message>
    <message>
        <source>Which photos are shown</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Qué fotos se muestran</translation>
    </message>
    <message>
        <source>Width and height of the image in pixels, as it is stored, before any rotation for display.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Anchura y altura de la imagen en píxeles, tal como está guardada, antes de girarla para mostrarla.</translation>
    </message>
    <message>
        <source>Width of the camera's sensor in millimeters, as recorded by the camera or calculated from the pixel density on the sensor.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Anchura del sensor de la cámara en milímetros, registrada por la cámara o calculada a partir de la densidad de píxeles del sensor.</translation>
    </message>
    <message>
        <source>Window</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>With 0, photos change only when you say so</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Con 0, las fotos solo cambian cuando usted lo indica</translation>
    </message>
    <message>
        <source>With Unsaved Changes</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Con cambios sin guardar</translation>
    </message>
    <message>
        <source>With your own photos:</source>
        <extracomment>src/cli/DemoCommand.cpp</extracomment>
        <translation>Con sus propias fotos:</translation>
    </message>
    <message>
        <source>Without Date</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Sin fecha</translation>
    </message>
    <message>
        <source>Without Location</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Sin ubicación</translation>
    </message>
    <message>
        <source>Words and short phrases by which the image can be found: subjects, concepts, moods and techniques. Enter each one as a keyword of its own.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Palabras y expresiones breves con las que se puede encontrar la imagen: motivos, conceptos, ambientes y técnicas. Introduzca cada una como palabra clave propia.</translation>
    </message>
    <message>
        <source>World Region</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Región mundial</translation>
    </message>
    <message>
        <source>Write Changed Tags</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Escribir etiquetas modificadas</translation>
    </message>
    <message>
        <source>Write all unsaved changes to the photos</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Escribir todos los cambios sin guardar en las fotos</translation>
    </message>
    <message>
        <source>Write changes to:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Escribir los cambios en:</translation>
    </message>
    <message>
        <source>Write metadata to file</source>
        <extracomment>src/metadata/KTExifTool.cpp</extracomment>
        <translation>Escribir metadatos en el archivo</translation>
    </message>
    <message>
        <source>Write metadata to iPhoto using ScriptingBridge</source>
        <extracomment>src/photo/KTiPhotoTool.cpp</extracomment>
        <translation>Escribir metadatos en iPhoto mediante ScriptingBridge</translation>
    </message>
    <message>
        <source>Write the altitude of track points</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Escribir la altitud de los puntos de track</translation>
    </message>
    <message>
        <source>Write tracks to standard output</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>Escribir tracks en la salida estándar</translation>
    </message>
    <message>
        <source>Writes the chosen tracks into a file</source>
        <extracomment>src/ui/windows/TrackLibraryWindow.cpp</extracomment>
        <translation>Escribe en un archivo los tracks elegidos</translation>
    </message>
    <message>
        <source>Writes the names of city, state and country with the position</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Escribe los nombres de ciudad, estado o provincia y país con la posición</translation>
    </message>
    <message>
        <source>Writes the operations shown into a file</source>
        <extracomment>src/ui/windows/OperationLogWindow.cpp</extracomment>
        <translation>Escribe en un archivo las operaciones mostradas</translation>
    </message>
    <message>
        <source>Written with the position</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Se escribe con la posición</translation>
    </message>
    <message>
        <source>YYYY-MM-DD HH:MM:SS is expected</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>se espera YYYY-MM-DD HH:MM:SS</translation>
    </message>
    <message>
        <source>Year</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Año</translation>
    </message>
    <message numerus="yes">
        <source>You have %d photos with unsaved changes. Are you sure you want to quit?</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>
            <numerusform>Tiene %d foto con cambios sin guardar. ¿Seguro que desea salir?</numerusform>
            <numerusform>Tiene %d fotos con cambios sin guardar. ¿Seguro que desea salir?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>You have %d photos with unsaved changes. Are you sure you want to remove them?</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>
            <numerusform>Tiene %d foto con cambios sin guardar. ¿Seguro que desea quitarla?</numerusform>
            <numerusform>Tiene %d fotos con cambios sin guardar. ¿Seguro que desea quitarlas?</numerusform>
        </translation>
    </message>
    <message>
        <source>Your e-mail address or page, which the server's operator gets with each request</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Su dirección de correo o página, que el operador del servidor recibe con cada petición</translation>
    </message>
    <message>
        <source>Your rating of the image, from 1 to 5 stars. 0 stands for not rated and -1 for rejected.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Su valoración de la imagen, de 1 a 5 estrellas. 0 significa sin valorar y -1 rechazada.</translation>
    </message>
    <message>
        <source>Zone of the cameras' clocks: +02:00, Z or Area/City</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Zona de los relojes de las cámaras: +02:00, Z o Area/City</translation>
    </message>
    <message>
        <source>Zoom %1, centre %2, %3, %4, %5</source>
        <extracomment>src/ui/map/MapView.cpp</extracomment>
        <translation>Zoom %1, centro %2, %3, %4, %5</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <extracomment>src/ui/map/MapPane.cpp</extracomment>
        <translation>Acercar</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <extracomment>src/ui/map/MapPane.cpp</extracomment>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>Zoom to Photos</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Encuadrar fotos</translation>
    </message>
    <message>
        <source>[GLOBAL OPTIONS] COMMAND [OPTIONS] PATH...</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>[OPCIONES GLOBALES] ORDEN [OPCIONES] RUTA...</translation>
    </message>
    <message>
        <source>[OPTIONS] [FILE...]</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>[OPCIONES] [ARCHIVO...]</translation>
    </message>
    <message>
        <source>a character is not valid in the file's encoding</source>
        <extracomment>src/platform/tracklibrary/XMLStream.cpp</extracomment>
        <translation>un carácter no es válido en la codificación del archivo</translation>
    </message>
    <message>
        <source>a complete date and time is expected</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>se esperan una fecha y una hora completas</translation>
    </message>
    <message>
        <source>a decimal number is expected</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>se espera un número decimal</translation>
    </message>
    <message>
        <source>a file that cannot be read</source>
        <extracomment>src/export/KTLocationTraces.cpp</extracomment>
        <translation>un archivo que no se puede leer</translation>
    </message>
    <message>
        <source>a former run ended while it wrote %@; the file holds what it held before, or its new version as a whole</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>una ejecución anterior terminó mientras escribía %@; el archivo contiene lo que tenía antes o su nueva versión completa</translation>
    </message>
    <message>
        <source>a list in JSON</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>una lista en JSON</translation>
    </message>
    <message>
        <source>a name, height or time is too long</source>
        <extracomment>src/platform/tracklibrary/GPXReader.cpp</extracomment>
        <translation>un nombre, altura u hora es demasiado largo</translation>
    </message>
    <message>
        <source>a number</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>un número</translation>
    </message>
    <message>
        <source>a preview with a position</source>
        <extracomment>src/export/KTLocationTraces.cpp</extracomment>
        <translation>una vista previa con posición</translation>
    </message>
    <message>
        <source>a single tag or comment is too long</source>
        <extracomment>src/platform/tracklibrary/XMLStream.cpp</extracomment>
        <translation>una sola etiqueta o un solo comentario es demasiado largo</translation>
    </message>
    <message>
        <source>a text</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>un texto</translation>
    </message>
    <message>
        <source>a whole number</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>un número entero</translation>
    </message>
    <message>
        <source>a whole number that is not negative</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>un número entero no negativo</translation>
    </message>
    <message>
        <source>already so</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>ya es así</translation>
    </message>
    <message>
        <source>an exception without text</source>
        <extracomment>src/export/KTPluginError.cpp</extracomment>
        <translation>una excepción sin texto</translation>
    </message>
    <message>
        <source>another time zone…</source>
        <extracomment>src/geotagging/KTTimeZoneHUDController.cpp</extracomment>
        <translation>otra zona horaria…</translation>
    </message>
    <message>
        <source>apart</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>o menos</translation>
    </message>
    <message>
        <source>both</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>ambos</translation>
    </message>
    <message>
        <source>by</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>en</translation>
    </message>
    <message>
        <source>cannot be loaded from %@</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>no se puede cargar desde %@</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>no se puede leer</translation>
    </message>
    <message>
        <source>copy-date: --to %@ names the date to copy from</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>copy-date: --to %@ es la misma fecha de la que se copia</translation>
    </message>
    <message>
        <source>days</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>días</translation>
    </message>
    <message>
        <source>earlier</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>atrás</translation>
    </message>
    <message>
        <source>either</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>uno de los dos</translation>
    </message>
    <message>
        <source>entity declarations are not accepted</source>
        <extracomment>src/platform/tracklibrary/XMLStream.cpp</extracomment>
        <translation>no se aceptan declaraciones de entidades</translation>
    </message>
    <message>
        <source>failed</source>
        <extracomment>src/ui/photos/PhotoStatus.cpp</extracomment>
        <translation>fallida</translation>
    </message>
    <message>
        <source>first</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>primera</translation>
    </message>
    <message>
        <source>folded</source>
        <extracomment>src/ui/inspector/InspectorGroup.cpp</extracomment>
        <translation>contraído</translation>
    </message>
    <message numerus="yes">
        <source>from %d tracks</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>
            <numerusform>de %d track</numerusform>
            <numerusform>de %d tracks</numerusform>
        </translation>
    </message>
    <message>
        <source>geotag photos from GPS tracks and edit their metadata</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>geoetiqueta fotos a partir de tracks GPS y edita sus metadatos</translation>
    </message>
    <message>
        <source>geotagged</source>
        <extracomment>src/ui/photos/PhotoStatus.cpp</extracomment>
        <translation>geoetiquetada</translation>
    </message>
    <message>
        <source>give photos the places where they were taken</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>da a las fotos los lugares donde se tomaron</translation>
    </message>
    <message>
        <source>gpsbabel cannot read it</source>
        <extracomment>src/platform/tracklibrary/GPSBabelReader.cpp</extracomment>
        <translation>gpsbabel no puede leerlo</translation>
    </message>
    <message>
        <source>gpsbabel found no points in it</source>
        <extracomment>src/platform/tracklibrary/GPSBabelReader.cpp</extracomment>
        <translation>gpsbabel no encontró ningún punto en él</translation>
    </message>
    <message>
        <source>gpsbabel is there</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>gpsbabel está disponible</translation>
    </message>
    <message>
        <source>gpsbabel took too long to read it</source>
        <extracomment>src/platform/tracklibrary/GPSBabelReader.cpp</extracomment>
        <translation>gpsbabel tardó demasiado en leerlo</translation>
    </message>
    <message>
        <source>hours</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>horas</translation>
    </message>
    <message>
        <source>in front</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>al frente</translation>
    </message>
    <message>
        <source>it cannot be set</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>no se puede establecer</translation>
    </message>
    <message>
        <source>it cannot be unpacked</source>
        <extracomment>src/platform/tracklibrary/KMZArchive.cpp</extracomment>
        <translation>no se puede descomprimir</translation>
    </message>
    <message>
        <source>it is a database of another program</source>
        <extracomment>src/platform/tracklibrary/TrackSchema.cpp</extracomment>
        <translation>es una base de datos de otro programa</translation>
    </message>
    <message>
        <source>it was made by a newer version of Waymark</source>
        <extracomment>src/platform/tracklibrary/TrackSchema.cpp</extracomment>
        <translation>la creó una versión más reciente de Waymark</translation>
    </message>
    <message>
        <source>jpeg, png or tiff</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>jpeg, png o tiff</translation>
    </message>
    <message>
        <source>lake|walk</source>
        <extracomment>src/cli/DemoCommand.cpp</extracomment>
        <translation>lago|paseo</translation>
    </message>
    <message>
        <source>last</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>última</translation>
    </message>
    <message>
        <source>later</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>adelante</translation>
    </message>
    <message>
        <source>map, place names and magnetic field are there</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>el mapa, los nombres de lugares y el campo magnético están disponibles</translation>
    </message>
    <message>
        <source>minutes</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>minutos</translation>
    </message>
    <message>
        <source>my computer's time zone (%@).</source>
        <extracomment>src/geotagging/KTTimeZoneHUDController.cpp</extracomment>
        <translation>mi equipo (%@)</translation>
    </message>
    <message>
        <source>nearest point</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>punto más cercano</translation>
    </message>
    <message>
        <source>no capture date</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>sin fecha de captura</translation>
    </message>
    <message>
        <source>no dates</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>sin fechas</translation>
    </message>
    <message>
        <source>no place is known there</source>
        <extracomment>src/cli/PlaceCommand.cpp</extracomment>
        <translation>no se conoce ningún lugar allí</translation>
    </message>
    <message>
        <source>no place names are found</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>no se encuentran nombres de lugares</translation>
    </message>
    <message>
        <source>none</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>ninguna</translation>
    </message>
    <message>
        <source>not geotagged</source>
        <extracomment>src/ui/photos/PhotoStatus.cpp</extracomment>
        <translation>sin geoetiquetar</translation>
    </message>
    <message>
        <source>not saved</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>no guardada</translation>
    </message>
    <message>
        <source>nothing can be written in %@</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>no se puede escribir nada en %@</translation>
    </message>
    <message>
        <source>nothing to change</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>nada que cambiar</translation>
    </message>
    <message>
        <source>of a track point</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>del track</translation>
    </message>
    <message>
        <source>only %@ MB are free for %@</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>solo hay %@ MB libres para %@</translation>
    </message>
    <message>
        <source>only GPX files can be read</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>solo se pueden leer archivos GPX</translation>
    </message>
    <message>
        <source>open</source>
        <extracomment>src/ui/inspector/InspectorGroup.cpp</extracomment>
        <translation>desplegado</translation>
    </message>
    <message>
        <source>photos can be saved, but keep no creation date</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>las fotos se pueden guardar, pero no conservan la fecha de creación</translation>
    </message>
    <message>
        <source>points at most</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>puntos a</translation>
    </message>
    <message>
        <source>reading this kind of file takes the program %@, which cannot be started; install the package gpsbabel (apt install gpsbabel)</source>
        <extracomment>src/platform/tracklibrary/GPSBabelReader.cpp</extracomment>
        <translation>leer este tipo de archivo requiere el programa %@, que no se puede iniciar; instale el paquete gpsbabel (apt install gpsbabel)</translation>
    </message>
    <message>
        <source>saved</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>guardada</translation>
    </message>
    <message>
        <source>seconds</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>segundos</translation>
    </message>
    <message>
        <source>set takes KEY=VALUE... PATH...</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>set requiere KEY=VALUE... PATH...</translation>
    </message>
    <message>
        <source>settings</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>ajustes</translation>
    </message>
    <message>
        <source>skip photos already geotagged</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>omitir geoetiquetadas</translation>
    </message>
    <message>
        <source>standard output could not be written</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>no se pudo escribir en la salida estándar</translation>
    </message>
    <message>
        <source>stays as it is</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>queda como está</translation>
    </message>
    <message>
        <source>the Image::ExifTool in %@ is version %@, which is too old</source>
        <extracomment>src/metadata/KTExifToolFolder.cpp</extracomment>
        <translation>la versión de Image::ExifTool en %@ es %@, que es demasiado antigua</translation>
    </message>
    <message>
        <source>the KML file in the KMZ archive is too large</source>
        <extracomment>src/platform/tracklibrary/KMZArchive.cpp</extracomment>
        <translation>el archivo KML del archivo KMZ es demasiado grande</translation>
    </message>
    <message>
        <source>the KMZ archive has too many members</source>
        <extracomment>src/platform/tracklibrary/KMZArchive.cpp</extracomment>
        <translation>el archivo KMZ contiene demasiados elementos</translation>
    </message>
    <message>
        <source>the KMZ archive holds no KML file</source>
        <extracomment>src/platform/tracklibrary/KMZArchive.cpp</extracomment>
        <translation>el archivo KMZ no contiene ningún archivo KML</translation>
    </message>
    <message>
        <source>the KMZ archive is damaged</source>
        <extracomment>src/platform/tracklibrary/KMZArchive.cpp</extracomment>
        <translation>el archivo KMZ está dañado</translation>
    </message>
    <message>
        <source>the XML is broken: %@</source>
        <extracomment>src/platform/tracklibrary/XMLStream.cpp</extracomment>
        <translation>el XML está roto: %@</translation>
    </message>
    <message>
        <source>the date %@ is not between the years 1900 and 2199</source>
        <extracomment>src/platform/tracklibrary/GPXReader.cpp</extracomment>
        <translation>la fecha %@ no está entre los años 1900 y 2199</translation>
    </message>
    <message>
        <source>the defaults hold</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>valen los ajustes predeterminados</translation>
    </message>
    <message>
        <source>the elements are nested too deeply</source>
        <extracomment>src/platform/tracklibrary/XMLStream.cpp</extracomment>
        <translation>los elementos están anidados a demasiada profundidad</translation>
    </message>
    <message>
        <source>the field "%@" cannot be edited</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>el campo «%@» no se puede editar</translation>
    </message>
    <message>
        <source>the file cannot be read: %@</source>
        <extracomment>src/platform/tracklibrary/TrackFileReading.cpp</extracomment>
        <translation>no se puede leer el archivo: %@</translation>
    </message>
    <message>
        <source>the file ends too early</source>
        <extracomment>src/platform/tracklibrary/XMLStream.cpp</extracomment>
        <translation>el archivo termina antes de tiempo</translation>
    </message>
    <message>
        <source>the folder %@ cannot be made</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>no se puede crear la carpeta %@</translation>
    </message>
    <message>
        <source>the import was stopped</source>
        <extracomment>src/platform/tracklibrary/KTTrackStore.cpp</extracomment>
        <translation>se detuvo la importación</translation>
    </message>
    <message>
        <source>the log</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>el registro</translation>
    </message>
    <message>
        <source>the picture cannot be written to %@</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>no se puede escribir la imagen en %@</translation>
    </message>
    <message>
        <source>the picture is too large, or its scale is not one from 0.5 to 8</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>la imagen es demasiado grande o su escala no está entre 0.5 y 8</translation>
    </message>
    <message>
        <source>the settings file %@ cannot be read</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>no se puede leer el archivo de ajustes %@</translation>
    </message>
    <message>
        <source>the track library</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>la biblioteca de tracks</translation>
    </message>
    <message>
        <source>then select the next photo</source>
        <extracomment>src/ui/console/StandardPanel.cpp</extracomment>
        <translation>y seleccionar la foto siguiente</translation>
    </message>
    <message>
        <source>there is no Image/ExifTool.pm in %@</source>
        <extracomment>src/metadata/KTExifToolFolder.cpp</extracomment>
        <translation>no hay ningún Image/ExifTool.pm en %@</translation>
    </message>
    <message>
        <source>there is no export plug-in "%@"; there are: %@</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>no hay ningún complemento de exportación «%@»; hay estos: %@</translation>
    </message>
    <message>
        <source>there is no field "%@" (waymark-cli fields lists them)</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>no hay ningún campo «%@» (waymark-cli fields los lista)</translation>
    </message>
    <message>
        <source>there is no folder “%@”</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>no existe la carpeta «%@»</translation>
    </message>
    <message>
        <source>there is no source of map tiles named "%@"</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>no hay ninguna fuente de teselas de mapa llamada «%@»</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <extracomment>src/platform/tracklibrary/KTTrackManager.cpp</extracomment>
        <translation>ese archivo no existe</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>no existe esa carpeta</translation>
    </message>
    <message>
        <source>there is no track %@</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>no hay ningún track %@</translation>
    </message>
    <message>
        <source>there is none yet</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>todavía no hay ninguna</translation>
    </message>
    <message>
        <source>this is a folder</source>
        <extracomment>src/platform/tracklibrary/KTTrackManager.cpp</extracomment>
        <translation>esto es una carpeta</translation>
    </message>
    <message>
        <source>this is not a GPX file: it begins with &lt;%@&gt;</source>
        <extracomment>src/platform/tracklibrary/GPXReader.cpp</extracomment>
        <translation>esto no es un archivo GPX: empieza por &lt;%@&gt;</translation>
    </message>
    <message>
        <source>this is not a file</source>
        <extracomment>src/platform/tracklibrary/KTTrackManager.cpp</extracomment>
        <translation>esto no es un archivo</translation>
    </message>
    <message>
        <source>this is not a track file that Waymark knows (%@)</source>
        <extracomment>src/platform/tracklibrary/TrackFileReading.cpp</extracomment>
        <translation>esto no es un archivo de track que Waymark conozca (%@)</translation>
    </message>
    <message>
        <source>this is not an XML file (%@)</source>
        <extracomment>src/platform/tracklibrary/XMLStream.cpp</extracomment>
        <translation>esto no es un archivo XML (%@)</translation>
    </message>
    <message>
        <source>time weighted average</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>media ponderada</translation>
    </message>
    <message>
        <source>to:</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>a:</translation>
    </message>
    <message>
        <source>true or false</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>true o false</translation>
    </message>
    <message>
        <source>unknown text encoding “%@”</source>
        <extracomment>src/platform/tracklibrary/XMLStream.cpp</extracomment>
        <translation>codificación de texto desconocida «%@»</translation>
    </message>
    <message>
        <source>unsaved changes</source>
        <extracomment>src/ui/inspector/FieldLabel.cpp</extracomment>
        <translation>cambios sin guardar</translation>
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
        <translation>lo que gpsbabel leyó de él no es utilizable: %@</translation>
    </message>
    <message>
        <source>what was written did not come back</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>lo leído no coincide con lo que se escribió</translation>
    </message>
    <message>
        <source>with a warning</source>
        <extracomment>src/ui/photos/PhotoStatus.cpp</extracomment>
        <translation>con una advertencia</translation>
    </message>
    <message>
        <source>within</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>hasta</translation>
    </message>
    <message>
        <source>without a capture date</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>sin fecha de captura</translation>
    </message>
    <message>
        <source>© 2012 Anna Keller. All rights reserved.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>© 2012 Anna Keller. Todos los derechos reservados.</translation>
    </message>
    <message>
        <source>“%@” cannot be copied: %@</source>
        <extracomment>src/platform/desktop/KTFileOperations.cpp</extracomment>
        <translation>No se puede copiar «%@»: %@</translation>
    </message>
    <message>
        <source>“%@” cannot be created: %@</source>
        <extracomment>src/platform/desktop/KTFileOperations.cpp</extracomment>
        <translation>No se puede crear «%@»: %@</translation>
    </message>
    <message>
        <source>“%@” cannot be opened: %@</source>
        <extracomment>src/platform/desktop/KTFileCoordinator.cpp</extracomment>
        <translation>No se puede abrir «%@»: %@</translation>
    </message>
    <message>
        <source>“%@” cannot be read: %@</source>
        <extracomment>src/collection/KTPhotoFileSearch.cpp</extracomment>
        <translation>No se puede leer «%@»: %@</translation>
    </message>
    <message>
        <source>“%@” cannot be replaced: %@</source>
        <extracomment>src/platform/desktop/KTFileOperations.cpp</extracomment>
        <translation>No se puede reemplazar «%@»: %@</translation>
    </message>
    <message>
        <source>“%@” exists already. Do you want to replace it?</source>
        <extracomment>src/export/KTPhotoExportPluginManager.cpp</extracomment>
        <translation>«%@» ya existe. ¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>“%@” is not a date and time</source>
        <extracomment>src/platform/tracklibrary/GPXReader.cpp</extracomment>
        <translation>«%@» no es una fecha y hora</translation>
    </message>
    <message>
        <source>“%@” is not a height in metres</source>
        <extracomment>src/platform/tracklibrary/GPXReader.cpp</extracomment>
        <translation>«%@» no es una altura en metros</translation>
    </message>
    <message>
        <source>“%@” is not a latitude from -90 to 90</source>
        <extracomment>src/platform/tracklibrary/GPXReader.cpp</extracomment>
        <translation>«%@» no es una latitud de -90 a 90</translation>
    </message>
    <message>
        <source>“%@” is not a longitude from -180 to 180</source>
        <extracomment>src/platform/tracklibrary/GPXReader.cpp</extracomment>
        <translation>«%@» no es una longitud de -180 a 180</translation>
    </message>
    <message>
        <source>“%@” is not the address of a server that place names could be fetched from.</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>«%@» no es la dirección de un servidor del que obtener nombres de lugares.</translation>
    </message>
    <message>
        <source>“%@” is not the address of a web server.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>«%@» no es la dirección de un servidor web.</translation>
    </message>
    <message>
        <source>“%@” is the first of them.</source>
        <extracomment>src/export/KTPhotoExportPluginManager.cpp</extracomment>
        <translation>«%@» es el primero de ellos.</translation>
    </message>
    <message>
        <source>“%@” keeps being changed by another program.</source>
        <extracomment>src/photo/KTPhotoSaving.cpp</extracomment>
        <translation>Otro programa cambia «%@» una y otra vez.</translation>
    </message>
    <message>
        <source>“%@” was changed by another program.</source>
        <extracomment>src/platform/desktop/KTFileOperations.cpp</extracomment>
        <translation>Otro programa cambió «%@».</translation>
    </message>
    <message>
        <source>“%@” was replaced, but may not be on disk yet: %@</source>
        <extracomment>src/platform/desktop/KTFileOperations.cpp</extracomment>
        <translation>«%@» se reemplazó, pero puede que aún no esté en el disco: %@</translation>
    </message>
    <message>
        <source>“full” keeps names and positions in the log file</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>«full» conserva nombres y posiciones en el archivo de registro</translation>
    </message>
    <message numerus="yes">
        <source>… and %d more</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>
            <numerusform>… y %d más</numerusform>
            <numerusform>… y %d más</numerusform>
        </translation>
    </message>
</context>
</TS>

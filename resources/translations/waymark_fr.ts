<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Waymark</name>
    <message>
        <source> NOT SAVED</source>
        <extracomment>src/cli/GeotagReport.cpp</extracomment>
        <translation> NON ENREGISTRÉ</translation>
    </message>
    <message>
        <source> [dry run]</source>
        <extracomment>src/cli/GeotagReport.cpp</extracomment>
        <translation> [simulation]</translation>
    </message>
    <message>
        <source> and </source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation> et </translation>
    </message>
    <message>
        <source>"%@" is not a date: "YYYY-MM-DD HH:MM:SS" is expected</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>« %@ » n’est pas une date : format attendu "YYYY-MM-DD HH:MM:SS"</translation>
    </message>
    <message>
        <source>"%@" is not a number of degrees from -%@ to %@</source>
        <extracomment>src/cli/PlaceCommand.cpp</extracomment>
        <translation>« %@ » n’est pas un nombre de degrés compris entre -%@ et %@</translation>
    </message>
    <message>
        <source>"%@" is not a setting: write KEY=VALUE.</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>« %@ » n’est pas un réglage : écrivez KEY=VALUE.</translation>
    </message>
    <message>
        <source>"%@" is not a size: WIDTHxHEIGHT in pixels is expected</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>« %@ » n’est pas une taille : format attendu WIDTHxHEIGHT, en pixels</translation>
    </message>
    <message>
        <source>"%@" is not a time zone: +02:00, Z or Area/City is expected</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>« %@ » n’est pas un fuseau horaire : format attendu +02:00, Z ou Area/City</translation>
    </message>
    <message>
        <source>"%@" is not a type of pictures</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>« %@ » n’est pas un type d’image</translation>
    </message>
    <message>
        <source>"%@" is not a value of "%@", which takes %@.</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>« %@ » n’est pas une valeur de « %@ », qui attend %@.</translation>
    </message>
    <message>
        <source>"%@" is not a value of %@: %@</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>« %@ » n’est pas une valeur de %@ : %@</translation>
    </message>
    <message>
        <source>"%@" says too little for the precision %@</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>« %@ » ne suffit pas pour la précision %@</translation>
    </message>
    <message>
        <source>"YYYY-MM-DD HH:MM:SS", or its beginning</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>"YYYY-MM-DD HH:MM:SS", ou son début</translation>
    </message>
    <message>
        <source>%1 (shown)</source>
        <extracomment>src/ui/inspector/CatalogueModel.cpp</extracomment>
        <translation>%1 (affiché)</translation>
    </message>
    <message>
        <source>%1 to the map's centre</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>%1 au centre de la carte</translation>
    </message>
    <message>
        <source>%1 to the waypoint</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>%1 au waypoint</translation>
    </message>
    <message>
        <source>%1, %2 of %3</source>
        <extracomment>src/ui/datetools/CoverFlowView.cpp</extracomment>
        <translation>%1, %2 sur %3</translation>
    </message>
    <message>
        <source>%1, not yet written</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>%1, pas encore écrite</translation>
    </message>
    <message>
        <source>%@ GB</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>%@ Go</translation>
    </message>
    <message>
        <source>%@ KB</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>%@ ko</translation>
    </message>
    <message>
        <source>%@ MB</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>%@ Mo</translation>
    </message>
    <message>
        <source>%@ NM</source>
        <extracomment>src/platform/common/KTUnitConverter.cpp</extracomment>
        <translation>%@ NM</translation>
    </message>
    <message>
        <source>%@ PB</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>%@ Po</translation>
    </message>
    <message>
        <source>%@ TB</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>%@ To</translation>
    </message>
    <message>
        <source>%@ after %@.</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>%@ après %@.</translation>
    </message>
    <message>
        <source>%@ after photo.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>%@ après la photo.</translation>
    </message>
    <message>
        <source>%@ and %@</source>
        <extracomment>src/app/WaymarkAppControllerFiles.cpp</extracomment>
        <translation>%@ et %@</translation>
    </message>
    <message>
        <source>%@ answered “%@”.</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>%@ a répondu « %@ ».</translation>
    </message>
    <message>
        <source>%@ before %@.</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>%@ avant %@.</translation>
    </message>
    <message>
        <source>%@ before photo.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>%@ avant la photo.</translation>
    </message>
    <message>
        <source>%@ broke off before its answer was complete.</source>
        <extracomment>src/platform/network/HTTPFailureText.cpp</extracomment>
        <translation>%@ s’est interrompu avant la fin de sa réponse.</translation>
    </message>
    <message>
        <source>%@ cannot answer at the moment (HTTP status %@).</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>%@ ne peut pas répondre pour le moment (code HTTP %@).</translation>
    </message>
    <message>
        <source>%@ cannot be found. Is there a connection to the network?</source>
        <extracomment>src/platform/network/HTTPFailureText.cpp</extracomment>
        <translation>%@ est introuvable. Y a-t-il une connexion au réseau ?</translation>
    </message>
    <message>
        <source>%@ cannot be reached: %@.</source>
        <extracomment>src/platform/network/HTTPFailureText.cpp</extracomment>
        <translation>%@ est injoignable : %@.</translation>
    </message>
    <message>
        <source>%@ cannot be read</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>%@ est illisible</translation>
    </message>
    <message>
        <source>%@ cannot give map tiles at the moment (HTTP status %@).</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileStore.cpp</extracomment>
        <translation>%@ ne peut pas fournir de tuiles pour le moment (code HTTP %@).</translation>
    </message>
    <message>
        <source>%@ cannot write a picture: %@</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>%@ ne peut pas écrire d’image : %@</translation>
    </message>
    <message>
        <source>%@ could not be written.</source>
        <extracomment>src/collection/DemoTrip.cpp</extracomment>
        <translation>%@ n’a pas pu être écrit.</translation>
    </message>
    <message>
        <source>%@ did not answer in time.</source>
        <extracomment>src/photo/KTLinkablePointPlace.cpp</extracomment>
        <translation>%@ n’a pas répondu à temps.</translation>
    </message>
    <message>
        <source>%@ did not answer within %@ seconds.</source>
        <extracomment>src/platform/network/HTTPFailureText.cpp</extracomment>
        <translation>%@ n’a pas répondu en %@ secondes.</translation>
    </message>
    <message>
        <source>%@ does not accept connections.</source>
        <extracomment>src/platform/network/HTTPFailureText.cpp</extracomment>
        <translation>%@ n’accepte pas de connexions.</translation>
    </message>
    <message>
        <source>%@ exists already (--overwrite replaces it)</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>%@ existe déjà (--overwrite le remplace)</translation>
    </message>
    <message>
        <source>%@ from %@ writes and reads a picture</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>%@ de %@ sait écrire et lire une image</translation>
    </message>
    <message>
        <source>%@ from preceding track point and %@ to next track point</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>À %@ du point de trace précédent et à %@ du suivant</translation>
    </message>
    <message>
        <source>%@ from preceding track point and %@ to next track point for %@</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>À %@ du point de trace précédent et à %@ du suivant pour %@</translation>
    </message>
    <message>
        <source>%@ ft</source>
        <extracomment>src/platform/common/KTUnitConverter.cpp</extracomment>
        <translation>%@ ft</translation>
    </message>
    <message>
        <source>%@ gave an unexpected answer (HTTP status %@).</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>%@ a donné une réponse inattendue (code HTTP %@).</translation>
    </message>
    <message>
        <source>%@ gave an unexpected answer instead of a map tile (HTTP status %@).</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileStore.cpp</extracomment>
        <translation>%@ a donné une réponse inattendue au lieu d’une tuile (code HTTP %@).</translation>
    </message>
    <message>
        <source>%@ gives its tiles only to those who say how they can be reached. Set an e-mail or web address (mapTilesContact).</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>%@ ne fournit ses tuiles qu’à ceux qui indiquent comment les joindre. Indiquez une adresse e-mail ou web (mapTilesContact).</translation>
    </message>
    <message>
        <source>%@ gives no place names at this address (HTTP status %@).</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>%@ ne fournit pas de noms de lieux à cette adresse (code HTTP %@).</translation>
    </message>
    <message>
        <source>%@ has no tiles for some of the places shown (HTTP status %@). The offline map is shown there.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileStore.cpp</extracomment>
        <translation>%@ n’a pas de tuiles pour certains des lieux affichés (code HTTP %@). La carte hors ligne y est affichée.</translation>
    </message>
    <message>
        <source>%@ is missing</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>%@ est absent</translation>
    </message>
    <message>
        <source>%@ is not empty</source>
        <extracomment>src/collection/DemoTrip.cpp</extracomment>
        <translation>%@ n’est pas vide</translation>
    </message>
    <message>
        <source>%@ is required</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>%@ est obligatoire</translation>
    </message>
    <message>
        <source>%@ is taken as the fixed offset %@, in summer and winter.</source>
        <extracomment>src/cli/ZoneCommand.cpp</extracomment>
        <translation>%@ est pris comme décalage fixe %@, été comme hiver.</translation>
    </message>
    <message>
        <source>%@ km</source>
        <extracomment>src/platform/common/KTUnitConverter.cpp</extracomment>
        <translation>%@ km</translation>
    </message>
    <message>
        <source>%@ m</source>
        <extracomment>src/platform/common/KTUnitConverter.cpp</extracomment>
        <translation>%@ m</translation>
    </message>
    <message>
        <source>%@ mi</source>
        <extracomment>src/platform/common/KTUnitConverter.cpp</extracomment>
        <translation>%@ mi</translation>
    </message>
    <message numerus="yes">
        <source>%@ of %d photos selected</source>
        <extracomment>src/ui/photos/PhotoPane.cpp</extracomment>
        <translation>
            <numerusform>%@ sur %d photo sélectionnée</numerusform>
            <numerusform>%@ sur %d photos sélectionnées</numerusform>
        </translation>
    </message>
    <message>
        <source>%@ redirects to %@, which was not asked.</source>
        <extracomment>src/platform/network/HTTPFailureText.cpp</extracomment>
        <translation>%@ redirige vers %@, qui n’a pas été interrogé.</translation>
    </message>
    <message>
        <source>%@ refuses to give map tiles (HTTP status %@). The offline map is shown instead.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileStore.cpp</extracomment>
        <translation>%@ refuse de fournir des tuiles (code HTTP %@). La carte hors ligne est affichée à la place.</translation>
    </message>
    <message>
        <source>%@ refuses to give place names (HTTP status %@).</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>%@ refuse de fournir des noms de lieux (code HTTP %@).</translation>
    </message>
    <message>
        <source>%@ seconds</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>%@ secondes</translation>
    </message>
    <message>
        <source>%@ sent far more than place names.</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>%@ a envoyé bien plus que des noms de lieux.</translation>
    </message>
    <message>
        <source>%@ to %@</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>%@ à %@</translation>
    </message>
    <message>
        <source>%@ was asked for map tiles too often and wants a pause (HTTP status %@).</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileStore.cpp</extracomment>
        <translation>%@ a reçu trop de demandes de tuiles et réclame une pause (code HTTP %@).</translation>
    </message>
    <message>
        <source>%@ was asked too often and wants a pause (HTTP status %@).</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>%@ a reçu trop de demandes et réclame une pause (code HTTP %@).</translation>
    </message>
    <message>
        <source>%@ was not asked again after it had failed.</source>
        <extracomment>src/platform/gazetteer/KTGazetteer.cpp</extracomment>
        <translation>%@ n’a pas été interrogé de nouveau après son échec.</translation>
    </message>
    <message>
        <source>%@ was not asked, because the program is about to end.</source>
        <extracomment>src/platform/gazetteer/KTGazetteer.cpp</extracomment>
        <translation>%@ n’a pas été interrogé, car le programme est sur le point de se terminer.</translation>
    </message>
    <message numerus="yes">
        <source>%@ was taken as the fixed offset %@, but its clocks stood at %@ when %d photos were taken; give the offset itself to match those</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>
            <numerusform>%@ a été pris comme le décalage fixe %@, mais ses horloges étaient à %@ quand %d photo a été prise ; indiquez le décalage lui-même pour qu’elle corresponde</numerusform>
            <numerusform>%@ a été pris comme le décalage fixe %@, mais ses horloges étaient à %@ quand %d photos ont été prises ; indiquez le décalage lui-même pour qu’elles correspondent</numerusform>
        </translation>
    </message>
    <message>
        <source>%@, %@ MB free</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>%@, %@ Mo libres</translation>
    </message>
    <message>
        <source>%@, line %@: %@</source>
        <extracomment>src/platform/tracklibrary/KTTrackStore.cpp</extracomment>
        <translation>%@, ligne %@ : %@</translation>
    </message>
    <message>
        <source>%@: %@ (%@ with a date), %@</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>%@ : %@ (dont %@ avec une date), %@</translation>
    </message>
    <message>
        <source>%@: %@ not in {%@}</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>%@ : %@ n’est pas dans {%@}</translation>
    </message>
    <message>
        <source>%@: %@ required %@ missing</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>%@ : il faut %@, il manque %@</translation>
    </message>
    <message>
        <source>%@: At Most %@ required but received %@</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>%@ : au plus %@ attendu, %@ reçu</translation>
    </message>
    <message>
        <source>%@: At least %@ required but received %@</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>%@ : au moins %@ attendu, %@ reçu</translation>
    </message>
    <message>
        <source>%@: Directory does not exist: %@</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>%@ : ce dossier n’existe pas : %@</translation>
    </message>
    <message>
        <source>%@: Directory is actually a file: %@</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>%@ : ce n’est pas un dossier mais un fichier : %@</translation>
    </message>
    <message>
        <source>%@: Value %@ not in range %@ to %@</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>%@ : la valeur %@ n’est pas comprise entre %@ et %@</translation>
    </message>
    <message>
        <source>%@: already imported, %@ (%@ with a date), %@</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>%@ : déjà importé, %@ (dont %@ avec une date), %@</translation>
    </message>
    <message numerus="yes">
        <source>%d could not be read.</source>
        <extracomment>src/cli/GeotagReport.cpp</extracomment>
        <translation>
            <numerusform>%d n’a pas pu être lue.</numerusform>
            <numerusform>%d n’ont pas pu être lues.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d could not be saved.</source>
        <extracomment>src/cli/GeotagReport.cpp</extracomment>
        <translation>
            <numerusform>%d n’a pas pu être enregistrée.</numerusform>
            <numerusform>%d n’ont pas pu être enregistrées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d days</source>
        <extracomment>src/platform/common/KTUnitConverter.cpp</extracomment>
        <translation>
            <numerusform>%d jour</numerusform>
            <numerusform>%d jours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d files exist already. Do you want to replace them?</source>
        <extracomment>src/export/KTPhotoExportPluginManager.cpp</extracomment>
        <translation>
            <numerusform>%d fichier existe déjà. Voulez-vous le remplacer ?</numerusform>
            <numerusform>%d fichiers existent déjà. Voulez-vous les remplacer ?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d folders</source>
        <extracomment>src/app/WaymarkAppControllerFiles.cpp</extracomment>
        <translation>
            <numerusform>%d dossier</numerusform>
            <numerusform>%d dossiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d hours</source>
        <extracomment>src/platform/common/KTUnitConverter.cpp</extracomment>
        <translation>
            <numerusform>%d heure</numerusform>
            <numerusform>%d heures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d loaded photos</source>
        <extracomment>src/collection/KTPhotoManagerToolbarController.cpp</extracomment>
        <translation>
            <numerusform>%d photo chargée</numerusform>
            <numerusform>%d photos chargées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d minutes</source>
        <extracomment>src/platform/common/KTUnitConverter.cpp</extracomment>
        <translation>
            <numerusform>%d minute</numerusform>
            <numerusform>%d minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos</source>
        <extracomment>src/app/WaymarkAppControllerFiles.cpp</extracomment>
        <translation>
            <numerusform>%d photo</numerusform>
            <numerusform>%d photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos already geotagged.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d photo déjà géolocalisée.</numerusform>
            <numerusform>%d photos déjà géolocalisées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos are concerned.</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>
            <numerusform>%d photo est concernée.</numerusform>
            <numerusform>%d photos sont concernées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos are more than %@ from the nearest track point.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d photo est à plus de %@ du point de trace le plus proche.</numerusform>
            <numerusform>%d photos sont à plus de %@ du point de trace le plus proche.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos are not between points less than %@ apart.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d photo n’est pas entre deux points distants de moins de %@.</numerusform>
            <numerusform>%d photos ne sont pas entre deux points distants de moins de %@.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos at one place</source>
        <extracomment>src/ui/map/MapPointing.cpp</extracomment>
        <translation>
            <numerusform>%d photo en un même lieu</numerusform>
            <numerusform>%d photos en un même lieu</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos can be geotagged</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d photo peut être géolocalisée.</numerusform>
            <numerusform>%d photos peuvent être géolocalisées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos do not have a time stamp.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d photo n’a pas d’horodatage.</numerusform>
            <numerusform>%d photos n’ont pas d’horodatage.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos do not have stamps</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d photo n’a pas d’horodatage</numerusform>
            <numerusform>%d photos n’ont pas d’horodatage</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos fail both the time and distance critieria.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d photo ne remplit ni le critère de temps ni celui de distance.</numerusform>
            <numerusform>%d photos ne remplissent ni le critère de temps ni celui de distance.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos failed both the time &amp; distance criteria</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d photo ne remplit ni le critère de temps ni celui de distance</numerusform>
            <numerusform>%d photos ne remplissent ni le critère de temps ni celui de distance</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos failed the distance criteria</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d photo ne remplit pas le critère de distance</numerusform>
            <numerusform>%d photos ne remplissent pas le critère de distance</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos failed the time criteria</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>%d photo ne remplit pas le critère de temps</numerusform>
            <numerusform>%d photos ne remplissent pas le critère de temps</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos near here</source>
        <extracomment>src/ui/map/MapPointing.cpp</extracomment>
        <translation>
            <numerusform>%d photo près d’ici</numerusform>
            <numerusform>%d photos près d’ici</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos shown</source>
        <extracomment>src/ui/map/MapView.cpp</extracomment>
        <translation>
            <numerusform>%d photo affichée</numerusform>
            <numerusform>%d photos affichées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d photos with unsaved changes, </source>
        <extracomment>src/collection/KTPhotoManagerToolbarController.cpp</extracomment>
        <translation>
            <numerusform>%d photo avec des modifications non enregistrées, </numerusform>
            <numerusform>%d photos avec des modifications non enregistrées, </numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d points</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>
            <numerusform>%d point</numerusform>
            <numerusform>%d points</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d removed</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>
            <numerusform>%d retirée</numerusform>
            <numerusform>%d retirées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d seconds</source>
        <extracomment>src/platform/common/KTUnitConverter.cpp</extracomment>
        <translation>
            <numerusform>%d seconde</numerusform>
            <numerusform>%d secondes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d track files could not be imported.</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerControllerCommands.cpp</extracomment>
        <translation>
            <numerusform>%d fichier de trace n’a pas pu être importé.</numerusform>
            <numerusform>%d fichiers de traces n’ont pas pu être importés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d tracks</source>
        <extracomment>src/app/WaymarkAppControllerFiles.cpp</extracomment>
        <translation>
            <numerusform>%d trace</numerusform>
            <numerusform>%d traces</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%d tracks in it</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>
            <numerusform>%d trace dedans</numerusform>
            <numerusform>%d traces dedans</numerusform>
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
        <translation>%llu octets</translation>
    </message>
    <message numerus="yes">
        <source>%lu photos</source>
        <extracomment>src/app/editor/KTMetadataEditorViewController.cpp</extracomment>
        <translation>
            <numerusform>%lu photo</numerusform>
            <numerusform>%lu photos</numerusform>
        </translation>
    </message>
    <message>
        <source>+02:00, Z or Area/City (-- before negative ones)</source>
        <extracomment>src/cli/ZoneCommand.cpp</extracomment>
        <translation>+02:00, Z ou Area/City (-- avant les valeurs négatives)</translation>
    </message>
    <message numerus="yes">
        <source>, %d shown</source>
        <extracomment>src/ui/photos/PhotoPane.cpp</extracomment>
        <translation>
            <numerusform>, %d affichée</numerusform>
            <numerusform>, %d affichées</numerusform>
        </translation>
    </message>
    <message>
        <source>--exiftool FOLDER</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>--exiftool DOSSIER</translation>
    </message>
    <message>
        <source>0 image, 1 image or sidecar by type, 2 sidecar, 3 both, 4 sidecar where one exists</source>
        <extracomment>src/cli/SaveOptions.cpp</extracomment>
        <translation>0 image, 1 image ou annexe selon le type, 2 annexe, 3 les deux, 4 annexe s’il en existe un</translation>
    </message>
    <message>
        <source>1/%ld of a second</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>1/%ld de seconde</translation>
    </message>
    <message>
        <source>2 dimensional</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>2 dimensions</translation>
    </message>
    <message>
        <source>3 dimensional</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>3 dimensions</translation>
    </message>
    <message>
        <source>35mm Focal Length</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Focale équiv. 35 mm</translation>
    </message>
    <message>
        <source>A date and a time with seconds are needed here.</source>
        <extracomment>src/app/editor/KTFieldText.cpp</extracomment>
        <translation>Indiquez ici une date et une heure avec les secondes.</translation>
    </message>
    <message>
        <source>A date is typed as 2014-05-03 17:41:09, or as its beginning.</source>
        <extracomment>src/app/editor/KTFieldText.cpp</extracomment>
        <translation>Une date se saisit sous la forme 2014-05-03 17:41:09, complète ou limitée à son début.</translation>
    </message>
    <message>
        <source>A date to set; repeatable</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>Date à définir ; répétable</translation>
    </message>
    <message>
        <source>A file of this name exists already.</source>
        <extracomment>src/export/KTPhotoExportManagerOperation.cpp</extracomment>
        <translation>Un fichier de ce nom existe déjà.</translation>
    </message>
    <message>
        <source>A group of fields; double click to rename it</source>
        <extracomment>src/ui/inspector/GroupTreeModel.cpp</extracomment>
        <translation>Un groupe de champs ; double-cliquez pour le renommer</translation>
    </message>
    <message>
        <source>A neighbouring point must be nearer than this (300)</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Écart maximal avec un point voisin (300)</translation>
    </message>
    <message>
        <source>A new folder for the trip</source>
        <extracomment>src/cli/DemoCommand.cpp</extracomment>
        <translation>Nouveau dossier pour l’excursion</translation>
    </message>
    <message>
        <source>A path may be a photo, an XMP sidecar or a folder, which is searched at any depth. Photos are written in one step: whatever happens, a file holds what it held before or its new version as a whole.</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>Un chemin désigne une photo, un fichier annexe XMP ou un dossier, exploré à toute profondeur. Les photos sont écrites en une seule étape : quoi qu’il arrive, un fichier reste tel qu’il était ou contient sa nouvelle version complète.</translation>
    </message>
    <message>
        <source>A position in any notation, or a link to a map</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Une position dans n’importe quelle notation, ou un lien vers une carte</translation>
    </message>
    <message>
        <source>A secure connection to %@ is not possible: %@.</source>
        <extracomment>src/platform/network/HTTPFailureText.cpp</extracomment>
        <translation>Connexion sécurisée à %@ impossible : %@.</translation>
    </message>
    <message>
        <source>A server of your choice</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Un serveur de votre choix</translation>
    </message>
    <message>
        <source>A setting for this run only; repeatable</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>Réglage valable pour cette exécution seulement ; répétable</translation>
    </message>
    <message>
        <source>A source of map tiles instead of the offline map</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>Source de tuiles à la place de la carte hors ligne</translation>
    </message>
    <message>
        <source>A subcommand is required</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>Il faut une commande</translation>
    </message>
    <message>
        <source>A track file could not be imported.</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerControllerCommands.cpp</extracomment>
        <translation>Un fichier de trace n’a pas pu être importé.</translation>
    </message>
    <message>
        <source>A track file for this run, beside the library; repeatable</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Fichier de trace pour cette exécution, en plus de la bibliothèque ; répétable</translation>
    </message>
    <message>
        <source>A track file to draw; repeatable</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>Fichier de trace à dessiner ; répétable</translation>
    </message>
    <message>
        <source>About Waymark</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>À propos de Waymark</translation>
    </message>
    <message>
        <source>Actual focal length of the lens when the image was shot, in millimeters. For a zoom lens it is the setting in use.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Distance focale réelle de l’objectif lors de la prise de vue, en millimètres. Pour un zoom, c’est le réglage utilisé.</translation>
    </message>
    <message>
        <source>Add</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Add %@</source>
        <extracomment>src/app/WaymarkAppControllerFiles.cpp</extracomment>
        <translation>Ajouter %@</translation>
    </message>
    <message>
        <source>Add Field</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Ajouter un champ</translation>
    </message>
    <message>
        <source>Add GPS tracks</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Ajouter des traces GPS</translation>
    </message>
    <message>
        <source>Add Group</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Ajouter un groupe</translation>
    </message>
    <message>
        <source>Add Photos</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Ajouter des photos</translation>
    </message>
    <message>
        <source>Add Photos…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Ajouter des photos…</translation>
    </message>
    <message>
        <source>Add Tracks</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Ajouter des traces</translation>
    </message>
    <message>
        <source>Add Tracks…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Ajouter des traces…</translation>
    </message>
    <message>
        <source>Add Whole Group</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Ajouter tout le groupe</translation>
    </message>
    <message>
        <source>Add a %@…</source>
        <extracomment>src/app/editor/KTMetadataFieldMultipleValueArrayViewItem.cpp</extracomment>
        <translation>Ajouter : %@…</translation>
    </message>
    <message>
        <source>Add keywords from iPhoto</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>Ajouter les mots-clés d’iPhoto</translation>
    </message>
    <message>
        <source>Add photos</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Ajouter des photos</translation>
    </message>
    <message>
        <source>Add to Photos</source>
        <extracomment>src/ui/windows/MediaBrowserWindow.cpp</extracomment>
        <translation>Ajouter aux photos</translation>
    </message>
    <message>
        <source>Address</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Address of a Nominatim server; nothing is sent while it is empty</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Adresse d’un serveur Nominatim ; rien n’est envoyé tant qu’elle est vide</translation>
    </message>
    <message>
        <source>Address pattern of a server, for example https://tile.example.org/{z}/{x}/{y}.png</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Modèle d’adresse d’un serveur, par exemple https://tile.example.org/{z}/{x}/{y}.png</translation>
    </message>
    <message>
        <source>Adds a group at the end</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Ajoute un groupe à la fin</translation>
    </message>
    <message>
        <source>Adds the chosen photos and folders, or all of this folder when none is chosen</source>
        <extracomment>src/ui/windows/MediaBrowserWindow.cpp</extracomment>
        <translation>Ajoute les photos et dossiers choisis, ou tout ce dossier si rien n’est choisi</translation>
    </message>
    <message>
        <source>Adds the field to the group that is chosen above</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Ajoute le champ au groupe choisi ci-dessus</translation>
    </message>
    <message>
        <source>Adds the group with all its fields</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Ajoute le groupe avec tous ses champs</translation>
    </message>
    <message>
        <source>Adds track files to the library</source>
        <extracomment>src/ui/windows/TrackLibraryWindow.cpp</extracomment>
        <translation>Ajoute des fichiers de traces à la bibliothèque</translation>
    </message>
    <message>
        <source>Adjust Date &amp; Time…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Ajuster la date et l’heure…</translation>
    </message>
    <message>
        <source>Adjust Date &amp;&amp; Time…</source>
        <extracomment>src/ui/console/CameraClockView.cpp</extracomment>
        <translation>Ajuster la date et l’heure…</translation>
    </message>
    <message>
        <source>After</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>Après</translation>
    </message>
    <message>
        <source>After importing tracks:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Après l’importation de traces :</translation>
    </message>
    <message>
        <source>After selecting photos:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Après la sélection de photos :</translation>
    </message>
    <message>
        <source>Aim the image direction at the place shown</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Orienter la direction de prise de vue vers le lieu représenté</translation>
    </message>
    <message>
        <source>All Fields</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Tous les champs</translation>
    </message>
    <message>
        <source>All Photos</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Toutes les photos</translation>
    </message>
    <message>
        <source>All Waypoints</source>
        <extracomment>src/geotagging/KTAppTrackPickerController.cpp</extracomment>
        <translation>Tous les waypoints</translation>
    </message>
    <message>
        <source>All files</source>
        <extracomment>src/ui/window/WindowPresenter.cpp</extracomment>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>All loaded photos, not only the selected ones</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Toutes les photos chargées</translation>
    </message>
    <message>
        <source>All messages</source>
        <extracomment>src/collection/KTPhotoOperationWindowController.cpp</extracomment>
        <translation>Tous les messages</translation>
    </message>
    <message>
        <source>Also photos that already carry a location</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Également les photos qui ont déjà une position</translation>
    </message>
    <message>
        <source>Also the date of digitization</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>Également la date de numérisation</translation>
    </message>
    <message>
        <source>Altitude</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Altitude</translation>
    </message>
    <message>
        <source>An export is in progress. Are you sure you want to quit?</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Une exportation est en cours. Voulez-vous vraiment quitter ?</translation>
    </message>
    <message>
        <source>An unknown error occurred when writing to the file.</source>
        <extracomment>src/metadata/KTExifTool.cpp</extracomment>
        <translation>Une erreur inconnue s’est produite lors de l’écriture du fichier.</translation>
    </message>
    <message>
        <source>Another photo of this export has the same name.</source>
        <extracomment>src/export/KTPhotoExportManagerOperation.cpp</extracomment>
        <translation>Une autre photo de cette exportation porte le même nom.</translation>
    </message>
    <message>
        <source>Aperture</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Ouverture</translation>
    </message>
    <message>
        <source>Aperture at which the image was shot, as f-number. A smaller number means a wider opening, more light and less depth of field.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Ouverture du diaphragme lors de la prise de vue, en nombre f. Un nombre plus petit signifie une plus grande ouverture, plus de lumière et moins de profondeur de champ.</translation>
    </message>
    <message>
        <source>Apply</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Appliquer</translation>
    </message>
    <message numerus="yes">
        <source>Are you sure you want to remove the GPS metadata (latitude, longitude, altitude &amp; GPS date-time) from %d photos?</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>
            <numerusform>Voulez-vous vraiment supprimer les métadonnées GPS (latitude, longitude, altitude, date et heure GPS) de %d photo ?</numerusform>
            <numerusform>Voulez-vous vraiment supprimer les métadonnées GPS (latitude, longitude, altitude, date et heure GPS) de %d photos ?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Are you sure you want to remove the image direction metadata from %d photos?</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>
            <numerusform>Voulez-vous vraiment supprimer la direction de prise de vue de %d photo ?</numerusform>
            <numerusform>Voulez-vous vraiment supprimer la direction de prise de vue de %d photos ?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Are you sure you want to remove the location shown metadata (latitude shown &amp; longitude shown) from %d photos?</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>
            <numerusform>Voulez-vous vraiment supprimer le lieu représenté (latitude et longitude) de %d photo ?</numerusform>
            <numerusform>Voulez-vous vraiment supprimer le lieu représenté (latitude et longitude) de %d photos ?</numerusform>
        </translation>
    </message>
    <message>
        <source>Arguments</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>Arguments</translation>
    </message>
    <message>
        <source>As the Tile Map Service does</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Comme le fait le Tile Map Service</translation>
    </message>
    <message>
        <source>Attribution:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Attribution :</translation>
    </message>
    <message>
        <source>Backup folder</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Dossier de sauvegarde</translation>
    </message>
    <message>
        <source>Batch</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Par lot</translation>
    </message>
    <message>
        <source>Before</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>Avant</translation>
    </message>
    <message>
        <source>Begin</source>
        <extracomment>src/ui/windows/TrackListModel.cpp</extracomment>
        <translation>Début</translation>
    </message>
    <message>
        <source>Begin Where the Map Is Now</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Commencer à l’endroit actuel de la carte</translation>
    </message>
    <message>
        <source>Begin where the map was last</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Commencer là où était la carte</translation>
    </message>
    <message>
        <source>Both criteria must hold, not either</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Exiger les deux critères, et non l’un ou l’autre</translation>
    </message>
    <message>
        <source>Brief summary of what the image shows, like the headline of a newspaper article. It goes with the description and does not replace it.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Bref résumé de ce que montre l’image, comme le gros titre d’un article de journal. Il accompagne la description et ne la remplace pas.</translation>
    </message>
    <message>
        <source>Brings another of the selected photos to the front</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Amène une autre des photos sélectionnées au premier plan</translation>
    </message>
    <message>
        <source>By the lake</source>
        <extracomment>src/cli/DemoCommand.cpp</extracomment>
        <translation>Au bord du lac</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>COMMANDE</translation>
    </message>
    <message>
        <source>Cache folder</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Dossier de cache</translation>
    </message>
    <message>
        <source>Cache:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Cache :</translation>
    </message>
    <message>
        <source>Camera</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Appareil photo</translation>
    </message>
    <message>
        <source>Camera Make</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Marque de l’appareil</translation>
    </message>
    <message>
        <source>Camera Model</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Modèle de l’appareil</translation>
    </message>
    <message>
        <source>Camera clock</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Horloge de l’appareil</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Cancel Import</source>
        <extracomment>src/ui/support/ImportProgressLine.cpp</extracomment>
        <translation>Annuler l’importation</translation>
    </message>
    <message>
        <source>Category</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Centre</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Centre</translation>
    </message>
    <message>
        <source>Centre:</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Centre :</translation>
    </message>
    <message>
        <source>Certificate</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Certificat</translation>
    </message>
    <message>
        <source>Change Transitions</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Varier les transitions</translation>
    </message>
    <message>
        <source>Change the permissions of the folder (chmod u+rwx), or its owner.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Changez les droits d’accès du dossier (chmod u+rwx) ou son propriétaire.</translation>
    </message>
    <message>
        <source>Changes</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Modifications</translation>
    </message>
    <message>
        <source>Check All</source>
        <extracomment>src/ui/inspector/PasteTagsSheet.cpp</extracomment>
        <translation>Tout cocher</translation>
    </message>
    <message>
        <source>Check None</source>
        <extracomment>src/ui/inspector/PasteTagsSheet.cpp</extracomment>
        <translation>Tout décocher</translation>
    </message>
    <message>
        <source>Check the installation and say what to do</source>
        <extracomment>src/cli/DoctorCommand.cpp</extracomment>
        <translation>Vérifier l’installation et indiquer que faire</translation>
    </message>
    <message>
        <source>Check what was written</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>Vérifier ce qui a été écrit</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Choisir un dossier…</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <extracomment>src/ui/window/WindowPresenter.cpp</extracomment>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>Choose a template and remove it from the list</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Choisir un modèle et le retirer de la liste</translation>
    </message>
    <message>
        <source>Choose another one in the preferences, or turn backups off.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Choisissez-en un autre dans les préférences ou désactivez les sauvegardes.</translation>
    </message>
    <message>
        <source>Choose another time zone</source>
        <extracomment>src/ui/console/CameraClockView.cpp</extracomment>
        <translation>Choisir un autre fuseau horaire</translation>
    </message>
    <message>
        <source>Choose files</source>
        <extracomment>src/ui/window/WindowPresenter.cpp</extracomment>
        <translation>Choisir des fichiers</translation>
    </message>
    <message>
        <source>Choose the photos to be geotagged</source>
        <extracomment>src/ui/photos/EmptyPhotosView.cpp</extracomment>
        <translation>Choisir les photos à géolocaliser</translation>
    </message>
    <message>
        <source>Choose track files of a GPS receiver</source>
        <extracomment>src/ui/photos/EmptyPhotosView.cpp</extracomment>
        <translation>Choisir les fichiers de traces d’un récepteur GPS</translation>
    </message>
    <message>
        <source>Choose where the backups go</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Choisir l’emplacement des sauvegardes</translation>
    </message>
    <message>
        <source>Choose which fields are shown, in which groups</source>
        <extracomment>src/ui/inspector/InspectorPane.cpp</extracomment>
        <translation>Choisir les champs à afficher et leurs groupes</translation>
    </message>
    <message>
        <source>Choose, save and remove arrangements of fields</source>
        <extracomment>src/ui/inspector/InspectorPane.cpp</extracomment>
        <translation>Choisir, enregistrer et supprimer des dispositions de champs</translation>
    </message>
    <message>
        <source>City</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Ville</translation>
    </message>
    <message>
        <source>City of the photographer's business address, not the city where the image was shot.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Ville de l’adresse professionnelle du photographe, et non celle de la prise de vue.</translation>
    </message>
    <message>
        <source>City shown</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Ville représentée</translation>
    </message>
    <message>
        <source>City where the photo was taken</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Ville de la prise de vue</translation>
    </message>
    <message>
        <source>City, town or village in which the image was shot. Leave it empty out in the country and name the place in the sublocation.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Ville ou village où l’image a été prise. Laissez ce champ vide en pleine campagne et nommez l’endroit dans le lieu précis.</translation>
    </message>
    <message>
        <source>City, town or village that the image shows. Picture agencies search this field first when they look for a place. Separate several with a vertical bar.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Ville ou village que montre l’image. Les agences photographiques consultent ce champ en premier lorsqu’elles cherchent un lieu. Séparez plusieurs valeurs par une barre verticale.</translation>
    </message>
    <message>
        <source>Clear Value</source>
        <extracomment>src/ui/inspector/FieldRow.cpp</extracomment>
        <translation>Effacer la valeur</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>src/ui/window/DemoTripCommand.cpp</extracomment>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Collections of tracks</source>
        <extracomment>src/ui/windows/TrackLibraryWindow.cpp</extracomment>
        <translation>Collections de traces</translation>
    </message>
    <message>
        <source>Columns of the photo table</source>
        <extracomment>src/ui/photos/PhotoTableView.cpp</extracomment>
        <translation>Colonnes du tableau des photos</translation>
    </message>
    <message>
        <source>Commands</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>Common Tags</source>
        <extracomment>src/metadata/KTMetadataFieldManager.cpp</extracomment>
        <translation>Balises courantes</translation>
    </message>
    <message>
        <source>Compact Rows</source>
        <extracomment>src/ui/photos/PhotoTableView.cpp</extracomment>
        <translation>Lignes compactes</translation>
    </message>
    <message>
        <source>Compact rows</source>
        <extracomment>src/ui/photos/PhotoViewOptions.cpp</extracomment>
        <translation>Lignes compactes</translation>
    </message>
    <message>
        <source>Connect the receiver, wait until it appears as a disk, and try again.</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerControllerCommands.cpp</extracomment>
        <translation>Branchez le récepteur, attendez qu’il apparaisse comme un disque, puis réessayez.</translation>
    </message>
    <message>
        <source>Contact:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Contact :</translation>
    </message>
    <message>
        <source>Copied tags</source>
        <extracomment>src/ui/inspector/PasteTagsSheet.cpp</extracomment>
        <translation>Balises copiées</translation>
    </message>
    <message>
        <source>Copies the date within each selected photo; nothing is written yet</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Copie la date au sein de chaque photo sélectionnée ; rien n’est encore écrit</translation>
    </message>
    <message>
        <source>Copright URL</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>URL du copyright</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy Address</source>
        <extracomment>src/export/KTPhotoExportOperationController.cpp</extracomment>
        <translation>Copier l’adresse</translation>
    </message>
    <message>
        <source>Copy Coordinates</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Copier les coordonnées</translation>
    </message>
    <message>
        <source>Copy Date &amp; Time…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Copier la date et l’heure…</translation>
    </message>
    <message>
        <source>Copy Date Time Created</source>
        <extracomment>src/datetools/KTDateCopyViewController.cpp</extracomment>
        <translation>la copie de la date de création</translation>
    </message>
    <message>
        <source>Copy Date Time Digitized</source>
        <extracomment>src/datetools/KTDateCopyViewController.cpp</extracomment>
        <translation>la copie de la date de numérisation</translation>
    </message>
    <message>
        <source>Copy Date Time Original</source>
        <extracomment>src/datetools/KTDateCopyViewController.cpp</extracomment>
        <translation>la copie de la date d’origine</translation>
    </message>
    <message>
        <source>Copy Machine</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Photocopieuse</translation>
    </message>
    <message>
        <source>Copy Tags</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Copier les balises</translation>
    </message>
    <message>
        <source>Copy a position first, such as “46.05108, 14.50513” or “46° 3′ 3.9″ N, 14° 30′ 18.5″ E”.</source>
        <extracomment>src/app/WaymarkAppControllerCommands.cpp</extracomment>
        <translation>Copiez d’abord une position, par exemple « 46.05108, 14.50513 » ou « 46° 3′ 3.9″ N, 14° 30′ 18.5″ E ».</translation>
    </message>
    <message>
        <source>Copy event tag from iPhoto</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>Copier la balise d’événement d’iPhoto</translation>
    </message>
    <message>
        <source>Copy from:</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Copier depuis :</translation>
    </message>
    <message>
        <source>Copy image files into a backup folder before writing to them</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Copier les fichiers image dans un dossier de sauvegarde avant d’y écrire</translation>
    </message>
    <message>
        <source>Copy one of a photo's dates to others of it</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Copier l’une des dates d’une photo vers d’autres de la même photo</translation>
    </message>
    <message>
        <source>Copy one of the dates of each photo to others of it, and save</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>Copier l’une des dates de chaque photo vers d’autres de la même photo, et enregistrer</translation>
    </message>
    <message>
        <source>Copy original image to backup folder</source>
        <extracomment>src/photo/KTPhotoSaving.cpp</extracomment>
        <translation>Copier l’image d’origine dans le dossier de sauvegarde</translation>
    </message>
    <message>
        <source>Copy people tag from iPhoto</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>Copier la balise de personnes d’iPhoto</translation>
    </message>
    <message>
        <source>Copy this date. %1.</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Copier cette date. %1.</translation>
    </message>
    <message>
        <source>Copyright Notice</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Mention de copyright</translation>
    </message>
    <message>
        <source>Copyright Status</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Statut du copyright</translation>
    </message>
    <message>
        <source>Copyrighted</source>
        <extracomment>src/app/editor/KTCopyrightStatus.cpp</extracomment>
        <translation>Protégé par copyright</translation>
    </message>
    <message>
        <source>Correct the dates of a camera whose clock was wrong</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Corriger les dates d’un appareil dont l’horloge était déréglée</translation>
    </message>
    <message>
        <source>Corrected date</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Date corrigée</translation>
    </message>
    <message>
        <source>Corrected date:</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Date corrigée :</translation>
    </message>
    <message>
        <source>Could not convert: %@ = %@</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>Incompréhensible : %@ = %@</translation>
    </message>
    <message>
        <source>Country</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Pays</translation>
    </message>
    <message>
        <source>Country Code</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Code du pays</translation>
    </message>
    <message>
        <source>Country of the photographer's business address, by its full name.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Pays de l’adresse professionnelle du photographe, en toutes lettres.</translation>
    </message>
    <message>
        <source>Country shown</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Pays représenté</translation>
    </message>
    <message>
        <source>Country where the photo was taken</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Pays de la prise de vue</translation>
    </message>
    <message>
        <source>Create temporary directory</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>Créer un dossier temporaire</translation>
    </message>
    <message>
        <source>Create temporary item url</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>Créer l’URL d’un élément temporaire</translation>
    </message>
    <message>
        <source>Creation Date</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Date de création</translation>
    </message>
    <message>
        <source>Creation Time</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Heure de création</translation>
    </message>
    <message>
        <source>Creation date</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Date de création</translation>
    </message>
    <message>
        <source>Creator</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Créateur</translation>
    </message>
    <message>
        <source>Creator's Jobtitle</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Fonction du créateur</translation>
    </message>
    <message>
        <source>Credit Line</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Ligne de crédit</translation>
    </message>
    <message>
        <source>Credit to be printed with the image when it is published, in the wording that the supplier asks for.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Crédit à imprimer avec l’image lors de sa publication, dans les termes demandés par le fournisseur.</translation>
    </message>
    <message>
        <source>Criteria</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Critères</translation>
    </message>
    <message>
        <source>Customize</source>
        <extracomment>src/ui/inspector/InspectorPane.cpp</extracomment>
        <translation>Personnaliser</translation>
    </message>
    <message>
        <source>Customize Metadata</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Personnaliser les métadonnées</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <extracomment>src/platform/presentation/KTManualPage.cpp</extracomment>
        <translation>DESCRIPTION</translation>
    </message>
    <message>
        <source>Data folder</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Dossier de données</translation>
    </message>
    <message>
        <source>Data of the program</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Données du programme</translation>
    </message>
    <message>
        <source>Date</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>Date</translation>
    </message>
    <message>
        <source>Date &amp; Time Tools</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Outils de date et d’heure</translation>
    </message>
    <message>
        <source>Date Digitized</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Date de numérisation</translation>
    </message>
    <message>
        <source>Date and time at which any of the image's metadata was last changed. Catalogue programs compare it to find out which copy of the metadata is the latest.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Date et heure de la dernière modification d’une métadonnée de l’image. Les logiciels de catalogage la comparent pour savoir quel exemplaire des métadonnées est le plus récent.</translation>
    </message>
    <message>
        <source>Date and time at which the file was created on the disk. It is kept by the file system and may change when the file is copied.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Date et heure de création du fichier sur le disque. Tenue par le système de fichiers, elle peut changer lorsque le fichier est copié.</translation>
    </message>
    <message>
        <source>Date and time at which the image became digital. The same as the original date for a digital camera; for a scanned print, slide or negative, the time of the scan.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Date et heure auxquelles l’image est devenue numérique. Identique à la date d’origine pour un appareil numérique ; pour un tirage, une diapositive ou un négatif numérisé, moment de la numérisation.</translation>
    </message>
    <message>
        <source>Date and time at which the image itself was last changed, as recorded within the file by the camera or by the program that edited it.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Date et heure de la dernière modification de l’image elle-même, telles que l’appareil ou le logiciel de retouche les a inscrites dans le fichier.</translation>
    </message>
    <message>
        <source>Date and time at which the image was shot, as the camera's clock showed it. Images are placed along a track by this time, so the clock must be right or corrected.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Date et heure de la prise de vue, telles que les indiquait l’horloge de l’appareil. Elles servent à placer les images le long d’une trace : l’horloge doit donc être juste, ou corrigée.</translation>
    </message>
    <message>
        <source>Date and time of the position, taken from the satellites' clocks and stored in UTC. As it does not depend on the camera's clock, it shows by how much that clock is off.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Date et heure de la position, données par l’horloge des satellites et enregistrées en UTC. Indépendantes de l’horloge de l’appareil, elles montrent de combien celle-ci est décalée.</translation>
    </message>
    <message>
        <source>Date tool</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Outil de date</translation>
    </message>
    <message>
        <source>Day</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Default</source>
        <extracomment>src/app/editor/KTMetadataCustomizationViewController.cpp</extracomment>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Degrees, east positive</source>
        <extracomment>src/cli/PlaceCommand.cpp</extracomment>
        <translation>Degrés, positifs vers l’est</translation>
    </message>
    <message>
        <source>Degrees, north positive</source>
        <extracomment>src/cli/PlaceCommand.cpp</extracomment>
        <translation>Degrés, positifs vers le nord</translation>
    </message>
    <message>
        <source>Degrees, or both coordinates in any usual notation</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>En degrés, ou les deux coordonnées dans toute notation courante</translation>
    </message>
    <message>
        <source>Delete from the library by the ids that list shows</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>Retirer de la bibliothèque, par les identifiants que montre list</translation>
    </message>
    <message>
        <source>Description</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Description</translation>
    </message>
    <message>
        <source>Description Writer</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Auteur de la description</translation>
    </message>
    <message>
        <source>Deselect All Photos</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Désélectionner toutes les photos</translation>
    </message>
    <message>
        <source>Differential</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Correction différentielle</translation>
    </message>
    <message>
        <source>Differential correction</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>Avec correction différentielle</translation>
    </message>
    <message>
        <source>Digitization Attributes</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Paramètres de prise de vue</translation>
    </message>
    <message>
        <source>Digitized Date Change</source>
        <extracomment>src/photo/KTPhotoDateFamily.cpp</extracomment>
        <translation>la modification de la date de numérisation</translation>
    </message>
    <message>
        <source>Digitized date</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Date de numérisation</translation>
    </message>
    <message>
        <source>Dilution of precision: how much the placement of the satellites in the sky enlarges the position's error. 1 is ideal, below 5 is good, above 10 is poor.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Affaiblissement de la précision (Dilution of Precision) : facteur par lequel la disposition des satellites dans le ciel agrandit l’erreur de position. 1 est idéal, moins de 5 est bon, plus de 10 est médiocre.</translation>
    </message>
    <message>
        <source>Direction</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Direction</translation>
    </message>
    <message>
        <source>Direction in which the camera pointed, in degrees clockwise from true north: 0 is north, 90 east, 180 south and 270 west.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Direction visée par l’appareil, en degrés depuis le nord géographique dans le sens horaire : 0 est le nord, 90 l’est, 180 le sud et 270 l’ouest.</translation>
    </message>
    <message>
        <source>Direction in which the receiver moved, in degrees clockwise from north: 90 is east, 180 south and 270 west. The camera may have pointed elsewhere.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Direction du déplacement du récepteur, en degrés depuis le nord dans le sens horaire : 90 est l’est, 180 le sud et 270 l’ouest. L’appareil a pu viser ailleurs.</translation>
    </message>
    <message>
        <source>Discard Changes &amp; Quit</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Quitter sans enregistrer</translation>
    </message>
    <message>
        <source>Discard Changes &amp; Remove Photos</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>Retirer sans enregistrer</translation>
    </message>
    <message>
        <source>Disintegrate</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Désintégration</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Dissolution</translation>
    </message>
    <message>
        <source>Distance between the track points</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Distance entre les points de trace</translation>
    </message>
    <message>
        <source>Document</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Document</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Download Tracks from GPS</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Télécharger les traces du GPS</translation>
    </message>
    <message>
        <source>Drag a field into a group above, or double click to add it</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Glissez un champ dans un groupe ci-dessus, ou double-cliquez pour l’ajouter</translation>
    </message>
    <message>
        <source>Drag fields and groups, double click to rename, Alt with arrows to move</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Glissez les champs et les groupes, double-cliquez pour renommer, Alt et flèches pour déplacer</translation>
    </message>
    <message>
        <source>Draw photos and tracks on a map, as a picture</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>Dessiner photos et traces sur une carte, sous forme d’image</translation>
    </message>
    <message>
        <source>Drop photos here</source>
        <extracomment>src/ui/photos/EmptyPhotosView.cpp</extracomment>
        <translation>Déposez des photos ici</translation>
    </message>
    <message>
        <source>Dropping geotags to this place.</source>
        <extracomment>src/ui/map/MapViewDrops.cpp</extracomment>
        <translation>Déposez ici pour géolocaliser à cet endroit.</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>ENVIRONNEMENT</translation>
    </message>
    <message>
        <source>EXIF Version</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Version EXIF</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>CODE DE RETOUR</translation>
    </message>
    <message>
        <source>Each batch makes a folder of its own, named by date and time</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Chaque lot crée son propre dossier, nommé d’après la date et l’heure</translation>
    </message>
    <message>
        <source>Each file holds what it held before, or its new version as a whole. Look whether it has what you changed last.</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Chaque fichier est resté tel qu’il était ou contient sa nouvelle version complète. Vérifiez si vos dernières modifications y figurent.</translation>
    </message>
    <message>
        <source>Edit</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Édition</translation>
    </message>
    <message>
        <source>Edit %@</source>
        <extracomment>src/app/editor/KTMetadataFieldArrayViewItem.cpp</extracomment>
        <translation>la modification de « %@ »</translation>
    </message>
    <message>
        <source>Editorial urgency of the image for a news desk, from 1 (most urgent) through 5 (normal) to 8 (least urgent).</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Urgence rédactionnelle de l’image, de 1 (la plus urgente) à 8 (la moins urgente), 5 étant normale.</translation>
    </message>
    <message>
        <source>Edits, then photos or folders; an empty value clears</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>Modifications, puis photos ou dossiers ; une valeur vide efface</translation>
    </message>
    <message>
        <source>Else at the place below</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Sinon à l’endroit ci-dessous</translation>
    </message>
    <message>
        <source>Else in the computer's</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Sinon dans celui de l’ordinateur</translation>
    </message>
    <message>
        <source>Else it becomes the time of writing</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Sinon elle devient celle de l’écriture</translation>
    </message>
    <message>
        <source>Else they come from tracks only</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Sinon, elles proviennent seulement des traces</translation>
    </message>
    <message>
        <source>Email</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Email address at which clients reach the photographer. Whoever receives the file can read it. Separate several addresses with a comma.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Adresse électronique à laquelle les clients joignent le photographe. Quiconque reçoit le fichier peut la lire. Séparez plusieurs adresses par une virgule.</translation>
    </message>
    <message>
        <source>Enclosing folder</source>
        <extracomment>src/ui/windows/MediaBrowserWindow.cpp</extracomment>
        <translation>Dossier parent</translation>
    </message>
    <message>
        <source>End</source>
        <extracomment>src/ui/windows/TrackListModel.cpp</extracomment>
        <translation>Fin</translation>
    </message>
    <message>
        <source>End customizing</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Terminer la personnalisation</translation>
    </message>
    <message>
        <source>End the Slide Show</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Terminer le diaporama</translation>
    </message>
    <message>
        <source>Ends the chosen exports; the photos that are finished stay</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Arrête les exportations choisies ; les photos déjà exportées sont conservées</translation>
    </message>
    <message>
        <source>Errors &amp; warnings</source>
        <extracomment>src/collection/KTPhotoOperationWindowController.cpp</extracomment>
        <translation>Erreurs et avertissements</translation>
    </message>
    <message>
        <source>Errors only</source>
        <extracomment>src/collection/KTPhotoOperationWindowController.cpp</extracomment>
        <translation>Erreurs seulement</translation>
    </message>
    <message>
        <source>Escape</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Échap</translation>
    </message>
    <message>
        <source>Event</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Événement</translation>
    </message>
    <message>
        <source>Everything was done.</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>Tout a été fait.</translation>
    </message>
    <message>
        <source>Exact place that the image shows, such as a building, a landmark or a mountain. Separate several with a vertical bar.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Lieu précis que montre l’image, par exemple un bâtiment, un monument ou une montagne. Séparez plusieurs valeurs par une barre verticale.</translation>
    </message>
    <message>
        <source>Exact place where the camera stood, within the city or outside of one: a quarter, a square, a building or a natural feature.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Endroit précis où se trouvait l’appareil, en ville ou en dehors : un quartier, une place, un bâtiment ou un site naturel.</translation>
    </message>
    <message>
        <source>Example Press Ltd.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Agence Exemple Presse</translation>
    </message>
    <message>
        <source>Expat</source>
        <extracomment>src/platform/desktop/KTEngineVersions.cpp</extracomment>
        <translation>Expat</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>src/export/KTPhotoExportPluginManager.cpp</extracomment>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Export GPX…</source>
        <extracomment>src/ui/windows/TrackLibraryWindow.cpp</extracomment>
        <translation>Exporter en GPX…</translation>
    </message>
    <message>
        <source>Export List</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Liste des exportations</translation>
    </message>
    <message>
        <source>Export canceled.</source>
        <extracomment>src/export/KTPhotoExportOperationController.cpp</extracomment>
        <translation>Exportation annulée.</translation>
    </message>
    <message>
        <source>Export photos with a plug-in</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>Exporter des photos avec un module</translation>
    </message>
    <message numerus="yes">
        <source>Exported %lu photos</source>
        <extracomment>src/export/slideshow/KTSlideShowExporter.cpp</extracomment>
        <translation>
            <numerusform>%lu photo exportée</numerusform>
            <numerusform>%lu photos exportées</numerusform>
        </translation>
    </message>
    <message>
        <source>Exports</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Exportations</translation>
    </message>
    <message>
        <source>Exposure Bias</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Correction d’exposition</translation>
    </message>
    <message>
        <source>Exposure Program</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Programme d’exposition</translation>
    </message>
    <message>
        <source>Exposure compensation that was dialed in, in steps of exposure value (EV). Negative values make the image darker, positive ones brighter.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Correction d’exposition réglée sur l’appareil, en indices de lumination (IL). Une valeur négative assombrit l’image, une valeur positive l’éclaircit.</translation>
    </message>
    <message>
        <source>FILES</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>FICHIERS</translation>
    </message>
    <message>
        <source>Fade</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Fondu</translation>
    </message>
    <message>
        <source>Failed</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>En échec</translation>
    </message>
    <message>
        <source>Failed to create a legitimate source URL.</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>Impossible de créer une URL source valable.</translation>
    </message>
    <message>
        <source>Far From Any Track</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Loin de toute trace</translation>
    </message>
    <message>
        <source>Fetching the city from %@…</source>
        <extracomment>src/photo/KTLinkablePointPlace.cpp</extracomment>
        <translation>Recherche de la ville auprès de %@…</translation>
    </message>
    <message>
        <source>Fetching the country from %@…</source>
        <extracomment>src/photo/KTLinkablePointPlace.cpp</extracomment>
        <translation>Recherche du pays auprès de %@…</translation>
    </message>
    <message>
        <source>Fetching the location description from %@…</source>
        <extracomment>src/app/AppPreferencesWindowController.cpp</extracomment>
        <translation>Recherche de la description du lieu auprès de %@…</translation>
    </message>
    <message>
        <source>Fetching the state from %@…</source>
        <extracomment>src/photo/KTLinkablePointPlace.cpp</extracomment>
        <translation>Recherche de l’État ou de la province auprès de %@…</translation>
    </message>
    <message>
        <source>Field</source>
        <extracomment>src/ui/inspector/PasteTagsSheet.cpp</extracomment>
        <translation>Champ</translation>
    </message>
    <message>
        <source>Field of View</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Angle de champ</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>File Name</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Nom de fichier</translation>
    </message>
    <message>
        <source>File Size</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Taille du fichier</translation>
    </message>
    <message>
        <source>File Type</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Type de fichier</translation>
    </message>
    <message>
        <source>File names below thumbnails</source>
        <extracomment>src/ui/photos/PhotoViewOptions.cpp</extracomment>
        <translation>Noms de fichiers sous les vignettes</translation>
    </message>
    <message>
        <source>File:</source>
        <extracomment>src/export/KTLocationTraces.cpp</extracomment>
        <translation>File:</translation>
    </message>
    <message>
        <source>Files of this kind</source>
        <extracomment>src/ui/window/WindowPresenter.cpp</extracomment>
        <translation>Fichiers de ce type</translation>
    </message>
    <message>
        <source>Files that can be opened</source>
        <extracomment>src/ui/window/WindowPresenter.cpp</extracomment>
        <translation>Fichiers pouvant être ouverts</translation>
    </message>
    <message>
        <source>Filter by name or tag</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Filtrer par nom ou balise</translation>
    </message>
    <message>
        <source>Filter photos</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Filtrer les photos</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Filtre : %1</translation>
    </message>
    <message>
        <source>Finishes the file that is being read and leaves out the rest</source>
        <extracomment>src/ui/support/ImportProgressLine.cpp</extracomment>
        <translation>Termine le fichier en cours de lecture et laisse de côté le reste</translation>
    </message>
    <message>
        <source>Finishes the photo at work and leaves the others as they are</source>
        <extracomment>src/ui/window/BatchProgressSheet.cpp</extracomment>
        <translation>Termine la photo en cours et laisse les autres telles quelles</translation>
    </message>
    <message>
        <source>Fit the Selection</source>
        <extracomment>src/ui/map/MapPane.cpp</extracomment>
        <translation>Ajuster à la sélection</translation>
    </message>
    <message>
        <source>Fit the pictures into this size</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>Ajuster les images à cette taille</translation>
    </message>
    <message>
        <source>Flags</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Drapeaux</translation>
    </message>
    <message>
        <source>Flash</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Flash</translation>
    </message>
    <message>
        <source>Focal Length</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Focale</translation>
    </message>
    <message>
        <source>Focal length that gives the same field of view on 35mm film, in millimeters. Use it to compare images from cameras with sensors of different size.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Focale donnant le même angle de champ sur un film 35 mm, en millimètres. Elle permet de comparer des images d’appareils dont les capteurs sont de taille différente.</translation>
    </message>
    <message>
        <source>Folder</source>
        <extracomment>src/ui/windows/MediaBrowserModel.cpp</extracomment>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Folder of a newer one, from the next start on; empty for the one that Waymark came with</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Dossier d’une version plus récente, dès le prochain démarrage ; vide pour celle fournie avec Waymark</translation>
    </message>
    <message>
        <source>Folders of photos: whether photos can be saved there</source>
        <extracomment>src/cli/DoctorCommand.cpp</extracomment>
        <translation>Dossiers de photos : vérifier que des photos peuvent y être enregistrées</translation>
    </message>
    <message>
        <source>For a clock that was wrong, not only set to another zone</source>
        <extracomment>src/ui/console/CameraClockView.cpp</extracomment>
        <translation>Pour une horloge déréglée, et non simplement réglée sur un autre fuseau</translation>
    </message>
    <message>
        <source>For a clock that was wrong. If it was right but set to another time zone, choose that zone under the camera clock of the main window instead.</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Pour une horloge déréglée. Si elle était juste mais réglée sur un autre fuseau horaire, choisissez plutôt ce fuseau sous « Horloge de l’appareil » dans la fenêtre principale.</translation>
    </message>
    <message>
        <source>For distances and heights</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Pour les distances et les altitudes</translation>
    </message>
    <message>
        <source>For example 25 m or 80 ft</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Par exemple 25 m ou 80 ft</translation>
    </message>
    <message>
        <source>For example 5 min or 90 s</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Par exemple 5 min ou 90 s</translation>
    </message>
    <message>
        <source>For {key}</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Pour {key}</translation>
    </message>
    <message>
        <source>For {s}, parted by commas</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Pour {s}, séparés par des virgules</translation>
    </message>
    <message>
        <source>Forgets the chosen exports; what was exported stays</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Oublie les exportations choisies ; ce qui a été exporté est conservé</translation>
    </message>
    <message>
        <source>Format of the file, recognized by its content and not by its extension.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Format du fichier, reconnu à son contenu et non à son extension.</translation>
    </message>
    <message>
        <source>Forward, or back where negative (-- before negative ones)</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>En avant, ou en arrière si la valeur est négative (-- avant les valeurs négatives)</translation>
    </message>
    <message>
        <source>From: %1</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Depuis : %1</translation>
    </message>
    <message>
        <source>Full name of the country in which the image was shot, in the language of your other texts.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Nom complet du pays où l’image a été prise, dans la langue de vos autres textes.</translation>
    </message>
    <message>
        <source>Full name of the country that the image shows; it differs from the one where the camera stood for a view across a border. Separate several with a vertical bar.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Nom complet du pays que montre l’image ; il diffère de celui où se trouvait l’appareil quand la vue franchit une frontière. Séparez plusieurs valeurs par une barre verticale.</translation>
    </message>
    <message>
        <source>Further categories that refine the main one, in words or codes of at most 32 characters each. Keywords have taken their place in most workflows.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Autres catégories précisant la principale, en mots ou en codes d’au plus 32 caractères chacun. Les mots-clés les ont remplacées dans la plupart des usages.</translation>
    </message>
    <message>
        <source>GLOBAL OPTIONS</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>OPTIONS GLOBALES</translation>
    </message>
    <message>
        <source>GMT.</source>
        <extracomment>src/geotagging/KTTimeZoneHUDController.cpp</extracomment>
        <translation>le fuseau GMT.</translation>
    </message>
    <message>
        <source>GPS Date &amp; Time</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Date et heure GPS</translation>
    </message>
    <message>
        <source>GPS Version ID</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Version GPS</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>src/app/AppPreferencesWindowController.cpp</extracomment>
        <translation>Général</translation>
    </message>
    <message>
        <source>GeoNames (offline)</source>
        <extracomment>src/platform/gazetteer/KTOfflineReverseGeocoder.cpp</extracomment>
        <translation>GeoNames (hors ligne)</translation>
    </message>
    <message>
        <source>Geodetic datum, the model of the earth's shape that latitude and longitude refer to. GPS receivers and web maps use WGS-84.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Système géodésique, modèle de la forme de la Terre auquel se rapportent la latitude et la longitude. Les récepteurs GPS et les cartes en ligne utilisent WGS-84.</translation>
    </message>
    <message>
        <source>Geotag</source>
        <extracomment>src/ui/console/StandardPanel.cpp</extracomment>
        <translation>Géolocaliser</translation>
    </message>
    <message numerus="yes">
        <source>Geotag %d Photos</source>
        <extracomment>src/geotagging/KTGeotaggingControllerGestures.cpp</extracomment>
        <translation>
            <numerusform>Géolocaliser %d photo</numerusform>
            <numerusform>Géolocaliser %d photos</numerusform>
        </translation>
    </message>
    <message>
        <source>Geotag Photos</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>Géolocaliser les photos</translation>
    </message>
    <message>
        <source>Geotag only photos between two track points so close to each other</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Ne géolocaliser que les photos situées entre deux points de trace aussi proches l’un de l’autre</translation>
    </message>
    <message>
        <source>Geotag only photos that were taken so close in time to a track point</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Ne géolocaliser que les photos prises à un moment aussi proche d’un point de trace</translation>
    </message>
    <message>
        <source>Geotag to Map Center</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Géolocaliser au centre de la carte</translation>
    </message>
    <message>
        <source>Geotag to Map Center and Go On</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Géolocaliser au centre de la carte et continuer</translation>
    </message>
    <message>
        <source>Geotag to next track point</source>
        <extracomment>src/ui/console/StandardPanel.cpp</extracomment>
        <translation>Géolocaliser au point de trace suivant</translation>
    </message>
    <message>
        <source>Geotag to point</source>
        <extracomment>src/geotagging/KTGeotaggingControllerGestures.cpp</extracomment>
        <translation>Géolocaliser en ce point</translation>
    </message>
    <message>
        <source>Geotag to preceding track point</source>
        <extracomment>src/ui/console/StandardPanel.cpp</extracomment>
        <translation>Géolocaliser au point de trace précédent</translation>
    </message>
    <message>
        <source>Geotag to time weighted average point</source>
        <extracomment>src/ui/console/StandardPanel.cpp</extracomment>
        <translation>Géolocaliser au point moyen pondéré par le temps</translation>
    </message>
    <message>
        <source>Geotagging</source>
        <extracomment>src/app/AppPreferencesWindowController.cpp</extracomment>
        <translation>Géolocalisation</translation>
    </message>
    <message>
        <source>Geotagging Console</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Console de géolocalisation</translation>
    </message>
    <message>
        <source>Geotagging photo %u of %u</source>
        <extracomment>src/geotagging/KTGeotaggerSaving.cpp</extracomment>
        <translation>Géolocalisation de la photo %u sur %u</translation>
    </message>
    <message>
        <source>Geotags</source>
        <extracomment>src/metadata/KTMetadataFieldManager.cpp</extracomment>
        <translation>Géolocalisation</translation>
    </message>
    <message>
        <source>Geotags all selected photos at once</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Géolocalise toutes les photos sélectionnées d’un coup</translation>
    </message>
    <message>
        <source>Geotags the selected photos to a place on the map</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Géolocalise les photos sélectionnées en un point de la carte</translation>
    </message>
    <message>
        <source>Give every photo one capture date, and save</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>Donner une même date de prise de vue à toutes les photos, et enregistrer</translation>
    </message>
    <message>
        <source>Give the photos one date, as far as it is known</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Donner une même date aux photos, pour autant qu’elle soit connue</translation>
    </message>
    <message>
        <source>Gives all selected photos this date; nothing is written yet</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Donne cette date à toutes les photos sélectionnées ; rien n’est encore écrit</translation>
    </message>
    <message>
        <source>Gives the photos the shifted dates, counted from the saved ones; nothing is written yet</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Donne aux photos les dates décalées, calculées depuis les dates enregistrées ; rien n’est encore écrit</translation>
    </message>
    <message>
        <source>Gives the photos their proposed locations; nothing is written yet</source>
        <extracomment>src/ui/console/BatchPanel.cpp</extracomment>
        <translation>Attribue aux photos les positions proposées ; rien n’est encore écrit</translation>
    </message>
    <message>
        <source>Gives the selected photos the place of the selected waypoint</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Donne aux photos sélectionnées la position du waypoint sélectionné</translation>
    </message>
    <message>
        <source>Gives the selected photos the place under the crosshairs</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Donne aux photos sélectionnées la position sous le réticule</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Aller</translation>
    </message>
    <message>
        <source>Go On</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Go to the coordinates</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Aller aux coordonnées</translation>
    </message>
    <message>
        <source>Group %1</source>
        <extracomment>src/ui/inspector/InspectorGroup.cpp</extracomment>
        <translation>Groupe %1</translation>
    </message>
    <message>
        <source>Groups and Fields</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Groupes et champs</translation>
    </message>
    <message>
        <source>Headline</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Gros titre</translation>
    </message>
    <message>
        <source>Height of the camera above sea level, in the unit chosen for heights; negative below sea level. The file holds it in meters.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Hauteur de l’appareil au-dessus du niveau de la mer, dans l’unité choisie pour les altitudes ; négative au-dessous. Le fichier la contient en mètres.</translation>
    </message>
    <message>
        <source>Height of the camera's sensor in millimeters. Together with the width it shows the sensor's format, such as full frame (36 by 24 mm) or APS-C (about 23 by 15 mm).</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Hauteur du capteur de l’appareil, en millimètres. Avec la largeur, elle indique le format du capteur, par exemple plein format (36 sur 24 mm) ou APS-C (environ 23 sur 15 mm).</translation>
    </message>
    <message>
        <source>Help</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Hide Export List</source>
        <extracomment>src/export/KTPhotoExportProgressWindowController.cpp</extracomment>
        <translation>Masquer la liste des exportations</translation>
    </message>
    <message>
        <source>Horizontal angle of the scene that the image covers, in degrees, calculated from the focal length and the size of the sensor.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Angle horizontal de la scène que couvre l’image, en degrés, calculé d’après la focale et la taille du capteur.</translation>
    </message>
    <message>
        <source>Hour</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Heure</translation>
    </message>
    <message>
        <source>How a photo gives way to the next one</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Façon dont une photo cède la place à la suivante</translation>
    </message>
    <message>
        <source>How far the dates are moved: %1</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Décalage des dates : %1</translation>
    </message>
    <message>
        <source>How many of the loaded photos would take their place from this track</source>
        <extracomment>src/ui/windows/TrackListModel.cpp</extracomment>
        <translation>Nombre de photos chargées qui tireraient leur position de cette trace</translation>
    </message>
    <message>
        <source>How much of the date is known: second, minute, hour, day, month, year</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>Précision connue de la date : second, minute, hour, day, month, year</translation>
    </message>
    <message>
        <source>How much of the date is known; finer parts stay open</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Précision à laquelle la date est connue ; les parties plus fines restent ouvertes</translation>
    </message>
    <message>
        <source>IPTC Scene Codes</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Codes de scène IPTC</translation>
    </message>
    <message>
        <source>IPTC Subject Codes</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Codes de sujet IPTC</translation>
    </message>
    <message>
        <source>ISO 3166-1 code of the country that the image shows. Prefer the code of three letters: IPTC takes no other. Separate several with a vertical bar.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Code ISO 3166-1 du pays que montre l’image. Préférez le code à trois lettres : l’IPTC n’en accepte pas d’autre. Séparez plusieurs valeurs par une barre verticale.</translation>
    </message>
    <message>
        <source>ISO 3166-1 code, of two or three capital letters, of the country in which the image was shot.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Code ISO 3166-1, de deux ou trois lettres majuscules, du pays où l’image a été prise.</translation>
    </message>
    <message>
        <source>Icon</source>
        <extracomment>src/ui/export/ExportListModel.cpp</extracomment>
        <translation>Icône</translation>
    </message>
    <message>
        <source>Ids</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>Identifiants</translation>
    </message>
    <message>
        <source>If you don't save, all changes will be lost.</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Si vous n’enregistrez pas, toutes les modifications seront perdues.</translation>
    </message>
    <message>
        <source>Image File</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Fichier image</translation>
    </message>
    <message>
        <source>Image Size</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Taille de l’image</translation>
    </message>
    <message>
        <source>Image files and sidecars</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Images et fichiers annexes</translation>
    </message>
    <message>
        <source>Image files of open formats, sidecars for raw files</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Images aux formats ouverts, annexes pour les RAW</translation>
    </message>
    <message>
        <source>Image files only</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Images seulement</translation>
    </message>
    <message>
        <source>Import</source>
        <extracomment>src/ui/support/ImportProgressLine.cpp</extracomment>
        <translation>Importation</translation>
    </message>
    <message>
        <source>Import progress</source>
        <extracomment>src/ui/support/ImportProgressLine.cpp</extracomment>
        <translation>Progression de l’importation</translation>
    </message>
    <message>
        <source>Import track files (GPX, NMEA, KML, KMZ, TCX, FIT, IGC, CSV)</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>Importer des fichiers de traces (GPX, NMEA, KML, KMZ, TCX, FIT, IGC, CSV)</translation>
    </message>
    <message>
        <source>Importing track file %lu of %lu</source>
        <extracomment>src/platform/tracklibrary/KTTrackManagerWork.cpp</extracomment>
        <translation>Importation du fichier de trace %lu sur %lu</translation>
    </message>
    <message>
        <source>Import…</source>
        <extracomment>src/ui/windows/TrackLibraryWindow.cpp</extracomment>
        <translation>Importer…</translation>
    </message>
    <message>
        <source>In batches</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Par lot</translation>
    </message>
    <message>
        <source>In pixels</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>En pixels</translation>
    </message>
    <message>
        <source>In the standard mode</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>En mode standard</translation>
    </message>
    <message>
        <source>In the thumbnail browser</source>
        <extracomment>src/ui/photos/PhotoViewOptions.cpp</extracomment>
        <translation>Dans le navigateur de vignettes</translation>
    </message>
    <message>
        <source>Indicates the status of flash when the image was shot.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Indique l’état du flash lors de la prise de vue.</translation>
    </message>
    <message>
        <source>Indicates whether the image is protected by copyright or free for everyone. Leave it blank when you do not know; that makes no claim either way.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Indique si l’image est protégée par le droit d’auteur ou libre pour tous. Laissez ce champ vide en cas de doute ; il n’affirme alors rien.</translation>
    </message>
    <message>
        <source>Indicates whether the receiver had a valid measurement when the image was shot. When the measurement is void, the position may be the last known one or missing.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Indique si le récepteur disposait d’une mesure valide lors de la prise de vue. Si la mesure n’est pas valide, la position peut être la dernière connue ou manquer.</translation>
    </message>
    <message>
        <source>Indicates whether the receiver measured the altitude too. Three dimensions need at least four satellites; with two dimensions do not rely on the altitude.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Indique si le récepteur a aussi mesuré l’altitude. Trois dimensions demandent au moins quatre satellites ; avec deux dimensions, ne vous fiez pas à l’altitude.</translation>
    </message>
    <message>
        <source>Indicates whether the receiver refined the position with correction signals from reference stations, which brings it to within a few meters or better.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Indique si le récepteur a affiné la position grâce aux signaux de correction de stations de référence, ce qui la rend précise à quelques mètres près ou mieux.</translation>
    </message>
    <message>
        <source>Install Waymark again.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Réinstallez Waymark.</translation>
    </message>
    <message>
        <source>Install the package gpsbabel for NMEA, KML, TCX, FIT, IGC and CSV files.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Installez le paquet gpsbabel pour les fichiers NMEA, KML, TCX, FIT, IGC et CSV.</translation>
    </message>
    <message>
        <source>Install the package libimage-exiftool-perl, or name a folder that holds Image/ExifTool.pm with --exiftool.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Installez le paquet libimage-exiftool-perl ou indiquez avec --exiftool un dossier contenant Image/ExifTool.pm.</translation>
    </message>
    <message>
        <source>Instructions</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Instructions</translation>
    </message>
    <message>
        <source>Instructions of the supplier to whoever publishes the image, such as an embargo or other restrictions.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Instructions du fournisseur à qui publie l’image, par exemple un embargo ou d’autres restrictions.</translation>
    </message>
    <message>
        <source>Intellectual Genre</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Genre intellectuel</translation>
    </message>
    <message>
        <source>Interpolate between the neighbours</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Interpoler entre les points voisins</translation>
    </message>
    <message>
        <source>It failed in %@: %@.</source>
        <extracomment>src/export/KTPluginError.cpp</extracomment>
        <translation>Il a échoué dans %@ : %@.</translation>
    </message>
    <message>
        <source>It is not exported, because its place could not be removed from it: %@.</source>
        <extracomment>src/export/KTPhotoFileExport.cpp</extracomment>
        <translation>Elle n’est pas exportée, car son lieu n’a pas pu en être supprimé : %@.</translation>
    </message>
    <message>
        <source>It was interrupted: the photo being written was finished.</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>Interruption : la photo en cours d’écriture a été terminée.</translation>
    </message>
    <message>
        <source>It was made for another version of Waymark.</source>
        <extracomment>src/export/KTPluginManifest.cpp</extracomment>
        <translation>Il a été conçu pour une autre version de Waymark.</translation>
    </message>
    <message>
        <source>Its library cannot be loaded.</source>
        <extracomment>src/export/KTPluginBundle.cpp</extracomment>
        <translation>Sa bibliothèque ne peut pas être chargée.</translation>
    </message>
    <message>
        <source>Its library is missing.</source>
        <extracomment>src/export/KTPluginManifest.cpp</extracomment>
        <translation>Sa bibliothèque est absente.</translation>
    </message>
    <message>
        <source>Its library was made for another version of Waymark.</source>
        <extracomment>src/export/KTPluginBundle.cpp</extracomment>
        <translation>Sa bibliothèque a été conçue pour une autre version de Waymark.</translation>
    </message>
    <message>
        <source>Its manifest cannot be read: %@.</source>
        <extracomment>src/export/KTPluginManifest.cpp</extracomment>
        <translation>Son manifeste est illisible : %@.</translation>
    </message>
    <message>
        <source>Its manifest is damaged.</source>
        <extracomment>src/export/KTPluginManifest.cpp</extracomment>
        <translation>Son manifeste est endommagé.</translation>
    </message>
    <message>
        <source>Its manifest is not a file.</source>
        <extracomment>src/export/KTPluginManifest.cpp</extracomment>
        <translation>Son manifeste n’est pas un fichier.</translation>
    </message>
    <message>
        <source>Its size before scaling</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>Sa taille avant mise à l’échelle</translation>
    </message>
    <message>
        <source>Job Identifier</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Identifiant de mission</translation>
    </message>
    <message>
        <source>Judge and print, write nothing</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Évaluer et afficher, sans rien écrire</translation>
    </message>
    <message>
        <source>Keep Both</source>
        <extracomment>src/export/KTPhotoExportPluginManager.cpp</extracomment>
        <translation>Conserver les deux</translation>
    </message>
    <message>
        <source>Keep backups there, in a folder named by date and time</source>
        <extracomment>src/cli/SaveOptions.cpp</extracomment>
        <translation>Y conserver les sauvegardes, dans un dossier nommé d’après la date et l’heure</translation>
    </message>
    <message>
        <source>Keep the files' modification dates</source>
        <extracomment>src/cli/SaveOptions.cpp</extracomment>
        <translation>Conserver la date de modification des fichiers</translation>
    </message>
    <message>
        <source>Keep the modification date of files</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Conserver la date de modification des fichiers</translation>
    </message>
    <message>
        <source>Keeps the map's present place, scale and source for later starts</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Conserve l’endroit, l’échelle et la source actuels de la carte pour les prochains démarrages</translation>
    </message>
    <message>
        <source>Key:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Clé :</translation>
    </message>
    <message>
        <source>Keyword</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Mot-clé</translation>
    </message>
    <message>
        <source>Keywords</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Mots-clés</translation>
    </message>
    <message>
        <source>Kilometres and metres</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Kilomètres et mètres</translation>
    </message>
    <message>
        <source>Kind of view, as codes of six digits from the IPTC Scene NewsCodes: 010100 is a headshot, 011200 an aerial view, 011400 a night scene.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Type de vue, sous forme de codes à six chiffres des NewsCodes de scène de l’IPTC : 010100 est un portrait serré, 011200 une vue aérienne, 011400 une scène de nuit.</translation>
    </message>
    <message>
        <source>Known to the:</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Précision :</translation>
    </message>
    <message>
        <source>LANGUAGE, LC_ALL, LC_MESSAGES, LANG</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>LANGUAGE, LC_ALL, LC_MESSAGES, LANG</translation>
    </message>
    <message>
        <source>Label</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Libellé</translation>
    </message>
    <message>
        <source>Largest zoom:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Zoom maximal :</translation>
    </message>
    <message>
        <source>Latitude</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>Latitude of the camera when the image was shot, in decimal degrees. North of the equator is positive, south of it negative.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Latitude de l’appareil lors de la prise de vue, en degrés décimaux. Positive au nord de l’équateur, négative au sud.</translation>
    </message>
    <message>
        <source>Latitude of what the image shows, in decimal degrees, for a subject at a distance from the camera. North is positive, south negative.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Latitude de ce que montre l’image, en degrés décimaux, pour un sujet éloigné de l’appareil. Positive au nord, négative au sud.</translation>
    </message>
    <message>
        <source>Lays the flags down or sets them upright</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Couche les drapeaux ou les redresse</translation>
    </message>
    <message>
        <source>Leave alone photos that have a location</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Ne pas toucher aux photos déjà géolocalisées</translation>
    </message>
    <message>
        <source>Leave out where the pictures were taken</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>Omettre le lieu de prise de vue</translation>
    </message>
    <message>
        <source>Leave the altitude alone</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Ne pas toucher à l’altitude</translation>
    </message>
    <message>
        <source>Length</source>
        <extracomment>src/ui/windows/TrackListModel.cpp</extracomment>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>Lens</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Objectif</translation>
    </message>
    <message>
        <source>Lens that was on the camera, worked out from the lens data that the camera recorded. Lenses that share an identification number may be mistaken for each other.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Objectif monté sur l’appareil, déduit des données enregistrées par celui-ci. Des objectifs partageant le même numéro d’identification peuvent être confondus.</translation>
    </message>
    <message>
        <source>Let altitudes be typed</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Permettre la saisie des altitudes</translation>
    </message>
    <message>
        <source>Library</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerController.cpp</extracomment>
        <translation>Bibliothèque</translation>
    </message>
    <message>
        <source>Licences and sources of data</source>
        <extracomment>src/ui/windows/AboutBox.cpp</extracomment>
        <translation>Licences et sources des données</translation>
    </message>
    <message>
        <source>Light on dark</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>Clair sur fond sombre</translation>
    </message>
    <message>
        <source>Linkable Point</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>Point associable</translation>
    </message>
    <message>
        <source>Linkable Points</source>
        <extracomment>src/geotagging/KTGeotaggingController.cpp</extracomment>
        <translation>Points associables</translation>
    </message>
    <message>
        <source>List the metadata fields by key</source>
        <extracomment>src/cli/FieldsCommand.cpp</extracomment>
        <translation>Lister les champs de métadonnées par clé</translation>
    </message>
    <message>
        <source>List what the library holds</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>Lister le contenu de la bibliothèque</translation>
    </message>
    <message>
        <source>Loading image %lu of %lu</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>Chargement de l’image %lu sur %lu</translation>
    </message>
    <message>
        <source>Location Created</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Lieu de prise de vue</translation>
    </message>
    <message>
        <source>Location Shown</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Lieu représenté</translation>
    </message>
    <message>
        <source>Log and notes</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Journal et notes</translation>
    </message>
    <message>
        <source>Longitude</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>Longitude of the camera when the image was shot, in decimal degrees. East of Greenwich is positive, west of it negative.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Longitude de l’appareil lors de la prise de vue, en degrés décimaux. Positive à l’est de Greenwich, négative à l’ouest.</translation>
    </message>
    <message>
        <source>Longitude of what the image shows, in decimal degrees, for a subject at a distance from the camera. East is positive, west negative.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Longitude de ce que montre l’image, en degrés décimaux, pour un sujet éloigné de l’appareil. Positive à l’est, négative à l’ouest.</translation>
    </message>
    <message>
        <source>Look up the place shown</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Rechercher le lieu représenté</translation>
    </message>
    <message>
        <source>Look up the sample position</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Rechercher la position d’essai</translation>
    </message>
    <message>
        <source>Look up where the photo was taken</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Rechercher le lieu de prise de vue</translation>
    </message>
    <message>
        <source>Looking for track points…</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Recherche de points de trace…</translation>
    </message>
    <message>
        <source>Made a small trip in %@: 12 photos (camera clock at UTC%@) and the track of the walk.</source>
        <extracomment>src/cli/DemoCommand.cpp</extracomment>
        <translation>Petite excursion créée dans %@ : 12 photos (horloge de l’appareil à UTC%@) et la trace de la promenade.</translation>
    </message>
    <message>
        <source>Made with Natural Earth</source>
        <extracomment>src/platform/cartography/drawing/KTBaseMapLayer.cpp</extracomment>
        <translation>Réalisé avec Natural Earth</translation>
    </message>
    <message>
        <source>Main Toolbar</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Barre d’outils principale</translation>
    </message>
    <message>
        <source>Main subject of the image as a code of at most three letters, agreed with the receiving agency. Subject codes have taken its place, but some agencies still ask for it.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Sujet principal de l’image, sous forme d’un code d’au plus trois lettres convenu avec l’agence destinataire. Les codes de sujet l’ont remplacé, mais certaines agences le demandent encore.</translation>
    </message>
    <message>
        <source>Make a small trip, geotag it and say what to try next</source>
        <extracomment>src/cli/DemoCommand.cpp</extracomment>
        <translation>Créer une petite excursion, la géolocaliser et indiquer ce qu’il faut essayer ensuite</translation>
    </message>
    <message>
        <source>Make room: a save needs as much as the photo takes, once more.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Libérez de l’espace : un enregistrement occupe une seconde fois la taille de la photo.</translation>
    </message>
    <message>
        <source>Makes a small trip with a track to try the program on</source>
        <extracomment>src/ui/photos/EmptyPhotosView.cpp</extracomment>
        <translation>Crée une petite excursion avec une trace pour essayer le programme</translation>
    </message>
    <message>
        <source>Manual</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Manufacturer of the equipment that generated the image.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Fabricant du matériel qui a produit l’image.</translation>
    </message>
    <message>
        <source>Map</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Carte</translation>
    </message>
    <message>
        <source>Map Datum</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Système géodésique</translation>
    </message>
    <message>
        <source>Map of the slide show</source>
        <extracomment>src/ui/slideshow/SlideShowMap.cpp</extracomment>
        <translation>Carte du diaporama</translation>
    </message>
    <message>
        <source>Map:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Carte :</translation>
    </message>
    <message>
        <source>Maps</source>
        <extracomment>src/app/AppPreferencesWindowController.cpp</extracomment>
        <translation>Cartes</translation>
    </message>
    <message>
        <source>Mark for your own workflow, most often the name of a color. Other programs show the color only if they use exactly the same name.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Repère pour votre propre organisation, le plus souvent un nom de couleur. Les autres logiciels n’affichent la couleur que s’ils emploient exactement le même nom.</translation>
    </message>
    <message>
        <source>Match photos against tracks and write their positions</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Rapprocher les photos des traces et écrire leurs positions</translation>
    </message>
    <message>
        <source>Measurement Mode</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Mode de mesure GPS</translation>
    </message>
    <message>
        <source>Measurement active</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>Mesure valide</translation>
    </message>
    <message>
        <source>Measurement void</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>Mesure non valide</translation>
    </message>
    <message>
        <source>Media Browser</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Navigateur multimédia</translation>
    </message>
    <message>
        <source>Megabytes on the disk at most</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Mégaoctets au plus sur le disque</translation>
    </message>
    <message>
        <source>Metadata</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Métadonnées</translation>
    </message>
    <message>
        <source>Metadata Date</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Date des métadonnées</translation>
    </message>
    <message>
        <source>Metadata Time</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Heure des métadonnées</translation>
    </message>
    <message>
        <source>Metadata fields</source>
        <extracomment>src/ui/inspector/InspectorPane.cpp</extracomment>
        <translation>Champs de métadonnées</translation>
    </message>
    <message>
        <source>Metering Mode</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Mode de mesure</translation>
    </message>
    <message>
        <source>Miles and feet</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Miles et pieds</translation>
    </message>
    <message>
        <source>Minute</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Minute</translation>
    </message>
    <message>
        <source>Mod</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Cercles</translation>
    </message>
    <message>
        <source>Model name of the camera, scanner or phone that generated the image, as its maker writes it.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Nom du modèle de l’appareil photo, du scanner ou du téléphone qui a produit l’image, tel que l’écrit le fabricant.</translation>
    </message>
    <message>
        <source>Modify Date</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Date de modification</translation>
    </message>
    <message>
        <source>Modify Time</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Heure de modification</translation>
    </message>
    <message>
        <source>Month</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Mois</translation>
    </message>
    <message>
        <source>Move %@ away and import your tracks again.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Déplacez %@ et importez de nouveau vos traces.</translation>
    </message>
    <message>
        <source>Move In</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Glissement</translation>
    </message>
    <message>
        <source>Move and zoom to the photo</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Aller à la photo et zoomer</translation>
    </message>
    <message>
        <source>Move and zoom to them</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>S’y déplacer et zoomer</translation>
    </message>
    <message>
        <source>Move the capture date from what the files hold, and save</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>Décaler la date de prise de vue par rapport à celle des fichiers, et enregistrer</translation>
    </message>
    <message>
        <source>Move the date at which the picture was digitized by the same difference</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Décaler d’autant la date de numérisation de l’image</translation>
    </message>
    <message>
        <source>Move the file away; then the defaults hold.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Déplacez le fichier ; les réglages par défaut s’appliqueront alors.</translation>
    </message>
    <message>
        <source>Move to the photo</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Aller à la photo</translation>
    </message>
    <message>
        <source>Move to them</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>S’y déplacer</translation>
    </message>
    <message>
        <source>Moves the map to these coordinates</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Déplace la carte à ces coordonnées</translation>
    </message>
    <message>
        <source>Multiple Values</source>
        <extracomment>src/collection/KTTagDetailsWindowController.cpp</extracomment>
        <translation>Valeurs multiples</translation>
    </message>
    <message>
        <source>Multiple values</source>
        <extracomment>src/app/editor/KTMetadataFieldArrayViewItem.cpp</extracomment>
        <translation>Valeurs multiples</translation>
    </message>
    <message>
        <source>NAME</source>
        <extracomment>src/platform/presentation/KTManualPage.cpp</extracomment>
        <translation>NOM</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Name &amp; Date</source>
        <extracomment>src/metadata/KTMetadataFieldManager.cpp</extracomment>
        <translation>Nom et date</translation>
    </message>
    <message>
        <source>Name of the event at which the image was shot. Use the same words for all images of the event, so that they can be found together.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Nom de l’événement au cours duquel l’image a été prise. Employez les mêmes mots pour toutes les images de l’événement afin de les retrouver ensemble.</translation>
    </message>
    <message>
        <source>Name of the image file, with its extension, as it stands in the folder.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Nom du fichier image, avec son extension, tel qu’il figure dans le dossier.</translation>
    </message>
    <message>
        <source>Name of the person who wrote, edited or corrected the description of the image.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Nom de la personne qui a rédigé, modifié ou corrigé la description de l’image.</translation>
    </message>
    <message>
        <source>Name of the photographer, or of the company where the photographer is not to be named. Separate several names with a semicolon.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Nom du photographe, ou de la société si le photographe ne doit pas être nommé. Séparez plusieurs noms par un point-virgule.</translation>
    </message>
    <message>
        <source>Name the place at a position (-- before negative numbers)</source>
        <extracomment>src/cli/PlaceCommand.cpp</extracomment>
        <translation>Nommer le lieu d’une position (-- avant les nombres négatifs)</translation>
    </message>
    <message>
        <source>Name:</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Nom :</translation>
    </message>
    <message>
        <source>Names of the people whom the image shows and who can be recognized, one entry for each person.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Noms des personnes reconnaissables sur l’image, une entrée par personne.</translation>
    </message>
    <message>
        <source>Nature of the image as a piece of journalism, and not what it shows. Use a term of the IPTC Genre NewsCodes.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Nature journalistique de l’image, et non ce qu’elle montre. Employez un terme des NewsCodes de genre de l’IPTC.</translation>
    </message>
    <message>
        <source>Nautical miles and metres</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Milles nautiques et mètres</translation>
    </message>
    <message>
        <source>Near &amp; Recent</source>
        <extracomment>src/geotagging/KTAppTrackPickerController.cpp</extracomment>
        <translation>Proches et récentes</translation>
    </message>
    <message>
        <source>Near Photos</source>
        <extracomment>src/geotagging/KTAppTrackPickerController.cpp</extracomment>
        <translation>Proches des photos</translation>
    </message>
    <message>
        <source>Nearest track point: %@</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Point de trace le plus proche : %@</translation>
    </message>
    <message>
        <source>Newscodes</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>NewsCodes</translation>
    </message>
    <message>
        <source>Next Photo</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Photo suivante</translation>
    </message>
    <message>
        <source>Next point</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>Point suivant</translation>
    </message>
    <message>
        <source>Next track point</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>Point suivant</translation>
    </message>
    <message>
        <source>No Description.</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>Pas de description.</translation>
    </message>
    <message>
        <source>No Loaded Tracks</source>
        <extracomment>src/geotagging/KTGeotaggingConsoleViewController.cpp</extracomment>
        <translation>Aucune trace chargée</translation>
    </message>
    <message>
        <source>No Photos Selected</source>
        <extracomment>src/app/editor/KTMetadataEditorViewController.cpp</extracomment>
        <translation>Aucune photo sélectionnée</translation>
    </message>
    <message>
        <source>No address of map tiles is set.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>Aucune adresse de tuiles n’est définie.</translation>
    </message>
    <message>
        <source>No capture date</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Pas de date de prise de vue</translation>
    </message>
    <message>
        <source>No city, state, country</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Sans ville, État ni pays</translation>
    </message>
    <message>
        <source>No correction</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>Sans correction</translation>
    </message>
    <message>
        <source>No country has this code or name.</source>
        <extracomment>src/app/editor/KTFieldText.cpp</extracomment>
        <translation>Aucun pays ne porte ce code ou ce nom.</translation>
    </message>
    <message>
        <source>No destination</source>
        <extracomment>src/ui/export/ExportListModel.cpp</extracomment>
        <translation>Sans destination</translation>
    </message>
    <message>
        <source>No distance restriction</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Sans limite de distance</translation>
    </message>
    <message>
        <source>No exports yet. Choose photos and a way to share them from the menu “Share”.</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Aucune exportation. Choisissez des photos et un mode de partage dans le menu « Partager ».</translation>
    </message>
    <message>
        <source>No file can have a creation date in that year.</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>Aucun fichier ne peut avoir de date de création cette année-là.</translation>
    </message>
    <message>
        <source>No folder is chosen.</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Aucun dossier n’est choisi.</translation>
    </message>
    <message>
        <source>No loaded photos</source>
        <extracomment>src/collection/KTPhotoManagerToolbarController.cpp</extracomment>
        <translation>Aucune photo chargée</translation>
    </message>
    <message>
        <source>No match: nearest track point %@ away</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Sans correspondance : point de trace le plus proche à %@</translation>
    </message>
    <message>
        <source>No match: track points too far apart</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Sans correspondance : points de trace trop éloignés</translation>
    </message>
    <message>
        <source>No photo matches the filter.</source>
        <extracomment>src/ui/photos/PhotoPane.cpp</extracomment>
        <translation>Aucune photo ne correspond au filtre.</translation>
    </message>
    <message>
        <source>No photos</source>
        <extracomment>src/ui/photos/EmptyPhotosView.cpp</extracomment>
        <translation>Aucune photo</translation>
    </message>
    <message>
        <source>No server is set that place names could be fetched from.</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>Aucun serveur de noms de lieux n’est défini.</translation>
    </message>
    <message>
        <source>No time restriction</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Sans limite de temps</translation>
    </message>
    <message>
        <source>No track points</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Aucun point de trace</translation>
    </message>
    <message>
        <source>No tracks of a GPS receiver were found.</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerControllerCommands.cpp</extracomment>
        <translation>Aucune trace d’un récepteur GPS n’a été trouvée.</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Not geotagged</source>
        <extracomment>src/photo/KTPhotoPresentation.cpp</extracomment>
        <translation>Non géolocalisée</translation>
    </message>
    <message>
        <source>Note: Only those values given in True North will be visible in this application.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Remarque : seules les valeurs rapportées au nord géographique sont visibles dans cette application.</translation>
    </message>
    <message>
        <source>Nothing can be written in the folder “%@”: %@</source>
        <extracomment>src/platform/desktop/KTItemReplacement.cpp</extracomment>
        <translation>Impossible d’écrire dans le dossier « %@ » : %@</translation>
    </message>
    <message>
        <source>Nothing was recorded here.</source>
        <extracomment>src/ui/map/MapPointing.cpp</extracomment>
        <translation>Rien n’a été enregistré ici.</translation>
    </message>
    <message>
        <source>Notice that claims the copyright, with the year of first publication and the name of the copyright's owner.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Mention affirmant le droit d’auteur, avec l’année de première publication et le nom du titulaire des droits.</translation>
    </message>
    <message>
        <source>Number or name of the job or assignment that the image belongs to, for your own workflow or that of the client who receives it.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Numéro ou nom de la mission ou de la commande dont relève l’image, pour votre propre organisation ou celle du client destinataire.</translation>
    </message>
    <message>
        <source>OK</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>OPTIONS</translation>
    </message>
    <message>
        <source>Of JPEG pictures, from 0 to 1</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>Pour les images JPEG, de 0 à 1</translation>
    </message>
    <message>
        <source>Of photos of a photo library</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Pour les photos d’une photothèque</translation>
    </message>
    <message>
        <source>Offline Map</source>
        <extracomment>src/ui/map/MapPane.cpp</extracomment>
        <translation>Carte hors ligne</translation>
    </message>
    <message>
        <source>Offset</source>
        <extracomment>src/ui/console/TimeZoneList.cpp</extracomment>
        <translation>Décalage</translation>
    </message>
    <message>
        <source>On the map</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Sur la carte</translation>
    </message>
    <message>
        <source>One JSON document on standard output instead of text</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>Produire un document JSON sur la sortie standard au lieu de texte</translation>
    </message>
    <message>
        <source>Only the tags or only the properties</source>
        <extracomment>src/cli/ReadCommand.cpp</extracomment>
        <translation>Seulement les balises ou seulement les propriétés</translation>
    </message>
    <message>
        <source>Opens what was exported</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Ouvre ce qui a été exporté</translation>
    </message>
    <message>
        <source>Operation Log</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Journal des opérations</translation>
    </message>
    <message>
        <source>Operations</source>
        <extracomment>src/ui/windows/OperationLogWindow.cpp</extracomment>
        <translation>Opérations</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>Options</translation>
    </message>
    <message>
        <source>Organization</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Classement</translation>
    </message>
    <message>
        <source>Orientation</source>
        <extracomment>src/export/KTExportedTags.cpp</extracomment>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Original Date</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Date d’origine</translation>
    </message>
    <message>
        <source>Original Date Change</source>
        <extracomment>src/photo/KTPhotoDateFamily.cpp</extracomment>
        <translation>la modification de la date d’origine</translation>
    </message>
    <message>
        <source>Original Time</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Heure d’origine</translation>
    </message>
    <message>
        <source>Original date</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Date d’origine</translation>
    </message>
    <message>
        <source>Original date:</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Date d’origine :</translation>
    </message>
    <message>
        <source>Original owner or first supplier of the image: an agency, an archive or a person. It stays the same when others pass the image on.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Propriétaire d’origine ou premier fournisseur de l’image : agence, fonds d’archives ou personne. Il reste le même quand d’autres transmettent l’image.</translation>
    </message>
    <message>
        <source>Other Categories</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Autres catégories</translation>
    </message>
    <message>
        <source>Overwrite original file</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>Remplacer le fichier d’origine</translation>
    </message>
    <message>
        <source>Overwrite original xmp file</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>Remplacer le fichier xmp d’origine</translation>
    </message>
    <message>
        <source>Own Tile Server</source>
        <extracomment>src/ui/map/MapPane.cpp</extracomment>
        <translation>Serveur de tuiles personnel</translation>
    </message>
    <message>
        <source>Owner</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Propriétaire</translation>
    </message>
    <message>
        <source>Page Curl</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Page tournée</translation>
    </message>
    <message>
        <source>Panes</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Volets</translation>
    </message>
    <message>
        <source>Paste Coordinates</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Coller les coordonnées</translation>
    </message>
    <message>
        <source>Paste Tags</source>
        <extracomment>src/app/editor/KTCopiedTags.cpp</extracomment>
        <translation>Coller les balises</translation>
    </message>
    <message>
        <source>Paste Tags…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Coller les balises…</translation>
    </message>
    <message numerus="yes">
        <source>Paste the checked values onto %d photos:</source>
        <extracomment>src/ui/inspector/PasteTagsSheet.cpp</extracomment>
        <translation>
            <numerusform>Coller les valeurs cochées dans %d photo :</numerusform>
            <numerusform>Coller les valeurs cochées dans %d photos :</numerusform>
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
        <translation>Personnes représentées</translation>
    </message>
    <message>
        <source>Person</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Personne</translation>
    </message>
    <message>
        <source>Person or organization that owns the rights in the image, if that is not the photographer.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Personne ou organisation détenant les droits sur l’image, si ce n’est pas le photographe.</translation>
    </message>
    <message>
        <source>Photo</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Photo Description</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Description de la photo</translation>
    </message>
    <message>
        <source>Photo Library</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Photothèque</translation>
    </message>
    <message>
        <source>Photo in front</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Photo au premier plan</translation>
    </message>
    <message>
        <source>Photo library</source>
        <extracomment>src/ui/inspector/FieldRow.cpp</extracomment>
        <translation>Photothèque</translation>
    </message>
    <message>
        <source>Photo of the slide show</source>
        <extracomment>src/ui/slideshow/SlideShowView.cpp</extracomment>
        <translation>Photo du diaporama</translation>
    </message>
    <message>
        <source>Photo shown</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Photo affichée</translation>
    </message>
    <message>
        <source>Photo: %@</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Photo : %@</translation>
    </message>
    <message>
        <source>Photographer</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Photographe</translation>
    </message>
    <message>
        <source>Photographer Contact Info</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Coordonnées du photographe</translation>
    </message>
    <message>
        <source>Photos</source>
        <extracomment>src/app/AppPreferencesWindowController.cpp</extracomment>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Photos or whole folders, and the GPS tracks of the same days. Nothing is changed in them before you press "Write Changed Tags".</source>
        <extracomment>src/ui/photos/EmptyPhotosView.cpp</extracomment>
        <translation>Des photos ou des dossiers entiers, et les traces GPS des mêmes jours. Rien n’y est modifié avant que vous cliquiez sur « Écrire les balises modifiées ».</translation>
    </message>
    <message>
        <source>Photos taken or shown inside these circles are exported without their location, and tracks without their points there.</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Les photos prises dans ces cercles, ou dont le lieu représenté s’y trouve, sont exportées sans leur position, et les traces sans les points qui s’y trouvent.</translation>
    </message>
    <message>
        <source>Photos there can be read, but not saved: change the permissions of the folder.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Les photos peuvent y être lues, mais pas enregistrées : changez les droits d’accès du dossier.</translation>
    </message>
    <message>
        <source>Photos, sidecars or folders</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>Photos, fichiers annexes ou dossiers</translation>
    </message>
    <message>
        <source>Photos…</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Photos…</translation>
    </message>
    <message>
        <source>Pick %1</source>
        <extracomment>src/ui/inspector/PairFieldEditor.cpp</extracomment>
        <translation>Choisir : %1</translation>
    </message>
    <message>
        <source>Picture</source>
        <extracomment>src/ui/photos/PhotoListModel.cpp</extracomment>
        <translation>Image</translation>
    </message>
    <message>
        <source>Pictures</source>
        <extracomment>src/ui/windows/MediaBrowserWindow.cpp</extracomment>
        <translation>Images</translation>
    </message>
    <message>
        <source>Pictures of the type “%@” cannot be made.</source>
        <extracomment>src/export/KTPhotoFileExport.cpp</extracomment>
        <translation>Impossible de créer des images de type « %@ ».</translation>
    </message>
    <message>
        <source>Pixels for each of these</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>Nombre de pixels pour chacun de ceux-ci</translation>
    </message>
    <message>
        <source>Place names from:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Noms de lieux :</translation>
    </message>
    <message>
        <source>Place names of the sample position</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Noms de lieux de la position d’essai</translation>
    </message>
    <message>
        <source>Places that no export tells</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Lieux qu’aucune exportation ne révèle</translation>
    </message>
    <message>
        <source>Points</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Points</translation>
    </message>
    <message>
        <source>Position or job title of the photographer. It has meaning only together with the creator's name.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Poste ou fonction du photographe. N’a de sens qu’avec le nom du créateur.</translation>
    </message>
    <message>
        <source>Positions below thumbnails</source>
        <extracomment>src/ui/photos/PhotoViewOptions.cpp</extracomment>
        <translation>Positions sous les vignettes</translation>
    </message>
    <message>
        <source>Postal Code</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Code postal</translation>
    </message>
    <message>
        <source>Postal code, such as the ZIP code, of the photographer's business address.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Code postal de l’adresse professionnelle du photographe.</translation>
    </message>
    <message>
        <source>Preceding point</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>Point précédent</translation>
    </message>
    <message>
        <source>Preceding track point</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>Point précédent</translation>
    </message>
    <message>
        <source>Precision</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Précision</translation>
    </message>
    <message>
        <source>Preferences</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Préférences…</translation>
    </message>
    <message>
        <source>Preserve modification date</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>Conserver la date de modification</translation>
    </message>
    <message>
        <source>Previous Photo</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Photo précédente</translation>
    </message>
    <message>
        <source>Privacy Zones</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Zones de confidentialité</translation>
    </message>
    <message>
        <source>Privacy Zones…</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Zones de confidentialité…</translation>
    </message>
    <message>
        <source>Program that the camera used to set the exposure; it tells which of aperture and shutter speed the photographer chose.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Programme utilisé par l’appareil pour régler l’exposition ; il indique si le photographe a choisi l’ouverture ou la vitesse.</translation>
    </message>
    <message>
        <source>Progress</source>
        <extracomment>src/ui/window/BatchProgressSheet.cpp</extracomment>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Proposed Locations</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>Positions proposées</translation>
    </message>
    <message>
        <source>Proposed locations</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Positions proposées</translation>
    </message>
    <message>
        <source>Public Domain</source>
        <extracomment>src/app/editor/KTCopyrightStatus.cpp</extracomment>
        <translation>Domaine public</translation>
    </message>
    <message>
        <source>Push</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Poussée</translation>
    </message>
    <message>
        <source>Qt</source>
        <extracomment>src/platform/desktop/KTEngineVersions.cpp</extracomment>
        <translation>Qt</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>src/app/WaymarkAppDelegate.cpp</extracomment>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>REQUIRED</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>OBLIGATOIRE</translation>
    </message>
    <message>
        <source>Radius</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Rayon</translation>
    </message>
    <message>
        <source>Radius:</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Rayon :</translation>
    </message>
    <message>
        <source>Rating</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Note</translation>
    </message>
    <message>
        <source>Read from primary file URL.</source>
        <extracomment>src/photo/KTPhotoReading.cpp</extracomment>
        <translation>Lire depuis l’URL du fichier principal.</translation>
    </message>
    <message>
        <source>Read from sidecar file URL.</source>
        <extracomment>src/photo/KTPhotoReading.cpp</extracomment>
        <translation>Lire depuis l’URL du fichier annexe.</translation>
    </message>
    <message>
        <source>Read metadata from file</source>
        <extracomment>src/metadata/KTExifTool.cpp</extracomment>
        <translation>Lire les métadonnées du fichier</translation>
    </message>
    <message>
        <source>Read metadata from image file</source>
        <extracomment>src/photo/KTPhotoReading.cpp</extracomment>
        <translation>Lire les métadonnées du fichier image</translation>
    </message>
    <message>
        <source>Read metadata from xmp sidecar</source>
        <extracomment>src/photo/KTPhotoReading.cpp</extracomment>
        <translation>Lire les métadonnées du fichier annexe xmp</translation>
    </message>
    <message>
        <source>Recent Imports</source>
        <extracomment>src/platform/tracklibrary/KTSmartRecentImportsFile.cpp</extracomment>
        <translation>Imports récents</translation>
    </message>
    <message>
        <source>Recent Tracks</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Traces récentes</translation>
    </message>
    <message>
        <source>Redo</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Redo %@</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Rétablir : %@</translation>
    </message>
    <message>
        <source>Region of the world in which the image was shot, usually the continent.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Région du monde où l’image a été prise, en général le continent.</translation>
    </message>
    <message>
        <source>Region of the world that the image shows, usually a continent. Separate several with a vertical bar.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>Région du monde que montre l’image, en général un continent. Séparez plusieurs valeurs par une barre verticale.</translation>
    </message>
    <message>
        <source>Region, city or offset</source>
        <extracomment>src/ui/console/TimeZonePicker.cpp</extracomment>
        <translation>Région, ville ou décalage</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Remove From List</source>
        <extracomment>src/export/KTPhotoExportOperationController.cpp</extracomment>
        <translation>Retirer de la liste</translation>
    </message>
    <message>
        <source>Remove GPS Tags…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Supprimer les balises GPS…</translation>
    </message>
    <message>
        <source>Remove GPS tags?</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>Supprimer les balises GPS ?</translation>
    </message>
    <message>
        <source>Remove Image Direction Tags</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>Supprimer la direction de prise de vue</translation>
    </message>
    <message>
        <source>Remove Image Direction…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Supprimer la direction de prise de vue…</translation>
    </message>
    <message>
        <source>Remove Location Created Tags</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>Supprimer le lieu de prise de vue</translation>
    </message>
    <message>
        <source>Remove Location Shown Tags</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Supprimer le lieu représenté</translation>
    </message>
    <message>
        <source>Remove Location Shown…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Supprimer le lieu représenté…</translation>
    </message>
    <message>
        <source>Remove Photos</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Retirer les photos</translation>
    </message>
    <message>
        <source>Remove Tags</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Supprimer des balises</translation>
    </message>
    <message>
        <source>Remove Template</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Supprimer le modèle</translation>
    </message>
    <message>
        <source>Remove Templates</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Supprimer des modèles</translation>
    </message>
    <message>
        <source>Remove Tracks</source>
        <extracomment>src/platform/tracklibrary/KTTrackManagerWork.cpp</extracomment>
        <translation>le retrait de traces</translation>
    </message>
    <message>
        <source>Remove image direction tag?</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>Supprimer la direction de prise de vue ?</translation>
    </message>
    <message>
        <source>Remove latitude &amp; longitude shown</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>la suppression du lieu représenté</translation>
    </message>
    <message>
        <source>Remove location shown tags?</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>Supprimer le lieu représenté ?</translation>
    </message>
    <message>
        <source>Removes the chosen group or field from the inspector</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Retire de l’inspecteur le groupe ou le champ choisi</translation>
    </message>
    <message>
        <source>Removes the chosen template from the list; its file is deleted by “Done”</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Retire de la liste le modèle choisi ; « Terminé » supprime son fichier</translation>
    </message>
    <message>
        <source>Removes the chosen tracks from the library; the files stay</source>
        <extracomment>src/ui/windows/TrackLibraryWindow.cpp</extracomment>
        <translation>Retire de la bibliothèque les traces choisies ; les fichiers sont conservés</translation>
    </message>
    <message>
        <source>Remove…</source>
        <extracomment>src/app/editor/KTMetadataCustomizationViewController.cpp</extracomment>
        <translation>Supprimer…</translation>
    </message>
    <message>
        <source>Replace</source>
        <extracomment>src/export/KTPhotoExportPluginManager.cpp</extracomment>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Replace an altitude that a photo has</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Remplacer l’altitude existante d’une photo</translation>
    </message>
    <message>
        <source>Replace an image direction that a photo has</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Remplacer la direction existante d’une photo</translation>
    </message>
    <message>
        <source>Replace files that exist already</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>Remplacer les fichiers existants</translation>
    </message>
    <message>
        <source>Replace the names of the place shown that a photo has</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Remplacer les noms existants du lieu représenté</translation>
    </message>
    <message>
        <source>Replace the names that a photo has</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Remplacer les noms existants d’une photo</translation>
    </message>
    <message>
        <source>Replace this date. %1.</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Remplacer cette date. %1.</translation>
    </message>
    <message>
        <source>Require</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Exiger</translation>
    </message>
    <message>
        <source>Restore Usual Columns</source>
        <extracomment>src/ui/photos/PhotoTableView.cpp</extracomment>
        <translation>Rétablir les colonnes habituelles</translation>
    </message>
    <message>
        <source>Result</source>
        <extracomment>src/ui/windows/OperationLogModel.cpp</extracomment>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Reveal</source>
        <extracomment>src/ui/export/ExportListModel.cpp</extracomment>
        <translation>Révéler</translation>
    </message>
    <message>
        <source>Reveal in map</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Montrer sur la carte</translation>
    </message>
    <message>
        <source>Reverse Geocode</source>
        <extracomment>src/photo/KTPhotoLocation.cpp</extracomment>
        <translation>Géocodage inverse</translation>
    </message>
    <message>
        <source>Reverse Geocode Location Created</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Géocodage inverse du lieu de prise de vue</translation>
    </message>
    <message>
        <source>Reverse Geocode Location Shown</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Géocodage inverse du lieu représenté</translation>
    </message>
    <message>
        <source>Reverse Geocoding</source>
        <extracomment>src/app/AppPreferencesWindowController.cpp</extracomment>
        <translation>Géocodage inverse</translation>
    </message>
    <message>
        <source>Reverse geocode</source>
        <extracomment>src/photo/KTPhotoLocation.cpp</extracomment>
        <translation>Géocodage inverse</translation>
    </message>
    <message>
        <source>Reverse geocode location created</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Géocodage inverse du lieu de prise de vue</translation>
    </message>
    <message>
        <source>Reverse geocode location shown</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Géocodage inverse du lieu représenté</translation>
    </message>
    <message>
        <source>Reverse geocoding photo %u of %u</source>
        <extracomment>src/collection/KTPhotoControllerGeocoding.cpp</extracomment>
        <translation>Géocodage inverse de la photo %u sur %u</translation>
    </message>
    <message>
        <source>Revert</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Revert to Saved</source>
        <extracomment>src/app/editor/KTMetadataFieldArrayViewItem.cpp</extracomment>
        <translation>Revenir à la valeur enregistrée</translation>
    </message>
    <message>
        <source>Rights</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Droits</translation>
    </message>
    <message>
        <source>Ripple</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Ondulation</translation>
    </message>
    <message>
        <source>Rotate</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Pivoter</translation>
    </message>
    <message>
        <source>Rows count from the south</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Compter les rangées depuis le sud</translation>
    </message>
    <message>
        <source>Run with --help for more information.</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>Pour en savoir plus, utilisez --help.</translation>
    </message>
    <message>
        <source>SEE ALSO</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>VOIR AUSSI</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <extracomment>src/platform/presentation/KTManualPage.cpp</extracomment>
        <translation>SYNOPSIS</translation>
    </message>
    <message>
        <source>Sample latitude:</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Latitude d’essai :</translation>
    </message>
    <message>
        <source>Sample longitude:</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Longitude d’essai :</translation>
    </message>
    <message>
        <source>Satellites</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Satellites</translation>
    </message>
    <message>
        <source>Satellites that the position was measured with. Some receivers give their number, others list them with their identification.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Satellites ayant servi à mesurer la position. Certains récepteurs en donnent le nombre, d’autres en dressent la liste avec leur identifiant.</translation>
    </message>
    <message>
        <source>Save Template</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Enregistrer le modèle</translation>
    </message>
    <message>
        <source>Save as</source>
        <extracomment>src/ui/window/WindowPresenter.cpp</extracomment>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Save as Text…</source>
        <extracomment>src/ui/windows/OperationLogWindow.cpp</extracomment>
        <translation>Enregistrer comme texte…</translation>
    </message>
    <message>
        <source>Save changes</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Enregistrer les modifications</translation>
    </message>
    <message>
        <source>Save current…</source>
        <extracomment>src/app/editor/KTMetadataCustomizationViewController.cpp</extracomment>
        <translation>Enregistrer la disposition actuelle…</translation>
    </message>
    <message>
        <source>Save the groups and fields of the inspector as a template named:</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Enregistrer les groupes et champs de l’inspecteur comme modèle sous le nom :</translation>
    </message>
    <message>
        <source>Saved</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Enregistrées</translation>
    </message>
    <message>
        <source>Saved date</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Date enregistrée</translation>
    </message>
    <message>
        <source>Saved date:</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Date enregistrée :</translation>
    </message>
    <message>
        <source>Saving changes this field in the photo library, too</source>
        <extracomment>src/ui/inspector/FieldRow.cpp</extracomment>
        <translation>L’enregistrement modifie aussi ce champ dans la photothèque</translation>
    </message>
    <message>
        <source>Saving to photo %u of %u</source>
        <extracomment>src/collection/KTBatchOperationController.cpp</extracomment>
        <translation>Enregistrement de la photo %u sur %u</translation>
    </message>
    <message>
        <source>Saving writes this list into files only, not into the photo library</source>
        <extracomment>src/ui/inspector/FieldRow.cpp</extracomment>
        <translation>L’enregistrement écrit cette liste dans les fichiers seulement, pas dans la photothèque</translation>
    </message>
    <message>
        <source>Scene Code</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Code de scène</translation>
    </message>
    <message>
        <source>Scroll</source>
        <extracomment>src/app/AppPreferencesWindowController.cpp</extracomment>
        <translation>Défilement</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search fields</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Rechercher un champ</translation>
    </message>
    <message>
        <source>Search tags</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Rechercher une balise</translation>
    </message>
    <message>
        <source>Search time zones</source>
        <extracomment>src/ui/console/TimeZonePicker.cpp</extracomment>
        <translation>Rechercher un fuseau horaire</translation>
    </message>
    <message>
        <source>Second</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Seconde</translation>
    </message>
    <message>
        <source>Seconds for a photo:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Secondes par photo :</translation>
    </message>
    <message>
        <source>Select All Photos</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Sélectionner toutes les photos</translation>
    </message>
    <message>
        <source>Select Next Photo</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Sélectionner la photo suivante</translation>
    </message>
    <message>
        <source>Select Previous Photo</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Sélectionner la photo précédente</translation>
    </message>
    <message>
        <source>Select a backup folder</source>
        <extracomment>src/app/AppPreferencesWindowController.cpp</extracomment>
        <translation>Choisir un dossier de sauvegarde</translation>
    </message>
    <message>
        <source>Select photos in the main window; they show here.</source>
        <extracomment>src/ui/datetools/CoverFlowView.cpp</extracomment>
        <translation>Sélectionnez des photos dans la fenêtre principale ; elles s’affichent ici.</translation>
    </message>
    <message>
        <source>Select photos to see and edit their metadata.</source>
        <extracomment>src/ui/inspector/InspectorPane.cpp</extracomment>
        <translation>Sélectionnez des photos pour voir et modifier leurs métadonnées.</translation>
    </message>
    <message>
        <source>Select the next photo after geotagging one</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Sélectionner la photo suivante après une géolocalisation</translation>
    </message>
    <message>
        <source>Selected photos</source>
        <extracomment>src/ui/datetools/CoverFlowView.cpp</extracomment>
        <translation>Photos sélectionnées</translation>
    </message>
    <message>
        <source>Selects the next photo as soon as this one is geotagged</source>
        <extracomment>src/ui/console/StandardPanel.cpp</extracomment>
        <translation>Sélectionne la photo suivante dès que celle-ci est géolocalisée</translation>
    </message>
    <message>
        <source>Sensitivity to which the camera was set, on the ISO scale. Doubling the number halves the light that is needed and adds noise.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Sensibilité réglée sur l’appareil, sur l’échelle ISO. Doubler la valeur divise par deux la lumière nécessaire et augmente le bruit.</translation>
    </message>
    <message>
        <source>Sensor Height</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Hauteur du capteur</translation>
    </message>
    <message>
        <source>Sensor Width</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Largeur du capteur</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>Serial number of the camera body. It tells two bodies of the same model apart, for example when their clocks differ.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Numéro de série du boîtier. Il distingue deux boîtiers du même modèle, par exemple quand leurs horloges diffèrent.</translation>
    </message>
    <message>
        <source>Server:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Serveur :</translation>
    </message>
    <message>
        <source>Set</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Définir</translation>
    </message>
    <message>
        <source>Set Date &amp; Time…</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Définir la date et l’heure…</translation>
    </message>
    <message>
        <source>Set Location Shown</source>
        <extracomment>src/photo/KTPhotoLocation.cpp</extracomment>
        <translation>Définir le lieu représenté</translation>
    </message>
    <message>
        <source>Set fields by key and save</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>Définir des champs par clé et enregistrer</translation>
    </message>
    <message>
        <source>Set image direction</source>
        <extracomment>src/geotagging/KTGeotaggingControllerGestures.cpp</extracomment>
        <translation>Définir la direction de prise de vue</translation>
    </message>
    <message>
        <source>Set image location shown</source>
        <extracomment>src/geotagging/KTGeotaggingControllerGestures.cpp</extracomment>
        <translation>Définir le lieu représenté</translation>
    </message>
    <message>
        <source>Set the creation date</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>Définir la date de création</translation>
    </message>
    <message>
        <source>Set the zone of the cameras' clocks, for later runs too, and show the photos' instants</source>
        <extracomment>src/cli/ZoneCommand.cpp</extracomment>
        <translation>Définir le fuseau de l’horloge des appareils, aussi pour les exécutions suivantes, et afficher les instants des photos</translation>
    </message>
    <message>
        <source>Settings</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Settings folder</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Dossier de réglages</translation>
    </message>
    <message>
        <source>Settings of the slide show</source>
        <extracomment>src/ui/slideshow/SlideShowSettingsView.cpp</extracomment>
        <translation>Réglages du diaporama</translation>
    </message>
    <message>
        <source>Share</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Partager</translation>
    </message>
    <message>
        <source>Shift</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Décaler</translation>
    </message>
    <message>
        <source>Shift dates:</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Décaler les dates :</translation>
    </message>
    <message>
        <source>Shift every photo that is loaded, whatever is selected</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Décaler toutes les photos chargées, quelle que soit la sélection</translation>
    </message>
    <message>
        <source>Shift the digitized date, too</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Décaler aussi la date de numérisation</translation>
    </message>
    <message>
        <source>Short name by which the image can be referred to, such as a file number or the name of a work. It identifies the image; use the description to tell what it shows.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Nom court servant à désigner l’image, comme un numéro de fichier ou le nom d’une œuvre. Il identifie l’image ; ce qu’elle montre se dit dans la description.</translation>
    </message>
    <message>
        <source>Show Destination</source>
        <extracomment>src/export/KTPhotoExportOperationController.cpp</extracomment>
        <translation>Afficher la destination</translation>
    </message>
    <message>
        <source>Show Destination: %1</source>
        <extracomment>src/ui/export/ExportListModel.cpp</extracomment>
        <translation>Afficher la destination : %1</translation>
    </message>
    <message>
        <source>Show Export List</source>
        <extracomment>src/export/KTPhotoExportProgressWindowController.cpp</extracomment>
        <translation>Afficher la liste des exportations</translation>
    </message>
    <message>
        <source>Show all dates in the time zone of the camera clock</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Afficher toutes les dates dans le fuseau de l’appareil</translation>
    </message>
    <message>
        <source>Show file names below thumbnails</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Afficher les noms de fichiers sous les vignettes</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Afficher dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Show or hide the fields of this group</source>
        <extracomment>src/ui/inspector/InspectorGroup.cpp</extracomment>
        <translation>Afficher ou masquer les champs de ce groupe</translation>
    </message>
    <message>
        <source>Show or hide the geotagging console</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Afficher ou masquer la console de géolocalisation</translation>
    </message>
    <message>
        <source>Show or hide the map</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Afficher ou masquer la carte</translation>
    </message>
    <message>
        <source>Show or hide the metadata of the selected photos</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Afficher ou masquer les métadonnées des photos sélectionnées</translation>
    </message>
    <message>
        <source>Show photos as:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Afficher les photos en :</translation>
    </message>
    <message>
        <source>Show positions below thumbnails</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Afficher les positions sous les vignettes</translation>
    </message>
    <message>
        <source>Show progress on standard error</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>Afficher la progression sur la sortie d’erreur</translation>
    </message>
    <message>
        <source>Show the photos as a table</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Afficher les photos en tableau</translation>
    </message>
    <message>
        <source>Show the photos as thumbnails</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Afficher les photos en vignettes</translation>
    </message>
    <message>
        <source>Show the tracks near the photos</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Afficher les traces proches des photos</translation>
    </message>
    <message>
        <source>Show the version</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>Afficher la version</translation>
    </message>
    <message>
        <source>Show this help</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>Afficher cette aide</translation>
    </message>
    <message>
        <source>Show what photos hold</source>
        <extracomment>src/cli/ReadCommand.cpp</extracomment>
        <translation>Afficher le contenu des photos</translation>
    </message>
    <message>
        <source>Show:</source>
        <extracomment>src/ui/windows/OperationLogWindow.cpp</extracomment>
        <translation>Afficher :</translation>
    </message>
    <message>
        <source>Shows all flags on the map</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Montre tous les drapeaux sur la carte</translation>
    </message>
    <message>
        <source>Shows all waypoints of the track library</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Montre tous les waypoints de la bibliothèque de traces</translation>
    </message>
    <message>
        <source>Shows more photos in the table, with smaller pictures</source>
        <extracomment>src/ui/photos/PhotoViewOptions.cpp</extracomment>
        <translation>Affiche plus de photos dans le tableau, avec des images plus petites</translation>
    </message>
    <message>
        <source>Shows only fields and groups with this in their name</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>N’affiche que les champs et groupes dont le nom contient ce texte</translation>
    </message>
    <message>
        <source>Shows only photos with these words in file name, keywords, people or places</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>N’affiche que les photos ayant ces mots dans le nom de fichier, les mots-clés, les personnes ou les lieux</translation>
    </message>
    <message>
        <source>Shows or hides the proposed points</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Affiche ou masque les points proposés</translation>
    </message>
    <message>
        <source>Shows the folder that holds this one</source>
        <extracomment>src/ui/windows/MediaBrowserWindow.cpp</extracomment>
        <translation>Affiche le dossier qui contient celui-ci</translation>
    </message>
    <message>
        <source>Shows the inspector as arranged</source>
        <extracomment>src/ui/inspector/ArrangementView.cpp</extracomment>
        <translation>Affiche l’inspecteur tel qu’il est disposé</translation>
    </message>
    <message>
        <source>Shows the track points around one photo</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Montre les points de trace autour d’une photo</translation>
    </message>
    <message>
        <source>Shutter Speed</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Vitesse d’obturation</translation>
    </message>
    <message>
        <source>Sidecar</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Fichier annexe</translation>
    </message>
    <message>
        <source>Sidecars are XMP files beside the photos</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Les fichiers annexes sont des fichiers XMP placés à côté des photos</translation>
    </message>
    <message>
        <source>Sidecars only</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Fichiers annexes seulement</translation>
    </message>
    <message>
        <source>Sidecars where there are some, else image files</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Fichiers annexes s’ils existent, sinon images</translation>
    </message>
    <message>
        <source>Size of the thumbnails</source>
        <extracomment>src/ui/photos/PhotoPane.cpp</extracomment>
        <translation>Taille des vignettes</translation>
    </message>
    <message>
        <source>Size of the thumbnails:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Taille des vignettes :</translation>
    </message>
    <message>
        <source>Slide Show</source>
        <extracomment>src/export/slideshow/KTSlideShowExporterClass.cpp</extracomment>
        <translation>Diaporama</translation>
    </message>
    <message>
        <source>Slide show controls</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Commandes du diaporama</translation>
    </message>
    <message>
        <source>Slide show in progress</source>
        <extracomment>src/export/slideshow/KTSlideShowExporter.cpp</extracomment>
        <translation>Diaporama en cours</translation>
    </message>
    <message>
        <source>Smallest zoom:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Zoom minimal :</translation>
    </message>
    <message>
        <source>Some of the selected photos have a date already, which is replaced.</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Certaines des photos sélectionnées ont déjà une date ; elle sera remplacée.</translation>
    </message>
    <message>
        <source>Something failed; the rest was done. What failed and why is in the output.</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>Une partie a échoué ; le reste a été fait. La sortie indique ce qui a échoué et pourquoi.</translation>
    </message>
    <message>
        <source>Source</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Source</translation>
    </message>
    <message>
        <source>Source of the map</source>
        <extracomment>src/ui/map/MapPane.cpp</extracomment>
        <translation>Source de la carte</translation>
    </message>
    <message>
        <source>Source of the map: %1</source>
        <extracomment>src/ui/map/MapPane.cpp</extracomment>
        <translation>Source de la carte : %1</translation>
    </message>
    <message>
        <source>Source:</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Source :</translation>
    </message>
    <message>
        <source>Space</source>
        <extracomment>src/ui/slideshow/SlideShowBar.cpp</extracomment>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Space that the image file takes, in decimal units: a megabyte (MB) is a million bytes.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Espace occupé par le fichier image, en unités décimales : un mégaoctet (Mo) vaut un million d’octets.</translation>
    </message>
    <message>
        <source>Speed</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Speed at which the receiver moved when the image was shot, in meters per second, converted from kilometers per hour, miles per hour or knots.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Vitesse de déplacement du récepteur lors de la prise de vue, en mètres par seconde, convertie depuis les kilomètres par heure, les miles par heure ou les nœuds.</translation>
    </message>
    <message>
        <source>Standard</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Starts from the date that the photo in front has now</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Part de la date actuelle de la photo au premier plan</translation>
    </message>
    <message>
        <source>State</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>État/province</translation>
    </message>
    <message>
        <source>State or province of the photographer's business address. Leave it empty where addresses go without one.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>État ou province de l’adresse professionnelle du photographe. Laissez ce champ vide là où les adresses n’en comportent pas.</translation>
    </message>
    <message>
        <source>State shown</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>État ou province représentés</translation>
    </message>
    <message>
        <source>State where the photo was taken</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>État ou province de la prise de vue</translation>
    </message>
    <message>
        <source>State, province or other part of a country that the image shows. Separate several with a vertical bar.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>État, province ou autre partie d’un pays que montre l’image. Séparez plusieurs valeurs par une barre verticale.</translation>
    </message>
    <message>
        <source>State, province, canton or other part of the country in which the image was shot.</source>
        <extracomment>src/metadata/KTMetadataHelpTablePlaces.cpp</extracomment>
        <translation>État, province, région, canton ou autre partie du pays où l’image a été prise.</translation>
    </message>
    <message>
        <source>State/Province</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>État/province</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Statut</translation>
    </message>
    <message>
        <source>Stay</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Rester sur place</translation>
    </message>
    <message>
        <source>Step</source>
        <extracomment>src/ui/windows/OperationLogModel.cpp</extracomment>
        <translation>Étape</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>src/ui/export/ExportListWindow.cpp</extracomment>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Stop Export &amp; Quit</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Arrêter l’exportation et quitter</translation>
    </message>
    <message>
        <source>Street and number, or post office box, at which the photographer can be reached for business; the company's name may come first.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Numéro et rue, ou boîte postale, de l’adresse professionnelle du photographe ; le nom de la société peut venir en premier.</translation>
    </message>
    <message>
        <source>Sub-domains:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Sous-domaines :</translation>
    </message>
    <message>
        <source>Subject Code</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Code de sujet</translation>
    </message>
    <message>
        <source>Sublocation</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Lieu précis</translation>
    </message>
    <message>
        <source>Swipe</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Balayage</translation>
    </message>
    <message>
        <source>Synchronize Metadata</source>
        <extracomment>src/photo/KTPhotoChanges.cpp</extracomment>
        <translation>Synchroniser les métadonnées</translation>
    </message>
    <message>
        <source>Synchronize metadata</source>
        <extracomment>src/collection/KTPhotoControllerMenu.cpp</extracomment>
        <translation>Synchroniser les métadonnées</translation>
    </message>
    <message>
        <source>Table</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Tableau</translation>
    </message>
    <message>
        <source>Tag</source>
        <extracomment>src/ui/windows/TagDetailsModel.cpp</extracomment>
        <translation>Balise</translation>
    </message>
    <message>
        <source>Tag Details</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Détail des balises</translation>
    </message>
    <message>
        <source>Tags</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Balises</translation>
    </message>
    <message>
        <source>Tags:</source>
        <extracomment>src/ui/windows/TagDetailsWindow.cpp</extracomment>
        <translation>Balises :</translation>
    </message>
    <message>
        <source>Take from Photo in Front</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Reprendre de la photo au premier plan</translation>
    </message>
    <message>
        <source>Take the last keyword as the event</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Prendre le dernier mot-clé comme événement</translation>
    </message>
    <message>
        <source>Take the same names for the place shown</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Prendre les mêmes noms pour le lieu représenté</translation>
    </message>
    <message>
        <source>Takes the shifts back: the photos get the dates that their files hold</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>Annule les décalages : les photos retrouvent les dates que contiennent leurs fichiers</translation>
    </message>
    <message>
        <source>Telephone</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Téléphone</translation>
    </message>
    <message>
        <source>Telephone number for business, in international form with plus sign and country code. Separate several numbers with a comma.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Numéro de téléphone professionnel, au format international avec le signe plus et l’indicatif du pays. Séparez plusieurs numéros par une virgule.</translation>
    </message>
    <message>
        <source>Template name</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Nom du modèle</translation>
    </message>
    <message>
        <source>Templates</source>
        <extracomment>src/app/editor/KTMetadataCustomizationViewController.cpp</extracomment>
        <translation>Modèles</translation>
    </message>
    <message>
        <source>Templates that you have saved</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Modèles que vous avez enregistrés</translation>
    </message>
    <message>
        <source>Templates:</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Modèles :</translation>
    </message>
    <message>
        <source>Terms under which the image may be used, in plain words or by the name of a license.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Conditions d’utilisation de l’image, en clair ou par le nom d’une licence.</translation>
    </message>
    <message>
        <source>Text</source>
        <extracomment>src/ui/windows/OperationLogModel.cpp</extracomment>
        <translation>Texte</translation>
    </message>
    <message>
        <source>The address of the map tiles contains {key}, but no key is set.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>L’adresse des tuiles contient {key}, mais aucune clé n’est définie.</translation>
    </message>
    <message>
        <source>The address of the map tiles contains {s}, but no sub-domains are set.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>L’adresse des tuiles contient {s}, mais aucun sous-domaine n’est défini.</translation>
    </message>
    <message>
        <source>The address of the map tiles contains “{%@}”, which means nothing.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>L’adresse des tuiles contient « {%@} », qui ne signifie rien.</translation>
    </message>
    <message>
        <source>The address of the map tiles must contain {z}, {x} and {y}.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>L’adresse des tuiles doit contenir {z}, {x} et {y}.</translation>
    </message>
    <message>
        <source>The arguments are wrong; nothing was read or written.</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>Les arguments sont incorrects ; rien n’a été lu ni écrit.</translation>
    </message>
    <message>
        <source>The checked values replace those of the selected photos</source>
        <extracomment>src/ui/inspector/PasteTagsSheet.cpp</extracomment>
        <translation>Les valeurs cochées remplacent celles des photos sélectionnées</translation>
    </message>
    <message>
        <source>The chosen Image::ExifTool cannot be used.</source>
        <extracomment>src/ui/main.cpp</extracomment>
        <translation>La bibliothèque Image::ExifTool choisie est inutilisable.</translation>
    </message>
    <message>
        <source>The clipboard holds no coordinates.</source>
        <extracomment>src/app/WaymarkAppControllerCommands.cpp</extracomment>
        <translation>Le presse-papiers ne contient pas de coordonnées.</translation>
    </message>
    <message>
        <source>The clock was fast: the right dates are earlier</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>L’horloge avançait : les bonnes dates sont plus tôt</translation>
    </message>
    <message>
        <source>The clock was slow: the right dates are later</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>L’horloge retardait : les bonnes dates sont plus tard</translation>
    </message>
    <message>
        <source>The creation date of “%@” cannot be kept: %@</source>
        <extracomment>src/platform/desktop/KTFileDates.cpp</extracomment>
        <translation>La date de création de « %@ » ne peut pas être conservée : %@</translation>
    </message>
    <message>
        <source>The date of the photo in front, as its file holds it</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>La date de la photo au premier plan, telle que la contient son fichier</translation>
    </message>
    <message>
        <source>The date that the photos get</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>La date que reçoivent les photos</translation>
    </message>
    <message>
        <source>The date to copy: original, digitized, creation</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>Date à copier : original, digitized, creation</translation>
    </message>
    <message>
        <source>The demo trip could not be made.</source>
        <extracomment>src/ui/window/DemoTripCommand.cpp</extracomment>
        <translation>L’excursion de démonstration n’a pas pu être créée.</translation>
    </message>
    <message>
        <source>The desktop application of Waymark. It opens the given photos, folders and tracks. Where it runs already, the running one opens them.</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>L’application de bureau de Waymark. Elle ouvre les photos, dossiers et traces indiqués. Si elle est déjà lancée, c’est l’instance en cours qui les ouvre.</translation>
    </message>
    <message>
        <source>The export was not finished.</source>
        <extracomment>src/export/KTPhotoExportOperationController.cpp</extracomment>
        <translation>L’exportation n’a pas été terminée.</translation>
    </message>
    <message>
        <source>The file cannot be made.</source>
        <extracomment>src/export/KTPhotoFileExport.cpp</extracomment>
        <translation>Impossible de créer le fichier.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <extracomment>src/app/thumbnails/ThumbnailDecoder.cpp</extracomment>
        <translation>Le fichier est illisible.</translation>
    </message>
    <message>
        <source>The file could not be read to its end: %@</source>
        <extracomment>src/metadata/KTExifTool.cpp</extracomment>
        <translation>Le fichier n’a pas pu être lu jusqu’au bout : %@</translation>
    </message>
    <message>
        <source>The file does not hold these values as they were given: %@</source>
        <extracomment>src/photo/KTWrittenValues.cpp</extracomment>
        <translation>Le fichier ne contient pas ces valeurs telles qu’elles ont été indiquées : %@</translation>
    </message>
    <message>
        <source>The file had changed since it was read.</source>
        <extracomment>src/photo/KTPhotoRefreshing.cpp</extracomment>
        <translation>Le fichier avait changé depuis sa lecture.</translation>
    </message>
    <message>
        <source>The file holds no picture that can be shown.</source>
        <extracomment>src/app/thumbnails/KTThumbnailService.cpp</extracomment>
        <translation>Le fichier ne contient aucune image affichable.</translation>
    </message>
    <message>
        <source>The file system has no extended attributes. All metadata is safe there.</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Le système de fichiers n’a pas d’attributs étendus. Toutes les métadonnées y sont en sécurité.</translation>
    </message>
    <message>
        <source>The file there is a photo of your collection.</source>
        <extracomment>src/export/KTPhotoExportManagerOperation.cpp</extracomment>
        <translation>Le fichier qui s’y trouve est une photo de votre collection.</translation>
    </message>
    <message>
        <source>The folder %@ cannot be made.</source>
        <extracomment>src/app/editor/KTUserTemplates.cpp</extracomment>
        <translation>Impossible de créer le dossier %@.</translation>
    </message>
    <message>
        <source>The folder or file to export to</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>Dossier ou fichier de destination</translation>
    </message>
    <message>
        <source>The following argument was not expected: %@</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>Cet argument n’était pas attendu : %@</translation>
    </message>
    <message>
        <source>The following arguments were not expected: %@</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>Ces arguments n’étaient pas attendus : %@</translation>
    </message>
    <message>
        <source>The image file still holds what was cleared: %@</source>
        <extracomment>src/photo/KTPhotoRefreshing.cpp</extracomment>
        <translation>Le fichier image contient encore ce qui a été effacé : %@</translation>
    </message>
    <message>
        <source>The language: English, French, German or Spanish</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>La langue : anglais, français, allemand ou espagnol</translation>
    </message>
    <message>
        <source>The list of exports cannot be kept: %@ cannot be opened (%@).</source>
        <extracomment>src/export/KTExportHistoryStore.cpp</extracomment>
        <translation>La liste des exportations ne peut pas être conservée : impossible d’ouvrir %@ (%@).</translation>
    </message>
    <message>
        <source>The list of places cannot be read.</source>
        <extracomment>src/platform/gazetteer/KTOfflineReverseGeocoder.cpp</extracomment>
        <translation>La liste des lieux est illisible.</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <extracomment>src/ui/windows/OperationLogWindow.cpp</extracomment>
        <translation>Le journal n’a pas pu être enregistré.</translation>
    </message>
    <message>
        <source>The modification date could not be read.</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>La date de modification n’a pas pu être lue.</translation>
    </message>
    <message>
        <source>The modification date of “%@” cannot be set: %@</source>
        <extracomment>src/platform/desktop/KTFileDates.cpp</extracomment>
        <translation>La date de modification de « %@ » ne peut pas être définie : %@</translation>
    </message>
    <message>
        <source>The name under which the menu Templates lists it</source>
        <extracomment>src/ui/inspector/TemplateSheets.cpp</extracomment>
        <translation>Le nom sous lequel il figure dans le menu « Modèles »</translation>
    </message>
    <message>
        <source>The neighbours must lie no farther apart</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Distance maximale entre les points voisins</translation>
    </message>
    <message>
        <source>The new file could not be read back: %@</source>
        <extracomment>src/photo/KTPhotoFileWriting.cpp</extracomment>
        <translation>Le nouveau fichier n’a pas pu être relu : %@</translation>
    </message>
    <message>
        <source>The offline map cannot be read from %@: %@</source>
        <extracomment>src/platform/cartography/drawing/KTBaseMapStore.cpp</extracomment>
        <translation>La carte hors ligne ne peut pas être lue depuis %@ : %@</translation>
    </message>
    <message>
        <source>The photo can be geotagged.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>La photo peut être géolocalisée.</translation>
    </message>
    <message>
        <source>The photo has a location already.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>La photo a déjà une position.</translation>
    </message>
    <message>
        <source>The photo has no capture date.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>La photo n’a pas de date de prise de vue.</translation>
    </message>
    <message>
        <source>The photo is more than %@ from the nearest track point, and not between points less than %@ apart.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>La photo est à plus de %@ du point de trace le plus proche et n’est pas entre deux points distants de moins de %@.</translation>
    </message>
    <message>
        <source>The photo is more than %@ from the nearest track point.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>La photo est à plus de %@ du point de trace le plus proche.</translation>
    </message>
    <message>
        <source>The photo is not between points less than %@ apart.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>La photo n’est pas entre deux points distants de moins de %@.</translation>
    </message>
    <message>
        <source>The photo was edited before the names of the place were known, so this was not done.</source>
        <extracomment>src/photo/KTPhotoLocation.cpp</extracomment>
        <translation>La photo a été modifiée avant que les noms du lieu soient connus ; cette opération n’a donc pas été effectuée.</translation>
    </message>
    <message>
        <source>The photo's files do not hold the value of “%@”.</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>Les fichiers de la photo ne contiennent pas la valeur de « %@ ».</translation>
    </message>
    <message>
        <source>The photos that are finished stay.</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Les photos déjà exportées sont conservées.</translation>
    </message>
    <message>
        <source>The photos' times are in</source>
        <extracomment>src/ui/console/CameraClockView.cpp</extracomment>
        <translation>L’heure des photos est dans</translation>
    </message>
    <message>
        <source>The photos' times are read as times of this zone:</source>
        <extracomment>src/ui/console/TimeZonePicker.cpp</extracomment>
        <translation>Les heures des photos sont lues dans ce fuseau :</translation>
    </message>
    <message>
        <source>The picture to write</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>Image à écrire</translation>
    </message>
    <message>
        <source>The picture's colours cannot be converted: its colour profile is not one for red, green and blue.</source>
        <extracomment>src/export/KTPhotoFileExport.cpp</extracomment>
        <translation>Les couleurs de l’image ne peuvent pas être converties : son profil n’est pas un profil rouge, vert, bleu.</translation>
    </message>
    <message>
        <source>The plug-in cannot be used.</source>
        <extracomment>src/export/KTPluginError.cpp</extracomment>
        <translation>Le module est inutilisable.</translation>
    </message>
    <message>
        <source>The plug-in, as the menu "Share" names it</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>Le module, tel que le nomme le menu « Partager »</translation>
    </message>
    <message>
        <source>The positions are in the photos now. Try next:</source>
        <extracomment>src/cli/DemoCommand.cpp</extracomment>
        <translation>Les positions sont maintenant dans les photos. Essayez ensuite :</translation>
    </message>
    <message>
        <source>The privacy zone “%@” of the settings cannot be read.</source>
        <extracomment>src/export/KTPhotoExportManagerOperation.cpp</extracomment>
        <translation>La zone de confidentialité « %@ » des réglages est illisible.</translation>
    </message>
    <message>
        <source>The program is about to end.</source>
        <extracomment>src/photo/KTPhotoRefreshing.cpp</extracomment>
        <translation>Le programme est sur le point de se terminer.</translation>
    </message>
    <message>
        <source>The search for places was cancelled.</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>La recherche de lieux a été annulée.</translation>
    </message>
    <message>
        <source>The selected photos: arrow keys, the wheel or a click bring another one to the front</source>
        <extracomment>src/ui/datetools/CoverFlowView.cpp</extracomment>
        <translation>Photos sélectionnées : les flèches, la molette ou un clic amènent une autre photo au premier plan</translation>
    </message>
    <message>
        <source>The server is asked only for photos that you geotag</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Le serveur n’est interrogé que pour les photos que vous géolocalisez</translation>
    </message>
    <message>
        <source>The size of the map tiles must lie between 64 and 1024.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>La taille des tuiles doit être comprise entre 64 et 1024.</translation>
    </message>
    <message>
        <source>The standard mode shows the track points around one photo.</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Le mode standard montre les points de trace autour d’une seule photo.</translation>
    </message>
    <message>
        <source>The tag key "%@" contains a quote or a backslash.</source>
        <extracomment>src/metadata/KTExifTool.cpp</extracomment>
        <translation>La clé de balise « %@ » contient un guillemet ou une barre oblique inverse.</translation>
    </message>
    <message>
        <source>The template could not be saved.</source>
        <extracomment>src/app/editor/KTMetadataCustomizationViewController.cpp</extracomment>
        <translation>Le modèle n’a pas pu être enregistré.</translation>
    </message>
    <message>
        <source>The texts typed before cannot be offered: %@ cannot be opened (%@).</source>
        <extracomment>src/platform/defaults/KTComboBoxStoreController.cpp</extracomment>
        <translation>Les textes saisis auparavant ne peuvent pas être proposés : impossible d’ouvrir %@ (%@).</translation>
    </message>
    <message>
        <source>The time zone in which the date is given</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Le fuseau horaire dans lequel la date est indiquée</translation>
    </message>
    <message>
        <source>The time zone of both dates</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Le fuseau horaire des deux dates</translation>
    </message>
    <message>
        <source>The time zone to which the camera's clock was set</source>
        <extracomment>src/ui/console/CameraClockView.cpp</extracomment>
        <translation>Le fuseau horaire sur lequel l’horloge de l’appareil était réglée</translation>
    </message>
    <message>
        <source>The track crosses the 180° meridian here; the point lies on the long way round the earth. Better take a track point beside it.</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>La trace franchit ici le méridien 180° ; le point se trouve sur le grand tour de la Terre. Prenez plutôt un point de trace voisin.</translation>
    </message>
    <message>
        <source>The track library</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>La bibliothèque de traces</translation>
    </message>
    <message>
        <source>The track library %@ cannot be opened: %@</source>
        <extracomment>src/platform/tracklibrary/KTTrackStore.cpp</extracomment>
        <translation>La bibliothèque de traces %@ ne peut pas être ouverte : %@</translation>
    </message>
    <message>
        <source>The track library cannot be used.</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>La bibliothèque de traces est inutilisable.</translation>
    </message>
    <message>
        <source>The track library cannot be used: %@</source>
        <extracomment>src/platform/tracklibrary/KTTrackStore.cpp</extracomment>
        <translation>La bibliothèque de traces est inutilisable : %@</translation>
    </message>
    <message>
        <source>The track library could not be changed.</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerControllerCommands.cpp</extracomment>
        <translation>La bibliothèque de traces n’a pas pu être modifiée.</translation>
    </message>
    <message>
        <source>The track library file (":memory:" for none kept)</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>Fichier de la bibliothèque de traces (":memory:" pour ne rien conserver)</translation>
    </message>
    <message>
        <source>The track points before and after it are %@ apart.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Les points de trace avant et après elle sont distants de %@.</translation>
    </message>
    <message>
        <source>The tracks could not be exported.</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerControllerCommands.cpp</extracomment>
        <translation>Les traces n’ont pas pu être exportées.</translation>
    </message>
    <message>
        <source>The tracks could not be written.</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerControllerCommands.cpp</extracomment>
        <translation>Les traces n’ont pas pu être écrites.</translation>
    </message>
    <message>
        <source>The zooms of the map tiles must lie between 0 and %@, the minimum first.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>Les zooms des tuiles doivent être compris entre 0 et %@, le minimum en premier.</translation>
    </message>
    <message>
        <source>There are no photos in this folder.</source>
        <extracomment>src/ui/windows/MediaBrowserWindow.cpp</extracomment>
        <translation>Ce dossier ne contient aucune photo.</translation>
    </message>
    <message>
        <source>There are no track points.</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Il n’y a pas de points de trace.</translation>
    </message>
    <message>
        <source>There is no display. Start it in a desktop session, or set DISPLAY; without one,
the command line does the same work: waymark-cli --help
</source>
        <extracomment>src/ui/main.cpp</extracomment>
        <translation>Aucun affichage disponible. Lancez le programme dans une session de bureau ou
définissez DISPLAY ; sinon, la ligne de commande fait le même travail :
waymark-cli --help
</translation>
    </message>
    <message>
        <source>There is no option %@.</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>L’option %@ n’existe pas.</translation>
    </message>
    <message>
        <source>There is no photo at “%@”.</source>
        <extracomment>src/collection/KTPhotoFileSearch.cpp</extracomment>
        <translation>Il n’y a pas de photo à l’emplacement « %@ ».</translation>
    </message>
    <message>
        <source>There is no place to keep the creation date of “%@”: %@</source>
        <extracomment>src/platform/desktop/KTFileDates.cpp</extracomment>
        <translation>Aucun emplacement pour conserver la date de création de « %@ » : %@</translation>
    </message>
    <message>
        <source>There is no setting named "%@".</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>Il n’existe pas de réglage nommé « %@ ».</translation>
    </message>
    <message>
        <source>There is no track %@.</source>
        <extracomment>src/platform/tracklibrary/KTTrackStore.cpp</extracomment>
        <translation>La trace %@ n’existe pas.</translation>
    </message>
    <message>
        <source>There is none.</source>
        <extracomment>src/ui/console/StandardPanel.cpp</extracomment>
        <translation>Il n’y en a pas.</translation>
    </message>
    <message>
        <source>There is not enough memory for the picture.</source>
        <extracomment>src/export/KTPhotoFileExport.cpp</extracomment>
        <translation>Mémoire insuffisante pour l’image.</translation>
    </message>
    <message>
        <source>This cannot be typed.</source>
        <extracomment>src/app/editor/KTFieldText.cpp</extracomment>
        <translation>Cette valeur ne peut pas être saisie.</translation>
    </message>
    <message>
        <source>This field has changes that are not saved. Its menu reverts them.</source>
        <extracomment>src/ui/inspector/FieldLabel.cpp</extracomment>
        <translation>Ce champ a des modifications non enregistrées. Son menu permet de les annuler.</translation>
    </message>
    <message>
        <source>This file could not be shown before and has not changed since.</source>
        <extracomment>src/app/thumbnails/KTThumbnailService.cpp</extracomment>
        <translation>Ce fichier n’avait pas pu être affiché et n’a pas changé depuis.</translation>
    </message>
    <message>
        <source>This is no latitude, such as 46.05108 or 46° 3′ N.</source>
        <extracomment>src/app/editor/KTMetadataFieldLonLatArrayViewItem.cpp</extracomment>
        <translation>Ceci n’est pas une latitude, comme 46.05108 ou 46° 3′ N.</translation>
    </message>
    <message>
        <source>This is no longitude, such as 14.50513 or 14° 30′ E.</source>
        <extracomment>src/app/editor/KTMetadataFieldLonLatArrayViewItem.cpp</extracomment>
        <translation>Ceci n’est pas une longitude, comme 14.50513 ou 14° 30′ E.</translation>
    </message>
    <message>
        <source>This is not a number.</source>
        <extracomment>src/app/editor/KTFieldText.cpp</extracomment>
        <translation>Ceci n’est pas un nombre.</translation>
    </message>
    <message>
        <source>This is not a position.</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>Ceci n’est pas une position.</translation>
    </message>
    <message>
        <source>This photo is not one of the export.</source>
        <extracomment>src/export/KTPhotoExportManagerOperation.cpp</extracomment>
        <translation>Cette photo ne fait pas partie de l’exportation.</translation>
    </message>
    <message>
        <source>This position does not exist.</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>Cette position n’existe pas.</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Vignettes</translation>
    </message>
    <message>
        <source>Tile size:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Taille des tuiles :</translation>
    </message>
    <message>
        <source>Tiles of a server, shown once it is chosen on the map</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Tuiles d’un serveur, affichées quand il est choisi sur la carte</translation>
    </message>
    <message>
        <source>Tiles:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Tuiles :</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>src/ui/windows/OperationLogModel.cpp</extracomment>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Time Digitized</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Heure de numérisation</translation>
    </message>
    <message>
        <source>Time There</source>
        <extracomment>src/ui/console/TimeZoneList.cpp</extracomment>
        <translation>Heure locale</translation>
    </message>
    <message>
        <source>Time Zone</source>
        <extracomment>src/ui/console/TimeZoneList.cpp</extracomment>
        <translation>Fuseau horaire</translation>
    </message>
    <message>
        <source>Time Zone of the Camera Clock</source>
        <extracomment>src/ui/console/TimeZonePicker.cpp</extracomment>
        <translation>Fuseau de l’horloge de l’appareil</translation>
    </message>
    <message>
        <source>Time for which the sensor or film was exposed to light.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Durée pendant laquelle le capteur ou le film a été exposé à la lumière.</translation>
    </message>
    <message>
        <source>Time to the nearest track point</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Écart avec le point de trace le plus proche</translation>
    </message>
    <message>
        <source>Time weighted average point</source>
        <extracomment>src/photo/KTLinkablePoint.cpp</extracomment>
        <translation>Point moyen pondéré</translation>
    </message>
    <message>
        <source>Time zone: %1</source>
        <extracomment>src/ui/console/CameraClockView.cpp</extracomment>
        <translation>Fuseau horaire : %1</translation>
    </message>
    <message>
        <source>Time zones</source>
        <extracomment>src/ui/console/TimeZonePicker.cpp</extracomment>
        <translation>Fuseaux horaires</translation>
    </message>
    <message>
        <source>Tip: Edit the distance criteria or even manually geotag the photos.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>Conseil : modifiez le critère de distance ou géolocalisez les photos manuellement.</translation>
    </message>
    <message>
        <source>Tip: Edit the distance or time criteria; or manually geotag the photos.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>Conseil : modifiez les critères de distance ou de temps, ou géolocalisez les photos manuellement.</translation>
    </message>
    <message>
        <source>Tip: Try adjusting the camera's time zone.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>Conseil : essayez d’ajuster le fuseau horaire de l’appareil.</translation>
    </message>
    <message>
        <source>Tip: Use the date &amp; time setter to add a time to the photo.</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>Conseil : ajoutez une heure à la photo avec l’outil de date et d’heure.</translation>
    </message>
    <message>
        <source>Title</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Titre</translation>
    </message>
    <message>
        <source>To the map's centre:</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Au centre :</translation>
    </message>
    <message>
        <source>To the waypoint:</source>
        <extracomment>src/ui/console/ManualPanel.cpp</extracomment>
        <translation>Au waypoint :</translation>
    </message>
    <message>
        <source>To: %1</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Vers : %1</translation>
    </message>
    <message>
        <source>Track</source>
        <extracomment>src/ui/map/MapItems.cpp</extracomment>
        <translation>Trace</translation>
    </message>
    <message>
        <source>Track Direction</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Direction du déplacement</translation>
    </message>
    <message>
        <source>Track Library</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Bibliothèque de traces</translation>
    </message>
    <message>
        <source>Track files</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>Fichiers de traces</translation>
    </message>
    <message>
        <source>Track formats</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Formats de traces</translation>
    </message>
    <message>
        <source>Track library</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>Bibliothèque de traces</translation>
    </message>
    <message>
        <source>Track point %@ away</source>
        <extracomment>src/geotagging/KTPhotoMatchTexts.cpp</extracomment>
        <translation>Point de trace à %@</translation>
    </message>
    <message>
        <source>Tracks</source>
        <extracomment>src/platform/tracklibrary/KTTrackPickerControllerCommands.cpp</extracomment>
        <translation>Traces</translation>
    </message>
    <message>
        <source>Tracks and waypoints</source>
        <extracomment>src/ui/windows/TrackLibraryWindow.cpp</extracomment>
        <translation>Traces et waypoints</translation>
    </message>
    <message>
        <source>Tracks in use</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Traces utilisées</translation>
    </message>
    <message>
        <source>Tracks that you add now are kept until you quit. Your library stays as it is.</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Les traces ajoutées maintenant sont conservées jusqu’à la fermeture du programme. Votre bibliothèque reste inchangée.</translation>
    </message>
    <message>
        <source>Tracks…</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Traces…</translation>
    </message>
    <message>
        <source>Transition:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Transition :</translation>
    </message>
    <message>
        <source>Try</source>
        <extracomment>src/ui/windows/PreferencesWindow.cpp</extracomment>
        <translation>Essayer</translation>
    </message>
    <message>
        <source>Try the Demo Trip</source>
        <extracomment>src/ui/photos/EmptyPhotosView.cpp</extracomment>
        <translation>Essayer l’excursion de démonstration</translation>
    </message>
    <message numerus="yes">
        <source>Unable To Geotag %d Photos</source>
        <extracomment>src/geotagging/KTGeotaggingSummary.cpp</extracomment>
        <translation>
            <numerusform>Impossible de géolocaliser %d photo</numerusform>
            <numerusform>Impossible de géolocaliser %d photos</numerusform>
        </translation>
    </message>
    <message>
        <source>Unable to set the photos metadata using ScriptingBridge</source>
        <extracomment>src/photo/KTiPhotoTool.cpp</extracomment>
        <translation>Impossible de définir les métadonnées de la photo avec ScriptingBridge</translation>
    </message>
    <message>
        <source>Undefined</source>
        <extracomment>src/metadata/KTValueFormatters.cpp</extracomment>
        <translation>Indéfini</translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Undo %@</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Annuler : %@</translation>
    </message>
    <message>
        <source>Undo Typing</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Annuler la saisie</translation>
    </message>
    <message>
        <source>Units:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Unités :</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>src/app/editor/KTCopyrightStatus.cpp</extracomment>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>Untitled</source>
        <extracomment>src/app/editor/KTUserTemplates.cpp</extracomment>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>Untitled template</source>
        <extracomment>src/app/editor/KTMetadataCustomizationViewController.cpp</extracomment>
        <translation>Modèle sans titre</translation>
    </message>
    <message>
        <source>Urgency</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Urgence</translation>
    </message>
    <message>
        <source>Usage</source>
        <extracomment>src/cli/ParserTexts.cpp</extracomment>
        <translation>Utilisation</translation>
    </message>
    <message>
        <source>Usage Terms</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Conditions d’utilisation</translation>
    </message>
    <message>
        <source>Usage: %@</source>
        <extracomment>src/platform/presentation/KTManualPage.cpp</extracomment>
        <translation>Utilisation : %@</translation>
    </message>
    <message>
        <source>Use Batch Mode</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>Passer au mode par lot</translation>
    </message>
    <message>
        <source>Use Time Zone</source>
        <extracomment>src/ui/console/TimeZonePicker.cpp</extracomment>
        <translation>Utiliser ce fuseau</translation>
    </message>
    <message>
        <source>Use the distance criterion</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Utiliser le critère de distance</translation>
    </message>
    <message>
        <source>Use the place between the two track points that the time tells</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Utiliser l’endroit que l’heure indique entre les deux points de trace</translation>
    </message>
    <message>
        <source>Use the time criterion</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Utiliser le critère de temps</translation>
    </message>
    <message>
        <source>Use the track point that is nearest in time</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Utiliser le point de trace le plus proche dans le temps</translation>
    </message>
    <message>
        <source>Use this Image::ExifTool library folder</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>Utiliser ce dossier de la bibliothèque Image::ExifTool</translation>
    </message>
    <message>
        <source>Use this settings file instead of the user's</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>Utiliser ce fichier de réglages au lieu de celui de l’utilisateur</translation>
    </message>
    <message>
        <source>Value</source>
        <extracomment>src/ui/inspector/PasteTagsSheet.cpp</extracomment>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Values of %1</source>
        <extracomment>src/ui/inspector/LineFieldEditor.cpp</extracomment>
        <translation>Valeurs : %1</translation>
    </message>
    <message>
        <source>Version of the EXIF standard that the camera followed, in four digits: 0232 stands for EXIF 2.32.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Version de la norme EXIF suivie par l’appareil, en quatre chiffres : 0232 signifie EXIF 2.32.</translation>
    </message>
    <message>
        <source>Version of the EXIF standard's GPS part that the position data follows. It is written whenever an image is geotagged.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Version de la partie GPS de la norme EXIF que suivent les données de position. Elle est écrite chaque fois qu’une image est géolocalisée.</translation>
    </message>
    <message>
        <source>View</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>View Options</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Options d’affichage</translation>
    </message>
    <message>
        <source>Warning</source>
        <extracomment>src/ui/windows/OperationLogModel.cpp</extracomment>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Waves break over the lighthouse of La Jument during the winter storm.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Les vagues se brisent sur le phare de la Jument pendant la tempête d’hiver.</translation>
    </message>
    <message>
        <source>Way in which the camera measured the light: over the whole frame, around its center or at a single spot.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Façon dont l’appareil a mesuré la lumière : sur toute l’image, autour du centre ou en un seul point.</translation>
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
        <translation>Waymark géolocalise les photos à l’aide de traces GPS et modifie leurs métadonnées.</translation>
    </message>
    <message>
        <source>Waymark requires Qt 6.4 or later</source>
        <extracomment>src/app/WaymarkAppDelegate.cpp</extracomment>
        <translation>Waymark nécessite Qt 6.4 ou une version ultérieure</translation>
    </message>
    <message>
        <source>Waymark requires a newer version of Qt</source>
        <extracomment>src/app/WaymarkAppDelegate.cpp</extracomment>
        <translation>Waymark nécessite une version plus récente de Qt</translation>
    </message>
    <message>
        <source>Waymark was ended while it wrote to photos.</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>Waymark a été interrompu pendant qu’il écrivait dans des photos.</translation>
    </message>
    <message>
        <source>Waymark's own data, offline</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Données de Waymark, hors ligne</translation>
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
        <translation>Site web</translation>
    </message>
    <message>
        <source>Web address of a certificate that proves the rights in the image, such as its entry at a rights registry.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Adresse web d’un certificat attestant les droits sur l’image, par exemple son inscription dans un registre de droits.</translation>
    </message>
    <message>
        <source>Web address of a page that states who owns the image and how it may be used. Search engines link to it from their image results.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Adresse web d’une page indiquant à qui appartient l’image et comment elle peut être utilisée. Les moteurs de recherche y renvoient depuis leurs résultats d’images.</translation>
    </message>
    <message>
        <source>Web address of the photographer's own site or portfolio, in full. Separate several addresses with a comma.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Adresse web complète du site ou du portfolio du photographe. Séparez plusieurs adresses par une virgule.</translation>
    </message>
    <message>
        <source>What %@ answered is not a place. Is it a Nominatim server?</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>La réponse de %@ n’est pas un lieu. Est-ce un serveur Nominatim ?</translation>
    </message>
    <message>
        <source>What %@ sent is far larger than a map tile.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileStore.cpp</extracomment>
        <translation>Ce que %@ a envoyé est bien plus grand qu’une tuile.</translation>
    </message>
    <message>
        <source>What %@ sent is not a map tile.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileStore.cpp</extracomment>
        <translation>Ce que %@ a envoyé n’est pas une tuile.</translation>
    </message>
    <message>
        <source>What it does when another photo is shown</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Ce qu’elle fait quand une autre photo s’affiche</translation>
    </message>
    <message>
        <source>What the button makes of the photo in front, and of the first and the last one</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>Effet du bouton sur la photo au premier plan, sur la première et sur la dernière</translation>
    </message>
    <message>
        <source>What the clock should have shown: the difference follows from it</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>Ce que l’horloge aurait dû indiquer : l’écart en découle</translation>
    </message>
    <message>
        <source>What the image is about, as codes of eight digits from the IPTC Subject NewsCodes: 15000000 is sport, 15054000 soccer. News agencies sort incoming images by them.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Sujet de l’image, sous forme de codes à huit chiffres des NewsCodes de sujet de l’IPTC : 15000000 est le sport, 15054000 le football. Les agences de presse trient ainsi les images reçues.</translation>
    </message>
    <message>
        <source>What the image shows, in one or more full sentences: who, what, where, when and why. Most programs and web galleries show this text below the image.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Ce que montre l’image, en une ou plusieurs phrases complètes : qui, quoi, où, quand et pourquoi. La plupart des logiciels et des galeries web affichent ce texte sous l’image.</translation>
    </message>
    <message>
        <source>What the map does</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Ce que fait la carte</translation>
    </message>
    <message>
        <source>What the server wants to be shown on the map</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Ce que le serveur demande d’afficher sur la carte</translation>
    </message>
    <message>
        <source>What would change</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>Changements prévus</translation>
    </message>
    <message>
        <source>When it was digitized; of a digital camera the same</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Moment de la numérisation ; le même pour un appareil numérique</translation>
    </message>
    <message>
        <source>When its position is set</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Quand sa position est définie</translation>
    </message>
    <message>
        <source>When the file was made, as its folder tells</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Moment de création du fichier, d’après son dossier</translation>
    </message>
    <message>
        <source>When the picture was taken</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>Moment de la prise de vue</translation>
    </message>
    <message>
        <source>Where the track has one</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Si la trace en contient une</translation>
    </message>
    <message>
        <source>Whether one of the two criteria suffices or both must hold</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>Indique si l’un des deux critères suffit ou si les deux sont exigés</translation>
    </message>
    <message>
        <source>Which photos are shown</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Photos à afficher</translation>
    </message>
    <message>
        <source>Width and height of the image in pixels, as it is stored, before any rotation for display.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Largeur et hauteur de l’image en pixels, telle qu’elle est enregistrée, avant toute rotation à l’affichage.</translation>
    </message>
    <message>
        <source>Width of the camera's sensor in millimeters, as recorded by the camera or calculated from the pixel density on the sensor.</source>
        <extracomment>src/metadata/KTMetadataHelpTableCapture.cpp</extracomment>
        <translation>Largeur du capteur de l’appareil, en millimètres, enregistrée par l’appareil ou calculée d’après la densité de pixels du capteur.</translation>
    </message>
    <message>
        <source>Window</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>With 0, photos change only when you say so</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Avec 0, les photos ne changent qu’à votre demande</translation>
    </message>
    <message>
        <source>With Unsaved Changes</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Avec modifications non enregistrées</translation>
    </message>
    <message>
        <source>With your own photos:</source>
        <extracomment>src/cli/DemoCommand.cpp</extracomment>
        <translation>Avec vos propres photos :</translation>
    </message>
    <message>
        <source>Without Date</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Sans date</translation>
    </message>
    <message>
        <source>Without Location</source>
        <extracomment>src/ui/photos/PhotoFilterBar.cpp</extracomment>
        <translation>Sans position</translation>
    </message>
    <message>
        <source>Words and short phrases by which the image can be found: subjects, concepts, moods and techniques. Enter each one as a keyword of its own.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Mots et courtes expressions permettant de retrouver l’image : sujets, idées, ambiances et techniques. Saisissez chacun comme un mot-clé distinct.</translation>
    </message>
    <message>
        <source>World Region</source>
        <extracomment>src/metadata/KTMetadataFieldTable.cpp</extracomment>
        <translation>Région du monde</translation>
    </message>
    <message>
        <source>Write Changed Tags</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Écrire les balises modifiées</translation>
    </message>
    <message>
        <source>Write all unsaved changes to the photos</source>
        <extracomment>src/ui/window/MainToolBar.cpp</extracomment>
        <translation>Écrire dans les photos toutes les modifications non enregistrées</translation>
    </message>
    <message>
        <source>Write changes to:</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Écrire dans :</translation>
    </message>
    <message>
        <source>Write metadata to file</source>
        <extracomment>src/metadata/KTExifTool.cpp</extracomment>
        <translation>Écrire les métadonnées dans le fichier</translation>
    </message>
    <message>
        <source>Write metadata to iPhoto using ScriptingBridge</source>
        <extracomment>src/photo/KTiPhotoTool.cpp</extracomment>
        <translation>Écrire les métadonnées dans iPhoto avec ScriptingBridge</translation>
    </message>
    <message>
        <source>Write the altitude of track points</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Écrire l’altitude des points de trace</translation>
    </message>
    <message>
        <source>Write tracks to standard output</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>Écrire des traces sur la sortie standard</translation>
    </message>
    <message>
        <source>Writes the chosen tracks into a file</source>
        <extracomment>src/ui/windows/TrackLibraryWindow.cpp</extracomment>
        <translation>Écrit les traces choisies dans un fichier</translation>
    </message>
    <message>
        <source>Writes the names of city, state and country with the position</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Écrit les noms de la ville, de l’État ou de la province et du pays avec la position</translation>
    </message>
    <message>
        <source>Writes the operations shown into a file</source>
        <extracomment>src/ui/windows/OperationLogWindow.cpp</extracomment>
        <translation>Écrit dans un fichier les opérations affichées</translation>
    </message>
    <message>
        <source>Written with the position</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Écrit avec la position</translation>
    </message>
    <message>
        <source>YYYY-MM-DD HH:MM:SS is expected</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>format attendu : YYYY-MM-DD HH:MM:SS</translation>
    </message>
    <message>
        <source>Year</source>
        <extracomment>src/ui/datetools/DateSetPanel.cpp</extracomment>
        <translation>Année</translation>
    </message>
    <message numerus="yes">
        <source>You have %d photos with unsaved changes. Are you sure you want to quit?</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>
            <numerusform>%d photo contient des modifications non enregistrées. Voulez-vous vraiment quitter ?</numerusform>
            <numerusform>%d photos contiennent des modifications non enregistrées. Voulez-vous vraiment quitter ?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>You have %d photos with unsaved changes. Are you sure you want to remove them?</source>
        <extracomment>src/collection/KTPhotoControllerCommands.cpp</extracomment>
        <translation>
            <numerusform>%d photo contient des modifications non enregistrées. Voulez-vous vraiment la retirer ?</numerusform>
            <numerusform>%d photos contiennent des modifications non enregistrées. Voulez-vous vraiment les retirer ?</numerusform>
        </translation>
    </message>
    <message>
        <source>Your e-mail address or page, which the server's operator gets with each request</source>
        <extracomment>src/ui/windows/SettingControls.cpp</extracomment>
        <translation>Votre adresse e-mail ou votre page, que l’exploitant du serveur reçoit avec chaque demande</translation>
    </message>
    <message>
        <source>Your rating of the image, from 1 to 5 stars. 0 stands for not rated and -1 for rejected.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>Votre note pour l’image, de 1 à 5 étoiles. 0 signifie non notée et -1 rejetée.</translation>
    </message>
    <message>
        <source>Zone of the cameras' clocks: +02:00, Z or Area/City</source>
        <extracomment>src/cli/GeotagCommand.cpp</extracomment>
        <translation>Fuseau de l’horloge des appareils : +02:00, Z ou Area/City</translation>
    </message>
    <message>
        <source>Zoom %1, centre %2, %3, %4, %5</source>
        <extracomment>src/ui/map/MapView.cpp</extracomment>
        <translation>Zoom %1, centre %2, %3, %4, %5</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <extracomment>src/ui/map/MapPane.cpp</extracomment>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <extracomment>src/ui/map/MapPane.cpp</extracomment>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Zoom to Photos</source>
        <extracomment>src/app/WaymarkCommand.cpp</extracomment>
        <translation>Zoomer sur les photos</translation>
    </message>
    <message>
        <source>[GLOBAL OPTIONS] COMMAND [OPTIONS] PATH...</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>[OPTIONS GLOBALES] COMMANDE [OPTIONS] CHEMIN...</translation>
    </message>
    <message>
        <source>[OPTIONS] [FILE...]</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>[OPTIONS] [FICHIER...]</translation>
    </message>
    <message>
        <source>a character is not valid in the file's encoding</source>
        <extracomment>src/platform/tracklibrary/XMLStream.cpp</extracomment>
        <translation>un caractère n’est pas valide dans le codage du fichier</translation>
    </message>
    <message>
        <source>a complete date and time is expected</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>une date et une heure complètes sont attendues</translation>
    </message>
    <message>
        <source>a decimal number is expected</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>un nombre décimal est attendu</translation>
    </message>
    <message>
        <source>a file that cannot be read</source>
        <extracomment>src/export/KTLocationTraces.cpp</extracomment>
        <translation>un fichier illisible</translation>
    </message>
    <message>
        <source>a former run ended while it wrote %@; the file holds what it held before, or its new version as a whole</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>une exécution précédente a été interrompue pendant l’écriture de %@ ; le fichier est resté tel qu’il était ou contient sa nouvelle version complète</translation>
    </message>
    <message>
        <source>a list in JSON</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>une liste JSON</translation>
    </message>
    <message>
        <source>a name, height or time is too long</source>
        <extracomment>src/platform/tracklibrary/GPXReader.cpp</extracomment>
        <translation>un nom, une altitude ou une heure est trop long</translation>
    </message>
    <message>
        <source>a number</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>un nombre</translation>
    </message>
    <message>
        <source>a preview with a position</source>
        <extracomment>src/export/KTLocationTraces.cpp</extracomment>
        <translation>un aperçu contenant une position</translation>
    </message>
    <message>
        <source>a single tag or comment is too long</source>
        <extracomment>src/platform/tracklibrary/XMLStream.cpp</extracomment>
        <translation>une balise ou un commentaire est trop long</translation>
    </message>
    <message>
        <source>a text</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>un texte</translation>
    </message>
    <message>
        <source>a whole number</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>un nombre entier</translation>
    </message>
    <message>
        <source>a whole number that is not negative</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>un nombre entier non négatif</translation>
    </message>
    <message>
        <source>already so</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>déjà ainsi</translation>
    </message>
    <message>
        <source>an exception without text</source>
        <extracomment>src/export/KTPluginError.cpp</extracomment>
        <translation>une exception sans texte</translation>
    </message>
    <message>
        <source>another time zone…</source>
        <extracomment>src/geotagging/KTTimeZoneHUDController.cpp</extracomment>
        <translation>un autre fuseau horaire…</translation>
    </message>
    <message>
        <source>apart</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>au plus</translation>
    </message>
    <message>
        <source>both</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>les deux</translation>
    </message>
    <message>
        <source>by</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>de</translation>
    </message>
    <message>
        <source>cannot be loaded from %@</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>impossible à charger depuis %@</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <extracomment>src/ui/export/PrivacyZonesSheet.cpp</extracomment>
        <translation>illisible</translation>
    </message>
    <message>
        <source>copy-date: --to %@ names the date to copy from</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>copy-date: --to %@ désigne la date source de la copie</translation>
    </message>
    <message>
        <source>days</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>jours</translation>
    </message>
    <message>
        <source>earlier</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>plus tôt</translation>
    </message>
    <message>
        <source>either</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>l’un ou l’autre</translation>
    </message>
    <message>
        <source>entity declarations are not accepted</source>
        <extracomment>src/platform/tracklibrary/XMLStream.cpp</extracomment>
        <translation>les déclarations d’entités ne sont pas acceptées</translation>
    </message>
    <message>
        <source>failed</source>
        <extracomment>src/ui/photos/PhotoStatus.cpp</extracomment>
        <translation>en échec</translation>
    </message>
    <message>
        <source>first</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>première</translation>
    </message>
    <message>
        <source>folded</source>
        <extracomment>src/ui/inspector/InspectorGroup.cpp</extracomment>
        <translation>replié</translation>
    </message>
    <message numerus="yes">
        <source>from %d tracks</source>
        <extracomment>src/ui/console/ConsolePane.cpp</extracomment>
        <translation>
            <numerusform>de %d trace</numerusform>
            <numerusform>de %d traces</numerusform>
        </translation>
    </message>
    <message>
        <source>geotag photos from GPS tracks and edit their metadata</source>
        <extracomment>src/cli/CommandManual.cpp</extracomment>
        <translation>géolocaliser des photos à l’aide de traces GPS et modifier leurs métadonnées</translation>
    </message>
    <message>
        <source>geotagged</source>
        <extracomment>src/ui/photos/PhotoStatus.cpp</extracomment>
        <translation>géolocalisée</translation>
    </message>
    <message>
        <source>give photos the places where they were taken</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>donner aux photos le lieu où elles ont été prises</translation>
    </message>
    <message>
        <source>gpsbabel cannot read it</source>
        <extracomment>src/platform/tracklibrary/GPSBabelReader.cpp</extracomment>
        <translation>gpsbabel ne peut pas le lire</translation>
    </message>
    <message>
        <source>gpsbabel found no points in it</source>
        <extracomment>src/platform/tracklibrary/GPSBabelReader.cpp</extracomment>
        <translation>gpsbabel n’y a trouvé aucun point</translation>
    </message>
    <message>
        <source>gpsbabel is there</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>gpsbabel est présent</translation>
    </message>
    <message>
        <source>gpsbabel took too long to read it</source>
        <extracomment>src/platform/tracklibrary/GPSBabelReader.cpp</extracomment>
        <translation>gpsbabel a mis trop de temps à le lire</translation>
    </message>
    <message>
        <source>hours</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>heures</translation>
    </message>
    <message>
        <source>in front</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>au premier plan</translation>
    </message>
    <message>
        <source>it cannot be set</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>ne peut pas être défini</translation>
    </message>
    <message>
        <source>it cannot be unpacked</source>
        <extracomment>src/platform/tracklibrary/KMZArchive.cpp</extracomment>
        <translation>il ne peut pas être décompressé</translation>
    </message>
    <message>
        <source>it is a database of another program</source>
        <extracomment>src/platform/tracklibrary/TrackSchema.cpp</extracomment>
        <translation>c’est une base de données d’un autre programme</translation>
    </message>
    <message>
        <source>it was made by a newer version of Waymark</source>
        <extracomment>src/platform/tracklibrary/TrackSchema.cpp</extracomment>
        <translation>elle a été créée par une version plus récente de Waymark</translation>
    </message>
    <message>
        <source>jpeg, png or tiff</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>jpeg, png ou tiff</translation>
    </message>
    <message>
        <source>lake|walk</source>
        <extracomment>src/cli/DemoCommand.cpp</extracomment>
        <translation>lac|promenade</translation>
    </message>
    <message>
        <source>last</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>dernière</translation>
    </message>
    <message>
        <source>later</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>plus tard</translation>
    </message>
    <message>
        <source>map, place names and magnetic field are there</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>carte, noms de lieux et champ magnétique sont présents</translation>
    </message>
    <message>
        <source>minutes</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>minutes</translation>
    </message>
    <message>
        <source>my computer's time zone (%@).</source>
        <extracomment>src/geotagging/KTTimeZoneHUDController.cpp</extracomment>
        <translation>le fuseau de l’ordinateur (%@).</translation>
    </message>
    <message>
        <source>nearest point</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>point le plus proche</translation>
    </message>
    <message>
        <source>no capture date</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>pas de date de prise de vue</translation>
    </message>
    <message>
        <source>no dates</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>sans date</translation>
    </message>
    <message>
        <source>no place is known there</source>
        <extracomment>src/cli/PlaceCommand.cpp</extracomment>
        <translation>aucun lieu connu à cet endroit</translation>
    </message>
    <message>
        <source>no place names are found</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>aucun nom de lieu n’est trouvé</translation>
    </message>
    <message>
        <source>none</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>aucune</translation>
    </message>
    <message>
        <source>not geotagged</source>
        <extracomment>src/ui/photos/PhotoStatus.cpp</extracomment>
        <translation>non géolocalisée</translation>
    </message>
    <message>
        <source>not saved</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>non enregistré</translation>
    </message>
    <message>
        <source>nothing can be written in %@</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>impossible d’écrire dans %@</translation>
    </message>
    <message>
        <source>nothing to change</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>rien à modifier</translation>
    </message>
    <message>
        <source>of a track point</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>d’un point</translation>
    </message>
    <message>
        <source>only %@ MB are free for %@</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>seulement %@ Mo libres pour %@</translation>
    </message>
    <message>
        <source>only GPX files can be read</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>seuls les fichiers GPX peuvent être lus</translation>
    </message>
    <message>
        <source>open</source>
        <extracomment>src/ui/inspector/InspectorGroup.cpp</extracomment>
        <translation>déplié</translation>
    </message>
    <message>
        <source>photos can be saved, but keep no creation date</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>les photos peuvent être enregistrées, mais sans garder leur date de création</translation>
    </message>
    <message>
        <source>points at most</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>points à</translation>
    </message>
    <message>
        <source>reading this kind of file takes the program %@, which cannot be started; install the package gpsbabel (apt install gpsbabel)</source>
        <extracomment>src/platform/tracklibrary/GPSBabelReader.cpp</extracomment>
        <translation>la lecture de ce type de fichier nécessite le programme %@, qui ne peut pas être lancé ; installez le paquet gpsbabel (apt install gpsbabel)</translation>
    </message>
    <message>
        <source>saved</source>
        <extracomment>src/cli/DateCommands.cpp</extracomment>
        <translation>enregistré</translation>
    </message>
    <message>
        <source>seconds</source>
        <extracomment>src/ui/datetools/DateShiftPanel.cpp</extracomment>
        <translation>secondes</translation>
    </message>
    <message>
        <source>set takes KEY=VALUE... PATH...</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>set attend KEY=VALUE... PATH...</translation>
    </message>
    <message>
        <source>settings</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>réglages</translation>
    </message>
    <message>
        <source>skip photos already geotagged</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>ignorer les photos géolocalisées</translation>
    </message>
    <message>
        <source>standard output could not be written</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>impossible d’écrire sur la sortie standard</translation>
    </message>
    <message>
        <source>stays as it is</source>
        <extracomment>src/ui/datetools/DatePreviewList.cpp</extracomment>
        <translation>inchangée</translation>
    </message>
    <message>
        <source>the Image::ExifTool in %@ is version %@, which is too old</source>
        <extracomment>src/metadata/KTExifToolFolder.cpp</extracomment>
        <translation>la bibliothèque Image::ExifTool de %@ est en version %@, trop ancienne</translation>
    </message>
    <message>
        <source>the KML file in the KMZ archive is too large</source>
        <extracomment>src/platform/tracklibrary/KMZArchive.cpp</extracomment>
        <translation>le fichier KML de l’archive KMZ est trop volumineux</translation>
    </message>
    <message>
        <source>the KMZ archive has too many members</source>
        <extracomment>src/platform/tracklibrary/KMZArchive.cpp</extracomment>
        <translation>l’archive KMZ contient trop d’éléments</translation>
    </message>
    <message>
        <source>the KMZ archive holds no KML file</source>
        <extracomment>src/platform/tracklibrary/KMZArchive.cpp</extracomment>
        <translation>l’archive KMZ ne contient pas de fichier KML</translation>
    </message>
    <message>
        <source>the KMZ archive is damaged</source>
        <extracomment>src/platform/tracklibrary/KMZArchive.cpp</extracomment>
        <translation>l’archive KMZ est endommagée</translation>
    </message>
    <message>
        <source>the XML is broken: %@</source>
        <extracomment>src/platform/tracklibrary/XMLStream.cpp</extracomment>
        <translation>le XML est incorrect : %@</translation>
    </message>
    <message>
        <source>the date %@ is not between the years 1900 and 2199</source>
        <extracomment>src/platform/tracklibrary/GPXReader.cpp</extracomment>
        <translation>la date %@ n’est pas comprise entre 1900 et 2199</translation>
    </message>
    <message>
        <source>the defaults hold</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>les réglages par défaut s’appliquent</translation>
    </message>
    <message>
        <source>the elements are nested too deeply</source>
        <extracomment>src/platform/tracklibrary/XMLStream.cpp</extracomment>
        <translation>les éléments sont imbriqués trop profondément</translation>
    </message>
    <message>
        <source>the field "%@" cannot be edited</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>le champ « %@ » n’est pas modifiable</translation>
    </message>
    <message>
        <source>the file cannot be read: %@</source>
        <extracomment>src/platform/tracklibrary/TrackFileReading.cpp</extracomment>
        <translation>le fichier est illisible : %@</translation>
    </message>
    <message>
        <source>the file ends too early</source>
        <extracomment>src/platform/tracklibrary/XMLStream.cpp</extracomment>
        <translation>le fichier se termine trop tôt</translation>
    </message>
    <message>
        <source>the folder %@ cannot be made</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>impossible de créer le dossier %@</translation>
    </message>
    <message>
        <source>the import was stopped</source>
        <extracomment>src/platform/tracklibrary/KTTrackStore.cpp</extracomment>
        <translation>l’importation a été arrêtée</translation>
    </message>
    <message>
        <source>the log</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>le journal</translation>
    </message>
    <message>
        <source>the picture cannot be written to %@</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>impossible d’écrire l’image dans %@</translation>
    </message>
    <message>
        <source>the picture is too large, or its scale is not one from 0.5 to 8</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>l’image est trop grande ou son échelle n’est pas comprise entre 0.5 et 8</translation>
    </message>
    <message>
        <source>the settings file %@ cannot be read</source>
        <extracomment>src/cli/CommandLine.cpp</extracomment>
        <translation>le fichier de réglages %@ est illisible</translation>
    </message>
    <message>
        <source>the track library</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>la bibliothèque de traces</translation>
    </message>
    <message>
        <source>then select the next photo</source>
        <extracomment>src/ui/console/StandardPanel.cpp</extracomment>
        <translation>puis photo suivante</translation>
    </message>
    <message>
        <source>there is no Image/ExifTool.pm in %@</source>
        <extracomment>src/metadata/KTExifToolFolder.cpp</extracomment>
        <translation>il n’y a pas de Image/ExifTool.pm dans %@</translation>
    </message>
    <message>
        <source>there is no export plug-in "%@"; there are: %@</source>
        <extracomment>src/cli/ExportCommand.cpp</extracomment>
        <translation>il n’existe pas de module d’exportation « %@ » ; modules disponibles : %@</translation>
    </message>
    <message>
        <source>there is no field "%@" (waymark-cli fields lists them)</source>
        <extracomment>src/cli/SetCommand.cpp</extracomment>
        <translation>le champ « %@ » n’existe pas (waymark-cli fields en donne la liste)</translation>
    </message>
    <message>
        <source>there is no folder “%@”</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>le dossier « %@ » n’existe pas</translation>
    </message>
    <message>
        <source>there is no source of map tiles named "%@"</source>
        <extracomment>src/cli/MapCommand.cpp</extracomment>
        <translation>il n’existe pas de source de tuiles nommée « %@ »</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <extracomment>src/platform/tracklibrary/KTTrackManager.cpp</extracomment>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>ce dossier n’existe pas</translation>
    </message>
    <message>
        <source>there is no track %@</source>
        <extracomment>src/cli/TracksCommands.cpp</extracomment>
        <translation>la trace %@ n’existe pas</translation>
    </message>
    <message>
        <source>there is none yet</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>il n’y en a pas encore</translation>
    </message>
    <message>
        <source>this is a folder</source>
        <extracomment>src/platform/tracklibrary/KTTrackManager.cpp</extracomment>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>this is not a GPX file: it begins with &lt;%@&gt;</source>
        <extracomment>src/platform/tracklibrary/GPXReader.cpp</extracomment>
        <translation>ce n’est pas un fichier GPX : il commence par &lt;%@&gt;</translation>
    </message>
    <message>
        <source>this is not a file</source>
        <extracomment>src/platform/tracklibrary/KTTrackManager.cpp</extracomment>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>this is not a track file that Waymark knows (%@)</source>
        <extracomment>src/platform/tracklibrary/TrackFileReading.cpp</extracomment>
        <translation>ce n’est pas un fichier de trace connu de Waymark (%@)</translation>
    </message>
    <message>
        <source>this is not an XML file (%@)</source>
        <extracomment>src/platform/tracklibrary/XMLStream.cpp</extracomment>
        <translation>ce n’est pas un fichier XML (%@)</translation>
    </message>
    <message>
        <source>time weighted average</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>moyenne pondérée par le temps</translation>
    </message>
    <message>
        <source>to:</source>
        <extracomment>src/ui/datetools/DateCopyPanel.cpp</extracomment>
        <translation>vers :</translation>
    </message>
    <message>
        <source>true or false</source>
        <extracomment>src/platform/defaults/KTSettingsTable.cpp</extracomment>
        <translation>true ou false</translation>
    </message>
    <message>
        <source>unknown text encoding “%@”</source>
        <extracomment>src/platform/tracklibrary/XMLStream.cpp</extracomment>
        <translation>codage de texte « %@ » inconnu</translation>
    </message>
    <message>
        <source>unsaved changes</source>
        <extracomment>src/ui/inspector/FieldLabel.cpp</extracomment>
        <translation>modifications non enregistrées</translation>
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
        <translation>ce que gpsbabel en a lu est inutilisable : %@</translation>
    </message>
    <message>
        <source>what was written did not come back</source>
        <extracomment>src/collection/InstallationCheck.cpp</extracomment>
        <translation>la relecture diffère de ce qui a été écrit</translation>
    </message>
    <message>
        <source>with a warning</source>
        <extracomment>src/ui/photos/PhotoStatus.cpp</extracomment>
        <translation>avec un avertissement</translation>
    </message>
    <message>
        <source>within</source>
        <extracomment>src/ui/console/CriteriaView.cpp</extracomment>
        <translation>à moins de</translation>
    </message>
    <message>
        <source>without a capture date</source>
        <extracomment>src/ui/datetools/DateToolsWindow.cpp</extracomment>
        <translation>sans date de prise de vue</translation>
    </message>
    <message>
        <source>© 2012 Anna Keller. All rights reserved.</source>
        <extracomment>src/metadata/KTMetadataHelpTableDescription.cpp</extracomment>
        <translation>© 2012 Anna Keller. Tous droits réservés.</translation>
    </message>
    <message>
        <source>“%@” cannot be copied: %@</source>
        <extracomment>src/platform/desktop/KTFileOperations.cpp</extracomment>
        <translation>Impossible de copier « %@ » : %@</translation>
    </message>
    <message>
        <source>“%@” cannot be created: %@</source>
        <extracomment>src/platform/desktop/KTFileOperations.cpp</extracomment>
        <translation>Impossible de créer « %@ » : %@</translation>
    </message>
    <message>
        <source>“%@” cannot be opened: %@</source>
        <extracomment>src/platform/desktop/KTFileCoordinator.cpp</extracomment>
        <translation>Impossible d’ouvrir « %@ » : %@</translation>
    </message>
    <message>
        <source>“%@” cannot be read: %@</source>
        <extracomment>src/collection/KTPhotoFileSearch.cpp</extracomment>
        <translation>« %@ » est illisible : %@</translation>
    </message>
    <message>
        <source>“%@” cannot be replaced: %@</source>
        <extracomment>src/platform/desktop/KTFileOperations.cpp</extracomment>
        <translation>Impossible de remplacer « %@ » : %@</translation>
    </message>
    <message>
        <source>“%@” exists already. Do you want to replace it?</source>
        <extracomment>src/export/KTPhotoExportPluginManager.cpp</extracomment>
        <translation>« %@ » existe déjà. Voulez-vous le remplacer ?</translation>
    </message>
    <message>
        <source>“%@” is not a date and time</source>
        <extracomment>src/platform/tracklibrary/GPXReader.cpp</extracomment>
        <translation>« %@ » n’est pas une date et une heure</translation>
    </message>
    <message>
        <source>“%@” is not a height in metres</source>
        <extracomment>src/platform/tracklibrary/GPXReader.cpp</extracomment>
        <translation>« %@ » n’est pas une altitude en mètres</translation>
    </message>
    <message>
        <source>“%@” is not a latitude from -90 to 90</source>
        <extracomment>src/platform/tracklibrary/GPXReader.cpp</extracomment>
        <translation>« %@ » n’est pas une latitude de -90 à 90</translation>
    </message>
    <message>
        <source>“%@” is not a longitude from -180 to 180</source>
        <extracomment>src/platform/tracklibrary/GPXReader.cpp</extracomment>
        <translation>« %@ » n’est pas une longitude de -180 à 180</translation>
    </message>
    <message>
        <source>“%@” is not the address of a server that place names could be fetched from.</source>
        <extracomment>src/platform/gazetteer/KTNominatimReverseGeocoder.cpp</extracomment>
        <translation>« %@ » n’est pas l’adresse d’un serveur pouvant fournir des noms de lieux.</translation>
    </message>
    <message>
        <source>“%@” is not the address of a web server.</source>
        <extracomment>src/platform/cartography/drawing/tiles/KTTileSource.cpp</extracomment>
        <translation>« %@ » n’est pas l’adresse d’un serveur web.</translation>
    </message>
    <message>
        <source>“%@” is the first of them.</source>
        <extracomment>src/export/KTPhotoExportPluginManager.cpp</extracomment>
        <translation>« %@ » est le premier d’entre eux.</translation>
    </message>
    <message>
        <source>“%@” keeps being changed by another program.</source>
        <extracomment>src/photo/KTPhotoSaving.cpp</extracomment>
        <translation>« %@ » est sans cesse modifié par un autre programme.</translation>
    </message>
    <message>
        <source>“%@” was changed by another program.</source>
        <extracomment>src/platform/desktop/KTFileOperations.cpp</extracomment>
        <translation>« %@ » a été modifié par un autre programme.</translation>
    </message>
    <message>
        <source>“%@” was replaced, but may not be on disk yet: %@</source>
        <extracomment>src/platform/desktop/KTFileOperations.cpp</extracomment>
        <translation>« %@ » a été remplacé, mais n’est peut-être pas encore sur le disque : %@</translation>
    </message>
    <message>
        <source>“full” keeps names and positions in the log file</source>
        <extracomment>src/ui/application/StartOptions.cpp</extracomment>
        <translation>« full » conserve noms et positions dans le fichier journal</translation>
    </message>
    <message numerus="yes">
        <source>… and %d more</source>
        <extracomment>src/app/WaymarkAppController.cpp</extracomment>
        <translation>
            <numerusform>… et %d autre</numerusform>
            <numerusform>… et %d autres</numerusform>
        </translation>
    </message>
</context>
</TS>

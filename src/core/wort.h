#pragma once
#include "base/array.h"

/// The visible texts. Each has its number in the language files i18n/melvoralang.*.ts, where its
/// key is the number and "s"; the code knows it by its name here. The comment is the German text,
/// or how it begins. tools/check_words.py compares this file with the language files and with the
/// code.
namespace core::wort {

enum class Id : int {
    none = 0,  // no text

    // On several forms
    copyright = 6,       // © Melvora
    ok = 432,            // OK
    help = 816,          // Hilfe
    back = 640,          // zurück
    goOn = 625,          // weiter
    number = 426,        // Nr.
    version = 699,       // Version
    colon = 700,         // :
    slash = 701,         // /
    dash = 702,          // -
    languageCode = 705,  // de
    yes = 891,           // Ja
    no = 892,            // Nein

    // Branches, exercise types and the start form
    earTraining = 724,     // Gehörbildung
    musicTheory = 725,     // Musiklehre
    identify = 154,        // bestimmen
    write = 690,           // schreiben
    scales = 491,          // Skalen
    identifyScales = 492,  // Skalen bestimmen
    writeScales = 718,     // Skalen schreiben
    basicSettings = 287,   // Grundeinstellung
    setup = 221,           // Einstellung
    result = 224,          // Ergebnis
    branch = 825,          // Fach
    exerciseType = 586,    // Übungsart
    quit = 223,            // Ende

    // Modes
    tryOut = 136,            // Ausprobieren
    training = 564,          // Training
    continueTraining = 565,  // Training fortsetzen
    test = 550,              // Test
    exam = 438,              // Prüfung

    // Categories of scales
    churchModes = 354,            // Kirchentonarten
    churchModeVariants = 353,     // Kirchenton-Varianten
    minorVariants = 411,          // Moll-Varianten
    exoticScales = 225,           // Exoten
    pentatonicScales = 434,       // Pentatonik
    wholeToneQuartalBlues = 265,  // Ganzton, Quarten, Blues
    tetrachords = 553,            // Tetrachord-Varianten

    // Scales
    ionian = 344,                  // ionisch
    dorian = 203,                  // dorisch
    phrygian = 435,                // phrygisch
    lydian = 377,                  // lydisch
    mixolydian = 402,              // mixolydisch
    aeolian = 115,                 // äolisch
    locrian = 375,                 // lokrisch
    melodicMinor = 386,            // melodisch Moll
    dorianFlat2 = 204,             // dorisch ♭2
    lydianSharp5 = 378,            // lydisch ♯5
    mixolydianSharp4 = 403,        // mixolydisch ♯4
    mixolydianFlat6 = 404,         // mixolydisch ♭6
    locrianSharp2 = 376,           // lokrisch ♯2
    superLocrian = 528,            // superlokrisch
    naturalMinor = 460,            // reines Moll
    harmonicMinor = 314,           // harmonisch Moll
    harmonicMinorFifthMode = 315,  // harmonisch Moll, 5. Stufe
    harmonicMajor = 313,           // harmonisch Dur
    phrygianMinor = 406,           // phrygisches Moll
    hungarianMinor = 637,          // ungarisch Moll
    doubleHarmonicMajor = 636,     // doppelharmonisch Dur
    flamenco1 = 241,               // Flamenco 1
    flamenco2 = 242,               // Flamenco 2
    octatonicWholeHalf = 264,      // Ganzton-Halbton
    octatonicHalfWhole = 309,      // Halbton-Ganzton
    bebopDominant = 147,           // Bebop-Dominant
    bebopMajor = 148,              // Bebop-Dur
    messiaen4 = 387,               // Messiaen 4. Modus
    messiaen5 = 388,               // Messiaen 5. Modus
    messiaen6 = 389,               // Messiaen 6. Modus
    blues = 163,                   // Blues
    wholeTone = 266,               // Ganztonleiter
    fourthsFromC = 441,            // Quarten ab C
    fourthsFromG = 444,            // Quarten ab G
    fourthsFromD = 442,            // Quarten ab D
    fourthsFromA = 440,            // Quarten ab A
    fourthsFromE = 443,            // Quarten ab E
    fourthsFromB = 445,            // Quarten ab H

    // Set-up form: what is played
    scaleType = 494,         // Skalentyp
    direction = 469,         // Richtung
    ascending = 132,         // aufwärts
    descending = 83,         // abwärts
    bothDirections = 623,    // wechselnd
    noteOrder = 558,         // Tonfolge
    scaleInOrder = 489,      // Skala
    melody = 385,            // Melodik
    tuning = 504,            // Stimmung
    equalTemperament = 546,  // temperiert
    pythagorean = 458,       // rein (pythagoreisch)
    meantone = 401,          // mitteltönig (Kirnberger)
    kirnberger = 355,        // Kirnberger
    referencePitch = 243,    // Frequenz
    fixedPitch = 238,        // fest (a'440 Hz)
    variablePitch = 603,     // variablel
    pitchRange = 107,        // Tonraum
    octave = 433,            // Oktave
    octaves = 41,            // Oktaven
    keyboardRegister = 153,  // Bereich
    timbre = 365,            // Klangfarbe
    tempo = 547,             // Tempo
    volume = 372,            // Lautstärke
    soundCheck = 366,        // Klang-Kontrolle
    noSoundfont = 810,       // Es wurde keine Soundfont gefunden. Installieren …
    noAudioDevice = 811,     // Es wurde kein Audiogerät gefunden: Die Übung …
    audioDeviceGone = 812,   // Das Audiogerät ist nicht mehr da. Schließen Sie …
    noSoundLibrary = 890,    // Die Klangbibliothek fehlt oder lässt sich nicht …

    // Set-up form: how it is asked
    exerciseMode = 587,            // Übungsmodus
    advance = 78,                  // Abfolge
    byHand = 383,                  // manuell
    automatic = 142,               // automatisch
    keySignatureOrFinal = 622,     // Vorzeichen/Finalis
    sameKeySignature = 621,        // Vorzeichen gleichbleibend
    sameFinal = 240,               // Finalis gleichbleibend
    bothChanging = 151,            // beide wechselnd
    sameTonic = 298,               // Grundton gleichbleibend
    changingTonic = 299,           // Grundton wechselnd
    display = 113,                 // Anzeige
    scaleStructure = 505,          // Struktur
    scaleName = 157,               // Bezeichnung
    scalesIncluded = 619,          // Vorkommen
    allScales = 103,               // alle
    selectedScales = 413,          // nach Wahl
    scaleSelection = 222,          // Skalen-Auswahl
    availableList = 140,           // Auswählen
    selectedList = 135,            // Ausgewählt
    chosenCount = 817,             // %1 gewählt (höchstens 15)
    choiceDoesNotCount = 1329,     // Es kommen alle Skalen vor; diese Auswahl …
    atLeast2 = 396,                // mindestens 2 !!
    atLeast2PerDirection = 397,    // mindestens 2 pro Richtung !!
    atLeast3 = 398,                // mindestens 3 !!
    atLeast3PerDirection = 399,    // mindestens 3 pro Richtung !!
    sameNumberPerDirection = 783,  // gleiche Anzahl je Richtung !!

    // Files of settings
    readSettings = 829,        // Einlesen Test
    saveSettings = 830,        // Einstellungen Speichern
    markGroup = 843,           // Prüfung
    saveFormTitle = 836,       // Speichereinstellungen
    saveFormPath = 837,        // Speichern unter:
    loadFormTitle = 839,       // Einstellungen laden
    loadFormPath = 840,        // File laden::
    fileDescription = 838,     // Beschreibung:
    saveDialogTitle = 841,     // Einstellungen speichern unter
    settingsFiles = 842,       // Melvora Settings
    nameFileFirst = 889,       // Nennen Sie zuerst eine Datei; „...“ öffnet die …
    settingsNotWritten = 834,  // Die Einstellungen konnten nicht nach %1 …
    notASettingsFile = 835,    // %1 ist keine lesbare Einstellungsdatei.

    // Recap of the settings, where the set-up form says it in other words
    recapExamNumber = 1000,   // Nr.:
    recapRegister = 1001,     // Oktavbereich
    recapDirection = 1002,    // Ska-Richtung
    recapKey = 1003,          // Vz/Finalis
    recapScaleCount = 1004,   // Einzel-Auswahl Anzahl
    recapScaleHeard = 1005,   // gewähltes Iv Nr.%1
    recapScaleSilent = 1006,  // gewählte Skala Nr.%1

    // Worksheets
    task = 129,                  // Aufgabe
    nextTask = 420,              // nächste Aufgabe
    oneMoment = 726,             // Einen Moment bitte !
    right = 468,                 // Richtig
    wrong = 232,                 // Falsch
    scaleWithDirection = 1007,   // %1 %2
    taskSolved = 130,            // Aufgabe gelöst
    tooManyErrors = 638,         // Nicht bestanden: zu viele Fehler
    trainingProgress = 566,      // Trainingsstand
    pointsToGoal = 818,          // Training: noch %1 Punkte bis zum Ziel, bei %2 endet …
    showTestStatus = 551,        // Teststand einblenden
    hideTestStatus = 552,        // Teststand ausblenden
    timeLeft = 461,              // Restdauer:
    minutes = 394,               // Min.
    seconds = 480,               // Sek.
    tasksLeft = 462,             // restliche Aufgaben:
    repeat = 629,                // wiederholen
    repeatCheck = 632,           // wiederholen (Kontrolle)
    repeats = 832,               // Wiederholungen
    ownVersion = 822,            // eigene Fassung hören
    identifyKeys = 826,          // 1–0: Antwort · Leertaste: wiederholen · …
    identifySilentKeys = 886,    // 1–0: Antwort · ↵: weiter · …
    writeKeys = 879,             // ← →: Spalte · ↑ ↓: Halbton · 1–5: Zeichen · …
    writeSilentKeys = 888,       // ← →: Spalte · ↑ ↓: Halbton · 1–5: Zeichen · …
    saveTraining = 8,            // Training speichern
    saveTrainingQuestion = 495,  // Soll der Trainingsstand gespeichert werden?

    // Staff
    done = 801,            // Fertig
    writeThisScale = 802,  // Bilde...
    stepMarks = 827,       // Schrittmarken
    staff = 880,           // Notenzeile
    hint = 887,            // Hinweis
    doubleFlat = 881,      // Doppel-b
    flat = 882,            // b
    natural = 883,         // Auflösungszeichen
    sharp = 884,           // Kreuz
    doubleSharp = 885,     // Doppelkreuz

    // Result form
    resultsPerScale = 803,     // Einzel-Ergebnisse
    weakestFirst = 833,        // Schwächste zuerst
    total = 805,               // Gesamt:
    settings = 820,            // Einstellungen
    basicData = 821,           // Grunddaten
    date = 189,                // Datum
    user = 109,                // Anwender
    surnameLabel = 806,        // Name:
    firstNameLabel = 807,      // Vorname:
    matriculationLabel = 808,  // Matrikel-Nr.:
    print = 804,               // Drucken
    printerRefuses = 831,      // Der Drucker „%1“ nimmt nichts an. Prüfen Sie, ob …
    noPrinter = 896,           // Es ist kein Drucker eingerichtet. Richten Sie in …

    // What went wrong
    errorOccurred = 720,           // Es ist ein Fehler aufgetreten.
    detailsInLog = 721,            // Die Einzelheiten stehen im Protokoll.
    exerciseIsLeft = 722,          // Die Übung wird verlassen.
    startAgain = 723,              // Bitte beginnen Sie neu.
    connectionLost = 814,          // Die Verbindung zu Melvora ist abgebrochen; der …
    trainingRefused = 893,         // Melvora hat den Trainingsstand nicht angenommen; …
    trainingRefusedBecause = 894,  // Melvora hat den Trainingsstand nicht angenommen; …
    recordNotWritten = 815,        // Das Protokoll dieser Übung konnte nicht nach %1 …
    programEnds = 895,             // Das Übungsprogramm endet wegen eines unerwarteten …

    // Host: pages and start
    startPage = 900,            // Start
    resultsPage = 901,          // Ergebnisse
    logPage = 902,              // Protokoll
    usersPage = 903,            // Benutzer
    subtitle = 904,             // Programme zum Üben von Musik
    practiseScales = 905,       // &Skalen üben
    practiseScalesAbout = 906,  // Gehörbildung und Musiklehre: Skalen bestimmen und …
    userLabel = 907,            // &Benutzer:
    nobody = 908,               // niemand
    languageLabel = 909,        // S&prache:
    midiDeviceLabel = 910,      // &MIDI-Gerät:
    builtInSynthesiser = 911,   // Eingebauter Synthesizer
    notConnected = 912,         // %1 (nicht angeschlossen)
    manageUsers = 956,          // Be&nutzer verwalten …

    // Host: users
    logIn = 913,               // &Anmelden
    logOut = 914,              // Abm&elden
    addUser = 915,             // &Neu …
    editUser = 916,            // &Bearbeiten …
    deleteUser = 917,          // &Löschen …
    surname = 918,             // Name
    firstName = 919,           // Vorname
    matriculation = 920,       // Matrikel-Nr.
    userKey = 921,             // Kennung
    newUserTitle = 924,        // Neuer Benutzer
    editUserTitle = 925,       // Benutzer bearbeiten
    save = 922,                // &Speichern
    cancel = 923,              // &Abbrechen
    confirmDelete = 957,       // &Löschen
    keyTaken = 926,            // Die Kennung „%1“ ist schon vergeben.
    keyNotAllowed = 955,       // Diese Kennung ist nicht erlaubt.
    enterName = 927,           // Bitte geben Sie einen Namen ein.
    deleteUserQuestion = 928,  // „%1“ löschen? Die gespeicherten Einstellungen und …
    noUsers = 961,             // Noch keine Benutzer. Mit „Neu“ legen Sie den …
    userHeading = 959,         // Benutzer
    withoutLogin = 969,        // ohne Anmeldung

    // Host: results
    exercise = 930,         // Übung
    rightAtFirst = 931,     // Auf Anhieb richtig
    rightOfAnswered = 932,  // %1 von %2 (%3 %)
    noResults = 933,        // Noch keine Ergebnisse
    chooseResult = 949,     // Wählen Sie oben ein Ergebnis, um es anzusehen.
    recordSettings = 946,   // Einstellungen
    recordTasks = 947,      // Aufgaben
    taskScale = 954,        // Skala
    taskAnswers = 948,      // Antworten
    taskDuration = 953,     // Dauer
    answerRight = 950,      // richtig

    // Host: log
    filterLabel = 934,  // &Filter:
    searchText = 962,   // Text suchen
    logTime = 935,      // Zeit
    logKind = 936,      // Art
    logText = 937,      // Text
    allKinds = 960,     // Alle Arten
    logMessage = 939,   // Meldung
    logError = 940,     // Fehler
    noEntries = 958,    // Noch keine Einträge

    // Host: saved trainings
    savedTrainings = 963,          // Gespeicherte Trainings: %1
    savedOn = 964,                 // Gespeichert am
    noTrainings = 966,             // Keine gespeicherten Trainings
    deleteTraining = 965,          // &Training löschen …
    deleteTrainingQuestion = 967,  // Das gespeicherte Training „%1“ löschen (Benutzer: …
    noDeletingNow = 968,           // Solange ein Übungsprogramm läuft, kann kein …
    branchAndType = 972,           // %1: %2

    // Host: notices
    closeNotice = 952,         // Hinweis schließen
    moduleNotStarted = 941,    // Das Übungsprogramm „%1“ konnte nicht gestartet …
    moduleEnded = 942,         // Das Übungsprogramm „%1“ wurde unerwartet beendet …
    moduleRuns = 943,          // Das Übungsprogramm „%1“ läuft gerade.
    recordUnreadable = 944,    // Diese Ergebnisdatei ist nicht lesbar und bleibt …
    savingFailed = 945,        // Speichern fehlgeschlagen: %1
    settingsUnreadable = 970,  // Diese Datei mit Einstellungen ist nicht lesbar: %1
    settingsMustWait = 971,    // Das Übungsprogramm „%1“ läuft gerade. Verlassen …
    unexpectedFault = 973,     // Unerwarteter Fehler: %1
    resultsNotTaken = 974,     // Ergebnisse können nicht angenommen werden. %1

    // Host: what is wrong with a file of settings
    settingsMissing = 1200,      // Die Datei „%1“ gibt es nicht.
    settingsNoPlainFile = 1201,  // „%1“ ist keine gewöhnliche Datei.
    settingsTooBig = 1202,       // Die Datei „%1“ ist zu groß für Einstellungen …
    settingsDamaged = 1203,      // Die Datei „%1“ ist beschädigt: Zeile %2 ist kein …
    settingsNone = 1204,         // Die Datei „%1“ enthält keine Einstellungen.

    // Host: what every page has
    helpButton = 1205,   // &Hilfe
    moreButton = 1206,   // Meh&r
    logEntry = 1207,     // &Protokoll …
    quitEntry = 1208,    // &Melvora beenden
    showLog = 1209,      // Protokoll &zeigen
    showResults = 1210,  // Ergebnis &zeigen

    // Host: log-in
    loggedIn = 1211,          // Angemeldet: %1
    loggedInHeading = 1212,   // Angemeldet
    lockedNow = 1213,         // Solange eine Übung läuft, bleiben Benutzer und …
    askSurname = 1214,        // &Name:
    askFirstName = 1215,      // &Vorname:
    askMatriculation = 1216,  // &Matrikel-Nr.:
    askUserKey = 1217,        // &Kennung:

    // Host: list of results
    allUsers = 1218,       // &Alle Benutzer
    emptyRuns = 1219,      // Auch &leere Übungen
    noneShown = 1220,      // Nichts gefunden
    begun = 1221,          // Beginn
    ended = 1222,          // Ende
    answerSeconds = 1223,  // %1 s
    resultTaken = 1224,    // Neues Ergebnis: %1, auf Anhieb richtig %2
    kindLabel = 1225,      // &Art:

    // Host: help
    helpIndex = 1226,     // &Inhalt
    helpBack = 1227,      // &Zurück
    helpFind = 1228,      // &Suchen:
    helpFindNext = 1229,  // &Weitersuchen
    helpNotFound = 1230,  // Das steht auf keiner Seite.
    // Worksheet: what to do, and what became of it
    breakOffQuestion = 1300,  // Wirklich abbrechen? Ein Ergebnis wird dann …
    hearFirstTask = 1301,     // Eingabetaste: Aufgabe 1 hören
    seeFirstTask = 1302,      // Eingabetaste: Aufgabe 1 zeigen
    firstTaskComes = 1303,    // Aufgabe 1 folgt …
    listen = 1304,            // Zuhören …
    whichScale = 1305,        // Welche Skala ist es?
    putAccidentals = 1306,    // Vorzeichen setzen, dann Fertig
    verdictRight = 1307,      // richtig:
    verdictSolution = 1308,   // Lösung:

    // Training bar and result form
    barGoal = 1309,      // Ziel
    barFailed = 1310,    // verfehlt
    notAsked = 1311,     // nicht gefragt
    mastered = 1312,     // beherrscht
    weightToGo = 1314,   // noch %1
    lostForTime = 1313,  // Alles auf Anhieb richtig; Abzüge gab es für …

    // Set-up form: one press
    asLastTime = 1320,         // Wie zuletzt
    forBeginners = 1321,       // Für den Anfang
    asLastTimeAbout = 1322,    // Wählt, was im letzten Durchgang dieser …
    hostGone = 1324,           // Die Verbindung zu Melvora ist abgebrochen; …
    forBeginnersAbout = 1323,  // Wählt drei Kirchentonarten, aufwärts und …

    // Set-up form: what instruments are worth
    partlySilent = 1330,       // teils stumm
    unclearPitch = 1331,       // Tonhöhe unklar
    otherOctave = 1332,        // andere Oktave
    noSuchInstrument = 1337,   // fehlt, ein anderes erklingt
    instrumentInRange = 1333,  // %1: %2 in diesem Tonraum. Wählen Sie …

    // Host: soundfonts
    soundfontLabel = 1334,    // &Klänge:
    usualSoundfont = 1335,    // wie üblich
    missingSoundfont = 1336,  // %1 (fehlt)

    // Host: results as tables
    exportButton = 1338,        // E&xportieren …
    exportTitle = 1339,         // Ergebnisse exportieren
    tables = 1340,              // Tabellen
    exporting = 1341,           // Ergebnisse werden geschrieben …
    exported = 1342,            // %1 Übungen und %2 Antworten stehen in %3 und …
    exportedUnreadable = 1343,  // Nicht lesbar und daher ohne Antworten: %1.
    exportFailed = 1344,        // Die Ergebnisse sind nicht geschrieben: %1. …

    // Settings files: what is told of them
    fileLimits = 1325,    // Einzelne Skalen hält eine Datei nicht fest: …
    chooseFile = 1326,    // Datei wählen
    howToMark = 1327,     // Rechtsklick oder Menütaste auf einer …
    setByTeacher = 1328,  // Von der Lehrkraft vorgegeben: %1
};
using enum Id;

/// Words whose numbers follow each other.
template <int length>
constexpr base::FixedArray<Id, length> run(int first) {
    base::FixedArray<Id, length> words;
    for (int i = 0; i < length; ++i) words[i] = static_cast<Id>(first + i);
    return words;
}

/// The ends of a range, octave by octave from the lowest, in ear training and in theory. The upper
/// ends begin with the smallest range in the lowest place.
inline constexpr auto earRangeFrom = run<4>(671);
inline constexpr auto earRangeTo = run<4>(673);
inline constexpr auto theoryRangeFrom = run<4>(681);
inline constexpr auto theoryRangeTo = run<4>(693);

/// From C to B, each from double flat to double sharp.
inline constexpr auto noteNames = run<35>(844);

/// The General MIDI programs.
inline constexpr auto instruments = run<128>(1020);

}  // namespace core::wort

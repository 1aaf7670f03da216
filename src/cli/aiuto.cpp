// The table of commands, and their help texts.
#include "cli/aiuto.h"

#include <algorithm>

#include "app/significati.h"
#include "cli/batch.h"
#include "cli/certify.h"
#include "cli/cut.h"
#include "cli/draw.h"
#include "cli/ombre.h"
#include "cli/place.h"
#include "cli/report.h"
#include "cli/sun.h"
#include "formati/formati.h"
#include "officina/scrittori.h"
#include "reports/rapporti.h"

namespace ombrelia::cli {

namespace {

constexpr std::string_view GENERALE = R"(Ombrelia designs sundials and draws them true to scale.

usage: ombrelia COMMAND ...

)";

constexpr std::string_view GENERALE_FINE = R"(
ombrelia COMMAND --help tells more; ombrelia --version tells the version.

A declining wall in one line:
  ombrelia draw --set txtLAT=45.07 --set txtDec=18 --set txtInc=0 --check chkOreAstronomiche --check Ck_DayLightCurves muro.dxf
)";

constexpr std::string_view GUI = R"(usage: ombrelia gui [--run] [PROJECT]

Opens the window, with PROJECT when it is named.

  --run         draws at once
  --version     tells the version and opens nothing
)";

constexpr std::string_view DRAW =
    R"(usage: ombrelia draw [--project FILE] [--set FIELD=TEXT]... [--check BOX]... [--engine ENGINE] [--map] [--sheet L H X Y]
                    [--paper PAPER] FILE...

Draws a dial and writes it, once for each FILE, in the form of its ending. For each it tells what the file holds, a picture's scale
and size, and what of the drawing the form has no place for.

  --project FILE     a project file; fields and boxes given beside it come after it
  --place NAME       a town: sets txtLAT, txtLonG and txtMeridiano; --country XX tells namesakes apart (ombrelia place --help)
  --set FIELD=TEXT   a field of the main window: txtLAT, txtDec (West +), txtLonG (West +), txtInc (0 wall, 90 horizontal),
                     TxtStilo, txtX0 txtX1 txtY0 txtY1 (the frame), TxtFraz ...
                     A number may have a comma for its point; what is no number, or out of its field's range, is refused
  --check BOX        a feature: chkOreAstronomiche, Ck_DayLightCurves, ck_Equinoziale, ck_Italiche, ck_babiloniche, ckTemp,
                     ck_Lemniscate, ck_Triangolo, ck_Sustilare, ckAlt, ckAz, ckAsr, CkQibla, ck_Orizzonte, ckAssi ...
                     ChCentimetro: lengths are millimetres; ck_Etna: true time of the zone; ckFunzione: intermediate lines
  --uncheck BOX      clears a box, as one of the project's
  --corrected        true lines in place of those that are not (the box ckCorretta)
  --engine ENGINE    auto (as the run button decides), direct, vertical or analytic (walls only)
  --map              the map of the world on the dial
  --sheet L H X Y    width, height and origin of the sheet in metres; without it the project's, or fitted to the frame
  --paper PAPER      a PDF in pages to be pasted together, those that hold lines: a4, a3, letter, or WxH in millimetres
  --format ENDING    the form of a FILE whose name has no ending, as /dev/stdout; - is standard output

examples:
  ombrelia draw --set txtLAT=45.07 --set txtDec=18 --set txtInc=0 --check chkOreAstronomiche muro.svg muro.dxf
  ombrelia draw --set txtLAT=54.8 --set txtInc=90 --check chkOreAstronomiche --check ck_Lemniscate orizzontale.svg
  ombrelia draw --check ChCentimetro --set TxtStilo=200 --set txtX0=-500 --set txtX1=500 --set txtY0=100 --set txtY1=-700 \
                --check ck_Italiche --sheet 1.1 0.9 0.55 0.15 italiche.dxf

endings:
)";

constexpr std::string_view CUT =
    R"(usage: ombrelia cut [options of draw] [--text strokes|text|none] [--tolerance MM] [--units mm|in] [--clip frame|sheet]
                    [--dots MM] FILE...

Makes a dial ready for a machine: chords joined to paths, nothing cut twice, nothing outside the frame, little travel of the
head; writes it, once for each FILE, in the form of its ending, and tells what was done.

  --text TEXTS       the caption's texts as single strokes, as texts, or none; without it strokes where there are any
  --tolerance MM     how far the paths may lie from the drawing; without it 0.01
  --units UNIT       mm or in, of a DXF; the other forms have units of their own
  --clip FIELD       frame or sheet: what lies outside is cut off, glyphs stay whole
  --dots MM          single points become circles of this radius

ombrelia draw --help tells the options of a dial.

examples:
  ombrelia cut --project muro.omb muro.dxf muro.plt
  ombrelia cut --set txtLAT=45.07 --set txtInc=0 --check chkOreAstronomiche --clip sheet --text none muro.svg

endings:
)";

constexpr std::string_view SOLID =
    R"(usage: ombrelia solid [options of draw] [--part style|socket|plate|all] [--raised | --sunk] [--depth MM]
                      [--thickness MM] [--plate MM] [--line MM] [--rod MM] FILE.stl

Makes solids of a dial, closed and in millimetres, in one binary STL file, each lying as it is printed.

  --part PART        style: the polar style as a plate with two tabs; socket: a boss for the rod of the gnomon; plate: the dial
                     with its lines and labels; without it all, and the plate has slots for the tabs
  --raised, --sunk   lines stand out (as without a choice) or are sunk
  --depth MM         by so much; without it 1
  --thickness MM     of the style's plate; without it 3
  --plate MM         thickness of the dial's plate; without it 5
  --line MM          width of a line; without it 0.8
  --rod MM           diameter of the gnomon's rod; without it 4

ombrelia draw --help tells the options of a dial.

example:
  ombrelia solid --project muro.omb --check ckEtichette --sunk --depth 0.6 muro.stl
)";

constexpr std::string_view BATCH = R"(usage: ombrelia batch FILE      (- for standard input)

Performs the actions of a user at the main window, one a line. Blank lines and lines that begin with # are passed over.

  set CONTROL TEXT      enters a text box, gives it TEXT, leaves it; or selects the entry of a list
  type CONTROL TEXT     sends TEXT key by key through the control's key filter
  check BOX, uncheck BOX
  click CONTROL         presses a button, option, check box or menu entry
  mouse X Y             presses the mouse on the sheet, device position
  answer TEXT           queues the answer to the next message, input or file box
  sheet L H X Y         sheet width, height and shift in metres
  FORM FILE             writes the drawing; FORM is one of those below
  report FILE           writes the report opened last, as text; print FILE what its Stampa menu prints
  show CONTROL, value NAME

A FILE of - is standard output. The exit status is 2, with FILE:LINE: reason, at an action that can't be done.

example:
  printf '%s\n' 'set txtInc 0' 'check chkOreAstronomiche' 'click cmdRun' 'svg muro.svg' | ombrelia batch -

forms:
)";

constexpr std::string_view REPORT =
    R"(usage: ombrelia report NAME [--project FILE] [--set FIELD=TEXT]... [--check BOX]... [FORM] [--print] [-o FILE]

The numbers of a dial, as the program's report forms give them.

  --project FILE     a project file; fields and boxes given beside it come after it
  --set FIELD=TEXT   a field of the main window, as in ombrelia draw; TxtInizio and TxtFine are the first and last hour of the
                     tables, TxtFraz the lines in an hour, txtX0 txtY0 and txtX1 txtY1 the lines that the hour lines are cut with
  --check BOX        ChCentimetro: lengths are millimetres; ck_Etna: true time of the zone
  --print            what the form's Stampa menu prints
  -o FILE            where it goes; without it, or with -, standard output

examples:
  ombrelia report data --set txtLAT=45.07 --set txtDec=18 --set txtInc=0
  ombrelia report hours --project muro.omb --html -o ore.html
  ombrelia report italic --set txtInc=0 --set TxtInizio=13 --set TxtFine=24 --csv -o italiche.csv

reports:
)";

constexpr std::string_view CERTIFY = R"(usage: ombrelia certify [options of draw] [--tolerance MM] [--json | --html] [-o FILE]

Draws a dial in memory and reads every line back by vectors: each chord of a known line at both ends and its middle. A row a line:
layer, what it claims, length drawn, largest and mean deviation in mm (and in seconds of time or minutes of arc), mm missing of
what would be seen inside the frame, mm superfluous where no shadow ever falls, and the worst place, right and up from the foot on
the dial as it is mounted; rows of what is drawn twice; how many records claim nothing. Last the verdict.

A line is true within the tolerance, with at most 0.5 % of it superfluous and at most 2 % of what would be seen missing; half a
millimetre of either is not counted. The exit status is 0 when every line is true, 1 when not, 2 for what can't be done.

  --tolerance MM   0.1 without it
  --json           one object: worst_mm, true, lines
  --html           a page to print and keep with the dial
  -o FILE          where it goes; without it, or with -, standard output

example:
  ombrelia certify --project examples/parete_torino.omb
)";

constexpr std::string_view READ =
    R"(usage: ombrelia read [--project FILE] [--set FIELD=TEXT]... [--check BOX]... [--date DATE] [--] X Y

What a point of the dial says when the shadow of the gnomon's tip lies on it. X and Y are millimetres from the gnomon's foot, right
and up, on the dial as it is mounted. Prints one name=value a line:

  lit             yes; night: the Sun would be down; never: no Sun has that declination
  true_hour       true time of the site, hours
  hour_angle, declination, altitude, azimuth
                  of the Sun, degrees; the azimuth from South, West positive; the hour angle negative before noon
  italic, babylonian, temporary
                  hours since sunset, since sunrise, twelfths of the day; none where the Sun doesn't rise or set
  dates           the days of the year on which it falls there, of DATE's year or this one
  mm_per_minute, mm_per_day
                  how fast the shadow moves there, the second on the first of the dates

example:
  ombrelia read --set txtLAT=45.07 --set txtDec=18 --set txtInc=0 --set TxtStilo=0.2 -- -35 -180
)";

constexpr std::string_view SHADOW = R"(usage: ombrelia shadow [options of draw] [--date DATE] --time TIME [--zone ZONE | --utc]
       ombrelia shadow [options of draw] [--date DATE] [--zone ZONE | --utc] --day [--step MINUTES] [--animate] [FILE.svg]

Where the shadow of the gnomon's tip falls, with the Sun of that date. Prints lit, x and y (mm from the foot, right and up, on the
dial as it is mounted), altitude, azimuth, hour_angle, declination (degrees), equation_of_time (minutes, apparent less mean), true_hour.

  --date DATE      year-month-day; today without it
  --time TIME      hours:minutes or hours:minutes:seconds of the zone
  --zone ZONE      hours East of Greenwich, as in +2 or -3:30; without it the clock of --place, with its summer
                   time, or the zone of txtMeridiano, with none
  --utc            the time is universal time
  --day            the whole day as CSV; a FILE.svg behind draws the dial with the path of the shadow
  --step MINUTES   10 without it
  --animate        the shadow moves through the day in FILE.svg

examples:
  ombrelia shadow --project examples/parete_torino.omb --date 2026-06-21 --time 10:40 --zone +2
  ombrelia shadow --project examples/parete_torino.omb --date 2026-06-21 --day --animate giorno.svg > giorno.csv
)";

constexpr std::string_view SUN =
    R"(usage: ombrelia sun --date DATE --time TIME --lat LAT --lon LON --zone ZONE [--angle ANGLE] [--dst]
       ombrelia sun --date DATE --time TIME --place NAME [--country XX] [--clock] [--angle ANGLE]
       ombrelia sun --readings FILE --lat LAT --lon LON

The Sun over a place at a moment: azimuth, altitude, declination, equation of time, noon, sunrise and sunset; and the gnomonic
declination of a wall out of one angle measured on it. The report is in the language of the dictionary in the current folder.

  --date DATE      year-month-day; Julian calendar before 1582-10-15
  --time TIME      hours:minutes or hours:minutes:seconds, UT
  --lat LAT        latitude in decimal degrees, North positive
  --lon LON        longitude in decimal degrees, West positive: East is negative
  --zone ZONE      hours of the zone, West positive: Italy is -1; for noon, sunrise and sunset
  --angle ANGLE    angle measured on the wall, degrees; left out it is 0, and the wall's declination is the Sun's azimuth
  --dst            noon, sunrise and sunset in summer time
  --place NAME     a town in place of --lat, --lon, --zone and --dst: its zone knows the date's summer time (ombrelia place --help)
  --country XX     the town's country, where several have the name
  --clock          the time is what a clock in that town shows, not UT; so in a file of readings too
  --readings FILE  several readings of one wall, one a line: date, time (UT) and angle; # begins a comment. Gives the
                   declination of each, mean, standard deviation and the reading that stands out

examples:
  ombrelia sun --date 2026-06-21 --time 9:40 --lat 45.07 --lon -7.68 --zone -1 --angle -25.4 --dst
  ombrelia sun --date 2026-06-21 --time 11:40 --place Torino --clock --angle -25.4
  printf '%s\n' '2026-06-21 9:40 -25.4' '2026-06-21 10:10 -14.2' '2026-06-21 10:40 0.3' > muro.txt
  ombrelia sun --readings muro.txt --lat 45.07 --lon -7.68
)";

constexpr std::string_view PLACE = R"(usage: ombrelia place NAME [--country XX] [--json]

Towns of that name, one a line, the most populous first: name, country (with the state in the United States), latitude, longitude
and meridian of the zone's standard time in degrees, North and West positive, and the zone.

  NAME             in the town's tongue, Italian, French, English, German or Spanish; capitals and marks don't matter, and
                   "Springfield, MO" or "Torino, IT" names state or country. Where no town has the name, those that begin with it
                   are listed, else those with a word that begins so, else those that differ by one letter
  --country XX     two letters: only towns of that country
  --json           an array of objects: name, country, latitude, longitude, meridian, zone, population

Towns with more than 5,000 people; coordinates, names and populations are GeoNames' (CC BY 4.0). The exit status is 1 when there is none.

A command that takes --place NAME (draw, report, sun ...) needs one town: it is the one that alone has the name, or has ten times the
people of the next namesake; namesakes within a quarter of a degree don't count. Otherwise the towns are listed and the status is 2.

examples:
  ombrelia place torino
  ombrelia draw --place Köln --set txtInc=0 --check chkOreAstronomiche muro.svg
)";

// A row of a table behind a help text.
void riga(std::string &t, std::string_view nome, std::string_view cosa) {
    t.append("  ").append(nome).append(13 - std::min<std::size_t>(nome.size(), 12), ' ').append(cosa).append("\n");
}

void formeDisegno(std::string &t) {
    for (const FormatoDisegno &f : Formati()) riga(t, "." + std::string(f.estensione), f.descrizione);
    t += "\nboxes of --check, and what they draw:\n";
    constexpr std::size_t LARGO = 20;
    for (const app::CasellaSpiegata &c : app::CaselleSpiegate())
        for (const std::string_view cosa : c.significati) {
            const std::string_view nome = cosa == c.significati.front() ? c.nome : std::string_view();
            t.append("  ").append(nome).append(LARGO - nome.size(), ' ').append(cosa).append("\n");
        }
}
void formeMacchina(std::string &t) {
    for (const auto &f : officina::FormatiMacchina()) riga(t, "." + std::string(f.estensione), f.descrizione);
}
void azioniDisegno(std::string &t) {
    for (const FormatoDisegno &f : Formati()) riga(t, f.azione, f.descrizione);
}
void rapporti(std::string &t) {
    t += NomiRapporti() + "\nforms:\n";
    for (const auto &f : reports::FormeRapporto()) riga(t, f.opzione, f.descrizione);
}

// In the order of the overview.
constexpr Sottocomando COMANDI[] = {
    {"gui", "the window, also without any command where there is a display: ombrelia gui [--run] [PROJECT]", GUI, nullptr},
    {"draw", "a dial from fields to files", DRAW, Draw, formeDisegno},
    {"cut", "a dial as paths for a plotter, laser or mill", CUT, Cut, formeMacchina},
    {"solid", "the style, the gnomon's socket and the plate as solids to print or mill", SOLID, Solid},
    {"report", "the numbers of a dial as text, CSV or HTML", REPORT, Report, rapporti},
    {"certify", "holds every drawn line against the shadow: is it true, is any missing, is any too much", CERTIFY, Certify},
    {"read", "what a point of the dial says: hours, dates, the Sun that casts its shadow there", READ, Read},
    {"shadow", "where the shadow falls at a moment, or through a day", SHADOW, Shadow},
    {"place", "towns by name: latitude, longitude, meridian of the zone", PLACE, Place},
    {"sun", "the Sun over a place, and the declination of a wall from one reading or several", SUN, Sun},
    {"batch", "performs an action script: a user's actions, one a line", BATCH, Batch, azioniDisegno},
};

}  // namespace

std::span<const Sottocomando> Sottocomandi() { return COMANDI; }

std::string Aiuto(std::string_view comando) {
    std::string t;
    for (const Sottocomando &c : COMANDI) {
        if (c.nome != comando) continue;
        t = c.aiuto;
        if (c.coda) c.coda(t);
        return t;
    }
    t = GENERALE;
    for (const Sottocomando &c : COMANDI)
        t.append("  ").append(c.nome).append(10 - c.nome.size(), ' ').append(c.che).append("\n");
    return t.append(GENERALE_FINE);
}

}  // namespace ombrelia::cli

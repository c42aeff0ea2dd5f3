// SPDX-License-Identifier: MIT
#include "WordLists.h"

#include <array>

namespace qlm::practice {

using namespace Qt::Literals::StringLiterals;

Words FemaleNames() {
    static constexpr std::array words{
        "Ada"_L1,  "Alba"_L1,   "Bea"_L1,    "Bridget"_L1, "Cora"_L1,   "Daphne"_L1, "Della"_L1,
        "Edie"_L1, "Elsa"_L1,   "Fern"_L1,   "Flora"_L1,   "Greta"_L1,  "Hattie"_L1, "Hazel"_L1,
        "Ida"_L1,  "Imogen"_L1, "Ines"_L1,   "Isla"_L1,    "Ivy"_L1,    "Jolie"_L1,  "Juno"_L1,
        "Kaya"_L1, "Lena"_L1,   "Lila"_L1,   "Lorna"_L1,   "Lottie"_L1, "Mabel"_L1,  "Maeve"_L1,
        "Mara"_L1, "Maren"_L1,  "Mina"_L1,   "Nell"_L1,    "Nora"_L1,   "Odette"_L1, "Olive"_L1,
        "Orla"_L1, "Petra"_L1,  "Phoebe"_L1, "Pia"_L1,     "Quinn"_L1,  "Ramona"_L1, "Rhea"_L1,
        "Rosa"_L1, "Ruby"_L1,   "Sable"_L1,  "Selma"_L1,   "Silvie"_L1, "Tess"_L1,   "Thea"_L1,
        "Una"_L1,  "Vera"_L1,   "Wilma"_L1,  "Willa"_L1,   "Xenia"_L1,  "Yara"_L1,   "Zelda"_L1,
        "Zoe"_L1,
    };
    return words;
}

Words MaleNames() {
    static constexpr std::array words{
        "Abel"_L1,   "Alfie"_L1,   "Amos"_L1,    "Anton"_L1, "Arlo"_L1,   "Barney"_L1, "Basil"_L1,
        "Bruno"_L1,  "Caleb"_L1,   "Casper"_L1,  "Clem"_L1,  "Cyrus"_L1,  "Dexter"_L1, "Dorian"_L1,
        "Edgar"_L1,  "Elias"_L1,   "Emil"_L1,    "Ezra"_L1,  "Felix"_L1,  "Finn"_L1,   "Floyd"_L1,
        "Gideon"_L1, "Gus"_L1,     "Harvey"_L1,  "Hugo"_L1,  "Ivan"_L1,   "Jasper"_L1, "Joel"_L1,
        "Jonas"_L1,  "Kit"_L1,     "Lars"_L1,    "Leon"_L1,  "Linus"_L1,  "Lorenz"_L1, "Marlon"_L1,
        "Miles"_L1,  "Milo"_L1,    "Moses"_L1,   "Ned"_L1,   "Nico"_L1,   "Orson"_L1,  "Oscar"_L1,
        "Otis"_L1,   "Otto"_L1,    "Percy"_L1,   "Piet"_L1,  "Ravi"_L1,   "Remy"_L1,   "Rufus"_L1,
        "Sami"_L1,   "Silas"_L1,   "Stellan"_L1, "Theo"_L1,  "Tobias"_L1, "Ulf"_L1,    "Victor"_L1,
        "Walt"_L1,   "Wendell"_L1, "Yusuf"_L1,   "Zane"_L1,
    };
    return words;
}

Words Surnames() {
    static constexpr std::array words{
        "Abbeylark"_L1,    "Amberson"_L1,    "Applegarth"_L1,   "Ashdown"_L1,          "Bellweather"_L1,
        "Birchall"_L1,     "Blackthorn"_L1,  "Bramley"_L1,      "Brindle"_L1,          "Calloway"_L1,
        "Candlewick"_L1,   "Carrow"_L1,      "Cinderby"_L1,     "Copperfield-Wray"_L1, "Crowfoot"_L1,
        "Dandridge"_L1,    "Dewhurst"_L1,    "Driftwood"_L1,    "Dunmore"_L1,          "Elderfen"_L1,
        "Everhart"_L1,     "Fairweather"_L1, "Fennimore"_L1,    "Foxglove"_L1,         "Gallowglass"_L1,
        "Garrick"_L1,      "Goldfinch"_L1,   "Greenhalgh"_L1,   "Hartwell"_L1,         "Hawksmoor"_L1,
        "Holloway"_L1,     "Inkwell"_L1,     "Ironside"_L1,     "Juniper"_L1,          "Kestrel"_L1,
        "Kingfisher"_L1,   "Lanternby"_L1,   "Larkspur"_L1,     "Longacre"_L1,         "Lovelock"_L1,
        "Marigold"_L1,     "Marsden"_L1,     "Merriweather"_L1, "Mossgrove"_L1,        "Nightjar"_L1,
        "Northcote"_L1,    "O'Dell"_L1,      "O'Marrow"_L1,     "Oakenfold"_L1,        "Pemberly"_L1,
        "Pennywhistle"_L1, "Plumtree"_L1,    "Quill"_L1,        "Quickfall"_L1,        "Ravenhurst"_L1,
        "Redfern"_L1,      "Rookwood"_L1,    "Rosethorn"_L1,    "Saltmarsh"_L1,        "Sandpiper"_L1,
        "Silverlock"_L1,   "Starling"_L1,    "Stonebridge"_L1,  "Summerly"_L1,         "Swiftwater"_L1,
        "Tanglewood"_L1,   "Thistledown"_L1, "Thornbury"_L1,    "Underhill"_L1,        "Valewright"_L1,
        "Wainscott"_L1,    "Waverly"_L1,     "Whistler"_L1,     "Wildgoose"_L1,        "Winterbourne"_L1,
        "Wolfram"_L1,      "Woodruff"_L1,    "Wrenfield"_L1,    "Yarrow"_L1,           "Yellowley"_L1,
    };
    return words;
}

Words BandFirstWords() {
    static constexpr std::array words{
        "Paper"_L1,       "Velvet"_L1,      "Hollow"_L1,    "Electric"_L1, "Silver"_L1,       "Midnight"_L1,
        "Cardboard"_L1,   "Static"_L1,      "Lonely"_L1,    "Neon"_L1,     "Broken"_L1,       "Distant"_L1,
        "Copper"_L1,      "Wooden"_L1,      "Sleepy"_L1,    "Crooked"_L1,  "Salt &"_L1,       "Honey &"_L1,
        "Thunder"_L1,     "Second Hand"_L1, "The Quiet"_L1, "The Late"_L1, "The Borrowed"_L1, "The Tiny"_L1,
        "My Cousin's"_L1, "Sunday"_L1,
    };
    return words;
}

Words BandSecondWords() {
    static constexpr std::array words{
        "Lanterns"_L1, "Foxes"_L1,     "Telephones"_L1, "Harbour"_L1,  "Cinders"_L1,  "Orchestra"_L1,
        "Wolves"_L1,   "Umbrellas"_L1, "Satellites"_L1, "Parade"_L1,   "Kitchens"_L1, "Bicycles"_L1,
        "Choir"_L1,    "Machines"_L1,  "Islands"_L1,    "Sparrows"_L1, "Avenue"_L1,   "Postcards"_L1,
        "Tigers"_L1,   "Weather"_L1,   "Engines"_L1,    "Holidays"_L1, "Rooftops"_L1, "Trombones"_L1,
        "Ghosts"_L1,   "Carnival"_L1,
    };
    return words;
}

Words FilmFirstWords() {
    static constexpr std::array words{
        "The Last"_L1,      "A Summer in"_L1,       "Return to"_L1,
        "Waiting for"_L1,   "Letters from"_L1,      "Nine Days in"_L1,
        "The Keeper of"_L1, "Goodbye"_L1,           "Under"_L1,
        "Beyond"_L1,        "The Road to"_L1,       "Winter at"_L1,
        "One Night in"_L1,  "The Clockmaker of"_L1,
    };
    return words;
}

Words FilmSecondWords() {
    static constexpr std::array words{
        "Harrow Street"_L1,  "Lake Orrin"_L1,   "the Lighthouse"_L1, "Pepper Island"_L1, "the Marshes"_L1,
        "Tin Town"_L1,       "Station Nine"_L1, "the Orchard"_L1,    "Blue Hollow"_L1,   "Cape Merrow"_L1,
        "the Paper Moon"_L1, "Willow Bay"_L1,   "the Quarry"_L1,     "Sparrow Hill"_L1,
    };
    return words;
}

Words Genres() {
    static constexpr std::array words{
        "Indie"_L1,   "Folk"_L1,    "Electronica"_L1, "Post-Rock"_L1, "Soul"_L1,     "Garage Rock"_L1,
        "Hip Hop"_L1, "Ambient"_L1, "Jazz"_L1,        "Punk"_L1,      "Acoustic"_L1, "Ska"_L1,
        "Blues"_L1,   "Metal"_L1,   "Surf"_L1,        "Dub"_L1,
    };
    return words;
}

Words Headlines() {
    static constexpr std::array words{
        "keep it simple"_L1,
        "somewhere between here and there"_L1,
        "coffee first, questions later"_L1,
        "made of rain and old records"_L1,
        "be kind to strangers"_L1,
        "still learning the banjo"_L1,
        "collecting postcards & stamps"_L1,
        "the sea, the sea"_L1,
        "gone fishing (not really)"_L1,
        "half past seven and all is well"_L1,
        "say hello, I don't bite"_L1,
        "small towns, big skies"_L1,
        "bicycles over cars"_L1,
        "looking for the good biscuits"_L1,
        "on the road again"_L1,
        "just one more chapter"_L1,
        "sunshine <3"_L1,
        "dancing in the kitchen"_L1,
    };
    return words;
}

Words BandHeadlines() {
    static constexpr std::array words{
        "new songs up now"_L1,        "on tour this autumn"_L1,
        "recording in the garage"_L1, "first record out soon"_L1,
        "loud, but polite"_L1,        "looking for a drummer"_L1,
        "playing near you"_L1,        "hear us before your neighbours do"_L1,
        "four friends and a van"_L1,  "all songs home made"_L1,
    };
    return words;
}

Words Moods() {
    static constexpr std::array words{
        "happy"_L1,      "cheerful"_L1, "sleepy"_L1,   "hungry"_L1,  "hopeful"_L1, "calm"_L1,       "busy"_L1,
        "thoughtful"_L1, "silly"_L1,    "inspired"_L1, "curious"_L1, "relaxed"_L1, "determined"_L1,
    };
    return words;
}

Words Interests() {
    static constexpr std::array words{
        "long walks with the dog"_L1,
        "old cameras"_L1,
        "baking bread"_L1,
        "five-a-side football"_L1,
        "crossword puzzles"_L1,
        "swimming in lakes"_L1,
        "vinyl from the flea market"_L1,
        "gardening on a balcony"_L1,
        "science fiction paperbacks"_L1,
        "chess in the park"_L1,
        "kite flying"_L1,
        "pottery"_L1,
        "star gazing"_L1,
        "repairing radios"_L1,
        "cheese"_L1,
        "campfire guitar"_L1,
        "road trips"_L1,
        "knitting hats for friends"_L1,
        "board games"_L1,
        "bird watching"_L1,
        "second hand books"_L1,
        "skateboards"_L1,
    };
    return words;
}

Words CaptchaWords() {
    static constexpr std::array words{
        "amber"_L1,   "anchor"_L1,  "apricot"_L1, "badger"_L1,  "bamboo"_L1, "basket"_L1, "beacon"_L1,
        "biscuit"_L1, "bramble"_L1, "candle"_L1,  "carpet"_L1,  "castle"_L1, "cherry"_L1, "copper"_L1,
        "cotton"_L1,  "dragon"_L1,  "falcon"_L1,  "feather"_L1, "forest"_L1, "garden"_L1, "ginger"_L1,
        "hammer"_L1,  "harbor"_L1,  "island"_L1,  "jacket"_L1,  "kettle"_L1, "ladder"_L1, "lantern"_L1,
        "lemon"_L1,   "magnet"_L1,  "marble"_L1,  "meadow"_L1,  "mirror"_L1, "orchid"_L1, "oyster"_L1,
        "paddle"_L1,  "parrot"_L1,  "pebble"_L1,  "pepper"_L1,  "planet"_L1, "pocket"_L1, "puzzle"_L1,
        "rabbit"_L1,  "ribbon"_L1,  "rocket"_L1,  "saddle"_L1,  "salmon"_L1, "shadow"_L1, "silver"_L1,
        "spider"_L1,  "summer"_L1,  "thunder"_L1, "timber"_L1,  "tunnel"_L1, "turtle"_L1, "velvet"_L1,
        "walnut"_L1,  "window"_L1,  "winter"_L1,
    };
    return words;
}

std::span<const Place> Places() {
    static constexpr std::array places{
        Place{"Springfield"_L1, "Ohio"_L1, "United States"_L1},
        Place{"Marlow Falls"_L1, "Ohio"_L1, "United States"_L1},
        Place{"Cedar Bend"_L1, "Texas"_L1, "United States"_L1},
        Place{"Port Larkin"_L1, "Texas"_L1, "United States"_L1},
        Place{"San Morado"_L1, "California"_L1, "United States"_L1},
        Place{"Bellwood"_L1, "California"_L1, "United States"_L1},
        Place{"Orchard Bay"_L1, "California"_L1, "United States"_L1},
        Place{"Fairhaven"_L1, "Washington"_L1, "United States"_L1},
        Place{"Pine Hollow"_L1, "Oregon"_L1, "United States"_L1},
        Place{"Little Elk"_L1, "Montana"_L1, "United States"_L1},
        Place{"Harrowgate"_L1, "New York"_L1, "United States"_L1},
        Place{"Eastmere"_L1, "New York"_L1, "United States"_L1},
        Place{"Sandpoint Beach"_L1, "Florida"_L1, "United States"_L1},
        Place{"Coral Key"_L1, "Florida"_L1, "United States"_L1},
        Place{"Willowbrook"_L1, "Illinois"_L1, "United States"_L1},
        Place{"Lakeview Park"_L1, "Illinois"_L1, "United States"_L1},
        Place{"Stonebridge"_L1, "Georgia"_L1, "United States"_L1},
        Place{"Maple Ridge"_L1, "Ontario"_L1, "Canada"_L1},
        Place{"Saint-Aubin"_L1, "Quebec"_L1, "Canada"_L1},
        Place{"Kingsferry"_L1, "London and South East"_L1, "United Kingdom"_L1},
        Place{"Thornley"_L1, "Northwest"_L1, "United Kingdom"_L1},
        Place{"Dunmarrow"_L1, "Scotland"_L1, "United Kingdom"_L1},
        Place{"Abermoor"_L1, "Wales"_L1, "United Kingdom"_L1},
        Place{"Ballyfern"_L1, "Dublin"_L1, "Ireland"_L1},
        Place{"Coolabah"_L1, "New South Wales"_L1, "Australia"_L1},
        Place{"Redgum"_L1, "Victoria"_L1, "Australia"_L1},
        Place{"Tuiwood"_L1, "Auckland"_L1, "New Zealand"_L1},
        Place{"Lindenau"_L1, "Berlin"_L1, "Germany"_L1},
        Place{"Vestby Havn"_L1, "Copenhagen"_L1, "Denmark"_L1},
        Place{"Solvika"_L1, "Oslo"_L1, "Norway"_L1},
    };
    return places;
}

} // namespace qlm::practice

#include "terminal/terminal_texts.h"

#include <array>

namespace {

constexpr std::string_view Welcome =
    "Vítejte v palubním terminálu lodě Alcaster. Tento terminál vám poskytuje přístup k veřejným datům lodě a k jejím "
    "operačním systémům. Každý uživatel má své logovací jméno, podle kterého hlavní počítač stanoví jeho přístupová práva; "
    "cizí jméno prosím nepoužívejte a své nikomu nesdělujte. Práci s terminálem kdykoli ukončíte příkazem [Exit]. Tento "
    "terminál má sériové číslo ";
constexpr std::string_view Farewell = ". Přeji hezký den.";

constexpr auto Folders = std::to_array<std::string_view>({
    "SLOŽKA 1: Ve vesmíru bylo objeveno mnoho materiálů, které se nevyskytují ve Sluneční soustavě. Lumelit svítí sto let po "
    "vytěžení a značí se jím nouzové východy. Z feridu se dělají lana jeřábů a v lepších domácnostech i příbory. "
    "Nejvzácnější je však rezonit, krystal nacházený na měsících bez ovzduší. Zasáhne-li jej iontový impuls, rozezní se a "
    "svůj tón vnutí každému tuhému tělesu, ke kterému je připevněn, dokud se toto těleso nerozpadne na prach. Sám krystal "
    "přitom zůstane bez vady a na první impuls vydrží čekat věky. Zbraň založená na tomto jevu, takzvaná seismická bomba, "
    "existuje pouze v teorii. Podle výpočtů by účinkovala, jen kdyby ji někdo pevně upnul k nejtužší části stavby, a čím by "
    "stavba byla větší a tužší, tím hůř by dopadla. Ve vakuu, kde by se ničeho nedotýkala, by byla neškodná a otřásla by "
    "leda sebou. Natažená roznětka by se už nedala odjistit. Žádná armáda takovou zbraň nevlastní, což všechny armády "
    "opakovaně potvrdily.",

    "SLOŽKA 2: Tato složka byla vybrána ze záznamů knihy „Třikrát o hranici“ od Irmy Daskal. S Iškary se lidé setkali na "
    "okraji osídlených světů a jedenáct let je pokládali za přírodní úkaz. O jejich vzhledu víme jen z doslechu: jedni "
    "svědkové uvádějí čtyři končetiny, druzí šest a třetí odmítli vypovídat. O hranici jsme s nimi vedli tři války, z nichž "
    "každou zahájilo nedorozumění a každou ukončilo vyčerpání. V té třetí zmizela u Kassary celá stanice a obě strany shodně "
    "popřely, že by k něčemu takovému měly prostředky. Nevyšetřovalo se, nebylo co ohledávat, a jména posádky nikdo "
    "nevyhlásil. Příměří trvá již čtrnáct let. Mezi oběma říšemi leží pásmo klidu a v jeho středu postavily obě strany "
    "společně stanici Meridián, každá svou polovinu podle svých norem, takže uprostřed nenavazují podlahy ani hodiny. Kniha "
    "končí větou: „Čtvrtá válka by potřebovala jedinou loď ztracenou na pravém místě.“",

    "SLOŽKA 3: Člověk se dostal za hranice Sluneční soustavy. Umožnily mu to objevy dvou vědců. Jonas Orbeth zjistil, jak "
    "kolem tělesa přehnout cestu prostorem, Valen Tiroš přišel na to, čím takový přehyb napájet, a sestrojil jádro, jaké má "
    "dnes každá větší loď. Jeden bez druhého by neuspěl, přesto se nemohli vystát a setkali se celkem dvakrát, z toho jednou "
    "omylem. Jejich dopisy, pokud jsou slušné, vydala akademie; je to útlý svazek. Vedlejším výsledkem Tirošovy práce je "
    "nákladní teleport. Přenáší výhradně neživé věci, a to vždy jedním směrem: odhodí je na pevně danou vzdálenost od lodi, "
    "do volného prostoru. Lodě jej využívají hlavně k odklízení odpadu a k vypouštění bójí, výjimečně i zavazadel. Orbeth "
    "jej nazval drahým košem, což Tiroš považoval za uznání. Živého tvora teleport přenést nedokáže a pokusy v tomto směru "
    "byly zakázány dříve, než se stačily zdařit. Orbethovo jméno dnes nese měsíc, na kterém nikdy nebyl, Tirošovo značka "
    "polévky.",

    "SLOŽKA 4: Vesmírné lodě dnešní doby využívají kvůli bezpečnosti ty nejdokonalejší technologie. Dveře společných prostor "
    "jsou samočinné, ostatní chrání zámky a číselníky. Teplotu v místnostech sledují tepelné snímače. Jádro je zavěšeno v "
    "jediném tuhém loži, takže jím nemůže nic otřást. Hangár je od prázdna oddělen ocelovou branou, odolnou i proti ohni. "
    "Vstup do strojovny hlídají stráže a povoluje jej pouze pověření. K naléhavým případům slouží nouzové volání po "
    "terminálech: volání na můstek má přednost a i kapitán je musí uposlechnout, jakmile na můstku svítí závada, třeba "
    "otevřený panel u jádra; jinak je smí pokládat za omyl. Nehoda je tak prakticky vyloučena; ty, co se přesto staly, se "
    "nepočítají.",

    "SLOŽKA 5: Programovatelné obvody se dělí na mnoho typů. Liší se rychlostí, trvanlivostí a cenou, přičemž při nákupu "
    "rozhoduje zpravidla ta poslední. Nalezneme je ve strojích, ve dveřích i v číselnících, zkrátka všude tam, kde by se "
    "dříve spokojili s pákou. Programují se z operačního terminálu, který se k obvodu připojí datovým kabelem. Operační "
    "terminál sám však zapisuje naslepo: aby bylo vidět, co je v paměti uloženo, musí se k němu připojit ještě měřicí "
    "přístroj. Takové přístroje jsou tři a nelze je zaměňovat. Pro trvalé paměti je určena hrotová sonda, která se přikládá "
    "na obnažený obvod. Pro paměti pod proudem je určen prstencový měřič, který se navléká na přívod. Pro uzavřené obvody "
    "zámků a číselníků je určena pistolová zkoušečka, která přečte paměť přes kryt a nic přitom nepoškodí. Měřicí přístroje "
    "má v úschově sklad každé lodi a vydá je na záruku tomu, kdo si o ně řekne pravým jménem. Žadatelé o „tu věc s jehlou“ "
    "odcházejí s prázdnou.",
});

}  // namespace

std::string Banner(std::string_view serialNumber) {
    return std::string(Welcome).append(serialNumber).append(Farewell);
}

std::span<const std::string_view> ArchiveFolders() {
    return Folders;
}

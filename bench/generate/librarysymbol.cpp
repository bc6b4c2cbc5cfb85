// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "bench/generate/librarysymbol.h"

#include <array>

namespace bench {

namespace {

constexpr Length mil50 = 1270_um;
constexpr Length mil100 = 2540_um;
constexpr Length mil150 = 3810_um;
constexpr Length mil300 = 7620_um;

constexpr std::array capacitorLower{Point{-2032_um, -762_um}, Point{2032_um, -762_um}};
constexpr std::array capacitorUpper{Point{-2032_um, 762_um}, Point{2032_um, 762_um}};
constexpr std::array capacitorShapes{LibraryShape{capacitorUpper, 508_um},
                                     LibraryShape{capacitorLower, 508_um}};

constexpr std::array diodeBar{Point{-mil50, mil50}, Point{-mil50, -mil50}};
constexpr std::array diodeLine{Point{mil50, 0_um}, Point{-mil50, 0_um}};
constexpr std::array diodeArrow{Point{mil50, mil50}, Point{mil50, -mil50}, Point{-mil50, 0_um},
                                Point{mil50, mil50}};
constexpr std::array diodeShapes{LibraryShape{diodeBar, 254_um}, LibraryShape{diodeArrow, 254_um},
                                 LibraryShape{diodeLine, 0_um}};

constexpr std::array inductorBody{Point{-1016_um, 2540_um}, Point{1016_um, 1270_um}, Point{-1016_um, 0_um},
                                  Point{1016_um, -1270_um}, Point{-1016_um, -2540_um}};
constexpr std::array inductorShapes{LibraryShape{inductorBody, 0_um}};

constexpr std::array resistorBody{Point{-1016_um, -2540_um}, Point{1016_um, 2540_um}};
constexpr std::array resistorShapes{LibraryShape{resistorBody, 254_um, "none", true}};

constexpr std::array connectorBody{Point{-mil50, 3810_um}, Point{mil50, -6350_um}};
constexpr std::array connectorTop{Point{-mil50, 2667_um}, Point{0_um, 2413_um}};
constexpr std::array connectorShapes{LibraryShape{connectorBody, 254_um, "background", true},
                                     LibraryShape{connectorTop, 152_um, "none", true}};

constexpr std::array opAmpBody{Point{-5080_um, 5080_um}, Point{5080_um, 0_um}, Point{-5080_um, -5080_um},
                               Point{-5080_um, 5080_um}};
constexpr std::array opAmpShapes{LibraryShape{opAmpBody, 254_um, "background"}};

constexpr std::array interfaceBody{Point{-mil300, mil300}, Point{mil300, -mil300}};
constexpr std::array interfaceShapes{LibraryShape{interfaceBody, 254_um, "background", true}};

constexpr std::array motorBody{Point{-mil100, mil100}, Point{mil100, -mil100}};
constexpr std::array motorMark{Point{-mil50, -mil50}, Point{-mil50, mil50}, Point{0_um, 0_um},
                               Point{mil50, mil50}, Point{mil50, -mil50}};
constexpr std::array motorShapes{LibraryShape{motorBody, 254_um, "none", true},
                                 LibraryShape{motorMark, 0_um}};

constexpr std::array transistorBase{Point{635_um, 1905_um}, Point{635_um, -1905_um}};
constexpr std::array transistorUpper{Point{635_um, 635_um}, Point{2540_um, 2540_um}};
constexpr std::array transistorLower{Point{635_um, -635_um}, Point{2540_um, -2540_um}};
constexpr std::array transistorShapes{LibraryShape{transistorBase, 508_um},
                                      LibraryShape{transistorUpper, 0_um},
                                      LibraryShape{transistorLower, 0_um}};

constexpr std::array supplyLeft{Point{-762_um, mil50}, Point{0_um, mil100}};
constexpr std::array supplyRight{Point{0_um, mil100}, Point{762_um, mil50}};
constexpr std::array supplyLine{Point{0_um, 0_um}, Point{0_um, mil100}};
constexpr std::array supplyShapes{LibraryShape{supplyLeft, 0_um}, LibraryShape{supplyRight, 0_um},
                                  LibraryShape{supplyLine, 0_um}};

constexpr std::array groundBody{Point{0_um, 0_um},    Point{0_um, -mil50},   Point{mil50, -mil50},
                                Point{0_um, -mil100}, Point{-mil50, -mil50}, Point{0_um, -mil50}};
constexpr std::array groundShapes{LibraryShape{groundBody, 0_um}};

constexpr std::array verticalPins{LibraryPin{1, "passive", "~", "1", {0_um, mil150}, 270, mil50},
                                  LibraryPin{1, "passive", "~", "2", {0_um, -mil150}, 90, mil50}};
constexpr std::array diodePins{LibraryPin{1, "passive", "K", "1", {-mil150, 0_um}, 0, mil100},
                               LibraryPin{1, "passive", "A", "2", {mil150, 0_um}, 180, mil100}};
constexpr std::array connectorPins{LibraryPin{1, "passive", "Pin_1", "1", {-5080_um, 2540_um}, 0, mil150},
                                   LibraryPin{1, "passive", "Pin_2", "2", {-5080_um, 0_um}, 0, mil150},
                                   LibraryPin{1, "passive", "Pin_3", "3", {-5080_um, -2540_um}, 0, mil150},
                                   LibraryPin{1, "passive", "Pin_4", "4", {-5080_um, -5080_um}, 0, mil150}};
constexpr std::array opAmpPins{LibraryPin{1, "output", "~", "1", {mil300, 0_um}, 180, mil100},
                               LibraryPin{1, "input", "-", "2", {-mil300, -mil100}, 0, mil100},
                               LibraryPin{1, "input", "+", "3", {-mil300, mil100}, 0, mil100},
                               LibraryPin{2, "input", "+", "5", {-mil300, mil100}, 0, mil100},
                               LibraryPin{2, "input", "-", "6", {-mil300, -mil100}, 0, mil100},
                               LibraryPin{2, "output", "~", "7", {mil300, 0_um}, 180, mil100},
                               LibraryPin{3, "power_in", "V-", "4", {-mil100, -mil300}, 90, mil150},
                               LibraryPin{3, "power_in", "V+", "8", {-mil100, mil300}, 270, mil150}};
constexpr std::array interfacePins{
    LibraryPin{1, "input", "D", "1", {-10160_um, 2540_um}, 0, mil100},
    LibraryPin{1, "power_in", "GND", "2", {0_um, -10160_um}, 90, mil100},
    LibraryPin{1, "power_in", "VCC", "3", {0_um, 10160_um}, 270, mil100},
    LibraryPin{1, "output", "R", "4", {-10160_um, 5080_um}, 0, mil100},
    LibraryPin{1, "output", "Vref", "5", {-10160_um, -2540_um}, 0, mil100},
    LibraryPin{1, "bidirectional", "CANL", "6", {10160_um, -2540_um}, 180, mil100},
    LibraryPin{1, "bidirectional", "CANH", "7", {10160_um, 0_um}, 180, mil100},
    LibraryPin{1, "input", "Rs", "8", {-10160_um, -5080_um}, 0, mil100}};
constexpr std::array transistorPins{LibraryPin{1, "input", "B", "1", {-5080_um, 0_um}, 0, 5715_um},
                                    LibraryPin{1, "passive", "E", "2", {mil100, -5080_um}, 90, mil100},
                                    LibraryPin{1, "passive", "C", "3", {mil100, 5080_um}, 270, mil100}};
constexpr std::array supplyPins{LibraryPin{1, "power_in", "~", "1", {0_um, 0_um}, 90, 0_um}};
constexpr std::array groundPins{LibraryPin{1, "power_in", "~", "1", {0_um, 0_um}, 270, 0_um}};

constexpr std::array symbols{
    LibrarySymbol{"Amplifier_Operational", "LM358", "U", "Low-power, dual operational amplifiers",
                  "dual opamp", "SOIC*3.9x4.9mm*P1.27mm* DIP*W7.62mm*", opAmpShapes, opAmpPins, 3, false,
                  false},
    LibrarySymbol{"Connector_Generic", "Conn_01x04", "J", "Generic connector, single row, 01x04", "connector",
                  "Connector*:*_1x??_*", connectorShapes, connectorPins, 1, false, false},
    LibrarySymbol{"Device", "C", "C", "Unpolarized capacitor", "cap capacitor", "C_*", capacitorShapes,
                  verticalPins},
    LibrarySymbol{"Device", "D", "D", "Diode", "diode", "TO-???* *_Diode_* D_*", diodeShapes, diodePins},
    LibrarySymbol{"Device", "L", "L", "Inductor", "inductor choke coil", "Choke_* L_*", inductorShapes,
                  verticalPins},
    LibrarySymbol{"Device", "R", "R", "Resistor", "R res resistor", "R_*", resistorShapes, verticalPins},
    LibrarySymbol{"Interface_CAN_LIN", "SN65HVD230", "U", "CAN bus transceiver, 3.3V, 1Mbps, SOIC-8",
                  "can transceiver", "SOIC*3.9x4.9mm*P1.27mm*", interfaceShapes, interfacePins, 1, false,
                  false},
    LibrarySymbol{"Motor", "Motor_DC", "M", "DC motor", "DC motor", "PinHeader*P2.54mm* TerminalBlock*",
                  motorShapes, verticalPins},
    LibrarySymbol{"Transistor_BJT", "MMBT3904", "Q", "0.2A Ic, 40V Vce, small signal NPN transistor, SOT-23",
                  "NPN transistor", "SOT?23*", transistorShapes, transistorPins},
    LibrarySymbol{"power", "+3V3", "#PWR", "Power symbol creates a global label with name \\\"+3V3\\\"",
                  "global power", "", supplyShapes, supplyPins, 1, true},
    LibrarySymbol{"power", "GND", "#PWR",
                  "Power symbol creates a global label with name \\\"GND\\\" , ground", "global power", "",
                  groundShapes, groundPins, 1, true}};

} // namespace

std::span<const LibrarySymbol> librarySymbols()
{
    return symbols;
}

const LibrarySymbol &librarySymbol(Kind kind)
{
    return symbols[static_cast<std::size_t>(kind)];
}

} // namespace bench

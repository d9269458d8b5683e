// SPDX-License-Identifier: MIT
package mero.rain;

import static org.junit.jupiter.api.Assertions.assertEquals;

import java.math.BigDecimal;
import java.util.stream.IntStream;
import org.junit.jupiter.api.Test;

class DemoValuesTest {
    private static void assertIntensity(String expected, int station, int duration_min, double periodicity) {
        assertEquals(new BigDecimal(expected), DemoValues.intensity(station, duration_min, periodicity));
    }

    @Test
    void followsTheFormula() {
        // 142 * 38 / 24 * (1 - 0.369) = 141.869...
        assertIntensity("141.9", 84, 15, 1);
        // 142 * 38 / 24 * (2^(1/4) - 0.369) = 224.833... * (1.189207... - 0.369) = 184.409...
        assertIntensity("184.4", 84, 15, 0.5);
        // 100.5 * 38 / 129 * (25^(1/4) - 0.369) = 29.6046... * 1.867067... = 55.273...
        assertIntensity("55.3", 1, 120, 0.04);
    }

    @Test
    void roundsHalvesUp() {
        // 125 * 38 / 19 * (1 - 0.369) = 157.75 exactly
        assertIntensity("157.8", 50, 10, 1);
    }

    @Test
    void twelveStationsHaveTheFallbackColumn() {
        assertEquals(12, IntStream.rangeClosed(1, 92).filter(DemoValues::hasColumn004).count());
        assertEquals("004", DemoValues.of(new Station(58, "Police nad Metují", 3)).lastColumn());
        assertEquals("005", DemoValues.of(new Station(4, "Brno", 84)).lastColumn());
    }
}

// SPDX-License-Identifier: MIT
package mero.rain;

import java.math.BigDecimal;
import java.math.MathContext;
import java.math.RoundingMode;
import java.util.ArrayList;
import java.util.List;
import java.util.Map;

/**
 * Computes demonstration intensities, which are no measurements.
 *
 * <p>i(t, p) = r * 38 / (t + 9) * (p^(-1/4) - 0.369) in l/s.ha, Reinhold's time coefficients: t the duration in
 * minutes, p the periodicity per year, r the rain of 15 minutes and periodicity 1. So that stations differ,
 * r = 100 + number / 2. The values are rounded to one decimal.
 */
final class DemoValues {
    private static final Map<String, Double> PERIODICITY =
            Map.of("5", 5.0, "2", 2.0, "1", 1.0, "05", 0.5, "02", 0.2, "01", 0.1, "005", 0.05, "004", 0.04);

    private static final MathContext TWELVE_DIGITS = new MathContext(12);

    private DemoValues() {}

    static RainTable of(Station station) {
        String last_column = hasColumn004(station.number()) ? "004" : "005";
        List<List<BigDecimal>> rows = new ArrayList<>();
        for (int duration_min : RainTable.DURATIONS_MIN) {
            List<BigDecimal> row = new ArrayList<>();
            for (String column : RainTable.COMMON_COLUMNS) {
                row.add(intensity(station.number(), duration_min, PERIODICITY.get(column)));
            }
            row.add(intensity(station.number(), duration_min, PERIODICITY.get(last_column)));
            rows.add(row);
        }
        return new RainTable(last_column, rows);
    }

    /** Every eighth number, 12 of the 92 stations, has the column that the program falls back to. */
    static boolean hasColumn004(int station_number) {
        return station_number % 8 == 3;
    }

    static BigDecimal intensity(int station_number, int duration_min, double periodicity) {
        double rain = 100.0 + station_number / 2.0;
        double value = rain * 38.0 / (duration_min + 9.0) * (Math.pow(periodicity, -0.25) - 0.369);
        // Periodicity 1 gives exact halves of a tenth. Rounding to twelve digits first removes the error of the double.
        return BigDecimal.valueOf(value).round(TWELVE_DIGITS).setScale(1, RoundingMode.HALF_UP);
    }
}

# SPDX-License-Identifier: MIT
"""The schema of project files: it is a valid schema, takes the examples, and refuses what the reader refuses.

Use: schema_check.py SCHEMA EXAMPLES_FOLDER. Exit status 77 (skipped) without python3-jsonschema.
"""

import copy
import json
import sys
from pathlib import Path

try:
    from jsonschema import Draft202012Validator
except ImportError:
    print("python3-jsonschema is not installed")
    sys.exit(77)


def broken(project: dict) -> list[tuple[str, dict]]:
    """Projects with one mistake each, made from a shaft project."""
    mistakes = []

    def add(name: str, change) -> None:
        wrong = copy.deepcopy(project)
        change(wrong)
        mistakes.append((name, wrong))

    add("no facility", lambda p: p.pop("facility"))
    add("unknown name", lambda p: p["facility"].update(width=1))
    add("text for a number", lambda p: p["subsoil"].update(filtration_coefficient_m_s="1e-4"))
    add("unknown periodicity", lambda p: p["rain"].update(periodicity=0.3))
    add("station and own values", lambda p: p["rain"].update(intensities_l_s_ha=[1] * 9))
    add("eight intensities", lambda p: p.update(rain={"periodicity": 1, "intensities_l_s_ha": [1] * 8}))
    add("area of 0", lambda p: p["areas"][0].update(area_m2=0))
    add("two lines in a name", lambda p: p["project"].update(name="a\nb"))
    add("dimensions beside a ring", lambda p: p["facility"].update(inner_diameter_m=1))
    add("no dimensions", lambda p: p["facility"].pop("catalogue_shaft"))
    add("no sand layer", lambda p: p["facility"].pop("sand_layer_m"))
    add("half a shaft", lambda p: p["facility"].update(shaft_count=1.5))
    return mistakes


def main() -> int:
    schema = json.loads(Path(sys.argv[1]).read_text(encoding="utf-8"))
    Draft202012Validator.check_schema(schema)
    validator = Draft202012Validator(schema)
    failures = []
    examples = sorted(Path(sys.argv[2]).glob("*.json"))
    for example in examples:
        document = json.loads(example.read_text(encoding="utf-8"))
        failures += [f"{example.name}: {error.json_path}: {error.message}" for error in validator.iter_errors(document)]
    shaft = json.loads((Path(sys.argv[2]) / "sachta.json").read_text(encoding="utf-8"))
    failures += [f"not refused: {name}" for name, wrong in broken(shaft) if validator.is_valid(wrong)]
    print("\n".join(failures) or f"{len(examples)} examples fit the schema")
    return 1 if failures or len(examples) < 6 else 0


if __name__ == "__main__":
    sys.exit(main())

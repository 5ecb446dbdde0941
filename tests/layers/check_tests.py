# SPDX-License-Identifier: MIT
"""Every test that ctest knows has its home and its working folder in the build folder: it touches neither the home of whoever
runs it nor the checkout.

    check_tests.py CTEST BUILD_FOLDER"""
import json
import subprocess
import sys

OWN = ("HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR")
ctest, build = sys.argv[1:]
told = subprocess.run([ctest, "--test-dir", build, "--show-only=json-v1"], stdout=subprocess.PIPE, check=True).stdout
tests = json.loads(told)["tests"]
faults = []
for test in tests:
    properties = {row["name"]: row["value"] for row in test.get("properties", [])}
    environment = dict(row.split("=", 1) for row in properties.get("ENVIRONMENT", []))
    places = {name: environment.get(name, "") for name in OWN}
    places["working folder"] = properties.get("WORKING_DIRECTORY", "")
    faults += ["%s: %s is %s" % (test["name"], name, place or "not set")
               for name, place in places.items() if not place.startswith(build + "/")]
print("\n".join(faults))
print("%d tests, %d faults" % (len(tests), len(faults)))
sys.exit(bool(faults) or not tests)

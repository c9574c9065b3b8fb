# Reads a DXF file with ezdxf, runs its audit, and counts the entities by type and layer.
# Exit status: 0 when the file reads, has no audit error and holds the expected families;
# 1 otherwise; 77 when ezdxf is missing (the test is then skipped).
import collections
import sys

try:
    import ezdxf
except ImportError:
    print("ezdxf manque (paquet Debian python3-ezdxf) : vérification sautée")
    sys.exit(77)

doc = ezdxf.readfile(sys.argv[1])
auditeur = doc.audit()
comptes = collections.Counter((e.dxftype(), e.dxf.layer) for e in doc.modelspace())
for (genre, plan), n in sorted(comptes.items()):
    print(f"{genre} {plan} {n}")
print(f"erreurs {len(auditeur.errors)}")
for e in auditeur.errors:
    print(" ", e.message)
plans = sorted(l.dxf.name for l in doc.layers)
print("plans", " ".join(plans))
attendus = [int(a) for a in sys.argv[2:]]  # facets, at least this many tube faces
ok = (
    not auditeur.errors
    and comptes[("3DFACE", "13")] == attendus[0]
    and comptes[("3DFACE", "3")] > 0
    and comptes[("3DFACE", "7")] > 0
    and all(g == "3DFACE" for g, _ in comptes)
    and all(str(p) in plans for p in (11, 12, 13, 4, 61, 7, 71, 72, 6, 2, 3))
)
sys.exit(0 if ok else 1)

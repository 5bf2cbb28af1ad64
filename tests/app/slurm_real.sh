#!/usr/bin/env bash
# A study on a real Slurm cluster of one node started on this machine: munged,
# slurmctld and slurmd (Debian's slurm-wlm and munge) with their key and
# configuration in a temporary folder, in a network namespace of their own
# where only 127.0.0.1 exists (or, where none can be made, on 127.0.0.1 of this
# machine, on free ports). `vanta estudio --slurm 4` writes the script of a
# 2,000-point study into a folder whose name needs quoting; sbatch runs it;
# `vanta estudio --unir` joins the shares, which must equal the same study
# run whole, byte for byte. The daemons are stopped at the end, whatever
# happens. Where the cluster cannot start (no root, no Slurm), the test says
# why and fails.
#
#   slurm_real.sh PATH/TO/vanta       (VANTA_SLURM_CONSERVAR=1 keeps the folder)
set -euo pipefail

falla() {
    echo "slurm_real: FALLA: $*" >&2
    exit 1
}

[ $# -eq 1 ] || falla "uso: slurm_real.sh RUTA/DE/vanta"
VANTA=$(readlink -f "$1")
[ -x "$VANTA" ] || falla "no está el programa $1"

if [ -z "${VANTA_SLURM_RED:-}" ]; then
    [ "$(id -u)" -eq 0 ] ||
        falla "munged, slurmctld y slurmd necesitan root para arrancar, y este usuario es $(id -un)"
    for programa in munged slurmctld slurmd sbatch sinfo; do
        command -v "$programa" >/dev/null ||
            falla "falta $programa: ./vanta instala los paquetes slurm-wlm y munge"
    done
    # A network of its own, where only the loopback exists.
    if unshare --net sh -c 'ip link set lo up && ip addr add 127.0.0.2/8 dev lo' 2>/dev/null; then
        exec env VANTA_SLURM_RED=propia unshare --net bash "$0" "$@"
    fi
    export VANTA_SLURM_RED=maquina
fi
# Slurm looks names up for IPv4 only where the system has an IPv4 address
# besides 127.0.0.1 (AI_ADDRCONFIG): a second one of the loopback will do.
if [ "$VANTA_SLURM_RED" = propia ]; then
    ip link set lo up
    ip addr add 127.0.0.2/8 dev lo
fi

ahora() { date +%s%N; }
desde() {
    local d=$((($(ahora) - $1) / 1000000))
    printf '%d.%d' $((d / 1000)) $((d % 1000 / 100))
}
INICIO=$(ahora)

T=$(mktemp -d /tmp/vanta-slurm.XXXXXX)
chmod 755 "$T"
PIDS=()
terminar() {
    local estado=$?
    for pid in "${PIDS[@]}"; do kill "$pid" 2>/dev/null || true; done
    for pid in "${PIDS[@]}"; do
        for _ in $(seq 50); do kill -0 "$pid" 2>/dev/null || break; sleep 0.1; done
        kill -9 "$pid" 2>/dev/null || true
    done
    if [ "$estado" -ne 0 ]; then
        for registro in "$T"/munged.log "$T"/slurmctld.log "$T"/slurmd.log "$T"/estudio*/slurm-*.out; do
            [ -f "$registro" ] || continue
            echo "---- ${registro#"$T"/} (final)" >&2
            tail -n 25 "$registro" >&2
        done
    fi
    if [ -n "${VANTA_SLURM_CONSERVAR:-}" ]; then echo "slurm_real: la carpeta queda en $T" >&2; else rm -rf "$T"; fi
    exit "$estado"
}
trap terminar EXIT
trap 'exit 1' INT TERM HUP

# Each daemon ends with this script if it is killed before it can stop them.
vigilado=()
setpriv --help 2>/dev/null | grep -q pdeathsig && vigilado=(setpriv --pdeathsig KILL)

puerto_libre() {
    local p
    for _ in $(seq 100); do
        p=$((20000 + RANDOM % 40000))
        (exec 3<>"/dev/tcp/127.0.0.1/$p") 2>/dev/null || { echo "$p"; return; }
    done
    falla "no hay un puerto libre en 127.0.0.1"
}
if [ "$VANTA_SLURM_RED" = propia ]; then
    PUERTO_CTLD=6817 PUERTO_D=6818
else
    PUERTO_CTLD=$(puerto_libre) PUERTO_D=$(puerto_libre)
fi

# munge: a key of this cluster alone.
mkdir -m 755 "$T/munge"
head -c 1024 /dev/urandom >"$T/munge/munge.key"
chmod 600 "$T/munge/munge.key"
"${vigilado[@]}" munged --foreground --force --socket="$T/munge/socket" --key-file="$T/munge/munge.key" \
    --pid-file="$T/munge/munged.pid" --seed-file="$T/munge/seed" --log-file="$T/munged.log" \
    >>"$T/munged.log" 2>&1 &
PIDS+=($!)
for _ in $(seq 100); do [ -S "$T/munge/socket" ] && break; sleep 0.1; done
[ -S "$T/munge/socket" ] || falla "munged no ha arrancado"

NODO=$(hostname -s)
CPUS=$(nproc)
mkdir "$T/estado" "$T/spool"
cat >"$T/slurm.conf" <<EOF
ClusterName=vanta
SlurmctldHost=$NODO(127.0.0.1)
SlurmctldPort=$PUERTO_CTLD
SlurmdPort=$PUERTO_D
SlurmUser=root
SlurmdUser=root
AuthType=auth/munge
CredType=cred/munge
AuthInfo=socket=$T/munge/socket
CommunicationParameters=NoInAddrAny
StateSaveLocation=$T/estado
SlurmdSpoolDir=$T/spool
SlurmctldPidFile=$T/slurmctld.pid
SlurmdPidFile=$T/slurmd.pid
SlurmctldLogFile=$T/slurmctld.log
SlurmdLogFile=$T/slurmd.log
ProctrackType=proctrack/linuxproc
TaskPlugin=task/none
SelectType=select/cons_tres
SelectTypeParameters=CR_CPU
JobAcctGatherType=jobacct_gather/none
AccountingStorageType=accounting_storage/none
JobCompType=jobcomp/none
MpiDefault=none
MailProg=/bin/true
ReturnToService=2
SlurmdParameters=config_overrides
NodeName=vanta1 NodeHostname=$NODO NodeAddr=127.0.0.1 CPUs=$CPUS State=UNKNOWN
PartitionName=vanta Nodes=vanta1 Default=YES MaxTime=INFINITE State=UP
EOF
export SLURM_CONF="$T/slurm.conf"
"${vigilado[@]}" slurmctld -D -i >>"$T/slurmctld.log" 2>&1 &
PIDS+=($!)
"${vigilado[@]}" slurmd -D -N vanta1 >>"$T/slurmd.log" 2>&1 &
PIDS+=($!)
estado_nodo=""
for _ in $(seq 60); do
    for pid in "${PIDS[@]}"; do kill -0 "$pid" 2>/dev/null || falla "un demonio de Slurm o munge ha terminado"; done
    estado_nodo=$(timeout 5 sinfo -h -n vanta1 -o %t 2>/dev/null || true)
    [ "$estado_nodo" = idle ] && break
    sleep 0.5
done
[ "$estado_nodo" = idle ] || falla "el nodo de Slurm no está listo (estado: ${estado_nodo:-ninguno})"
ARRANQUE=$(desde "$INICIO")

# 10 x 200 points, in a folder whose name the script has to quote.
ESTUDIO=(--variar fr=0.7:1.15:0.05 --variar rc=6:15.95:0.05 --salidas rendimiento,t3,p3)
CARPETA="$T/estudio de l'banco \$HOME"
ORDEN=$("$VANTA" estudio "${ESTUDIO[@]}" --slurm 4 --carpeta "$CARPETA" --tiempo 10:00 2>/dev/null)
[[ "$ORDEN" == sbatch\ * ]] || falla "vanta estudio --slurm no ha escrito la orden sbatch: $ORDEN"
grep -q '^#SBATCH --array=1-4$' "$CARPETA/estudio.sbatch" || falla "el guion no pide un array de 4 tareas"

T0=$(ahora)
TRABAJO=$(eval "timeout 60 ${ORDEN/sbatch/sbatch --parsable}" 2>"$T/sbatch.err") ||
    falla "sbatch no ha aceptado el guion: $(cat "$T/sbatch.err")"
# Every half second until the array leaves the queue (sbatch --wait looks
# less often), then each task's end as the controller keeps it.
for _ in $(seq 600); do
    [ -z "$(timeout 10 squeue -h -j "$TRABAJO" -o %i 2>/dev/null || echo sigue)" ] && break
    sleep 0.5
done
TAREAS=$(timeout 10 scontrol -o show job "$TRABAJO")
[ "$(grep -c 'JobState=COMPLETED .*ExitCode=0:0' <<<"$TAREAS")" -eq 4 ] ||
    falla "las 4 tareas del array no han terminado bien:"$'\n'"$TAREAS"
ARRAY=$(desde "$T0")

T0=$(ahora)
"$VANTA" estudio --unir "$CARPETA" --csv "$T/unido.csv" || falla "vanta estudio --unir ha fallado"
UNION=$(desde "$T0")
"$VANTA" estudio "${ESTUDIO[@]}" --csv "$T/entero.csv" || falla "el estudio entero ha fallado"
FILAS=$(($(wc -l <"$T/entero.csv") - 1))
[ "$FILAS" -eq 2000 ] || falla "el estudio entero tiene $FILAS puntos, no 2000"
cmp "$T/unido.csv" "$T/entero.csv" || falla "las partes unidas no son el estudio entero"

echo "slurm_real: red $VANTA_SLURM_RED; cluster listo en $ARRANQUE s; array de 4 tareas en $ARRAY s;" \
    "unión en $UNION s; $FILAS puntos iguales byte a byte al estudio entero (total $(desde "$INICIO") s)"

var kcal;

function calc1(form) {
        factor = 1.0;
        if (form.radio1[0].checked) {
                factor = 1.3;
        }
        if (form.radio1[1].checked) {
                factor = 1.4;
        }
        if (form.radio1[2].checked) {
                factor = 1.6;
        }
        if (form.radio1[3].checked) {
                factor = 1.8;
        }
        age = form.age.value;
        height = form.height.value;
        weight = form.weight.value;
        bmi = 22;
        if (age < 21) {
                bmi = bmi - 1;
        }
        Men = (67 + (13.69 * weight) + (5 * height) - (6.8 * age)) * factor;
        Women = (655 + (9.59 * weight) + (1.7 * height) - (4.7 * age)) * factor;
        if (form.R1[1].checked) {
                kcal = Women;
                bmi = bmi - 2;
        } else {
                kcal = Men;
        }
        if (form.radio2[0].checked) {
                sonno = -100;
        }
        if (form.radio2[1].checked) {
                sonno = 0;
        }
        if (form.radio2[2].checked) {
                sonno = 70;
        }
        if (form.radio2[3].checked) {
                sonno = 140;
        }
        if (form.radio2[4].checked) {
                sonno = 210;
        }
        imcx = weight * 100 / (height / 10 * height / 10);
        pesok = bmi / 100 * height / 10 * height / 10;
        pesok1 = (bmi + 0.8) / 100 * height / 10 * height / 10;
        pesok2 = (bmi - 0.3) / 100 * height / 10 * height / 10;
        kcal = Math.round(kcal + sonno);
        form.kcal.value = kcal;
        carboidrati = Math.round(kcal * 0.15 * 100) / 100;
        proteine = Math.round(kcal * 0.0375 * 100) / 100;
        grassi = Math.round(kcal * 0.0278 * 100) / 100;
        form.carboidrati.value = carboidrati;
        form.proteine.value = proteine;
        form.grassi.value = grassi;
        form.pesok1.value = Math.round(pesok1 * 10) / 10;
        form.pesok2.value = Math.round(pesok2 * 10) / 10;
        form.IMC.value = Math.round(imcx * 10) / 10;
        imcd = imcx - bmi;
        if (age < 10) {
                form.Testo.value = "Questa tabella non ha valore per i bambini al di sotto dei dieci anni";
        } else if ((imcd < 1.4) & (imcd > -1.4) & (factor < 1.4) & (age < 60)) {
                form.Testo.value = "Non avete problemi di peso, ma sarebbe comunque bene fare un po' di attività fisica";
        } else if ((imcd < 1.4) & (imcd > -1.4) & (factor < 1.4)) {
                form.Testo.value = "Non avete problemi di peso, un po' di attività fisica sotto controllo medico potrebbe esservi utile";
        } else if ((imcd < 1.4) & (imcd > -1.4)) {
                form.Testo.value = "Siete in ottima forma, continuate così";
        } else if ((imcd > 1.4) & (imcd < 5) & (factor < 1.4) & (age < 60)) {
                form.Testo.value = "Siete sovrappeso, dovreste fare un po' di attività fisica e controllare la vostra alimentazione";
        } else if ((imcd > 1.4) & (imcd < 5)) {
                form.Testo.value = "Siete sovrappeso, dovreste controllare la vostra alimentazione";
        } else if ((imcd > 1.4) & (age > 59)) {
                form.Testo.value = "Siete sovrappeso, rivolgetevi ad un medico che vi consigli, se è il caso, cibra e attività fisica";
        } else if ((imcd >= 5) & (age < 60)) {
                form.Testo.value = "Siete molto in sovrappeso, dovete necessariamente controllare la vostra cibra e fare attività fisica";
        } else if ((imcd < -1.4) & (imcd > -4) & (age < 60) & (factor < 1.4)) {
                form.Testo.value = "Siete sotto peso, dovreste fare più attività fisica e aumentare l'apporto calorico dei vostri pasti";
        } else if ((imcd < -1.4) & (imcd > -4) & (age < 60) & (factor >= 1.4)) {
                form.Testo.value = "Siete sotto peso, dovreste aumentare l'apporto calorico dei vostri pasti";
        } else if ((imcd <= -4) | ((imcd < -1.4) & (age > 59))) {
                form.Testo.value = "Siete troppo sotto peso, consultate un medico";
        }
}

function clearForm(form) {
        form.age.value = "";
        form.weight.value = "";
        form.height.value = "";
        form.kcal.value = "";
        form.carboidrati.value = "";
        form.proteine.value = "";
        form.grassi.value = "";
        form.pesok1.value = "";
        form.pesok2.value = "";
        form.radio1[0].click();
        form.R1[0].click();
        form.Testo.value = "";
}

function estrai(SA) {
        ch = new Array();
        for (k=0;k<29;k++) {
                ch[k] = SA.charAt(k);
        }
        acqua = ch[1] + ch[2] + ch[3] + ch[4];
        proteine = ch[6] + ch[7] + ch[8] + ch[9];
        grassi = ch[11] + ch[12] + ch[13] + ch[14];
        zuccheri = ch[16] + ch[17] + ch[18] + ch[19];
        fibre = ch[21] + ch[22] + ch[23] + ch[24];
        calorie = ch[26] + ch[27] + ch[28];
}

function calc2(form) {
@usa conto.js A1
@usa conto.js A2
@usa conto.js A3
@usa conto.js A4
        Ath = A1h + A2h + A3h + A4h;
        Atp = A1p + A2p + A3p + A4p;
        Atf = A1f + A2f + A3f + A4f;
        Atc = A1c + A2c + A3c + A4c;
        Atk = A1k + A2k + A3k + A4k;
        form.Ath.value = Ath;
        form.Atp.value = Atp;
        form.Atf.value = Atf;
        form.Atc.value = Atc;
        form.Atk.value = Atk;
@usa conto.js B1
@usa conto.js B2
@usa conto.js B3
@usa conto.js B4
@usa conto.js B5
@usa conto.js B6
@usa conto.js B7
        Bth = B1h + B2h + B3h + B4h + B5h + B6h + B7h;
        Btp = B1p + B2p + B3p + B4p + B5p + B6p + B7p;
        Btf = B1f + B2f + B3f + B4f + B5f + B6f + B7f;
        Btc = B1c + B2c + B3c + B4c + B5c + B6c + B7c;
        Btk = B1k + B2k + B3k + B4k + B5k + B6k + B7k;
        form.Bth.value = Bth;
        form.Btp.value = Btp;
        form.Btf.value = Btf;
        form.Btc.value = Btc;
        form.Btk.value = Btk;
@usa conto.js C1
@usa conto.js C2
@usa conto.js C3
@usa conto.js C4
        Cth = C1h + C2h + C3h + C4h;
        Ctp = C1p + C2p + C3p + C4p;
        Ctf = C1f + C2f + C3f + C4f;
        Ctc = C1c + C2c + C3c + C4c;
        Ctk = C1k + C2k + C3k + C4k;
        form.Cth.value = Cth;
        form.Ctp.value = Ctp;
        form.Ctf.value = Ctf;
        form.Ctc.value = Ctc;
        form.Ctk.value = Ctk;
@usa conto.js D1
@usa conto.js D2
@usa conto.js D3
@usa conto.js D4
@usa conto.js D5
@usa conto.js D6
@usa conto.js D7
        Dth = D1h + D2h + D3h + D4h + D5h + D6h + D7h;
        Dtp = D1p + D2p + D3p + D4p + D5p + D6p + D7p;
        Dtf = D1f + D2f + D3f + D4f + D5f + D6f + D7f;
        Dtc = D1c + D2c + D3c + D4c + D5c + D6c + D7c;
        Dtk = D1k + D2k + D3k + D4k + D5k + D6k + D7k;
        form.Dth.value = Dth;
        form.Dtp.value = Dtp;
        form.Dtf.value = Dtf;
        form.Dtc.value = Dtc;
        form.Dtk.value = Dtk;
        totk = Atk + Btk + Ctk + Dtk;
        toth = Ath + Bth + Cth + Dth;
        totp = Atp + Btp + Ctp + Dtp;
        totc = Atc + Btc + Ctc + Dtc;
        totf = Atf + Btf + Ctf + Dtf;
        form.totk.value = Math.round(totk);
        form.toth.value = Math.round(toth * 10) / 10;
        form.totp.value = Math.round(totp * 10) / 10;
        form.totc.value = Math.round(totc * 10) / 10;
        form.totf.value = Math.round(totf * 10) / 10;
        if (totk < kcal) {
                form.aumdim.value = "una diminuzione";
        } else {
                form.aumdim.value = "un aumento";
        }
        pond = (kcal - totk) * 7 / 7000;
        form.ksett.value = Math.round(pond * 10) / 10;
        cc = totk * 0.15 * .9;
        cp = totk * 0.0375 * .9;
        cf = totk * 0.0278 * .9;
        if (totp < cp) {
                form.testo2.value = "Occorre aumentare l'apporto proteico";
        } else if (totc < cc) {
                form.testo2.value = "Sarebbe bene aumentare l'apporto di carboidrati e zuccheri";
        } else {
                form.testo2.value = "La composizione della cibra è sostanzialmente corretta";
        }
}
